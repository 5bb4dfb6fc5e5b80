#pragma once

class QEvent;

/// Whether the event is something that the user does to a control with the keyboard or the mouse.
bool IsUserInput(const QEvent& event);
