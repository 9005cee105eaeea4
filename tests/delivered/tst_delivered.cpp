// The database as it is delivered, opened as the program opens it.
#include "data/connection.h"
#include "settings/units.h"

#include <QTemporaryDir>
#include <QTest>

#include <string>

using namespace Qt::StringLiterals;

namespace {

constexpr int firstDay = -44;
constexpr int lastDay = 3;
const QDate installDate(2026, 1, 1);

} // namespace

class tst_delivered : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_connection.reset(); }
    void catalogues();
    void hasNone_data();
    void hasNone();
    void calories();
    void everyDayIsLived();
    void measurementsFallGentlyWithGaps();
    void schemaKeepsItsPromises_data();
    void schemaKeepsItsPromises();
    void identifiersAreNeverReused();

private:
    QList<QList<Value>> rows(const char *sql);
    Value value(const char *sql) { return rows(sql).value(0).value(0); }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<Connection> m_connection;
};

QList<QList<Value>> tst_delivered::rows(const char *sql)
{
    QList<QList<Value>> all;
    SQLite::Statement &statement = m_connection->prepared(sql);
    while (statement.executeStep()) {
        QList<Value> row;
        for (int column = 0; column < statement.getColumnCount(); ++column)
            row << columnValue(statement, column);
        all << row;
    }
    return all;
}

void tst_delivered::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    const QString path = m_folder->filePath(u"Corvana.mdb"_s);
    QVERIFY(QFile::copy(QStringLiteral(CORVANA_DELIVERED_DATABASE), path));
    m_connection = std::make_unique<Connection>(path);
}

void tst_delivered::catalogues()
{
    QVERIFY(value("select count(*) from MealCategory").toInt32() >= 14);
    QVERIFY(value("select count(*) from Meal").toInt32() >= 300);
    QVERIFY(value("select count(*) from Exercise").toInt32() >= 110);
}

void tst_delivered::hasNone_data()
{
    QTest::addColumn<std::string>("sql");
    const auto none = [](const char *what, const std::string &from) {
        QTest::newRow(what) << "select count(*) from " + from;
    };

    none("category with little to choose from", "MealCategory c where (select count(*) from Meal m"
                                                " where m.MealCategoryID = c.MealCategoryID) < 5");
    none("meal without a quantity and step", "Meal where not (DefaultQty > 0 and Increment > 0)");
    none("activity without a quantity", "Exercise where not (DefaultQty > 0)");
    none("meal key of the user's", "MealConsume where MealConsumeID >= 0");
    none("activity key of the user's", "ExercisePerform where ExercisePerformID >= 0");
    none("measurement key of the user's", "Body where BodyID >= 0");
    none("note key of the user's", "UserNote where UserNoteID >= 0");
    const std::string menus = "(select ConsumeDate, group_concat(MealID || 'x' || Qty) as menu"
                              " from MealConsume group by ConsumeDate) ";
    none("day that copies another",
         menus + "a join " + menus + "b on a.ConsumeDate < b.ConsumeDate and a.menu = b.menu");
    none("activities at the same time",
         "ExercisePerform a join ExercisePerform b on a.PerformDate = b.PerformDate"
         " and a.ExercisePerformID < b.ExercisePerformID"
         " and a.timeBeg < b.timeEnd and b.timeBeg < a.timeEnd");
    // A long outing has room for a break.
    none("meal eaten on the way",
         "ExercisePerform join MealConsume on PerformDate = ConsumeDate and ConsumeTime > timeBeg"
         " and ConsumeTime < timeEnd and timeEnd - timeBeg < 2.5 / 24");
    none("notes that share a day", "UserNote a join UserNote b on a.UserNoteID < b.UserNoteID"
                                   " and a.DateFrom <= b.DateTo and b.DateFrom <= a.DateTo");
}

void tst_delivered::hasNone()
{
    QFETCH(std::string, sql);
    QCOMPARE(value(sql.c_str()).toInt32(), 0);
}

void tst_delivered::calories()
{
    int split = 0;
    for (const auto &row : rows("select Name, Calories, FatBC, CarbohydrateBC, ProteinBC,"
                                " Fat <> 0 or Carbohydrate <> 0 or Protein <> 0 from Meal")) {
        const Currency parts = row[2].toCurrency() + row[3].toCurrency() + row[4].toCurrency();
        const bool hasNutrients = row[5].toInt32() != 0;
        split += hasNutrients;
        QVERIFY2(parts == (hasNutrients ? row[1].toCurrency() : Currency()),
                 qPrintable(row[0].toText()));
    }
    QVERIFY(split > 300);

    const double koef = double(units::weightFactor(74, true));
    for (const auto &row : rows("select Name, CaloriesConsume, CaloriesConsumeBase,"
                                " WeightDependent from Exercise")) {
        const double expected = row[2].toDouble() * (row[3].toInt32() == 1 ? koef : 1);
        QVERIFY2(row[1].toDouble() == expected && expected > 0, qPrintable(row[0].toText()));
    }
}

void tst_delivered::everyDayIsLived()
{
    QMap<int, double> eaten, burnt;
    for (const auto &row :
         rows("select ConsumeDate, sum(Qty*Calories), count(distinct ConsumeTime)"
              " from MealConsume join Meal using (MealID) group by ConsumeDate")) {
        const int day = int(installDate.daysTo(row[0].toDate()));
        eaten[day] = row[1].toDouble();
        QVERIFY2(eaten[day] >= 1450 && eaten[day] <= 2450,
                 qPrintable(u"day %1: %2 calories"_s.arg(day).arg(eaten[day])));
        QVERIFY2(row[2].toInt32() >= 4 && row[2].toInt32() <= 7,
                 qPrintable(u"day %1: %2 meals"_s.arg(day).arg(row[2].toInt32())));
    }
    for (const auto &row : rows("select PerformDate, sum(Qty*CaloriesConsume), count(*)"
                                " from ExercisePerform join Exercise using (ExerciseID)"
                                " group by PerformDate")) {
        const int day = int(installDate.daysTo(row[0].toDate()));
        burnt[day] = row[1].toDouble();
        QVERIFY2(burnt[day] > 20 && burnt[day] < 900 && row[2].toInt32() <= 3,
                 qPrintable(u"day %1: %2 calories"_s.arg(day).arg(burnt[day])));
    }
    QCOMPARE(eaten.keys(), burnt.keys());
    QCOMPARE(eaten.size(), lastDay - firstDay + 1);
    QCOMPARE(eaten.firstKey(), firstDay);
    QCOMPARE(eaten.lastKey(), lastDay);

    // Less comes in than goes out, or the weight would not fall.
    double balance = 0;
    for (int day = firstDay; day <= 0; ++day)
        balance += eaten[day] - burnt[day] - 24 * units::backgroundCalories(74, true);
    QVERIFY2(balance / (1 - firstDay) > -350 && balance / (1 - firstDay) < -100,
             qPrintable(QString::number(balance / (1 - firstDay))));
}

void tst_delivered::measurementsFallGentlyWithGaps()
{
    const auto all = rows("select DateMeasured, Weight, Breast, Waist, Hips from Body"
                          " order by DateMeasured");
    QVERIFY(all.size() >= 25);
    int shortGaps = 0, longGaps = 0;
    for (qsizetype i = 1; i < all.size(); ++i) {
        const int missing = all[i][0].toInt32() - all[i - 1][0].toInt32() - 1;
        shortGaps += missing == 1 || missing == 2;
        longGaps += missing >= 5;
        const auto change = [&](int column) {
            return std::abs(all[i][column].toDouble() - all[i - 1][column].toDouble());
        };
        QVERIFY2(change(1) <= 0.4 && change(2) <= 1 && change(3) <= 1 && change(4) <= 1,
                 qPrintable(all[i][0].toDate().toString(Qt::ISODate)));
    }
    QVERIFY(shortGaps >= 1);
    QVERIFY(longGaps >= 1);
    QCOMPARE(all.constLast()[0].toDate(), installDate);
    const double lost = all.constFirst()[1].toDouble() - all.constLast()[1].toDouble();
    QVERIFY(lost > 1 && lost < 2.5);
}

void tst_delivered::schemaKeepsItsPromises_data()
{
    QTest::addColumn<std::string>("sql");
    QTest::addColumn<int>("kind");
    const auto refused = [](StoreError::Kind kind, const std::string &sql) {
        QTest::newRow(sql.c_str()) << sql << int(kind);
    };

    using enum StoreError::Kind;
    refused(ReferenceRefused, "delete from MealCategory");
    refused(ReferenceRefused, "delete from Meal");
    refused(ReferenceRefused, "delete from Exercise");
    refused(ReferenceRefused, "update Meal set MealCategoryID = 30000");
    for (const std::string table : {"MealCategory", "Meal", "Exercise"})
        refused(NameTaken, "update " + table + " set Name = (select upper(Name) from " + table +
                               " where rowid = 2) where rowid = 1");
    refused(NameTaken, "insert into Common select * from Common");
    refused(Other, "delete from Common");
}

void tst_delivered::schemaKeepsItsPromises()
{
    QFETCH(std::string, sql);
    QFETCH(int, kind);
    int refused = -1;
    try {
        m_connection->exec(sql.c_str());
    } catch (const StoreError &error) {
        refused = int(error.kind());
    }
    QCOMPARE(refused, kind);
}

void tst_delivered::identifiersAreNeverReused()
{
    const int last = value("select max(ExerciseID) from Exercise").toInt32();
    const char *add = "insert into Exercise (Name, Unit, CaloriesConsume, CaloriesConsumeBase,"
                      " WeightDependent) values ('Moonwalk', 'minute', 1, 1, 0)";
    m_connection->exec(add);
    m_connection->exec("delete from Exercise where Name = 'moonwalk'");
    m_connection->exec(add);
    QCOMPARE(value("select max(ExerciseID) from Exercise").toInt32(), last + 2);
}

QTEST_APPLESS_MAIN(tst_delivered)
#include "tst_delivered.moc"
