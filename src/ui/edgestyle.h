// Edges that can be seen in dark palettes.
#pragma once

#include <QProxyStyle>

/// The style of the desktop. Where that is Fusion, which draws edges in a darker shade of the
/// window, boxes, buttons, indicators and frames have one between window and text in a dark
/// palette: on black they would be invisible until they get the focus.
class EdgeStyle : public QProxyStyle
{
    Q_OBJECT

public:
    using QProxyStyle::QProxyStyle;

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget = nullptr) const override;
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget = nullptr) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                            QPainter *painter, const QWidget *widget = nullptr) const override;

private:
    bool needsEdges(const QStyleOption &option) const;
};
