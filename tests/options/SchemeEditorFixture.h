#pragma once

#include "tests/options/SetupFixture.h"

inline constexpr char File[] = "c:\\other\\new.scm";

/// The scheme editor of General Options.
class SchemeEditor : public SetupTest {
protected:
    QLineEdit* Symbol(int p) { return C<QLineEdit>(QStringLiteral("txtABCChr(%1)").arg(p)); }
    QLineEdit* Value(int p) { return C<QLineEdit>(QStringLiteral("txtABCVal(%1)").arg(p)); }
    QComboBox* Levels() { return C<QComboBox>(QStringLiteral("cboABCLevels")); }
    QString Heading() { return C<QLineEdit>(QStringLiteral("txtABCHeading"))->text(); }
    static QColor ColourOf(const QLineEdit* box) {
        return box->palette().color(box->isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::Base);
    }
    // "F/0 D-/50 ...", all active pairs.
    QString Scheme() {
        QStringList pairs;
        for (int p = 0; p <= Levels()->currentIndex() + 1; ++p) {
            pairs.append(Symbol(p)->text() + u'/' + Value(p)->text());
        }
        return pairs.join(u' ');
    }
    void Load(const QByteArray& bytes) {
        Machine.Write(QString::fromUtf8(File), bytes);
        LoadFile(File);
    }
    void LoadFile(const char* name) {
        Screen.AnswerFile(QString::fromUtf8(name));
        Click("cmdLoadScheme");
    }
    void SaveFile(const char* name) {
        Screen.AnswerFile(QString::fromUtf8(name));
        Click("cmdSaveScheme");
    }
};

inline const QColor White(255, 255, 255);
inline const QColor Yellow(255, 255, 128);
inline const QColor Cyan(192, 255, 255);
inline const QColor Pink(255, 128, 255);

inline constexpr char DefaultScheme[] = "F/0 D-/50 D/53 D+/57 C-/60 C/63 C+/67 B-/70 B/73 B+/77 A-/80 A/85 A+/90";
