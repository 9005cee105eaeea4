// The named commands: which rows they select and change, and by which indexes.
#include "journal/consumptionfigures.h"
#include "settings/units.h"
#include "testjournal.h"

#include <QRandomGenerator>
#include <QTest>

using namespace Qt::Literals;

namespace {

QDate july(int day)
{
    return QDate(2026, 7, day);
}

QString daysIn(const char *sql, TestJournal &journal)
{
    QStringList days;
    for (const QString &day : journal.rows(sql))
        days += dateOfDayNumber(day.toInt()).toString(u"MMdd"_qs);
    return days.join(u' ');
}

} // namespace

class tst_commands : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_journal.reset(); }

    void catalogueRows();
    void mealsOfADay();
    void mealFiguresEqualTheEditors();
    void activitiesOfADay();
    void selectsByDate_data();
    void selectsByDate();
    void textSelectsLikeTyped_data();
    void textSelectsLikeTyped();
    void deletesOneRow();
    void balanceOfDays();
    void daysWithCalories();
    void firstAndLastDay();
    void contiguityFindsNothing();
    void recalculatesBodies();
    void recalculatesActivities();
    void movesDates();
    void deletesSampleRowsAlone();
    void selectionsUseIndexes();
    void parametersAreCounted();

private:
    using Rows = Recordset deData::*;

    deData &data() { return *m_journal->data; }
    /// The values of a column, in the rows' order.
    QString selected(Recordset &rows, QLatin1StringView column,
                     std::initializer_list<Value> parameters);

    std::unique_ptr<TestJournal> m_journal;
};

// Days are of July 2026; day 0 of the schema's count would be 46204 for the first of July.
void tst_commands::init()
{
    m_journal = std::make_unique<TestJournal>();
    m_journal->exec("insert into MealCategory (Name) values ('Soups'), ('bread'), ('Fruit');"
                    "insert into Meal values"
                    " (1, 2, 'rye bread', 'slice', 1, 0.5, 90, 1, 18, 3, 10, 70, 10),"
                    " (2, 2, 'Bagel', 'piece', 1, 1, 250, 2, 50, 9, 2.5, 3.5, -2.5),"
                    " (3, 3, 'Apple', 'piece', 1, 1, 52, 0, 12, 0, 0.3333, 51.2, 0.4667);"
                    "insert into Exercise values"
                    " (1, 'running', 'minute', 30, 12.25, 10, 1),"
                    " (2, 'Billiards', 'hour', 1, 100, 100, 0);"
                    "insert into MealConsume values"
                    " (-1, 1, 46224, 0.5, 2), (1, 2, 46225, 0.75, 1), (2, 1, 46225, 0.25, 1.5),"
                    " (3, 3, 46226, 0.25, 2);"
                    "insert into ExercisePerform values"
                    " (-1, 2, 46223, 0.5, 0.6, 2), (1, 1, 46225, 0.75, 0.8, 2),"
                    " (2, 2, 46225, 0.25, 0.3, 0.5);"
                    "insert into Body values"
                    " (-1, 46220, 70, 90, 80, 95, 'M'), (1, 46225, 71.3, 91, 81, 96, 'M'),"
                    " (2, 46225, 154, 36, 32, 37.5, 'I'), (3, 46230, 155, 36.2, 32.1, 38, 'I');"
                    "insert into UserNote values (-1, 46210, 46212, 'early'),"
                    " (1, 46220, 46225, 'middle'), (2, 46230, 46230, 'one day');");
}

QString tst_commands::selected(Recordset &rows, QLatin1StringView column,
                               std::initializer_list<Value> parameters)
{
    QStringList found;
    for (rows.reopen(parameters); !rows.isEof(); rows.moveNext())
        found += rows.text(column);
    return found.join(u' ');
}

void tst_commands::catalogueRows()
{
    QCOMPARE(selected(data().rsMealCategorySorted, "Name"_L1, {}), u"bread Fruit Soups"_qs);
    QCOMPARE(selected(data().rsMealCategory, "Name"_L1, {3}), u"Fruit"_qs);
    QCOMPARE(selected(data().rsMeal, "Name"_L1, {2}), u"Bagel"_qs);
    QCOMPARE(selected(data().rsMealSorted, "mealid"_L1, {2}), u"2 1"_qs);
    QCOMPARE(selected(data().rsMealForCategory, "MealID"_L1, {2}), u"2 1"_qs);
    QCOMPARE(selected(data().rsMealForCategory, "MealID"_L1, {1}), QString());
    QCOMPARE(selected(data().rsExercise, "Unit"_L1, {1}), u"minute"_qs);
    QCOMPARE(selected(data().rsExerciseSorted, "ExerciseID"_L1, {}), u"2 1"_qs);
    QCOMPARE(selected(data().rsMealConsume, "mealcategoryid"_L1, {3}), u"3"_qs);
    QCOMPARE(selected(data().rsMealConsume, "MealID"_L1, {-1}), u"1"_qs);
}

void tst_commands::mealsOfADay()
{
    Recordset &meals = data().rsMealConsumeSorted;
    QCOMPARE(selected(meals, "MealConsumeID"_L1, {july(22)}), u"2 1"_qs);
    // Each nutrient is rounded, half to even, before they are added: 15 + 105 + 15 and 2 + 4 - 2.
    QCOMPARE(selected(meals, "sFat"_L1, {july(22)}), u"15 2"_qs);
    QCOMPARE(selected(meals, "sCarbohydrate"_L1, {july(22)}), u"105 4"_qs);
    QCOMPARE(selected(meals, "sProtein"_L1, {july(22)}), u"15 -2"_qs);
    QCOMPARE(selected(meals, "sCalories"_L1, {july(22)}), u"135 4"_qs);
    QCOMPARE(selected(meals, "Name"_L1, {july(23)}), u"Apple"_qs);
    QCOMPARE(selected(meals, "MealConsumeID"_L1, {july(24)}), QString());

    // A consumption whose meal is missing, as a damaged journal may have it, is not shown.
    m_journal->exec("PRAGMA foreign_keys = OFF; delete from Meal where MealID = 1");
    QCOMPARE(selected(meals, "MealConsumeID"_L1, {july(22)}), u"1"_qs);
    QCOMPARE(selected(data().rsMealConsume, "MealConsumeID"_L1, {2}), QString());
}

// The list and the chart show what the editor showed, for whatever was typed.
void tst_commands::mealFiguresEqualTheEditors()
{
    QRandomGenerator random(3);
    const auto any = [&](int limit) {
        return Currency::fromTenThousandths(random.bounded(2 * limit) - limit);
    };
    SQLite::Statement meal(data().Con.database(), "update Meal set FatBC = ?, CarbohydrateBC = ?,"
                                                  " ProteinBC = ? where MealID = 3");
    SQLite::Statement consumption(data().Con.database(),
                                  "update MealConsume set Qty = ? where MealConsumeID = 3");
    Recordset &meals = data().rsMealConsumeSorted;
    WriteTransaction transaction(data().Con);
    for (int i = 0; i < 3000; ++i) {
        // Steps of a quarter and of a half meet exact halves often.
        const Currency quantity =
            i % 2 ? any(500'000) : Currency::fromTenThousandths(2500) * (i % 41);
        const Currency parts[] = {any(3'000'000), Currency::fromTenThousandths(5000) * (i % 97),
                                  any(9'000)};
        for (int part = 0; part < 3; ++part)
            bindValue(meal, part + 1, Value(parts[part]));
        bindValue(consumption, 1, Value(quantity));
        meal.exec();
        meal.reset();
        consumption.exec();
        consumption.reset();

        const ConsumptionFigures figures = consumptionFigures(
            quantity, parts[0].toDouble(), parts[1].toDouble(), parts[2].toDouble());
        meals.reopen({july(23)});
        QCOMPARE(meals.integer("sFat"_L1), figures.fat);
        QCOMPARE(meals.integer("sCarbohydrate"_L1), figures.carbohydrate);
        QCOMPARE(meals.integer("sProtein"_L1), figures.protein);
        QCOMPARE(meals.integer("sCalories"_L1), figures.total());
    }
}

void tst_commands::activitiesOfADay()
{
    Recordset &activities = data().rsExercisePerformSorted;
    QCOMPARE(selected(activities, "ExercisePerformID"_L1, {july(22)}), u"2 1"_qs);
    QCOMPARE(selected(activities, "Name"_L1, {july(22)}), u"Billiards running"_qs);
    QCOMPARE(selected(activities, "sCalories"_L1, {july(22)}), u"50 24"_qs); // 24.5 to even
    QCOMPARE(selected(activities, "ExercisePerformID"_L1, {july(21)}), QString());
    QCOMPARE(selected(data().rsExercisePerform, "Qty"_L1, {-1}), u"2"_qs);
}

void tst_commands::selectsByDate_data()
{
    QTest::addColumn<Rows>("rows");
    QTest::addColumn<QString>("column");
    QTest::addColumn<QList<int>>("parameters"); // up to two days of July, then an identifier
    QTest::addColumn<QString>("ids");
    const auto add = [](const char *name, Rows rows, const char *column, QList<int> parameters,
                        const char *ids) {
        QTest::newRow(name) << rows << QString::fromLatin1(column) << parameters
                            << QString::fromLatin1(ids);
    };
    add("bodies from their day", &deData::rsBodySorted, "BodyID", {17}, "-1 1 2 3");
    add("bodies from the day after", &deData::rsBodySorted, "BodyID", {18}, "1 2 3");
    add("bodies after the last", &deData::rsBodySorted, "BodyID", {28}, "");
    add("bodies between, ends count", &deData::rsGPBody, "BodyID", {17, 22}, "-1 1 2");
    add("bodies between others", &deData::rsGPBody, "BodyID", {18, 21}, "");
    add("another body of the day", &deData::rsBodyCheck, "BodyID", {22, 1}, "2");
    add("bodies of the day, new one", &deData::rsBodyCheck, "BodyID", {22, 0}, "1 2");
    add("no other body of the day", &deData::rsBodyCheck, "BodyID", {27, 3}, "");

    add("notes up to their last day", &deData::rsUserNoteSorted, "UserNoteID", {22}, "1 2");
    add("notes behind their last day", &deData::rsUserNoteSorted, "UserNoteID", {23}, "2");

    // The note "middle" goes from the 17th to the 22nd.
    add("note inside the period", &deData::rsUserNoteCheck, "UserNoteID", {16, 23, 0}, "1");
    add("note around the period", &deData::rsUserNoteCheck, "UserNoteID", {18, 19, 0}, "1");
    add("note shares its first day", &deData::rsUserNoteCheck, "UserNoteID", {14, 17, 0}, "1");
    add("note shares its last day", &deData::rsUserNoteCheck, "UserNoteID", {22, 26, 0}, "1");
    add("note beside the period", &deData::rsUserNoteCheck, "UserNoteID", {23, 26, 0}, "");
    add("note of the same days", &deData::rsUserNoteCheck, "UserNoteID", {17, 22, 0}, "1");
    add("not the note itself", &deData::rsUserNoteCheck, "UserNoteID", {17, 22, 1}, "");
    add("note of one day", &deData::rsUserNoteCheck, "UserNoteID", {27, 27, 0}, "2");

    add("notes that intersect, all ways", &deData::rsGPNotes, "UserNoteID", {22, 27}, "1 2");
    add("notes inside", &deData::rsGPNotes, "UserNoteID", {1, 31}, "-1 1 2");
    add("notes around", &deData::rsGPNotes, "UserNoteID", {19, 20}, "1");
    add("no notes", &deData::rsGPNotes, "UserNoteID", {23, 26}, "");
}

void tst_commands::selectsByDate()
{
    QFETCH(Rows, rows);
    QFETCH(QString, column);
    QFETCH(QList<int>, parameters);
    Recordset &found = data().*rows;
    const QByteArray name = column.toLatin1();
    const QLatin1StringView id(name);
    switch (parameters.size()) {
    case 1:
        QTEST(selected(found, id, {july(parameters[0])}), "ids");
        break;
    case 2: {
        const bool isPeriod = &found != &data().rsBodyCheck;
        const Value second = isPeriod ? Value(july(parameters[1])) : Value(parameters[1]);
        QTEST(selected(found, id, {july(parameters[0]), second}), "ids");
        break;
    }
    default:
        QTEST(selected(found, id, {july(parameters[0]), july(parameters[1]), parameters[2]}),
              "ids");
    }
}

void tst_commands::textSelectsLikeTyped_data()
{
    QTest::addColumn<QDate>("day");
    QTest::addColumn<QString>("bodies");
    QTest::newRow("five digits") << july(18) << u"1 2 3"_qs;
    // As texts, "9999" would stand behind all of them.
    QTest::newRow("four digits") << dateOfDayNumber(9999) << u"-1 1 2 3"_qs;
    QTest::newRow("negative") << dateOfDayNumber(-50000) << u"-1 1 2 3"_qs;
    QTest::newRow("six digits") << dateOfDayNumber(100000) << QString();
}

void tst_commands::textSelectsLikeTyped()
{
    QFETCH(QDate, day);
    for (const Value &from :
         {Value(day), Value(double(dayNumber(day))), Value(QString::number(dayNumber(day)))})
        QTEST(selected(data().rsBodySorted, "BodyID"_L1, {from}), "bodies");
    // Declared as text or as dates, a period holds the same days.
    const Value end = Value(dateOfDayNumber(200000));
    data().rschkCaloriesDays.reopen({day, end});
    data().rschkMinMaxdate.reopen({day, end});
    QCOMPARE(data().rschkCaloriesDays.integer("days"_L1) == 0,
             data().rschkMinMaxdate.isNull("minDt"_L1));
}

void tst_commands::deletesOneRow()
{
    QCOMPARE(data().run(commands::MealConsumeDelete, {Value(2)}), 1);
    QCOMPARE(data().run(commands::MealConsumeDelete, {Value(u"-1"_qs)}), 1);
    QCOMPARE(data().run(commands::MealConsumeDelete, {Value(2)}), 0);
    QCOMPARE(m_journal->row("select group_concat(MealConsumeID) from MealConsume"), u"1,3"_qs);
    QCOMPARE(data().run(commands::BodyDelete, {Value(qint64(3))}), 1);
    QCOMPARE(m_journal->row("select group_concat(BodyID) from Body"), u"-1,1,2"_qs);
}

void tst_commands::balanceOfDays()
{
    // The meals' own calories, not the sum of the three nutrients, and nothing is rounded:
    // 20 July -200; 21 July 180; 22 July 250 + 135 - 24.5 - 50.
    Recordset &balance = data().rsGPCalories;
    QCOMPARE(selected(balance, "calories"_L1, {july(20), july(22)}), u"-200 180 310.5"_qs);
    QCOMPARE(selected(balance, "curDate"_L1, {july(20), july(31)}), u"46223 46224 46225 46226"_qs);
    QCOMPARE(selected(balance, "calories"_L1, {july(24), july(31)}), QString());
    // Two equal rows count twice.
    m_journal->exec("insert into MealConsume values (4, 3, 46226, 0.25, 2)");
    QCOMPARE(selected(balance, "calories"_L1, {july(23), july(23)}), u"208"_qs);
}

void tst_commands::daysWithCalories()
{
    Recordset &count = data().rschkCaloriesDays;
    QCOMPARE(selected(count, "days"_L1, {july(20), july(23)}), u"4"_qs);
    QCOMPARE(selected(count, "days"_L1, {july(22), july(22)}), u"1"_qs); // meals and activities
    QCOMPARE(selected(count, "days"_L1, {july(24), july(31)}), u"0"_qs);
}

void tst_commands::firstAndLastDay()
{
    Recordset &ends = data().rschkMinMaxdate;
    ends.open({july(1), july(31)});
    QCOMPARE(ends.date("minDt"_L1), july(17)); // of a body
    QCOMPARE(ends.date("maxDt"_L1), july(27));
    ends.reopen({july(18), july(26)});
    QCOMPARE(ends.date("minDt"_L1), july(20)); // of an activity
    QCOMPARE(ends.date("maxDt"_L1), july(23)); // of a meal
    ends.reopen({july(1), july(10)});
    QCOMPARE(ends.rowCount(), size_t(1));
    QVERIFY(ends.isNull("minDt"_L1));
}

// Each measurement finds itself within any threshold: well-meant repairs would end this.
void tst_commands::contiguityFindsNothing()
{
    for (const int threshold : {0, 1, 4, 5, 1000})
        QCOMPARE(selected(data().rschkBodyContig, "BodyID"_L1, {july(1), july(31), threshold}),
                 QString());
    // The statement itself is alive.
    QCOMPARE(selected(data().rschkBodyContig, "BodyID"_L1, {july(1), july(31), -1}),
             u"-1 1 2 3"_qs);
}

void tst_commands::recalculatesBodies()
{
    const auto bodies = [&] {
        return m_journal->rows("select BodyID, Weight, Breast, Waist, Hips, Measurement from Body"
                               " order by BodyID");
    };
    const QStringList before = bodies();
    const std::initializer_list<Value> factors = {Value(units::LbToKg), Value(units::InchToCm)};

    // Weight to tenths, girths to whole centimetres; rows in metric units stay as they are.
    QCOMPARE(data().run(commands::RecalculateBodyToMetric, factors), 2);
    const QStringList metric = {before[0], before[1], u"2|69.9|91|81|94|M"_qs,
                                u"3|70.3|91|81|96|M"_qs};
    QCOMPARE(bodies(), metric);
    QCOMPARE(data().run(commands::RecalculateBodyToMetric, factors), 0);

    // The weight is cut, not rounded (157.187 and 154.98 pounds), girths go to tenths.
    QCOMPARE(data().run(commands::RecalculateBodyToImperial, factors), 4);
    QCOMPARE(bodies(), (QStringList{u"-1|154|35.7|31.7|37.7|I"_qs, u"1|157|36.1|32.1|38.1|I"_qs,
                                    u"2|154|36.1|32.1|37.3|I"_qs, u"3|154|36.1|32.1|38.1|I"_qs}));
    QCOMPARE(data().run(commands::RecalculateBodyToImperial, factors), 0);
}

void tst_commands::recalculatesActivities()
{
    data().run(commands::RecalculateWeightDependent, {Value(0.1f)});
    SQLite::Statement stored(data().Con.database(),
                             "select CaloriesConsume from Exercise order by ExerciseID");
    QVERIFY(stored.executeStep());
    // The factor arrives in single precision, the product is taken in double.
    QCOMPARE(stored.getColumn(0).getDouble(), 10 * double(0.1f));
    QVERIFY(stored.executeStep());
    QCOMPARE(stored.getColumn(0).getDouble(), 100.0);
}

void tst_commands::movesDates()
{
    data().run(commands::RecalcBodyDates, {Value(-50)});
    data().run(commands::RecalcMealDates, {Value(10)});
    data().run(commands::RecalcExerciseDates, {Value(10)});
    data().run(commands::RecalcUserNoteDates, {Value(10)});
    // All measurements, but of the other tables only the sample rows.
    QCOMPARE(daysIn("select DateMeasured from Body order by BodyID", *m_journal),
             u"0528 0602 0602 0607"_qs);
    QCOMPARE(daysIn("select ConsumeDate from MealConsume order by MealConsumeID", *m_journal),
             u"0731 0722 0722 0723"_qs);
    QCOMPARE(
        daysIn("select PerformDate from ExercisePerform order by ExercisePerformID", *m_journal),
        u"0730 0722 0722"_qs);
    QCOMPARE(daysIn("select DateFrom from UserNote union all select DateTo from UserNote"
                    " where UserNoteID < 0",
                    *m_journal),
             u"0717 0717 0727 0719"_qs);
}

void tst_commands::deletesSampleRowsAlone()
{
    const char *catalogues = "select (select count(*) from MealCategory), (select count(*) from "
                             "Meal), (select count(*) from Exercise), (select count(*) from "
                             "Common)";
    for (int round = 0; round < 2; ++round) {
        for (const char *sql : {"delete from Body where BodyId<0",
                                "delete from ExercisePerform where ExercisePerformID<0",
                                "delete from MealConsume where MealConsumeID<0",
                                "delete from UserNote where UserNoteId<0"})
            QCOMPARE(data().run(sql), round == 0 ? 1 : 0);
        QCOMPARE(m_journal->row(catalogues), u"3|3|2|1"_qs);
        QCOMPARE(m_journal->row("select (select count(*) from Body), (select count(*) from "
                                "ExercisePerform), (select count(*) from MealConsume), (select "
                                "count(*) from UserNote)"),
                 u"3|2|3|2"_qs);
    }
}

// A journal of ten years answers as fast as one of a week.
void tst_commands::selectionsUseIndexes()
{
    using namespace commands;
    for (const Command *command : {&MealCategory,
                                   &MealCategorySorted,
                                   &commands::Meal,
                                   &MealSorted,
                                   &MealForCategory,
                                   &Exercise,
                                   &ExerciseSorted,
                                   &MealConsumeSorted,
                                   &MealConsume,
                                   &MealConsumeDelete,
                                   &ExercisePerformSorted,
                                   &ExercisePerform,
                                   &BodySorted,
                                   &Body,
                                   &BodyCheck,
                                   &BodyDelete,
                                   &UserNoteSorted,
                                   &UserNote,
                                   &UserNoteCheck,
                                   &RecalcExerciseDates,
                                   &RecalcMealDates,
                                   &RecalcUserNoteDates,
                                   &chkMinMaxdate,
                                   &chkCaloriesDays,
                                   &GPBody,
                                   &GPCalories,
                                   &GPNotes}) {
        const std::string explain = std::string("explain query plan ") + command->sql;
        const QStringList plan = m_journal->rows(explain.c_str());
        QVERIFY(!plan.isEmpty());
        for (const QString &line : plan) {
            const QString step = line.section(u'|', 3);
            const bool scansTable = step.startsWith(u"SCAN "_qs) && !step.contains(u"INDEX"_qs) &&
                                    !step.contains(u"subquery"_qs);
            QVERIFY2(!scansTable, qPrintable(QString::fromLatin1(command->name) + u": "_qs + step));
        }
    }
}

void tst_commands::parametersAreCounted()
{
    QVERIFY_THROWS_EXCEPTION(std::logic_error, data().rsMeal.open({}));
    QVERIFY_THROWS_EXCEPTION(std::logic_error, data().rsMeal.open({1, 2}));
    QVERIFY_THROWS_EXCEPTION(std::logic_error, data().rsBodyCheck.open({july(1)}));
}

QTEST_APPLESS_MAIN(tst_commands)
#include "tst_commands.moc"
