// The common parameters dialog: what it shows, stores and brings into line.
#include "guitest.h"
#include "settings/frmCommon.h"
#include "testjournal.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

/// The dialog's controls, once it is open.
struct Controls
{
    void accept() { QTest::mouseClick(&control<QPushButton>(dialog, "btnOK"), Qt::LeftButton); }

    QWidget &dialog;
    QLineEdit &weight = control<QLineEdit>(dialog, "txtWeight");
    QLineEdit &rate = control<QLineEdit>(dialog, "txtMetabolicRate");
    QComboBox &units = control<QComboBox>(dialog, "cbxMeasurement");
    QLabel &unit = control<QLabel>(dialog, "lblWeightUnit");
};

} // namespace

class tst_common : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_journal = std::make_unique<TestJournal>(QLocale(QLocale::German, QLocale::Germany));
        m_messages = {};
        m_journal->exec("insert into Exercise (Name, Unit, CaloriesConsume, CaloriesConsumeBase,"
                        " WeightDependent) values ('Walking', 'minute', 1, 68.04, 1),"
                        " ('Sauna', 'minute', 5, 3, 0);"
                        "insert into Body values (1, 46000, 150, 40, 30, 35, 'I'),"
                        " (2, 46001, 70.123, 90.5, 80, 95, 'M')");
    }

    void storedBackgroundCaloriesWin()
    {
        m_journal->exec("update Common set weight = 70.5, metabolicRate = 61.25");
        QVERIFY(edit([](Controls form) {
            QCOMPARE(form.rate.text(), u"61,25"_s);
            turnWheelOver(form.units);
            QCOMPARE(form.unit.text(), u"kg"_s);
            form.accept();
        }));
        // Without a change, too, everything is brought into line, with the whole weight: halves go
        // to the even number.
        QCOMPARE(stored(), u"70.5|61.25|M|70.0,5.0"_s);
        QCOMPARE(m_journal->session->parameters().weight, qint16(70));
        QCOMPARE(m_journal->row("select * from Body"),
                 u"1|46000|68|101|76|88|M\n2|46001|70.123|90.5|80|95|M"_s);
        QCOMPARE(m_messages.takeText(),
                 u"All existing data will be recalculated according with new common parameters. "
                 "Your results may change now"_s);
    }

    void everyKeystrokeEstimatesAnew()
    {
        QVERIFY(edit([](Controls form) {
            typeInto(form.weight, u"7"_s);
            QCOMPARE(form.rate.text(), u"37"_s);
            typeInto(form.weight, u"71x"_s); // x: no number, nothing happens
            QCOMPARE(form.rate.text(), u"60"_s);
            QTest::keyClick(&form.weight, Qt::Key_Backspace);
            typeInto(form.rate, u"1"_s);
            form.units.showPopup();
            QTest::keyClick(form.units.view(), Qt::Key_Return); // the item shown already
            QCOMPARE(form.rate.text(), u"60"_s);
            typeInto(form.rate, u"55,5"_s); // the user knows better
            form.accept();
        }));
        QCOMPARE(stored(), u"71|55.5|M|71.0,5.0"_s);
    }

    void unitSwitchKeepsTheWeight()
    {
        m_journal->exec("update Common set weight = 150, Measurement = 'X'");
        QVERIFY(edit([](Controls form) {
            QCOMPARE(form.unit.text(), u"lb"_s); // an unknown code is read as imperial
            QTest::keyClick(&form.units, Qt::Key_Down);
            QCOMPARE(form.unit.text(), u"kg"_s);
            QCOMPARE(form.weight.text(), u"150"_s);
            QCOMPARE(form.rate.text(), u"88"_s); // (150 x 8.7 + 830) / 24
            QTest::keyClick(&form.units, Qt::Key_Up);
            QCOMPARE(form.rate.text(), u"59"_s); // 150 lb are 68.04 kg
            form.accept();
        }));
        QCOMPARE(stored(), u"150|59|I|68.04,5.0"_s);
    }

    void refuses_data()
    {
        QTest::addColumn<QString>("weight");
        QTest::addColumn<QString>("rate");
        QTest::addColumn<QString>("message");
        const auto weight = u"The Weight is not specified or specified incorrect"_s;
        const auto rate =
            u"The Background Calories Consume is not specified or specified incorrect"_s;
        const auto store = u"Can't store information in database."_s;
        QTest::newRow("both missing") << u""_s << u""_s << weight;
        QTest::newRow("a point where the comma is decimal") << u"70.5"_s << u"59"_s << weight;
        QTest::newRow("no rate") << u"-1"_s << u"5 9"_s << rate;
        QTest::newRow("refused by the database") << u"80"_s << u"59"_s << store;
        QTest::newRow("beyond 16 bits once rounded") << u"32767,5"_s << u"59"_s << store;
    }

    void refuses()
    {
        QFETCH(QString, weight);
        QFETCH(QString, rate);
        m_journal->exec("create trigger Refuse before update on Common when new.weight = 80"
                        " begin select raise(abort, 'no'); end");
        QVERIFY(!edit([&](Controls form) {
            typeInto(form.weight, weight);
            typeInto(form.rate, rate);
            form.accept();
            QVERIFY(form.dialog.isVisible());
            QTEST(m_messages.takeText(), "message");
        }));
        QCOMPARE(stored(), u"70|59|M|1.0,5.0"_s);
        QCOMPARE(m_journal->row("select group_concat(Measurement) from Body"), u"I,M"_s);
    }

    void escapeStoresNothing()
    {
        QVERIFY(!edit([](Controls form) {
            typeInto(form.weight, u"80"_s);
            QTest::keyClick(&form.dialog, Qt::Key_Escape);
            QVERIFY(!form.dialog.isVisible());
        }));
        QCOMPARE(stored(), u"70|59|M|1.0,5.0"_s);
    }

private:
    /// Whether the parameters were stored.
    bool edit(const std::function<void(Controls)> &steps)
    {
        frmCommon dialog(*m_journal->session, m_messages);
        const auto open = [&] { dialog.run(); };
        inDialog("frmCommon", open, [&](QWidget &window) { steps(Controls{window}); });
        return dialog.OkPressed();
    }
    QString stored()
    {
        return m_journal->row("select weight, metabolicRate, Measurement,"
                              " (select group_concat(round(CaloriesConsume, 4)) from Exercise)"
                              " from Common");
    }

    std::unique_ptr<TestJournal> m_journal;
    RecordedMessages m_messages;
};

QTEST_MAIN(tst_common)
#include "tst_common.moc"
