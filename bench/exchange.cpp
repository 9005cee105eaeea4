#include "data/deData.h"
#include "exchange/journalcheck.h"
#include "exchange/journalexport.h"
#include "fulljournal.h"
#include "measurements.h"
#include "table.h"

#include <QFile>
#include <QTemporaryDir>

#ifdef Q_OS_LINUX
#include <malloc.h>
#endif

using namespace Qt::Literals;

namespace {

/// Kilobytes of this process's memory by the kernel's name for them; 0 where it doesn't tell.
double memory(const QByteArray &name)
{
    QFile status(u"/proc/self/status"_qs);
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith(name + ':'))
            return line.simplified().split(' ').value(1).toDouble();
    }
    return 0;
}

/// The most memory that the process has at a time during an action, in megabytes; 0 where the
/// system doesn't tell.
double peakDuring(const std::function<void()> &action)
{
#ifdef Q_OS_LINUX
    malloc_trim(0); // what was freed before would hide what is taken
#endif
    QFile reset(u"/proc/self/clear_refs"_qs);
    if (reset.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        reset.write("5");
    action();
    return memory("VmHWM") / 1024;
}

void measureExport(Table &table, deData &data)
{
    const LocaleText text(QLocale(u"de_DE"_qs));
    const QDateTime now(lastDay, QTime(12, 0));
    const auto write = [&](const CsvFormat &format, std::optional<ExportPeriod> period = {}) {
        const QTemporaryDir folder;
        if (!exportJournal(data.Con, {folder.path(), format, period, now},
                           [](double) { return true; }))
            qFatal("the journal is not exported");
    };
    // What may differ is the engine's page cache of 2 MB. One table as a result set takes ten.
    const ExportPeriod year = {lastDay.addYears(-1), lastDay};
    write(CsvFormat::plain(), year); // so that what is loaded once is loaded
    const double part = peakDuring([&] { write(CsvFormat::plain(), year); });
    const double all = peakDuring([&] { write(CsvFormat::plain()); });
    if (part > 0)
        table.addRatio(u"memory while ten years are exported : while one year is"_qs, u"MB"_qs,
                       {all, part}, 1.15);
    for (const auto &[dialect, format] : {std::pair(u"plain"_qs, CsvFormat::plain()),
                                          {u"for spreadsheets"_qs, CsvFormat::spreadsheet(text)}}) {
        auto times = repeated(5, [&, &way = format] { return timed([&] { write(way); }); });
        table.addTime(u"ten years of full tables exported, %1"_qs.arg(dialect), median(times),
                      2000);
    }
}

} // namespace

void measureExchange(Table &table, const QString &fullJournal)
{
    deData data(fullJournal);
    measureExport(table, data);
    const LocaleText text(QLocale(u"en_GB"_qs));
    auto times = repeated(5, [&] { return timed([&] { checkJournal(data.Con, text); }); });
    table.addTime(u"ten years of full tables checked"_qs, median(times), 1000);
}
