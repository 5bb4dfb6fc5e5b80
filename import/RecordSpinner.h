#pragma once

#include <QToolButton>

/// Two arrows that page through the records, Previous and Next; the arrow keys, Home and End work them, too.
class RecordSpinner : public QWidget {
    Q_OBJECT

public:
    explicit RecordSpinner(QWidget* parent = nullptr);

    QToolButton* Previous;
    QToolButton* Next;

Q_SIGNALS:
    void NextClicked();
    void PreviousClicked();
    void FirstAsked();
    void LastAsked();

protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    bool TakesKey(int key);
    QToolButton* NewArrow(const char* name, Qt::ArrowType arrow, const QString& accessibleName);
};
