#include "help/helpplace.h"

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
    const QRect right(QPoint(other.right() + 1, other.top()), now.size());
    const QRect left(QPoint(other.left() - now.width(), other.top()), now.size());
    const QList<QRect> places{within(screen, now), within(screen, right), within(screen, left)};
    const auto best =
        std::min_element(places.begin(), places.end(), [&](const QRect &a, const QRect &b) {
            return hiddenArea(other, a) < hiddenArea(other, b);
        });
    return best->topLeft();
}
