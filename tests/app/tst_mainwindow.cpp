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
    void walksOverNewYear();
    void rebuildsAfterDialogs_data();
    void rebuildsAfterDialogs();
    void deletesTrialDataAfterAYes();
    void failedPrintingIsSaid();
    void exitClosesEveryWindow();
    void laysOut_data();
    void laysOut();
    void partsKeepApart();

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

// Within each menu, and among the menu bar and the buttons; a tool button is a menu's entry.
void tst_mainwindow::accessKeysAreUnique()
{
    const auto verify = [](const QStringList &captions) {
        QString keys;
        for (const QString &caption : captions) {
            const qsizetype mark = caption.indexOf(u'&');
            const QString key = mark < 0 ? QString() : caption.mid(mark + 1, 1).toLower();
            QVERIFY2(key.isEmpty() || !keys.contains(key), qPrintable(caption));
            keys += key;
        }
    };
    QStringList inWindow;
    QList<QAction *> entries;
    for (const QAction *top : m_window->menuBar()->actions()) {
        inWindow += top->text();
        QStringList inMenu;
        for (QAction *action : top->menu()->actions())
            inMenu += action->text();
        verify(inMenu);
        entries += top->menu()->actions();
    }
    for (const char *button : {"btnPrev", "btnNext", "btnHelp"})
        inWindow += control<QPushButton>(*m_window, button).text();
    verify(inWindow);
    for (QAction *button : control<QToolBar>(*m_window, "tlbToolBar").actions())
        QVERIFY2(button->isSeparator() || (entries.contains(button) && !button->icon().isNull()),
                 qPrintable(button->objectName()));
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
    QCOMPARE(m_journal->session->currentDate(), QDate(2027, 1, 1));
    click(*m_window, "btnPrev");
    QCOMPARE(shown(), "31 Dec 2026: 0");
}

// The chart is built anew even for a date that was not changed, but not for parameters that were
// not stored.
void tst_mainwindow::rebuildsAfterDialogs_data()
{
    QTest::addColumn<QString>("dialog");
    QTest::addColumn<QString>("menuEntry");
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("after");
    const auto row = [](const char *dialog, const char *entry, const char *button,
                        const char *after) {
        QTest::addRow("%s, %s", dialog, button) << dialog << entry << button << after;
    };
    row("frmDate", "mnuSetDate", "btnOK", "23 Jul 2026: 500");
    row("frmDate", "mnuSetDate", "btnCancel", "22 Jul 2026: 500");
    row("frmCommon", "mnuCommon", "btnOK", "22 Jul 2026: 500");
    row("frmCommon", "mnuCommon", "btnCancel", "22 Jul 2026: 300");
}

void tst_mainwindow::rebuildsAfterDialogs()
{
    QFETCH(QString, dialog);
    QFETCH(QString, menuEntry);
    QFETCH(QString, button);
    m_journal->exec("update MealConsume set Qty = 5");
    inDialog(
        qPrintable(dialog), [&] { entry(qPrintable(menuEntry)).trigger(); },
        [&](QWidget &window) {
            if (dialog == u"frmDate"_qs) {
                auto &picker = control<QDateEdit>(window, "dtpDate");
                QCOMPARE(picker.date(), QDate(2026, 7, 22));
                picker.setDate(QDate(2026, 7, 23));
            }
            click(window, qPrintable(button));
        });
    QTEST(shown(), "after");
}

void tst_mainwindow::deletesTrialDataAfterAYes()
{
    m_journal->session->setCurrentDate(QDate(2026, 7, 21));
    for (const bool yes : {false, true}) {
        m_messages = {};
        m_messages.answers = {yes};
        entry("mnuDeleteTrialData").trigger();
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
    entry("mnuPrintChart").trigger();
    QCOMPARE(m_messages.takeText(),
             u"Can't print. Please check whether your default printer is accessible"_qs);
    for (const char *part : {"btnPrev", "btnNext", "btnHelp", "txtDate", "tlbToolBar"})
        QVERIFY2(control<QWidget>(*m_window, part).isVisible(), part);
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

void tst_mainwindow::laysOut_data()
{
    QTest::addColumn<QSize>("view"); // in twips, as the expected places are
    QTest::addColumn<double>("pixelsPerTwip");
    QTest::addColumn<bool>("fits");
    QTest::newRow("least") << QSize(200, 1200) << 1.0 << true;
    QTest::newRow("too narrow") << QSize(199, 5000) << 1.0 << false;
    QTest::newRow("too low") << QSize(5000, 1199) << 1.0 << false;
    QTest::newRow("96 dots per inch") << QSize(14400, 9000) << 96.0 / 1440 << true;
}

void tst_mainwindow::laysOut()
{
    QFETCH(QSize, view);
    QFETCH(double, pixelsPerTwip);
    QFETCH(bool, fits);
    DayViewLayout layout;
    const auto pixels = [&](int twips) { return fits ? qRound(twips * pixelsPerTwip) : 0; };
    QCOMPARE(layOutDayView((QSizeF(view) * pixelsPerTwip).toSize(), pixelsPerTwip, layout), fits);
    QCOMPARE(layout.graph.size(), QSize(pixels(view.width() - 120), pixels(view.height() - 1050)));
    QCOMPARE(layout.buttonTop, pixels(view.height() - 585));
    QCOMPARE(layout.dateTop, pixels(view.height() - 405));
}

void tst_mainwindow::partsKeepApart()
{
    for (const QSize &size : {QSize(1, 1), QSize(2000, 1400)}) {
        m_window->resize(size);
        QTest::qWait(20);
        const QRect graph = control<QWidget>(*m_window, "graph").geometry();
        QVERIFY(graph.height() > control<QWidget>(*m_window, "btnPrev").height());
        QRect before = graph;
        for (const char *name : {"btnPrev", "btnNext", "txtDate", "btnHelp"}) {
            const auto &part = control<QWidget>(*m_window, name);
            QVERIFY2(part.parentWidget()->rect().contains(part.geometry()), name);
            QVERIFY2(!part.geometry().intersects(before), name);
            QVERIFY2(part.height() >= part.fontMetrics().height(), name);
            before = part.geometry();
        }
    }
}

QTEST_MAIN(tst_mainwindow)
#include "tst_mainwindow.moc"
