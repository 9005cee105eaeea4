// Stored data brought into line with the common parameters.
#include "settings/recalculation.h"
#include "testjournal.h"

#include <QTest>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

CommonParameters metricUser(qint16 weight)
{
    return {weight, u"M"_s, 59};
}

CommonParameters imperialUser(qint16 weight)
{
    return {weight, u"I"_s, 59};
}

const char *const figures = "select Weight, Breast, Waist, Hips, Measurement from Body";

} // namespace

class tst_recalculation : public QObject
{
    Q_OBJECT

private slots:
    void convertsMeasurements_data();
    void convertsMeasurements();
    void convertsTheDeliveredJournal();
    void scalesActivitiesFromTheirBase();
};

void tst_recalculation::convertsMeasurements_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");
    QTest::addColumn<QString>("back");

    // Pounds are cut off and not rounded, inches have one decimal; kilograms have one, centimetres
    // none. So the way there and back loses something, in each system something else.
    QTest::newRow("metric") << u"73.9|97|86|104|M"_s << u"162|38.5|34.1|41.3|I"_s
                            << u"73.5|97|86|104|M"_s;
    QTest::newRow("metric with decimals")
        << u"80.25|97.3|86.6|104.9|M"_s << u"176|38.6|34.4|41.6|I"_s << u"79.8|97|87|105|M"_s;
    QTest::newRow("imperial") << u"165.9|38.3|34.2|41.1|I"_s << u"75.3|97|86|104|M"_s
                              << u"166|38.5|34.1|41.3|I"_s;
    QTest::newRow("an inch is 2.52 centimetres")
        << u"100|10|20|100|I"_s << u"45.4|25|50|252|M"_s << u"100|9.9|19.8|100|I"_s;
    QTest::newRow("half centimetres go to the even neighbour")
        << u"0|12.5|37.5|62.5|I"_s << u"0|32|94|158|M"_s << u"0|12.7|37.3|62.7|I"_s;
    QTest::newRow("below zero, down is away from it")
        << u"-1|-10|0|0|M"_s << u"-3|-4|0|0|I"_s << u"-1.4|-10|0|0|M"_s;
}

void tst_recalculation::convertsMeasurements()
{
    QFETCH(QString, from);
    QFETCH(QString, to);
    QFETCH(QString, back);
    TestJournal journal;
    const QStringList row = from.split(u'|');
    journal.exec(u"insert into Body values (1, 46000, %1, %2, %3, %4, '%5')"_s
                     .arg(row[0], row[1], row[2], row[3], row[4])
                     .toUtf8()
                     .constData());
    const bool metric = row[4] == u"M";
    const CommonParameters own = metric ? metricUser(70) : imperialUser(150);
    const CommonParameters other = metric ? imperialUser(150) : metricUser(70);

    recalculateStoredData(*journal.data, own);
    QCOMPARE(journal.row(figures), from); // nothing to change
    recalculateStoredData(*journal.data, other);
    QCOMPARE(journal.row(figures), to);
    recalculateStoredData(*journal.data, other);
    QCOMPARE(journal.row(figures), to); // harmless when repeated
    recalculateStoredData(*journal.data, own);
    QCOMPARE(journal.row(figures), back);
}

void tst_recalculation::convertsTheDeliveredJournal()
{
    QTemporaryDir folder;
    const QString path = folder.filePath(u"Corvana.mdb"_s);
    QVERIFY(QFile::copy(QStringLiteral(CORVANA_DELIVERED_DATABASE), path));
    QVERIFY(QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner));
    deData data(path);
    Recordset &body = data.rsBodySorted;
    const auto weights = [&] {
        QList<double> all;
        for (body.reopen({Value(QDate(1900, 1, 1))}); !body.isEof(); body.moveNext())
            all << body.number("Weight"_L1);
        body.close();
        return all;
    };
    const QList<double> before = weights();
    QVERIFY(before.size() > 10);

    recalculateStoredData(data, imperialUser(150));
    const QList<double> pounds = weights();
    recalculateStoredData(data, metricUser(70));
    const QList<double> after = weights();
    for (qsizetype i = 0; i < before.size(); ++i) {
        QCOMPARE(pounds[i], std::floor(before[i] / 0.4536));
        QVERIFY(after[i] <= before[i] && after[i] > before[i] - 0.51); // a pound cut off at most
    }
}

void tst_recalculation::scalesActivitiesFromTheirBase()
{
    TestJournal journal;
    journal.exec(
        "insert into Exercise (Name, Unit, CaloriesConsume, CaloriesConsumeBase,"
        " WeightDependent) values ('Walking', 'minute', 1, 3, 1), ('Sauna', 'minute', 5, 3,"
        " 0)");
    const auto calories = [&] {
        return journal.row("select group_concat(round(CaloriesConsume, 6), ' ') from Exercise");
    };
    recalculateStoredData(*journal.data, imperialUser(300));
    QCOMPARE(calories(), u"6.0 5.0"_s);
    recalculateStoredData(*journal.data, metricUser(71));
    QCOMPARE(calories(), u"3.130512 5.0"_s); // 3 x 71 / 68.04, from the base and not from 6
    recalculateStoredData(*journal.data, metricUser(0));
    QCOMPARE(calories(), u"0.0 5.0"_s);
}

QTEST_APPLESS_MAIN(tst_recalculation)
#include "tst_recalculation.moc"
