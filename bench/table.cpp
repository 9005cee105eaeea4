#include "table.h"

#include <algorithm>
#include <cstdio>

namespace {

QString figure(double value)
{
    return QString::number(value, 'f', value < 10 ? 3 : value < 1000 ? 1 : 0);
}

} // namespace

double timed(const std::function<void()> &action)
{
    QElapsedTimer timer;
    timer.start();
    action();
    return double(timer.nsecsElapsed()) / 1e6;
}

double median(std::vector<double> &values)
{
    std::sort(values.begin(), values.end());
    return values.empty() ? 0 : values[values.size() / 2];
}

Compared compare(int rounds, const std::function<double()> &ours,
                 const std::function<double()> &floor)
{
    // The first round warms caches up and does not count.
    ours();
    floor();
    std::vector<double> oursTaken;
    std::vector<double> floorTaken;
    for (int round = 0; round < rounds; ++round) {
        oursTaken.push_back(ours());
        floorTaken.push_back(floor());
    }
    return {median(oursTaken), median(floorTaken)};
}

void Table::addRatio(const QString &what, const QString &unit, Compared measured,
                     std::optional<double> bound)
{
    const double ratio = measured.ours / measured.floor;
    m_rows.push_back({what, figure(measured.ours) + u' ' + unit,
                      figure(measured.floor) + u' ' + unit, figure(ratio),
                      bound ? figure(*bound) : QString(), bound && ratio > *bound});
}

void Table::addTime(const QString &what, double milliseconds, std::optional<double> bound)
{
    m_rows.push_back({what,
                      figure(milliseconds) + QStringLiteral(" ms"),
                      {},
                      {},
                      bound ? figure(*bound) + QStringLiteral(" ms") : QString(),
                      bound && milliseconds > *bound});
}

bool Table::print() const
{
    const auto printRow = [](const QString &what, const QStringList &columns) {
        QString line = what.leftJustified(64);
        for (const QString &column : columns)
            line += column.rightJustified(12);
        std::puts(qPrintable(line));
    };
    printRow({}, {QStringLiteral("measured"), QStringLiteral("floor"), QStringLiteral("ratio"),
                  QStringLiteral("bound")});
    bool isKept = true;
    for (const Row &row : m_rows) {
        printRow(row.what, {row.measured, row.floor, row.ratio, row.bound,
                            row.isMissed ? QStringLiteral("MISSED") : QString()});
        isKept = isKept && !row.isMissed;
    }
    return isKept;
}
