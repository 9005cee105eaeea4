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
#include <QTest>
#include <QToolBar>
#include <QToolButton>

using namespace Qt::Literals;

class tst_mainwindow : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void menusAsPrinted_data();
    void menusAsPrinted();
    void accessKeysAreUnique();
    void toolbarRunsTheMenus();
    void toolTips();

    void walksOverNewYear();
    void setsTheDate();
    void rebuildsAfterACancelledDate();
    void commonParametersRebuildWhenStored();
    void deletesTrialData();
    void trialDataStayWithoutAYes();
    void failedPrintingIsSaid();
    void exitClosesEveryWindow();

    void laysOut_data();
    void laysOut();
    void partsKeepApart();
    void tooSmallToLayOut();

private:
    QAction *entry(const char *name) { return m_window->findChild<QAction *>(QLatin1String(name)); }
    QString date() { return control<QLineEdit>(*m_window, "txtDate").text(); }
    void click(const char *button)
    {
        QTest::mouseClick(&control<QPushButton>(*m_window, button), Qt::LeftButton);
    }
    // What the chart tells about the day that it shows.
    QString chart()
    {
        return QAccessible::queryAccessibleInterface(&control<QWidget>(*m_window, "graph"))
            ->text(QAccessible::Description);
    }

    std::unique_ptr<TestJournal> m_journal;
    std::unique_ptr<RecordedMessages> m_messages;
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
    m_messages = std::make_unique<RecordedMessages>();
    m_window = std::make_unique<frmMain>(*m_journal->session, *m_messages);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

void tst_mainwindow::cleanup()
{
    m_window.reset();
    m_journal.reset();
}

void tst_mainwindow::menusAsPrinted_data()
{
    QTest::addColumn<QString>("menu");
    QTest::addColumn<QStringList>("captions");
    QTest::newRow("Operate") << u"&Operate"_qs
                             << QStringList{u"&Meal Consumed List"_qs,
                                            u"&Add Meal"_qs,
                                            u"-"_qs,
                                            u"A&ctivities Performed List"_qs,
                                            u"A&dd Activity"_qs,
                                            u"-"_qs,
                                            u"&Body Measurement and Notes"_qs,
                                            u"Add Body Measu&rement"_qs,
                                            u"Add &Note"_qs,
                                            u"-"_qs,
                                            u"&Print Daily Chart"_qs,
                                            u"-"_qs,
                                            u"&Set Date"_qs,
                                            u"-"_qs,
                                            u"Delete Trial Data"_qs,
                                            u"-"_qs,
                                            u"E&xit"_qs};
    QTest::newRow("Analyze") << u"&Analyze"_qs << QStringList{u"&General Progress"_qs};
    QTest::newRow("Settings") << u"&Settings"_qs
                              << QStringList{u"Meal &Categories"_qs, u"&Meal"_qs, u"&Activities"_qs,
                                             u"-"_qs, u"C&ommon"_qs};
    QTest::newRow("Help") << u"&Help"_qs
                          << QStringList{u"&About"_qs, u"&Contents"_qs, u"&Main Form"_qs};
}

void tst_mainwindow::menusAsPrinted()
{
    QFETCH(QString, menu);
    for (const QAction *top : m_window->menuBar()->actions()) {
        if (top->text() != menu)
            continue;
        QStringList captions;
        for (const QAction *action : top->menu()->actions())
            captions += action->isSeparator() ? u"-"_qs : action->text();
        QTEST(captions, "captions");
        return;
    }
    QFAIL("there is no such menu");
}

void tst_mainwindow::accessKeysAreUnique()
{
    const auto keyOf = [](const QString &caption) {
        const auto mark = caption.indexOf(u'&');
        return mark < 0 ? QChar() : caption.at(mark + 1).toLower();
    };
    const auto verify = [&](const QStringList &captions) {
        QString keys;
        for (const QString &caption : captions) {
            const QChar key = keyOf(caption);
            QVERIFY2(key.isNull() || !keys.contains(key), qPrintable(caption));
            keys += key;
        }
    };
    QStringList inWindow;
    for (const QAction *top : m_window->menuBar()->actions()) {
        inWindow += top->text();
        QStringList inMenu;
        for (const QAction *action : top->menu()->actions())
            inMenu += action->text();
        verify(inMenu);
    }
    for (const char *button : {"btnPrev", "btnNext", "btnHelp"})
        inWindow += control<QPushButton>(*m_window, button).text();
    verify(inWindow);
}

void tst_mainwindow::toolbarRunsTheMenus()
{
    QStringList keys;
    const auto &toolbar = control<QToolBar>(*m_window, "tlbToolBar");
    for (QAction *button : toolbar.actions()) {
        if (button->isSeparator())
            continue;
        keys += button->objectName();
        // The button is the entry: what the one runs, the other runs.
        bool isEntry = false;
        for (const QAction *top : m_window->menuBar()->actions())
            isEntry = isEntry || top->menu()->actions().contains(button);
        QVERIFY2(isEntry, qPrintable(button->objectName()));
        QVERIFY2(!button->icon().isNull(), qPrintable(button->objectName()));
    }
    QCOMPARE(keys.join(u' '),
             u"mnuMealConsume mnuAddMeal mnuExercisePerformed mnuAddExercise mnuMeasurement "
             "mnuAddMeasurement mnuAddNote mnuPrintChart mnuGeneralProgress mnuMealCategories "
             "mnuMeal mnuExercises mnuHelpAbout mnuHelpContents"_qs);
    auto *addMeal = qobject_cast<QToolButton *>(toolbar.widgetForAction(entry("mnuAddMeal")));
    inDialog(
        "frmMealConsume", [&] { QTest::mouseClick(addMeal, Qt::LeftButton); },
        [](QWidget &dialog) {
            QCOMPARE(control<QPushButton>(dialog, "btnOK").text(), u"&Add"_qs);
        });
}

void tst_mainwindow::toolTips()
{
    const std::pair<const char *, const char *> expected[] = {
        {"mnuMealConsume", "Meal Consume List"},
        {"mnuAddMeal", "Add Meal"},
        {"mnuExercisePerformed", "Activities Performed List"},
        {"mnuAddExercise", "Add Activity"},
        {"mnuMeasurement", "Body Measurement & Notes"},
        {"mnuAddMeasurement", "Add Measurement"},
        {"mnuAddNote", "Add Note"},
        {"mnuPrintChart", "Print Daily Chart"},
        {"mnuGeneralProgress", "General Progress"},
        {"mnuMealCategories", "Configure Meal Categories"},
        {"mnuMeal", "Configure Meals"},
        {"mnuExercises", "Configure Activities"},
        {"mnuHelpAbout", "About the Program"},
        {"mnuHelpContents", "Help Contents"},
    };
    for (const auto &[name, toolTip] : expected)
        QCOMPARE(entry(name)->toolTip(), QLatin1StringView(toolTip));
}

void tst_mainwindow::walksOverNewYear()
{
    QCOMPARE(date(), u"22 Jul 2026"_qs);
    QVERIFY2(chart().startsWith(u"Eaten 300"_qs), qPrintable(chart()));
    click("btnNext");
    click("btnNext");
    QCOMPARE(date(), u"24 Jul 2026"_qs);
    QVERIFY(chart().startsWith(u"Eaten 0"_qs));
    click("btnPrev");
    QVERIFY(chart().startsWith(u"Eaten 300"_qs));

    m_journal->session->setCurrentDate(QDate(2026, 12, 31));
    click("btnNext");
    QCOMPARE(date(), u"1 Jan 2027"_qs);
    QCOMPARE(m_journal->session->currentDate(), QDate(2027, 1, 1));
    click("btnPrev");
    QCOMPARE(date(), u"31 Dec 2026"_qs);
}

void tst_mainwindow::setsTheDate()
{
    const auto setDate = [&](const char *button) {
        inDialog(
            "frmDate", [&] { entry("mnuSetDate")->trigger(); },
            [&](QWidget &dialog) {
                QCOMPARE(dialog.windowTitle(), u"Set Current Date"_qs);
                auto &picker = control<QDateEdit>(dialog, "dtpDate");
                QCOMPARE(picker.date(), m_journal->session->currentDate());
                picker.setDate(QDate(2024, 2, 29));
                QTest::mouseClick(&control<QPushButton>(dialog, button), Qt::LeftButton);
            });
    };
    setDate("btnCancel");
    QCOMPARE(date(), u"22 Jul 2026"_qs);
    setDate("btnOK");
    QCOMPARE(date(), u"29 Feb 2024"_qs);
    QVERIFY(chart().startsWith(u"Eaten 0"_qs));
}

void tst_mainwindow::rebuildsAfterACancelledDate()
{
    m_journal->exec("update MealConsume set Qty = 5 where MealConsumeID = 1");
    inDialog(
        "frmDate", [&] { entry("mnuSetDate")->trigger(); },
        [](QWidget &dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    QVERIFY2(chart().startsWith(u"Eaten 500"_qs), qPrintable(chart()));
}

void tst_mainwindow::commonParametersRebuildWhenStored()
{
    m_journal->exec("update MealConsume set Qty = 5 where MealConsumeID = 1");
    const auto openCommon = [&](const char *button) {
        inDialog(
            "frmCommon", [&] { entry("mnuCommon")->trigger(); },
            [&](QWidget &dialog) {
                QTest::mouseClick(&control<QPushButton>(dialog, button), Qt::LeftButton);
            });
    };
    openCommon("btnCancel");
    QVERIFY(chart().startsWith(u"Eaten 300"_qs));
    openCommon("btnOK");
    QVERIFY(chart().startsWith(u"Eaten 500"_qs));
}

void tst_mainwindow::deletesTrialData()
{
    m_journal->session->setCurrentDate(QDate(2026, 7, 21));
    QVERIFY(chart().startsWith(u"Eaten 300"_qs));
    for (int round = 0; round < 2; ++round) {
        m_messages->said.clear();
        m_messages->answers = {true};
        entry("mnuDeleteTrialData")->trigger();
        QCOMPARE(m_messages->said.size(), size_t(1));
        QVERIFY(m_messages->said.front().isQuestion);
        QCOMPARE(m_messages->said.front().title, u"Are you sure?"_qs);
        QCOMPARE(
            m_messages->said.front().text,
            u"This will delete trial data supplied with the program as the sample.\r\n"
            "It refers to Meal Consumed, Exercise Performed, Body Measurement and User Notes.\r\n"
            "Neither Meal Description, Exercise Description nor any data you've entered yourself "
            "will be deleted.\r\n"
            "\r\n"
            "Are you sure you want to delete trial data now?"_qs);
        QCOMPARE(m_journal->row("select group_concat(MealConsumeID) from MealConsume"), u"1,2"_qs);
        QVERIFY(chart().startsWith(u"Eaten 0"_qs));
    }
}

void tst_mainwindow::trialDataStayWithoutAYes()
{
    entry("mnuDeleteTrialData")->trigger();
    QCOMPARE(m_journal->row("select group_concat(MealConsumeID) from MealConsume"), u"-1,1,2"_qs);
}

void tst_mainwindow::failedPrintingIsSaid()
{
    if (!QPrinterInfo::defaultPrinter().isNull())
        QSKIP("this machine has a printer, which a test should not use");
    entry("mnuPrintChart")->trigger();
    QCOMPARE(m_messages->takeText(),
             u"Can't print. Please check whether your default printer is accessible"_qs);
    for (const char *part : {"btnPrev", "btnNext", "btnHelp", "txtDate", "tlbToolBar"})
        QVERIFY2(control<QWidget>(*m_window, part).isVisible(), part);
    QVERIFY(!QApplication::overrideCursor());
}

void tst_mainwindow::exitClosesEveryWindow()
{
    QWidget other;
    other.show();
    entry("mnuExit")->trigger();
    QVERIFY(!m_window->isVisible());
    QVERIFY(!other.isVisible());
}

void tst_mainwindow::laysOut_data()
{
    QTest::addColumn<QSize>("view"); // in twips, as the expected places are
    QTest::addColumn<double>("pixelsPerTwip");
    QTest::newRow("usual") << QSize(14400, 9000) << 1.0;
    QTest::newRow("least") << QSize(200, 1200) << 1.0;
    QTest::newRow("96 dots per inch") << QSize(14400, 9000) << 96.0 / 1440;
    QTest::newRow("fine screen") << QSize(14400, 9000) << 192.0 / 1440;
}

void tst_mainwindow::laysOut()
{
    QFETCH(QSize, view);
    QFETCH(double, pixelsPerTwip);
    DayViewLayout layout;
    const auto pixels = [&](int twips) { return qRound(twips * pixelsPerTwip); };
    QVERIFY(
        layOutDayView(QSize(pixels(view.width()), pixels(view.height())), pixelsPerTwip, layout));
    QCOMPARE(layout.graph.width(), pixels(view.width() - 120));
    QCOMPARE(layout.graph.height(), pixels(view.height() - 1050));
    QCOMPARE(layout.buttonTop, pixels(view.height() - 585));
    QCOMPARE(layout.dateTop, pixels(view.height() - 405));
}

void tst_mainwindow::partsKeepApart()
{
    for (const QSize &size : {QSize(1, 1), QSize(900, 600), QSize(2000, 1400)}) {
        m_window->resize(size);
        QTest::qWait(20);
        const QRect graph = control<QWidget>(*m_window, "graph").geometry();
        QVERIFY(graph.height() > control<QWidget>(*m_window, "btnPrev").height());
        QRect before;
        for (const char *name : {"btnPrev", "btnNext", "txtDate", "btnHelp"}) {
            const auto &part = control<QWidget>(*m_window, name);
            QVERIFY2(part.parentWidget()->rect().contains(part.geometry()), name);
            QVERIFY2(part.geometry().top() >= graph.bottom(), name);
            QVERIFY2(!part.geometry().intersects(before), name);
            QVERIFY2(part.height() >= part.fontMetrics().height(), name);
            before = part.geometry();
        }
    }
}

void tst_mainwindow::tooSmallToLayOut()
{
    DayViewLayout layout;
    QVERIFY(!layOutDayView(QSize(199, 5000), 1, layout));
    QVERIFY(!layOutDayView(QSize(5000, 1199), 1, layout));
    QCOMPARE(layout.graph, QRect());
}

QTEST_MAIN(tst_mainwindow)
#include "tst_mainwindow.moc"
