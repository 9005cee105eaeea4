// Copies of a day's entries on another day.
#include "dayjournal.h"

#include "journal/frmCopyDay.h"
#include "journal/frmCopyTo.h"
#include "journal/frmMealConsumes.h"

#include <QAction>
#include <QComboBox>
#include <QDateEdit>
#include <QLabel>
#include <QRadioButton>
#include <QSignalSpy>

using namespace Qt::Literals;

class tst_copyday : public QObject
{
    Q_OBJECT

private slots:
    /// Yesterday, 21 July, has three entries and the day shown none.
    void init()
    {
        journal = std::make_unique<DayJournal>();
        journal->exec("insert into MealConsume values (7, 3, 46224, 0.75, 1.5),"
                      " (-2, 1, 46224, 0.25, 0.25);"
                      "insert into ExercisePerform values (4, 2, 46224, 0.5, 0.53125, 45);"
                      "update Common set NextMealConsumeID = 10, NextExercisePerformID = 20");
    }
    void copiesWhatIsChecked();
    void shiftsWithinTheDay();
    void worksByKeysAlone();
    void refusesWhatItCantCopy();
    void takesNothingThatChangedMeanwhile();
    void showsWhatItCanRead();
    void copiesToADay();

private:
    /// The steps in the window; what it says it has copied.
    QString copyDay(const std::function<void(QWidget &)> &steps)
    {
        frmCopyDay window(*journal->session, journal->messages);
        std::optional<EntryCopies> copies;
        inDialog(
            "frmCopyDay", [&] { copies = window.run(); }, steps);
        return copies ? copies->told : QString();
    }
    static bool turn(const QWidget &window, int row)
    {
        QAbstractItemModel &model = *control<QTreeView>(window, "lvwList").model();
        const QModelIndex box = model.index(row, 0);
        const bool wasChecked = box.data(Qt::CheckStateRole).toInt() == Qt::Checked;
        model.setData(box, wasChecked ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
        return wasChecked;
    }
    /// Presses Copy, which is refused with this message, and nothing is stored.
    void refuses(QWidget &window, const QString &message, const char *focus)
    {
        const QStringList before = everything();
        press(window, "btnOK");
        QVERIFY(window.isVisible());
        QCOMPARE(journal->messages.said.size(), 1u);
        QCOMPARE(journal->messages.takeText(), message);
        activate(window);
        QVERIFY2(control<QWidget>(window, focus).hasFocus(), focus);
        QCOMPARE(everything(), before);
    }
    QStringList everything()
    {
        return journal->meals() + journal->activities() +
               journal->rows("select NextMealConsumeID, NextExercisePerformID from Common");
    }

    std::unique_ptr<DayJournal> journal;
};

void tst_copyday::copiesWhatIsChecked()
{
    const QSignalSpy changed(journal->session.get(), &Session::recordsChanged);
    const QStringList before = journal->meals() + journal->activities();
    const QString told = copyDay([](QWidget &window) {
        QCOMPARE(control<QDateEdit>(window, "dtpDate").date(), QDate(2026, 7, 21));
        QCOMPARE(control<QLabel>(window, "lblDay").text(), "Copied to: 22 Jul 2026");
        QCOMPARE(shown(window), (QStringList{"06:00|Meal|Apple|0.25|piece|7",
                                             "18:00|Meal|Crème brûlée|1.5|cup|450",
                                             "12:00–12:45|Activity|Walking|45|minute|158"}));
        QVERIFY(turn(window, 0)); // was checked, as all are
        press(window, "btnOK");
        QVERIFY(!window.isVisible());
    });
    QCOMPARE(told, "2 entries copied to 22 Jul 2026");
    QCOMPARE(journal->meals(),
             (QStringList{"-2|1|46224|360|0.25", "7|3|46224|1080|1.5", "11|3|46225|1080|1.5"}));
    QCOMPARE(journal->activities(), (QStringList{"4|2|46224|720|765|45", "21|2|46225|720|765|45"}));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(journal->session->history().next(Direction::Backward)->description,
             "Copying 2 Entries");
    journal->session->history().take(Direction::Backward);
    QCOMPARE(journal->meals() + journal->activities(), before);
    QVERIFY(!journal->session->history().next(Direction::Backward));
    // Numbers that were taken back are not given once more.
    const QString one = copyDay([](QWidget &window) {
        press(window, "btnCheckNone");
        QVERIFY(!turn(window, 1));
        press(window, "btnOK");
    });
    QCOMPARE(one, "Crème brûlée copied to 22 Jul 2026");
    QCOMPARE(journal->meals().last(), "12|3|46225|1080|1.5");
    QCOMPARE(copyDay([](QWidget &window) { press(window, "btnCancel"); }), QString());
}

void tst_copyday::shiftsWithinTheDay()
{
    const auto shiftBy = [](QWidget &window, const QString &span, const QString &direction) {
        typeInto(control<QLineEdit>(window, "txtSpan"), span);
        control<QComboBox>(window, "cbxDirection").setCurrentText(direction);
        QVERIFY(control<QRadioButton>(window, "optShift").isChecked()); // by typing
    };
    copyDay([&](QWidget &window) {
        shiftBy(window, "24:00", "later");
        refuses(window, "The span should be hours and minutes, such as 1:30, and less than a day",
                "txtSpan");
        QCOMPARE(textOf(window, "txtSpan"), "24:00");
        const QString leaves = "%1 would leave the day when shifted by this span. Nothing was "
                               "copied.";
        shiftBy(window, "6:00", "later"); // to 24:00
        refuses(window, leaves.arg("Crème brûlée at 18:00"), "txtSpan");
        shiftBy(window, "6:01", "earlier");
        refuses(window, leaves.arg("Apple at 06:00"), "txtSpan");
        turn(window, 0);
        turn(window, 1);
        shiftBy(window, "11:15", "later"); // it would begin on the day, and end on the next
        refuses(window, leaves.arg("Walking at 12:00"), "txtSpan");
        shiftBy(window, "11:14", "later");
        press(window, "btnOK");
    });
    QCOMPARE(journal->activities().last(), "21|2|46225|1394|1439|45");
    copyDay([&](QWidget &window) {
        shiftBy(window, "6:00", "earlier"); // to midnight
        press(window, "btnOK");
    });
    QCOMPARE(journal->meals().mid(2), (QStringList{"11|1|46225|0|0.25", "12|3|46225|720|1.5"}));
    QCOMPARE(journal->activities().last(), "22|2|46225|360|405|45");
    copyDay([&](QWidget &window) {
        shiftBy(window, "nonsense", "later");
        control<QRadioButton>(window, "optKeep").click(); // whatever span is left there
        press(window, "btnOK");
    });
    QCOMPARE(journal->meals().last(), "14|3|46225|1080|1.5");
}

void tst_copyday::worksByKeysAlone()
{
    const QString told = copyDay([&](QWidget &window) {
        auto &list = control<QTreeView>(window, "lvwList");
        auto &state = control<QLabel>(window, "lblState");
        QCOMPARE(QApplication::focusWidget(), &list);
        pressKey(Qt::Key_D, Qt::AltModifier); // to the picker
        typeKeys("^20/07/2026");
        pressKey(Qt::Key_Return); // shows the day, and copies nothing
        QVERIFY(window.isVisible() && state.isVisible());
        QCOMPARE(shown(window), QStringList());
        QCOMPARE(state.text(), "Nothing is recorded on 20 Jul 2026");
        pressKey(Qt::Key_D, Qt::AltModifier);
        typeKeys("^21/07/2026");
        pressKey(Qt::Key_O, Qt::AltModifier); // Copy, and yet the day is to be seen first
        QTRY_COMPARE(QApplication::focusWidget(), &list);
        QVERIFY(window.isVisible() && !state.isVisible());
        QCOMPARE(shown(window).size(), 3);
        press(window, "btnCheckNone");
        list.setFocus();
        pressKey(Qt::Key_End);
        pressKey(Qt::Key_Space);
        pressKey(Qt::Key_S, Qt::AltModifier);
        QTRY_VERIFY(control<QRadioButton>(window, "optShift").isChecked());
        pressKey(Qt::Key_Tab);
        typeKeys("^0:30");
        pressKey(Qt::Key_Return);
        QVERIFY(!window.isVisible());
    });
    QCOMPARE(told, "Walking copied to 22 Jul 2026");
    QCOMPARE(journal->activities().last(), "21|2|46225|750|795|45");
    QCOMPARE(journal->meals().size(), 2);
}

void tst_copyday::refusesWhatItCantCopy()
{
    // At the end of the identifiers, with a meal before the activity that has none left.
    journal->exec("update Common set NextExercisePerformID = 32767");
    copyDay([&](QWidget &window) {
        const QStringList before = everything();
        press(window, "btnOK");
        QCOMPARE(journal->messages.said.front().cause,
                 "A number is outside the range of what can be stored.");
        QCOMPARE(journal->messages.takeText(), "The copy can't be stored");
        QCOMPARE(everything(), before);
        QVERIFY(!journal->data->Con.isInTransaction());
        press(window, "btnCheckNone");
        refuses(window, "No entry is checked", "lvwList");
        auto &date = control<QDateEdit>(window, "dtpDate");
        date.setFocus();
        typeKeys("^21/07");
        refuses(window, "The Day to Copy from field contains illegal data", "dtpDate");
        QCOMPARE(date.text(), "21/07");
    });
}

void tst_copyday::takesNothingThatChangedMeanwhile()
{
    const QSignalSpy announced(journal->session.get(), &Session::recordsChanged);
    Connection other(journal->path());
    copyDay([&](QWidget &window) {
        turn(window, 0);
        const std::pair<const char *, const char *> changes[] = {
            {"update MealConsume set Qty = 2 where MealConsumeID = 7",
             "Another program has changed an entry meanwhile."},
            {"delete from MealConsume where MealConsumeID = 7",
             "The record has been deleted meanwhile."}};
        for (const auto &[change, cause] : changes) {
            other.exec(change);
            const QStringList before = journal->meals() + journal->activities();
            press(window, "btnOK");
            QCOMPARE(journal->messages.said.front().cause, QString(cause));
            QCOMPARE(journal->messages.takeText(), "The copy can't be stored");
            QCOMPARE(journal->meals() + journal->activities(), before);
        }
        QVERIFY(!journal->session->history().next(Direction::Backward));
        QCOMPARE(announced.count(), 0);
        QCOMPARE(shown(window), (QStringList{"06:00|Meal|Apple|0.25|piece|7",
                                             "12:00–12:45|Activity|Walking|45|minute|158"}));
        QVERIFY(!turn(window, 0)); // the choice is still there
        press(window, "btnOK");
        QVERIFY(!window.isVisible());
    });
    QCOMPARE(journal->meals().size(), 2);
}

void tst_copyday::showsWhatItCanRead()
{
    journal->exec("insert into MealConsume values (3000000000, 1, 46224, 0.25, 0.25),"
                  " (8, 3, 46224, 1.4999, 'odd'), (3000000001, 1, 46220, 0.25, 0.25)");
    copyDay([&](QWidget &window) {
        QCOMPARE(shown(window).size(), 4); // the first one can't be referred to
        const auto &state = control<QLabel>(window, "lblState");
        QVERIFY(state.text().contains("out of range: 1."));
        control<QDateEdit>(window, "dtpDate").setDate(QDate(2026, 7, 17));
        QVERIFY(state.text().contains("out of range: 1.") && !state.text().contains("Nothing"));
        control<QDateEdit>(window, "dtpDate").setDate(QDate(2026, 7, 21));
        journal->exec("alter table MealConsume rename to Unreadable");
        control<QDateEdit>(window, "dtpDate").setDate(QDate(2026, 7, 20));
        QCOMPARE(journal->messages.takeText(), "The day can't be shown");
        QCOMPARE(shown(window).size(), 4);
        QCOMPARE(control<QDateEdit>(window, "dtpDate").date(), QDate(2026, 7, 21));
        journal->exec("alter table Unreadable rename to MealConsume");
        press(window, "btnOK");
        QVERIFY(!window.isVisible());
    });
    // As they are stored, whatever that is.
    QCOMPARE(journal->rows("select ConsumeTime, Qty from MealConsume where MealID = 3"
                           " and ConsumeDate = 46225 order by 1"),
             (QStringList{"0.75|1.5", "1.4999|odd"}));
}

// A single one, from the menu of the list of its day.
void tst_copyday::copiesToADay()
{
    journal->session->setCurrentDate(QDate(2026, 7, 21));
    journal->inList<frmMealConsumes>([&](QWidget &window) {
        const auto choose = [&](const char *entry) { control<QAction>(window, entry).trigger(); };
        selectRow(window, 3); // the totals
        for (const char *entry : {"mnuCopyToday", "mnuCopyTo", "mnuShowSubject"}) {
            choose(entry);
            QCOMPARE(journal->messages.takeText(), "No record selected");
        }
        selectRow(window, 1);
        choose("mnuCopyToday");
        QCOMPARE(journal->meals().last(), "11|3|46225|1080|1.5");
        QCOMPARE(control<QLabel>(window, "lblTold").text(), "Crème brûlée copied to 22 Jul 2026");
        QCOMPARE(selectedRow(window), 1);
        inDialog(
            "frmCopyTo", [&] { choose("mnuCopyTo"); },
            [&](QWidget &dialog) {
                auto &date = control<QDateEdit>(dialog, "dtpDate");
                QCOMPARE(date.date(), QDate(2026, 7, 22));
                QTRY_COMPARE(QApplication::focusWidget(), &date);
                typeKeys("<"); // the day is missing
                pressKey(Qt::Key_Return);
                QCOMPARE(journal->messages.takeText(), "The Date field contains illegal data");
                activate(dialog);
                typeKeys("^21/07/2026");
                pressKey(Qt::Key_Return);
                QVERIFY(!dialog.isVisible());
            });
        QCOMPARE(journal->meals().last(), "12|3|46224|1080|1.5");
        QCOMPARE(selectedRow(window), 2); // the copy, on the day shown
        inDialog(
            "frmMeal", [&] { choose("mnuShowSubject"); },
            [&](QWidget &editor) {
                QCOMPARE(textOf(editor, "txtName"), "Crème brûlée");
                type(editor, "txtUnit", "bowl");
                press(editor, "btnOK");
            });
        QCOMPARE(selectedRow(window), 2);
        journal->exec("delete from MealConsume where MealConsumeID = 12");
        choose("mnuCopyToday");
        QCOMPARE(journal->messages.said.front().cause, "The record has been deleted meanwhile.");
        QCOMPARE(shown(window).size(), 4);
    });
    UndoHistory &history = journal->session->history();
    history.take(Direction::Backward); // the unit
    QCOMPARE(history.next(Direction::Backward)->description, "Copying Crème brûlée");
    QCOMPARE(history.next(Direction::Backward)->day, QDate(2026, 7, 21));
}

QTEST_MAIN(tst_copyday)
#include "tst_copyday.moc"
