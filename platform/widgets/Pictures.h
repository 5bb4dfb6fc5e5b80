#pragma once

#include <QLabel>
#include <QToolButton>

/// A picture of resources/pictures by its bare name ("lock-closed"), sharp at every scale.
QIcon Picture(const QString& name);

/// One picture drawn in several sizes, each under a bare name of its own ("icon-16", "icon-32").
QIcon PictureOfSizes(const QStringList& names);

/// A picture that can be clicked, reached by Tab and worked by Space or Enter.
class PictureButton : public QToolButton {
    Q_OBJECT

public:
    /// `size` in logical pixels; `accessibleName` is what a screen reader says.
    PictureButton(const QString& picture, int size, const QString& accessibleName, QWidget* parent = nullptr);

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QString picture;
};

/// A label that raises Clicked for a press and release of the left button on it.
class ClickableLabel : public QLabel {
    Q_OBJECT

public:
    explicit ClickableLabel(QWidget* parent = nullptr);

Q_SIGNALS:
    void Clicked();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    bool pressed = false;
};
