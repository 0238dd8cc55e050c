#include "platform/contrast_style.h"

#include <QPainter>
#include <QStyleOption>

namespace torvane {

namespace {

constexpr int blackest = 24;  // lightness of a window, of 255
constexpr int belowTitle = 3; // pixels from the title of a group to its frame

bool isBlack(const QStyleOption& option)
{
    return option.palette.color(QPalette::Window).lightness() <= blackest;
}

/// Whether a control is marked: it has the focus, or is the button that the Enter key presses.
bool isMarked(const QStyleOption& option)
{
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(&option);
    const bool isDefault = button && button->features.testFlag(QStyleOptionButton::DefaultButton);
    return isDefault || option.state.testFlag(QStyle::State_HasFocus);
}

/// Draws one line around what `outline` draws.
template <typename Outline>
void edge(const QStyleOption& option, QPainter& painter, const Outline& outline)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(option.palette.color(isMarked(option) ? QPalette::Highlight : QPalette::WindowText));
    outline(painter);
    painter.restore();
}

QRectF halfInside(const QRect& rect)
{
    return QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5);
}

void boxEdge(const QStyleOption& option, QPainter& painter, const QRect& box)
{
    edge(option, painter, [&](QPainter& pen) { pen.drawRect(halfInside(box)); });
}

} // namespace

ContrastStyle::ContrastStyle() : QProxyStyle(QStringLiteral("fusion")) {}

void ContrastStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                  const QWidget* widget) const
{
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    if (!isBlack(*option)) {
        return;
    }
    switch (element) {
    case PE_IndicatorRadioButton:
        edge(*option, *painter, [&](QPainter& pen) { pen.drawEllipse(halfInside(option->rect)); });
        break;
    case PE_FrameLineEdit:
    case PE_PanelLineEdit:
    case PE_Frame:
    case PE_IndicatorCheckBox:
    case PE_PanelButtonCommand:
        boxEdge(*option, *painter, option->rect);
        break;
    case PE_FrameGroupBox:
        boxEdge(*option, *painter, option->rect.adjusted(0, option->fontMetrics.height() + belowTitle, 0, 0));
        break;
    default:
        break;
    }
}

void ContrastStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                                const QWidget* widget) const
{
    QProxyStyle::drawControl(element, option, painter, widget);
    if (element == CE_TabBarTabShape && isBlack(*option)) {
        boxEdge(*option, *painter, option->rect);
    }
}

void ContrastStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                       QPainter* painter, const QWidget* widget) const
{
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (!isBlack(*option)) {
        return;
    }
    if (control == CC_ComboBox) {
        boxEdge(*option, *painter, option->rect);
    } else if (control == CC_ScrollBar) {
        boxEdge(*option, *painter, subControlRect(control, option, SC_ScrollBarSlider, widget));
    }
}

} // namespace torvane
