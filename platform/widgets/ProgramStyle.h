#pragma once

#include <QProxyStyle>

/// The look of the whole program over the desktop's own style: frames are cards with their title inside, so that all
/// windows look made by one hand in light and dark palettes alike.
class ProgramStyle : public QProxyStyle {
    Q_OBJECT

public:
    ProgramStyle() = default;

    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
    /// Makes the texts of a desktop's palette readable in every state: at least 4.5 to 1 against what lies behind them.
    void polish(QPalette& palette) override;
    using QProxyStyle::polish;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl subControl,
                         const QWidget* widget) const override;

    /// Gives the application this style; once, before the first window.
    static void Install();
};

/// The rhythm of all windows, in logical pixels.
namespace Spacing {
inline constexpr int Margin = 12; ///< between a window's edge or a card's edge and what is in it
inline constexpr int Gap = 8;     ///< between controls
} // namespace Spacing
