// Stored data brought into line with the common parameters.
#include "settings/recalculation.h"
#include "testjournal.h"

#include <QTest>

using namespace Qt::StringLiterals;

class tst_recalculation : public QObject
{
    Q_OBJECT

private slots:
    // Pounds are cut off and not rounded, inches have one decimal; kilograms have one, centimetres
    // none. So the way there and back loses something, in each system something else.
    void convertsMeasurements()
    {
        const QString rows[][3] = {
            {u"80.25|97.3|86.6|104.9|M"_s, u"176|38.6|34.4|41.6|I"_s, u"79.8|97|87|105|M"_s},
            {u"165.9|38.3|34.2|41.1|I"_s, u"75.3|97|86|104|M"_s, u"166|38.5|34.1|41.3|I"_s},
            // An inch is 2.52 centimetres; half centimetres go to the even neighbour.
            {u"100|12.5|37.5|100|I"_s, u"45.4|32|94|252|M"_s, u"100|12.7|37.3|100|I"_s},
            // Below zero, down is away from it.
            {u"-1|-10|0|0|M"_s, u"-3|-4|0|0|I"_s, u"-1.4|-10|0|0|M"_s}};
        for (const auto &[from, to, back] : rows) {
            TestJournal journal;
            const QString values = from.chopped(1).replace(u'|', u',');
            const QString unit = from.right(1);
            journal.exec(
                u"insert into Body values (1, 46000, %1'%2')"_s.arg(values, unit).toLatin1());
            const CommonParameters own{70, unit, 59};
            const CommonParameters other{70, unit == u"M" ? u"I"_s : u"M"_s, 59};
            for (const auto &[parameters, expected] :
                 {std::pair(own, from), std::pair(other, to), std::pair(other, to),
                  std::pair(own, back)}) {
                recalculateStoredData(*journal.data, parameters);
                QCOMPARE(journal.row("select Weight, Breast, Waist, Hips, Measurement from Body"),
                         expected);
            }
        }
    }
};

QTEST_APPLESS_MAIN(tst_recalculation)
#include "tst_recalculation.moc"
