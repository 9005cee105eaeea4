// Steps of the user taken back and done again: the rows are always those of that moment.
#include "data/identifiers.h"
#include "data/steps.h"
#include "data/undohistory.h"
#include "testjournal.h"

#include <QRandomGenerator>
#include <QTest>

using namespace Qt::Literals;

class tst_undo : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_history.reset(); }
    void goesBackAndForth();
    void identifiersAreNotHandedOutTwice();
    void refusesWhatNoLongerFits_data();
    void refusesWhatNoLongerFits();
    void waitsForTheFile();
    void keepsWhatARefusedActionLeft();
    void recordsTransactionsAsOneStep();

private:
    void record(const QString &description, const std::function<void()> &action)
    {
        const UndoHistory::Recording recording(*m_history, description, QDate(2026, 7, 22));
        action();
    }
    // All that the file holds but the counters.
    QStringList contents()
    {
        QStringList rows = m_journal->rows("select weight, metabolicRate, Measurement from Common");
        for (const char *table : {"MealCategory", "Meal", "Exercise", "MealConsume",
                                  "ExercisePerform", "Body", "UserNote"})
            rows += m_journal->rows((std::string("select * from ") + table).c_str());
        return rows;
    }
    QString next(Direction direction)
    {
        const UndoHistory::Step *step = m_history->next(direction);
        return step ? step->description : QString();
    }

    std::unique_ptr<TestJournal> m_journal;
    std::unique_ptr<UndoHistory> m_history;
};

void tst_undo::init()
{
    m_journal = std::make_unique<TestJournal>();
    m_journal->exec(
        "PRAGMA synchronous=OFF;"
        "insert into MealCategory (Name) values ('Fruit'), ('Vacant');"
        "insert into Meal values (1, 1, 'Apple', 'piece', 1, null, 30, 1, 1, 1, 9, 9, 9),"
        " (2, 1, 'Pear', 'piece', 1, null, 40, 1, 1, 1, 9, 9, 9);"
        "insert into Exercise values (1, 'Rowing', 'lap', null, 7, 8, 1);"
        "insert into MealConsume values (-1, 1, 46225, 0.5, 1), (-2, 2, 46225, 0.25, 2);"
        "insert into Body values (-1, 46225, 70.5, 100, 90, 95, 'M');"
        "insert into UserNote values (-1, 46225, 46226, 'Naïve')");
    m_history = std::make_unique<UndoHistory>(m_journal->data->Con);
}

// Hundreds of actions of all kinds, some of several statements, and a walk to and fro among them.
void tst_undo::goesBackAndForth()
{
    const char *const actions[] = {
        "insert into MealConsume select max(MealConsumeID) + 1, 1, 46225, 0.3, 1.2345"
        " from MealConsume",
        "update MealConsume set Qty = Qty + 0.5 where MealConsumeID ="
        " (select max(MealConsumeID) from MealConsume)",
        "delete from MealConsume where MealConsumeID = (select max(MealConsumeID) from MealConsume)"
        " and MealConsumeID > 0",
        "insert into Meal (MealCategoryID, Name, Unit, Calories, Fat, Carbohydrate, Protein, FatBC,"
        " CarbohydrateBC, ProteinBC) select 1, 'Meal ' || (max(MealID) + 1), 'g', 1, 2, 3, 4, 5, 6,"
        " 7 from Meal",
        "delete from Meal where MealID = (select max(MealID) from Meal where MealID > 2)",
        "update Meal set Name = Name || '!', Calories = Calories + 0.0001 where MealID = 1",
        "update Common set weight = weight + 1, metabolicRate = 60;"
        "update Exercise set CaloriesConsume = CaloriesConsumeBase * 1.1;"
        "update Body set Weight = round(Weight * 2.2), Measurement = 'I'",
        "update Body set Weight = Weight + 1, Measurement = 'M'",
        "insert into UserNote select max(UserNoteID) + 10, 46300, 46300, 'x' || char(10) || 'y'"
        " from UserNote",
        "delete from UserNote",
        "delete from Body",
        "insert or ignore into Body values"
        " (7, 46225, 1e300, 0, -0.0001, 1, '')"};
    auto &random = *QRandomGenerator::global();
    QList<QStringList> moments{contents()};
    QStringList descriptions;
    for (int i = 0; i < 300; ++i) {
        const char *sql = actions[random.bounded(int(std::size(actions)))];
        record(QString::number(i), [&] {
            WriteTransaction transaction(m_journal->data->Con);
            m_journal->exec(sql);
            transaction.commit();
        });
        const bool hasStep = next(Direction::Backward) == QString::number(i);
        QCOMPARE(hasStep, contents() != moments.last()); // nothing done, nothing to take back
        if (!hasStep)
            continue;
        moments << contents();
        descriptions << QString::number(i);
    }
    QVERIFY(moments.size() > 100);
    qsizetype at = moments.size() - 1;
    const auto walk = [&](Direction direction) {
        at += direction == Direction::Backward ? -1 : 1;
        const UndoHistory::Step step = m_history->take(direction);
        QCOMPARE(step.description, descriptions[direction == Direction::Backward ? at : at - 1]);
        QCOMPARE(contents(), moments[at]);
    };
    while (at > 0 && !QTest::currentTestFailed())
        walk(Direction::Backward);
    QVERIFY(!m_history->next(Direction::Backward));
    while (at < moments.size() - 1 && !QTest::currentTestFailed())
        walk(Direction::Forward);
    QVERIFY(!m_history->next(Direction::Forward));
    for (int i = 0; i < 50 && !QTest::currentTestFailed(); ++i)
        walk(at == moments.size() - 1 || random.bounded(2) == 0 ? Direction::Backward
                                                                : Direction::Forward);
    // It is in the file, and a new action ends what could be done again.
    Connection other(m_journal->path());
    QCOMPARE(queryRows(other, "select * from MealConsume"),
             m_journal->rows("select * from MealConsume"));
    record(u"new"_s, [&] { m_journal->data->run("update Common set weight = 1234"); });
    QVERIFY(!m_history->next(Direction::Forward));
}

void tst_undo::identifiersAreNotHandedOutTwice()
{
    deData &data = *m_journal->data;
    const auto addNote = [&] {
        const int id = NewUserNoteID(data);
        record(u"note"_s, [&] {
            data.Con.write("insert into UserNote values (?, 46400, 46400, 'n')", {Value(id)});
        });
        return id;
    };
    const auto addCategory = [&] {
        record(u"category"_s,
               [&] { data.run("insert into MealCategory (Name) values ('New one')"); });
        return m_journal->row("select max(MealCategoryID) from MealCategory").toInt();
    };
    const int note = addNote();
    const int category = addCategory();
    // Parameters in between, whose row the counters are in.
    record(u"parameters"_s, [&] { data.run("update Common set weight = 90"); });
    for (int i = 0; i < 3; ++i)
        m_history->take(Direction::Backward);
    QCOMPARE(m_journal->row("select weight from Common"), "70");
    const int second = addNote();
    QVERIFY(second > note);
    QVERIFY(addCategory() > category);
    record(u"parameters"_s, [&] { data.run("update Common set weight = 90"); });
    QVERIFY(addNote() > second);
    for (int i = 0; i < 4; ++i)
        m_history->take(Direction::Backward);
    QCOMPARE(m_journal->row("select count(*) from UserNote"), "1");
    QVERIFY(addNote() > second + 1);
    QVERIFY_THROWS_EXCEPTION(std::logic_error, record(u"x"_s, [&] { NewBodyID(data); }));
}

void tst_undo::refusesWhatNoLongerFits_data()
{
    QTest::addColumn<QByteArray>("action");
    QTest::addColumn<QByteArray>("meanwhile");
    const auto add = [](const char *name, const char *action, const char *meanwhile) {
        QTest::newRow(name) << QByteArray(action) << QByteArray(meanwhile);
    };
    const char *const change = "update MealConsume set Qty = 5 where MealConsumeID = -1";
    add("changed", change, "update MealConsume set Qty = 6 where MealConsumeID = -1");
    add("deleted", change, "delete from MealConsume where MealConsumeID = -1");
    add("added and changed", "insert into MealConsume values (1, 1, 46225, 0.5, 1)",
        "update MealConsume set ConsumeTime = 0.6 where MealConsumeID = 1");
    add("referred to", "insert into MealCategory values (9, 'New one')",
        "update Meal set MealCategoryID = 9");
    add("refers to nothing", "delete from MealConsume", "delete from Meal where MealID = 2");
    add("name taken", "delete from MealCategory where Name = 'Vacant'",
        "insert into MealCategory (Name) values ('VACANT')");
    add("key taken", "delete from UserNote",
        "insert into UserNote values (-1, 46000, 46000, 'other')");
    // The first of its rows would fit.
    add("the last of several", "delete from Body; update Common set weight = 80",
        "update Common set weight = 81");
}

// As a whole, whatever fits of it; and then the step is out of the way of the one before.
void tst_undo::refusesWhatNoLongerFits()
{
    QFETCH(QByteArray, action);
    QFETCH(QByteArray, meanwhile);
    record(u"before"_s, [&] { m_journal->data->run("update Common set metabolicRate = 61"); });
    record(u"action"_s, [&] {
        WriteTransaction transaction(m_journal->data->Con);
        m_journal->exec(action);
        transaction.commit();
    });
    {
        Connection other(m_journal->path());
        other.exec(meanwhile);
    }
    const QStringList before = contents();
    QVERIFY_THROWS_EXCEPTION(StoreError, m_history->take(Direction::Backward));
    QCOMPARE(contents(), before);
    QVERIFY(!m_journal->data->Con.isInTransaction());
    QVERIFY(!m_history->next(Direction::Forward));
    QCOMPARE(m_history->take(Direction::Backward).description, "before");
    QCOMPARE(m_journal->row("select metabolicRate from Common"), "59");
}

// What is refused for a while is there still.
void tst_undo::waitsForTheFile()
{
    m_journal->exec("PRAGMA busy_timeout=10");
    record(u"action"_s, [&] { m_journal->data->run("delete from Body"); });
    {
        Connection other(m_journal->path());
        const WriteTransaction transaction(other);
        for (int i = 0; i < 2; ++i)
            QVERIFY_THROWS_EXCEPTION(StoreError, m_history->take(Direction::Backward));
    }
    m_history->take(Direction::Backward);
    QCOMPARE(m_journal->row("select count(*) from Body"), "1");
    {
        Connection other(m_journal->path());
        const WriteTransaction transaction(other);
        QVERIFY_THROWS_EXCEPTION(StoreError, m_history->take(Direction::Forward));
    }
    m_history->take(Direction::Forward);
    QCOMPARE(m_journal->row("select count(*) from Body"), "0");
}

// An action that keeps its first statement where the second is refused, and one that keeps nothing.
void tst_undo::keepsWhatARefusedActionLeft()
{
    const QStringList before = contents();
    for (const Refusal refusal : {Refusal::KeepsEarlierSteps, Refusal::UndoesAll}) {
        const auto act = [&] {
            runAsOne(m_journal->data->Con,
                     {[&] { m_journal->data->run("delete from Body"); },
                      [&] { m_journal->data->run("delete from MealCategory"); }},
                     refusal);
        };
        QVERIFY_THROWS_EXCEPTION(StoreError, record(u"action"_s, act));
        const bool keeps = refusal == Refusal::KeepsEarlierSteps;
        QCOMPARE(next(Direction::Backward), keeps ? u"action"_s : QString());
        if (keeps)
            m_history->take(Direction::Backward);
        QCOMPARE(contents(), before);
    }
}

void tst_undo::recordsTransactionsAsOneStep()
{
    const QStringList before = contents();
    record(u"outer"_s, [&] {
        m_journal->data->run("update MealConsume set Qty = 5");
        record(u"inner"_s, [&] { m_journal->data->run("update MealConsume set Qty = 6"); });
        m_journal->data->run("delete from MealConsume");
    });
    m_journal->data->run("update Body set Waist = 1"); // of no recording
    QCOMPARE(m_history->take(Direction::Backward).tables,
             (std::vector<const schema::Table *>{&schema::MealConsume::table}));
    m_journal->data->run("update Body set Waist = 90");
    QCOMPARE(contents(), before);
    m_history->take(Direction::Forward);
    QCOMPARE(m_journal->row("select count(*) from MealConsume"), "0");
    // The oldest are forgotten at last, and not before there are many.
    for (size_t i = 0; i < UndoHistory::mostSteps + 5; ++i)
        record(u"%1"_s.arg(i),
               [&] { m_journal->data->run("update Common set weight = weight+1"); });
    size_t steps = 0;
    for (; m_history->next(Direction::Backward); ++steps)
        m_history->take(Direction::Backward);
    QCOMPARE(steps, UndoHistory::mostSteps);
    QCOMPARE(m_journal->row("select weight from Common"), "75");
}

QTEST_GUILESS_MAIN(tst_undo)
#include "tst_undo.moc"
