#pragma once

#include <QHash>
#include <QLabel>

/// A label of whole sentences, broken into lines. Layouts ask again and again how high it must be for a width; it
/// measures its text once for each width.
class ExplanationLabel : public QLabel {
    Q_OBJECT

public:
    explicit ExplanationLabel(QWidget* parent = nullptr);

    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void changeEvent(QEvent* event) override;

private:
    mutable QHash<int, int> heights; // by width
    mutable QString measured;        // the text that they belong to
};
