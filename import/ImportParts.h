#pragma once

#include <QLabel>
#include <QPushButton>

/// The plain parts of the import window and its panels, made by one hand.

/// A label of plain text with an object name.
inline QLabel* NewImportLabel(QWidget* parent, const char* name) {
    auto* label = new QLabel(parent);
    label->setObjectName(QString::fromLatin1(name));
    label->setTextFormat(Qt::PlainText);
    return label;
}

/// A button with an object name that Enter works only while it has the focus.
inline QPushButton* NewImportButton(QWidget* parent, const char* name) {
    auto* button = new QPushButton(parent);
    button->setObjectName(QString::fromLatin1(name));
    button->setAutoDefault(false);
    return button;
}
