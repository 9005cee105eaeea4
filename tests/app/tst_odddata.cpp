// Rows that no window of this program wrote, and damaged pages: each harms itself alone. What
// another program changes and deletes meanwhile is noticed.
#include "app/frmMain.h"
#include "catalogue/frmExercises.h"
#include "catalogue/frmMealCategories.h"
#include "catalogue/frmMeals.h"
#include "dayjournal.h"
#include "journal/frmBody.h"
#include "journal/frmExercisePerform.h"
#include "journal/frmExercisePerforms.h"
#include "journal/frmMealConsume.h"
#include "journal/frmMealConsumes.h"
#include "journal/frmMeasurements.h"

#include <QLabel>

namespace {

const QString refused =
    "Can't store this record in database. Please check whether all data are valid";

/// What a list window says of rows that it doesn't show.
QString missing(const QWidget &window)
{
    QString text;
    for (const QLabel *label : window.findChildren<QLabel *>(u"lblMissing"_qs))
        text += label->text();
    return text;
}

} // namespace

class tst_odddata : public QObject
{
    Q_OBJECT

private slots:
    void oddRowsHarmThemselvesAlone();
    void damagedPagesHarmTheirTableAlone();
    void recordsChangedMeanwhile();
    void unitsChangedMeanwhile();
};

void tst_odddata::oddRowsHarmThemselvesAlone()
{
    DayJournal journal;
    journal.exec("insert into MealConsume values (1, 1, 46225, 0.25, 1),"
                 " (1099511627776, 1, 46225, 0.5, 1), (2, 1, 46225, 0.5, 1e300),"
                 " (3, 1, 46225, 1.75, 'much'), (4, 1, 46225, 9e999, x'00'),"
                 " (5, 1, 46225, -0.25, 922337203685477.5807);"
                 "insert into ExercisePerform values (-9000000000, 1, 46225, 0.5, 0.75, 1),"
                 " (1, 1, 46225, 0.5, 0.25, -9e999), (2, 1, 46225, 'noon', 9e999, 1);"
                 "insert into Body values (1099511627776, 46225, 1, 1, 1, 1, 'M'),"
                 " (1, 46225, 1e300, 'x', x'00', 1, 'Z'), (2, 1e300, 1, 1, 1, 1, ''),"
                 " (3, 'today', 1, 1, 1, 1, 'I'), (4, 109000000, 1, 1, 1, 1, 'M');"
                 "insert into UserNote values (1, -700000, 46225, 'a'), (2, 46225, 9e18, 'b'),"
                 " (3, 46225, 'x', 'c');"
                 "insert into Meal select 1099511627776, MealCategoryID, 'Odd', 'a', 1, 1, 1, 1, 1,"
                 " 1, 1, 1, 1 from Meal where MealID = 1;"
                 "update Meal set Increment = 1e300 where MealID = 1");
    frmMain window(*journal.session, journal.messages);
    window.show();
    QTRY_COMPARE(journal.messages.said.size(), size_t(1));
    window.RePaintGraph();
    QCOMPARE(journal.messages.said.size(), size_t(1)); // once for a day
    QCOMPARE(journal.messages.takeText(), "22 Jul 2026 is not shown in full");
    window.hide();

    journal.inList<frmMealConsumes>([&](QWidget &list) {
        QVERIFY(missing(list).endsWith("out of range: 1."));
        QStringList quantities;
        for (const QString &row : shown(list))
            quantities += row.section(u'|', 2, 2);
        QCOMPARE(quantities,
                 (QStringList{"922337203685477.5807", "1", "1e+300", "much", "", "", ""}));
        journal.messages.answers = {true};
        selectRow(list, 0);
        press(list, "btnDelete");
        QVERIFY(journal.messages.takeText().contains("Are you sure"));
        QCOMPARE(shown(list).last(), "|   Total (4 items)|||||");
    });
    // It can be mended.
    journal.edit<frmMealConsume>(2, [&](QWidget &editor) {
        QCOMPARE(textOf(editor, "txtQty"), "1e+300");
        journal.refuses(editor, "txtQty", "The Quantity field contains illegal data", "2");
        press(editor, "btnOK");
    });
    QCOMPARE(journal.row("select Qty from MealConsume where MealConsumeID = 2"), "2");
    journal.inList<frmExercisePerforms>([](QWidget &list) {
        QVERIFY(missing(list).endsWith("out of range: 1."));
        QCOMPARE(shown(list).size(), 4);
    });
    frmMeasurements measurements(*journal.session, journal.messages);
    measurements.show();
    QCOMPARE(shown(measurements, "lvwMeasurementList"),
             (QStringList{"22/07/2026|1e+300|x||1", "11/11/300331|1|1|1|1", "1e+300|1|1|1|1",
                          "today|1|1|1|1"}));
    QCOMPARE(shown(measurements, "lvwNoteList").size(), 3);
    QCOMPARE(journal.messages.takeText(), QString());
}

// Of a table whose first page is overwritten no window can show anything, but all of them open.
void tst_odddata::damagedPagesHarmTheirTableAlone()
{
    for (const QString table : {"MealConsume", "ExercisePerform", "Meal", "Exercise", "Body",
                                "UserNote", "sqlite_autoindex_MealCategory_1"}) {
        DayJournal journal;
        journal.exec("insert into MealConsume values (1, 1, 46225, 0.25, 1);"
                     "insert into ExercisePerform values (1, 1, 46225, 0.25, 0.5, 1);"
                     "insert into Body values (1, 46225, 1, 1, 1, 1, 'M');"
                     "insert into UserNote values (1, 46225, 46225, 'a')");
        journal.damagePageOf(table);

        frmMain window(*journal.session, journal.messages);
        window.show();
        QCoreApplication::processEvents();
        QString told;
        if (!journal.messages.said.empty())
            told = journal.messages.said.front().cause;
        const auto listen = [&](QWidget &list) { told += missing(list); };
        journal.inList<frmMealConsumes>(listen);
        journal.inList<frmExercisePerforms>(listen);
        journal.inList<frmMealCategories>(listen);
        journal.inList<frmMeals>(listen);
        journal.inList<frmExercises>(listen);
        frmMeasurements measurements(*journal.session, journal.messages);
        listen(measurements);
        if (table != "MealConsume")
            journal.edit<frmMealConsume>(0, [](QWidget &) {});
        if (table != "ExercisePerform")
            journal.edit<frmExercisePerform>(0, [](QWidget &) {});
        QVERIFY2(told.contains("The database file is damaged"), qPrintable(table));
    }
}

// Refused once; whoever has read that stores over it.
void tst_odddata::recordsChangedMeanwhile()
{
    DayJournal journal;
    journal.exec("insert into Body values (5, 46222, 80, 100, 90, 95, 'M');"
                 "insert into MealConsume values (7, 1, 46225, 0.25, 3), (8, 1, 46225, 0.5, 3)");
    Connection other(journal.path());
    journal.edit<frmBody>(5, [&](QWidget &dialog) {
        type(dialog, "txtWaist", "88");
        other.exec("update Body set Waist = 91");
        press(dialog, "btnOK");
        QVERIFY(journal.messages.said.front().cause.startsWith(
            "Another program has changed the record"));
        QCOMPARE(journal.messages.takeText(), refused);
        QCOMPARE(textOf(dialog, "txtWaist"), "88");
        QCOMPARE(journal.row("select Waist from Body"), "91");
        press(dialog, "btnOK");
        QVERIFY(journal.messages.said.empty());
    });
    QCOMPARE(journal.row("select Waist from Body"), "88");
    journal.inList<frmMealConsumes>([&](QWidget &window) {
        selectRow(window, 0);
        other.exec("delete from MealConsume where MealConsumeID = 7");
        press(window, "btnEdit"); // opens no empty editor
        QCOMPARE(journal.messages.said.front().cause, "The record has been deleted meanwhile.");
        QCOMPARE(shown(window).size(), 1);
    });
}

// Kilograms must not be stored as pounds.
void tst_odddata::unitsChangedMeanwhile()
{
    DayJournal journal;
    Connection other(journal.path());
    journal.edit<frmBody>(0, [&](QWidget &dialog) {
        for (const char *box : {"txtWeight", "txtBreast", "txtWaist", "txtHips"})
            type(dialog, box, "70");
        other.exec("update Common set Measurement = 'I', weight = 154");
        press(dialog, "btnOK");
        QVERIFY(journal.messages.said.front().cause.startsWith(
            "Another program has changed the common parameters"));
        QCOMPARE(journal.messages.takeText(), refused);
        QCOMPARE(textOf(dialog, "txtWeight"), "70");
        QCOMPARE(control<QLabel>(dialog, "lblWeightUnit").text(), "lb");
        type(dialog, "txtWeight", "154");
        press(dialog, "btnOK");
    });
    QCOMPARE(journal.row("select Weight, Measurement from Body"), "154|I");
    QCOMPARE(journal.session->parameters().weight, qint16(154));
}

QTEST_MAIN(tst_odddata)
#include "tst_odddata.moc"
