// Updatable result sets: walking, appending, changing, cancelling, deleting, being refused.
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
        QVERIFY(categories().isChangePending()); // until the caller cancels it
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

private:
    deData &data() { return *m_journal->data; }
    Recordset &categories() { return data().rsMealCategory; }
    QString stored() { return m_journal->row("select Name from MealCategory order by 1"); }

    std::unique_ptr<TestJournal> m_journal;
};

QTEST_APPLESS_MAIN(tst_recordset)
#include "tst_recordset.moc"
