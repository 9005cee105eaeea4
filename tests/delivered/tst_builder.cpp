// The tool that builds the delivered database: what it refuses, and that it builds alike.
#include "database.h"

#include "data/connection.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const auto mealColumns =
    u"Name\tUnit\tDefaultQty\tIncrement\tCalories\tFat\tCarbohydrate\tProtein\n"_s;
const auto commonColumns =
    u"weight\tMeasurement\tNextBodyID\tNextMealConsumeID\tNextExercisePerformID\tNextUserNoteID"
    "\tinstallDate\n"_s;

QString cellText(const Value &value)
{
    const auto *number = std::get_if<double>(&value.storage());
    return number ? QString::number(*number, 'g', 15) : value.toText();
}

// Every row of every table, one per line.
QString dump(const QString &path)
{
    Connection connection(path);
    QString text;
    for (const char *table : {"MealCategory", "Meal", "Exercise", "MealConsume", "ExercisePerform",
                              "Body", "UserNote", "Common"}) {
        SQLite::Statement &rows =
            connection.prepared(std::string("select * from ") + table + " order by rowid");
        while (rows.executeStep()) {
            text += QLatin1String(table);
            for (int column = 0; column < rows.getColumnCount(); ++column)
                text += u'\t' + cellText(columnValue(rows, column));
            text += u'\n';
        }
    }
    return text;
}

} // namespace

class tst_builder : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void refusesBrokenSources_data();
    void refusesBrokenSources();
    void refusesFilesOfAnotherForm();
    void computesWhatTheProgramWould();
    void replacesOnlyByAWholeFile();
    void sameSourcesGiveTheSameRows();

private:
    QString path(const QString &file) const { return m_folder->filePath(file); }
    void write(const QString &file, const QString &text) const;
    QString refusal() const;

    std::unique_ptr<QTemporaryDir> m_folder;
};

void tst_builder::write(const QString &file, const QString &text) const
{
    QFile target(path(file));
    QVERIFY(target.open(QIODevice::WriteOnly));
    target.write(text.toUtf8());
}

// What reading the sources stops with.
QString tst_builder::refusal() const
{
    try {
        delivered::loadSources(m_folder->path());
    } catch (const delivered::SourceError &error) {
        return QString::fromUtf8(error.what());
    }
    return {};
}

// Small sources without a defect.
void tst_builder::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir(m_folder->path()).mkpath(u"catalogue/meals"_s));
    QVERIFY(QDir(m_folder->path()).mkpath(u"sample"_s));
    QVERIFY(QFile::copy(QStringLiteral(CORVANA_DELIVERED_SOURCES) + u"/schema.sql"_s,
                        path(u"schema.sql"_s)));
    write(u"common.tsv"_s, commonColumns + u"74\tM\t1\t1\t1\t1\t2026-01-01\n"_s);
    write(u"catalogue/meals/1.tsv"_s, u"# Category: Pies\n"_s + mealColumns +
                                          u"Pie\tslice\t1\t0.5\t250\t10\t20\t5\n"
                                          "Water\tglass\t\t\t0\t0\t0\t0\n"_s);
    write(u"catalogue/activities.tsv"_s,
          u"Name\tUnit\tDefaultQty\tWeightDependent\tCaloriesAtReference\n"
          "Walking\tminute\t30\t1\t2.84\nPiano\tminute\t\t0\t1.47\n"_s);
    write(u"sample/meals.tsv"_s, u"Day\tTime\tMeal\tQty\n-1\t07:30\tPie\t1.5\n"_s);
    write(u"sample/activities.tsv"_s,
          u"Day\tBegin\tEnd\tActivity\tQty\n0\t08:00\t08:30\tWalking\t30\n"_s);
    write(u"sample/body.tsv"_s, u"Day\tWeight\tBreast\tWaist\tHips\n-1\t74.1\t97\t86\t104\n"_s);
    write(u"sample/notes.tsv"_s, u"FirstDay\tLastDay\tText\n-3\t-1\tA start\n"_s);
}

void tst_builder::refusesBrokenSources_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("row"); // behind those of the small sources, "|" between the cells
    QTest::addColumn<QString>("message");
    const auto defect = [](const char *file, const char *row, const char *message) {
        QTest::newRow(row) << QString::fromLatin1(file) << QString::fromLatin1(row)
                           << QString::fromLatin1(message);
    };

    const char *meals = "catalogue/meals/1.tsv";
    defect(meals, "Tea|cup|1|1|2|0|0", ":5: There are 7 cells instead of 8");
    defect(meals, "PIE|slice|||1|0|0|0", ":5: The name \"PIE\" is taken at ");
    defect(meals, "|slice|||1|0|0|0", ":5: Name is missing");
    defect(meals, "Tea |cup|||1|0|0|0", ":5: Name begins or ends with a blank");
    defect(meals, "Tea|cup|||1,5|0|0|0", ":5: Calories \"1,5\" is not a decimal");
    defect(meals, "Tea|cup|||1|0.00001|0|0",
           ":5: Fat \"0.00001\" is not a decimal of at most four");
    defect(meals, "Tea|cup|||1|999999999999999|0|0", ":5: Fat 999999999999999 is out of range");
    defect(meals, "Tea|cup|||1|0|-1|0", ":5: Carbohydrate is negative");
    const char *activities = "catalogue/activities.tsv";
    defect(activities, "Rest|hour||1|0", ":4: CaloriesAtReference should be more than 0");
    defect(activities, "Rest|hour||2|9", ":4: WeightDependent should be 0 or 1");
    defect(activities, "piano|hour||0|9", ":4: The name \"piano\" is taken at ");
    defect("sample/meals.tsv", "0|08:00|Cake|1", ":3: Meal \"Cake\" is not in the catalogue");
    defect("sample/meals.tsv", "0|24:00|Pie|1", ":3: Time \"24:00\" is not a time of day");
    defect("sample/meals.tsv", "0.5|08:00|Pie|1", ":3: Day \"0.5\" is not a whole number");
    defect("sample/meals.tsv", "0|08:00|Pie|0", ":3: Qty should be more than 0");
    const char *performed = "sample/activities.tsv";
    defect(performed, "0|09:00|09:00|Piano|1", ":3: End should be later than Begin");
    defect(performed, "0|09:00|09:10|Piano|11", ":3: Qty is more than the 10 minutes from Begin");
    defect("sample/body.tsv", "-1|74|97|86|104", ":3: Day -1 has a measurement already");
    defect("sample/notes.tsv", "2|1|Oops", ":3: LastDay is before FirstDay");
    defect("sample/notes.tsv", "-1|4|More", ":3: The note shares a day with the note \"A start\"");
    defect("sample/notes.tsv", "-2|-2|More", ":3: The note shares a day with");
    defect("common.tsv", "75|M|1|1|1|1|2026-01-01", ":1: There should be exactly one row");
}

void tst_builder::refusesBrokenSources()
{
    QFETCH(QString, file);
    QFETCH(QString, row);
    QFETCH(QString, message);

    delivered::loadSources(m_folder->path()); // without a defect so far
    QFile source(path(file));
    QVERIFY(source.open(QIODevice::Append));
    source.write(row.replace(u'|', u'\t').toUtf8() + '\n');
    source.close();
    const QString said = refusal();
    QVERIFY2(said.startsWith(path(file) + message), qPrintable(said));
}

void tst_builder::refusesFilesOfAnotherForm()
{
    write(u"catalogue/meals/1.tsv"_s, u"# Category: Pies\nName\tUnit\n"_s);
    QVERIFY(refusal().contains(u"1.tsv:2: The columns should be Name, Unit, DefaultQty"_s));
    write(u"catalogue/meals/1.tsv"_s, mealColumns);
    QVERIFY(refusal().contains(u"1.tsv:1: The file should begin with \"# Category: \""_s));
    QVERIFY(QFile::remove(path(u"catalogue/activities.tsv"_s)));
    QVERIFY(QFile::remove(path(u"catalogue/meals/1.tsv"_s)));
    QVERIFY(refusal().contains(u"activities.tsv:0: The file can't be read"_s));
}

void tst_builder::computesWhatTheProgramWould()
{
    const QString database = path(u"Corvana.mdb"_s);
    delivered::writeDatabase(database, delivered::loadSources(m_folder->path()));
    // 74 kg over 68.04 kg in single precision is 1.0875955820083618.
    const QString expected =
        u"MealCategory\t1\tPies\n"
        "Meal\t1\t1\tPie\tslice\t1\t0.5\t250\t10\t20\t5\t118.4211\t105.2631\t26.3158\n"
        "Meal\t2\t1\tWater\tglass\t\t\t0\t0\t0\t0\t0\t0\t0\n"
        "Exercise\t1\tWalking\tminute\t30\t3.08877145290375\t2.84\t1\n"
        "Exercise\t2\tPiano\tminute\t\t1.47\t1.47\t0\n"
        "MealConsume\t-1\t1\t46022\t0.3125\t1.5\n"
        "ExercisePerform\t-1\t1\t46023\t0.333333333333333\t0.354166666666667\t30\n"
        "Body\t-1\t46022\t74.1\t97\t86\t104\tM\n"
        "UserNote\t-1\t46020\t46022\tA start\n"
        "Common\t74\t61\tM\t1\t1\t1\t1\t46023\n"_s;
    QCOMPARE(dump(database), expected);
}

void tst_builder::replacesOnlyByAWholeFile()
{
    const QString database = path(u"Corvana.mdb"_s);
    delivered::Sources sources = delivered::loadSources(m_folder->path());
    delivered::writeDatabase(database, sources);
    const QString before = dump(database);

    sources.schema += "CREATE TABLE Meal (broken);";
    QVERIFY_THROWS_EXCEPTION(StoreError, delivered::writeDatabase(database, sources));
    QCOMPARE(dump(database), before);

    // What a broken build has left behind is in nobody's way.
    write(u"sample/notes.tsv"_s, u"FirstDay\tLastDay\tText\n-3\t-1\tAnother start\n"_s);
    delivered::writeDatabase(database, delivered::loadSources(m_folder->path()));
    QVERIFY(dump(database).contains(u"Another start"_s));
}

void tst_builder::sameSourcesGiveTheSameRows()
{
    const QString folder = QStringLiteral(CORVANA_DELIVERED_SOURCES);
    delivered::writeDatabase(path(u"first.mdb"_s), delivered::loadSources(folder));
    delivered::writeDatabase(path(u"second.mdb"_s), delivered::loadSources(folder));
    const QString first = dump(path(u"first.mdb"_s));
    QVERIFY(first.count(u'\n') > 1000);
    QCOMPARE(dump(path(u"second.mdb"_s)), first);
}

QTEST_APPLESS_MAIN(tst_builder)
#include "tst_builder.moc"
