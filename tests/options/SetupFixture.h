#pragma once

#include "app/CFG_2015.h"
#include "options/frmSetUp_SU.h"
#include "tests/support/FaultyCalls.h"
#include "tests/support/PrintText.h"
#include "tests/support/TestFolder.h"
#include "tests/support/WindowInput.h"

#include <map>

/// A machine with the gradebook's folders and the hand-written configuration file base.cfg, and General Options on it.
class SetupTest : public testing::Test {
public:
    SetupTest();

    /// Starts the program on these bytes of a configuration file.
    void Start(const QByteArray& configFile, Edition edition = Edition::English);
    void Open();
    /// Opens the window with one panel shown.
    void OpenPanel(int panel);
    void ShowPanel(int panel);

    template <typename Control>
    Control* C(const QString& name) {
        return Find<Control>(*Window, name.toUtf8().constData());
    }
    QString TextOf(const char* label) { return C<QLabel>(QString::fromUtf8(label))->text(); }
    void Click(const char* button);
    /// Clicks into a text box and types over what it held; the box keeps the focus.
    void Type(const QString& box, const QString& text);
    /// Types and moves on with Tab.
    void Enter(const QString& box, const QString& text);
    void Choose(const QString& list, const QString& entry);
    bool IsOpen() const { return Window->isVisible(); }

    /// The newer configuration file; fails when the older one is not the same.
    QByteArray Saved();
    /// Titles of the messages so far, joined by bars.
    QString Titles() const;

    FaultyCalls Calls; ///< the real ones until a test makes one fail
    TestFolder Machine{Calls};
    ScriptedDesktop& Screen = Machine.Screen;
    std::unique_ptr<frmSetUp_SU> Window;
};

/// base.cfg, or other bytes, with some lines (counted from 1) replaced.
using Lines = std::map<int, QByteArray>;
QByteArray WithLines(const QByteArray& file, const Lines& lines);
QByteArray Base();
