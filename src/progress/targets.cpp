#include "progress/targets.h"

#include "goals/goalpace.h"
#include "progress/progresstexts.h"

#include <algorithm>

namespace progress {

namespace {

struct TargetTexts
{
    Q_DECLARE_TR_FUNCTIONS(progress::TargetTexts)
};

/// Between the first value of a period and where the trend is now.
bool isPassed(double target, const Summary &summary, Series series)
{
    const double now = *summary.trend(series).now;
    const std::optional<double> change = summary.change(series);
    const double first = now - change.value_or(0);
    const auto [low, high] = std::minmax(first, now);
    constexpr double reached = 0.05; // what a figure with one decimal does not show
    return (low <= target && target <= high) || std::abs(now - target) < reached;
}

QString forecast(double target, const Summary &summary, Series series, const Targets &targets,
                 const QLocale &locale)
{
    const Trend &trend = summary.trend(series);
    if (!trend.perWeek)
        return TargetTexts::tr("too few days for a trend");
    if (isPassed(target, summary, series))
        return TargetTexts::tr("reached");
    const auto date = reachedOn(*trend.now, *trend.perWeek, target, trend.last);
    if (!date)
        return TargetTexts::tr("not reached by the present trend");
    return TargetTexts::tr("reached %1 by the present trend")
        .arg(roughly(std::max(*date, targets.today), targets.today, locale));
}

} // namespace

Targets targetsOf(const Goals &goals, bool isMetric, QDate today)
{
    const Goals inUnits = goals.in(isMetric);
    Targets targets;
    targets.today = today;
    targets.values = {inUnits.weight, inUnits.girths[0], inUnits.girths[1], inUnits.girths[2]};
    return targets;
}

QStringList targetWords(const Summary &summary, const Targets &targets, const ProgressTexts &texts)
{
    QStringList sentences;
    for (const Series series : allSeries) {
        const std::optional<double> target = targets.of(series);
        if (!target)
            continue;
        QString words = TargetTexts::tr("%1: target %2 %3")
                            .arg(texts.name(series), texts.number(*target), texts.unit(series));
        if (summary.lastDay.daysTo(targets.today) < slopeDays)
            words = TargetTexts::tr("%1, %2").arg(
                words, forecast(*target, summary, series, targets, texts.locale()));
        sentences += words;
    }
    return sentences;
}

QString roughly(QDate date, QDate today, const QLocale &locale)
{
    constexpr int lastOfEarly = 10;
    constexpr int lastOfMid = 20;
    QString month = locale.standaloneMonthName(date.month());
    if (date.year() != today.year())
        month = TargetTexts::tr("%1 %2").arg(month, QString::number(date.year()));
    return (date.day() <= lastOfEarly ? TargetTexts::tr("about early %1")
            : date.day() <= lastOfMid ? TargetTexts::tr("about mid-%1")
                                      : TargetTexts::tr("about late %1"))
        .arg(month);
}

} // namespace progress
