#include "exchange/checkrules.h"

#include "session/excerpt.h"
#include "session/typeddatetime.h"

#include <cmath>

namespace {

TableRules mealCategoriesRules()
{
    using schema::MealCategory;
    return {.table = &MealCategory::table,
            .title = CheckTexts::tr("Meal categories"),
            .order = "MealCategoryID",
            .naming = "select Name from MealCategory where MealCategoryID = ?",
            .columns = {{MealCategory::Name, CellRule::Text, CheckTexts::tr("The name")}}};
}

TableRules mealsRules()
{
    using schema::Meal;
    TableRules rules = {
        .table = &Meal::table,
        .title = CheckTexts::tr("Meals"),
        .order = "MealID",
        .naming = "select Name from Meal where MealID = ?",
        .columns = {
            {Meal::Name, CellRule::Text, CheckTexts::tr("The name")},
            {Meal::Unit, CellRule::Text, CheckTexts::tr("The unit")},
            {Meal::DefaultQty, CellRule::Quantity, CheckTexts::tr("The default quantity")},
            {Meal::Increment, CellRule::Quantity, CheckTexts::tr("The increment")},
            {Meal::Calories, CellRule::Quantity, CheckTexts::tr("The number of calories")},
            {Meal::Fat, CellRule::Quantity, CheckTexts::tr("The amount of fat")},
            {Meal::Carbohydrate, CellRule::Quantity, CheckTexts::tr("The amount of carbohydrate")},
            {Meal::Protein, CellRule::Quantity, CheckTexts::tr("The amount of protein")}}};
    const Nutrients<QString> names = {CheckTexts::tr("The number of calories from fat"),
                                      CheckTexts::tr("The number of calories from carbohydrate"),
                                      CheckTexts::tr("The number of calories from protein")};
    for (const Nutrient nutrient : allNutrients)
        rules.columns.push_back({Meal::shares[nutrient], CellRule::Quantity, names[nutrient]});
    return rules;
}

TableRules activitiesRules()
{
    using schema::Exercise;
    return {.table = &Exercise::table,
            .title = CheckTexts::tr("Activities"),
            .order = "ExerciseID",
            .naming = "select Name from Exercise where ExerciseID = ?",
            .columns = {
                {Exercise::Name, CellRule::Text, CheckTexts::tr("The name")},
                {Exercise::Unit, CellRule::Text, CheckTexts::tr("The unit")},
                {Exercise::DefaultQty, CellRule::Quantity, CheckTexts::tr("The default quantity")},
                {Exercise::CaloriesConsume, CellRule::Quantity,
                 CheckTexts::tr("The number of calories burnt")},
                {Exercise::CaloriesConsumeBase, CellRule::Quantity,
                 CheckTexts::tr("The number of base calories")},
                {Exercise::WeightDependent, CellRule::Quantity,
                 CheckTexts::tr("The mark for dependence on weight")}}};
}

TableRules mealsConsumedRules()
{
    using schema::MealConsume;
    return {.table = &MealConsume::table,
            .title = CheckTexts::tr("Meals consumed"),
            .order = "ConsumeDate, ConsumeTime, MealConsumeID",
            .day = &MealConsume::ConsumeDate,
            .naming = "select Name from MealConsume inner join Meal using (MealID)"
                      " where MealConsumeID = ?",
            .columns = {{MealConsume::ConsumeDate, CellRule::Day, CheckTexts::tr("The date")},
                        {MealConsume::ConsumeTime, CellRule::Time, CheckTexts::tr("The time")},
                        {MealConsume::Qty, CellRule::Quantity, CheckTexts::tr("The quantity")}}};
}

TableRules activitiesPerformedRules()
{
    using schema::ExercisePerform;
    return {
        .table = &ExercisePerform::table,
        .title = CheckTexts::tr("Activities performed"),
        .order = "PerformDate, timeBeg, ExercisePerformID",
        .day = &ExercisePerform::PerformDate,
        .naming = "select Name from ExercisePerform inner join Exercise using (ExerciseID)"
                  " where ExercisePerformID = ?",
        .columns = {{ExercisePerform::PerformDate, CellRule::Day, CheckTexts::tr("The date")},
                    {ExercisePerform::timeBeg, CellRule::Time, CheckTexts::tr("The begin")},
                    {ExercisePerform::timeEnd, CellRule::Time, CheckTexts::tr("The end")},
                    {ExercisePerform::Qty, CellRule::Quantity, CheckTexts::tr("The quantity")}}};
}

TableRules measurementsRules()
{
    using schema::Body;
    return {
        .table = &Body::table,
        .title = CheckTexts::tr("Body measurements"),
        .order = "DateMeasured, BodyID",
        .day = &Body::DateMeasured,
        .columns = {{Body::DateMeasured, CellRule::Day, CheckTexts::tr("The date")},
                    {Body::Weight, CellRule::Quantity, CheckTexts::tr("The weight")},
                    {Body::Breast, CellRule::Quantity, CheckTexts::tr("The breast measurement")},
                    {Body::Waist, CellRule::Quantity, CheckTexts::tr("The waist measurement")},
                    {Body::Hips, CellRule::Quantity, CheckTexts::tr("The hips measurement")},
                    {Body::Measurement, CellRule::UnitSystem, CheckTexts::tr("The unit system")}}};
}

TableRules notesRules()
{
    using schema::UserNote;
    return {.table = &UserNote::table,
            .title = CheckTexts::tr("Notes"),
            .order = "DateFrom, DateTo, UserNoteID",
            .day = &UserNote::DateFrom,
            .naming = "select NoteText from UserNote where UserNoteID = ?",
            .columns = {{UserNote::DateFrom, CellRule::Day, CheckTexts::tr("The first day")},
                        {UserNote::DateTo, CellRule::Day, CheckTexts::tr("The last day")},
                        {UserNote::NoteText, CellRule::Text, CheckTexts::tr("The text")}}};
}

TableRules commonParametersRules()
{
    using schema::Common;
    const QString counter = CheckTexts::tr("A counter of identifiers");
    return {
        .table = &Common::table,
        .title = CheckTexts::tr("Common parameters"),
        .order = "rowid",
        .columns = {
            {Common::weight, CellRule::Quantity, CheckTexts::tr("The weight")},
            {Common::metabolicRate, CellRule::Quantity, CheckTexts::tr("The background burn")},
            {Common::Measurement, CellRule::UnitSystem, CheckTexts::tr("The unit system")},
            {Common::NextBodyID, CellRule::Quantity, counter},
            {Common::NextMealConsumeID, CellRule::Quantity, counter},
            {Common::NextExercisePerformID, CellRule::Quantity, counter},
            {Common::NextUserNoteID, CellRule::Quantity, counter},
            {Common::installDate, CellRule::Day, CheckTexts::tr("The day of the installation")}}};
}

QString valueWords(const SQLite::Column &cell, const LocaleText &text)
{
    constexpr qsizetype most = 60;
    if (cell.isBlob())
        return CheckTexts::tr("binary data");
    if (cell.isInteger())
        return text.toText(Value(qint64(cell.getInt64())));
    if (cell.isFloat())
        return text.toText(Value(cell.getDouble()));
    return excerptOf(QString::fromUtf8(cell.getText(), cell.getBytes()), most);
}

bool isNumber(const SQLite::Column &cell)
{
    return cell.isInteger() || cell.isFloat();
}

/// What is wrong, with a mark for the name of the column and one for the value; null for nothing.
const char *wrongWith(CellRule rule, const SQLite::Column &cell)
{
    const bool isText = cell.isText();
    switch (rule) {
    case CellRule::Text:
        return isText ? nullptr : QT_TRANSLATE_NOOP("CheckTexts", "%1 is no text: %2.");
    case CellRule::UnitSystem: {
        const std::string code = isText ? cell.getString() : std::string();
        return code == "M" || code == "I"
                   ? nullptr
                   : QT_TRANSLATE_NOOP("CheckTexts", "%1 is neither M nor I: %2.");
    }
    case CellRule::Day:
        return isDay(cell) ? nullptr : QT_TRANSLATE_NOOP("CheckTexts", "%1 is no day: %2.");
    case CellRule::Time:
    case CellRule::Quantity:
        break;
    }
    if (!isNumber(cell))
        return QT_TRANSLATE_NOOP("CheckTexts", "%1 is no number: %2.");
    const double number = cell.getDouble();
    if (rule == CellRule::Time)
        return number >= 0 && number < 1
                   ? nullptr
                   : QT_TRANSLATE_NOOP("CheckTexts", "%1 is outside the day: %2 of a day.");
    if (number < 0)
        return QT_TRANSLATE_NOOP("CheckTexts", "%1 is negative: %2.");
    return std::isfinite(number) ? nullptr
                                 : QT_TRANSLATE_NOOP("CheckTexts", "%1 is out of range: %2.");
}

} // namespace

std::vector<TableRules> tableRules()
{
    return {mealCategoriesRules(),
            mealsRules(),
            activitiesRules(),
            mealsConsumedRules(),
            activitiesPerformedRules(),
            measurementsRules(),
            notesRules(),
            commonParametersRules()};
}

std::optional<QString> faultOf(const ColumnRule &rule, const SQLite::Column &cell,
                               const LocaleText &text)
{
    if (cell.isNull())
        return std::nullopt;
    const char *wrong = wrongWith(rule.rule, cell);
    return wrong ? std::optional(CheckTexts::tr(wrong).arg(rule.name, valueWords(cell, text)))
                 : std::nullopt;
}

bool isDay(const SQLite::Column &cell)
{
    static const qint64 first = dayNumber(earliestDay);
    static const qint64 last = dayNumber(latestDay);
    return cell.isInteger() && cell.getInt64() >= first && cell.getInt64() <= last;
}
