// The tables of the journal's file and their columns: the names under which the program reads and
// writes them. A file that is opened is checked against them, and so is delivered/schema.sql when
// the delivered database is built.
#pragma once

#include "data/nutrients.h"

#include <array>
#include <cstddef>

namespace schema {

enum class Type
{
    Integer, ///< whole numbers, and dates as whole days
    Real,    ///< numbers, and times as fractions of a day
    Text
};

/// A column of a table, or of a command's rows. Made where it is declared and nowhere else, so that
/// a misspelt one does not compile.
class Column
{
public:
    constexpr Column(const char *name, Type type, bool isNullable = false)
        : m_name(name)
        , m_type(type)
        , m_nullable(isNullable)
    {
    }

    constexpr const char *name() const { return m_name; }
    constexpr Type type() const { return m_type; }
    /// Of a table's key false, though the engine would take Null for "number it yourself".
    constexpr bool isNullable() const { return m_nullable; }

private:
    const char *m_name;
    Type m_type;
    bool m_nullable;
};

/// Goes through its columns in the order of the file.
class Table
{
public:
    /// The key is what a row is found by when it is written.
    template<std::size_t Count>
    constexpr Table(const char *name, const std::array<Column, Count> &columns, const Column &key)
        : m_name(name)
        , m_begin(columns.data())
        , m_end(columns.data() + Count)
        , m_key(key)
    {
    }

    constexpr const char *name() const { return m_name; }
    constexpr const Column *begin() const { return m_begin; }
    constexpr const Column *end() const { return m_end; }
    constexpr const Column &key() const { return m_key; }

private:
    const char *m_name;
    const Column *m_begin;
    const Column *m_end;
    Column m_key;
};

struct MealCategory
{
    static constexpr Column MealCategoryID{"MealCategoryID", Type::Integer};
    static constexpr Column Name{"Name", Type::Text};

    static constexpr std::array columns{MealCategoryID, Name};
    static constexpr Table table{"MealCategory", columns, MealCategoryID};
};

struct Meal
{
    static constexpr Column MealID{"MealID", Type::Integer};
    static constexpr Column MealCategoryID{"MealCategoryID", Type::Integer};
    static constexpr Column Name{"Name", Type::Text};
    static constexpr Column Unit{"Unit", Type::Text};
    static constexpr Column DefaultQty{"DefaultQty", Type::Real, true};
    static constexpr Column Increment{"Increment", Type::Real, true};
    static constexpr Column Calories{"Calories", Type::Real};
    static constexpr Column Fat{"Fat", Type::Real};
    static constexpr Column Carbohydrate{"Carbohydrate", Type::Real};
    static constexpr Column Protein{"Protein", Type::Real};
    static constexpr Column FatBC{"FatBC", Type::Real};
    static constexpr Column CarbohydrateBC{"CarbohydrateBC", Type::Real};
    static constexpr Column ProteinBC{"ProteinBC", Type::Real};

    static constexpr Nutrients<Column> weights{Fat, Carbohydrate, Protein};
    /// Of Calories, those that come from each nutrient.
    static constexpr Nutrients<Column> shares{FatBC, CarbohydrateBC, ProteinBC};

    static constexpr std::array columns{
        MealID, MealCategoryID, Name,    Unit,  DefaultQty,     Increment, Calories,
        Fat,    Carbohydrate,   Protein, FatBC, CarbohydrateBC, ProteinBC};
    static constexpr Table table{"Meal", columns, MealID};
};

struct Exercise
{
    static constexpr Column ExerciseID{"ExerciseID", Type::Integer};
    static constexpr Column Name{"Name", Type::Text};
    static constexpr Column Unit{"Unit", Type::Text};
    static constexpr Column DefaultQty{"DefaultQty", Type::Real, true};
    static constexpr Column CaloriesConsume{"CaloriesConsume", Type::Real};
    static constexpr Column CaloriesConsumeBase{"CaloriesConsumeBase", Type::Real};
    static constexpr Column WeightDependent{"WeightDependent", Type::Integer};

    static constexpr std::array columns{
        ExerciseID, Name, Unit, DefaultQty, CaloriesConsume, CaloriesConsumeBase, WeightDependent};
    static constexpr Table table{"Exercise", columns, ExerciseID};
};

struct MealConsume
{
    static constexpr Column MealConsumeID{"MealConsumeID", Type::Integer};
    static constexpr Column MealID{"MealID", Type::Integer};
    static constexpr Column ConsumeDate{"ConsumeDate", Type::Integer};
    static constexpr Column ConsumeTime{"ConsumeTime", Type::Real};
    static constexpr Column Qty{"Qty", Type::Real};

    static constexpr std::array columns{MealConsumeID, MealID, ConsumeDate, ConsumeTime, Qty};
    static constexpr Table table{"MealConsume", columns, MealConsumeID};
};

struct ExercisePerform
{
    static constexpr Column ExercisePerformID{"ExercisePerformID", Type::Integer};
    static constexpr Column ExerciseID{"ExerciseID", Type::Integer};
    static constexpr Column PerformDate{"PerformDate", Type::Integer};
    static constexpr Column timeBeg{"timeBeg", Type::Real};
    static constexpr Column timeEnd{"timeEnd", Type::Real};
    static constexpr Column Qty{"Qty", Type::Real};

    static constexpr std::array columns{ExercisePerformID, ExerciseID, PerformDate,
                                        timeBeg,           timeEnd,    Qty};
    static constexpr Table table{"ExercisePerform", columns, ExercisePerformID};
};

struct Body
{
    static constexpr Column BodyID{"BodyID", Type::Integer};
    static constexpr Column DateMeasured{"DateMeasured", Type::Integer};
    static constexpr Column Weight{"Weight", Type::Real};
    static constexpr Column Breast{"Breast", Type::Real};
    static constexpr Column Waist{"Waist", Type::Real};
    static constexpr Column Hips{"Hips", Type::Real};
    static constexpr Column Measurement{"Measurement", Type::Text};

    static constexpr std::array columns{BodyID, DateMeasured, Weight,     Breast,
                                        Waist,  Hips,         Measurement};
    static constexpr Table table{"Body", columns, BodyID};
};

struct UserNote
{
    static constexpr Column UserNoteID{"UserNoteID", Type::Integer};
    static constexpr Column DateFrom{"DateFrom", Type::Integer};
    static constexpr Column DateTo{"DateTo", Type::Integer};
    static constexpr Column NoteText{"NoteText", Type::Text};

    static constexpr std::array columns{UserNoteID, DateFrom, DateTo, NoteText};
    static constexpr Table table{"UserNote", columns, UserNoteID};
};

/// It holds one row.
struct Common
{
    static constexpr Column weight{"weight", Type::Real};
    static constexpr Column metabolicRate{"metabolicRate", Type::Real};
    static constexpr Column Measurement{"Measurement", Type::Text};
    static constexpr Column NextBodyID{"NextBodyID", Type::Integer};
    static constexpr Column NextMealConsumeID{"NextMealConsumeID", Type::Integer};
    static constexpr Column NextExercisePerformID{"NextExercisePerformID", Type::Integer};
    static constexpr Column NextUserNoteID{"NextUserNoteID", Type::Integer};
    static constexpr Column installDate{"installDate", Type::Integer};

    static constexpr std::array columns{weight,         metabolicRate,     Measurement,
                                        NextBodyID,     NextMealConsumeID, NextExercisePerformID,
                                        NextUserNoteID, installDate};
    static constexpr Table table{"Common", columns, Column{"rowid", Type::Integer}};
};

inline constexpr std::array tables{
    &MealCategory::table,    &Meal::table, &Exercise::table, &MealConsume::table,
    &ExercisePerform::table, &Body::table, &UserNote::table, &Common::table};

} // namespace schema
