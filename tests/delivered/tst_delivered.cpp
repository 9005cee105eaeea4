// The database as it is delivered: what its rows keep to, beyond what the builder refuses.
#include "quickadd/plaincalories.h"
#include "settings/units.h"
#include "testjournal.h"

#include <QTest>

using namespace Qt::StringLiterals;

class tst_delivered : public QObject
{
    Q_OBJECT

private slots:
    void hasNone();
    void everyDayIsLived();
    void plainCaloriesAreThere();

private:
    Connection m_connection{QStringLiteral(CORVANA_DELIVERED_DATABASE)};
};

void tst_delivered::hasNone()
{
    for (const QByteArray rows :
         {// Meals and activities without a quantity.
          "(select DefaultQty q from Meal union all select DefaultQty from Exercise)"
          " where coalesce(q, 0) <= 0",
          // Keys of the user's.
          "(select MealConsumeID id from MealConsume union all select ExercisePerformID from"
          " ExercisePerform union all select BodyID from Body union all select UserNoteID from"
          " UserNote) where id >= 0",
          // Calories that the parts don't add up to.
          "Meal where Fat + Carbohydrate + Protein > 0"
          " and abs(Calories - FatBC - CarbohydrateBC - ProteinBC) > 0.00001",
          // Activities at the same time.
          "ExercisePerform a join ExercisePerform b on a.PerformDate = b.PerformDate"
          " and a.ExercisePerformID < b.ExercisePerformID"
          " and a.timeBeg < b.timeEnd and b.timeBeg < a.timeEnd"})
        QCOMPARE(queryRows(m_connection, "select * from " + rows), QStringList());
}

// Every day of the sample has its meals and activities, in amounts that a person lives on. Days
// differ, and on the whole less comes in than goes out, or the weight would not fall.
void tst_delivered::everyDayIsLived()
{
    const QByteArray days =
        " from (select ConsumeDate day, sum(Qty * Calories) eaten from MealConsume"
        "  join Meal using (MealID) group by day) left join"
        " (select PerformDate day, sum(Qty * CaloriesConsume) burnt"
        "  from ExercisePerform join Exercise using (ExerciseID) group by day) using (day)";
    QCOMPARE(queryRows(m_connection,
                       "select count(burnt), min(day) - 46023, max(day) - 46023,"
                       " min(eaten) >= 1250, max(eaten) <= 2650, max(eaten) - min(eaten) > 1200,"
                       " min(burnt) > 20, max(burnt) < 900" +
                           days),
             QStringList{"48|-44|3|1|1|1|1|1"});
    const QString balance = queryRows(m_connection, "select avg(eaten - burnt)" + days)[0];
    const double perDay = balance.toDouble() - 24 * units::backgroundCalories(74, true);
    QVERIFY2(perDay > -350 && perDay < -100, qPrintable(balance));
}

// As Quick Add makes them in a journal that lacks them.
void tst_delivered::plainCaloriesAreThere()
{
    const char *const query = "select Meal.Name, MealCategory.Name, Unit, DefaultQty, Increment,"
                              " Calories, Fat, Carbohydrate, Protein, FatBC, CarbohydrateBC,"
                              " ProteinBC from Meal join MealCategory using (MealCategoryID)"
                              " where Unit = 'kcal'";
    TestJournal journal;
    plaincalories::addTo(*journal.data);
    QCOMPARE(queryRows(m_connection, query), journal.rows(query));
}

QTEST_APPLESS_MAIN(tst_delivered)
#include "tst_delivered.moc"
