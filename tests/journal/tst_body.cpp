// The body measurement editor: what it stores, what it asks, and what a refusal leaves behind.
#include "guitest.h"
#include "journal/frmBody.h"
#include "testjournal.h"

#include <QDateEdit>
#include <QLabel>
#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace {

const QDate today(2026, 7, 22);
const auto sameDate =
    u"There is already Body Measurement for this date in the database. Do you want to replace it?"_s;
const auto refused =
    u"Can't store this record in database. Please check whether all data are valid"_s;

// Weight, breast, waist, hips.
void enter(QWidget &dialog, const QStringList &numbers)
{
    int next = 0;
    for (const char *box : {"txtWeight", "txtBreast", "txtWaist", "txtHips"})
        typeInto(control<QLineEdit>(dialog, box), numbers.at(next++));
}

void setDate(QWidget &dialog, QDate date)
{
    control<QDateEdit>(dialog, "dtpDate").setDate(date);
}

void press(QWidget &dialog, const char *button)
{
    QTest::mouseClick(&control<QWidget>(dialog, button), Qt::LeftButton);
}

QString labels(QWidget &dialog)
{
    return control<QLabel>(dialog, "lblWeightUnit").text() + u' ' +
           control<QLabel>(dialog, "lblGirthUnit").text();
}

} // namespace

class tst_body : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void storesANewMeasurement();
    void labelsAndCodeFollowTheUnitSystem();
    void showsAndKeepsWhatIsNotEdited();
    void refusesWhatIsNoNumber_data();
    void refusesWhatIsNoNumber();
    void noKeepsBothMeasurements();
    void yesReplacesTheOther();
    void otherStaysDeletedWhenTheStoreFails();
    void refusesARecordThatIsGone();

private:
    // Opens the editor, does the steps; whether something was stored.
    bool edit(qint32 id, const std::function<void(QWidget &)> &steps);
    QString stored()
    {
        return m_journal->row("select BodyID, DateMeasured - 46225, Weight, Breast, Waist, Hips, "
                              "Measurement from Body order by BodyID");
    }
    void addMeasurement(int id, int daysFromToday);

    std::unique_ptr<TestJournal> m_journal;
    RecordedMessages m_messages;
    qint32 m_storedId = 0;
};

void tst_body::init()
{
    m_journal = std::make_unique<TestJournal>(QLocale(QLocale::German, QLocale::Germany));
    m_messages = {};
    QCOMPARE(dayNumber(today), 46225);
}

bool tst_body::edit(qint32 id, const std::function<void(QWidget &)> &steps)
{
    frmBody editor(*m_journal->session, m_messages);
    inDialog(
        "frmBody", [&] { editor.run(id); }, steps);
    m_storedId = editor.storedId();
    return editor.OkPressed();
}

void tst_body::addMeasurement(int id, int daysFromToday)
{
    SQLite::Statement statement(m_journal->data->Con.database(),
                                "insert into Body values (?, ?, 80, 100, 90, 95, 'M')");
    statement.bind(1, id);
    statement.bind(2, 46225 + daysFromToday);
    statement.exec();
}

void tst_body::storesANewMeasurement()
{
    QVERIFY(edit(0, [](QWidget &dialog) {
        QCOMPARE(dialog.windowTitle(), u"Body Measurement - New"_s);
        QCOMPARE(control<QDateEdit>(dialog, "dtpDate").date(), today);
        QCOMPARE(control<QLineEdit>(dialog, "txtWeight").text(), QString());
        setDate(dialog, today.addDays(-2));
        enter(dialog, {u"70,45678"_s, u"0"_s, u"-3"_s, u" 95,5 "_s});
        press(dialog, "btnOK");
    }));
    QCOMPARE(stored(), u"2|-2|70.4568|0|-3|95.5|M"_s);
    QCOMPARE(m_storedId, 2);
    QCOMPARE(m_journal->row("select NextBodyID from Common"), u"2"_s);
    QVERIFY(m_messages.said.empty());
}

void tst_body::labelsAndCodeFollowTheUnitSystem()
{
    edit(0, [](QWidget &dialog) { QCOMPARE(labels(dialog), u"kg cm"_s); });
    m_journal->exec("update Common set Measurement = 'I'");
    m_journal->data->rsCommon.close();
    m_journal->session->readCommonParameters();
    QVERIFY(edit(0, [](QWidget &dialog) {
        QCOMPARE(labels(dialog), u"lb inch"_s);
        enter(dialog, {u"160"_s, u"38"_s, u"34"_s, u"37"_s});
        press(dialog, "btnOK");
    }));
    QCOMPARE(stored(), u"2|0|160|38|34|37|I"_s);
}

void tst_body::showsAndKeepsWhatIsNotEdited()
{
    m_journal->exec("insert into Body values (-4, 46200, 160.5, 38.1, 34.2, 37.3, 'I')");
    QVERIFY(edit(-4, [](QWidget &dialog) {
        QCOMPARE(dialog.windowTitle(), u"Body Measurement"_s);
        QCOMPARE(control<QDateEdit>(dialog, "dtpDate").date(), today.addDays(-25));
        QCOMPARE(control<QLineEdit>(dialog, "txtWeight").text(), u"160,5"_s);
        QCOMPARE(control<QLineEdit>(dialog, "txtBreast").text(), u"38,1"_s);
        QCOMPARE(control<QLineEdit>(dialog, "txtWaist").text(), u"34,2"_s);
        QCOMPARE(control<QLineEdit>(dialog, "txtHips").text(), u"37,3"_s);
        typeInto(control<QLineEdit>(dialog, "txtWaist"), u"33"_s);
        press(dialog, "btnOK");
    }));
    QCOMPARE(stored(), u"-4|-25|160.5|38.1|33|37.3|I"_s);
    QCOMPARE(m_storedId, -4);
    QCOMPARE(m_journal->row("select NextBodyID from Common"), u"1"_s);
    QVERIFY(m_messages.said.empty()); // it is not another measurement of its own date
}

void tst_body::refusesWhatIsNoNumber_data()
{
    QTest::addColumn<QStringList>("numbers");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("focus");

    QTest::newRow("nothing entered: the weight comes first")
        << QStringList{{}, {}, {}, {}} << u"The Weight is not specified or contains illegal data"_s
        << u"txtWeight"_s;
    QTest::newRow("a point where the comma is decimal")
        << QStringList{u"70"_s, u"98.5"_s, u"x"_s, {}}
        << u"The Breast measurement is not specified or contains illegal data"_s << u"txtBreast"_s;
    QTest::newRow("a unit behind the number")
        << QStringList{u"70"_s, u"98"_s, u"80 cm"_s, {}}
        << u"The Waist measurement is not specified or contains illegal data"_s << u"txtWaist"_s;
    QTest::newRow("beyond what a decimal holds")
        << QStringList{u"70"_s, u"98"_s, u"80"_s, u"1000000000000000"_s}
        << u"The Hips measurement is not specified or contains illegal data"_s << u"txtHips"_s;
}

void tst_body::refusesWhatIsNoNumber()
{
    QFETCH(QStringList, numbers);
    QFETCH(QString, message);
    QFETCH(QString, focus);
    QVERIFY(!edit(0, [&](QWidget &dialog) {
        enter(dialog, numbers);
        press(dialog, "btnOK");
        QVERIFY(dialog.isVisible());
        QCOMPARE(dialog.focusWidget()->objectName(), focus);
    }));
    QCOMPARE(m_messages.said.size(), size_t(1));
    QCOMPARE(m_messages.said.front().title, u"Error"_s);
    QVERIFY(m_messages.said.front().icon == Messages::Icon::Exclamation);
    QCOMPARE(m_messages.said.front().text, message);
    QCOMPARE(m_journal->row("select NextBodyID from Common"), u"1"_s);
}

void tst_body::noKeepsBothMeasurements()
{
    addMeasurement(10, 0);
    m_messages.answers = {false};
    QVERIFY(edit(0, [this](QWidget &dialog) {
        enter(dialog, {u"70"_s, u"98"_s, u"85"_s, u"94"_s});
        press(dialog, "btnOK");
        QVERIFY(dialog.isVisible());
        QCOMPARE(m_messages.said.back().title, u"Same date"_s);
        QVERIFY(m_messages.said.back().isQuestion);
        QCOMPARE(m_messages.takeText(), sameDate);
        QCOMPARE(stored(), u"10|0|80|100|90|95|M"_s);
        QCOMPARE(control<QLineEdit>(dialog, "txtHips").text(), u"94"_s);

        setDate(dialog, today.addDays(1));
        press(dialog, "btnOK");
    }));
    // The first OK has taken identifier 2 before the question; it is lost.
    QCOMPARE(stored(), u"3|1|70|98|85|94|M\n10|0|80|100|90|95|M"_s);
    QVERIFY(m_messages.said.empty());
}

void tst_body::yesReplacesTheOther()
{
    addMeasurement(10, 0);
    addMeasurement(11, -1);
    m_messages.answers = {true};
    QVERIFY(edit(11, [](QWidget &dialog) {
        setDate(dialog, today);
        typeInto(control<QLineEdit>(dialog, "txtWeight"), u"79"_s);
        press(dialog, "btnOK");
    }));
    QCOMPARE(m_messages.takeText(), sameDate);
    QCOMPARE(stored(), u"11|0|79|100|90|95|M"_s);
    QCOMPARE(m_storedId, 11);
}

void tst_body::otherStaysDeletedWhenTheStoreFails()
{
    addMeasurement(10, 0);
    m_journal->exec("create trigger Refuse before insert on Body begin"
                    " select raise(abort, 'no room'); end");
    m_messages.answers = {true};
    QVERIFY(edit(0, [this](QWidget &dialog) {
        enter(dialog, {u"70"_s, u"98"_s, u"85"_s, u"94"_s});
        press(dialog, "btnOK");
        QVERIFY(dialog.isVisible());
        QCOMPARE(m_messages.said.size(), size_t(2));
        QCOMPARE(m_messages.takeText(), refused);
        QCOMPARE(stored(), QString());
        QCOMPARE(control<QLineEdit>(dialog, "txtWeight").text(), u"70"_s);

        m_journal->exec("drop trigger Refuse");
        press(dialog, "btnOK"); // begins anew, and finds no other any more
    }));
    QVERIFY(m_messages.said.empty());
    QCOMPARE(stored(), u"3|0|70|98|85|94|M"_s);
}

void tst_body::refusesARecordThatIsGone()
{
    addMeasurement(10, 0);
    addMeasurement(11, -1);
    QVERIFY(!edit(11, [this](QWidget &dialog) {
        m_journal->exec("delete from Body where BodyID = 11"); // as another program would
        press(dialog, "btnOK");
        QCOMPARE(m_messages.takeText(), refused);
    }));
    // Gone before the editor was opened: nothing is deleted on the way to the refusal.
    m_messages.answers = {true};
    QVERIFY(!edit(11, [this](QWidget &dialog) {
        enter(dialog, {u"70"_s, u"98"_s, u"85"_s, u"94"_s});
        press(dialog, "btnOK");
        QCOMPARE(m_messages.takeText(), refused);
    }));
    QCOMPARE(stored(), u"10|0|80|100|90|95|M"_s);
}

QTEST_MAIN(tst_body)
#include "tst_body.moc"
