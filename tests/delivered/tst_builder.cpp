// The tool that builds the delivered database: what it refuses, and what it builds.
#include "database.h"

#include "testjournal.h"

#include <QDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const auto mealColumns =
    u"Name\tUnit\tDefaultQty\tIncrement\tCalories\tFat\tCarbohydrate\tProtein\n"_s;
const auto commonColumns =
    u"weight\tMeasurement\tNextBodyID\tNextMealConsumeID\tNextExercisePerformID\tNextUserNoteID"
    "\tinstallDate\n"_s;

} // namespace

class tst_builder : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void refusesBrokenSources();
    void refusesAnotherSchema();
    void computesWhatTheProgramWould();

private:
    QString path(const QString &file) const { return m_folder->filePath(file); }
    void write(const QString &file, const QString &text) const;

    std::unique_ptr<QTemporaryDir> m_folder;
};

void tst_builder::write(const QString &file, const QString &text) const
{
    QFile target(path(file));
    QVERIFY(target.open(QIODevice::WriteOnly));
    target.write(text.toUtf8());
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
                                          u"Pie\tslice\t1\t0.5\t200\t10\t20\t5\n"
                                          "Water\tglass\t\t\t0\t0\t0\t0\n"
                                          "Rum\tshot\t1\t\t88\t0\t0.1\t0\n"_s);
    write(u"catalogue/energy.tsv"_s, u"Meal\tAlcohol\tOff\tReason\nRum\t12.6\t\talcohol\n"_s);
    write(u"catalogue/activities.tsv"_s,
          u"Name\tUnit\tDefaultQty\tWeightDependent\tCaloriesAtReference\n"
          "Walking\tminute\t30\t1\t2.84\nPiano\tminute\t\t0\t1.47\n"_s);
    write(u"sample/meals.tsv"_s, u"Day\tTime\tMeal\tQty\n-1\t07:30\tPie\t1.5\n"_s);
    write(u"sample/activities.tsv"_s,
          u"Day\tBegin\tEnd\tActivity\tQty\n0\t08:00\t08:30\tWalking\t30\n"_s);
    write(u"sample/body.tsv"_s, u"Day\tWeight\tBreast\tWaist\tHips\n-1\t74.1\t97\t86\t104\n"_s);
    write(u"sample/notes.tsv"_s, u"FirstDay\tLastDay\tText\n-3\t-1\tA start\n"_s);
}

void tst_builder::refusesBrokenSources()
{
    const char *meals = "catalogue/meals/1.tsv";
    // Rows behind those of the small sources, "|" between the cells.
    const std::tuple<const char *, QString, const char *> defects[] = {
        {meals, u"Tea|cup|1|1|2|0|0"_s, ":6: There are 7 cells instead of 8"},
        {meals, u"PIE|slice|||1|0|0|0"_s, ":6: The name \"PIE\" is taken at "},
        {meals, u"Tea|cup|||1|999999999999999|0|0"_s, ":6: Fat 999999999999999 is out of range"},
        {meals, u"Wine|glass|||126|0|3.8|0.1"_s,
         ":6: \"Wine\" has 126 kcal, but what it holds makes 15.6"},
        {"catalogue/energy.tsv", u"Pie||-5|fibre"_s, ":3: Meal \"Pie\" fits without this row"},
        {"sample/meals.tsv", u"0|08:00|Cake|1"_s, ":3: Meal \"Cake\" is not in the catalogue"},
        {"sample/activities.tsv", u"0|09:00|09:10|Piano|11"_s,
         ":3: Qty is more than the 10 minutes from Begin"},
        {"sample/body.tsv", u"-1|74|97|86|104"_s, ":3: Day -1 has a measurement already"},
        {"sample/notes.tsv", u"2|1|Oops"_s, ":3: LastDay is before FirstDay"},
        {"sample/notes.tsv", u"-1|4|More"_s, ":3: The note shares a day with the note \"A start\""},
        {"common.tsv", u"75|M|1|1|1|1|2026-01-01"_s, ":1: There should be exactly one row"}};
    for (const auto &[file, row, message] : defects) {
        init();
        QFile source(path(file));
        QVERIFY(source.open(QIODevice::Append));
        source.write(QString(row).replace(u'|', u'\t').toUtf8() + '\n');
        source.close();
        QString said;
        try {
            delivered::loadSources(m_folder->path());
        } catch (const delivered::SourceError &error) {
            said = QString::fromUtf8(error.what());
        }
        QVERIFY2(said.startsWith(path(file) + message), qPrintable(row + said));
    }
}

void tst_builder::refusesAnotherSchema()
{
    const std::tuple<QString, QString, QString> defects[] = {
        {u"    Protein REAL NOT NULL,\n"_s, u""_s,
         u"Meal: there is FatBC REAL not null where the program expects Protein REAL not null"_s},
        {u"Waist REAL"_s, u"Waist TEXT"_s,
         u"Body: there is Waist TEXT not null where the program expects Waist REAL not null"_s},
        {u"Increment REAL,"_s, u"Increment REAL NOT NULL,"_s,
         u"Meal: there is Increment REAL not null where the program expects Increment REAL null"_s},
        {u"NoteText TEXT NOT NULL"_s, u"NoteText TEXT NOT NULL, Mood TEXT"_s,
         u"UserNote: there is Mood TEXT null where the program expects nothing"_s},
        {u"CREATE TABLE Common"_s, u"CREATE TABLE Mood (Name TEXT); CREATE TABLE Common"_s,
         u"The tables: there is Mood where the program expects Common"_s}};
    const delivered::Sources sound = delivered::loadSources(m_folder->path());
    for (const auto &[text, other, message] : defects) {
        delivered::Sources sources = sound;
        QVERIFY(sources.schema.contains(text.toUtf8()));
        sources.schema.replace(text.toUtf8(), other.toUtf8());
        QString said;
        try {
            delivered::writeDatabase(path(u"Corvana.mdb"_s), sources);
        } catch (const delivered::SourceError &error) {
            said = QString::fromUtf8(error.what());
        }
        QVERIFY2(said.endsWith(message), qPrintable(said));
        QVERIFY(!QFile::exists(path(u"Corvana.mdb"_s)));
    }
}

void tst_builder::computesWhatTheProgramWould()
{
    const QString database = path(u"Corvana.mdb"_s);
    delivered::writeDatabase(database, delivered::loadSources(m_folder->path()));
    const QStringList expected{
        "1|Pies",
        "1|1|Pie|slice|1|0.5|200|10|20|5|94.7368|84.2106|21.0526",
        "2|1|Water|glass|||0|0|0|0|0|0|0",
        "3|1|Rum|shot|1||88|0|0.1|0|0|88|0",
        "1|Walking|minute|30|3.0888|2.84|1",
        "2|Piano|minute||1.47|1.47|0",
        "-1|1|46022|0.3125|1.5",
        "-1|1|46023|0.3333|0.3542|30",
        "-1|46022|74.1|97|86|104|M",
        "-1|46020|46022|A start",
        "74|61|M|1|1|1|1|46023",
    };
    Connection connection(database);
    QStringList rows;
    for (const QByteArray table : {"MealCategory", "Meal", "Exercise", "MealConsume",
                                   "ExercisePerform", "Body", "UserNote", "Common"})
        rows += queryRows(connection, "select * from " + table + " order by rowid");
    QCOMPARE(rows, expected);
    // 74 kg over 68.04 kg in single precision is 1.0875955820083618.
    QCOMPARE(queryRows(connection, "select printf('%.12f', CaloriesConsume) from Exercise"),
             QStringList({"3.088771452904", "1.470000000000"}));
}

QTEST_APPLESS_MAIN(tst_builder)
#include "tst_builder.moc"
