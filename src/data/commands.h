// The catalogue of named commands: every statement that the program runs on its tables, but for
// those of the sample journal.
#pragma once

#include <array>

/// The declared type of a parameter. A value handed in is converted to it when it is bound; a
/// text is compared as the column that it meets, so a date or identifier may be handed in as one.
enum class ParameterType
{
    None,
    Integer,
    Single,
    Currency,
    Date,
    Text
};

struct Parameter
{
    const char *name = nullptr; ///< with the leading colon, as it stands in the SQL
    ParameterType type = ParameterType::None;
};

/// A named command. `table` says where an updatable result set writes to; it is null for the
/// others. `key` is the column with the identifier of a row, null where rows have none.
struct Command
{
    const char *name;
    const char *sql;
    std::array<Parameter, 3> parameters = {};
    const char *table = nullptr;
    const char *key = nullptr;
};

namespace commands {

using enum ParameterType;

// Catalogues

inline constexpr Command MealCategory{"MealCategory",
                                      "select * from MealCategory where MealCategoryID = :id",
                                      {{{":id", Integer}}},
                                      "MealCategory",
                                      "MealCategoryID"};

inline constexpr Command MealCategorySorted{"MealCategorySorted",
                                            "select * from MealCategory order by Name",
                                            {},
                                            nullptr,
                                            "MealCategoryID"};

inline constexpr Command Meal{
    "Meal", "select * from Meal where MealID = :id", {{{":id", Integer}}}, "Meal", "MealID"};

inline constexpr Command MealSorted{"MealSorted",
                                    "select * from Meal where MealCategoryID = :id order by Name",
                                    {{{":id", Integer}}},
                                    nullptr,
                                    "MealID"};

inline constexpr Command MealForCategory{
    "MealForCategory",
    "select * from Meal where MealCategoryID = :ID order by Name",
    {{{":ID", Integer}}},
    nullptr,
    "MealID"};

inline constexpr Command Exercise{"Exercise",
                                  "select * from Exercise where ExerciseID = :a",
                                  {{{":a", Integer}}},
                                  "Exercise",
                                  "ExerciseID"};

inline constexpr Command ExerciseSorted{
    "ExerciseSorted", "select * from Exercise order by Name", {}, nullptr, "ExerciseID"};

// Daily journal

inline constexpr Command MealConsumeSorted{
    "MealConsumeSorted",
    "select MealConsumeID, ConsumeTime, Qty, Round(FatBC*Qty) as sFat,"
    " Round(CarbohydrateBC*Qty) as sCarbohydrate, Round(ProteinBC*Qty) as sProtein,"
    " Round(FatBC*Qty) + Round(CarbohydrateBC*Qty) + Round(ProteinBC*Qty) as sCalories, Name"
    " from MealConsume inner join Meal on MealConsume.MealID = Meal.MealID"
    " where MealConsume.ConsumeDate = :d order by ConsumeTime",
    {{{":d", Date}}},
    nullptr,
    "MealConsumeID"};

inline constexpr Command MealConsume{
    "MealConsume",
    "select MealConsume.*, MealCategoryID"
    " from MealConsume inner join Meal on MealConsume.MealID = Meal.MealID"
    " where MealConsumeID = :id",
    {{{":id", Integer}}},
    "MealConsume",
    "MealConsumeID"};

inline constexpr Command MealConsumeDelete{
    "MealConsumeDelete", "delete from MealConsume where MealConsumeID = :id", {{{":id", Text}}}};

inline constexpr Command ExercisePerformSorted{
    "ExercisePerformSorted",
    "select ExercisePerform.*, Name, Round(CaloriesConsume*Qty) as sCalories"
    " from ExercisePerform inner join Exercise"
    " on ExercisePerform.ExerciseID = Exercise.ExerciseID"
    " where PerformDate = :dt order by timeBeg",
    {{{":dt", Date}}},
    nullptr,
    "ExercisePerformID"};

inline constexpr Command ExercisePerform{"ExercisePerform",
                                         "select * from ExercisePerform"
                                         " where ExercisePerformID = :id",
                                         {{{":id", Integer}}},
                                         "ExercisePerform",
                                         "ExercisePerformID"};

// Body measurements and notes

inline constexpr Command BodySorted{
    "BodySorted",
    "select * from Body where DateMeasured >= :DateMeasuredFrom order by DateMeasured",
    {{{":DateMeasuredFrom", Text}}},
    nullptr,
    "BodyID"};

inline constexpr Command Body{
    "Body", "select * from Body where BodyID = :id", {{{":id", Integer}}}, "Body", "BodyID"};

inline constexpr Command BodyCheck{"BodyCheck",
                                   "select * from Body where DateMeasured = :dt and BodyID <> :id",
                                   {{{":dt", Date}, {":id", Integer}}},
                                   nullptr,
                                   "BodyID"};

inline constexpr Command BodyDelete{
    "BodyDelete", "delete from Body where BodyID = :id", {{{":id", Text}}}};

inline constexpr Command UserNoteSorted{
    "UserNoteSorted",
    "select * from UserNote where DateTo >= :theDateFrom order by DateFrom",
    {{{":theDateFrom", Date}}},
    nullptr,
    "UserNoteID"};

inline constexpr Command UserNote{"UserNote",
                                  "select * from UserNote where UserNoteID = :id",
                                  {{{":id", Integer}}},
                                  "UserNote",
                                  "UserNoteID"};

inline constexpr Command UserNoteCheck{
    "UserNoteCheck",
    "select * from UserNote"
    " where (:dtf between DateFrom and DateTo or :dtt between DateFrom and DateTo"
    " or DateFrom between :dtf and :dtt) and UserNoteID <> :id",
    {{{":dtf", Date}, {":dtt", Date}, {":id", Integer}}}};

// Common parameters and recalculation

inline constexpr Command Common{"Common", "select rowid, * from Common", {}, "Common", "rowid"};

inline constexpr Command RecalculateWeightDependent{
    "RecalculateWeightDependent",
    "update Exercise set CaloriesConsume = CaloriesConsumeBase*:koef where (WeightDependent = 1)",
    {{{":koef", Single}}}};

inline constexpr Command RecalculateBodyToMetric{
    "RecalculateBodyToMetric",
    "update Body set Weight = Round(Weight*:LbToKg, 1), Waist = Round(Waist*:InchToCm),"
    " Hips = Round(Hips*:InchToCm), Breast = Round(Breast*:InchToCm), Measurement = 'M'"
    " where Measurement = 'I'",
    {{{":LbToKg", Currency}, {":InchToCm", Currency}}}};

inline constexpr Command RecalculateBodyToImperial{
    "RecalculateBodyToImperial",
    "update Body set Weight = Int(Weight/:LbToKg), Waist = Round(Waist/:InchToCm, 1),"
    " Hips = Round(Hips/:InchToCm, 1), Breast = Round(Breast/:InchToCm, 1), Measurement = 'I'"
    " where Measurement = 'M'",
    {{{":LbToKg", Currency}, {":InchToCm", Currency}}}};

// First-run shift of the sample journal. RecalcBodyDates has no condition: it moves every
// measurement, and is run only while the database holds nothing but the sample journal.

inline constexpr Command RecalcBodyDates{"RecalcBodyDates",
                                         "update Body set DateMeasured = DateMeasured + :nDays",
                                         {{{":nDays", Integer}}}};

inline constexpr Command RecalcExerciseDates{
    "RecalcExerciseDates",
    "update ExercisePerform set PerformDate = PerformDate + :nDays where ExercisePerformID < 0",
    {{{":nDays", Integer}}}};

inline constexpr Command RecalcMealDates{
    "RecalcMealDates",
    "update MealConsume set ConsumeDate = ConsumeDate + :nDays where MealConsumeID < 0",
    {{{":nDays", Integer}}}};

inline constexpr Command RecalcUserNoteDates{
    "RecalcUserNoteDates",
    "update UserNote set DateFrom = DateFrom + :nDays, DateTo = DateTo + :nDays"
    " where UserNoteID < 0",
    {{{":nDays", Integer}}}};

// Progress analysis

inline constexpr Command chkMinMaxdate{
    "chkMinMaxdate",
    "select min(dt) as minDt, max(dt) as maxDt from ("
    "select DateMeasured as dt from Body where DateMeasured between :begDate and :endDate"
    " union "
    "select PerformDate as dt from ExercisePerform where PerformDate between :begDate and :endDate"
    " union "
    "select ConsumeDate as dt from MealConsume where ConsumeDate between :begDate and :endDate)",
    {{{":begDate", Date}, {":endDate", Date}}}};

inline constexpr Command chkCaloriesDays{"chkCaloriesDays",
                                         "select count(dt) as days from ("
                                         "select distinct ConsumeDate as dt from MealConsume"
                                         " where ConsumeDate between :begDate and :endDate"
                                         " union "
                                         "select distinct PerformDate as dt from ExercisePerform"
                                         " where PerformDate between :begDate and :endDate)",
                                         {{{":begDate", Text}, {":endDate", Text}}}};

// The inner query does not exclude the measurement itself, whose distance of 0 is within any
// threshold: no row comes back for a porog of 0 or more. The progress checks count on that.
inline constexpr Command chkBodyContig{
    "chkBodyContig",
    "select BodyID, DateMeasured from Body PBody"
    " where DateMeasured between :begDate and :endDate and not exists ("
    "select BodyID from Body where DateMeasured between :begDate and :endDate"
    " and abs(DateMeasured - PBody.DateMeasured) <= :porog)",
    {{{":begDate", Date}, {":endDate", Date}, {":porog", Integer}}}};

inline constexpr Command GPBody{
    "GPBody",
    "select * from Body where DateMeasured between :dateFrom and :dateTo",
    {{{":dateFrom", Date}, {":dateTo", Date}}}};

inline constexpr Command GPCalories{
    "GPCalories",
    "select sum(cal) as calories, curDate from ("
    "select Qty*Calories as cal, ConsumeDate as curDate"
    " from MealConsume inner join Meal on MealConsume.MealID = Meal.MealID"
    " where ConsumeDate between :dateFrom and :dateTo"
    " union all "
    "select -Qty*CaloriesConsume as cal, PerformDate as curDate"
    " from ExercisePerform inner join Exercise"
    " on ExercisePerform.ExerciseID = Exercise.ExerciseID"
    " where PerformDate between :dateFrom and :dateTo)"
    " group by curDate order by curDate",
    {{{":dateFrom", Text}, {":dateTo", Text}}}};

inline constexpr Command GPNotes{
    "GPNotes",
    "select * from UserNote where DateFrom between :dtFrom and :dtTo"
    " or DateTo between :dtFrom and :dtTo or :dtFrom between DateFrom and DateTo"
    " order by DateFrom",
    {{{":dtFrom", Date}, {":dtTo", Date}}}};

} // namespace commands
