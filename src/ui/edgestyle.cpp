#include "ui/edgestyle.h"

#include <QPainter>
#include <QStyleOption>

#include <optional>

namespace {

QColor edgeColor(const QStyleOption &option)
{
    const bool isEnabled = option.state.testFlag(QStyle::State_Enabled);
    const QColor ground = option.palette.color(QPalette::Active, QPalette::Window);
    const QColor ink = option.palette.color(QPalette::Active, QPalette::WindowText);
    const float share = isEnabled ? 0.5F : 0.25F;
    const auto channel = [share](float a, float b) { return a + (b - a) * share; };
    return QColor::fromRgbF(channel(ground.redF(), ink.redF()),
                            channel(ground.greenF(), ink.greenF()),
                            channel(ground.blueF(), ink.blueF()));
}

void drawEdge(QPainter &painter, const QStyleOption &option, const QRectF &rect, double radius)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(edgeColor(option));
    painter.drawRoundedRect(rect.adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
    painter.restore();
}

constexpr double rounded = 2; // as the style draws them

/// Whether the style draws the edge in the colour of the focus.
bool hasFocus(const QStyleOption &option, bool byKeyboard)
{
    return option.state.testFlag(QStyle::State_HasFocus) &&
           (!byKeyboard || option.state.testFlag(QStyle::State_KeyboardFocusChange));
}

/// How round the edge of an element is, none where it has no edge.
std::optional<double> radiusOf(QStyle::PrimitiveElement element, const QStyleOption &option)
{
    switch (element) {
    case QStyle::PE_FrameLineEdit:
        return hasFocus(option, false) ? std::nullopt : std::optional(rounded);
    case QStyle::PE_PanelButtonCommand:
        return hasFocus(option, true) ? std::nullopt : std::optional(rounded);
    case QStyle::PE_IndicatorCheckBox:
        return hasFocus(option, true) ? std::nullopt : std::optional(0.0);
    case QStyle::PE_IndicatorRadioButton:
        return option.rect.width() / 2.0;
    case QStyle::PE_Frame:
    case QStyle::PE_PanelMenu:
    case QStyle::PE_FrameGroupBox:
    case QStyle::PE_FrameTabWidget:
        return 0;
    default:
        return std::nullopt;
    }
}

} // namespace

bool EdgeStyle::needsEdges(const QStyleOption &option) const
{
    return option.palette.color(QPalette::Window).lightness() < 128 &&
           baseStyle()->name() == QLatin1String("fusion");
}

void EdgeStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option,
                              QPainter *painter, const QWidget *widget) const
{
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    if (const auto radius = radiusOf(element, *option); radius && needsEdges(*option))
        drawEdge(*painter, *option, option->rect, *radius);
}

// The chosen tab has nothing else to tell it by on black.
void EdgeStyle::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                            const QWidget *widget) const
{
    QProxyStyle::drawControl(element, option, painter, widget);
    if (element == CE_TabBarTabShape && option->state.testFlag(State_Selected) &&
        needsEdges(*option))
        drawEdge(*painter, *option, option->rect, rounded);
}

void EdgeStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                                   QPainter *painter, const QWidget *widget) const
{
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (!needsEdges(*option))
        return;
    if ((control == CC_ComboBox && !hasFocus(*option, true)) ||
        (control == CC_SpinBox && !hasFocus(*option, false)))
        drawEdge(*painter, *option, option->rect, rounded);
    else if (control == CC_ScrollBar)
        drawEdge(*painter, *option, subControlRect(control, option, SC_ScrollBarSlider, widget),
                 rounded);
}
