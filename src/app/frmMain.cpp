#include "app/frmMain.h"

#include "about/frmAbout.h"
#include "app/chartprinter.h"
#include "app/dayview.h"
#include "app/dayviewlayout.h"
#include "app/frmDate.h"
#include "app/itemwords.h"
#include "catalogue/frmExercises.h"
#include "catalogue/frmMealCategories.h"
#include "catalogue/frmMeals.h"
#include "chart/TrellumGraph.h"
#include "exchange/frmCheckJournal.h"
#include "exchange/frmExport.h"
#include "exchange/frmImport.h"
#include "goals/frmGoals.h"
#include "help/helpviewer.h"
#include "journal/frmBody.h"
#include "journal/frmCopyDay.h"
#include "journal/frmExercisePerform.h"
#include "journal/frmExercisePerforms.h"
#include "journal/frmMealConsume.h"
#include "journal/frmMealConsumes.h"
#include "journal/frmMeasurements.h"
#include "journal/frmUserNote.h"
#include "lock/frmPassword.h"
#include "progress/frmGeneralProgress.h"
#include "progress/frmGeneralProgressSettings.h"
#include "quickadd/frmComposeMeal.h"
#include "quickadd/frmQuickAdd.h"
#include "session/installation.h"
#include "session/samplejournal.h"
#include "session/session.h"
#include "settings/frmCommon.h"
#include "ui/attempt.h"
#include "ui/helpbutton.h"
#include "ui/icons.h"
#include "ui/messages.h"

#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScopeGuard>
#include <QTimer>
#include <QToolBar>

#include <limits>
#include <utility>

namespace {

// The chart holds whole numbers of 32 bits; a figure beyond them is no person's day.
int chartFigure(double value)
{
    constexpr double limit = std::numeric_limits<int>::max();
    return static_cast<int>(qBound(-limit, value, limit));
}

std::optional<daychart::Budget> budgetOf(const Goals &goals)
{
    if (!goals.budget)
        return std::nullopt;
    return daychart::Budget{goals.budget->kind == DailyBudget::Kind::BurnLessDeficit,
                            goals.budget->calories};
}

} // namespace

frmMain::frmMain(Session &session, Messages &messages)
    : m_session(session)
    , m_messages(messages)
    , m_view(new DayView(this))
    , tlbToolBar(new QToolBar(this))
    , m_nextMinute(new QTimer(this))
{
    setObjectName(QStringLiteral("frmMain"));
    setWindowTitle(QStringLiteral("Corvana"));
    setCentralWidget(m_view);
    makeCommands();
    showPictures();
    makeConnections();

    const double scale = m_view->pixelsPerTwip();
    setMinimumWidth(qRound(leastWindowTwips * scale));
    resize(qRound(14400 * scale), qRound(10200 * scale));
    m_view->graph->setLocale(session.text().locale());
    m_view->graph->set24HourClock(session.is24HourClock());
    LoadGraph();
    showSampleNotice();
    showHistory();
}

void frmMain::showPictures()
{
    for (QAction *entry : m_entries)
        entry->setIcon(icon(entry->objectName(), palette()));
    // Their files are read while the window system brings up the window.
    const auto load = [this] {
        for (const QAction *button : tlbToolBar->actions())
            button->icon().pixmap(tlbToolBar->iconSize(), devicePixelRatioF());
    };
    QMetaObject::invokeMethod(this, load, Qt::QueuedConnection);
}

void frmMain::makeConnections()
{
    connect(m_view->btnPrev, &QPushButton::clicked, this, &frmMain::showPreviousDay);
    connect(m_view->btnNext, &QPushButton::clicked, this, &frmMain::showNextDay);
    connect(m_view, &DayView::dateDoubleClicked, this, &frmMain::setDate);
    connect(m_view->btnHelp, &QPushButton::clicked, this, &frmMain::showHelpOfMainForm);
    const auto handler = [this](auto method) { return attempting(this, m_messages, method); };
    connect(m_view->btnDeleteSample, &QPushButton::clicked, this,
            handler(&frmMain::deleteTrialData));
    connect(m_view->graph, &TrellumGraph::mealItemChosen, this, handler(&frmMain::chooseMeal));
    connect(m_view->graph, &TrellumGraph::freeMealPlaceChosen, this, handler(&frmMain::addMealAt));
    connect(m_view->graph, &TrellumGraph::activityItemChosen, this,
            handler(&frmMain::chooseActivity));
    connect(m_view->graph, &TrellumGraph::freeActivityPlaceChosen, this,
            handler(&frmMain::addActivityAt));
    connect(m_view->graph, &TrellumGraph::mealMenuWanted, this, &frmMain::showMealMenu);
    connect(m_view->graph, &TrellumGraph::activityMenuWanted, this, &frmMain::showActivityMenu);
    m_nextMinute->setObjectName(QStringLiteral("tmrNextMinute"));
    m_nextMinute->setSingleShot(true);
    connect(m_nextMinute, &QTimer::timeout, this, &frmMain::showNow);
    connect(&m_session, &Session::dayChanged, this, &frmMain::followDay);
    connect(&m_session, &Session::recordsChanged, this, &frmMain::followRecords);
    connect(&m_session, &Session::goalsChanged, this, &frmMain::redraw);
}

void frmMain::LoadGraph()
{
    TrellumGraph &graph = *m_view->graph;
    const QDate day = m_session.currentDate();
    // Both are read before anything is shown: a day that can't be read leaves the one before it.
    // Of a damaged file it shows what it can.
    Recordset &meals = m_session.data().rsMealConsumeSorted;
    Recordset &activities = m_session.data().rsExercisePerformSorted;
    meals.reopenReadable({Value(day)});
    activities.reopenReadable({Value(day)});
    m_shownVersion = m_session.data().Con.dataVersion();
    m_missing = whatIsMissing(meals.leftOut() + activities.leftOut(),
                              meals.isCutShort() || activities.isCutShort());

    const LocaleText &text = m_session.text();
    m_view->txtDate->setText(text.mediumDate(day));
    m_view->setWeekday(text.locale().standaloneDayName(day.dayOfWeek(), QLocale::LongFormat),
                       text.locale().standaloneDayName(day.dayOfWeek(), QLocale::ShortFormat));
    m_shownDate = day;
    m_view->tell({});
    graph.clear();
    graph.setBackgroundRate(m_session.parameters().metabolicRate / 60);
    graph.setBudget(budgetOf(goalsOf(installationOf(m_session.data().Con))));
    for (; !meals.isEof(); meals.moveNext())
        graph.addMeal(meals.integer(schema::MealConsume::MealConsumeID),
                      meals.time(schema::MealConsume::ConsumeTime),
                      commands::consumed.map(
                          [&meals](auto column) { return chartFigure(meals.number(column)); }),
                      itemWords(text, meals.text(schema::Meal::Name),
                                meals.value(schema::MealConsume::Qty),
                                meals.text(schema::Meal::Unit)));
    meals.close();
    for (; !activities.isEof(); activities.moveNext())
        graph.addActivity(activities.integer(schema::ExercisePerform::ExercisePerformID),
                          activities.time(schema::ExercisePerform::timeBeg),
                          activities.time(schema::ExercisePerform::timeEnd),
                          chartFigure(activities.number(commands::sCalories)),
                          itemWords(text, activities.text(schema::Exercise::Name),
                                    activities.value(schema::ExercisePerform::Qty),
                                    activities.text(schema::Exercise::Unit)));
    activities.close();
    showNow();
}

void frmMain::RePaintGraph()
{
    LoadGraph();
    m_view->graph->repaintChart();
    tellMissing();
}

// Comes again with every minute, for as long as the day shown is today.
void frmMain::showNow()
{
    constexpr int minute = 60000;
    const QDateTime now = m_session.clock().now();
    const bool isToday = now.date() == m_shownDate;
    m_view->graph->setNow(isToday ? now.time() : QTime());
    if (isToday)
        m_nextMinute->start(minute - now.time().msecsSinceStartOfDay() % minute);
    else
        m_nextMinute->stop();
}

// Once for a day, and not at every repainting.
void frmMain::tellMissing()
{
    const QDate day = m_missing.isEmpty() ? QDate() : m_shownDate;
    if (std::exchange(m_toldDate, day) != day && day.isValid())
        m_messages.error(this, tr("%1 is not shown in full").arg(m_session.text().mediumDate(day)),
                         m_missing);
}

void frmMain::showSampleNotice()
{
    try {
        m_view->setSampleNoticeVisible(hasSampleJournal(m_session.data()));
    } catch (const StoreError &) {
        // It stays as it is; what can't be read is told by who needs it.
    }
}

void frmMain::followDay()
{
    const QString day = m_session.text().mediumDate(m_session.currentDate());
    if (attempt(
            this, m_messages, [this] { RePaintGraph(); },
            tr("%1 can't be shown; the chart stays as it was").arg(day)))
        return;
    // Without a signal: what is shown has not changed.
    const QSignalBlocker blocker(m_session);
    m_session.setCurrentDate(m_shownDate);
}

// A new record of a catalogue stands in no day yet, and one that does can't be removed.
void frmMain::followRecords(const StoredChange &change)
{
    const bool isCatalogue =
        change.touches(schema::Meal::table) || change.touches(schema::Exercise::table);
    const bool isJournal = change.touches(schema::MealConsume::table) ||
                           change.touches(schema::ExercisePerform::table);
    if (isJournal || change.touches(schema::Common::table) ||
        (isCatalogue && change.kind == StoredChange::Kind::Changed))
        redraw();
    showSampleNotice();
    showHistory();
}

// Whenever the user comes back here, from a window of this program, too.
void frmMain::followOtherPrograms()
{
    try {
        if (m_session.data().Con.dataVersion() == m_shownVersion)
            return;
    } catch (const StoreError &) {
        return; // told by who needs the file
    }
    redraw();
    showSampleNotice();
}

void frmMain::redraw()
{
    attempt(
        this, m_messages, [this] { RePaintGraph(); },
        tr("The chart can't be drawn anew. What was stored before is stored"));
}

void frmMain::quickAdd()
{
    frmQuickAdd(m_session, m_messages, this).exec();
}

void frmMain::composeMeal()
{
    frmComposeMeal(m_session, m_messages, this).exec();
}

void frmMain::openGoals()
{
    frmGoals(m_session, m_messages, this).exec();
}

void frmMain::showToday()
{
    m_session.setCurrentDate(m_session.clock().now().date());
}

void frmMain::showPreviousDay()
{
    m_session.setCurrentDate(m_session.currentDate().addDays(-1));
}

void frmMain::showNextDay()
{
    m_session.setCurrentDate(m_session.currentDate().addDays(1));
}

void frmMain::setDate()
{
    frmDate(m_session, m_messages, this).exec();
}

template<typename Editor>
void frmMain::openEditor(qint32 id, bool addMode)
{
    Editor editor(m_session, m_messages, this);
    editor.setAddMode(addMode);
    attempt(
        this, m_messages, [&] { editor.run(id); }, tr("The record can't be opened"));
}

template<typename List>
void frmMain::openDayList()
{
    List(m_session, m_messages, this).run();
}

void frmMain::showMeals()
{
    openDayList<frmMealConsumes>();
}

void frmMain::addMeal()
{
    openEditor<frmMealConsume>(0, true);
}

/// The next entry is proposed at a time chosen on the chart; its captions have none.
void frmMain::takeTime(QTime time)
{
    if (time.isValid())
        m_session.setCurrentTime(time);
}

void frmMain::chooseMeal(int id, bool hit, QTime time)
{
    takeTime(time);
    if (hit && id != 0)
        openEditor<frmMealConsume>(id, false);
    else
        showMeals();
}

void frmMain::addMealAt(QTime time)
{
    takeTime(time);
    openEditor<frmMealConsume>(0, false);
}

void frmMain::showActivities()
{
    openDayList<frmExercisePerforms>();
}

void frmMain::addActivity()
{
    openEditor<frmExercisePerform>(0, true);
}

void frmMain::chooseActivity(int id, bool hit, QTime time)
{
    takeTime(time);
    if (hit && id != 0)
        openEditor<frmExercisePerform>(id, false);
    else
        showActivities();
}

void frmMain::addActivityAt(QTime time)
{
    takeTime(time);
    openEditor<frmExercisePerform>(0, false);
}

void frmMain::copyDay()
{
    if (const auto copies = frmCopyDay(m_session, m_messages, this).run())
        showCopies(*copies);
}

/// Once the chart has followed what was stored. Copies on another day are told of, no more.
void frmMain::showCopies(const EntryCopies &copies)
{
    if (copies.day == m_shownDate)
        m_view->graph->select(copies.ids(entryKindOf(schema::MealConsume::table)),
                              copies.ids(entryKindOf(schema::ExercisePerform::table)));
    m_view->tell(copies.told);
}

void frmMain::openMeasurements()
{
    frmMeasurements(m_session, m_messages, this).exec();
}

void frmMain::addMeasurement()
{
    frmBody(m_session, m_messages, this).run(0);
}

void frmMain::addNote()
{
    frmUserNote(m_session, m_messages, this).run(0);
}

void frmMain::printChart()
{
    bool printed = false;
    {
        QWidget *const hadFocus = focusWidget();
        // What is out of sight on paper is out of sight here, and can't be clicked meanwhile.
        m_view->setNavigationVisible(false);
        tlbToolBar->hide();
        const auto showAgain = qScopeGuard([this, hadFocus] {
            m_view->setNavigationVisible(true);
            tlbToolBar->show();
            if (hadFocus)
                hadFocus->setFocus();
        });
        QApplication::setOverrideCursor(Qt::WaitCursor);
        const auto restoreCursor = qScopeGuard([] { QApplication::restoreOverrideCursor(); });
        printed =
            printDailyChart(*m_view->graph, m_view->Label1->text(),
                            tr("%1, %2").arg(m_session.text().locale().dayName(
                                                 m_shownDate.dayOfWeek(), QLocale::LongFormat),
                                             m_view->txtDate->text()));
    }
    if (!printed)
        m_messages.error(
            this, tr("Can't print. Please check whether your default printer is accessible"));
}

void frmMain::deleteTrialData()
{
    const QStringList lines = {
        tr("This will delete trial data supplied with the program as the sample."),
        tr("It refers to Meal Consumed, Exercise Performed, Body Measurement and User Notes."),
        tr("Neither Meal Description, Exercise Description nor any data you've entered yourself "
           "will be deleted."),
        QString(),
        tr("Are you sure you want to delete trial data now?"),
    };
    if (!m_messages.ask(this, tr("Are you sure?"), lines.join(Session::lineBreak())))
        return;
    const auto remove = [this] {
        const UndoHistory::Recording recording(m_session.history(), tr("Deleting Trial Data"),
                                               m_session.currentDate());
        deleteSampleJournal(m_session.data());
    };
    attempt(this, m_messages, remove, tr("The trial data can't be deleted"));
    // Refused half-way, it has deleted some.
    m_session.announce({{&schema::Body::table, &schema::ExercisePerform::table,
                         &schema::MealConsume::table, &schema::UserNote::table},
                        StoredChange::Kind::Removed});
}

void frmMain::openMealCategories()
{
    frmMealCategories(m_session, m_messages, this).run();
}

void frmMain::openMeals()
{
    frmMeals(m_session, m_messages, this).run();
}

void frmMain::openExercises()
{
    frmExercises(m_session, m_messages, this).run();
}

void frmMain::openCommonParameters()
{
    frmCommon dialog(m_session, m_messages, this);
    dialog.setFirstStart(false);
    dialog.run();
}

void frmMain::openGeneralProgress()
{
    frmGeneralProgressSettings settings(m_session, m_messages, this);
    settings.exec();
    if (settings.OkPressed())
        showGeneralProgress(m_session, m_messages, settings.period(), this);
}

void frmMain::exportJournalFiles()
{
    frmExport(m_session, m_messages, this).exec();
}

void frmMain::importFiles()
{
    frmImport(m_session, m_messages, this).exec();
}

void frmMain::checkJournalFile()
{
    frmCheckJournal(m_session, m_messages, this).exec();
}

void frmMain::openPassword()
{
    frmPassword(m_session, m_messages, this).exec();
}

void frmMain::leave()
{
    close();
}

void frmMain::showAbout()
{
    attempt(this, m_messages, [this] { frmAbout(m_session, this).exec(); });
}

void frmMain::showHelpContents()
{
    showHelp(this, Installation::ofProgram().helpPath(), {});
}

void frmMain::showHelpOfMainForm()
{
    sendHelpKey(this);
}

void frmMain::showEvent(QShowEvent *event)
{
    QMainWindow::showEvent(event);
    m_view->graph->setFocus();
    QTimer::singleShot(0, this, &frmMain::showBackupState);
    QTimer::singleShot(0, this, &frmMain::tellMissing); // behind its message the window is seen
}

void frmMain::changeEvent(QEvent *event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        showPictures();
    if (event->type() == QEvent::ActivationChange && isActiveWindow()) {
        showNow(); // after a sleep of the machine, during which no timer ran
        followOtherPrograms();
    }
}

void frmMain::closeEvent(QCloseEvent *event)
{
    QMainWindow::closeEvent(event);
    // The program ends with its main window, whatever else is still open.
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (window != this && window->isVisible())
            window->close();
    }
}
