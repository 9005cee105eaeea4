// The body measurement editor: what it stores, what it asks, and what a refusal leaves behind.
#include "dayjournal.h"

#include "journal/frmBody.h"

#include <QDateEdit>
#include <QLabel>

namespace {

const QDate today(2026, 7, 22);
constexpr char sameDate[] = "There is already Body Measurement for this date in the database. Do "
                            "you want to replace it?";
constexpr char refused[] =
    "Can't store this record in database. Please check whether all data are valid";

void setDate(QWidget &dialog, QDate date)
{
    control<QDateEdit>(dialog, "dtpDate").setDate(date);
}

} // namespace

class tst_body : public QObject
{
    Q_OBJECT

private slots:
    void init() { journal = std::make_unique<DayJournal>(QLocale("de_DE")); }
    void takesTypedDate_data();
    void takesTypedDate();
    void checksAndStores();
    void yesReplacesTheOtherOnly();

private:
    QString stored()
    {
        return journal->row("select BodyID, DateMeasured - 46225, Weight, Breast, Waist, Hips, "
                            "Measurement from Body order by BodyID");
    }

    std::unique_ptr<DayJournal> journal;
};

void tst_body::takesTypedDate_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("date"); // none where it is refused
    const auto row = [](const char *name, const char *locale, const QString &keys,
                        const char *date) {
        QTest::newRow(name) << QString(locale) << keys << QString(date);
    };
    row("as written", "bg_BG", u"3.05.2025 г."_qs, "2025-05-03");
    row("over all", "de_DE", "^3/5/2025", "2025-05-03");
    row("year alone", "de_DE", ">>2025", "2025-07-22");
    row("half-typed year", "de_DE", ">>20", "");
    row("a thousand years off", "de_DE", "^3.5.1025", "");
}

void tst_body::takesTypedDate()
{
    QFETCH(QString, locale);
    QFETCH(QString, keys);
    QFETCH(QString, date);
    journal = std::make_unique<DayJournal>(QLocale(locale));
    journal->edit<frmBody>(0, [&](QWidget &dialog) {
        auto &picker = control<QDateEdit>(dialog, "dtpDate");
        typeKeys(keys);
        const QString seen = picker.text();
        for (const char *number : {"70", "98", "85", "94"}) {
            pressKey(Qt::Key_Tab); // which leaves the date, in the midst of it too
            typeKeys(number);
        }
        pressKey(Qt::Key_Return);
        const bool isRefused = date.isEmpty();
        QCOMPARE(journal->messages.takeText(),
                 isRefused ? "The Date field contains illegal data" : QString());
        if (!isRefused)
            return;
        QCOMPARE(picker.text(), seen);
        QVERIFY(picker.hasFocus());
    });
    QCOMPARE(journal->row("select date(DateMeasured + 2415018.5), Weight, Hips from Body"),
             date.isEmpty() ? QString() : date + "|70|94");
}

void tst_body::checksAndStores()
{
    journal->setUser(154, "I");
    journal->exec("insert into Body values (10, 46225, 80, 100, 90, 95, 'M')");
    const auto editor = journal->edit<frmBody>(0, [this](QWidget &dialog) {
        QCOMPARE(control<QLabel>(dialog, "lblWeightUnit").text(), "lb");
        QCOMPARE(control<QLabel>(dialog, "lblGirthUnit").text(), "inch");
        type(dialog, "txtBreast", "98.5");
        type(dialog, "txtWaist", "80 cm");
        type(dialog, "txtHips", "1000000000000000");
        const QString girth("The %1 measurement is not specified or contains illegal data");
        journal->refuses(dialog, "txtWeight",
                         "The Weight is not specified or contains illegal data", "70,45678");
        journal->refuses(dialog, "txtBreast", girth.arg("Breast"), "0");
        journal->refuses(dialog, "txtWaist", girth.arg("Waist"), "-3");
        journal->refuses(dialog, "txtHips", girth.arg("Hips"), " 95,5 ");
        QCOMPARE(journal->row("select NextBodyID from Common"), "1");
        press(dialog, "btnOK"); // answered with No
        QVERIFY(journal->messages.said.back().isQuestion);
        QCOMPARE(journal->messages.said.back().title, "Same date");
        QCOMPARE(journal->messages.takeText(), sameDate);
        QCOMPARE(stored(), "10|0|80|100|90|95|M");
        setDate(dialog, today.addDays(1));
        press(dialog, "btnOK");
    });
    // The first OK has taken identifier 2 before the question; it is lost.
    QCOMPARE(editor->storedId(), 3);
    QCOMPARE(stored(), "3|1|70.4568|0|-3|95.5|I\n10|0|80|100|90|95|M");
}

// What is not edited stays as it was, in its own units.
void tst_body::yesReplacesTheOtherOnly()
{
    journal->exec("insert into Body values (10, 46225, 80, 100, 90, 95, 'M'),"
                  " (-4, 46224, 160.5, 38.1, 34.2, 37.3, 'I');"
                  "create trigger Refuse before update on Body begin"
                  " select raise(abort, 'no room'); end");
    journal->messages.answers = {true};
    journal->edit<frmBody>(-4, [this](QWidget &dialog) {
        QCOMPARE(textOf(dialog, "txtWeight"), "160,5");
        type(dialog, "txtWaist", "33");
        setDate(dialog, today);
        press(dialog, "btnOK");
        QCOMPARE(journal->messages.said.front().text, sameDate);
        QCOMPARE(journal->messages.takeText(), refused);
        QCOMPARE(stored(), "-4|-1|160.5|38.1|34.2|37.3|I"); // the other stays deleted all the same
        journal->exec("drop trigger Refuse");
        press(dialog, "btnOK"); // begins anew, and finds no other any more
    });
    QVERIFY(journal->messages.said.empty());
    QCOMPARE(stored(), "-4|0|160.5|38.1|33|37.3|I");

    journal->exec("insert into Body values (10, 46224, 80, 100, 90, 95, 'M')");
    journal->messages.answers = {true};
    journal->edit<frmBody>(-4, [this](QWidget &dialog) {
        journal->exec("delete from Body where BodyID = -4");
        setDate(dialog, today.addDays(-1));
        press(dialog, "btnOK");
        QCOMPARE(journal->messages.said.back().cause, "The record has been deleted meanwhile.");
        QCOMPARE(journal->messages.takeText(), refused);
    });
    QCOMPARE(stored(), "10|-1|80|100|90|95|M"); // nothing is deleted on the way to the refusal
}

QTEST_MAIN(tst_body)
#include "tst_body.moc"
