#include "progress/frmGeneralProgress.h"

#include "plot/paper.h"
#include "progress/daystable.h"
#include "progress/progresschart.h"
#include "progress/savepicture.h"
#include "progress/targets.h"
#include "progress/weekstable.h"
#include "session/session.h"
#include "ui/attempt.h"
#include "ui/helpbutton.h"
#include "ui/messages.h"
#include "ui/telling.h"

#include <QApplication>
#include <QBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScopeGuard>
#include <QScreen>
#include <QShortcut>
#include <QSplitter>
#include <QTabWidget>
#include <QTableWidget>
#include <QTimer>
#include <QTreeView>

#include <functional>
#include <stdexcept>

using namespace progress;

namespace {

constexpr int sideWidth = 16;          // in lines of text
constexpr int dayLines = 10;           // of text, so that the list below stands still
constexpr qsizetype mostOfNote = 2000; // characters

QPushButton *makeButton(const QString &name, const QString &caption, QWidget *parent)
{
    auto *button = new QPushButton(caption, parent);
    button->setObjectName(name);
    button->setAutoDefault(false);
    return button;
}

DaySeries loadWithTargets(Session &session, const Period &period)
{
    const CommonParameters &parameters = session.parameters();
    DaySeries series = loadSeries(session.data(), period, parameters.metabolicRate);
    series.targets = targetsOf(goalsOf(installationOf(session.data().Con)), parameters.isMetric(),
                               session.clock().now().date());
    return series;
}

/// Runs what shows a period. A figure beyond what it can hold is told in a message.
void tellingFaults(Session &session, Messages &messages, QWidget *window,
                   const std::function<void()> &show)
{
    try {
        show();
    } catch (const DayOverflow &error) {
        messages.error(window, frmGeneralProgress::tr(
                                   "The progress can't be shown: a measurement or the balance of "
                                   "%1 is too large. Please correct it and try again")
                                   .arg(session.text().mediumDate(error.day)));
    } catch (const OverflowError &) {
        messages.error(window, frmGeneralProgress::tr(
                                   "The progress can't be shown: a measurement of this period is "
                                   "too large. Please correct it and try again"));
    } catch (const std::out_of_range &) {
        messages.error(window, frmGeneralProgress::tr(
                                   "The progress can't be shown: the period has too many days"));
    }
}

} // namespace

frmGeneralProgress::frmGeneralProgress(Session &session, Messages &messages, const Period &period,
                                       QWidget *parent)
    : QDialog(parent)
    , m_session(session)
    , m_messages(messages)
    , m_steps(period)
    , m_series(loadWithTargets(session, period))
    , m_texts(session.text(), session.parameters().isMetric())
    , tabPages(new QTabWidget(this))
    , m_chart(new ProgressChart(m_series, m_texts, this))
    , lblDay(new QLabel(this))
    , m_notesHeading(new QLabel(this))
    , lvwNotes(new QTableWidget(this))
    , m_days(new DaysTable(m_series, m_texts, this))
    , m_weeks(new WeeksTable(m_texts, this))
    , btnPrevious(makeButton(QStringLiteral("btnPrevious"), tr("Pre&vious"), this))
    , lblPeriod(new QLabel(this))
    , btnNext(makeButton(QStringLiteral("btnNext"), tr("Ne&xt"), this))
    , btnPrint(makeButton(QStringLiteral("btnPrint"), tr("&Print"), this))
    , btnSave(makeButton(QStringLiteral("btnSave"), tr("&Save Picture"), this))
    , btnCopy(makeButton(QStringLiteral("btnCopy"), tr("C&opy Table"), this))
    , btnClose(makeButton(QStringLiteral("btnClose"), tr("C&lose"), this))
    , btnHelp(makeHelpButton(this))
{
    setObjectName(QStringLiteral("frmGeneralProgress"));
    setWindowTitle(tr("General Progress"));
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    tabPages->setObjectName(QStringLiteral("tabPages"));
    tabPages->addTab(makeChartPage(), tr("&Chart"));
    tabPages->addTab(m_days, tr("&Table"));
    tabPages->addTab(m_weeks, tr("&Weeks"));
    tabPages->setCornerWidget(makePeriodBar());

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(tabPages, 1);
    layout->addLayout(makeButtons());
    makeConnections();
    sizeToScreen();
    m_weeks->showWeeks(m_series, loadConsumed(session.data(), period));
    tellPeriod();
    m_chart->setFocus();
}

QWidget *frmGeneralProgress::makeChartPage()
{
    auto *page = new QSplitter;
    page->setChildrenCollapsible(false);
    page->addWidget(m_chart);
    page->addWidget(makeSide());
    page->setStretchFactor(0, 1);
    page->setSizes(
        {sideWidth * 5 * fontMetrics().lineSpacing(), sideWidth * fontMetrics().lineSpacing()});
    return page;
}

QWidget *frmGeneralProgress::makeSide()
{
    const int line = fontMetrics().lineSpacing();
    auto *side = new QWidget;
    side->setMinimumWidth(11 * line);
    lblDay->setObjectName(QStringLiteral("lblDay"));
    lblDay->setTextFormat(Qt::RichText);
    lblDay->setTextInteractionFlags(Qt::TextSelectableByMouse);
    lblDay->setWordWrap(true);
    lblDay->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    lblDay->setMinimumHeight(dayLines * line);

    makeNotes();

    auto *layout = new QVBoxLayout(side);
    layout->addWidget(lblDay);
    layout->addWidget(m_notesHeading);
    layout->addWidget(lvwNotes, 1);
    layout->addStretch();
    return side;
}

QWidget *frmGeneralProgress::makePeriodBar()
{
    auto *bar = new QWidget;
    lblPeriod->setObjectName(QStringLiteral("lblPeriod"));
    lblPeriod->setAlignment(Qt::AlignCenter);
    auto *layout = new QHBoxLayout(bar);
    layout->setContentsMargins({});
    layout->addWidget(btnPrevious);
    layout->addWidget(lblPeriod);
    layout->addWidget(btnNext);
    const auto connectStep = [this](QPushButton *button, const QKeySequence &key,
                                    const QString &what, int periods) {
        button->setToolTip(tr("%1 (%2)").arg(what, key.toString(QKeySequence::NativeText)));
        connect(button, &QPushButton::clicked, this, [this, periods] { step(periods); });
        connect(new QShortcut(key, this), &QShortcut::activated, button, &QPushButton::click);
    };
    connectStep(btnPrevious, Qt::ALT | Qt::Key_Left, tr("The period before"), -1);
    connectStep(btnNext, Qt::ALT | Qt::Key_Right, tr("The period after"), 1);
    return bar;
}

void frmGeneralProgress::makeNotes()
{
    m_notesHeading->setBuddy(lvwNotes);
    lvwNotes->setObjectName(QStringLiteral("lvwNotes"));
    lvwNotes->setAccessibleName(tr("Notes"));
    lvwNotes->setColumnCount(2);
    lvwNotes->setShowGrid(false);
    lvwNotes->setAlternatingRowColors(true);
    lvwNotes->setEditTriggers(QAbstractItemView::NoEditTriggers);
    lvwNotes->setSelectionBehavior(QAbstractItemView::SelectRows);
    lvwNotes->setSelectionMode(QAbstractItemView::SingleSelection);
    lvwNotes->setTabKeyNavigation(false);
    lvwNotes->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    lvwNotes->horizontalHeader()->hide();
    lvwNotes->horizontalHeader()->setResizeContentsPrecision(26); // the alphabet
    lvwNotes->horizontalHeader()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    lvwNotes->horizontalHeader()->setSectionResizeMode(1, QHeaderView::Stretch);
    lvwNotes->verticalHeader()->hide();
}

void frmGeneralProgress::fillNotes()
{
    QHeaderView &rows = *lvwNotes->verticalHeader();
    rows.setSectionResizeMode(QHeaderView::Fixed);
    lvwNotes->setRowCount(0); // none is chosen
    lvwNotes->setRowCount(int(m_series.notes.size()));
    for (int row = 0; row < lvwNotes->rowCount(); ++row) {
        const Note &note = m_series.notes[size_t(row)];
        auto *letter = new QTableWidgetItem(noteLetter(size_t(row)));
        QFont bold = font();
        bold.setBold(true);
        letter->setFont(bold);
        letter->setTextAlignment(Qt::AlignHCenter | Qt::AlignTop);
        auto *text = new QTableWidgetItem(QStringLiteral("%1\n%2").arg(
            m_texts.days(note.DateFrom, note.DateTo), m_texts.noteText(note, mostOfNote)));
        lvwNotes->setItem(row, 0, letter);
        lvwNotes->setItem(row, 1, text);
    }
    measureNotes();
    const bool isEmpty = m_series.notes.empty();
    m_notesHeading->setText(isEmpty ? tr("No notes in this period.") : tr("&Notes"));
    if (isEmpty && lvwNotes->hasFocus())
        m_chart->setFocus(); // hidden, it would hand its focus on to whatever comes next
    lvwNotes->setVisible(!isEmpty);
}

/// Those in sight at once, and all of them, which may be hundreds, once they are painted.
void frmGeneralProgress::measureNotes()
{
    const auto measureAll = [this] {
        lvwNotes->verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    };
    if (!isVisible())
        return measureAll(); // their width is not known yet
    int height = 0;
    for (int row = 0; row < lvwNotes->rowCount() && height < lvwNotes->height(); ++row) {
        lvwNotes->resizeRowToContents(row);
        height += lvwNotes->rowHeight(row);
    }
    QTimer::singleShot(0, lvwNotes, measureAll);
}

QBoxLayout *frmGeneralProgress::makeButtons()
{
    auto *buttons = new QHBoxLayout;
    for (QPushButton *button : {btnPrint, btnSave, btnCopy})
        buttons->addWidget(button);
    buttons->addStretch();
    for (QPushButton *button : {btnClose, btnHelp})
        buttons->addWidget(button);
    return buttons;
}

void frmGeneralProgress::makeConnections()
{
    connect(m_chart, &ProgressChart::dayChanged, this, &frmGeneralProgress::tellDay);
    connect(m_chart, &ProgressChart::noteChosen, this,
            [this](size_t note) { lvwNotes->setCurrentCell(int(note), 0); });
    connect(lvwNotes, &QTableWidget::currentCellChanged, this, [this](int row) {
        m_chart->showNote(row >= 0 ? std::optional(size_t(row)) : std::nullopt);
    });
    connect(btnPrint, &QPushButton::clicked, this, &frmGeneralProgress::print);
    connect(btnSave, &QPushButton::clicked, this, &frmGeneralProgress::save);
    connect(btnCopy, &QPushButton::clicked, this, &frmGeneralProgress::copyTable);
    connect(btnClose, &QPushButton::clicked, this, &QDialog::reject);
}

void frmGeneralProgress::sizeToScreen()
{
    const QSize wanted = QSize(76, 44) * fontMetrics().lineSpacing();
    resize(wanted.boundedTo(screen()->availableSize() * 0.94));
}

/// Nothing has changed where it throws.
void frmGeneralProgress::showPeriod(const PeriodSteps &steps)
{
    const Period period = steps.current();
    DaySeries series = loadWithTargets(m_session, period);
    const std::vector<Consumed> consumed = loadConsumed(m_session.data(), period);
    const auto exchange = [&] {
        std::swap(m_series, series);
        m_chart->startAnew();
        m_days->refill();
    };
    auto putBack = qScopeGuard(exchange);
    exchange();
    m_weeks->showWeeks(m_series, consumed);
    putBack.dismiss();
    m_steps = steps;
    tellPeriod();
}

void frmGeneralProgress::tellPeriod()
{
    fillNotes();
    tell(*lblPeriod, m_texts.days(m_series.period().dateFrom, m_series.period().dateTo));
    // It only grows, so that the buttons stand still.
    lblPeriod->setMinimumWidth(qMax(lblPeriod->minimumWidth(), lblPeriod->sizeHint().width()));
    tellDay(m_chart->day());
    offerSteps();
}

void frmGeneralProgress::offerSteps()
{
    const bool hasPrevious = m_steps.hasPrevious();
    const bool hasNext = m_steps.hasNext(m_session.clock().now().date());
    btnPrevious->setEnabled(true);
    btnNext->setEnabled(true);
    // Disabled, a button would hand its focus on to whatever comes next.
    if (!hasPrevious && btnPrevious->hasFocus())
        btnNext->setFocus();
    if (!hasNext && btnNext->hasFocus())
        btnPrevious->setFocus();
    btnPrevious->setEnabled(hasPrevious);
    btnNext->setEnabled(hasNext);
}

void frmGeneralProgress::step(int periods)
{
    PeriodSteps steps = m_steps;
    steps.move(periods);
    attempt(
        this, m_messages,
        [&] { tellingFaults(m_session, m_messages, this, [&] { showPeriod(steps); }); },
        tr("The period can't be shown"));
}

void frmGeneralProgress::tellDay(qint16 day)
{
    QStringList lines = m_texts.dayWords(m_series, day).toHtmlEscaped().split(u'\n');
    lines.front() = QStringLiteral("<b>%1</b>").arg(lines.front());
    lblDay->setText(lines.join(QStringLiteral("<br>")));
}

void frmGeneralProgress::print()
{
    bool printed = false;
    {
        QApplication::setOverrideCursor(Qt::WaitCursor);
        const auto restoreCursor = qScopeGuard([] { QApplication::restoreOverrideCursor(); });
        QFont paperFont = font();
        paperFont.setPointSizeF(paperPoints);
        const PageContents contents = {m_series, m_texts, windowTitle(), paperFont};
        printed =
            plot::printLandscape(windowTitle(), [&](QPainter &painter, QPagedPaintDevice &paper) {
                paintPages(painter, paper, contents);
            });
    }
    if (!printed)
        m_messages.error(
            this, tr("Can't print. Please check whether your default printer is accessible"));
}

void frmGeneralProgress::save()
{
    savePicture(this, m_messages, {m_series, m_texts, windowTitle(), font()},
                m_chart->size().expandedTo(m_chart->sizeHint()));
}

void frmGeneralProgress::copyTable()
{
    const bool isWeeks = tabPages->currentWidget() == m_weeks;
    (isWeeks ? static_cast<FiguresTable *>(m_weeks) : m_days)->copy();
}

void showGeneralProgress(Session &session, Messages &messages, const Period &period,
                         QWidget *parent)
{
    tellingFaults(session, messages, parent,
                  [&] { frmGeneralProgress(session, messages, period, parent).exec(); });
}
