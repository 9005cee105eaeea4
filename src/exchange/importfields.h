// What can be imported: the tables and their columns, and the names by which other programs call
// them.
#pragma once

#include "data/schema.h"

#include <QStringList>

#include <optional>
#include <vector>

/// In the order in which they are imported: what others refer to comes first.
enum class ImportKind
{
    MealCategories,
    Meals,
    Activities,
    MealsConsumed,
    ActivitiesPerformed,
    Measurements,
    Notes
};

enum class FieldKind
{
    Text,
    Number,
    Energy,     ///< stored in kcal
    FoodWeight, ///< stored in g
    BodyWeight, ///< in kg or lb, after the record's unit system
    Girth,      ///< in cm or inch, after the record's unit system
    Date,
    Time
};

/// A column of a table that is imported. Which one it is, is told by its header in an export.
struct ImportField
{
    const char *header;
    QString caption;
    FieldKind kind;
    bool isRequired = false; ///< the file has to have it, or something to stand for it
    QString whenEmpty = {};  ///< what stands for an empty cell to begin with, decimals by a point
    QStringList names = {};  ///< as columnName() makes them
};

struct ImportTable
{
    ImportKind kind;
    const schema::Table *table;
    QString title;
    std::vector<ImportField> fields;
    const char *subject = nullptr; ///< the field with the name of what a record refers to

    /// The place of a field among the others; there must be one.
    size_t fieldOf(const char *header) const;
};

/// By kind.
const std::vector<ImportTable> &importTables();
const ImportTable &importTable(ImportKind kind);

/// A header in the words that are compared: without case, accents, units and what they refer to.
QString columnName(const QString &header);
/// The unit in a header that fits a kind of column; empty where there is none.
QString unitInHeader(const QString &header, FieldKind kind);
/// "100 g" or "100 ml" where a header says that its figures are for so much; empty otherwise.
QString portionInHeader(const QString &header);

/// The units in which such a column may be, the stored ones first; none for others.
QStringList unitsOf(FieldKind kind);
/// Of unitsOf the one in which a measurement of the body is stored.
QString bodyUnit(FieldKind kind, bool isMetric);
/// Of a quantity in this unit, one of unitsOf, how much it is in the stored unit: kcal, g, and for
/// the body kg and cm or, if not metric, lb and inch.
double factorOf(FieldKind kind, const QString &unit, bool isMetric);
