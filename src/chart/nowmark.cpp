// The present minute on the chart of the current day.
#include "chart/daylayout.h"

#include <algorithm>

namespace daychart {

namespace {

constexpr double beside = 0.3; ///< from the line to its label, in heights of a line of text

/// Whether a straight line from left to right meets a rectangle.
bool meets(const QPointF &from, const QPointF &to, const QRectF &rect)
{
    if (to.x() < rect.left() || from.x() > rect.right())
        return false;
    double first = from.y();
    double last = to.y();
    if (const double width = to.x() - from.x(); width > 0) {
        const auto y = [&](double x) {
            return from.y() + (to.y() - from.y()) * std::clamp((x - from.x()) / width, 0.0, 1.0);
        };
        first = y(rect.left());
        last = y(rect.right());
    }
    return std::max(first, last) >= rect.top() && std::min(first, last) <= rect.bottom();
}

/// A line down at x, without what would run through one of the rectangles.
std::vector<QLineF> piecesBetween(double x, double top, double bottom, std::vector<QRectF> rects)
{
    std::erase_if(rects, [x](const QRectF &rect) { return x <= rect.left() || x >= rect.right(); });
    std::sort(rects.begin(), rects.end(),
              [](const QRectF &a, const QRectF &b) { return a.top() < b.top(); });
    std::vector<QLineF> pieces;
    const auto addUpTo = [&](double end) {
        if (end > top)
            pieces.push_back({x, top, x, end});
    };
    for (const QRectF &rect : rects) {
        addUpTo(std::min(rect.top(), bottom));
        top = rect.bottom();
    }
    addUpTo(bottom);
    return pieces;
}

} // namespace

void DayLayout::placeNow()
{
    if (!m_day.now)
        return;
    const double x = g.time.x(*m_day.now);
    std::vector<QRectF> inTheWay;
    for (const auto &labels : {g.mealLabels, g.activityLabels}) {
        for (const ItemLabel &label : labels)
            inTheWay.push_back(label.text.rect);
    }
    for (const PlacedText &hint : g.hints)
        inTheWay.push_back(hint.rect);
    g.now = NowMark{x,
                    {x, m_balanceScale.y(m_nowBalance)},
                    piecesBetween(x, m_plotTop, m_plotBottom + em(0.3), std::move(inTheWay)),
                    nowLabel(x)};
}

/// At the top of a lane, where items are least often, on the side where nothing is.
std::optional<PlacedText> DayLayout::nowLabel(double x) const
{
    const QString text = m_texts.time(timeOf(*m_day.now));
    for (const Lane which : {Lane::Meals, Lane::Activities}) {
        const QRectF &area = g.lane(which).area;
        QRectF rect(x + em(beside), area.top() + em(0.1), width(text), em(1));
        for (const double left : {rect.left(), x - em(beside) - rect.width()}) {
            rect.moveLeft(left);
            if (area.contains(rect) && isFree(rect))
                return PlacedText{rect, text, Qt::AlignCenter, TextRole::Plain, Tone::Muted};
        }
    }
    return std::nullopt;
}

/// Whether nothing of the day stands there.
bool DayLayout::isFree(const QRectF &rect) const
{
    const auto isClear = [&rect](const QRectF &other) { return !other.intersects(rect); };
    const auto isLabelClear = [&](const ItemLabel &label) { return isClear(label.text.rect); };
    for (size_t i = 1; i < g.balance.size(); ++i) {
        if (meets(g.balance[i - 1], g.balance[i], rect))
            return false;
    }
    return std::all_of(g.columns.begin(), g.columns.end(),
                       [&](const MealColumn &column) { return isClear(column.rect); }) &&
           std::all_of(g.blocks.begin(), g.blocks.end(),
                       [&](const ActivityBlock &block) { return isClear(block.bounds); }) &&
           std::all_of(g.mealLabels.begin(), g.mealLabels.end(), isLabelClear) &&
           std::all_of(g.activityLabels.begin(), g.activityLabels.end(), isLabelClear) &&
           std::all_of(g.hints.begin(), g.hints.end(),
                       [&](const PlacedText &hint) { return isClear(hint.rect); });
}

} // namespace daychart
