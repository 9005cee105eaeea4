// The main window: its menus, its toolbar, the way through the days, and its layout.
#include "app/dayviewlayout.h"
#include "app/frmMain.h"
#include "guitest.h"
#include "testjournal.h"

#include <QAccessible>
#include <QDateEdit>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPrinterInfo>
#include <QPushButton>
#include <QToolBar>

using namespace Qt::Literals;

class tst_mainwindow : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_window.reset(); }
    void accessKeysAreUnique();
    void toolbarRunsTheMenus();
    void walksOverNewYear();
    void rebuildsAfterDialogs();
    void deletesTrialDataAfterAYes();
    void failedPrintingIsSaid();
    void exitClosesEveryWindow();
    void laysOut();

private:
    QAction &entry(const char *name) { return control<QAction>(*m_window, name); }
    void click(QWidget &window, const char *button)
    {
        QTest::mouseClick(&control<QPushButton>(window, button), Qt::LeftButton);
    }
    // The day that is shown, and the calories eaten that the chart tells of it: "22 Jul 2026: 300".
    QString shown()
    {
        auto *chart = QAccessible::queryAccessibleInterface(&control<QWidget>(*m_window, "graph"));
        return control<QLineEdit>(*m_window, "txtDate").text() + u": "_qs +
               chart->text(QAccessible::Description).section(u' ', 1, 1).remove(u',');
    }

    std::unique_ptr<TestJournal> m_journal;
    RecordedMessages m_messages;
    std::unique_ptr<frmMain> m_window;
};

// One meal of 300 calories on each of three days.
void tst_mainwindow::init()
{
    m_journal = std::make_unique<TestJournal>();
    m_journal->exec("insert into MealCategory values (1, 'a');"
                    "insert into Meal values (1, 1, 'a', 'b', 1, 1, 100, 1, 1, 1, 50, 30, 20);"
                    "insert into MealConsume values (-1, 1, 46224, 0.5, 3), (1, 1, 46225, 0.5, 3),"
                    " (2, 1, 46226, 0.5, 3)");
    m_messages = {};
    m_window = std::make_unique<frmMain>(*m_journal->session, m_messages);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

// Within each menu, and among the menu bar and the buttons.
void tst_mainwindow::accessKeysAreUnique()
{
    QStringList groups[] = {{}, {}, {}, {}, {}};
    QStringList &inWindow = groups[4];
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

void tst_mainwindow::toolbarRunsTheMenus()
{
    QStringList keys;
    for (QAction *button : control<QToolBar>(*m_window, "tlbToolBar").actions()) {
        if (button->isSeparator())
            continue;
        keys += button->objectName();
        // The button is the entry: what the one runs, the other runs.
        bool isEntry = false;
        for (const QAction *top : m_window->menuBar()->actions())
            isEntry = isEntry || top->menu()->actions().contains(button);
        QVERIFY2(isEntry && button->isEnabled(), qPrintable(button->objectName()));
    }
    QCOMPARE(keys.join(u' '),
             u"mnuMealConsume mnuAddMeal mnuExercisePerformed mnuAddExercise mnuMeasurement "
             "mnuAddMeasurement mnuAddNote mnuPrintChart mnuGeneralProgress mnuMealCategories "
             "mnuMeal mnuExercises mnuHelpAbout mnuHelpContents"_qs);
    QStringList operate;
    for (const QAction *action : control<QMenu>(*m_window, "mnuOperate").actions())
        operate += action->objectName();
    QCOMPARE(operate.filter(u"Sep"_qs).join(u' '),
             u"mnuSep1 mnuSep7 mnuSep6 mnuSep5 mnuSep9 mnuSep4"_qs);
}

void tst_mainwindow::walksOverNewYear()
{
    QCOMPARE(shown(), "22 Jul 2026: 300");
    click(*m_window, "btnNext");
    click(*m_window, "btnNext");
    QCOMPARE(shown(), "24 Jul 2026: 0");
    click(*m_window, "btnPrev");
    QCOMPARE(shown(), "23 Jul 2026: 300");
    m_journal->session->setCurrentDate(QDate(2026, 12, 31));
    click(*m_window, "btnNext");
    QCOMPARE(shown(), "1 Jan 2027: 0");
    click(*m_window, "btnPrev");
    QCOMPARE(shown(), "31 Dec 2026: 0");
}

// The chart is built anew even for a date that was not changed, but not for parameters that were
// not stored.
void tst_mainwindow::rebuildsAfterDialogs()
{
    m_journal->exec("update MealConsume set Qty = 5");
    const auto press = [&](const char *dialog, const char *menuEntry, const char *button) {
        inDialog(
            dialog, [&] { entry(menuEntry).trigger(); },
            [&](QWidget &window) {
                if (auto *picker = window.findChild<QDateEdit *>(u"dtpDate"_qs)) {
                    QCOMPARE(picker->date(), QDate(2026, 7, 22));
                    picker->setDate(QDate(2026, 7, 23));
                }
                click(window, button);
            });
        return shown();
    };
    QCOMPARE(press("frmCommon", "mnuCommon", "btnCancel"), "22 Jul 2026: 300");
    QCOMPARE(press("frmCommon", "mnuCommon", "btnOK"), "22 Jul 2026: 500");
    m_journal->exec("update MealConsume set Qty = 6");
    QCOMPARE(press("frmDate", "mnuSetDate", "btnCancel"), "22 Jul 2026: 600");
    QCOMPARE(press("frmDate", "mnuSetDate", "btnOK"), "23 Jul 2026: 600");
}

void tst_mainwindow::deletesTrialDataAfterAYes()
{
    m_journal->session->setCurrentDate(QDate(2026, 7, 21));
    for (const bool yes : {false, true}) {
        m_messages = {};
        m_messages.answers = {yes};
        click(*m_window, "btnDeleteSample"); // beside the chart while there is something to delete
        QCOMPARE(control<QWidget>(*m_window, "btnDeleteSample").isVisible(), !yes);
        QCOMPARE(m_messages.said.size(), size_t(1));
        QVERIFY(m_messages.said.front().isQuestion);
        QCOMPARE(m_messages.said.front().title, u"Are you sure?"_qs);
        QCOMPARE(
            m_messages.said.front().text,
            u"This will delete trial data supplied with the program as the sample.\r\n"
            "It refers to Meal Consumed, Exercise Performed, Body Measurement and User Notes.\r\n"
            "Neither Meal Description, Exercise Description nor any data you've entered yourself "
            "will be deleted.\r\n"
            "\r\n"
            "Are you sure you want to delete trial data now?"_qs);
        QCOMPARE(m_journal->row("select group_concat(MealConsumeID) from MealConsume"),
                 yes ? u"1,2"_qs : u"-1,1,2"_qs);
        QCOMPARE(shown(), yes ? u"21 Jul 2026: 0"_qs : u"21 Jul 2026: 300"_qs);
    }
}

void tst_mainwindow::failedPrintingIsSaid()
{
    if (!QPrinterInfo::defaultPrinter().isNull())
        QSKIP("this machine has a printer, which a test should not use");
    auto &next = control<QPushButton>(*m_window, "btnNext");
    next.setFocus();
    entry("mnuPrintChart").trigger();
    QCOMPARE(m_window->focusWidget(), &next); // though hidden meanwhile
    QCOMPARE(m_messages.takeText(),
             u"Can't print. Please check whether your default printer is accessible"_qs);
    QVERIFY(control<QWidget>(*m_window, "btnPrev").isVisible());
    QVERIFY(!QApplication::overrideCursor());
}

void tst_mainwindow::exitClosesEveryWindow()
{
    QWidget other;
    other.show();
    entry("mnuExit").trigger();
    QVERIFY(!m_window->isVisible());
    QVERIFY(!other.isVisible());
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
