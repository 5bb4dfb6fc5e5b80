#pragma once

#include "tests/e2e/InstalledProgram.h"
#include "tests/e2e/RunningProgram.h"

/// A typical run of the program, gone through with real key and mouse events, with pictures of every window on the way.
class TourSteps {
public:
    /// `programFolder` has the sample files, `pictureFolder` takes the pictures.
    TourSteps(const EditionNames& editionToTour, const QString& programFolder, const QString& pictureFolder);

    /// Goes from the start of the program to its end; throws when a step does not come about.
    void Go();

    /// The pictures taken, in order.
    QStringList Pictures() const { return taken; }

private:
    /// The menu offers the Transfer area only where its program lies; for the tour, an empty file does.
    class TransferProgram {
    public:
        explicit TransferProgram(QString file);
        ~TransferProgram();

    private:
        QString file;
        bool made = false;
    };

    EditionNames edition;
    QString folder;
    TransferProgram transferProgram;
    QString pictures;
    QStringList taken;
    RunningProgram program;

    void TakePicture(const QString& title, const QString& name);
    void ToggleLock();
    void VisitGeneralOptions();
    void ChangeDateFormatAndMailServer(const QString& title);
    void BackToMenu(const QString& title, const QString& keys);

    // The other windows (TourWindows.cpp)
    void VisitImport();
    void PassFileOfSettings(const QString& title);
    void MatchFields(const QString& title);
    void VisitAdmin();
    void VisitTransfer();
};
