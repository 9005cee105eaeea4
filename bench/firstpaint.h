// Says on standard output when a window has been painted, and how much memory the process takes.
#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QFile>
#include <QTimer>
#include <QWidget>

#include <cstdio>

/// Prints "painted", then the process's Rss and Pss in kilobytes, and ends the program.
class FirstPaint : public QObject
{
public:
    explicit FirstPaint(QWidget &window) { window.installEventFilter(this); }

    bool eventFilter(QObject *window, QEvent *event) override
    {
        if (event->type() == QEvent::Paint) {
            window->removeEventFilter(this);
            // Behind this event the children are painted and the picture is shown.
            QTimer::singleShot(0, this, &FirstPaint::report);
        }
        return false;
    }

private:
    static void report()
    {
        std::puts("painted");
        std::fflush(stdout);
#ifdef Q_OS_LINUX
        QFile memory(QStringLiteral("/proc/self/smaps_rollup"));
        if (memory.open(QIODevice::ReadOnly)) {
            for (const QByteArray &line : memory.readAll().split('\n')) {
                if (line.startsWith("Rss:") || line.startsWith("Pss:"))
                    std::puts(line.simplified().constData());
            }
        }
        std::fflush(stdout);
#endif
        QCoreApplication::quit();
    }
};
