// The common parameters dialog: what it shows, stores and brings into line.
#include "dayjournal.h"
#include "settings/frmCommon.h"
#include "settings/recalculation.h"

#include <QAbstractItemView>
#include <QLabel>

using namespace Qt::StringLiterals;

class tst_common : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_journal = std::make_unique<DayJournal>(QLocale(QLocale::German, QLocale::Germany));
        m_journal->exec("update Exercise set CaloriesConsumeBase = 68.04, WeightDependent = 1"
                        " where Name = 'Walking';"
                        "insert into Body values (1, 46000, 150, 40, 30, 35, 'I')");
    }

    void storedBackgroundCaloriesWin()
    {
        m_journal->exec("update Common set weight = 70.5, metabolicRate = 61.25");
        QVERIFY(edit([](QWidget &form) {
            QCOMPARE(textOf(form, "txtMetabolicRate"), u"61,25"_s);
            turnWheelOver(control<QComboBox>(form, "cbxMeasurement"));
            QCOMPARE(unit(form), u"kg"_s);
            press(form, "btnOK");
        }));
        // Without a change, too, everything is brought into line, with the whole weight: halves go
        // to the even number.
        QCOMPARE(stored(), u"70.5|61.25|M|7.0,70.0"_s);
        QCOMPARE(m_journal->session->parameters().weight, qint16(70));
        QCOMPARE(m_journal->row("select * from Body"), u"1|46000|68|101|76|88|M"_s);
        QCOMPARE(m_journal->messages.takeText(),
                 u"All existing data will be recalculated according with new common parameters. "
                 "Your results may change now"_s);
    }

    void everyKeystrokeEstimatesAnew()
    {
        QVERIFY(edit([](QWidget &form) {
            type(form, "txtWeight", u"7"_s);
            QCOMPARE(textOf(form, "txtMetabolicRate"), u"37"_s);
            type(form, "txtWeight", u"71x"_s); // x: no number, nothing happens
            QCOMPARE(textOf(form, "txtMetabolicRate"), u"60"_s);
            pressKey(Qt::Key_Backspace);
            type(form, "txtMetabolicRate", u"1"_s);
            units(form).showPopup();
            QTest::keyClick(units(form).view(), Qt::Key_Return); // the item shown already
            QCOMPARE(textOf(form, "txtMetabolicRate"), u"60"_s);
            type(form, "txtMetabolicRate", u"55,5"_s); // the user knows better
            press(form, "btnOK");
        }));
        QCOMPARE(stored(), u"71|55.5|M|7.0,71.0"_s);
    }

    void unitSwitchKeepsTheWeight()
    {
        m_journal->exec("update Common set weight = 150, Measurement = 'X'");
        QVERIFY(edit([](QWidget &form) {
            QCOMPARE(unit(form), u"lb"_s); // an unknown code is read as imperial
            QTest::keyClick(&units(form), Qt::Key_Down);
            QCOMPARE(unit(form), u"kg"_s);
            QCOMPARE(textOf(form, "txtWeight"), u"150"_s);
            QCOMPARE(textOf(form, "txtMetabolicRate"), u"88"_s); // (150 x 8.7 + 830) / 24
            QTest::keyClick(&units(form), Qt::Key_Up);
            QCOMPARE(textOf(form, "txtMetabolicRate"), u"59"_s); // 150 lb are 68.04 kg
            press(form, "btnOK");
        }));
        QCOMPARE(stored(), u"150|59|I|7.0,68.04"_s);
    }

    void refuses()
    {
        const QString weight = u"The Weight is not specified or specified incorrect"_s;
        QVERIFY(!edit([&](QWidget &form) {
            type(form, "txtWeight", {});
            type(form, "txtMetabolicRate", {});
            m_journal->refuses(form, "txtWeight", weight, u"70.5"_s); // the comma is decimal
            m_journal->refuses(form, "txtWeight", weight, u"-1"_s);
            type(form, "txtMetabolicRate", u"5 9"_s);
            m_journal->refuses(
                form, "txtMetabolicRate",
                u"The Background Calories Consume is not specified or specified incorrect"_s,
                u"59"_s);
            type(form, "txtWeight", u"32767,5"_s); // beyond 16 bits once rounded
            press(form, "btnOK");
            QCOMPARE(m_journal->messages.takeText(), u"Can't store information in database."_s);
        }));
        QCOMPARE(stored(), u"70|59|M|7.0,3.5"_s);
    }

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

private:
    /// Whether the parameters were stored.
    bool edit(const std::function<void(QWidget &)> &steps)
    {
        frmCommon dialog(*m_journal->session, m_journal->messages);
        const auto open = [&] { dialog.run(); };
        inDialog("frmCommon", open, steps);
        return dialog.OkPressed();
    }
    static QComboBox &units(const QWidget &form)
    {
        return control<QComboBox>(form, "cbxMeasurement");
    }
    static QString unit(const QWidget &form)
    {
        return control<QLabel>(form, "lblWeightUnit").text();
    }
    QString stored()
    {
        return m_journal->row("select weight, metabolicRate, Measurement,"
                              " (select group_concat(round(CaloriesConsume, 4)) from Exercise)"
                              " from Common");
    }

    std::unique_ptr<DayJournal> m_journal;
};

QTEST_MAIN(tst_common)
#include "tst_common.moc"
