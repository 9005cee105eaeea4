// The lists of a day: its meals and its activities.
#include "dayjournal.h"

#include "journal/frmExercisePerforms.h"
#include "journal/frmMealConsumes.h"

#include <QDateEdit>
#include <QSignalSpy>

class tst_daylists : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        journal = std::make_unique<DayJournal>();
        journal->exec("insert into MealConsume values"
                      " (1, 1, 46225, 0.5, 0.25), (2, 1, 46225, 0.25, 0.25), (3, 3, 46225, 0.9, 1),"
                      " (4, 2, 46226, 0.5, 1);"
                      "insert into ExercisePerform values (1, 1, 46225, 0.5, 0.75, 2.5),"
                      " (2, 2, 46225, 0.25, 0.5, 10);"
                      "update Common set NextMealConsumeID = 6");
    }
    void meals();
    void activities();
    void followsTheDate();

private:
    std::unique_ptr<DayJournal> journal;
};

void tst_daylists::meals()
{
    const QSignalSpy changed(journal->session.get(), &Session::recordsChanged);
    journal->inList<frmMealConsumes>([&](QWidget &window) {
        // The totals add up the rounded figures: 2 and 2 for 2.5 and 2.5.
        QCOMPARE(shown(window), (QStringList{"06:00|Apple|0.25|2|4|1|7", "12:00|Apple|0.25|2|4|1|7",
                                             "21:36|Crème brûlée|1|150|120|30|300", "||||||",
                                             "|   Total (3 items)||154|128|32|314"}));
        journal->messages.answers = {true};
        selectRow(window, 4); // the totals are no record
        for (const char *button : {"btnEdit", "btnDelete"}) {
            press(window, button);
            QCOMPARE(journal->messages.takeText(), "No record selected");
        }
        selectRow(window, 0);
        press(window, "btnEdit", "frmMealConsume", [](QWidget &editor) {
            typeTime(control<QTimeEdit>(editor, "dtpTime"), "2300");
            press(editor, "btnOK");
        });
        QCOMPARE(selectedRow(window), 2); // it has become the last one
        QCOMPARE(changed.count(), 1);
        press(window, "btnDelete");
        QCOMPARE(shown(window).size(), 4);
        QCOMPARE(selectedRow(window), 2); // positions count the rows that are no records
    });
    QCOMPARE(journal->rows("select MealConsumeID from MealConsume order by 1"),
             (QStringList{"1", "3", "4"}));
}

void tst_daylists::activities()
{
    journal->inList<frmExercisePerforms>([&](QWidget &window) {
        // 17.5 calories are 18 here and 17 in the editor.
        QCOMPARE(shown(window),
                 (QStringList{"06:00|12:00|Walking|10|35", "12:00|18:00|Rowing|2.5|18", "||||",
                              "||   Total (2 items)||53"}));
        journal->messages.answers = {true};
        selectRow(window, 1);
        press(window, "btnDelete");
        QCOMPARE(shown(window), QStringList{"06:00|12:00|Walking|10|35"}); // one, and no totals
    });
    QCOMPARE(journal->activities(), QStringList{"2|2|46225|360|720|10"});
    QVERIFY(!journal->data->rsExercisePerform.isOpen());
}

void tst_daylists::followsTheDate()
{
    const QSignalSpy dayChanged(journal->session.get(), &Session::dayChanged);
    journal->inList<frmMealConsumes>([&](QWidget &window) {
        auto &date = control<QDateEdit>(window, "dtpDate");
        turnWheelOver(date); // in passing
        date.setFocus();
        typeKeys("^22/07/20");
        pressKey(Qt::Key_Tab);
        QCOMPARE(date.text(), "22/07/2026"); // the day that is shown
        date.setFocus();
        typeKeys("^23/07");
        pressKey(Qt::Key_Return);
        QCOMPARE(journal->messages.takeText(), "The Consume Date field contains illegal data");
        pressKey(Qt::Key_N, Qt::AltModifier); // the new one would go to another day than written
        QTRY_VERIFY(!journal->messages.said.empty());
        QCOMPARE(journal->messages.takeText(), "The Consume Date field contains illegal data");
        QCoreApplication::processEvents();
        typeKeys("23/7/26");
        QCOMPARE(dayChanged.count(), 0); // the 2nd was no day that anybody meant
        pressKey(Qt::Key_Return);
        QVERIFY(window.isVisible());
        QCOMPARE(shown(window), QStringList{"12:00|Banana|1|2|90|4|96"});
        QCOMPARE(journal->session->currentDate(), QDate(2026, 7, 23));
        press(window, "btnNew", "frmMealConsume", [](QWidget &editor) {
            choose(editor, "dcbMealCategory", "Dairy");
            press(editor, "btnOK");
        });
        QCOMPARE(selectedRow(window), 1);
        journal->exec("alter table MealConsume rename to Unreadable");
        date.setDate(QDate(2026, 7, 22));
        QCOMPARE(journal->messages.takeText(), "The day can't be shown");
        QCOMPARE(shown(window).size(), 4);
        QCOMPARE(date.date(), QDate(2026, 7, 23));
        journal->exec("alter table Unreadable rename to MealConsume");
    });
    QCOMPARE(journal->meals().last(), "7|3|46226|750|1");
}

QTEST_MAIN(tst_daylists)
#include "tst_daylists.moc"
