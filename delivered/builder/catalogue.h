// The catalogues of meals and activities, read from their sources and checked.
#pragma once

#include "tsv.h"

#include "catalogue/nutrition.h"

#include <map>

namespace delivered {

/// Numbers the rows of a table by their names, from 0 in the order of their coming. Names that
/// differ in case alone are the same one, as they are to the database.
class NameIndex
{
public:
    /// Throws SourceError at this place where the name came before.
    int add(const QString &name, const QString &file, int line);
    std::optional<int> find(const QString &name) const;

private:
    struct Order
    {
        bool operator()(const QString &a, const QString &b) const;
    };
    struct Entry
    {
        int number;
        QString place;
    };
    std::map<QString, Entry, Order> m_entries;
};

struct DeliveredMeal
{
    int category; ///< index in Catalogue::categories
    QString name;
    QString unit;
    std::optional<Currency> defaultQty;
    std::optional<Currency> increment;
    Currency calories; ///< per unit, as are the nutrients
    Nutrients<Currency> grams;
    Nutrients<Currency> byNutrient; ///< of the calories
};

struct Activity
{
    QString name;
    QString unit;
    std::optional<Currency> defaultQty;
    bool weightDependent;
    Currency caloriesAtReference; ///< per unit, for a body of 68.04 kg
};

struct Catalogue
{
    QStringList categories;
    QList<DeliveredMeal> meals;
    QList<Activity> activities;
    NameIndex mealNames;
    NameIndex activityNames;
};

/// Reads activities.tsv and the files of the folder "meals", one per category, in the order of
/// their names, and checks the meals' calories by energy.tsv. Throws SourceError.
Catalogue loadCatalogue(const QString &folder);

} // namespace delivered
