#include "platform/widgets/ProgramStyle.h"

#include <QApplication>
#include <QPainter>
#include <QPainterPath>
#include <QStyleOptionGroupBox>
#include <algorithm>
#include <cmath>

namespace {

constexpr int TitleTop = 7;
constexpr int TitleLeft = 13;
constexpr int TitleGap = 1; // between the title and the card's contents
constexpr qreal CornerRadius = 5;
constexpr double LeastContrast = 4.6; // a little more than what people need to read a text
constexpr int LighterParts = 150;     // percent: how much lighter or darker a style paints parts of a button
constexpr int DarkerParts = 124;
constexpr int StepsToGoal = 20;
constexpr qreal FrameShare = 0.3;    // of the text's colour in a frame on a light card
constexpr qreal OutlineShare = 0.45; // of the text's colour: three to one against a dark card

QFont TitleFont(const QWidget* widget) {
    QFont font = widget != nullptr ? widget->font() : QApplication::font();
    font.setBold(true);
    return font;
}

QRect TitleRect(const QStyleOptionGroupBox& box, const QWidget* widget) {
    const QFontMetrics metrics(TitleFont(widget));
    const int height = metrics.height();
    const bool blankFirst = box.text.startsWith(u' '); // the letters of all titles begin at one line
    const int left = TitleLeft - (blankFirst ? metrics.horizontalAdvance(u' ') : 0);
    return {box.rect.left() + left, box.rect.top() + TitleTop, box.rect.width() - 2 * TitleLeft, height};
}

QColor Blend(const QColor& one, const QColor& other, qreal share) {
    return QColor::fromRgbF(static_cast<float>(one.redF() * (1 - share) + other.redF() * share),
                            static_cast<float>(one.greenF() * (1 - share) + other.greenF() * share),
                            static_cast<float>(one.blueF() * (1 - share) + other.blueF() * share));
}

bool IsDark(const QPalette& palette) {
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

// Lighter than the window, so that the boxes in it, which are darker, stand out in a dark palette, too.
QColor CardColor(const QPalette& palette) {
    return IsDark(palette) ? Blend(palette.color(QPalette::Window), palette.color(QPalette::WindowText), 0.05)
                           : Blend(palette.color(QPalette::Window), palette.color(QPalette::Base), 0.6);
}

// As the guidelines for accessible contents count it.
double Luminance(const QColor& color) {
    const auto linear = [](double share) {
        return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double Contrast(const QColor& one, const QColor& other) {
    const double first = Luminance(one) + 0.05;
    const double second = Luminance(other) + 0.05;
    return std::max(first, second) / std::min(first, second);
}

// The color, moved towards `goal` only as far as it takes to be readable on all of the backgrounds.
QColor Readable(const QColor& color, const QColor& goal, std::initializer_list<QColor> backgrounds) {
    QColor moved = color;
    for (int step = 1; step <= StepsToGoal; ++step) {
        const bool readable = std::all_of(backgrounds.begin(), backgrounds.end(), [&moved](const QColor& background) {
            return Contrast(moved, background) >= LeastContrast;
        });
        if (readable) {
            break;
        }
        moved = Blend(color, goal, qreal(step) / StepsToGoal);
    }
    return moved;
}

// Disabled texts of a palette stay fainter than the others.
void MakeDisabledReadable(QPalette& palette) {
    const QColor card = CardColor(palette);
    const QColor window = palette.color(QPalette::Disabled, QPalette::Window);
    const QColor base = palette.color(QPalette::Disabled, QPalette::Base);
    const QColor button = palette.color(QPalette::Disabled, QPalette::Button);
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        const QColor text = palette.color(QPalette::Disabled, role);
        const QColor goal = palette.color(QPalette::Active, role);
        palette.setColor(
            QPalette::Disabled, role,
            Readable(text, goal, {window, card, base, button.lighter(LighterParts), button.darker(DarkerParts)}));
    }
}

// What is selected keeps the desktop's color, but for as much as it takes to read its text; hints stay faint.
void MakeSelectionAndHintsReadable(QPalette& palette) {
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        const QColor selected = palette.color(group, QPalette::HighlightedText);
        const QColor away = Luminance(selected) > 0.5 ? QColor(Qt::black) : QColor(Qt::white);
        palette.setColor(group, QPalette::Highlight,
                         Readable(palette.color(group, QPalette::Highlight), away, {selected}));
        const QColor base = palette.color(group, QPalette::Base);
        const QColor hint = palette.color(group, QPalette::PlaceholderText);
        palette.setColor(group, QPalette::PlaceholderText,
                         Readable(Blend(base, hint, hint.alphaF()), palette.color(group, QPalette::Text), {base}));
    }
}

QPainterPath OutlineOf(QStyle::PrimitiveElement element, const QRect& rect) {
    const QRectF edge = QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5);
    QPainterPath path;
    if (element == QStyle::PE_IndicatorRadioButton) {
        path.addEllipse(edge);
    } else {
        path.addRoundedRect(edge, 2, 2);
    }
    return path;
}

void DrawOutline(QPainter* painter, const QPainterPath& outline, const QColor& color) {
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(color);
    painter->setBrush(Qt::NoBrush);
    painter->drawPath(outline);
    painter->restore();
}

// At 125 or 150 % the plain style's thin frames fall between the pixels, and one or two of their edges are lost.
bool LosesEdges(QStyle::PrimitiveElement element, const QPainter& painter, const QWidget* widget) {
    const qreal ratio = painter.device()->devicePixelRatioF();
    const bool popup = widget != nullptr && widget->isWindow();
    return element == QStyle::PE_Frame && !popup && ratio != std::floor(ratio);
}

} // namespace

void ProgramStyle::Install() {
    QApplication::setStyle(new ProgramStyle);
}

void ProgramStyle::polish(QPalette& palette) {
    QProxyStyle::polish(palette);
    MakeDisabledReadable(palette);
    MakeSelectionAndHintsReadable(palette);
}

void ProgramStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                                      const QWidget* widget) const {
    const auto* box = qstyleoption_cast<const QStyleOptionGroupBox*>(option);
    if (control != CC_GroupBox || box == nullptr) {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
        return;
    }
    const QPalette& palette = box->palette;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Blend(palette.color(QPalette::Window), palette.color(QPalette::WindowText), 0.25));
    painter->setBrush(CardColor(palette));
    painter->drawRoundedRect(QRectF(box->rect).adjusted(0.5, 0.5, -0.5, -0.5), CornerRadius, CornerRadius);
    painter->setFont(TitleFont(widget));
    painter->setPen(palette.color(box->state.testFlag(State_Enabled) ? QPalette::Active : QPalette::Disabled,
                                  QPalette::WindowText));
    painter->drawText(TitleRect(*box, widget), Qt::AlignLeading | Qt::AlignVCenter | Qt::TextHideMnemonic, box->text);
    painter->restore();
}

// The plain style outlines boxes and marks darker than the window; where that is dark, nothing is seen of it.
void ProgramStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                 const QWidget* widget) const {
    const QPalette& palette = option->palette;
    const bool plain = baseStyle()->name() == QLatin1String("fusion");
    const auto outline = [&](qreal share) {
        DrawOutline(painter, OutlineOf(element, option->rect),
                    Blend(palette.color(QPalette::Window), palette.color(QPalette::WindowText), share));
    };
    if (plain && !IsDark(palette) && LosesEdges(element, *painter, widget)) {
        outline(FrameShare);
        return;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    const bool outlined = element == PE_IndicatorRadioButton || element == PE_IndicatorCheckBox ||
                          element == PE_FrameLineEdit || element == PE_Frame;
    const bool focused = element == PE_FrameLineEdit && option->state.testFlag(State_HasFocus);
    if (plain && outlined && !focused && IsDark(palette)) {
        outline(OutlineShare);
    }
}

QRect ProgramStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl subControl,
                                   const QWidget* widget) const {
    const auto* box = qstyleoption_cast<const QStyleOptionGroupBox*>(option);
    if (control != CC_GroupBox || box == nullptr) {
        return QProxyStyle::subControlRect(control, option, subControl, widget);
    }
    switch (subControl) {
    case SC_GroupBoxFrame:
        return box->rect;
    case SC_GroupBoxLabel:
        return box->text.isEmpty() ? QRect() : TitleRect(*box, widget);
    case SC_GroupBoxContents: {
        const int top = box->text.isEmpty() ? 0 : TitleRect(*box, widget).bottom() + TitleGap;
        return box->rect.adjusted(1, top, -1, -1);
    }
    default:
        return {};
    }
}
