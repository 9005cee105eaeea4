#include "help/placebeside.h"

#include <QList>

#include <algorithm>

namespace {

QRect within(const QRect &screen, const QRect &window)
{
    const int left = std::min(window.left(), screen.right() + 1 - window.width());
    const int top = std::min(window.top(), screen.bottom() + 1 - window.height());
    return {QPoint(std::max(left, screen.left()), std::max(top, screen.top())), window.size()};
}

int hiddenArea(const QRect &other, const QRect &window)
{
    const QRect both = other & window;
    return both.width() * both.height();
}

} // namespace

QPoint placeBeside(const QRect &other, const QRect &now, const QRect &screen)
{
    const QPoint corner = other.topLeft();
    QList<QRect> places{now};
    for (const QPoint &place :
         {QPoint(other.right() + 1, corner.y()), QPoint(corner.x() - now.width(), corner.y()),
          QPoint(corner.x(), other.bottom() + 1), QPoint(corner.x(), corner.y() - now.height())})
        places << QRect(place, now.size());
    for (QRect &place : places)
        place = within(screen, place);
    const auto best =
        std::min_element(places.begin(), places.end(), [&](const QRect &a, const QRect &b) {
            return hiddenArea(other, a) < hiddenArea(other, b);
        });
    return best->topLeft();
}
