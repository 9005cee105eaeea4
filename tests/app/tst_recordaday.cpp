// The whole program, from its start to the row in the file and the item on the chart.
#include "app/frmMain.h"
#include "app/startup.h"
#include "chart/TrellumGraph.h"
#include "dayjournal.h"
#include "session/installation.h"
#include "ui/datacombo.h"

#include <QAccessible>
#include <QAction>
#include <QLabel>

using namespace Qt::Literals;

class tst_recordaday : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void addsMeals();
    void addsActivity();
    void answersTheChart();
    void editsFromTheChart();

private:
    QWidget &mainWindow() { return *program->mainWindow(); }
    TrellumGraph &graph() { return control<TrellumGraph>(mainWindow(), "graph"); }
    void choose(const char *entry) { control<QAction>(mainWindow(), entry).trigger(); }
    /// What the chart tells of its items of a kind: "Meal at 12:30, 96 kcal".
    QStringList onChart(const QString &kind)
    {
        const QAccessibleInterface &chart = *QAccessible::queryAccessibleInterface(&graph());
        QStringList items;
        for (int i = 0; i < chart.childCount(); ++i) {
            const QString name = chart.child(i)->text(QAccessible::Name);
            if (name.startsWith(kind))
                items += name.section(u": "_qs, 0, 0);
        }
        return items;
    }

    std::unique_ptr<DayJournal> journal;
    std::unique_ptr<StartUp> program;
};

void tst_recordaday::init()
{
    program.reset();
    journal = std::make_unique<DayJournal>();
    Installation(journal->folder.path()).setFirstStartDone();
    program = std::make_unique<StartUp>(
        StartUpSettings{Installation(journal->folder.path()), journal->clock,
                        QLocale(QLocale::English, QLocale::UnitedKingdom), journal->messages});
    QVERIFY(program->run());
    QVERIFY(QTest::qWaitForWindowActive(&mainWindow()));
    QCOMPARE(onChart(u"Meal at"_qs), QStringList());
}

void tst_recordaday::addsMeals()
{
    inDialog(
        "frmMealConsume", [&] { choose("mnuAddMeal"); },
        [&](QWidget &editor) {
            control<DataCombo>(editor, "dcbMealCategory").setFocus();
            typeKeys(u"fru"_qs);
            pressKey(Qt::Key_Tab);
            typeKeys(u"ban"_qs);
            pressKey(Qt::Key_Tab);
            pressKey(Qt::Key_Return);
            // The chart behind the dialog follows at once.
            QVERIFY(editor.isVisible());
            QCOMPARE(onChart(u"Meal at"_qs), QStringList{u"Meal at 12:30, 96 kcal"_qs});
            QCOMPARE(control<QLabel>(editor, "lblAdded").text(), u"Added: Banana, 1, 12:30"_qs);
            typeKeys(u"dairy"_qs);
            pressKey(Qt::Key_Tab);
            typeTime(control<QTimeEdit>(editor, "dtpTime"), u"1915"_qs);
            pressKey(Qt::Key_Return);
            press(editor, "btnCancel");
        });
    QCOMPARE(journal->messages.takeText(), QString());
    QCOMPARE(journal->meals(), (QStringList{u"2|2|46225|750|1"_qs, u"3|3|46225|1155|1"_qs}));
    QCOMPARE(onChart(u"Meal at"_qs),
             (QStringList{u"Meal at 12:30, 96 kcal"_qs, u"Meal at 19:15, 300 kcal"_qs}));
    QCOMPARE(program->session()->currentTime(), QTime(19, 15));
}

void tst_recordaday::addsActivity()
{
    inDialog(
        "frmExercisePerform", [&] { choose("mnuAddExercise"); },
        [&](QWidget &editor) {
            control<DataCombo>(editor, "dcbExercise").setFocus();
            typeKeys(u"alk"_qs);
            pressKey(Qt::Key_Tab);
            typeTime(control<QTimeEdit>(editor, "dtpEndTime"), u"1300"_qs);
            pressKey(Qt::Key_Return);
            QCOMPARE(onChart(u"Activity"_qs).size(), 1);
            press(editor, "btnCancel");
        });
    QCOMPARE(journal->messages.takeText(), QString());
    QCOMPARE(journal->activities(), QStringList{u"2|2|46225|750|780|30"_qs});
    QVERIFY(onChart(u"Activity"_qs).value(0).contains(u"105 kcal"_qs));
}

void tst_recordaday::answersTheChart()
{
    using Time = const QTime &;
    const struct
    {
        std::function<void(Time)> choose;
        const char *window;
    } answers[] = {
        {[&](Time t) { Q_EMIT graph().mealItemChosen(0, false, t); }, "frmMealConsumes"},
        {[&](Time t) { Q_EMIT graph().activityItemChosen(0, false, t); }, "frmExercisePerforms"},
        {[&](Time t) { Q_EMIT graph().freeMealPlaceChosen(t); }, "frmMealConsume"},
        {[&](Time t) { Q_EMIT graph().freeActivityPlaceChosen(t); }, "frmExercisePerform"},
    };
    QTime time(14, 30);
    for (const auto &answer : answers) {
        time = time.addSecs(60);
        inDialog(
            answer.window, [&] { answer.choose(time); },
            [&](QWidget &dialog) {
                for (const QTimeEdit *picker : dialog.findChildren<QTimeEdit *>())
                    QCOMPARE(picker->time(), time);
                if (const auto *button = dialog.findChild<QPushButton *>(u"btnOK"_qs))
                    QCOMPARE(button->text(), u"&OK"_qs); // for one record only
            });
        QCOMPARE(program->session()->currentTime(), time);
    }
    inDialog(
        "frmMealConsumes", [&] { Q_EMIT graph().mealItemChosen(0, false, QTime()); },
        [](QWidget &) {});
    QCOMPARE(program->session()->currentTime(), time); // a caption has none to offer
}

void tst_recordaday::editsFromTheChart()
{
    journal->exec("insert into MealConsume values (7, 2, 46225, 0.5, 1);"
                  "insert into ExercisePerform values (7, 1, 46225, 0.25, 0.5, 2)");
    program->mainWindow()->RePaintGraph();
    const auto typeQuantity = [](QWidget &editor) {
        typeInto(control<QLineEdit>(editor, "txtQty"), u"3"_qs);
        press(editor, "btnOK");
    };
    inDialog(
        "frmMealConsume", [&] { Q_EMIT graph().mealItemChosen(7, true, QTime(12, 0)); },
        typeQuantity);
    QCOMPARE(onChart(u"Meal at"_qs), QStringList{u"Meal at 12:00, 290 kcal"_qs});
    inDialog(
        "frmExercisePerform", [&] { Q_EMIT graph().activityItemChosen(7, true, QTime(7, 0)); },
        typeQuantity);
    QVERIFY(onChart(u"Activity"_qs).value(0).contains(u"21 kcal"_qs));
    QCOMPARE(journal->meals(), QStringList{u"7|2|46225|720|3"_qs});
    QCOMPARE(journal->activities(), QStringList{u"7|1|46225|360|720|3"_qs});
}

QTEST_MAIN(tst_recordaday)
#include "tst_recordaday.moc"
