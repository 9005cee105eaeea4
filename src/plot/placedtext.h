// Texts of a chart, where they stand and how they look.
#pragma once

#include <QRectF>
#include <QString>

#include <functional>

namespace plot {

enum class TextRole
{
    Plain,
    Caption,
    Figure
};
enum class Tone
{
    Ink,
    Muted,
    OnFill, ///< on an item that is filled with a colour of its own
    OnInk   ///< on a plate of the ink's colour
};

/// The text sizes that a chart is laid out for, in the units of its area.
struct TextMetrics
{
    double lineHeight = 16; ///< of Plain and Caption
    double figureHeight = 22;
    std::function<double(const QString &, TextRole)> width;
};

struct PlacedText
{
    QRectF rect;
    QString text;
    Qt::Alignment alignment = Qt::AlignCenter;
    TextRole role = TextRole::Plain;
    Tone tone = Tone::Ink;
};

} // namespace plot
