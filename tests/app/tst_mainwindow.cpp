// The main window: its menus, the way through the days, and its layout.
#include "../journal/dayjournal.h"
#include "app/dayviewlayout.h"
#include "app/frmMain.h"

#include <QAccessible>
#include <QDateEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPrinterInfo>

using namespace Qt::Literals;

class tst_mainwindow : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_window.reset(); }
    void accessKeysAreUnique();
    void rebuildsAfterDialogs();
    void deletesTrialDataAfterAYes();
    void failedPrintingIsSaid();
    void keepsTheDayThatCantBeLeft();
    void laysOut();

private:
    QAction &entry(const char *name) { return control<QAction>(*m_window, name); }
    // The day that is shown, and the calories eaten that the chart tells of it: "22 Jul 2026: 300".
    QString shown()
    {
        auto *chart = QAccessible::queryAccessibleInterface(&control<QWidget>(*m_window, "graph"));
        return textOf(*m_window, "txtDate") + u": "_qs +
               chart->text(QAccessible::Description).section(u' ', 1, 1).remove(u',');
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

// The chart is built anew even for a date that was not changed, but not for parameters that were
// not stored.
void tst_mainwindow::rebuildsAfterDialogs()
{
    m_journal->exec("update MealConsume set Qty = 5");
    const auto closed = [&](const char *dialog, const char *menuEntry, const char *button) {
        inDialog(
            dialog, [&] { entry(menuEntry).trigger(); },
            [&](QWidget &window) {
                if (auto *picker = window.findChild<QDateEdit *>(u"dtpDate"_qs)) {
                    QCOMPARE(picker->date(), QDate(2026, 7, 22));
                    picker->setDate(QDate(2026, 7, 23));
                }
                press(window, button);
            });
        return shown();
    };
    QCOMPARE(closed("frmCommon", "mnuCommon", "btnCancel"), "22 Jul 2026: 300");
    QCOMPARE(closed("frmCommon", "mnuCommon", "btnOK"), "22 Jul 2026: 1500");
    m_journal->exec("update MealConsume set Qty = 6");
    QCOMPARE(closed("frmDate", "mnuSetDate", "btnCancel"), "22 Jul 2026: 1800");
    QCOMPARE(closed("frmDate", "mnuSetDate", "btnOK"), "23 Jul 2026: 1800");
    press(*m_window, "btnNext");
    QCOMPARE(shown(), "24 Jul 2026: 0");
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
