// What Quick Add finds, and in which order.
#include "data/namecollation.h"
#include "quickadd/habits.h"
#include "quickadd/recordables.h"
#include "testjournal.h"

#include <QTest>

using namespace Qt::Literals;

class tst_recordables : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_journal = std::make_unique<TestJournal>();
        m_journal->exec(
            "begin;"
            "insert into MealCategory (Name) values ('Food');"
            "insert into Meal select value ->> 0, 1, value ->> 1, 'g', 1, null, 2, 1, 1, 1, 1, 0.5,"
            " 0.5 from json_each('[[1,\"Banana bread\"],[2,\"Banana\"],[3,\"Urban soup\"],"
            "[4,\"Crème brûlée\"],[5,\"Bread, rye\"],[6,\"Rye crispbread\"],[7,\"Coffee\"],"
            "[8,\"Ice-cream\"]]');"
            "insert into Exercise values (1, 'Rowing', 'minute', 30, 7, 7, 0),"
            " (2, 'Banana picking', 'hour', null, 100, 100, 0);"
            "commit");
    }

    QString found(const QString &words, const QDateTime &now = {},
                  Recordables::Among among = Recordables::Among::All)
    {
        Recordables records;
        records.load(*m_journal->data);
        records.readHabits(*m_journal->data, now.isValid() ? now : m_journal->clock.now());
        QStringList names;
        for (const Recordable *record :
             records.find(foldedForSearch(words).split(u' ', Qt::SkipEmptyParts), among, 100))
            names += record->name;
        return names.join(u", "_qs);
    }

    void findsPartsOfNames()
    {
        // The plainest first, and those that hold the part inside of a word last.
        QCOMPARE(found(u"ban"_qs), u"Banana, Banana bread, Banana picking, Urban soup"_qs);
        QCOMPARE(found(u"BREAD"_qs), u"Bread, rye, Banana bread, Rye crispbread"_qs);
        QCOMPARE(found(u"rye bread"_qs), u"Bread, rye, Rye crispbread"_qs);
        QCOMPARE(found(u"brulee CRÈME"_qs), u"Crème brûlée"_qs);
        QCOMPARE(found(u"cream"_qs), u"Ice-cream"_qs);
        QCOMPARE(found(u"ban xyz"_qs), QString());
        QCOMPARE(found(u"ban"_qs, {}, Recordables::Among::Activities), u"Banana picking"_qs);
        QCOMPARE(found(u"r"_qs, {}, Recordables::Among::Meals).count(u"Rowing"_qs), 0);
        QCOMPARE(found(QString()), QString()); // nothing was ever recorded
    }

    // Day 46225 is today.
    void habitsComeFirst()
    {
        const auto at = [](int hour) { return QDateTime(QDate(2026, 7, 22), QTime(hour, 0)); };
        m_journal->exec(
            "insert into MealConsume select value ->> 0, value ->> 1, value ->> 2, (value ->> 3) /"
            " 24.0, value ->> 4 from json_each('"
            // Coffee each morning, banana bread now and then in the afternoon, soup long ago.
            "[[1,7,46225,8,2],[2,7,46224,8,1.5],[3,7,46223,8,1],[4,1,46222,15,3],"
            "[5,1,46215,15,1],[6,3,46000,8,1],[7,3,46001,8,1],[8,3,46002,8,1],[9,3,46003,8,1]]');"
            "insert into ExercisePerform values (1, 1, 46224, 0.75, 0.78125, 25)");
        QCOMPARE(found(QString(), at(8)).section(u", "_qs, 0, 0), u"Coffee"_qs);
        QCOMPARE(found(QString(), at(15)).section(u", "_qs, 0, 0), u"Banana bread"_qs);
        QCOMPARE(found(QString(), at(18)).section(u", "_qs, 0, 0), u"Rowing"_qs);
        QVERIFY(found(QString(), at(8)).endsWith(u"Urban soup"_qs));
        QCOMPARE(found(QString(), at(8)).count(u','), 3); // each of them once, and no others
        // Among matches they decide before the plainness does, and after the words.
        QCOMPARE(found(u"ban"_qs, at(15)), u"Banana bread, Banana, Banana picking, Urban soup"_qs);

        Recordables records;
        records.load(*m_journal->data);
        records.readHabits(*m_journal->data, at(8));
        const auto all = records.find({}, Recordables::Among::All, 100);
        QCOMPARE(all[0]->usualQuantity, Currency::fromInteger(2)); // the one used last
        const auto rowing = records.find({u"row"_qs}, Recordables::Among::All, 1);
        QCOMPARE(rowing[0]->usualQuantity, Currency::fromInteger(25));
        QCOMPARE(rowing[0]->minutes, std::optional(45));
        QCOMPARE(records.find({u"b"_qs}, Recordables::Among::All, 2).size(), 2u);
    }

    void weightsFade()
    {
        const QDateTime now(QDate(2026, 7, 22), QTime(0, 30));
        const auto weight = [&now](int daysAgo, QTime time) {
            return habitWeight(now.date().addDays(-daysAgo), time, now);
        };
        QCOMPARE(weight(0, QTime(0, 30)), 1.0);
        QCOMPARE(weight(14, QTime(0, 30)), 0.5);
        QCOMPARE(weight(-14, QTime(0, 30)), 0.5);                    // of days to come, too
        QCOMPARE(weight(1, QTime(23, 30)), weight(1, QTime(1, 30))); // over midnight
        QVERIFY(weight(0, QTime(2, 0)) < weight(0, QTime(1, 0)));
        QCOMPARE(weight(0, QTime(12, 0)), 0.01);
    }

private:
    std::unique_ptr<TestJournal> m_journal;
};

QTEST_GUILESS_MAIN(tst_recordables)
#include "tst_recordables.moc"
