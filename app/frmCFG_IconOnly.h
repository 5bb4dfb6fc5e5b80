#pragma once

#include <QWidget>

/// Carries the program's icon, in every size, and is never shown; the application takes its icon from it.
class frmCFG_IconOnly : public QWidget {
    Q_OBJECT

public:
    frmCFG_IconOnly();
};
