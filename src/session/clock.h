// The source of "today" and "now".
#pragma once

#include <QDateTime>

/// Handed to whoever asks for the time, so that a test can stand at 23:15 on 31 December.
class Clock
{
public:
    virtual ~Clock() = default;
    /// Local date and time.
    virtual QDateTime now() const = 0;
};

class SystemClock : public Clock
{
public:
    QDateTime now() const override { return QDateTime::currentDateTime(); }
};
