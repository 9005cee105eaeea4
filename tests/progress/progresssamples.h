// Journal rows for the tests of general progress.
#pragma once

#include "testjournal.h"

/// Adds rows to a journal whose only meal has 1 calorie per unit and whose only activity burns 1.
class ProgressJournal : public TestJournal
{
public:
    explicit ProgressJournal(const QLocale &locale = QLocale(QStringLiteral("en_GB")))
        : TestJournal(locale)
    {
        exec("insert into MealCategory (MealCategoryID, Name) values (1, 'Food');"
             "insert into Meal values (1, 1, 'Meal', 'g', 1, 1, 1, 0, 0, 0, 0, 0, 0);"
             "insert into Exercise values (1, 'Walk', 'min', 1, 1, 1, 0)");
    }

    void addMeasurement(QDate day, double weight, double breast = 90, double waist = 80,
                        double hips = 95)
    {
        add("Body values (%1, %2, %3, %4, %5, %6, 'M')", day, weight, breast, waist, hips);
    }
    void addMeal(QDate day, double kcal)
    {
        add("MealConsume values (%1, 1, %2, 0.5, %3)", day, kcal);
    }
    void addActivity(QDate day, double kcal)
    {
        add("ExercisePerform values (%1, 1, %2, 0.5, 0.6, %3)", day, kcal);
    }
    void addNote(QDate from, QDate to, const QString &text)
    {
        add("UserNote values (%1, %2, %3, '%4')", from, dayNumber(to), text);
    }

private:
    template<typename... Values>
    void add(const char *row, QDate day, const Values &...values)
    {
        QString sql = QLatin1String("insert into ") + QLatin1String(row);
        sql = sql.arg(m_nextId++).arg(dayNumber(day));
        ((sql = sql.arg(QVariant(values).toString())), ...);
        exec(qPrintable(sql));
    }

    int m_nextId = 1;
};
