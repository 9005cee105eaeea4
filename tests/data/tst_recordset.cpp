// Updatable result sets: walking, changing, deleting, being refused; identifiers of new rows.
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

    void walksItsRows()
    {
        Recordset &rows = data().rsMealCategorySorted;
        rows.open();
        QVERIFY_THROWS_EXCEPTION(std::logic_error, rows.open());
        QVERIFY_THROWS_EXCEPTION(std::logic_error, rows.value("Nome"_L1));
        QVERIFY(rows.moveTo("mealcategoryid"_L1, 2)); // column names know no case
        QVERIFY(!rows.moveTo("MealCategoryID"_L1, 3));
        QCOMPARE(rows.text("Name"_L1), u"Fruit"_qs);
        rows.moveNext();
        QVERIFY_THROWS_EXCEPTION(std::logic_error, rows.value("Name"_L1));
    }

    void deletesAndAppends()
    {
        categories().open({2});
        categories().remove();
        QVERIFY_THROWS_EXCEPTION(std::logic_error, categories().remove());
        categories().addNew();
        categories().set("Name"_L1, Value(u"Soups"_qs));
        categories().set("Name"_L1, Value(u"Stews"_qs)); // the last value wins
        categories().update();
        // The new record is the current one and knows its key, which is no other's again.
        QCOMPARE(categories().integer("MealCategoryID"_L1), 3);
        QCOMPARE(stored(), u"Bread\nStews"_qs);
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

    void cancelLeavesTheRecord()
    {
        categories().open({1});
        categories().set("Name"_L1, Value(u"Rolls"_qs));
        categories().cancelUpdate();
        QCOMPARE(categories().text("Name"_L1), u"Bread"_qs);
        categories().update();
        categories().addNew();
        categories().set("Name"_L1, Value(u"Rolls"_qs));
        categories().reopen({2}); // closing discards it too
        categories().update();
        QCOMPARE(stored(), u"Bread\nFruit"_qs);
    }

    void tellsRefusalsApart()
    {
        categories().open({2});
        categories().set("Name"_L1, Value(u"BREAD"_qs));
        QCOMPARE(refusalOf([&] { categories().update(); }), StoreError::Kind::NameTaken);
        // It stays pending until the caller cancels it.
        QCOMPARE(refusalOf([&] { categories().update(); }), StoreError::Kind::NameTaken);
        categories().cancelUpdate();
        categories().set("Name"_L1, Value());
        QCOMPARE(refusalOf([&] { categories().update(); }), StoreError::Kind::Other);

        categories().reopen({1});
        QCOMPARE(refusalOf([&] { categories().remove(); }), StoreError::Kind::ReferenceRefused);
        QVERIFY(!categories().isEof());
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
        QCOMPARE(stored(), u"Fruit"_qs);
    }

    void holdsNoLock()
    {
        data().rsMealCategorySorted.open();
        data().rsMeal.open({1});
        Connection other(m_journal->path());
        other.exec("begin exclusive; insert into MealCategory (Name) values ('Nuts'); commit");
        QCOMPARE(stored(), u"Bread\nFruit\nNuts"_qs);
    }

    void onlyEditorsWrite()
    {
        Recordset &rows = data().rsMealSorted;
        rows.open({1});
        QVERIFY_THROWS_EXCEPTION(std::logic_error, rows.set("Name"_L1, Value(u"a"_qs)));
        QVERIFY_THROWS_EXCEPTION(std::logic_error, data().rsMeal.addNew()); // it is closed
    }

    // No number is handed out twice.
    void eachCounterCountsItsOwn()
    {
        m_journal->exec("update Common set NextMealConsumeID = 10, NextExercisePerformID = 20,"
                        " NextBodyID = 30, NextUserNoteID = 0");
        // A counter that holds k hands out k + 1.
        QCOMPARE(NewMealConsumeID(data()), qint16(11));
        QCOMPARE(NewExercisePerformID(data()), qint16(21));
        QCOMPARE(NewBodyID(data()), qint16(31));
        QCOMPARE(NewUserNoteID(data()), qint16(1));
        QCOMPARE(m_journal->row("select NextMealConsumeID, NextExercisePerformID, NextBodyID,"
                                " NextUserNoteID from Common"),
                 u"11|21|31|1"_qs);
    }

    void countersEndAt16Bits()
    {
        m_journal->exec("update Common set NextMealConsumeID = 32766, NextBodyID = 2147483647");
        QCOMPARE(NewMealConsumeID(data()), qint16(32767));
        for (const auto &counters : {u"32768|2147483647"_qs, u"32769|2147483647"_qs}) {
            QVERIFY_THROWS_EXCEPTION(OverflowError, NewMealConsumeID(data()));
            QVERIFY_THROWS_EXCEPTION(OverflowError, NewBodyID(data()));
            QCOMPARE(m_journal->row("select NextMealConsumeID, NextBodyID from Common"), counters);
        }
        QCOMPARE(NewUserNoteID(data()), qint16(2)); // no transaction was left open
    }

    void twoProgramsShareTheCounter()
    {
        deData other(m_journal->path());
        // Both have read the row before.
        other.rsCommon.open();
        data().rsCommon.reopen();
        for (int i = 0; i < 20; ++i)
            QCOMPARE(NewMealConsumeID(i % 3 == 0 ? other : data()), qint16(2 + i));
        other.Con.exec("begin immediate");
        QVERIFY_THROWS_EXCEPTION(StoreError, NewMealConsumeID(data()));
        other.Con.exec("rollback");
        QCOMPARE(NewMealConsumeID(data()), qint16(22));
    }

private:
    deData &data() { return *m_journal->data; }
    Recordset &categories() { return data().rsMealCategory; }
    QString stored() { return m_journal->row("select Name from MealCategory order by 1"); }

    std::unique_ptr<TestJournal> m_journal;
};

QTEST_APPLESS_MAIN(tst_recordset)
#include "tst_recordset.moc"
