#pragma once

#include <QHash>
#include <QLabel>
#include <QTextLayout>
#include <memory>

/// A label of whole sentences in plain text, broken into lines. Layouts ask again and again how high it must be for a
/// width, and then it is painted; it measures its text once for all of it. It has no buddy and no selection.
class ExplanationLabel : public QLabel {
    Q_OBJECT

public:
    explicit ExplanationLabel(QWidget* parent = nullptr);

    /// The width that the label will most likely be given, in logical pixels; its lines are then measured once only.
    void SetPreferredWidth(int width);

    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    int preferredWidth;
    mutable std::unique_ptr<QTextLayout> measured; // the text with the place of every letter
    mutable QString measuredText;                  // the text that it belongs to
    mutable int brokenAt = -1;                     // the width that it is broken into lines for
    mutable QHash<int, qreal> heights;             // by that width

    QTextLayout& Measured() const;
    qreal BreakLines(int width) const;
};
