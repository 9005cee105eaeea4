// The database as it is delivered, opened as the program opens it.
#include "data/connection.h"
#include "settings/units.h"

#include <QTemporaryDir>
#include <QTest>

#include <string>

using namespace Qt::StringLiterals;

class tst_delivered : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_connection.reset(); }
    void hasNone_data();
    void hasNone();
    void everyDayIsLived();
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

void tst_delivered::hasNone_data()
{
    QTest::addColumn<std::string>("sql");
    const auto none = [](const char *what, const std::string &from) {
        QTest::newRow(what) << "select count(*) from " + from;
    };

    none("meal or activity without a quantity",
         "(select DefaultQty q from Meal union all select DefaultQty from Exercise)"
         " where not q > 0");
    none("calories split in other parts",
         "Meal where Fat + Carbohydrate + Protein > 0 and"
         " abs(Calories - FatBC - CarbohydrateBC - ProteinBC) > 0.00001");
    none("key of the user's",
         "(select MealConsumeID id from MealConsume union all select ExercisePerformID from"
         " ExercisePerform union all select BodyID from Body union all select UserNoteID from"
         " UserNote) where id >= 0");
    const std::string menus = "(select ConsumeDate, group_concat(MealID || 'x' || Qty) as menu"
                              " from MealConsume group by ConsumeDate) ";
    none("day that copies another",
         menus + "a join " + menus + "b on a.ConsumeDate < b.ConsumeDate and a.menu = b.menu");
    none("activities at the same time",
         "ExercisePerform a join ExercisePerform b on a.PerformDate = b.PerformDate"
         " and a.ExercisePerformID < b.ExercisePerformID"
         " and a.timeBeg < b.timeEnd and b.timeBeg < a.timeEnd");
    none("notes that share a day", "UserNote a join UserNote b on a.UserNoteID < b.UserNoteID"
                                   " and a.DateFrom <= b.DateTo and b.DateFrom <= a.DateTo");
}

void tst_delivered::hasNone()
{
    QFETCH(std::string, sql);
    QCOMPARE(value(sql.c_str()).toInt32(), 0);
}

// Every day of the sample has its meals and activities, in amounts that a person lives on, and less
// comes in than goes out, or the weight would not fall.
void tst_delivered::everyDayIsLived()
{
    const auto days =
        rows("select day, eaten, burnt from"
             " (select ConsumeDate day, sum(Qty * Calories) eaten from MealConsume"
             "  join Meal using (MealID) group by day) left join"
             " (select PerformDate day, sum(Qty * CaloriesConsume) burnt from ExercisePerform"
             "  join Exercise using (ExerciseID) group by day) using (day) order by day");
    double balance = 0;
    for (qsizetype i = 0; i < days.size(); ++i) {
        const double eaten = days[i][1].toDouble();
        const double burnt = days[i][2].toDouble();
        QCOMPARE(days[i][0].toDate(), QDate(2025, 11, 18).addDays(i));
        QVERIFY2(eaten >= 1450 && eaten <= 2450 && burnt > 20 && burnt < 900,
                 qPrintable(u"day %1: %2, %3 calories"_s.arg(i).arg(eaten).arg(burnt)));
        balance += eaten - burnt - 24 * units::backgroundCalories(74, true);
    }
    QCOMPARE(days.size(), 48);
    balance /= double(days.size());
    QVERIFY2(balance > -350 && balance < -100, qPrintable(QString::number(balance)));
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
    refused(ReferenceRefused, "update Meal set MealCategoryID = 30000");
    refused(NameTaken, "update Meal set Name = (select upper(Name) from Meal where rowid = 2)"
                       " where rowid = 1");
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
