#include "exchange/exporttables.h"

namespace {

// Weights and girths are in the units that their record was stored in.
#define WEIGHT_UNIT "case Measurement when 'M' then 'kg' when 'I' then 'lb' end"
#define GIRTH_UNIT "case Measurement when 'M' then 'cm' when 'I' then 'inch' end"

ExportTable mealCategoriesFile()
{
    return {"MealCategory", "MealCategory",   "*",
            nullptr,        "MealCategoryID", {{"MealCategoryID"}, {"Name"}}};
}

ExportTable mealsFile()
{
    return {"Meal",
            "Meal left join MealCategory using (MealCategoryID)",
            "MealID, Meal.MealCategoryID, MealCategory.Name, Meal.Name, Unit, DefaultQty,"
            " Increment, Calories, Fat, Carbohydrate, Protein, FatBC, CarbohydrateBC, ProteinBC",
            nullptr,
            "MealID",
            {{"MealID"},
             {"MealCategoryID"},
             {"MealCategory"},
             {"Name"},
             {"Unit"},
             {"DefaultQty (units)"},
             {"Increment (units)"},
             {"Calories (kcal per unit)"},
             {"Fat (g per unit)"},
             {"Carbohydrate (g per unit)"},
             {"Protein (g per unit)"},
             {"FatBC (kcal per unit)"},
             {"CarbohydrateBC (kcal per unit)"},
             {"ProteinBC (kcal per unit)"}}};
}

ExportTable activitiesFile()
{
    return {"Exercise",
            "Exercise",
            "*",
            nullptr,
            "ExerciseID",
            {{"ExerciseID"},
             {"Name"},
             {"Unit"},
             {"DefaultQty (units)"},
             {"CaloriesConsume (kcal per unit)"},
             {"CaloriesConsumeBase (kcal per unit at 68.04 kg or 150 lb)"},
             {"WeightDependent (1 = yes)"}}};
}

ExportTable mealsConsumedFile()
{
    return {"MealConsume",
            "MealConsume left join Meal using (MealID)"
            " left join MealCategory using (MealCategoryID)",
            "MealConsumeID, ConsumeDate, ConsumeTime, MealConsume.MealID, Meal.Name,"
            " MealCategory.Name, Qty, Unit, Round(FatBC*Qty), Round(CarbohydrateBC*Qty),"
            " Round(ProteinBC*Qty),"
            " Round(FatBC*Qty) + Round(CarbohydrateBC*Qty) + Round(ProteinBC*Qty)",
            "ConsumeDate between ?1 and ?2",
            "ConsumeDate, ConsumeTime, MealConsumeID",
            {{"MealConsumeID"},
             {"ConsumeDate", CellKind::Date},
             {"ConsumeTime", CellKind::Time},
             {"MealID"},
             {"Meal"},
             {"MealCategory"},
             {"Qty (units)"},
             {"Unit"},
             {"Fat (kcal)"},
             {"Carbohydrate (kcal)"},
             {"Protein (kcal)"},
             {"Eaten (kcal)"}}};
}

ExportTable activitiesPerformedFile()
{
    return {"ExercisePerform",
            "ExercisePerform left join Exercise using (ExerciseID)",
            "ExercisePerformID, PerformDate, timeBeg, timeEnd, ExercisePerform.ExerciseID, Name,"
            " Qty, Unit, Round(CaloriesConsume*Qty)",
            "PerformDate between ?1 and ?2",
            "PerformDate, timeBeg, ExercisePerformID",
            {{"ExercisePerformID"},
             {"PerformDate", CellKind::Date},
             {"timeBeg", CellKind::Time},
             {"timeEnd", CellKind::Time},
             {"ExerciseID"},
             {"Exercise"},
             {"Qty (units)"},
             {"Unit"},
             {"Burnt (kcal)"}}};
}

ExportTable measurementsFile()
{
    return {"Body",
            "Body",
            "BodyID, DateMeasured, Weight, " WEIGHT_UNIT ", Breast, Waist, Hips, " GIRTH_UNIT
            ", Measurement",
            "DateMeasured between ?1 and ?2",
            "DateMeasured, BodyID",
            {{"BodyID"},
             {"DateMeasured", CellKind::Date},
             {"Weight"},
             {"WeightUnit"},
             {"Breast"},
             {"Waist"},
             {"Hips"},
             {"GirthUnit"},
             {"Measurement (M = metric / I = imperial)"}}};
}

ExportTable notesFile()
{
    return {
        "UserNote",
        "UserNote",
        "*",
        // Not by the index of the last day, which has them in another order. A text is above any
        // number, and no day.
        "DateFrom <= ?2 and +DateTo >= ?1 and +DateTo < ''",
        "DateFrom, DateTo, UserNoteID",
        {{"UserNoteID"}, {"DateFrom", CellKind::Date}, {"DateTo", CellKind::Date}, {"NoteText"}}};
}

ExportTable commonParametersFile()
{
    return {"Common",
            "Common",
            "weight, " WEIGHT_UNIT ", metabolicRate, Measurement, NextBodyID, NextMealConsumeID,"
            " NextExercisePerformID, NextUserNoteID, installDate",
            nullptr,
            "rowid",
            {{"weight"},
             {"WeightUnit"},
             {"metabolicRate (kcal per hour)"},
             {"Measurement (M = metric / I = imperial)"},
             {"NextBodyID"},
             {"NextMealConsumeID"},
             {"NextExercisePerformID"},
             {"NextUserNoteID"},
             {"installDate", CellKind::Date}}};
}

#undef WEIGHT_UNIT
#undef GIRTH_UNIT

} // namespace

const std::vector<ExportTable> &exportTables()
{
    static const std::vector<ExportTable> tables = {
        mealCategoriesFile(),      mealsFile(),        activitiesFile(), mealsConsumedFile(),
        activitiesPerformedFile(), measurementsFile(), notesFile(),      commonParametersFile()};
    return tables;
}
