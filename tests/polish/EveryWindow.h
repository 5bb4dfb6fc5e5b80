#pragma once

#include <QSize>
#include <QString>
#include <functional>

class QWidget;

/// Opens every window of both editions in all its states (panels, lock, frames, captions of both languages), shows it
/// and waits until it is active, then calls `look` with it and a name such as "french, transfer-work-habits". The
/// desktop has a screen of the given size in logical pixels.
void LookAtEveryWindow(const std::function<void(QWidget& window, const std::string& name)>& look,
                       const QSize& screen = QSize(1366, 768));
