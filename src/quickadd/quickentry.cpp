#include "quickadd/quickentry.h"

#include "data/numbers.h"
#include "journal/consumptionfigures.h"

#include <QCoreApplication>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

/// Leaves an entry without a result; the sentence is for the user.
struct Unclear
{
    QString problem;
};

struct QuickEntryTexts
{
    Q_DECLARE_TR_FUNCTIONS(QuickEntryTexts)
};

double caloriesPerUnit(const Recordable &record)
{
    return record.kind == Recordable::Kind::Meal ? record.shares.sum() : record.burned;
}

// How often the record's unit goes into an amount of the same measure.
Currency quantityOf(const Amount &amount, const Recordable &record)
{
    double unit = 0;
    if (amount.measure == Measure::Energy) {
        unit = caloriesPerUnit(record);
        if (unit <= 0)
            throw Unclear{QuickEntryTexts::tr("%1 has no calories to count by").arg(record.name)};
    } else {
        const std::optional<Amount> named = amountNamedBy(record.unit);
        if (!named || named->measure != amount.measure)
            throw Unclear{(amount.measure == Measure::Weight
                               ? QuickEntryTexts::tr("The unit of %1, %2, names no weight")
                               : QuickEntryTexts::tr("The unit of %1, %2, names no volume"))
                              .arg(record.name, record.unit)};
        unit = named->value;
    }
    const Currency quantity = Currency::fromDouble(amount.value / unit);
    if (quantity <= Currency())
        throw Unclear{QuickEntryTexts::tr("This is too little to be counted")};
    return quantity;
}

// None where its unit is no time.
std::optional<double> minutesPerUnit(const Recordable &activity)
{
    const std::optional<Amount> unit = amountNamedBy(activity.unit);
    return unit && unit->measure == Measure::Time ? std::optional(unit->value) : std::nullopt;
}

int wholeMinutes(double minutes)
{
    return static_cast<int>(std::clamp(std::round(minutes), 1.0, 24 * 60.0));
}

void setQuantityOfMeal(QuickEntry &entry, const QuickText &line, const Recordable &meal, QTime now)
{
    if (line.end || line.minutes)
        throw Unclear{QuickEntryTexts::tr("A meal has one time and takes none")};
    entry.quantity = line.amount     ? quantityOf(*line.amount, meal)
                     : line.quantity ? *line.quantity
                                     : meal.usualQuantity;
    entry.begin = line.time.value_or(now);
}

void setTimes(QuickEntry &entry, const QuickText &line, int minutes, QTime now)
{
    entry.end = line.time.value_or(now);
    if (entry.end.hour() * 60 + entry.end.minute() < minutes)
        throw Unclear{
            QuickEntryTexts::tr("It would begin on the day before: say from when to when")};
    entry.begin = entry.end.addSecs(-60 * minutes);
}

void setQuantityOfActivity(QuickEntry &entry, const QuickText &line, const Recordable &activity,
                           QTime now)
{
    std::optional<Currency> quantity = line.quantity;
    if (line.amount)
        quantity = quantityOf(*line.amount, activity);
    const std::optional<double> perUnit = minutesPerUnit(activity);
    std::optional<int> minutes = line.minutes;
    if (line.end)
        minutes = line.time->secsTo(*line.end) / 60;
    if (minutes && perUnit && !quantity)
        quantity = Currency::fromDouble(*minutes / *perUnit);
    entry.quantity = quantity.value_or(activity.usualQuantity);
    if (line.end) {
        entry.begin = *line.time;
        entry.end = *line.end;
        return;
    }
    if (!minutes && perUnit && (quantity || !activity.minutes))
        minutes = wholeMinutes(entry.quantity.toDouble() * *perUnit);
    else if (!minutes)
        minutes = activity.minutes;
    if (!minutes)
        throw Unclear{
            QuickEntryTexts::tr("Say how long it took, as in \"45 min\", or from when to when")};
    setTimes(entry, line, *minutes, now);
}

} // namespace

Recordables::Among kindsMeant(const QuickText &line)
{
    if (line.end || line.minutes)
        return Recordables::Among::Activities;
    if (line.amount && line.amount->measure != Measure::Energy)
        return Recordables::Among::Meals;
    return Recordables::Among::All;
}

QuickEntry entryOf(const QuickText &line, const Recordable &record, QTime now)
{
    QuickEntry entry;
    try {
        if (!line.unread.isEmpty())
            throw Unclear{
                QuickEntryTexts::tr("\"%1\" can't be read").arg(line.unread.join(u"\", \""_s))};
        if (line.amount && line.quantity)
            throw Unclear{QuickEntryTexts::tr("There are two quantities")};
        const bool isMeal = record.kind == Recordable::Kind::Meal;
        const auto set = isMeal ? setQuantityOfMeal : setQuantityOfActivity;
        set(entry, line, record, now);
        entry.calories =
            isMeal ? toInt32(consumptionFigures(entry.quantity, record.shares).sum())
                   : roundToInt32(entry.quantity.toDouble() * record.burned); // as the lists do
    } catch (const Unclear &unclear) {
        entry.problem = unclear.problem;
    } catch (const OverflowError &) {
        entry.problem = QuickEntryTexts::tr("The quantity is too large");
    }
    return entry;
}
