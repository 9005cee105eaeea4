// The files of an export, byte by byte, and what is left of one that ends early.
#include "chart/daybalance.h"
#include "exchange/csvreader.h"
#include "exchange/exporttables.h"
#include "exportedfiles.h"
#include "faultyfiles.h"
#include "progress/progressseries.h"

#include <QRandomGenerator>
#include <QTest>

#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/resource.h>
#include <unistd.h>
#endif

using namespace Qt::Literals;

namespace {

const QDate first(2026, 7, 20);

/// The records of a file without a mark.
QList<QStringList> parsed(const QByteArray &bytes)
{
    QList<QStringList> records;
    for (const CsvRecord &record : readCsv(QString::fromUtf8(bytes), ','))
        records += record.cells;
    return records;
}

} // namespace

class tst_export : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { faultyfiles::install(); }
    void exactBytes();
    void everyTable();
    void formulasAreTextsInSpreadsheets();
    void timesReadBackOrStayAsTheyAre();
    void periodHasItsBounds();
    void oddRowsAreInTheWholeJournal();
    void daysEqualTheWindows();
    void oneStateOfTheJournal();
    void neverOverAnother();
    void cancelledLeavesNothing();
    void refusedLeavesNothing();
    void diskFull();
};

void tst_export::exactBytes()
{
    ExportJournal journal;
    journal.exec(
        "insert into UserNote values (1, 46223, 46225, 'Zwei Zeilen:\r\n\"so\"; \U0001F600'),"
        " (2, 46226, 46226, ''), (-3, 46227, 46227, ' a,b ')");
    QCOMPARE(journal.exported("UserNote.csv"),
             QByteArray("UserNoteID,DateFrom,DateTo,NoteText\r\n"
                        "1,2026-07-20,2026-07-22,\"Zwei Zeilen:\r\n\"\"so\"\"; \U0001F600\"\r\n"
                        "2,2026-07-23,2026-07-23,\"\"\r\n"
                        "-3,2026-07-24,2026-07-24,\" a,b \"\r\n"));
    QCOMPARE(journal.exported("UserNote.csv", true),
             QByteArray("\xEF\xBB\xBFUserNoteID;DateFrom;DateTo;NoteText\r\n"
                        "1;20.07.2026;22.07.2026;\"Zwei Zeilen:\r\n\"\"so\"\"; \U0001F600\"\r\n"
                        "2;23.07.2026;23.07.2026;\"\"\r\n"
                        "-3;24.07.2026;24.07.2026; a,b \r\n"));
    // Null is nothing.
    QVERIFY(
        journal.exported("Meal.csv")
            .endsWith("\r\n1,1,\"Brot; "
                      "\"\"frisch\"\"\",Roggenbrot,Scheibe,1.5,,90,1,18,3,9.5,70.25,10.75\r\n"));
    QVERIFY(journal.exported("Meal.csv", true)
                .endsWith("\r\n1;1;\"Brot; \"\"frisch\"\"\";Roggenbrot;Scheibe;1,5;;90;1;18;3;9,5;"
                          "70,25;10,75\r\n"));
    journal.exec("insert into MealConsume values (7, 1, 46225, 0.5, 1.25);"
                 "insert into ExercisePerform values (8, 1, 46225, 0.5, 0.75, 30);"
                 "insert into Body values (9, 46225, 80.25, 100, 0, 95, 'M'),"
                 " (10, 46226, 177, 40, 35, 37, 'I')");
    QVERIFY(journal.exported("MealConsume.csv", true)
                .endsWith("\r\n7;22.07.2026;12:00;1;Roggenbrot;\"Brot; \"\"frisch\"\"\";1,25;"
                          "Scheibe;12;88;13;113\r\n"));
    QVERIFY(journal.exported("ExercisePerform.csv")
                .endsWith("\r\n8,2026-07-22,12:00,18:00,1,Gehen,30,min,122\r\n"));
    QVERIFY(journal.exported("Body.csv")
                .endsWith("\r\n9,2026-07-22,80.25,kg,100,0,95,cm,M\r\n10,2026-07-23,177,lb,40,35,"
                          "37,inch,I\r\n"));
    QVERIFY(journal.exported("Common.csv").endsWith("\r\n70,kg,59,M,1,1,1,1,2026-01-01\r\n"));
    QCOMPARE(journal.exported("Days.csv", true),
             QByteArray("\xEF\xBB\xBF"
                        "Date;Eaten (kcal);Fat (kcal);Carbohydrate (kcal);Protein (kcal);"
                        "Burnt (kcal);Activities (kcal);Background (kcal);Balance (kcal);"
                        "ProgressBalance (kcal);Weight;WeightUnit;Breast;Waist;Hips;GirthUnit\r\n"
                        "22.07.2026;113;12;88;13;1538;122;1416;-1425;-1425;80,25;kg;100;;95;cm\r\n"
                        "23.07.2026;;;;;;;;;;177;lb;40;35;37;inch\r\n"));
}

// Each has a file with as many cells in a row as it has headers, and of an empty one the headers.
void tst_export::everyTable()
{
    ExportJournal journal;
    for (const ExportTable &table : exportTables()) {
        const QList<QStringList> records =
            parsed(journal.exported(qPrintable(table.file + u".csv"_qs)));
        const QString count = u"select count(*) from %1"_qs.arg(QLatin1String(table.file));
        QCOMPARE(records.size(), journal.row(qPrintable(count)).toInt() + 1);
        for (const QStringList &record : records)
            QCOMPARE(record.size(), qsizetype(table.columns.size()));
        // Its rows come as they are found: nothing is gathered to be sorted.
        for (const char *condition : {"true", table.condition}) {
            const QString plan = u"explain query plan select "_qs + table.values + u" from "_qs +
                                 table.from + u" where "_qs + (condition ? condition : "true") +
                                 u" order by "_qs + table.order;
            const QString steps = journal.row(qPrintable(plan));
            QVERIFY2(!steps.isEmpty() && !steps.contains(u"TEMP B-TREE"_qs), qPrintable(steps));
        }
    }
}

void tst_export::formulasAreTextsInSpreadsheets()
{
    ExportJournal journal;
    journal.exec("update Meal set Name = '=cmd|'' /C calc''!A0', Unit = '-1';"
                 "update Exercise set Name = '@SUM(A1)', Unit = 'a=b';"
                 "insert into MealConsume values (-5, 1, 46225, 0.5, '+1+1'),"
                 " (-4, 1, 46226, 0.5, -2)");
    const QByteArray meals = journal.exported("MealConsume.csv", true);
    QVERIFY(meals.contains("\r\n-5;22.07.2026;12:00;1;'=cmd|' /C calc'!A0;"));
    QVERIFY(meals.contains(";'+1+1;'-1;"));
    QVERIFY(meals.contains(";-2;'-1;")); // a number is none
    QVERIFY(journal.exported("Exercise.csv", true).contains("1;'@SUM(A1);a=b;"));
    QVERIFY(journal.exported("Exercise.csv").contains("1,@SUM(A1),a=b,"));
}

void tst_export::timesReadBackOrStayAsTheyAre()
{
    const LocaleText german(QLocale(u"de_DE"_qs));
    for (const auto &[fraction, plain, local] : {
             std::tuple(0.0, "00:00", "00:00"),
             {dayFraction(QTime(23, 59)), "23:59", "23:59"},
             {0.123456789, "0.123456789", "02:58"},
             {0.9999, "0.9999", "00:00"}, // as the windows show it
             {1.0, "1", "1"},
             {-0.25, "-0.25", "-0,25"},
         }) {
        QCOMPARE(CsvFormat::plain().cell(Value(fraction), CellKind::Time), QByteArray(plain));
        QCOMPARE(CsvFormat::spreadsheet(german).cell(Value(fraction), CellKind::Time),
                 QByteArray(local));
    }
    for (QTime time(0, 0); time < QTime(23, 59); time = time.addSecs(60)) {
        const QByteArray cell = CsvFormat::plain().cell(Value(time), CellKind::Time);
        QCOMPARE(QTime::fromString(QString::fromLatin1(cell), u"HH:mm"_qs), time);
    }
}

void tst_export::periodHasItsBounds()
{
    ExportJournal journal;
    for (int day = 46222; day <= 46226; ++day) {
        const QString rows = u"insert into MealConsume values (%1, 1, %1, 0, 1);"
                             "insert into ExercisePerform values (%1, 1, %1, 0, 0.5, 1);"
                             "insert into Body values (%1, %1, 70, 1, 1, 1, 'M')"_qs.arg(day);
        journal.exec(qPrintable(rows));
    }
    journal.exec("insert into UserNote values (1, 46200, 46223, 'reaches in'),"
                 " (2, 46225, 46300, 'reaches out'), (3, 46100, 46400, 'reaches over'),"
                 " (4, 46200, 46222, 'before'), (5, 46226, 46226, 'after'),"
                 " (6, 46224, 'x', 'no day')");
    const ExportPeriod period = {first, QDate(2026, 7, 22)};
    QCOMPARE(dayNumber(period.dateFrom), 46223);
    for (const char *file : {"MealConsume.csv", "ExercisePerform.csv", "Body.csv", "Days.csv"}) {
        const QByteArray rows = journal.exported(file, false, period);
        QCOMPARE(rows.count("\r\n"), 4);
        QVERIFY(rows.contains("2026-07-20,") && rows.contains("2026-07-22,"));
    }
    QStringList notes;
    for (const QStringList &record : parsed(journal.exported("UserNote.csv", false, period)).mid(1))
        notes += record.last();
    QCOMPARE(notes.join(u'|'), u"reaches over|reaches in|reaches out"_qs);
    QCOMPARE(journal.exported("Meal.csv", false, period), journal.exported("Meal.csv"));
    const ExportPeriod day = {first, first};
    QCOMPARE(journal.exported("Days.csv", false, day).count("\r\n"), 2);
}

// Nothing of what is stored is lost, whatever it is.
void tst_export::oddRowsAreInTheWholeJournal()
{
    ExportJournal journal;
    journal.exec("PRAGMA foreign_keys = OFF;"
                 "insert into MealConsume values (1099511627776, 99, 46225, 1.75, 'much'),"
                 " (2, 1, 'today', 0.5, 9e999), (3, 1, 109000000, 0.5, 1),"
                 " (4, 1, 46225.5, 'noon', 1), (5, 1, -700000, 0.5, 1)");
    const QByteArray meals = journal.exported("MealConsume.csv");
    QCOMPARE(parsed(meals).size(), 6);
    QVERIFY(meals.contains("\r\n1099511627776,2026-07-22,1.75,99,,,much,,,,,\r\n"));
    QVERIFY(meals.contains("\r\n2,today,12:00,1,"));
    QVERIFY(meals.contains("\r\n3,109000000,12:00,1,"));
    QVERIFY(meals.contains("\r\n4,46225.5,noon,1,"));
    QVERIFY(meals.contains("\r\n5,-700000,12:00,1,"));
    QCOMPARE(parsed(journal.exported("Days.csv")).size(), 1); // none of them is on a day
}

// Of the main window's chart and of general progress.
void tst_export::daysEqualTheWindows()
{
    ExportJournal journal;
    journal.exec("update Common set metabolicRate = 59.9637");
    journal.session->readCommonParameters();
    const double rate = journal.session->parameters().metabolicRate;
    QRandomGenerator random(3);
    constexpr int days = 60;
    for (int id = 1; id <= 900; ++id) {
        const Value day(first.addDays(random.bounded(days)));
        journal.data->Con.write("insert into MealConsume values (?, 1, ?, 0.5, ?)",
                                {Value(id), day, Value(random.bounded(40) * 0.25)});
        if (id % 3 == 0)
            journal.data->Con.write("insert into ExercisePerform values (?, 1, ?, 0.5, 0.6, ?)",
                                    {Value(id), day, Value(random.bounded(90) * 0.5)});
        if (id % 30 == 0)
            journal.data->Con.write("insert into Body values (?, ?, ?, 90, 80, 95, 'M')",
                                    {Value(id), day, Value(70 + id * 0.01)});
    }
    const QList<QStringList> records = parsed(journal.exported("Days.csv"));
    const progress::DaySeries series =
        progress::loadSeries(*journal.data, {first, first.addDays(days - 1)}, rate);
    qsizetype row = 0;
    for (int i = 0; i < days; ++i) {
        const progress::Day &day = series.at(qint16(i + 1));
        const bool isMeasured = day.source == progress::BodySource::Measured;
        if (!day.hasCalories && !isMeasured)
            continue;
        const QStringList &record = records.at(++row);
        QCOMPARE(record[0], first.addDays(i).toString(Qt::ISODate));
        QCOMPARE(record[10].toFloat(), isMeasured ? day.weight : 0.0F);
        if (!day.hasCalories)
            continue;
        daychart::DayData chart{.backgroundRate = rate / 60};
        Recordset &meals = journal.data->rsMealConsumeSorted;
        for (meals.reopen({Value(first.addDays(i))}); !meals.isEof(); meals.moveNext())
            chart.add(daychart::MealItem{
                0, {}, commands::consumed.map([&](auto c) { return int(meals.number(c)); })});
        Recordset &done = journal.data->rsExercisePerformSorted;
        for (done.reopen({Value(first.addDays(i))}); !done.isEof(); done.moveNext())
            chart.add(daychart::ActivityItem{0, {}, {}, int(done.number(commands::sCalories))});
        const daychart::DayFigures figures = daychart::dayFigures(chart);
        QList<qint64> expected{figures.eaten()};
        for (const qint64 calories : figures.byNutrient)
            expected << calories;
        expected << figures.burnt() << figures.activities << figures.background << figures.balance()
                 << day.calories;
        for (qsizetype column = 0; column < expected.size(); ++column)
            QCOMPARE(record[column + 1].toLongLong(), expected[column]);
    }
    QCOMPARE(records.size(), row + 1);
    QVERIFY(row > days / 2);
}

// What is stored meanwhile is in none of the files: it waits, or is refused.
void tst_export::oneStateOfTheJournal()
{
    ExportJournal journal;
    journal.exec("insert into UserNote values (1, 46225, 46225, 'first')");
    Connection other(journal.path());
    int refusals = 0;
    const auto path = exportJournal(journal.data->Con, journal.order(), [&](double) {
        try {
            other.exec("PRAGMA busy_timeout = 1");
            other.write("insert into Body values (7, 46225, 70, 1, 1, 1, 'M')", {});
        } catch (const StoreError &error) {
            refusals += error.kind() == StoreError::Kind::Busy ? 1 : 0;
        }
        return true;
    });
    QVERIFY(path && refusals > 0);
    QVERIFY(!journal.data->Con.isInTransaction());
    QCOMPARE(fileBytes(*path + u"/Body.csv"_qs).count("\r\n"), 1);
    QCOMPARE(other.write("insert into Body values (7, 46225, 70, 1, 1, 1, 'M')", {}), 1);
}

void tst_export::neverOverAnother()
{
    ExportJournal journal;
    journal.exported("Meal.csv");
    const QString name = u"Corvana Export 2026-07-22 12-30-45"_qs;
    QCOMPARE(journal.outNames(), QStringList{name});
    setFileBytes(journal.out() + u'/' + name + u"/Meal.csv"_qs, "mine");
    journal.exported("Meal.csv");
    journal.exported("Meal.csv");
    QCOMPARE(journal.outNames(), (QStringList{name, name + u" (2)"_qs, name + u" (3)"_qs}));
    QCOMPARE(fileBytes(journal.out() + u'/' + name + u"/Meal.csv"_qs), QByteArray("mine"));
    QCOMPARE(QDir(journal.out() + u'/' + name).entryList(QDir::Files).size(), 9);
}

void tst_export::cancelledLeavesNothing()
{
    ExportJournal journal;
    journal.exec("with recursive n(i) as (select 1 union all select i + 1 from n where i < 3000)"
                 " insert into MealConsume select i, 1, 46000 + i % 200, 0.5, 1 from n");
    int calls = 0;
    double last = 0;
    QVERIFY(exportJournal(journal.data->Con, journal.order(), [&](double share) {
        const bool isOrdered = share >= last && share <= 1;
        last = share;
        ++calls;
        return isOrdered;
    }));
    QVERIFY(calls > 6 && last > 0.9);
    QDir(journal.out()).removeRecursively();
    QDir().mkpath(journal.out());
    for (int n = 1; n <= calls; ++n) {
        int call = 0;
        QVERIFY(
            !exportJournal(journal.data->Con, journal.order(), [&](double) { return ++call < n; }));
        QCOMPARE(call, n);
        QCOMPARE(journal.outNames(), QStringList());
        QVERIFY(!journal.data->Con.isInTransaction());
    }
}

void tst_export::refusedLeavesNothing()
{
    ExportJournal journal;
    const auto exportTo = [&](const QString &folder) {
        ExportOrder order = journal.order();
        order.folder = folder;
        exportJournal(journal.data->Con, order, [](double) { return true; });
    };
    for (const QString &nowhere : {journal.out() + u"/none"_qs, journal.path()})
        QVERIFY_THROWS_EXCEPTION(ExportError, exportTo(nowhere));
#ifdef Q_OS_UNIX
    if (geteuid() != 0) { // may write anywhere
        QFile::setPermissions(journal.out(), QFile::ReadOwner | QFile::ExeOwner);
        QVERIFY_THROWS_EXCEPTION(ExportError, exportTo(journal.out()));
        QFile::setPermissions(journal.out(),
                              QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
#endif
    faultyfiles::arm(faultyfiles::Fault::Busy, 1, true);
    QVERIFY_THROWS_EXCEPTION(StoreError, exportTo(journal.out()));
    QVERIFY(faultyfiles::disarm());
    QCOMPARE(journal.outNames(), QStringList());
    QVERIFY(!journal.data->Con.isInTransaction());
    // A damaged page ends it in the middle.
    journal.exec("insert into UserNote values (1, 46225, 46225, 'a')");
    journal.damagePageOf("UserNote");
    QVERIFY_THROWS_EXCEPTION(StoreError, exportTo(journal.out()));
    QCOMPARE(journal.outNames(), QStringList());
    QVERIFY(!journal.data->Con.isInTransaction());
}

// A limit on the size of a file stands for the disk: no write goes beyond it.
void tst_export::diskFull()
{
#ifdef Q_OS_UNIX
    ExportJournal journal;
    journal.exec("with recursive n(i) as (select 1 union all select i + 1 from n where i < 3000)"
                 " insert into MealConsume select i, 1, 46000 + i % 200, 0.5, 1 from n");
    const auto ignore = std::signal(SIGXFSZ, SIG_IGN);
    rlimit usual = {};
    QCOMPARE(getrlimit(RLIMIT_FSIZE, &usual), 0);
    // Past the first files, within the first write of the long one, behind it.
    for (const rlim_t room : {10u, 30'000u, 100'000u}) {
        const rlimit limited = {room, usual.rlim_max};
        QCOMPARE(setrlimit(RLIMIT_FSIZE, &limited), 0);
        QString why;
        try {
            exportJournal(journal.data->Con, journal.order(), [](double) { return true; });
        } catch (const ExportError &error) {
            why = QString::fromUtf8(error.what());
        }
        setrlimit(RLIMIT_FSIZE, &usual);
        QVERIFY(!why.isEmpty());
        QCOMPARE(journal.outNames(), QStringList());
        QVERIFY(!journal.data->Con.isInTransaction());
    }
    std::signal(SIGXFSZ, ignore);
    QVERIFY(journal.exported("MealConsume.csv").size() > 100'000);
#else
    QSKIP("no limit on files here");
#endif
}

QTEST_GUILESS_MAIN(tst_export)
#include "tst_export.moc"
