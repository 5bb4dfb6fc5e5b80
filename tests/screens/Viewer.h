#pragma once

class QWidget;

/// Looks at the windows of the program, one state after the other.
class Viewer {
public:
    virtual ~Viewer() = default;

    /// Called with a window in the state of that name, shown or not yet. The window lives for the call only.
    virtual void Take(QWidget& window, const char* name) = 0;
};
