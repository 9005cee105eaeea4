// Another program on the same file: what it holds, changes and deletes is noticed.
#include "app/frmMain.h"
#include "journal/frmBody.h"
#include "journal/frmMealConsumes.h"

#include "../journal/dayjournal.h"

#include <QLabel>

using namespace Qt::Literals;

namespace {

const QString refused =
    u"Can't store this record in database. Please check whether all data are valid"_s;

} // namespace

class tst_twoprograms : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        journal = std::make_unique<DayJournal>();
        journal->exec(
            "insert into Body values (5, 46222, 80, 100, 90, 95, 'M');"
            "insert into MealConsume values (7, 1, 46225, 0.25, 3), (8, 1, 46225, 0.5, 3)");
        other = std::make_unique<Connection>(journal->path());
    }
    void cleanup() { other.reset(); }

    void changedRecord();
    void changedUnits();
    void deletedRecord();
    void heldFile();

private:
    std::unique_ptr<DayJournal> journal;
    std::unique_ptr<Connection> other;
};

// Refused once; whoever has read that stores over it.
void tst_twoprograms::changedRecord()
{
    journal->edit<frmBody>(5, [&](QWidget &dialog) {
        type(dialog, "txtWaist", u"88"_s);
        other->exec("update Body set Waist = 91");
        press(dialog, "btnOK");
        QVERIFY(journal->messages.said.front().cause.startsWith(
            u"Another program has changed the record"_s));
        QCOMPARE(journal->messages.takeText(), refused);
        QCOMPARE(textOf(dialog, "txtWaist"), u"88"_s);
        QCOMPARE(journal->row("select Waist from Body"), u"91"_s);
        press(dialog, "btnOK");
        QVERIFY(journal->messages.said.empty());
    });
    QCOMPARE(journal->row("select Waist from Body"), u"88"_s);
}

// Kilograms must not be stored as pounds.
void tst_twoprograms::changedUnits()
{
    journal->edit<frmBody>(0, [&](QWidget &dialog) {
        for (const char *box : {"txtWeight", "txtBreast", "txtWaist", "txtHips"})
            type(dialog, box, u"70"_s);
        other->exec("update Common set Measurement = 'I', weight = 154");
        press(dialog, "btnOK");
        QVERIFY(journal->messages.said.front().cause.startsWith(
            u"Another program has changed the common parameters"_s));
        QCOMPARE(journal->messages.takeText(), refused);
        QCOMPARE(textOf(dialog, "txtWeight"), u"70"_s);
        QCOMPARE(control<QLabel>(dialog, "lblWeightUnit").text(), u"lb"_s);
        QCOMPARE(control<QLineEdit>(dialog, "txtHips").accessibleDescription(), u"inch"_s);
        type(dialog, "txtWeight", u"154"_s);
        press(dialog, "btnOK");
    });
    QCOMPARE(journal->row("select Weight, Measurement from Body where BodyID <> 5"), u"154|I"_s);
    QCOMPARE(journal->session->parameters().weight, qint16(154));
}

void tst_twoprograms::deletedRecord()
{
    journal->inList<frmMealConsumes>([&](QWidget &window) {
        selectRow(window, 0);
        other->exec("delete from MealConsume where MealConsumeID = 7");
        press(window, "btnEdit"); // opens no empty editor
        QCOMPARE(journal->messages.said.front().cause, u"The record has been deleted meanwhile."_s);
        QCOMPARE(shown(window).size(), 1);
    });
}

// The day that is shown stays, in the date box as in the chart.
void tst_twoprograms::heldFile()
{
    journal->exec("PRAGMA busy_timeout=0");
    frmMain window(*journal->session, journal->messages);
    window.show();
    const QString day = textOf(window, "txtDate");
    other->exec("begin exclusive");
    press(window, "btnNext");
    QCOMPARE(journal->messages.said.size(), size_t(1));
    QCOMPARE(journal->messages.said.front().cause, u"Another program is using the database."_s);
    QCOMPARE(journal->messages.takeText(),
             u"23 Jul 2026 can't be shown; the chart stays as it was"_s);
    QCOMPARE(textOf(window, "txtDate"), day);
    QCOMPARE(journal->session->currentDate(), QDate(2026, 7, 22));
    other->exec("rollback");
    press(window, "btnNext");
    QCOMPARE(textOf(window, "txtDate"), u"23 Jul 2026"_s);
}

QTEST_MAIN(tst_twoprograms)
#include "tst_twoprograms.moc"
