// The activity performance editor, where it differs from that of meals.
#include "dayjournal.h"

#include "journal/frmExercisePerform.h"

#include <QLabel>

namespace {

void typeTimes(QWidget &editor, const QString &begin, const QString &end)
{
    typeTime(control<QTimeEdit>(editor, "dtpBeginTime"), begin);
    typeTime(control<QTimeEdit>(editor, "dtpEndTime"), end);
}

} // namespace

class tst_exerciseperform : public QObject
{
    Q_OBJECT

private slots:
    void init() { journal = std::make_unique<DayJournal>(); }
    void checksInOrder();

private:
    std::unique_ptr<DayJournal> journal;
};

void tst_exerciseperform::checksInOrder()
{
    // Base times factor lies a little beside the four places that it is meant as.
    journal->exec("update Exercise set CaloriesConsume = 3.4999999 where Name = 'Walking'");
    const auto editor = journal->edit<frmExercisePerform>(0, [this](QWidget &window) {
        typeTimes(window, "2300", "0030");
        type(window, "txtQty", " ");
        choose(window, "dcbExercise", "Walk");
        journal->refuses(window, "dcbExercise",
                         "The Exercise is not specified or specified incorrect", "");
        choose(window, "dcbExercise", "Walking");
        const QString later = "The End Time value should be more than the Begin Time value";
        for (const char *end : {"0030", "2300"}) { // across midnight; no time at all
            typeTimes(window, "2300", end);
            press(window, "btnOK");
            QCOMPARE(journal->messages.takeText(), later);
            QVERIFY(control<QTimeEdit>(window, "dtpEndTime").hasFocus());
        }
        typeTimes(window, "2300", "2331");
        type(window, "txtQty", "2");
        QCOMPARE(control<QLabel>(window, "lblCalories").text(), "7");
        type(window, "txtQty", " ");
        journal->refuses(window, "txtQty", "The Quantity should be specified", "1 1");
        journal->refuses(window, "txtQty", "The Quantity field contains illegal data", "-30");
        QCOMPARE(journal->row("select NextExercisePerformID from Common"), "1");
        press(window, "btnOK");
    });
    QCOMPARE(editor->storedId(), 2);
    journal->edit<frmExercisePerform>(2, [](QWidget &window) {
        QCOMPARE(textOf(window, "txtQty"), "-30"); // and not what is usual
        press(window, "btnOK");
    });
    QCOMPARE(journal->activities(), QStringList{"2|2|46225|1380|1411|-30"});
    QCOMPARE(journal->row("select NextExercisePerformID from Common"), "2");
    QCOMPARE(journal->session->currentTime(), QTime(23, 0));
}

QTEST_MAIN(tst_exerciseperform)
#include "tst_exerciseperform.moc"
