#include "catalogue.h"

#include "energy.h"

#include "data/namecollation.h"
#include "data/schema.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace delivered {

namespace {

const auto categoryHeading = u"Category: "_s;

Currency notNegative(const TsvRow &row, const QString &column)
{
    const Currency number = row.decimal(column);
    if (number < Currency())
        row.refuse(u"%1 is negative"_s.arg(column));
    return number;
}

DeliveredMeal readMeal(const TsvRow &row, int category)
{
    DeliveredMeal meal{category,
                       row.text(u"Name"_s),
                       row.text(u"Unit"_s),
                       row.optionalDecimal(u"DefaultQty"_s),
                       row.optionalDecimal(u"Increment"_s),
                       notNegative(row, u"Calories"_s),
                       schema::Meal::weights.map([&](auto column) {
                           return notNegative(row, QString::fromLatin1(column.name()));
                       }),
                       {}};
    // Without nutrients, as in spirits, nothing says where the calories come from.
    meal.byNutrient = caloriesByNutrient(meal.calories, meal.grams).value_or(Nutrients<Currency>());
    return meal;
}

void loadMeals(const QString &path, const EnergyCheck &energy, Catalogue &catalogue,
               NameIndex &categoryNames)
{
    const TsvTable table(path, {u"Name"_s, u"Unit"_s, u"DefaultQty"_s, u"Increment"_s,
                                u"Calories"_s, u"Fat"_s, u"Carbohydrate"_s, u"Protein"_s});
    const QString name = table.heading().mid(categoryHeading.size()).trimmed();
    if (!table.heading().startsWith(categoryHeading) || name.isEmpty())
        throw SourceError(path, 1, u"The file should begin with \"# Category: \" and a name"_s);
    const int category = categoryNames.add(name, path, 1);
    catalogue.categories << name;
    for (const TsvRow &row : table.rows()) {
        const DeliveredMeal meal = readMeal(row, category);
        catalogue.mealNames.add(meal.name, path, row.line());
        energy.check(row, meal);
        catalogue.meals << meal;
    }
}

void loadActivities(const QString &path, Catalogue &catalogue)
{
    const TsvTable table(path, {u"Name"_s, u"Unit"_s, u"DefaultQty"_s, u"WeightDependent"_s,
                                u"CaloriesAtReference"_s});
    for (const TsvRow &row : table.rows()) {
        const int dependent = row.wholeNumber(u"WeightDependent"_s);
        if (dependent != 0 && dependent != 1)
            row.refuse(u"WeightDependent should be 0 or 1"_s);
        const Activity activity{row.text(u"Name"_s), row.text(u"Unit"_s),
                                row.optionalDecimal(u"DefaultQty"_s), dependent == 1,
                                notNegative(row, u"CaloriesAtReference"_s)};
        if (activity.caloriesAtReference == Currency())
            row.refuse(u"CaloriesAtReference should be more than 0"_s);
        catalogue.activityNames.add(activity.name, path, row.line());
        catalogue.activities << activity;
    }
}

} // namespace

bool NameIndex::Order::operator()(const QString &a, const QString &b) const
{
    return compareNames(a, b) < 0;
}

int NameIndex::add(const QString &name, const QString &file, int line)
{
    const int number = int(m_entries.size());
    const auto [entry, added] =
        m_entries.try_emplace(name, Entry{number, u"%1:%2"_s.arg(file).arg(line)});
    if (!added)
        throw SourceError(file, line,
                          u"The name \"%1\" is taken at %2"_s.arg(name, entry->second.place));
    return number;
}

std::optional<int> NameIndex::find(const QString &name) const
{
    const auto entry = m_entries.find(name);
    return entry == m_entries.end() ? std::nullopt : std::optional(entry->second.number);
}

Catalogue loadCatalogue(const QString &folder)
{
    Catalogue catalogue;
    NameIndex categoryNames;
    const EnergyCheck energy(folder + u"/energy.tsv"_s);
    const QDir meals(folder + u"/meals"_s);
    const QStringList files = meals.entryList({u"*.tsv"_s}, QDir::Files, QDir::Name);
    for (const QString &file : files)
        loadMeals(meals.filePath(file), energy, catalogue, categoryNames);
    energy.checkNames(catalogue.mealNames);
    loadActivities(folder + u"/activities.tsv"_s, catalogue);
    return catalogue;
}

} // namespace delivered
