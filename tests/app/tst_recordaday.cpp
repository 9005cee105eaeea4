// The whole program, from its start to the row in the file and the item on the chart.
#include "../journal/dayjournal.h"
#include "app/frmMain.h"
#include "app/startup.h"
#include "chart/TrellumGraph.h"
#include "session/installation.h"
#include "ui/datacombo.h"

#include <QAccessible>
#include <QAction>
#include <QDateEdit>
#include <QLabel>

class tst_RecordADay : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void addsMeals();
    void addsActivity();
    void answersTheChart_data();
    void answersTheChart();
    void editsFromTheChart();
    void listMovesTheDay();

private:
    QWidget &mainWindow() { return *program->mainWindow(); }
    TrellumGraph &graph() { return control<TrellumGraph>(mainWindow(), "graph"); }
    void choose(const char *entry) { control<QAction>(mainWindow(), entry).trigger(); }
    /// What the chart tells of its items of a kind: "Meal at 12:30, 96 kcal: ...".
    QStringList onChart(const QString &kind)
    {
        const QAccessibleInterface &chart = *QAccessible::queryAccessibleInterface(&graph());
        QStringList items;
        for (int i = 0; i < chart.childCount(); ++i) {
            const QString name = chart.child(i)->text(QAccessible::Name);
            if (name.startsWith(kind))
                items += name.section(u':', 0, kind == QLatin1String("Meal at") ? 1 : -1);
        }
        return items;
    }

    std::unique_ptr<DayJournal> journal;
    std::unique_ptr<StartUp> program;
};

void tst_RecordADay::init()
{
    program.reset();
    journal = std::make_unique<DayJournal>();
    Installation(journal->folder.path()).setFirstStartDone();
    program = std::make_unique<StartUp>(
        StartUpSettings{journal->folder.path(), journal->clock,
                        QLocale(QLocale::English, QLocale::UnitedKingdom), journal->messages});
    QVERIFY(program->run());
    QVERIFY(QTest::qWaitForWindowActive(&mainWindow()));
    QCOMPARE(onChart(QStringLiteral("Meal at")), QStringList());
}

void tst_RecordADay::addsMeals()
{
    inDialog(
        "frmMealConsume", [&] { choose("mnuAddMeal"); },
        [&](QWidget &editor) {
            control<DataCombo>(editor, "dcbMealCategory").setFocus();
            typeKeys(QStringLiteral("fru"));
            pressKey(Qt::Key_Tab);
            typeKeys(QStringLiteral("ban"));
            pressKey(Qt::Key_Tab);
            pressKey(Qt::Key_Return);
            // The chart behind the dialog follows at once.
            QVERIFY(editor.isVisible());
            QCOMPARE(onChart(QStringLiteral("Meal at")),
                     QStringList{QStringLiteral("Meal at 12:30, 96 kcal")});
            typeKeys(QStringLiteral("dairy"));
            pressKey(Qt::Key_Tab);
            typeTime(control<QTimeEdit>(editor, "dtpTime"), QStringLiteral("1915"));
            pressKey(Qt::Key_Return);
            press(editor, "btnCancel");
        });
    QCOMPARE(journal->messages.takeText(), QString());
    QCOMPARE(journal->meals(), (QStringList{QStringLiteral("2|2|%1|750|1").arg(testDay),
                                            QStringLiteral("3|3|%1|1155|1").arg(testDay)}));
    QCOMPARE(onChart(QStringLiteral("Meal at")),
             (QStringList{QStringLiteral("Meal at 12:30, 96 kcal"),
                          QStringLiteral("Meal at 19:15, 300 kcal")}));
    QCOMPARE(program->session()->currentTime(), QTime(19, 15));
}

void tst_RecordADay::addsActivity()
{
    inDialog(
        "frmExercisePerform", [&] { choose("mnuAddExercise"); },
        [&](QWidget &editor) {
            control<DataCombo>(editor, "dcbExercise").setFocus();
            typeKeys(QStringLiteral("alk"));
            pressKey(Qt::Key_Tab);
            typeTime(control<QTimeEdit>(editor, "dtpEndTime"), QStringLiteral("1300"));
            pressKey(Qt::Key_Return);
            QCOMPARE(onChart(QStringLiteral("Activity")).size(), 1);
            press(editor, "btnCancel");
        });
    QCOMPARE(journal->messages.takeText(), QString());
    QCOMPARE(journal->activities(), QStringList{QStringLiteral("2|2|%1|750|780|30").arg(testDay)});
    const QString item = onChart(QStringLiteral("Activity")).value(0);
    QVERIFY2(item.contains(QStringLiteral("12:30")) && item.contains(QStringLiteral("13:00")) &&
                 item.contains(QStringLiteral("105 kcal")),
             qPrintable(item));
}

void tst_RecordADay::answersTheChart_data()
{
    using Choose = std::function<void(TrellumGraph &)>;
    QTest::addColumn<Choose>("choose");
    QTest::addColumn<QString>("window");
    QTest::addColumn<QString>("caption");
    const QTime time(14, 30);
    const auto row = [](const char *name, const Choose &choose, const char *window,
                        const char *caption) {
        QTest::newRow(name) << choose << QString::fromLatin1(window)
                            << QString::fromLatin1(caption);
    };
    row(
        "no meal hit", [=](TrellumGraph &graph) { Q_EMIT graph.mealItemChosen(0, false, time); },
        "frmMealConsumes", "Meal Consumed List");
    row(
        "no activity hit",
        [=](TrellumGraph &graph) { Q_EMIT graph.activityItemChosen(0, false, time); },
        "frmExercisePerforms", "Activities Performed List");
    row(
        "free for a meal", [=](TrellumGraph &graph) { Q_EMIT graph.freeMealPlaceChosen(time); },
        "frmMealConsume", "Meal Consumed - New");
    row(
        "free for an activity",
        [=](TrellumGraph &graph) { Q_EMIT graph.freeActivityPlaceChosen(time); },
        "frmExercisePerform", "Activity Performed - New");
}

void tst_RecordADay::answersTheChart()
{
    QFETCH(std::function<void(TrellumGraph &)>, choose);
    QFETCH(QString, window);
    QFETCH(QString, caption);
    inDialog(
        qPrintable(window), [&] { choose(graph()); },
        [&](QWidget &dialog) {
            QCOMPARE(dialog.windowTitle(), caption);
            for (const char *name : {"dtpTime", "dtpBeginTime", "dtpEndTime"}) {
                if (const auto *picker = dialog.findChild<QTimeEdit *>(QLatin1String(name)))
                    QCOMPARE(picker->time(), QTime(14, 30));
            }
            if (auto *button = dialog.findChild<QPushButton *>(QStringLiteral("btnOK")))
                QCOMPARE(button->text(), QStringLiteral("&OK")); // for one record only
        });
    QCOMPARE(program->session()->currentTime(), QTime(14, 30));
}

void tst_RecordADay::editsFromTheChart()
{
    journal->exec("insert into MealConsume values (7, 2, 46225, 0.5, 1);"
                  "insert into ExercisePerform values (8, 1, 46225, 0.25, 0.5, 2)");
    program->mainWindow()->RePaintGraph();
    inDialog(
        "frmMealConsume", [&] { Q_EMIT graph().mealItemChosen(7, true, QTime(12, 0)); },
        [&](QWidget &editor) {
            QCOMPARE(control<DataCombo>(editor, "dcbMeal").displayedText(),
                     QStringLiteral("Banana"));
            typeInto(control<QLineEdit>(editor, "txtQty"), QStringLiteral("2"));
            press(editor, "btnOK");
        });
    QCOMPARE(onChart(QStringLiteral("Meal at")),
             QStringList{QStringLiteral("Meal at 12:00, 193 kcal")});
    inDialog(
        "frmExercisePerform", [&] { Q_EMIT graph().activityItemChosen(8, true, QTime(7, 0)); },
        [&](QWidget &editor) {
            typeInto(control<QLineEdit>(editor, "txtQty"), QStringLiteral("3"));
            press(editor, "btnOK");
        });
    QVERIFY(onChart(QStringLiteral("Activity")).value(0).contains(QStringLiteral("21 kcal")));
    QCOMPARE(journal->meals(), QStringList{QStringLiteral("7|2|46225|720|2")});
}

void tst_RecordADay::listMovesTheDay()
{
    inDialog(
        "frmMealConsumes", [&] { choose("mnuMealConsume"); },
        [&](QWidget &list) {
            control<QDateEdit>(list, "dtpDate").setDate(QDate(2026, 12, 31));
            inDialog(
                "frmMealConsume", [&] { press(list, "btnNew"); },
                [&](QWidget &editor) {
                    control<DataCombo>(editor, "dcbMealCategory")
                        .setDisplayedText(QStringLiteral("Dairy"));
                    press(editor, "btnOK");
                });
            QCOMPARE(onChart(QStringLiteral("Meal at")).size(), 1);
        });
    QCOMPARE(textOf(mainWindow(), "txtDate"), QStringLiteral("31 Dec 2026"));
    QCOMPARE(journal->row("select ConsumeDate from MealConsume"), QStringLiteral("46387"));
}

QTEST_MAIN(tst_RecordADay)
#include "tst_recordaday.moc"
