// A journal with a small catalogue for the windows of the day.
#pragma once

#include "guitest.h"
#include "testjournal.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTimeEdit>

class DayJournal : public TestJournal
{
public:
    explicit DayJournal(const QLocale &locale = QLocale(QLocale::English, QLocale::UnitedKingdom))
        : TestJournal(locale)
    {
        exec("PRAGMA synchronous=OFF;"
             "insert into MealCategory (Name) values ('Fruit'), ('Dairy'), ('Vacant');"
             "insert into Meal (MealCategoryID, Name, Unit, DefaultQty, Increment, Calories, Fat,"
             " Carbohydrate, Protein, FatBC, CarbohydrateBC, ProteinBC) values"
             " (1, 'Apple', 'piece', 1.5, 0.25, 30, 1, 1, 1, 10, 15, 5),"
             " (1, 'Banana', 'piece', null, null, 100, 1, 1, 1, 2.5, 90, 4),"
             " (2, 'Crème brûlée', 'cup', 1, 1, 300, 1, 1, 1, 150, 120, 30);"
             "insert into Exercise (Name, Unit, DefaultQty, CaloriesConsume, CaloriesConsumeBase,"
             " WeightDependent) values ('Rowing', 'lap', null, 7, 7, 0),"
             " ('Walking', 'minute', 30, 3.5, 3.5, 0)");
    }

    /// Rows of the two journal tables: key, catalogue key, day, minutes of the day, quantity.
    QStringList meals()
    {
        return rows("select MealConsumeID, MealID, ConsumeDate, round(ConsumeTime * 1440), Qty"
                    " from MealConsume order by MealConsumeID");
    }
    QStringList activities()
    {
        return rows("select ExercisePerformID, ExerciseID, PerformDate, round(timeBeg * 1440),"
                    " round(timeEnd * 1440), Qty from ExercisePerform order by ExercisePerformID");
    }

    RecordedMessages messages;
};

/// Day number of the day on which the test journal stands.
inline constexpr int testDay = 46225;

inline QString textOf(const QWidget &window, const char *box)
{
    return control<QLineEdit>(window, box).text();
}

inline void press(const QWidget &window, const char *button)
{
    control<QPushButton>(window, button).click();
}

/// Types a time over the whole of a time picker.
inline void typeTime(QTimeEdit &picker, const QString &text)
{
    picker.setFocus();
    picker.setSelectedSection(QDateTimeEdit::HourSection);
    QTest::keyClicks(&picker, text);
}
