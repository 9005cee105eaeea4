// The other half of a double click where a single click suffices.
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPointF>

class QMouseEvent;

namespace daychart {

/// While it lives, keeps the second press and release of a double click from whatever has opened
/// under the pointer since the first.
class SecondClickGuard : public QObject
{
public:
    /// From a first click's release on, at that place on the screen.
    explicit SecondClickGuard(QPointF place);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool isSecondClick(const QMouseEvent &event) const;

    QPointF m_place;
    QElapsedTimer m_sinceFirst;
    bool m_isPressed = false; ///< by the second press; its release may come late
};

} // namespace daychart
