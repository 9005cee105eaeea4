// Updatable result sets: changing, being refused; identifiers of new rows.
#include "data/identifiers.h"
#include "testjournal.h"

#include <QTest>

using namespace Qt::Literals;

namespace {

// What the store refused, in one word.
template<typename Action>
StoreError::Kind refusalOf(Action action)
{
    try {
        action();
    } catch (const StoreError &error) {
        return error.kind();
    }
    qFatal("the store refused nothing");
}

} // namespace

class tst_recordset : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_journal = std::make_unique<TestJournal>();
        m_journal->exec("insert into MealCategory (Name) values ('Bread'), ('Fruit');"
                        "insert into Meal values"
                        " (1, 1, 'Bagel', 'piece', null, 1, 250, 2, 50, 9, 18, 200, 32)");
    }

    // Two programs that change different fields of one record don't undo each other.
    void updatesOnlyWhatWasSet()
    {
        Recordset &meal = data().rsMeal;
        meal.open({1});
        meal.set("Calories"_L1, Value(260));
        m_journal->exec("update Meal set Unit = 'half' where MealID = 1");
        meal.update();
        meal.update(); // nothing set: nothing written
        QCOMPARE(m_journal->row("select Unit, Calories, Fat from Meal"), u"half|260|2"_qs);
    }

    void tellsRefusalsApart()
    {
        categories().open({2});
        categories().set("Name"_L1, Value(u"BREAD"_qs));
        QCOMPARE(refusalOf([&] { categories().update(); }), StoreError::Kind::NameTaken);
        categories().set("Name"_L1, Value());
        QCOMPARE(refusalOf([&] { categories().update(); }), StoreError::Kind::Other);

        categories().reopen({1});
        QCOMPARE(refusalOf([&] { categories().remove(); }), StoreError::Kind::ReferenceRefused);
        Recordset &meal = data().rsMeal;
        meal.open({1});
        meal.set("MealCategoryID"_L1, Value(9));
        QCOMPARE(refusalOf([&] { meal.update(); }), StoreError::Kind::ReferenceRefused);
        meal.cancelUpdate();

        // Once what refers to it is gone, the category can go.
        meal.remove();
        categories().set("Name"_L1, Value(u"Rolls"_qs));
        m_journal->exec("delete from MealCategory where MealCategoryID = 1");
        QCOMPARE(refusalOf([&] { categories().update(); }), StoreError::Kind::Gone);
        QCOMPARE(m_journal->row("select Name from MealCategory"), u"Fruit"_qs);
    }

    // A counter that holds k hands out k + 1, and no number twice.
    void eachCounterCountsItsOwn()
    {
        m_journal->exec("update Common set NextMealConsumeID = 32766, NextExercisePerformID = 20,"
                        " NextBodyID = 2147483647, NextUserNoteID = 0");
        QCOMPARE(NewMealConsumeID(data()), qint16(32767));
        QCOMPARE(NewExercisePerformID(data()), qint16(21));
        for (const auto &counters : {u"32768|21|2147483647|0"_qs, u"32769|21|2147483647|0"_qs}) {
            QVERIFY_THROWS_EXCEPTION(OverflowError, NewMealConsumeID(data()));
            QVERIFY_THROWS_EXCEPTION(OverflowError, NewBodyID(data()));
            QCOMPARE(m_journal->row("select NextMealConsumeID, NextExercisePerformID, NextBodyID,"
                                    " NextUserNoteID from Common"),
                     counters);
        }
        QCOMPARE(NewUserNoteID(data()), qint16(1)); // no transaction was left open
    }

private:
    deData &data() { return *m_journal->data; }
    Recordset &categories() { return data().rsMealCategory; }

    std::unique_ptr<TestJournal> m_journal;
};

QTEST_APPLESS_MAIN(tst_recordset)
#include "tst_recordset.moc"
