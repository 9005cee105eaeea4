// The named commands: which rows they select and compute, and by which indexes.
#include "journal/consumptionfigures.h"
#include "testjournal.h"

#include <QTest>

using namespace Qt::Literals;

namespace {

QDate july(int day)
{
    return QDate(2026, 7, day);
}

/// The values of a column, in the rows' order.
QString selected(Recordset &rows, const schema::Column &column,
                 std::initializer_list<Value> parameters)
{
    QStringList found;
    for (rows.reopen(parameters); !rows.isEof(); rows.moveNext())
        found += rows.text(column);
    return found.join(u' ');
}

} // namespace

class tst_commands : public QObject
{
    Q_OBJECT

private slots:
    // Day 46203 of the schema's count is the last of June 2026.
    void init()
    {
        m_journal = std::make_unique<TestJournal>();
        m_journal->exec("begin;"
                        "insert into MealCategory (Name) values ('Soups'), ('bread'), ('Fruit');"
                        "insert into Meal values"
                        " (1, 2, 'rye bread', 'slice', 1, 0.5, 90, 1, 18, 3, 10, 70, 10),"
                        " (2, 2, 'Bagel', 'piece', 1, 1, 250, 2, 50, 9, 2.5, 3.5, -2.5),"
                        " (3, 3, 'Apple', 'piece', 1, 1, 52, 0, 12, 0, 0.3333, 51.2, 0.4667);"
                        "insert into Exercise values (1, 'running', 'minute', 30, 12.25, 10, 1),"
                        " (2, 'Billiards', 'hour', 1, 100, 100, 0);"
                        "insert into MealConsume values (-1, 1, 46224, 0.5, 2),"
                        " (1, 2, 46225, 0.75, 1), (2, 1, 46225, 0.25, 1.5), (3, 3, 46226, 0.25, 2);"
                        "insert into ExercisePerform values (-1, 2, 46223, 0.5, 0.6, 2),"
                        " (1, 1, 46225, 0.75, 0.8, 2), (2, 2, 46225, 0.25, 0.3, 0.5);"
                        "insert into Body values"
                        " (-1, 46220, 70, 90, 80, 95, 'M'), (1, 46225, 71.3, 91, 81, 96, 'M'),"
                        " (2, 46225, 154, 36, 32, 37, 'I'), (3, 46230, 155, 36, 32, 38, 'I');"
                        "insert into UserNote values (-1, 46210, 46212, 'early'),"
                        " (1, 46220, 46225, 'middle'), (2, 46230, 46230, 'one day');"
                        "commit");
    }

    void figuresOfADay()
    {
        // Half to even: 24.5.
        QCOMPARE(selected(data().rsExercisePerformSorted, commands::sCalories, {july(22)}),
                 u"50 24"_qs);
        // A consumption whose meal is missing, as a damaged journal may have it, is not shown.
        m_journal->exec("PRAGMA foreign_keys = OFF; delete from Meal where MealID = 1");
        QCOMPARE(
            selected(data().rsMealConsumeSorted, schema::MealConsume::MealConsumeID, {july(22)}),
            u"1"_qs);
    }

    // The list and the chart show what the editor showed, for whatever was typed.
    void mealFiguresEqualTheEditors()
    {
        Recordset &meals = data().rsMealConsumeSorted;
        WriteTransaction transaction(data().Con);
        for (qint64 i = 0; i < 3000; ++i) {
            // Steps of a quarter and of a half meet exact halves often.
            const auto exact = Currency::fromTenThousandths;
            const Currency quantity = exact(2500 * (i % 41));
            const Nutrients<Currency> parts{exact(5000 * (i % 97)), exact(777 * i),
                                            exact(-12345 * (i % 89))};
            m_journal->exec(u"update Meal set FatBC = %1, CarbohydrateBC = %2, ProteinBC = %3;"
                            " update MealConsume set Qty = %4"_qs
                                .arg(parts[Nutrient::Fat].toText(),
                                     parts[Nutrient::Carbohydrate].toText(),
                                     parts[Nutrient::Protein].toText(), quantity.toText())
                                .toLatin1());
            const auto figures = consumptionFigures(
                quantity, parts.map([](Currency part) { return part.toDouble(); }));
            meals.reopen({july(23)});
            QCOMPARE(meals.integer(commands::sFat), figures[Nutrient::Fat]);
            QCOMPARE(meals.integer(commands::sCalories), figures.sum());
        }
    }

    void selectsByDate()
    {
        // The ends count, and the body itself does not stand in its own way.
        QCOMPARE(selected(data().rsGPBody, schema::Body::BodyID, {july(17), july(22)}),
                 u"-1 1 2"_qs);
        QCOMPARE(selected(data().rsBodyCheck, schema::Body::BodyID, {july(22), 1}), u"2"_qs);

        const auto notes = [&](Recordset &rows, std::initializer_list<Value> parameters) {
            return selected(rows, schema::UserNote::UserNoteID, parameters);
        };
        // The note 1 goes from the 17th to the 22nd.
        const std::tuple<int, int, const char16_t *> periods[] = {
            {16, 23, u"1"}, {18, 19, u"1"}, {14, 17, u"1"},   {22, 26, u"1"},
            {23, 26, u""},  {27, 27, u"2"}, {22, 27, u"1 2"}, {1, 31, u"-1 1 2"}};
        for (const auto &[first, last, expected] : periods) {
            const QString ids = QString::fromUtf16(expected);
            QCOMPARE(notes(data().rsUserNoteCheck, {july(first), july(last), 0}), ids);
            QCOMPARE(notes(data().rsGPNotes, {july(first), july(last)}), ids);
        }
        QCOMPARE(notes(data().rsUserNoteCheck, {july(17), july(22), 1}), QString()); // itself
    }

    void balanceOfDays()
    {
        // The meals' own calories, not the sum of the three nutrients, and nothing is rounded:
        // 20 July -200; 21 July 180; 22 July 250 + 135 - 24.5 - 50. Equal rows count each.
        m_journal->exec("insert into MealConsume values (4, 3, 46226, 0.25, 2)");
        QCOMPARE(selected(data().rsGPCalories, commands::calories, {july(20), july(23)}),
                 u"-200 180 310.5 208"_qs);
    }

    // A journal of ten years answers as fast as one of a week.
    void selectionsUseIndexes()
    {
        using namespace commands;
        for (const Command *command :
             {&MealForCategory, &MealAll, &MealConsumeSorted, &ExercisePerformSorted, &RecentMeals,
              &RecentActivities, &DaysWithEntries, &BodySorted, &BodyCheck, &UserNoteSorted,
              &UserNoteCheck, &chkMinMaxdate, &chkCaloriesDays, &GPBody, &GPCalories, &GPNotes}) {
            // Two walk the notes in their order rather than sort them: their index holds both
            // days, so that only the notes found are read. One walks all meals by their names, two
            // the latest entries.
            const bool walks = command == &UserNoteSorted || command == &GPNotes ||
                               command == &MealAll || command == &RecentMeals ||
                               command == &RecentActivities;
            const std::string explain = std::string("explain query plan ") + command->sql;
            for (const QString &line : m_journal->rows(explain.c_str())) {
                const QString step = line.section(u'|', 3);
                const bool scans = step.startsWith(u"SCAN "_qs) && !step.contains(u"subquery"_qs);
                QVERIFY2(!walks || !step.contains(u"TEMP B-TREE"_qs), qPrintable(step));
                QVERIFY2(!scans || (walks && step.contains(u" INDEX "_qs)), qPrintable(step));
            }
        }
    }

private:
    deData &data() { return *m_journal->data; }

    std::unique_ptr<TestJournal> m_journal;
};

QTEST_APPLESS_MAIN(tst_commands)
#include "tst_commands.moc"
