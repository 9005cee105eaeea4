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

constexpr int imperialItem = 0;
constexpr int metricItem = 1;

QString field(QWidget &dialog, const char *name)
{
    return control<QLineEdit>(dialog, name).text();
}

void choose(QWidget &dialog, int item)
{
    auto &box = control<QComboBox>(dialog, "cbxMeasurement");
    box.setFocus();
    QTest::keyClick(&box, item == metricItem ? Qt::Key_Down : Qt::Key_Up);
    QCOMPARE(box.currentIndex(), item);
}

void press(QWidget &dialog, const char *button)
{
    QTest::mouseClick(&control<QWidget>(dialog, button), Qt::LeftButton);
}

} // namespace

class tst_common : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void storedBackgroundCaloriesWin();
    void everyKeystrokeEstimatesAnew();
    void unitSwitchKeepsTheWeight();
    void wholeWeightScalesTheActivities();
    void bringsEverythingIntoLineWithoutAChange();
    void readsAnUnknownCodeAsImperial();
    void refusesWhatIsNoNumber_data();
    void refusesWhatIsNoNumber();
    void refusedStoreChangesNothing_data();
    void refusedStoreChangesNothing();
    void firstStartCanOnlyBeAccepted();
    void cancelStoresNothing();

private:
    /// Whether the parameters were stored.
    bool edit(const std::function<void(QWidget &)> &steps, bool firstStart = false);
    QString stored()
    {
        return m_journal->row("select weight, metabolicRate, Measurement from Common");
    }

    std::unique_ptr<TestJournal> m_journal;
    RecordedMessages m_messages;
};

void tst_common::init()
{
    m_journal = std::make_unique<TestJournal>(QLocale(QLocale::German, QLocale::Germany));
    m_messages = {};
    m_journal->exec("insert into Exercise (Name, Unit, CaloriesConsume, CaloriesConsumeBase,"
                    " WeightDependent) values ('Walking', 'minute', 1, 68.04, 1)");
}

bool tst_common::edit(const std::function<void(QWidget &)> &steps, bool firstStart)
{
    frmCommon dialog(*m_journal->session, m_messages);
    dialog.setFirstStart(firstStart);
    inDialog(
        "frmCommon", [&] { dialog.run(); }, steps);
    return dialog.OkPressed();
}

void tst_common::storedBackgroundCaloriesWin()
{
    m_journal->exec("update Common set weight = 70.5, metabolicRate = 61.25");
    QVERIFY(edit([](QWidget &dialog) {
        QCOMPARE(field(dialog, "txtWeight"), u"70,5"_s);
        QCOMPARE(field(dialog, "txtMetabolicRate"), u"61,25"_s);
        QCOMPARE(control<QComboBox>(dialog, "cbxMeasurement").currentIndex(), metricItem);
        QCOMPARE(control<QLabel>(dialog, "lblWeightUnit").text(), u"kg"_s);
        press(dialog, "btnOK");
    }));
    QCOMPARE(stored(), u"70.5|61.25|M"_s);
    QCOMPARE(m_journal->session->parameters().weight, qint16(70)); // a half goes to the even number
    QCOMPARE(m_journal->session->parameters().metabolicRate, 61.25);
}

void tst_common::everyKeystrokeEstimatesAnew()
{
    QVERIFY(edit([](QWidget &dialog) {
        auto &weight = control<QLineEdit>(dialog, "txtWeight");
        typeInto(weight, u"7"_s);
        QCOMPARE(field(dialog, "txtMetabolicRate"), u"37"_s);
        QTest::keyClicks(&weight, u"1"_s);
        QCOMPARE(field(dialog, "txtMetabolicRate"), u"60"_s);
        QTest::keyClicks(&weight, u"x"_s); // no number: nothing happens
        QCOMPARE(field(dialog, "txtMetabolicRate"), u"60"_s);
        QTest::keyClick(&weight, Qt::Key_Backspace);
        auto &rate = control<QLineEdit>(dialog, "txtMetabolicRate");
        typeInto(rate, u"1"_s);
        auto &units = control<QComboBox>(dialog, "cbxMeasurement");
        units.showPopup();
        QTest::keyClick(units.view(), Qt::Key_Return); // the item shown already
        QCOMPARE(rate.text(), u"60"_s);
        typeInto(rate, u"55,5"_s); // the user knows better
        press(dialog, "btnOK");
    }));
    QCOMPARE(stored(), u"71|55.5|M"_s);
}

void tst_common::unitSwitchKeepsTheWeight()
{
    m_journal->exec("update Common set weight = 150, Measurement = 'I'");
    m_journal->exec("insert into Body values (1, 46000, 150, 40, 30, 35, 'I')");
    QVERIFY(edit([](QWidget &dialog) {
        QCOMPARE(control<QLabel>(dialog, "lblWeightUnit").text(), u"lb"_s);
        choose(dialog, metricItem);
        QCOMPARE(control<QLabel>(dialog, "lblWeightUnit").text(), u"kg"_s);
        QCOMPARE(field(dialog, "txtWeight"), u"150"_s);
        QCOMPARE(field(dialog, "txtMetabolicRate"), u"88"_s); // (150 x 8.7 + 830) / 24
        choose(dialog, imperialItem);
        QCOMPARE(field(dialog, "txtMetabolicRate"), u"59"_s); // 150 lb are 68.04 kg
        choose(dialog, metricItem);
        press(dialog, "btnOK");
    }));
    QCOMPARE(stored(), u"150|88|M"_s);
    QCOMPARE(m_journal->row("select * from Body"), u"1|46000|68|101|76|88|M"_s);
    // 68.04 calories at the reference weight of 68.04 kg.
    QCOMPARE(m_journal->row("select round(CaloriesConsume, 4) from Exercise"), u"150"_s);
}

void tst_common::wholeWeightScalesTheActivities()
{
    QVERIFY(edit([](QWidget &dialog) {
        typeInto(control<QLineEdit>(dialog, "txtWeight"), u"70,6"_s);
        press(dialog, "btnOK");
    }));
    QCOMPARE(m_journal->row("select weight from Common"), u"70.6"_s);
    QCOMPARE(m_journal->session->parameters().weight, qint16(71));
    QCOMPARE(m_journal->row("select round(CaloriesConsume, 4) from Exercise"), u"71"_s);
    QCOMPARE(m_messages.said.size(), size_t(1));
    QVERIFY(m_messages.said.front().icon == Messages::Icon::Information);
    QCOMPARE(m_messages.takeText(),
             u"All existing data will be recalculated according with new common parameters. Your "
             "results may change now"_s);
}

void tst_common::bringsEverythingIntoLineWithoutAChange()
{
    m_journal->exec("insert into Body values (1, 46000, 70.123, 90.5, 80, 95, 'M'),"
                    " (2, 46001, 150, 40, 30, 35, 'I')");
    QVERIFY(edit([](QWidget &dialog) { press(dialog, "btnOK"); }));
    QCOMPARE(stored(), u"70|59|M"_s);
    QCOMPARE(m_journal->rows("select * from Body"),
             (QStringList{u"1|46000|70.123|90.5|80|95|M"_s, u"2|46001|68|101|76|88|M"_s}));
    QCOMPARE(m_journal->row("select round(CaloriesConsume, 4) from Exercise"), u"70"_s);
}

void tst_common::readsAnUnknownCodeAsImperial()
{
    m_journal->exec("update Common set Measurement = 'X'");
    QVERIFY(edit([](QWidget &dialog) {
        QCOMPARE(control<QComboBox>(dialog, "cbxMeasurement").currentIndex(), imperialItem);
        QCOMPARE(control<QLabel>(dialog, "lblWeightUnit").text(), u"lb"_s);
        press(dialog, "btnOK");
    }));
    QCOMPARE(stored(), u"70|59|I"_s);
}

void tst_common::refusesWhatIsNoNumber_data()
{
    QTest::addColumn<QString>("weight");
    QTest::addColumn<QString>("rate");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("focus");

    const auto weight = u"The Weight is not specified or specified incorrect"_s;
    const auto rate = u"The Background Calories Consume is not specified or specified incorrect"_s;
    QTest::newRow("both missing") << u""_s << u""_s << weight << u"txtWeight"_s;
    QTest::newRow("a point where the comma is decimal")
        << u"70.5"_s << u"59"_s << weight << u"txtWeight"_s;
    QTest::newRow("rate") << u"-1"_s << u"5 9"_s << rate << u"txtMetabolicRate"_s;
}

void tst_common::refusesWhatIsNoNumber()
{
    QFETCH(QString, weight);
    QFETCH(QString, rate);
    QFETCH(QString, message);
    QFETCH(QString, focus);
    QVERIFY(!edit([&](QWidget &dialog) {
        typeInto(control<QLineEdit>(dialog, "txtWeight"), weight);
        typeInto(control<QLineEdit>(dialog, "txtMetabolicRate"), rate);
        press(dialog, "btnOK");
        QVERIFY(dialog.isVisible());
        QCOMPARE(dialog.focusWidget()->objectName(), focus);
    }));
    QCOMPARE(m_messages.said.size(), size_t(1));
    QCOMPARE(m_messages.takeText(), message);
    QCOMPARE(stored(), u"70|59|M"_s);
}

void tst_common::refusedStoreChangesNothing_data()
{
    QTest::addColumn<QString>("weight");
    QTest::addColumn<bool>("refusal");

    QTest::newRow("the database refuses") << u"80"_s << true;
    QTest::newRow("beyond 16 bits") << u"32768"_s << false;
    QTest::newRow("beyond 16 bits once rounded") << u"32767,5"_s << false;
}

void tst_common::refusedStoreChangesNothing()
{
    QFETCH(QString, weight);
    QFETCH(bool, refusal);
    m_journal->exec("insert into Body values (1, 46000, 150, 40, 30, 35, 'I')");
    if (refusal)
        m_journal->exec("create trigger Refuse before update on Common begin"
                        " select raise(abort, 'no'); end");
    QVERIFY(!edit([&](QWidget &dialog) {
        typeInto(control<QLineEdit>(dialog, "txtWeight"), weight);
        press(dialog, "btnOK");
        QVERIFY(dialog.isVisible());
        QCOMPARE(m_messages.said.size(), size_t(1));
        QCOMPARE(m_messages.takeText(), u"Can't store information in database."_s);
        QCOMPARE(field(dialog, "txtWeight"), weight);
    }));
    QCOMPARE(stored(), u"70|59|M"_s);
    QCOMPARE(m_journal->row("select Measurement from Body"), u"I"_s);
    QCOMPARE(m_journal->row("select CaloriesConsume from Exercise"), u"1"_s);
    QCOMPARE(m_journal->session->parameters().weight, qint16(70));
}

void tst_common::firstStartCanOnlyBeAccepted()
{
    QVERIFY(edit(
        [](QWidget &dialog) {
            QVERIFY(!control<QPushButton>(dialog, "btnCancel").isEnabled());
            QTest::keyClick(&dialog, Qt::Key_Escape);
            QVERIFY(dialog.isVisible());
            dialog.close();
            QVERIFY(dialog.isVisible());
            press(dialog, "btnOK");
            QVERIFY(!dialog.isVisible());
        },
        true));
    QVERIFY(m_messages.said.empty());
}

void tst_common::cancelStoresNothing()
{
    QVERIFY(!edit([](QWidget &dialog) {
        typeInto(control<QLineEdit>(dialog, "txtWeight"), u"80"_s);
        choose(dialog, imperialItem);
        QTest::keyClick(&dialog, Qt::Key_Escape);
        QVERIFY(!dialog.isVisible());
    }));
    QCOMPARE(stored(), u"70|59|M"_s);
    QVERIFY(!m_journal->data->rsCommon.isOpen());
}

QTEST_MAIN(tst_common)
#include "tst_common.moc"
