#include "exchange/exportdays.h"

#include "data/commands.h"
#include "data/numbers.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace {

constexpr qint64 noDay = std::numeric_limits<qint64>::max();

// Like ConsumedByDay, each gives the day and how many records it is made from.
constexpr char activitiesByDay[] =
    "select PerformDate, count(*), sum(Round(CaloriesConsume*Qty))"
    " from ExercisePerform cross join Exercise on ExercisePerform.ExerciseID = Exercise.ExerciseID"
    " where PerformDate between ?1 and ?2 and typeof(PerformDate) = 'integer'"
    " group by PerformDate order by PerformDate";
// Of several measurements on a day the last one is shown, and of a girth of 0 none.
constexpr char measurementsByDay[] =
    "select DateMeasured, 1, Weight, case Measurement when 'M' then 'kg' when 'I' then 'lb' end,"
    " Breast, Waist, Hips, case Measurement when 'M' then 'cm' when 'I' then 'inch' end from Body"
    " where DateMeasured between ?1 and ?2 and typeof(DateMeasured) = 'integer'"
    " order by DateMeasured, BodyID";

/// The rows of a statement, day by day.
class DayRows
{
public:
    DayRows(Connection &connection, const char *sql, const ExportPeriod &period)
        : m_statement(connection.database(), sql)
    {
        bindValues(m_statement, {Value(period.dateFrom), Value(period.dateTo)});
        next();
    }

    /// The day of the current row, noDay behind the last one.
    qint64 day() const { return m_day; }
    qint64 records() { return m_statement.getColumn(1).getInt64(); }
    Value value(int column) { return columnValue(m_statement, column); }
    double number(int column) { return value(column).toDouble(); }
    void next() { m_day = m_statement.executeStep() ? m_statement.getColumn(0).getInt64() : noDay; }

private:
    SQLite::Statement m_statement;
    qint64 m_day = noDay;
};

class DaysWriter
{
public:
    DaysWriter(Connection &connection, const ExportPeriod &period, CsvFile &file)
        : m_meals(connection, commands::ConsumedByDay.sql, period)
        , m_activities(connection, activitiesByDay, period)
        , m_body(connection, measurementsByDay, period)
        , m_balance(connection.database(), commands::GPCalories.sql)
        , m_file(file)
    {
        SQLite::Statement common(connection.database(), "select metabolicRate from Common");
        common.executeStep();
        m_metabolicRate = common.getColumn(0).getDouble();
    }

    qint64 nextDay() const { return std::min({m_meals.day(), m_activities.day(), m_body.day()}); }

    /// The number of records that it is made from.
    qint64 writeDay(qint64 day)
    {
        m_records = 0;
        m_file.add(Value(day), CellKind::Date);
        writeCalories(day);
        writeMeasurement(day);
        m_file.endRow();
        return m_records;
    }

private:
    void writeCalories(qint64 day)
    {
        const bool hasMeals = m_meals.day() == day;
        const bool hasActivities = m_activities.day() == day;
        if (!hasMeals && !hasActivities) {
            for (int column = 0; column < 9; ++column)
                m_file.add({});
            return;
        }
        const double fat = hasMeals ? m_meals.number(2) : 0;
        const double carbohydrate = hasMeals ? m_meals.number(3) : 0;
        const double protein = hasMeals ? m_meals.number(4) : 0;
        const double eaten = fat + carbohydrate + protein;
        const double active = hasActivities ? m_activities.number(2) : 0;
        // As the chart and general progress take a day from the hourly rate.
        const double background = std::round(m_metabolicRate / 60 * 1440);
        const double burnt = active + background;
        for (const double figure : {eaten, fat, carbohydrate, protein, burnt, active, background,
                                    eaten - burnt, progressBalance(day)})
            m_file.add(Value(figure));
        for (DayRows *rows : {&m_meals, &m_activities}) {
            if (rows->day() != day)
                continue;
            m_records += rows->records();
            rows->next();
        }
    }

    // By the command of general progress itself: other sums of the same may round otherwise.
    double progressBalance(qint64 day)
    {
        const StatementUse statement(m_balance);
        bindValues(*statement, {Value(day), Value(day)});
        const double recorded = statement->executeStep() ? statement->getColumn(0).getDouble() : 0;
        return roundHalfEven(recorded - m_metabolicRate * 24);
    }

    void writeMeasurement(qint64 day)
    {
        std::array<Value, 6> values;
        for (; m_body.day() == day; m_body.next()) {
            for (size_t i = 0; i < values.size(); ++i)
                values[i] = m_body.value(int(i) + 2);
            ++m_records;
        }
        for (const Value &value : values) {
            const bool isText = std::holds_alternative<QString>(value.storage());
            m_file.add(isText || value.toDouble() > 0 ? value : Value());
        }
    }

    DayRows m_meals;
    DayRows m_activities;
    DayRows m_body;
    SQLite::Statement m_balance;
    CsvFile &m_file;
    double m_metabolicRate = 0;
    qint64 m_records = 0;
};

} // namespace

void writeDays(Connection &connection, const ExportPeriod &period, CsvFile &file,
               const std::function<void(qint64)> &advance)
{
    for (const char *header :
         {"Date", "Eaten (kcal)", "Fat (kcal)", "Carbohydrate (kcal)", "Protein (kcal)",
          "Burnt (kcal)", "Activities (kcal)", "Background (kcal)", "Balance (kcal)",
          "ProgressBalance (kcal)", "Weight", "WeightUnit", "Breast", "Waist", "Hips", "GirthUnit"})
        file.add(Value(QString::fromLatin1(header)));
    file.endRow();
    guarded([&] {
        DaysWriter days(connection, period, file);
        for (qint64 day = days.nextDay(); day != noDay; day = days.nextDay())
            advance(days.writeDay(day));
    });
}
