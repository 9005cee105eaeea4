#include "quickadd/recordables.h"

#include "data/namecollation.h"
#include "quickadd/habits.h"
#include "quickadd/plaincalories.h"

#include <algorithm>

namespace {

constexpr Currency one = Currency::fromTenThousandths(Currency::unitsPerOne);

// A quantity that nobody could eat or do is not proposed.
Currency quantityOf(const Value &stored)
{
    try {
        const Currency quantity = stored.isNull() ? one : stored.toCurrency();
        return quantity > Currency() ? quantity : one;
    } catch (const OverflowError &) {
        return one;
    }
}

Recordable recordableOf(const Recordset &row, Recordable::Kind kind, const schema::Column &key)
{
    Recordable record;
    record.kind = kind;
    record.id = row.integer(key);
    record.name = row.text(schema::Meal::Name);
    record.folded = foldedForSearch(record.name);
    record.unit = row.text(schema::Meal::Unit);
    record.usualQuantity = quantityOf(row.value(schema::Meal::DefaultQty));
    return record;
}

/// How well a name meets the words: 0 where one is missing, 1 where one is only inside of a word, 2
/// where each begins one.
int match(const QString &name, const QStringList &words)
{
    int result = 2;
    for (const QString &word : words) {
        qsizetype at = name.indexOf(word);
        if (at < 0)
            return 0;
        while (at > 0 && name[at - 1].isLetterOrNumber())
            at = name.indexOf(word, at + 1);
        if (at < 0)
            result = 1;
    }
    return result;
}

struct Found
{
    const Recordable *record;
    int match;
    bool begins; ///< with the first word
};

bool isLikelier(const Found &a, const Found &b)
{
    if (a.match != b.match)
        return a.match > b.match;
    if (a.record->habit != b.record->habit)
        return a.record->habit > b.record->habit;
    if (a.begins != b.begins)
        return a.begins;
    // Of alike ones the plainest: "Banana" before "Banana bread".
    if (a.record->name.size() != b.record->name.size())
        return a.record->name.size() < b.record->name.size();
    return a.record < b.record; // in the order in which they were read
}

} // namespace

void Recordables::load(deData &data)
{
    m_all.clear();
    Recordset &meals = data.rsMealAll;
    meals.reopen();
    m_all.reserve(meals.rowCount());
    for (; !meals.isEof(); meals.moveNext()) {
        Recordable meal = recordableOf(meals, Recordable::Kind::Meal, schema::Meal::MealID);
        meal.category = meals.text(commands::category);
        meal.calories = meals.number(schema::Meal::Calories);
        meal.grams = schema::Meal::weights.map(
            [&meals](const schema::Column &column) { return meals.number(column); });
        meal.shares = schema::Meal::shares.map(
            [&meals](const schema::Column &column) { return meals.number(column); });
        m_all.push_back(std::move(meal));
    }
    meals.close();
    m_meals = m_all.size();
    Recordset &activities = data.rsExerciseSorted;
    activities.reopen();
    m_all.reserve(m_meals + activities.rowCount());
    for (; !activities.isEof(); activities.moveNext()) {
        m_all.push_back(
            recordableOf(activities, Recordable::Kind::Activity, schema::Exercise::ExerciseID));
        m_all.back().burned = activities.number(schema::Exercise::CaloriesConsume);
    }
    activities.close();
    for (QHash<qint32, size_t> &places : m_places)
        places.clear();
    for (size_t i = 0; i < m_all.size(); ++i)
        m_places[i < m_meals ? 0 : 1].insert(m_all[i].id, i);
}

void Recordables::readHabits(deData &data, const QDateTime &now)
{
    for (Recordable &record : m_all)
        record.habit = 0;
    Recordset &meals = data.rsRecentMeals;
    meals.reopen();
    // The latest entries come first: the first of each tells the quantity used last.
    for (; !meals.isEof(); meals.moveNext()) {
        Recordable *meal =
            withId(Recordable::Kind::Meal, meals.integer(schema::MealConsume::MealID));
        if (!meal)
            continue;
        if (meal->habit == 0)
            meal->usualQuantity = quantityOf(meals.value(schema::MealConsume::Qty));
        meal->habit += habitWeight(meals.date(schema::MealConsume::ConsumeDate),
                                   meals.time(schema::MealConsume::ConsumeTime), now);
    }
    meals.close();
    Recordset &activities = data.rsRecentActivities;
    activities.reopen();
    for (; !activities.isEof(); activities.moveNext()) {
        Recordable *activity = withId(Recordable::Kind::Activity,
                                      activities.integer(schema::ExercisePerform::ExerciseID));
        if (!activity)
            continue;
        const QTime begin = activities.time(schema::ExercisePerform::timeBeg);
        if (activity->habit == 0) {
            activity->usualQuantity = quantityOf(activities.value(schema::ExercisePerform::Qty));
            const int minutes =
                begin.secsTo(activities.time(schema::ExercisePerform::timeEnd)) / 60;
            activity->minutes = minutes > 0 ? std::optional(minutes) : std::nullopt;
        }
        activity->habit +=
            habitWeight(activities.date(schema::ExercisePerform::PerformDate), begin, now);
    }
    activities.close();
}

Recordable *Recordables::withId(Recordable::Kind kind, qint32 id)
{
    const QHash<qint32, size_t> &places = m_places[kind == Recordable::Kind::Meal ? 0 : 1];
    const auto place = places.constFind(id);
    return place == places.constEnd() ? nullptr : &m_all[*place];
}

std::vector<const Recordable *> Recordables::find(const QStringList &words, Among among,
                                                  size_t most) const
{
    const size_t first = among == Among::Activities ? m_meals : 0;
    const size_t end = among == Among::Meals ? m_meals : m_all.size();
    std::vector<Found> found;
    found.reserve(end - first);
    for (size_t i = first; i < end; ++i) {
        const Recordable &record = m_all[i];
        if (words.isEmpty() && record.habit == 0)
            continue;
        if (const int how = match(record.folded, words))
            found.push_back(
                {&record, how, !words.isEmpty() && record.folded.startsWith(words.front())});
    }
    const auto last = found.begin() + std::ptrdiff_t(std::min(most, found.size()));
    std::partial_sort(found.begin(), last, found.end(), isLikelier);
    std::vector<const Recordable *> records;
    records.reserve(most);
    for (auto at = found.begin(); at != last; ++at)
        records.push_back(at->record);
    return records;
}

const Recordable *Recordables::plainCalories() const
{
    const auto meals = m_all.begin() + std::ptrdiff_t(m_meals);
    const auto found = std::find_if(m_all.begin(), meals, [](const Recordable &meal) {
        return plaincalories::isThis(meal.unit, meal.shares.sum());
    });
    return found == meals ? nullptr : &*found;
}
