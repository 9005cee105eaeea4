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
    void init();

    void walksItsRows();
    void opensOnce();
    void appends();
    void updatesOnlyWhatWasSet();
    void cancelLeavesTheRecord();
    void deletes();
    void reusesNoIdentifier();
    void tellsRefusalsApart();
    void goneRecordIsTold();
    void holdsNoLock();
    void textsSurvive();
    void onlyEditorsWrite();

private:
    deData &data() { return *m_journal->data; }
    QString categories() { return m_journal->row("select Name from MealCategory order by 1"); }

    std::unique_ptr<TestJournal> m_journal;
};

void tst_recordset::init()
{
    m_journal = std::make_unique<TestJournal>();
    m_journal->exec(
        "insert into MealCategory (Name) values ('Bread'), ('Fruit');"
        "insert into Meal values (1, 1, 'Bagel', 'piece', null, 1, 250, 2, 50, 9, 18, 200, 32)");
}

void tst_recordset::walksItsRows()
{
    Recordset &rows = data().rsMealCategorySorted;
    QVERIFY_THROWS_EXCEPTION(std::logic_error, rows.value("Name"_L1));
    rows.open();
    QCOMPARE(rows.rowCount(), size_t(2));
    QCOMPARE(rows.text("NAME"_L1), u"Bread"_qs); // column names know no case
    QVERIFY(rows.moveTo("MealCategoryID"_L1, 2));
    QCOMPARE(rows.text("Name"_L1), u"Fruit"_qs);
    QVERIFY(!rows.moveTo("MealCategoryID"_L1, 3));
    QCOMPARE(rows.text("Name"_L1), u"Fruit"_qs);
    rows.moveNext();
    QVERIFY(rows.isEof());
    QVERIFY_THROWS_EXCEPTION(std::logic_error, rows.value("Name"_L1));
    rows.moveFirst();
    QVERIFY_THROWS_EXCEPTION(std::logic_error, rows.value("Nome"_L1));
}

void tst_recordset::opensOnce()
{
    Recordset &rows = data().rsMeal;
    rows.open({1});
    QVERIFY_THROWS_EXCEPTION(std::logic_error, rows.open({1}));
    QVERIFY(rows.isNull("DefaultQty"_L1));
    rows.close();
    rows.close();
    rows.open({2});
    QVERIFY(rows.isEof());
}

void tst_recordset::appends()
{
    Recordset &rows = data().rsMealCategory;
    rows.open({0});
    rows.addNew();
    QVERIFY(rows.isNull("Name"_L1));
    rows.set("Name"_L1, Value(u"Soups"_qs));
    rows.set("Name"_L1, Value(u"Stews"_qs)); // the last value wins
    QCOMPARE(categories(), u"Bread\nFruit"_qs);
    rows.update();
    QVERIFY(!rows.isChangePending());
    // The new record is the current one and knows the key that the database gave it.
    QCOMPARE(rows.integer("MealCategoryID"_L1), 3);
    QCOMPARE(rows.text("Name"_L1), u"Stews"_qs);
    QCOMPARE(categories(), u"Bread\nFruit\nStews"_qs);

    Recordset &bodies = data().rsBody;
    bodies.open({0});
    bodies.addNew();
    for (const auto column : {"Weight"_L1, "Breast"_L1, "Waist"_L1, "Hips"_L1})
        bodies.set(column, Value(70.5));
    bodies.set("BodyID"_L1, Value(17));
    bodies.set("DateMeasured"_L1, Value(QDate(2026, 7, 22)));
    bodies.set("Measurement"_L1, Value(u"M"_qs));
    bodies.update();
    QCOMPARE(bodies.integer("BodyID"_L1), 17);
    QCOMPARE(m_journal->row("select * from Body"), u"17|46225|70.5|70.5|70.5|70.5|M"_qs);
}

// Two programs that change different fields of one record don't undo each other.
void tst_recordset::updatesOnlyWhatWasSet()
{
    Recordset &meal = data().rsMeal;
    meal.open({1});
    meal.set("Calories"_L1, Value(260));
    m_journal->exec("update Meal set Unit = 'half' where MealID = 1");
    meal.update();
    QCOMPARE(m_journal->row("select Unit, Calories, Fat from Meal"), u"half|260|2"_qs);
    QCOMPARE(meal.integer("Calories"_L1), 260);
    meal.update(); // nothing set: nothing written
    QCOMPARE(meal.text("Unit"_L1), u"piece"_qs);
}

void tst_recordset::cancelLeavesTheRecord()
{
    Recordset &rows = data().rsMealCategory;
    rows.open({1});
    rows.set("Name"_L1, Value(u"Rolls"_qs));
    QCOMPARE(rows.text("Name"_L1), u"Rolls"_qs);
    rows.cancelUpdate();
    QCOMPARE(rows.text("Name"_L1), u"Bread"_qs);
    rows.update();
    rows.addNew();
    rows.set("Name"_L1, Value(u"Rolls"_qs));
    rows.reopen({2}); // closing discards it too
    QVERIFY(!rows.isChangePending());
    rows.update();
    QCOMPARE(categories(), u"Bread\nFruit"_qs);
}

void tst_recordset::deletes()
{
    Recordset &rows = data().rsMealCategory;
    rows.open({2});
    rows.remove();
    QVERIFY(rows.isEof());
    QCOMPARE(categories(), u"Bread"_qs);
    QVERIFY_THROWS_EXCEPTION(std::logic_error, rows.remove());
}

void tst_recordset::reusesNoIdentifier()
{
    Recordset &rows = data().rsMealCategory;
    rows.open({2});
    rows.remove();
    rows.addNew();
    rows.set("Name"_L1, Value(u"Soups"_qs));
    rows.update();
    QCOMPARE(rows.integer("MealCategoryID"_L1), 3);
}

void tst_recordset::tellsRefusalsApart()
{
    Recordset &rows = data().rsMealCategory;
    rows.open({2});
    rows.set("Name"_L1, Value(u"BREAD"_qs));
    QCOMPARE(refusalOf([&] { rows.update(); }), StoreError::Kind::NameTaken);
    QVERIFY(rows.isChangePending()); // until the caller cancels it
    rows.cancelUpdate();
    rows.set("Name"_L1, Value());
    QCOMPARE(refusalOf([&] { rows.update(); }), StoreError::Kind::Other);

    rows.reopen({1});
    QCOMPARE(refusalOf([&] { rows.remove(); }), StoreError::Kind::ReferenceRefused);
    QVERIFY(!rows.isEof());
    Recordset &meal = data().rsMeal;
    meal.open({1});
    meal.set("MealCategoryID"_L1, Value(9));
    QCOMPARE(refusalOf([&] { meal.update(); }), StoreError::Kind::ReferenceRefused);
    meal.cancelUpdate();
    QCOMPARE(categories(), u"Bread\nFruit"_qs);

    // Once what refers to it is gone, the category can go.
    meal.remove();
    rows.remove();
    QCOMPARE(categories(), u"Fruit"_qs);

    QCOMPARE(refusalOf([&] { data().run("delete from Common"); }), StoreError::Kind::Other);
    QCOMPARE(refusalOf([&] { data().run("insert into Common select * from Common"); }),
             StoreError::Kind::NameTaken);
}

void tst_recordset::goneRecordIsTold()
{
    Recordset &rows = data().rsMealCategory;
    rows.open({2});
    rows.set("Name"_L1, Value(u"Nuts"_qs));
    m_journal->exec("delete from MealCategory where MealCategoryID = 2");
    QCOMPARE(refusalOf([&] { rows.update(); }), StoreError::Kind::Gone);
    QCOMPARE(categories(), u"Bread"_qs);
}

void tst_recordset::holdsNoLock()
{
    data().rsMealCategorySorted.open();
    data().rsMeal.open({1});
    Connection other(m_journal->path());
    other.exec("begin exclusive; insert into MealCategory (Name) values ('Nuts'); commit");
    QCOMPARE(categories(), u"Bread\nFruit\nNuts"_qs);
}

void tst_recordset::textsSurvive()
{
    const QString text =
        u"\"quoted\" 'too'; drop table Meal\r\nsecond line \0 behind a nul 😀 Äß"_qs;
    Recordset &notes = data().rsUserNote;
    notes.open({0});
    notes.addNew();
    notes.set("UserNoteID"_L1, Value(1));
    notes.set("DateFrom"_L1, Value(QDate(2026, 7, 1)));
    notes.set("DateTo"_L1, Value(QDate(2026, 7, 1)));
    notes.set("NoteText"_L1, Value(text));
    notes.update();
    notes.reopen({1});
    QCOMPARE(notes.text("NoteText"_L1), text);
}

void tst_recordset::onlyEditorsWrite()
{
    Recordset &rows = data().rsMealSorted;
    rows.open({1});
    QVERIFY_THROWS_EXCEPTION(std::logic_error, rows.addNew());
    QVERIFY_THROWS_EXCEPTION(std::logic_error, rows.set("Name"_L1, Value(u"a"_qs)));
    QVERIFY_THROWS_EXCEPTION(std::logic_error, rows.remove());
    Recordset &closed = data().rsMeal;
    QVERIFY_THROWS_EXCEPTION(std::logic_error, closed.addNew());
}

QTEST_APPLESS_MAIN(tst_recordset)
#include "tst_recordset.moc"
