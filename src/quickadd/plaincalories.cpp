#include "quickadd/plaincalories.h"

#include "data/namecollation.h"

namespace {

qint32 categoryIn(deData &data)
{
    Recordset &categories = data.rsMealCategorySorted;
    for (categories.reopen(); !categories.isEof(); categories.moveNext()) {
        if (compareNames(categories.text(schema::MealCategory::Name), plaincalories::category) == 0)
            return categories.integer(schema::MealCategory::MealCategoryID);
    }
    Recordset added(data.Con, commands::MealCategory);
    added.open({Value(0)});
    added.addNew();
    added.set(schema::MealCategory::Name, Value(plaincalories::category));
    added.update();
    return added.integer(schema::MealCategory::MealCategoryID);
}

} // namespace

bool plaincalories::isThis(const QString &mealUnit, double calories)
{
    return mealUnit.compare(unit, Qt::CaseInsensitive) == 0 &&
           Currency::fromDouble(calories) == Currency::fromInteger(1);
}

qint32 plaincalories::addTo(deData &data)
{
    using schema::Meal;
    const qint32 category = categoryIn(data);
    Recordset meal(data.Con, commands::Meal);
    meal.open({Value(0)});
    meal.addNew();
    meal.set(Meal::MealCategoryID, Value(category));
    meal.set(Meal::Name, Value(name));
    meal.set(Meal::Unit, Value(unit));
    meal.set(Meal::DefaultQty, Value(100));
    meal.set(Meal::Increment, Value(50));
    meal.set(Meal::Calories, Value(1));
    for (const Nutrient n : allNutrients) {
        meal.set(Meal::weights[n], Value(grams[n]));
        meal.set(Meal::shares[n], Value(shares[n]));
    }
    meal.update();
    return meal.integer(Meal::MealID);
}
