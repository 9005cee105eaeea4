// All that can be recorded, and what of it is looked for.
#pragma once

#include "data/nutrients.h"
#include "session/session.h"

#include <QHash>

#include <array>
#include <vector>

/// A meal or an activity of the catalogue, and how this person has recorded it.
struct Recordable
{
    enum class Kind
    {
        Meal,
        Activity
    };

    Kind kind = Kind::Meal;
    qint32 id = 0;
    QString name;
    QString folded;   ///< the name for search
    QString category; ///< of a meal
    QString unit;
    Currency usualQuantity;          ///< the one used last, else the catalogue's
    double calories = 0;             ///< of a meal, per unit
    Nutrients<double> grams;         ///< of a meal, per unit
    Nutrients<double> shares;        ///< of a meal, calories per unit
    double burned = 0;               ///< of an activity, calories per unit
    double habit = 0;                ///< 0 for what was not recorded lately, see habits.h
    std::optional<int> minutes = {}; ///< how long an activity took last
};

/// The catalogue as it was read, to be searched at every key.
class Recordables
{
public:
    /// Reads meals and activities; throws StoreError.
    void load(deData &data);
    /// Reads how often, how lately and around which hour each was recorded, seen from a moment.
    /// Throws StoreError.
    void readHabits(deData &data, const QDateTime &now);

    /// Which kinds are looked for.
    enum class Among
    {
        All,
        Meals,
        Activities
    };

    /// The likeliest records whose names hold all words (folded) in any order, at most so many.
    /// Words that begin words of the name come before those inside of them, habits before the
    /// rest. Without words, habits alone.
    std::vector<const Recordable *> find(const QStringList &words, Among among, size_t most) const;
    /// The meal that plain calories are recorded as, null where the catalogue lacks it.
    const Recordable *plainCalories() const;

private:
    Recordable *withId(Recordable::Kind kind, qint32 id);

    std::vector<Recordable> m_all; ///< meals in the order of their names, then activities
    size_t m_meals = 0;            ///< how many of them are meals
    std::array<QHash<qint32, size_t>, 2> m_places; ///< by kind and identifier
};
