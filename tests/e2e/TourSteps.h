#pragma once

#include "tests/e2e/InstalledProgram.h"
#include "tests/e2e/RunningProgram.h"

/// A typical run of the program, gone through with real key and mouse events, with a picture of each window on the way.
class TourSteps {
public:
    /// `folder` is the program folder, `pictures` the folder of the pictures.
    TourSteps(const EditionNames& edition, const QString& folder, const QString& pictures);

    /// Goes from the start of the program to its end; throws when a step does not come about.
    void Go();

    /// The pictures taken, in order.
    QStringList Pictures() const { return taken; }

private:
    EditionNames edition;
    QString folder;
    QString pictures;
    QStringList taken;
    RunningProgram program;

    void TakePicture(const QString& title, const QString& name);
    void ToggleLock();
    void VisitGeneralOptions();
    void ChangeDateFormatAndMailServer(const QString& title);
};
