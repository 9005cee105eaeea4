// The main window: its menus, the way through the days, and its layout.
#include "app/dayview.h"
#include "app/dayviewlayout.h"
#include "app/frmMain.h"
#include "redraws.h"

#include <QAccessible>
#include <QCalendarWidget>
#include <QContextMenuEvent>
#include <QDateEdit>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPrinterInfo>
#include <QTimer>

using namespace Qt::Literals;

class tst_mainwindow : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_window.reset(); }
    void accessKeysAreUnique();
    void goesThroughTheDays();
    void keysOpenWindows();
    void chartHasMenus();
    void tellsOfCopies();
    void copiesFromTheChart();
    void followsOtherPrograms();
    void redrawsOncePerChange();
    void deletesTrialDataAfterAYes();
    void failedPrintingIsSaid();
    void keepsTheDayThatCantBeLeft();
    void namesItsItems();
    void marksThePresentMinute();
    void weekdayStandsBesideTheDate();
    void laysOut();

private:
    QAction &entry(const char *name) { return control<QAction>(*m_window, name); }
    QAccessibleInterface &chart()
    {
        return *QAccessible::queryAccessibleInterface(&control<QWidget>(*m_window, "graph"));
    }
    // The day that is shown, and the calories eaten that the chart tells of it: "22 Jul 2026: 300".
    QString shown()
    {
        return textOf(*m_window, "txtDate") + u": "_qs +
               chart().text(QAccessible::Description).section(u' ', 1, 1).remove(u',');
    }

    std::unique_ptr<DayJournal> m_journal;
    std::unique_ptr<frmMain> m_window;
};

// One meal of 300 calories on each of three days.
void tst_mainwindow::init()
{
    m_journal = std::make_unique<DayJournal>();
    m_journal->exec("insert into MealConsume values (-1, 3, 46224, 0.5, 1), (1, 3, 46225, 0.5, 1),"
                    " (2, 3, 46226, 0.5, 1)");
    m_window = std::make_unique<frmMain>(*m_journal->session, m_journal->messages);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

// Within each menu, and among the menu bar and the buttons.
void tst_mainwindow::accessKeysAreUnique()
{
    QStringList groups[6];
    QStringList &inWindow = groups[5];
    for (const QAction *top : m_window->menuBar()->actions()) {
        for (const QAction *action : top->menu()->actions())
            groups[inWindow.size()] += action->text();
        inWindow += top->text();
    }
    for (const char *button : {"btnPrev", "btnNext", "btnHelp", "btnDeleteSample"})
        inWindow += control<QPushButton>(*m_window, button).text();
    for (const QStringList &captions : groups) {
        QString keys;
        for (const QString &caption : captions) {
            const QString key = caption.section(u'&', 1).left(1).toLower();
            QVERIFY2(key.isEmpty() || !keys.contains(key), qPrintable(caption));
            keys += key;
        }
    }
}

void tst_mainwindow::goesThroughTheDays()
{
    activate(*m_window);
    // Wherever the focus is, in the text of the date, too.
    for (const char *focus : {"graph", "txtDate", "btnNext"}) {
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
    // Its calendar tells where something is recorded.
    m_journal->exec("insert into ExercisePerform values (9, 1, 46255, 0.5, 0.6, 1)"); // 21 August
    const auto boldDays = [](const QCalendarWidget &calendar, int month) {
        QList<int> days;
        for (QDate day(2026, month, 1); day.month() == month; day = day.addDays(1)) {
            if (calendar.dateTextFormat(day).fontWeight() == QFont::Bold)
                days << day.day();
        }
        return days;
    };
    auto &date = control<QWidget>(*m_window, "txtDate");
    inDialog(
        "frmDate", [&] { QTest::mouseDClick(&date, Qt::LeftButton); },
        [&](QWidget &window) {
            auto &calendar = *control<QDateEdit>(window, "dtpDate").calendarWidget();
            QCOMPARE(boldDays(calendar, 7), (QList{21, 22, 23}));
            calendar.setCurrentPage(2026, 8);
            QCOMPARE(boldDays(calendar, 8), QList{21});
            calendar.setCurrentPage(2026, 12);
            QCOMPARE(boldDays(calendar, 12), QList<int>());
        });
}

void tst_mainwindow::keysOpenWindows()
{
    activate(*m_window);
    const std::pair<Qt::Key, const char *> keys[] = {{Qt::Key_M, "frmMealConsume"},
                                                     {Qt::Key_E, "frmExercisePerform"},
                                                     {Qt::Key_B, "frmBody"},
                                                     {Qt::Key_G, "frmDate"}};
    for (const auto &[key, dialog] : keys) {
        QString opened;
        inDialog(
            dialog, [key = key] { pressKey(key, Qt::ControlModifier); },
            [&opened](QWidget &window) { opened = window.objectName(); });
        QCOMPARE(opened, QString(dialog));
        activate(*m_window);
    }
}

void tst_mainwindow::chartHasMenus()
{
    activate(*m_window);
    auto &graph = control<QWidget>(*m_window, "graph");
    auto *chart = QAccessible::queryAccessibleInterface(&graph);
    const auto menuAt = [&](QContextMenuEvent::Reason reason, QPoint at) {
        QContextMenuEvent event(reason, graph.mapFromGlobal(at), at);
        QApplication::sendEvent(&graph, &event);
        QStringList captions;
        if (auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget())) {
            for (const QAction *action : menu->actions())
                captions << action->text();
        }
        return captions.join(u'|');
    };
    const auto placeOf = [chart](const QString &name) {
        for (int i = 0; i < chart->childCount(); ++i) {
            if (chart->child(i)->text(QAccessible::Name).startsWith(name))
                return chart->child(i)->rect();
        }
        return QRect();
    };
    const QRect meal = placeOf("Meal at 12:00");
    QCOMPARE(menuAt(QContextMenuEvent::Mouse, meal.center()),
             "&Edit Meal|&Delete Meal||&Show What Was Eaten|Copy to &Today|Copy t&o…||Add &Meal at "
             "12:00|Add &Activity at 12:00||"
             "Meal Consumed &List");
    inDialog(
        "frmMealConsume", [] { pressKey(Qt::Key_E); },
        [](QWidget &editor) { QCOMPARE(textOf(editor, "txtQty"), "1"); });
    // Of a free place, with its time.
    activate(*m_window);
    const QString atPlace =
        menuAt(QContextMenuEvent::Mouse, meal.center() + QPoint(4 * meal.width(), 0));
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
    graph.setFocus();
    for (const bool answer : {false, true}) {
        activate(*m_window);
        pressKey(Qt::Key_Home);
        QCOMPARE(menuAt(QContextMenuEvent::Keyboard, {}), "Meal Consumed &List");
        pressKey(Qt::Key_Escape);
        activate(*m_window);
        pressKey(Qt::Key_Right);
        QVERIFY(menuAt(QContextMenuEvent::Keyboard, {}).startsWith("&Edit Meal|"));
        m_journal->messages.answers = {answer};
        pressKey(Qt::Key_D);
        QCOMPARE(shown(), answer ? "22 Jul 2026: 0" : "22 Jul 2026: 300");
        QCOMPARE(m_journal->messages.takeText(),
                 "Are you sure you want to delete the selected record?");
    }
    QCOMPARE(m_journal->row("select group_concat(MealConsumeID) from MealConsume"), "-1,2");
}

// They stand out in the chart, and a line beside its heading says how many there are.
void tst_mainwindow::tellsOfCopies()
{
    m_journal->exec("insert into ExercisePerform values (-1, 1, 46224, 0.5, 0.6, 1);"
                    "update Common set NextMealConsumeID = 2");
    inDialog(
        "frmCopyDay", [&] { entry("mnuCopyDay").trigger(); },
        [](QWidget &window) { press(window, "btnOK"); });
    QCOMPARE(shown(), "22 Jul 2026: 600");
    auto &told = control<QLabel>(*m_window, "lblTold");
    QCOMPARE(told.text(), "2 entries copied to 22 Jul 2026");
    auto *chart = QAccessible::queryAccessibleInterface(&control<QWidget>(*m_window, "graph"));
    int selected = 0;
    for (int i = 0; i < chart->childCount(); ++i)
        selected += chart->child(i)->state().selected ? 1 : 0;
    QCOMPARE(selected, 2);
    press(*m_window, "btnNext");
    QCOMPARE(told.text(), QString());
}

void tst_mainwindow::copiesFromTheChart()
{
    m_journal->exec("update Common set NextMealConsumeID = 5");
    auto &graph = control<QWidget>(*m_window, "graph");
    auto &told = control<QLabel>(*m_window, "lblTold");
    const auto chooseFromMenu = [&](Qt::Key entry) {
        activate(*m_window);
        graph.setFocus();
        pressKey(Qt::Key_Home);
        pressKey(Qt::Key_Right);
        QContextMenuEvent event(QContextMenuEvent::Keyboard, {}, {});
        QApplication::sendEvent(&graph, &event);
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
    QString name;
    inDialog(
        "frmMeal", [&] { chooseFromMenu(Qt::Key_S); },
        [&](QWidget &editor) { name = textOf(editor, "txtName"); });
    QCOMPARE(name, "Crème brûlée");
    // The undone copy is seen going, on its day.
    activate(*m_window);
    pressKey(Qt::Key_Z, Qt::ControlModifier);
    pressKey(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(shown(), "22 Jul 2026: 300");
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
    m_journal->exec("update Common set NextMealConsumeID = 100;"
                    "insert into Body values (5, 46225, 80, 100, 90, 95, 'M')");
    const auto inWindow = [&](const char *menuEntry, const char *dialog, const auto &steps) {
        inDialog(
            dialog, [&] { entry(menuEntry).trigger(); }, steps);
    };
    const auto ok = [](QWidget &window) { press(window, "btnOK"); };
    const auto named = [&](QWidget &window) {
        type(window, "txtName", "Typed");
        ok(window);
    };
    const auto inEditor = [&](const char *button, const char *editor, const auto &steps) {
        return [=](QWidget &list) {
            selectRow(list, 0);
            press(list, button, editor, steps);
        };
    };
    const auto newMeal = [&](QWidget &window) {
        choose(window, "dcbMealCategory", "Fruit");
        for (const char *box :
             {"txtUnit", "txtFat", "txtCarboHydrate", "txtProtein", "txtCalories"})
            type(window, box, "1");
        named(window);
    };
    const auto eaten = [&](QWidget &window) {
        choose(window, "dcbMealCategory", "Fruit");
        ok(window);
    };
    const std::tuple<const char *, int, std::function<void()>> changes[] = {
        {"two meals added", 2,
         [&] {
             inWindow("mnuAddMeal", "frmMealConsume", [&](QWidget &window) {
                 eaten(window);
                 QCOMPARE(shown(), "22 Jul 2026: 345"); // behind the window, at once
                 eaten(window);
             });
         }},
        {"a meal of the day changed", 1,
         [&] {
             inWindow("mnuMealConsume", "frmMealConsumes",
                      inEditor("btnEdit", "frmMealConsume", ok));
         }},
        {"a meal of the day deleted", 1,
         [&] {
             inWindow("mnuMealConsume", "frmMealConsumes", [&](QWidget &list) {
                 m_journal->messages.answers = {true};
                 selectRow(list, 0);
                 press(list, "btnDelete");
             });
         }},
        {"a list looked at", 0,
         [&] { inWindow("mnuMealConsume", "frmMealConsumes", [](QWidget &) {}); }},
        {"a measurement", 0,
         [&] {
             m_journal->messages.answers = {true};
             inWindow("mnuAddMeasurement", "frmBody", [&](QWidget &window) {
                 for (const char *box : {"txtWeight", "txtBreast", "txtWaist", "txtHips"})
                     type(window, box, "70");
                 ok(window);
             });
         }},
        {"a new category", 0,
         [&] {
             inWindow("mnuMealCategories", "frmMealCategories",
                      inEditor("btnNew", "frmMealCategory", named));
         }},
        {"a new meal of the catalogue", 0,
         [&] { inWindow("mnuMeal", "frmMeals", inEditor("btnNew", "frmMeal", newMeal)); }},
        {"a meal of the catalogue changed", 1,
         [&] { inWindow("mnuMeal", "frmMeals", inEditor("btnEdit", "frmMeal", ok)); }},
        {"parameters", 1, [&] { inWindow("mnuCommon", "frmCommon", ok); }},
        {"parameters not stored", 0,
         [&] {
             inWindow("mnuCommon", "frmCommon",
                      [](QWidget &window) { press(window, "btnCancel"); });
         }},
        {"another day", 1, [&] { press(*m_window, "btnNext"); }},
        {"the trial data deleted", 1, [&] {
             m_journal->messages.answers = {true};
             entry("mnuDeleteTrialData").trigger();
         }}};
    for (const auto &[change, count, make] : changes) {
        const Redraws redraws(*m_journal);
        make();
        activate(*m_window);
        QVERIFY2(redraws.count() == count, change);
    }
}

void tst_mainwindow::deletesTrialDataAfterAYes()
{
    press(*m_window, "btnPrev");
    m_journal->messages.answers = {true};
    press(*m_window, "btnDeleteSample"); // beside the chart while there is something to delete
    QVERIFY(!control<QWidget>(*m_window, "btnDeleteSample").isVisible());
    QCOMPARE(m_journal->messages.said.size(), size_t(1));
    QCOMPARE(m_journal->messages.takeText(),
             u"This will delete trial data supplied with the program as the sample.\r\n"
             "It refers to Meal Consumed, Exercise Performed, Body Measurement and User Notes.\r\n"
             "Neither Meal Description, Exercise Description nor any data you've entered yourself "
             "will be deleted.\r\n"
             "\r\n"
             "Are you sure you want to delete trial data now?"_qs);
    QCOMPARE(m_journal->row("select group_concat(MealConsumeID) from MealConsume"), u"1,2"_qs);
    QCOMPARE(shown(), u"21 Jul 2026: 0"_qs);
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
    m_window.reset();
    m_journal = std::make_unique<DayJournal>(QLocale(QLocale::German, QLocale::Germany));
    m_journal->exec("update Meal set Unit = '100 g' where MealID = 1;"
                    "update Meal set Unit = '', Name = char(10) || 'Two' || char(10) || 'lines' ||"
                    " replace(hex(zeroblob(30)), '00', ' long') where MealID = 2;"
                    "insert into MealConsume values (1, 1, 46225, 0.25, 1.5),"
                    " (2, 2, 46225, 0.5, 2), (3, 3, 46225, 0.75, 0.25);"
                    "insert into ExercisePerform values (1, 2, 46225, 0.5, 0.6, 12.5)");
    m_window = std::make_unique<frmMain>(*m_journal->session, m_journal->messages);
    m_window->show();
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
    const auto soFar = [&] {
        return chart().text(QAccessible::Description).section(u"So far, at "_qs, 1).left(5);
    };
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

void tst_mainwindow::weekdayStandsBesideTheDate()
{
    const auto &label = control<QLabel>(*m_window, "lblWeekday");
    QCOMPARE(label.text(), u"Wednesday"_qs);
    press(*m_window, "btnPrev");
    QCOMPARE(label.text(), u"Tuesday"_qs);
    QCOMPARE(textOf(*m_window, "txtDate"), u"21 Jul 2026"_qs);
    m_window->resize(800, 600);
    QCoreApplication::processEvents();
    QVERIFY(label.isVisible() && label.text() == u"Tuesday");

    // Shorter where there is less room, and none at all rather than a part of it.
    for (const int points : {9, 24}) {
        DayView view;
        QFont font = view.font();
        font.setPointSize(points);
        view.setFont(font);
        view.setWeekday(u"Wednesday"_qs, u"Wed"_qs);
        view.show();
        QStringList texts;
        for (int width = 150 * points; width > 20 * points; width -= points) {
            view.resize(width, 60 * points);
            QCoreApplication::processEvents();
            const QLabel &day = *view.lblWeekday;
            const QString text = day.isVisible() ? day.text() : QString();
            if (texts.isEmpty() || texts.last() != text)
                texts << text;
            QVERIFY(text.isEmpty() || (day.width() >= day.sizeHint().width() &&
                                       day.height() >= day.fontMetrics().height() &&
                                       day.x() > view.txtDate->geometry().right() &&
                                       day.geometry().right() < view.btnHelp->x()));
        }
        QCOMPARE(texts, (QStringList{u"Wednesday"_qs, u"Wed"_qs, QString()}));
        view.resize(150 * points, 60 * points);
        for (const bool visible : {false, true}) { // as for printing
            view.setNavigationVisible(visible);
            QCOMPARE(view.lblWeekday->isVisible(), visible);
        }
    }
}

// In twips first, then in the dots of a usual screen.
void tst_mainwindow::laysOut()
{
    DayViewLayout layout;
    QVERIFY(!layOutDayView(QSize(199, 5000), 1, layout));
    QVERIFY(!layOutDayView(QSize(5000, 1199), 1, layout));
    QCOMPARE(layout.graph, QRect());
    QVERIFY(layOutDayView(QSize(200, 1200), 1, layout));
    QCOMPARE(layout.graph.size(), QSize(80, 150));
    QVERIFY(layOutDayView(QSize(960, 600), 96.0 / 1440, layout));
    QCOMPARE(layout.graph.size(), QSize(952, 530));
    QCOMPARE(layout.buttonTop, 561);
    QCOMPARE(layout.dateTop, 573);
}

QTEST_MAIN(tst_mainwindow)
#include "tst_mainwindow.moc"
