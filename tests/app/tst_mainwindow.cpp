// The main window: its menus, the way through the days, and its layout.
#include "mainwindowtest.h"
#include "redraws.h"

#include <QCalendarWidget>
#include <QContextMenuEvent>
#include <QDateEdit>
#include <QLabel>
#include <QMenu>
#include <QPrinterInfo>
#include <QTimer>

using namespace Qt::Literals;

class tst_mainwindow : public MainWindowTest
{
    Q_OBJECT

private slots:
    // One meal of 300 calories on each of three days.
    void init()
    {
        open("insert into MealConsume values (-1, 3, 46224, 0.5, 1), (1, 3, 46225, 0.5, 1),"
             " (2, 3, 46226, 0.5, 1)");
    }
    void goesThroughTheDays();
    void chartHasMenus();
    void copiesFromTheChart();
    void followsOtherPrograms();
    void redrawsOncePerChange();
    void deletesTrialDataAfterAYes();
    void failedPrintingIsSaid();
    void keepsTheDayThatCantBeLeft();
    void namesItsItems();
    void marksThePresentMinute();

private:
    // The chart's menu at a place on the screen, or for none of what the keyboard has come to.
    QString menuAt(QPoint at)
    {
        auto &graph = control<QWidget>(*m_window, "graph");
        QContextMenuEvent event(at.isNull() ? QContextMenuEvent::Keyboard
                                            : QContextMenuEvent::Mouse,
                                graph.mapFromGlobal(at), at);
        QApplication::sendEvent(&graph, &event);
        QStringList captions;
        if (auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget())) {
            for (const QAction *action : menu->actions())
                captions << action->text();
        }
        return captions.join(u'|');
    }
    QString menuOfTheFirstMeal()
    {
        activate(*m_window);
        control<QWidget>(*m_window, "graph").setFocus();
        pressKey(Qt::Key_Home);
        pressKey(Qt::Key_Right);
        return menuAt({});
    }
    // The day that is shown, and the calories eaten that the chart tells of it: "22 Jul 2026: 300".
    QString shown()
    {
        return textOf(*m_window, "txtDate") + u": "_qs +
               chartText().section(u' ', 1, 1).remove(u',');
    }
};

void tst_mainwindow::goesThroughTheDays()
{
    activate(*m_window);
    // Wherever the focus is, in the text of the date, too.
    for (const char *focus : {"graph", "txtDate"}) {
        control<QWidget>(*m_window, focus).setFocus();
        const std::pair<Qt::Key, const char *> keys[] = {{Qt::Key_Left, "21 Jul 2026: 300"},
                                                         {Qt::Key_Left, "20 Jul 2026: 0"},
                                                         {Qt::Key_Right, "21 Jul 2026: 300"},
                                                         {Qt::Key_T, "22 Jul 2026: 300"}};
        for (const auto &[key, expected] : keys) {
            pressKey(key, Qt::ControlModifier);
            QCOMPARE(shown(), expected);
        }
    }
    QCOMPARE(control<QLabel>(*m_window, "lblWeekday").text(), "Wednesday");
    // Its calendar tells where something is recorded.
    m_journal->exec("insert into ExercisePerform values (9, 1, 46255, 0.5, 0.6, 1)"); // 21 August
    auto &date = control<QWidget>(*m_window, "txtDate");
    inDialog(
        "frmDate", [&] { QTest::mouseDClick(&date, Qt::LeftButton); },
        [&](QWidget &window) {
            auto &calendar = *control<QDateEdit>(window, "dtpDate").calendarWidget();
            QList<QDate> bold;
            for (const int month : {7, 8}) {
                calendar.setCurrentPage(2026, month);
                for (QDate day(2026, month, 1); day.month() == month; day = day.addDays(1)) {
                    if (calendar.dateTextFormat(day).fontWeight() == QFont::Bold)
                        bold << day;
                }
            }
            QCOMPARE(bold,
                     (QList<QDate>{{2026, 7, 21}, {2026, 7, 22}, {2026, 7, 23}, {2026, 8, 21}}));
        });
}

void tst_mainwindow::chartHasMenus()
{
    activate(*m_window);
    QRect meal;
    for (int i = 0; i < chart().childCount() && meal.isNull(); ++i) {
        if (chart().child(i)->text(QAccessible::Name).startsWith("Meal at 12:00"))
            meal = chart().child(i)->rect();
    }
    QVERIFY(menuAt(meal.center()).startsWith("&Edit Meal|&Delete Meal||&Show What Was Eaten|Copy"));
    inDialog(
        "frmMealConsume", [] { pressKey(Qt::Key_E); },
        [](QWidget &editor) { QCOMPARE(textOf(editor, "txtQty"), "1"); });
    // Of a free place, with its time.
    activate(*m_window);
    const QString atPlace = menuAt(meal.center() + QPoint(4 * meal.width(), 0));
    const QString time = atPlace.section(u'|', 0, 0).right(5);
    QVERIFY(time > "12:10" && time < "18:00");
    QCOMPARE(atPlace,
             QString("Add &Meal at %1|Add &Activity at %1||Meal Consumed &List").arg(time));
    inDialog(
        "frmExercisePerform", [] { pressKey(Qt::Key_A); },
        [&time](QWidget &editor) {
            QCOMPARE(control<QTimeEdit>(editor, "dtpBeginTime").text(), time);
        });
    // By the menu key, of what the arrow keys have come to; a No leaves it.
    for (const bool answer : {false, true}) {
        QVERIFY(menuOfTheFirstMeal().startsWith("&Edit Meal|"));
        m_journal->messages.answers = {answer};
        pressKey(Qt::Key_D);
        QCOMPARE(shown(), answer ? "22 Jul 2026: 0" : "22 Jul 2026: 300");
        QVERIFY(m_journal->messages.said.front().isQuestion);
    }
    QCOMPARE(m_journal->row("select group_concat(MealConsumeID) from MealConsume"), "-1,2");
}

// Copies stand out in the chart, and a line beside its heading says what they are.
void tst_mainwindow::copiesFromTheChart()
{
    m_journal->exec("update Common set NextMealConsumeID = 5");
    auto &told = control<QLabel>(*m_window, "lblTold");
    const auto chooseFromMenu = [&](Qt::Key entry) {
        menuOfTheFirstMeal();
        pressKey(entry);
    };
    press(*m_window, "btnPrev");
    chooseFromMenu(Qt::Key_T);
    QCOMPARE(told.text(), "Crème brûlée copied to 22 Jul 2026");
    QCOMPARE(shown(), "21 Jul 2026: 300"); // it stays
    QCOMPARE(m_journal->meals().last(), "6|3|46225|720|1");
    inDialog(
        "frmCopyTo", [&] { chooseFromMenu(Qt::Key_O); },
        [](QWidget &dialog) {
            control<QDateEdit>(dialog, "dtpDate").setDate(QDate(2026, 7, 21));
            press(dialog, "btnOK");
        });
    QCOMPARE(shown(), "21 Jul 2026: 600");
    int selected = 0;
    for (int i = 0; i < chart().childCount(); ++i)
        selected += chart().child(i)->state().selected ? 1 : 0;
    QCOMPARE(selected, 1);
    // The undone copy is seen going, on its day.
    activate(*m_window);
    pressKey(Qt::Key_Z, Qt::ControlModifier);
    pressKey(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(shown(), "22 Jul 2026: 300");
    QCOMPARE(told.text(), QString());
    // What another program has deleted meanwhile.
    Connection(m_journal->path()).exec("delete from MealConsume");
    chooseFromMenu(Qt::Key_S);
    QCOMPARE(m_journal->messages.takeText(), "The record can't be opened");
    QCOMPARE(shown(), "22 Jul 2026: 0");
}

// What another program stored is seen once the user is back, from a dialog that was cancelled, too.
void tst_mainwindow::followsOtherPrograms()
{
    Connection other(m_journal->path());
    const auto afterCancelledDate = [&] {
        inDialog(
            "frmDate", [&] { entry("mnuSetDate").trigger(); },
            [&](QWidget &window) { press(window, "btnCancel"); });
        activate(*m_window);
        return shown();
    };
    other.exec("update MealConsume set Qty = 5");
    QCOMPARE(afterCancelledDate(), "22 Jul 2026: 1500");
    const Redraws redraws(*m_journal);
    QCOMPARE(afterCancelledDate(), "22 Jul 2026: 1500");
    QCOMPARE(redraws.count(), 0);
}

// Once for each change, and not at all for one that the chart doesn't show.
void tst_mainwindow::redrawsOncePerChange()
{
    activate(*m_window);
    m_journal->exec("update Common set NextMealConsumeID = 100");
    const auto redraws = [&](const char *menuEntry, const char *dialog, const auto &steps) {
        const Redraws counted(*m_journal);
        inDialog(
            dialog, [&] { entry(menuEntry).trigger(); }, steps);
        activate(*m_window);
        return counted.count();
    };
    const auto ok = [](QWidget &window) { press(window, "btnOK"); };
    const auto inEditor = [&](const char *button, const char *editor, const auto &steps) {
        return [=](QWidget &list) {
            selectRow(list, 0);
            press(list, button, editor, steps);
        };
    };
    const auto twoMeals = [&](QWidget &window) {
        for (const char *expected : {"22 Jul 2026: 345", "22 Jul 2026: 390"}) {
            choose(window, "dcbMealCategory", "Fruit");
            ok(window);
            QCOMPARE(shown(), expected); // behind the window, at once
        }
    };
    const auto named = [&](QWidget &window) {
        type(window, "txtName", "Typed");
        ok(window);
    };
    const auto removed = [&](QWidget &list) {
        m_journal->messages.answers = {true};
        selectRow(list, 0);
        press(list, "btnDelete");
    };
    QCOMPARE(redraws("mnuAddMeal", "frmMealConsume", twoMeals), 2);
    QCOMPARE(redraws("mnuMealConsume", "frmMealConsumes", removed), 1);
    QCOMPARE(redraws("mnuMealConsume", "frmMealConsumes", [](QWidget &) {}), 0);
    QCOMPARE(redraws("mnuMealCategories", "frmMealCategories",
                     inEditor("btnNew", "frmMealCategory", named)),
             0);
    QCOMPARE(redraws("mnuMeal", "frmMeals", inEditor("btnEdit", "frmMeal", ok)), 1);
    QCOMPARE(redraws("mnuCommon", "frmCommon", ok), 1);
    const Redraws counted(*m_journal);
    press(*m_window, "btnNext");
    QCOMPARE(counted.count(), 1);
}

void tst_mainwindow::deletesTrialDataAfterAYes()
{
    press(*m_window, "btnPrev");
    for (const bool answer : {false, true}) {
        m_journal->messages.answers = {answer};
        press(*m_window, "btnDeleteSample"); // beside the chart while there is something to delete
        QVERIFY(m_journal->messages.takeText().contains("delete trial data"));
        QCOMPARE(control<QWidget>(*m_window, "btnDeleteSample").isVisible(), !answer);
        QCOMPARE(m_journal->row("select group_concat(MealConsumeID) from MealConsume"),
                 answer ? "1,2" : "-1,1,2");
    }
    QCOMPARE(shown(), "21 Jul 2026: 0");
}

void tst_mainwindow::failedPrintingIsSaid()
{
    if (!QPrinterInfo::defaultPrinter().isNull())
        QSKIP("this machine has a printer, which a test should not use");
    auto &next = control<QPushButton>(*m_window, "btnNext");
    next.setFocus();
    entry("mnuPrintChart").trigger();
    QCOMPARE(m_window->focusWidget(), &next); // though hidden meanwhile
    QCOMPARE(m_journal->messages.takeText(),
             u"Can't print. Please check whether your default printer is accessible"_qs);
    QVERIFY(control<QWidget>(*m_window, "btnPrev").isVisible());
    QVERIFY(!QApplication::overrideCursor());
}

void tst_mainwindow::keepsTheDayThatCantBeLeft()
{
    m_journal->exec("PRAGMA busy_timeout=0");
    Connection other(m_journal->path());
    other.exec("begin exclusive");
    press(*m_window, "btnNext");
    QCOMPARE(m_journal->messages.said.size(), size_t(1));
    QCOMPARE(m_journal->messages.said.front().cause, u"Another program is using the database."_qs);
    QCOMPARE(m_journal->messages.takeText(),
             u"23 Jul 2026 can't be shown; the chart stays as it was"_qs);
    QCOMPARE(shown(), u"22 Jul 2026: 300"_qs);
    QCOMPARE(m_journal->session->currentDate(), QDate(2026, 7, 22));
}

// In the locale's numbers, on one line however they are stored.
void tst_mainwindow::namesItsItems()
{
    open("update Meal set Unit = '100 g' where MealID = 1;"
         "update Meal set Unit = '', Name = char(10) || 'Two' || char(10) || 'lines' ||"
         " replace(hex(zeroblob(30)), '00', ' long') where MealID = 2;"
         "insert into MealConsume values (1, 1, 46225, 0.25, 1.5),"
         " (2, 2, 46225, 0.5, 2), (3, 3, 46225, 0.75, 0.25);"
         "insert into ExercisePerform values (1, 2, 46225, 0.5, 0.6, 12.5)",
         QLocale(QLocale::German, QLocale::Germany));
    QStringList words;
    for (int i = 0; i < chart().childCount(); ++i) {
        const QString name = chart().child(i)->text(QAccessible::Name);
        if (name.contains(u". "_qs))
            words << name.section(u". "_qs, 1);
    }
    const QString longName = u"Two lines"_qs + u" long"_qs.repeated(10);
    QCOMPARE(words, (QStringList{u"Apple, 1,5 × 100 g"_qs, longName + u" …, 2"_qs,
                                 u"Crème brûlée, 0,25 cup"_qs, u"Walking, 12,5 minute"_qs}));
}

void tst_mainwindow::marksThePresentMinute()
{
    activate(*m_window);
    const auto soFar = [&] { return chartText().section(u"So far, at "_qs, 1).left(5); };
    auto &timer = control<QTimer>(*m_window, "tmrNextMinute");
    const auto passTo = [&](const QDateTime &now) {
        m_journal->clock.setNow(now);
        timer.start(0);
        QCoreApplication::processEvents();
    };
    QCOMPARE(soFar(), u"12:30"_qs);
    const Redraws redraws(*m_journal);
    const QDate today(2026, 7, 22);
    passTo({today, QTime(23, 59, 50)});
    QCOMPARE(soFar(), u"23:59"_qs);
    QVERIFY(timer.isActive());
    QCOMPARE(timer.interval(), 10000);
    passTo({today.addDays(1), QTime(0, 0)});
    QCOMPARE(soFar(), QString());
    QVERIFY(!timer.isActive());
    QCOMPARE(redraws.count(), 0);
    QCOMPARE(shown(), "22 Jul 2026: 300");
    press(*m_window, "btnNext"); // to what is today now
    QCOMPARE(soFar(), u"00:00"_qs);
    QVERIFY(timer.isActive());
    press(*m_window, "btnNext");
    QCOMPARE(soFar(), QString());
    QVERIFY(!timer.isActive());
}

QTEST_MAIN(tst_mainwindow)
#include "tst_mainwindow.moc"
