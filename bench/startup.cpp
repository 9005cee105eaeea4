#include "fulljournal.h"
#include "measurements.h"
#include "table.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>

namespace {

struct Started
{
    double milliseconds = 0;
    double rss = 0; ///< megabytes; 0 where the system doesn't tell
    double pss = 0;
};

Started start(const char *program, const QStringList &arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    QElapsedTimer timer;
    timer.start();
    process.start(QString::fromLocal8Bit(program), arguments);
    Started started;
    QByteArray output;
    while (!output.contains("painted") && process.waitForReadyRead())
        output += process.readAllStandardOutput();
    started.milliseconds = double(timer.nsecsElapsed()) / 1e6;
    process.waitForFinished();
    output += process.readAllStandardOutput();
    for (const QByteArray &line : output.split('\n')) {
        const double megabytes = line.split(' ').value(1).toDouble() / 1024;
        if (line.startsWith("Rss:"))
            started.rss = megabytes;
        else if (line.startsWith("Pss:"))
            started.pss = megabytes;
    }
    if (process.exitCode() != 0 || !output.contains("painted"))
        qFatal("%s could not be measured", program);
    return started;
}

} // namespace

void measureStartUp(Table &table)
{
    const QTemporaryDir folder;
    makeStartedFolder(folder.path());
    Started program;
    Started empty;
    const Compared time = compare(
        41,
        [&] {
            program = start(CORVANA_PROGRAM_WINDOW, {folder.path()});
            return program.milliseconds;
        },
        [&] {
            empty = start(CORVANA_EMPTY_WINDOW, {});
            return empty.milliseconds;
        });
    table.addRatio(QStringLiteral("exec to painted main window : empty Qt window"),
                   QStringLiteral("ms"), time, 1.25);
    if (program.rss <= 0 || empty.rss <= 0)
        return;
    table.addRatio(QStringLiteral("memory then, resident : empty Qt window"), QStringLiteral("MB"),
                   {program.rss, empty.rss}, 1.6);
    table.addRatio(QStringLiteral("memory then, proportional share : empty Qt window"),
                   QStringLiteral("MB"), {program.pss, empty.pss}, 1.6);
}
