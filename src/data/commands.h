// The catalogue of named commands: every statement that the program runs on its tables, but for
// those of the sample journal, and of export, import and check, which go through whole tables.
#pragma once

#include "data/schema.h"

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

/// A named command.
struct Command
{
    const char *name;
    const char *sql;
    std::array<Parameter, 3> parameters = {};
    /// Where an updatable result set writes to; null for the others.
    const schema::Table *table = nullptr;
    /// What other records and the windows refer to a row by, and what therefore has to fit their
    /// 32 bits; null where nothing does.
    const schema::Column *identifier = nullptr;
};

namespace commands {

using enum ParameterType;

// What the commands compute.

inline constexpr schema::Column sFat{"sFat", schema::Type::Integer};
inline constexpr schema::Column sCarbohydrate{"sCarbohydrate", schema::Type::Integer};
inline constexpr schema::Column sProtein{"sProtein", schema::Type::Integer};
inline constexpr Nutrients<schema::Column> consumed{sFat, sCarbohydrate, sProtein};
inline constexpr schema::Column sCalories{"sCalories", schema::Type::Integer};
inline constexpr schema::Column minDt{"minDt", schema::Type::Integer, true};
inline constexpr schema::Column maxDt{"maxDt", schema::Type::Integer, true};
inline constexpr schema::Column days{"days", schema::Type::Integer};
inline constexpr schema::Column calories{"calories", schema::Type::Real};
inline constexpr schema::Column curDate{"curDate", schema::Type::Integer};
inline constexpr schema::Column records{"records", schema::Type::Integer};
inline constexpr schema::Column category{"category", schema::Type::Text};

// Catalogues

inline constexpr Command MealCategory{"MealCategory",
                                      "select * from MealCategory where MealCategoryID = :id",
                                      {{{":id", Integer}}},
                                      &schema::MealCategory::table,
                                      &schema::MealCategory::MealCategoryID};

inline constexpr Command MealCategorySorted{"MealCategorySorted",
                                            "select * from MealCategory order by Name",
                                            {},
                                            nullptr,
                                            &schema::MealCategory::MealCategoryID};

inline constexpr Command Meal{"Meal",
                              "select * from Meal where MealID = :id",
                              {{{":id", Integer}}},
                              &schema::Meal::table,
                              &schema::Meal::MealID};

inline constexpr Command MealSorted{"MealSorted",
                                    "select * from Meal where MealCategoryID = :id order by Name",
                                    {{{":id", Integer}}},
                                    nullptr,
                                    &schema::Meal::MealID};

inline constexpr Command MealForCategory{
    "MealForCategory",
    "select * from Meal where MealCategoryID = :ID order by Name",
    {{{":ID", Integer}}},
    nullptr,
    &schema::Meal::MealID};

inline constexpr Command MealAll{
    "MealAll",
    "select MealID, Meal.Name as Name, Unit, DefaultQty, Increment, Calories, Fat, Carbohydrate,"
    " Protein, FatBC, CarbohydrateBC, ProteinBC, MealCategoryID, MealCategory.Name as category"
    " from Meal inner join MealCategory using (MealCategoryID) order by Meal.Name",
    {},
    nullptr,
    &schema::Meal::MealID};

inline constexpr Command Exercise{"Exercise",
                                  "select * from Exercise where ExerciseID = :a",
                                  {{{":a", Integer}}},
                                  &schema::Exercise::table,
                                  &schema::Exercise::ExerciseID};

inline constexpr Command ExerciseSorted{"ExerciseSorted",
                                        "select * from Exercise order by Name",
                                        {},
                                        nullptr,
                                        &schema::Exercise::ExerciseID};

// Daily journal

inline constexpr Command MealConsumeSorted{
    "MealConsumeSorted",
    "select MealConsume.*, Round(FatBC*Qty) as sFat,"
    " Round(CarbohydrateBC*Qty) as sCarbohydrate, Round(ProteinBC*Qty) as sProtein,"
    " Round(FatBC*Qty) + Round(CarbohydrateBC*Qty) + Round(ProteinBC*Qty) as sCalories, Name, Unit"
    " from MealConsume inner join Meal on MealConsume.MealID = Meal.MealID"
    " where MealConsume.ConsumeDate = :d order by ConsumeTime",
    {{{":d", Date}}},
    nullptr,
    &schema::MealConsume::MealConsumeID};

inline constexpr Command MealConsume{
    "MealConsume",
    "select MealConsume.*, MealCategoryID"
    " from MealConsume inner join Meal on MealConsume.MealID = Meal.MealID"
    " where MealConsumeID = :id",
    {{{":id", Integer}}},
    &schema::MealConsume::table,
    &schema::MealConsume::MealConsumeID};

inline constexpr Command MealConsumeDelete{
    "MealConsumeDelete", "delete from MealConsume where MealConsumeID = :id", {{{":id", Text}}}};

inline constexpr Command ExercisePerformSorted{
    "ExercisePerformSorted",
    "select ExercisePerform.*, Name, Round(CaloriesConsume*Qty) as sCalories, Unit"
    " from ExercisePerform inner join Exercise"
    " on ExercisePerform.ExerciseID = Exercise.ExerciseID"
    " where PerformDate = :dt order by timeBeg",
    {{{":dt", Date}}},
    nullptr,
    &schema::ExercisePerform::ExercisePerformID};

inline constexpr Command ExercisePerform{"ExercisePerform",
                                         "select * from ExercisePerform"
                                         " where ExercisePerformID = :id",
                                         {{{":id", Integer}}},
                                         &schema::ExercisePerform::table,
                                         &schema::ExercisePerform::ExercisePerformID};

// The last 2,000 entries tell what somebody is used to; the latest come first.
inline constexpr Command RecentMeals{"RecentMeals",
                                     "select MealID, ConsumeDate, ConsumeTime, Qty from MealConsume"
                                     " order by ConsumeDate desc, ConsumeTime desc limit 2000"};

inline constexpr Command RecentActivities{
    "RecentActivities", "select ExerciseID, PerformDate, timeBeg, timeEnd, Qty from ExercisePerform"
                        " order by PerformDate desc, timeBeg desc limit 2000"};

inline constexpr Command DaysWithEntries{
    "DaysWithEntries",
    "select ConsumeDate as curDate from MealConsume where ConsumeDate between :begDate and :endDate"
    " union select PerformDate from ExercisePerform where PerformDate between :begDate and "
    ":endDate",
    {{{":begDate", Date}, {":endDate", Date}}}};

// What was eaten on each day that has a meal. The nutrients are those of the lists, rounded record
// by record, the calories those of the meals. The order of the tables is that of the loops, or else
// the engine might sort all rows.
inline constexpr Command ConsumedByDay{
    "ConsumedByDay",
    "select ConsumeDate as curDate, count(*) as records, sum(Round(FatBC*Qty)) as sFat,"
    " sum(Round(CarbohydrateBC*Qty)) as sCarbohydrate, sum(Round(ProteinBC*Qty)) as sProtein,"
    " sum(Calories*Qty) as calories"
    " from MealConsume cross join Meal on MealConsume.MealID = Meal.MealID"
    " where ConsumeDate between :begDate and :endDate and typeof(ConsumeDate) = 'integer'"
    " group by ConsumeDate order by ConsumeDate",
    {{{":begDate", Date}, {":endDate", Date}}}};

// Body measurements and notes

inline constexpr Command BodySorted{
    "BodySorted",
    "select * from Body where DateMeasured >= :DateMeasuredFrom order by DateMeasured",
    {{{":DateMeasuredFrom", Text}}},
    nullptr,
    &schema::Body::BodyID};

inline constexpr Command Body{"Body",
                              "select * from Body where BodyID = :id",
                              {{{":id", Integer}}},
                              &schema::Body::table,
                              &schema::Body::BodyID};

inline constexpr Command BodyCheck{"BodyCheck",
                                   "select * from Body where DateMeasured = :dt and BodyID <> :id",
                                   {{{":dt", Date}, {":id", Integer}}},
                                   nullptr,
                                   &schema::Body::BodyID};

inline constexpr Command BodyDelete{
    "BodyDelete", "delete from Body where BodyID = :id", {{{":id", Text}}}};

inline constexpr Command UserNoteSorted{
    "UserNoteSorted",
    "select * from UserNote where DateTo >= :theDateFrom order by DateFrom",
    {{{":theDateFrom", Date}}},
    nullptr,
    &schema::UserNote::UserNoteID};

inline constexpr Command UserNote{"UserNote",
                                  "select * from UserNote where UserNoteID = :id",
                                  {{{":id", Integer}}},
                                  &schema::UserNote::table,
                                  &schema::UserNote::UserNoteID};

inline constexpr Command UserNoteCheck{
    "UserNoteCheck",
    "select * from UserNote"
    " where (:dtf between DateFrom and DateTo or :dtt between DateFrom and DateTo"
    " or DateFrom between :dtf and :dtt) and UserNoteID <> :id",
    {{{":dtf", Date}, {":dtt", Date}, {":id", Integer}}}};

// Common parameters and recalculation

inline constexpr Command Common{
    "Common", "select rowid, * from Common", {}, &schema::Common::table};

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
