#pragma once

#include <QGroupBox>
#include <QLabel>
#include <QLayout>
#include <QPushButton>

/// The one pattern of the main menu's frames: text on the left, a column of one width with the button on the right.
namespace MenuLayout {

inline constexpr int WindowWidth = 800;  ///< 12000 twips
inline constexpr int WindowHeight = 600; ///< 9000 twips
inline constexpr int FrameWidth = 776;   ///< of a frame in the window as it opens
inline constexpr int SideWidth = 200;    ///< of the right column
inline constexpr int TextWidth = 525;    ///< of the left column in the window as it opens, less what a frame adds

/// A wrapping text with an object name, for a column of `width`.
QLabel* NewText(QWidget* parent, const char* name, int width = TextWidth);

/// A button of the right column's width.
QPushButton* NewButton(QWidget* parent, const char* name);

/// Lays the two columns out in a frame.
void SetColumns(QGroupBox& frame, QLayout* texts, QLayout* side);

/// A frame with one text and one button.
QGroupBox* NewArea(QWidget* parent, const char* name, QLabel* text, QPushButton* button);

} // namespace MenuLayout
