// Files that come in: what they are recognized as, what is stored of them, and what is refused.
#include "data/identifiers.h"
#include "exchange/importstore.h"
#include "exchange/importtext.h"
#include "exportedfiles.h"
#include "faultyfiles.h"

#include <QRandomGenerator>
#include <QTest>

using namespace Qt::Literals;

namespace {

const QString meals = u"select C.Name, M.Name, Unit, quote(DefaultQty), quote(Increment),"
                      " quote(Calories), quote(Fat), quote(Carbohydrate), quote(Protein),"
                      " quote(FatBC), quote(CarbohydrateBC), quote(ProteinBC)"
                      " from Meal M join MealCategory C using (MealCategoryID) order by M.Name"_s;

QStringList contents(TestJournal &journal)
{
    QStringList rows;
    for (const QString &query :
         {meals, u"select Name from MealCategory order by Name"_s,
          u"select Name, Unit, quote(DefaultQty), quote(CaloriesConsume),"
          " quote(CaloriesConsumeBase), WeightDependent from Exercise order by Name"_s,
          u"select ConsumeDate, quote(ConsumeTime), Name, quote(Qty) from MealConsume"
          " join Meal using (MealID) order by 1, 2, 3, 4"_s,
          u"select PerformDate, quote(timeBeg), quote(timeEnd), Name, quote(Qty)"
          " from ExercisePerform join Exercise using (ExerciseID) order by 1, 2, 3, 4, 5"_s,
          u"select DateMeasured, quote(Weight), quote(Breast), quote(Waist), quote(Hips),"
          " Measurement from Body order by 1"_s,
          u"select DateFrom, DateTo, quote(NoteText) from UserNote order by 1"_s})
        rows += journal.rows(qPrintable(query));
    return rows;
}

/// A journal into which files are imported.
class Importing : public TestJournal
{
public:
    explicit Importing(const char *locale = "en_US")
        : TestJournal(QLocale(QLatin1String(locale)))
    {
    }

    ImportPlace place() const { return {session->text(), clock.now().date()}; }
    ImportFile read(const QByteArray &bytes) const
    {
        const QString path = folder.filePath(u"file.csv"_s);
        setFileBytes(path, bytes);
        return readImportFile(path, place());
    }
    FilePlan import(const std::vector<ImportFile> &files,
                    ExistingRecords existing = ExistingRecords::Kept)
    {
        const ImportPlan plan = planImport(*session, files, existing);
        storeImport(*session, files, plan, u"Importing"_s);
        return plan.sum();
    }
    FilePlan import(const QByteArray &bytes, ExistingRecords existing = ExistingRecords::Kept)
    {
        return import(std::vector{read(bytes)}, existing);
    }
    std::vector<ImportFile> readFolder(const QString &path) const
    {
        std::vector<ImportFile> files;
        for (const QString &file : tableFilesIn(path))
            files.push_back(readImportFile(file, place()));
        return files;
    }
};

QString faultsIn(const FilePlan &plan)
{
    QStringList lines;
    for (const ImportFault &fault : plan.faults)
        lines += u"%1 %2"_s.arg(fault.line).arg(fault.reason);
    return lines.join(u'\n');
}

QString countsIn(const FilePlan &plan)
{
    return u"%1 %2 %3 %4"_s.arg(plan.added)
        .arg(plan.updated)
        .arg(plan.existing)
        .arg(plan.faults.size());
}

/// Odd names, exact numbers and every table; `places` are the decimals of the numbers.
void fill(TestJournal &journal, int places)
{
    QRandomGenerator random(7);
    const auto number = [&] {
        const double any = random.generateDouble() * 1000 - 200;
        return Value(places < 0 ? any : roundHalfEven(any, places));
    };
    const auto time = [&](int from, int to) {
        const QTime minute = QTime(0, 0).addSecs(60 * random.bounded(from, to));
        return places < 0 && random.bounded(9) == 0 ? Value(random.generateDouble() * 0.4)
                                                    : Value(minute);
    };
    Connection &store = journal.data->Con;
    WriteTransaction transaction(store);
    const QStringList odd = {u"=1+1"_s,        u" blanks "_s,      u"\"quoted\""_s,
                             u"a,b;c\td"_s,    u"line\r\nbreak"_s, u"\u00C4pfel \U0001F34F"_s,
                             u"'apostrophe"_s, u"@x\r\u2028\t"_s};
    store.write("insert into MealCategory (Name) values ('None in it')", std::vector<Value>());
    for (const QString &name : odd) {
        store.write("insert into MealCategory (Name) values (?)", {Value(name)});
        store.write(
            "insert into Exercise (Name, Unit, DefaultQty, CaloriesConsume,"
            " CaloriesConsumeBase, WeightDependent) values (?, ?, ?, ?, ?, ?)",
            {Value(name), Value(name), Value(), number(), number(), Value(random.bounded(2))});
        for (int i = 0; i < 10; ++i)
            store.write("insert into Meal (MealCategoryID, Name, Unit, DefaultQty, Increment,"
                        " Calories, Fat, Carbohydrate, Protein, FatBC, CarbohydrateBC, ProteinBC)"
                        " select max(MealCategoryID), ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?"
                        " from MealCategory",
                        {Value(name + QString::number(i)), Value(name), number(),
                         i % 3 == 0 ? Value() : number(), number(), number(), number(), number(),
                         number(), number(), number()});
    }
    for (int id = 1; id <= 300; ++id) {
        store.write("insert into MealConsume values (?, ?, ?, ?, ?)",
                    {Value(id), Value(random.bounded(1, 81)), Value(46000 + id / 4), time(0, 1440),
                     number()});
        store.write("insert into ExercisePerform values (?, ?, ?, ?, ?, ?)",
                    {Value(id), Value(random.bounded(1, 9)), Value(46000 + id / 4), time(0, 700),
                     Value(QTime(12, id % 60)), number()});
        store.write("insert into Body values (?, ?, ?, ?, ?, ?, ?)",
                    {Value(id), Value(46000 + id), number(), number(), number(), Value(0.0),
                     Value(QString(id % 2 ? u'M' : u'I'))});
        store.write(
            "insert into UserNote values (?, ?, ?, ?)",
            {Value(id), Value(46000 + 3 * id), Value(46001 + 3 * id), Value(odd[id % odd.size()])});
    }
    transaction.commit();
}

} // namespace

class tst_import : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { faultyfiles::install(); } // which are never synchronized
    void everythingComesBack_data();
    void everythingComesBack();
    void foreignFiles_data();
    void foreignFiles();
    void recognizesTheRest();
    void unitsAreConverted();
    void faultsHaveTheirLines();
    void filesThatAreNone();
    void existingNames();
    void nothingIsDoubled();
    void oneStepOrNothing();
};

void tst_import::everythingComesBack_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<bool>("isSpreadsheet");
    QTest::newRow("plain, as stored to the last bit") << u"de_DE"_s << false;
    QTest::newRow("German spreadsheet") << u"de_DE"_s << true;
    QTest::newRow("American spreadsheet") << u"en_US"_s << true;
}

void tst_import::everythingComesBack()
{
    QFETCH(QString, locale);
    QFETCH(bool, isSpreadsheet);
    ExportJournal from{QLocale(locale)};
    fill(from, isSpreadsheet ? 4 : -1);
    const auto path =
        exportJournal(from.data->Con, from.order(isSpreadsheet), [](double) { return true; });
    QVERIFY(path);
    Importing to(qPrintable(locale));
    const std::vector<ImportFile> files = to.readFolder(*path);
    QCOMPARE(files.size(), 9u);
    QCOMPARE(faultsIn(to.import(files)), QString());
    const QStringList expected = contents(from);
    QVERIFY(expected.size() > 1000);
    QCOMPARE(contents(to), expected);
    // And once more nothing.
    QVERIFY(countsIn(to.import(files)).startsWith(u"0 0 "_s));
    QCOMPARE(contents(to), expected);
}

void tst_import::foreignFiles_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("rows");
    const QString common = u"Imported|%1|100 g|NULL|NULL|52.5|0.25|14.0|0.3|"_s;
    const QString apple = common.arg(u"\u00C4pfel"_s);
    const QByteArray german = "Lebensmittel;kcal / 100 g;Fett;Kohlenhydrate;Eiwei\u00DF\r\n"
                              "\u00C4pfel;52,5;0,25;14;0,3\r\n";
    QTest::newRow("comma, UTF-8") << QByteArray("Food,Carbs (g),Protein (g),Fat (g),Energy "
                                                "(kcal/100g)\n\u00C4pfel,14,0.3,.25,52.5\n")
                                  << apple;
    QTest::newRow("semicolon, decimal comma") << german << apple;
    QTest::newRow("Windows-1252") << QString::fromUtf8(german).toLatin1() << apple;
    const QString text = QChar(QChar::ByteOrderMark) + QString::fromUtf8(german);
    QTest::newRow("UTF-16, its own line ends")
        << QByteArray(reinterpret_cast<const char *>(text.utf16()), text.size() * 2)
               .replace(QByteArray("\r\0\n\0", 4), QByteArray("\r\0", 2))
        << apple;
    QTest::newRow("tabs, UTF-8 with mark, blank lines and cells behind")
        << QByteArray("\xEF\xBB\xBFname\tfat_100g\tcarbohydrates_100g\tproteins_100g\t"
                      "energy-kcal_100g\tenergy-kj_100g\n\n\t\t\t\t\t\n"
                      " \u00C4pfel \t0.25\t14\t0.3\t52.5\t220\t\n")
        << apple;
    QTest::newRow("said separator, comma in a quoted cell")
        << QByteArray("sep=;\nName;Fett;KH;Protein;Brennwert pro 100 g\n"
                      "\"\u00C4pfel, \"\"rot\"\"\";0,25;14;0,3;52,5\n")
        << common.arg(u"\u00C4pfel, \"rot\""_s);
}

void tst_import::foreignFiles()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, rows);
    Importing journal;
    QCOMPARE(faultsIn(journal.import(bytes)), QString());
    const QString row = journal.row(qPrintable(meals));
    QVERIFY2(row.startsWith(rows), qPrintable(row));
    // The calories are split as in the editor of a meal.
    QCOMPARE(
        journal.row("select FatBC + CarbohydrateBC + ProteinBC, CarbohydrateBC > 49 from Meal"),
        u"52.5|1"_s);
}

void tst_import::recognizesTheRest()
{
    Importing german("de_DE");
    german.exec("insert into Exercise values (1, 'Gehen', 'min', 30, 4, 4, 0);"
                "insert into MealCategory values (1, 'Obst');"
                "insert into Meal values (1, 1, 'Apfel', 'St.', 1, 1, 50, 0, 12, 0, 0, 50, 0)");
    for (const QByteArray bytes :
         {"Datum;Uhrzeit;Lebensmittel;Menge\n3.7.26;8:05;apfel;1.234,5\n",
          "Timestamp\tMeal\tServings\n2026-07-03T20:05:59\tApfel\t2\n",
          // NOLINTNEXTLINE(bugprone-suspicious-missing-comma)
          "Date,From,To,Activity,Duration\n7/3/2026,8:05 am,12:10 pm,Gehen,30\n"
          "7/13/2026,1:00,2:00,Gehen,1\n",
          "Tag;Gewicht (lb);Taille;Hip\n3. Juli 2026;180,5;35,5;\n",
          "day,note\n\"03/07/2026\",\"two\nlines\"\n"})
        QCOMPARE(faultsIn(german.import(bytes)), QString());
    QCOMPARE(german.row("select ConsumeDate, round(ConsumeTime * 1440), Qty from MealConsume"),
             u"46206|485|1234.5\n46206|1205|2"_s);
    QCOMPARE(german.row("select PerformDate, round(timeBeg * 1440), round(timeEnd * 1440)"
                        " from ExercisePerform where Qty = 30"),
             u"46206|485|730"_s);
    QCOMPARE(german.row("select DateMeasured, Weight, Waist, Hips, Measurement from Body"),
             u"46206|81.9|89.5|0|M"_s);
    // What might be either is as the user writes it.
    QCOMPARE(german.row("select DateFrom, DateTo, NoteText from UserNote"),
             u"46206|46206|two\nlines"_s);
    // Nothing is made of what only looks similar.
    QVERIFY(!german.read("ID,Colour\n1,red\n").kind);
    QCOMPARE(missingField(german.read("Name,kcal\nx,1\n"), ExistingRecords::Kept), u"Unit"_s);
}

void tst_import::unitsAreConverted()
{
    Importing journal;
    ImportFile file = journal.read("Name,Category,Unit,Energy (kJ),Fat (mg),Carbs,Protein\n"
                                   "Juice,Drinks,glass,418.4,1500,20.00005,0\n"
                                   "Spirit,drinks,glass,418.4,0,0,0\n");
    QCOMPARE(faultsIn(journal.import({file})), QString());
    QCOMPARE(journal.row("select Calories, Fat, Carbohydrate from Meal where MealID = 1"),
             u"100|1.5|20"_s);
    QCOMPARE(journal.row("select FatBC, CarbohydrateBC, ProteinBC from Meal where MealID = 2"),
             u"0|100|0"_s);
    QCOMPARE(journal.row("select Name from MealCategory"), u"Drinks"_s);
    // To the user's units, without which progress would draw pounds as kilograms.
    file = journal.read("Date,Weight (st),Waist (cm)\n2026-07-01,10,100.8\n");
    journal.import({file});
    QCOMPARE(journal.row("select Weight, Waist, Measurement from Body"), u"63.5|100.8|M"_s);
    journal.exec("update Common set Measurement = 'I'; delete from Body");
    journal.session->readCommonParameters();
    journal.import({file});
    QCOMPARE(journal.row("select Weight, Waist, Measurement from Body"), u"140|40|I"_s);
}

void tst_import::faultsHaveTheirLines()
{
    Importing journal;
    journal.exec("insert into UserNote values (1, 46220, 46222, 'There already')");
    const QByteArray header = "Name,Unit,kcal,Fat,Carbs,Protein\n";
    QCOMPARE(faultsIn(journal.import(header + "\"Two\nlines\",g,1,1,1,1\n" // stored
                                              "A,g,x,1,1,1\n"
                                              " ,g,1,1,1,1\n"
                                              "B,,1,1,1,1\n"
                                              "C,g,1,1,1\n"
                                              "D,g,1,1,1,1,1\n"
                                              "E,g,1,1,1,1e99\n"
                                              "F \"quoted\",g,1,1,1,1\n"
                                              "G,g,\"1,1,1,1\n"
                                              "H,g,1,1,1,1\n")), // stored
             u"4 Calories is no number: x.\n5 Name is empty.\n6 Unit is empty.\n"
             "7 It has 5 cells, and the first line has 6.\n"
             "8 It has 7 cells, and the first line has 6.\n"
             "9 Protein is no number: 1e99.\n"
             "10 A quotation mark is not closed, or stands within a cell: the cell has to be "
             "quoted and the mark doubled.\n"
             "11 A quotation mark is not closed, or stands within a cell: the cell has to be "
             "quoted and the mark doubled."_s);
    QCOMPARE(journal.rows("select Name from Meal").size(), 2);
    QCOMPARE(faultsIn(journal.import("Date,Time,Meal,Qty\n2026-02-30,8:00,H,1\n1066-10-14,8:00,H,1"
                                     "\n2026-07-01,25:00,H,1\n2026-07-01,8:00,Nothing,1\n")),
             u"2 Date is no date: 2026-02-30.\n3 Date is no date: 1066-10-14.\n"
             "4 Time is no time: 25:00.\n5 There is no meal of this name: Nothing."_s);
    journal.import("Activity,Unit,kcal\nRun,min,10\n");
    QCOMPARE(faultsIn(journal.import("Date,Begin,End,Activity,Qty\n2026-07-01,9:00,9:00,Run,1\n")),
             u"2 The end is not after the begin."_s);
    QCOMPARE(faultsIn(journal.import("Date from,Date to,Note\n2026-07-19,2026-07-20,b\n"
                                     "2026-07-02,2026-07-01,c\n2026-07-01,2026-07-05,d\n"
                                     "2026-07-05,2026-07-06,e\n2026-06-30,2026-07-30,f\n")),
             u"2 It shares days with a note of the journal: There already.\n"
             "3 It ends before it begins.\n5 It shares days with the note on line 4.\n"
             "6 It shares days with a note of the journal: There already."_s);
    QCOMPARE(faultsIn(journal.import("Date,Weight\n2026-07-01,70\n2026-07-01,71\n2026-07-02,\n")),
             u"3 Line 2 has a measurement of the same day.\n4 Nothing was measured."_s);
}

void tst_import::filesThatAreNone()
{
    const Importing journal;
    const QByteArray noText = "It is no text in UTF-8, UTF-16 or Windows-1252.";
    const QByteArray empty = "It is empty.";
    for (const auto &[bytes, refusal] :
         {std::pair(QByteArray("PK\3\4\0\0", 6), noText),
          {QByteArray("a,b\n1,\0\n", 8), noText},
          {"a,\x81\n", noText},
          {"", empty},
          {" \r\n\n", empty},
          {"\xEF\xBB\xBF", empty},
          {"\"Name,kcal\n", "Its first line has to name the columns."}}) {
        try {
            journal.read(bytes);
            QFAIL(bytes.toHex());
        } catch (const ImportError &error) {
            QCOMPARE(QByteArray(error.what()), refusal);
        }
    }
    QVERIFY_THROWS_EXCEPTION(ImportError,
                             readImportFile(journal.folder.filePath(u"none"_s), journal.place()));
}

void tst_import::existingNames()
{
    Importing journal;
    const QByteArray header = "Name,Category,Unit,kcal,Fat\n";
    journal.import(header + "Apple,Fruit,g,1,0.1\nPear,Fruit,g,2,0.2\n");
    const QByteArray changed = header + "APPLE,Fruit,g,9,0.9\nPear,Fruit,g,2,0.2\nNut,Nuts,g,3,3\n";
    const auto names = [&] {
        return journal.rows("select Name, Unit, Calories, Protein from Meal order by MealID")
            .join(u' ');
    };
    QCOMPARE(countsIn(journal.import(changed)), u"1 0 2 0"_s);
    QCOMPARE(names(), u"Apple|g|1|0 Pear|g|2|0 Nut|g|3|0"_s);
    QCOMPARE(countsIn(journal.import(changed, ExistingRecords::Renamed)), u"1 0 2 0"_s);
    QCOMPARE(journal.row("select Name, Calories from Meal where MealID = 4"), u"APPLE (2)|9"_s);
    // Of those that are updated, what the file doesn't have stays; a new one lacks its unit.
    journal.exec("update Meal set Unit = 'pc', Protein = 5 where MealID = 1");
    const FilePlan updated =
        journal.import("Name,kcal,Fat\nApple,7,1\nPear,2,0.2\nFig,1,1\n", ExistingRecords::Updated);
    QCOMPARE(countsIn(updated), u"0 1 1 1"_s);
    QCOMPARE(faultsIn(updated), u"4 Unit is empty."_s);
    QVERIFY(names().startsWith(u"Apple|pc|7|5 Pear|g|2|0 Nut"_s));
    QCOMPARE(journal.row("select FatBC + CarbohydrateBC + ProteinBC from Meal where MealID = 1"),
             u"7"_s);
}

void tst_import::nothingIsDoubled()
{
    Importing journal;
    journal.import("Name,Unit,kcal\nTea,cup,1\n");
    const QByteArray eaten = "Date,Time,Meal,Qty\n2026-07-01,8:00,Tea,1\n2026-07-01,8:00,tea,1\n";
    QCOMPARE(countsIn(journal.import(eaten)), u"2 0 0 0"_s); // two cups are two
    QCOMPARE(countsIn(journal.import(eaten + "2026-07-01,8:01,Tea,1\n")), u"1 0 2 0"_s);
    QCOMPARE(countsIn(journal.import(eaten + "2026-07-01,8:00,Tea,1\n")), u"1 0 2 0"_s);
    const QByteArray body = "Date,Weight\n2026-07-01,70\n";
    journal.import(body);
    QCOMPARE(countsIn(journal.import(body + "2026-07-02,71\n")), u"1 0 1 0"_s);
    QCOMPARE(countsIn(journal.import("Date,Weight\n2026-07-01,69\n")), u"0 0 1 0"_s);
    QCOMPARE(countsIn(journal.import("Date,Weight\n2026-07-01,69\n", ExistingRecords::Updated)),
             u"0 1 0 0"_s);
    QCOMPARE(journal.row("select DateMeasured, Weight from Body"), u"46204|69\n46205|71"_s);
}

void tst_import::oneStepOrNothing()
{
    Importing journal;
    const QByteArray meal = "Name,Category,Unit,kcal\nTea,Drinks,cup,1\n";
    const QStringList before = contents(journal);
    ImportFile entries = journal.read("Date,Time,Meal,Qty\n2026-07-01,8:00,Tea,1\n");
    const std::vector<ImportFile> files = {entries, journal.read(meal)};
    const ImportPlan plan = planImport(*journal.session, files, ExistingRecords::Kept);
    QCOMPARE(countsIn(plan.sum()), u"2 0 0 0"_s); // the meal comes first, whatever the order
    // Cancelled, or planned for another state of the journal.
    std::vector<ImportFile> many = {journal.read("Activity,Unit,kcal\n" + [] {
        QByteArray lines;
        for (int i = 0; i < 500; ++i)
            lines += "A" + QByteArray::number(i) + ",min,1\n";
        return lines;
    }())};
    QVERIFY_THROWS_EXCEPTION(ImportCancelled,
                             storeImport(*journal.session, many,
                                         planImport(*journal.session, many, ExistingRecords::Kept),
                                         u"x"_s, [](double share) { return share < 0.5; }));
    deData(journal.path())
        .Con.exec("insert into MealCategory (Name) values ('Another program''s')");
    QVERIFY_THROWS_EXCEPTION(ImportError, storeImport(*journal.session, files, plan, u"x"_s));
    journal.exec("delete from MealCategory");
    QCOMPARE(contents(journal), before);
    QVERIFY(!journal.session->history().next(Direction::Backward));

    journal.import(files);
    QCOMPARE(contents(journal).size(), 3);
    QCOMPARE(journal.session->history().take(Direction::Backward).description, u"Importing"_s);
    QCOMPARE(contents(journal), before);
    // A number that was given is never given again.
    const QString last = journal.row("select NextMealConsumeID from Common");
    QVERIFY(last != u"1");
    journal.session->history().take(Direction::Forward);
    QCOMPARE(journal.row("select MealConsumeID from MealConsume"), last);
    // Nothing is taken where there are not enough.
    journal.exec("update Common set NextMealConsumeID = 32766");
    QVERIFY_THROWS_EXCEPTION(OverflowError,
                             newIdentifiers(*journal.data, schema::MealConsume::table, 2));
    QCOMPARE(journal.row("select NextMealConsumeID from Common"), u"32766"_s);
    entries = journal.read("Date,Time,Meal,Qty\n2026-07-02,8:00,Tea,1\n2026-07-02,9:00,Tea,1\n");
    QVERIFY(planImport(*journal.session, {entries}, ExistingRecords::Kept)
                .obstacle.contains(u"room for 1 more records"_s));
}

QTEST_GUILESS_MAIN(tst_import)
#include "tst_import.moc"
