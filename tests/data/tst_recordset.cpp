// Updatable result sets: changing, being refused; names, which compare and sort in memory as in the
// index; identifiers of new rows.
#include "data/identifiers.h"
#include "data/namecollation.h"
#include "testjournal.h"

#include <QTest>

using namespace Qt::Literals;

// A column is one of the catalogue's: a misspelt name does not compile.
static_assert(!std::is_invocable_v<decltype(&Recordset::value), Recordset, const char *> &&
              !std::is_invocable_v<decltype(&Recordset::value), Recordset, QLatin1StringView> &&
              !std::is_invocable_v<decltype(&Recordset::value), Recordset, QString>);

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
        meal.set(schema::Meal::Calories, Value(260));
        m_journal->exec("update Meal set Unit = 'half' where MealID = 1");
        meal.update();
        meal.update(); // nothing set: nothing written
        QCOMPARE(m_journal->row("select Unit, Calories, Fat from Meal"), u"half|260|2"_qs);
    }

    // What was stored and then undone by the transaction is forgotten in memory too.
    void isPutBack()
    {
        Recordset &meal = data().rsMeal;
        meal.open({1});
        const Recordset::Rows before = meal.rows();
        {
            WriteTransaction undone(data().Con);
            meal.set(schema::Meal::Unit, Value(u"half"_qs));
            meal.update();
            QCOMPARE(meal.text(schema::Meal::Unit), u"half"_qs);
        }
        meal.restore(before);
        QCOMPARE(meal.text(schema::Meal::Unit), u"piece"_qs);
        meal.set(schema::Meal::Unit, Value(u"slice"_qs));
        meal.update(); // as it stands in the file
        QCOMPARE(m_journal->row("select Unit from Meal"), u"slice"_qs);
    }

    void removesTheCurrentRow()
    {
        constexpr Command all = {"All",
                                 "select * from MealCategory order by Name desc",
                                 {},
                                 &schema::MealCategory::table,
                                 &schema::MealCategory::MealCategoryID};
        m_journal->exec("insert into MealCategory (Name) values ('Soups'), ('Nuts')");
        Recordset categories(data().Con, all);
        categories.open();
        categories.moveNext();
        categories.remove(); // Nuts
        QStringList left;
        for (; !categories.isEof(); categories.moveNext())
            left << categories.text(schema::MealCategory::Name);
        QCOMPARE(left, (QStringList{u"Fruit"_qs, u"Bread"_qs}));
        QCOMPARE(m_journal->row("select group_concat(Name) from"
                                " (select Name from MealCategory order by Name desc)"),
                 u"Soups,Fruit,Bread"_qs);
    }

    void tellsRefusalsApart()
    {
        categories().open({2});
        categories().set(schema::MealCategory::Name, Value());
        QCOMPARE(refusalOf([&] { categories().update(); }), StoreError::Kind::Other);

        categories().reopen({1});
        QCOMPARE(refusalOf([&] { categories().remove(); }), StoreError::Kind::ReferenceRefused);
        Recordset &meal = data().rsMeal;
        meal.open({1});
        meal.set(schema::Meal::MealCategoryID, Value(9));
        QCOMPARE(refusalOf([&] { meal.update(); }), StoreError::Kind::ReferenceRefused);
        meal.cancelUpdate();

        // Once what refers to it is gone, the category can go.
        meal.remove();
        categories().set(schema::MealCategory::Name, Value(u"Rolls"_qs));
        m_journal->exec("delete from MealCategory where MealCategoryID = 1");
        QCOMPARE(refusalOf([&] { categories().update(); }), StoreError::Kind::Gone);
        QCOMPARE(m_journal->row("select Name from MealCategory"), u"Fruit"_qs);
    }

    void oneName()
    {
        for (const auto &pair :
             {std::pair(u"apple"_qs, u"Apple"_qs), std::pair(u"Äpfel"_qs, u"äpfel"_qs),
              std::pair(u"Crème"_qs, u"cre\u0300me"_qs), std::pair(u"БОРЩ"_qs, u"борщ"_qs)}) {
            QCOMPARE(compareNames(pair.first, pair.second), 0);
            addCategory(pair.first);
            QCOMPARE(refusalOf([&] { addCategory(pair.second); }), StoreError::Kind::NameTaken);
        }
    }

    void theDatabaseOrdersAlike()
    {
        // An accent stands behind its plain letter, letters decide before accents, and blanks
        // stand before letters. Every pair is tried: an order that isn't one spoils the index.
        const QStringList names = {
            u"½ l"_qs,      u"_a"_qs,      u"_é"_qs,     u"Apfel"_qs,        u"Äpfel"_qs,
            u"Apfelmus"_qs, u"apple"_qs,   u"Banana"_qs, u"Éclair"_qs,       u"Edamer"_qs,
            u"Ice tea"_qs,  u"Iceberg"_qs, u"Rice"_qs,   u"Rice, boiled"_qs, u"Z"_qs,
            u"ωa"_qs,       u"борщ"_qs,    u"中"_qs};
        m_journal->exec("delete from Meal; delete from MealCategory");
        for (qsizetype i = 0; i < names.size(); ++i) {
            addCategory(names[(i * 5) % names.size()]);
            for (qsizetype j = 0; j < i; ++j)
                QCOMPARE(compareNames(names[j], names[i]), -1);
        }
        QCOMPARE(m_journal->rows("select Name from MealCategory order by Name"), names);
        QCOMPARE(m_journal->row("select count(*) from MealCategory where Name = 'ÄPFEL'"), u"1"_qs);
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
    void addCategory(const QString &name)
    {
        categories().reopen({0});
        categories().addNew();
        categories().set(schema::MealCategory::Name, Value(name));
        categories().update();
    }

    std::unique_ptr<TestJournal> m_journal;
};

QTEST_APPLESS_MAIN(tst_recordset)
#include "tst_recordset.moc"
