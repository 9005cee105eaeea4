// Journal rows for the tests of general progress.
#pragma once

#include "testjournal.h"

/// Adds rows to a journal whose only meal has 1 calorie per unit and whose only activity burns 1.
class ProgressJournal : public TestJournal
{
public:
    explicit ProgressJournal(const QLocale &locale = QLocale(QLocale::English,
                                                             QLocale::UnitedKingdom))
        : TestJournal(locale)
    {
        exec("insert into MealCategory (MealCategoryID, Name) values (1, 'Food');"
             "insert into Meal values (1, 1, 'Meal', 'g', 1, 1, 1, 0, 0, 0, 0, 0, 0);"
             "insert into Exercise values (1, 'Walk', 'min', 1, 1, 1, 0)");
    }

    void addMeasurement(QDate day, double weight, double breast, double waist, double hips)
    {
        insert("Body", day,
               QStringLiteral("%1, %2, %3, %4, 'M'")
                   .arg(weight, 0, 'g', 17)
                   .arg(breast)
                   .arg(waist)
                   .arg(hips));
    }
    void addMeal(QDate day, double calories) { add("MealConsume", day, "0.5", calories); }
    void addActivity(QDate day, double calories)
    {
        add("ExercisePerform", day, "0.5, 0.6", calories);
    }
    void addNote(QDate from, QDate to, const QString &text)
    {
        insert("UserNote", from, QStringLiteral("%1, '%2'").arg(dayNumber(to)).arg(text));
    }

private:
    void add(const char *table, QDate day, const char *times, double quantity)
    {
        exec(qPrintable(QStringLiteral("insert into %1 values (%2, 1, %3, %4, %5)")
                            .arg(QLatin1String(table))
                            .arg(m_nextId++)
                            .arg(dayNumber(day))
                            .arg(QLatin1String(times))
                            .arg(quantity, 0, 'g', 17)));
    }
    void insert(const char *table, QDate day, const QString &values)
    {
        exec(QStringLiteral("insert into %1 values (%2, %3, ")
                 .arg(QLatin1String(table))
                 .arg(m_nextId++)
                 .arg(dayNumber(day))
                 .append(values + u')')
                 .toUtf8()
                 .constData());
    }

    int m_nextId = 1;
};
