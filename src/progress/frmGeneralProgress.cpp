#include "progress/frmGeneralProgress.h"

#include "plot/paper.h"
#include "progress/daystable.h"
#include "progress/progresschart.h"
#include "progress/savepicture.h"
#include "session/session.h"
#include "ui/helpbutton.h"
#include "ui/messages.h"

#include <QApplication>
#include <QBoxLayout>
#include <QClipboard>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScopeGuard>
#include <QScreen>
#include <QShortcut>
#include <QSplitter>
#include <QTabWidget>
#include <QTableWidget>
#include <QTreeView>

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

} // namespace

frmGeneralProgress::frmGeneralProgress(Session &session, Messages &messages, const Period &period,
                                       QWidget *parent)
    : QDialog(parent)
    , m_messages(messages)
    , m_series(loadSeries(session.data(), period, session.parameters().metabolicRate))
    , m_texts(session.text(), session.parameters().isMetric())
    , m_table(tableOf(m_series, m_texts))
    , tabPages(new QTabWidget(this))
    , m_chart(new ProgressChart(m_series, m_texts, this))
    , lblDay(new QLabel(this))
    , lvwNotes(new QTableWidget(this))
    , m_days(new DaysTable(m_series, m_table, this))
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

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(tabPages, 1);
    layout->addLayout(makeButtons());
    makeConnections();
    sizeToScreen();
    tellDay(m_chart->day());
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

    auto *heading = new QLabel(tr("&Notes"), this);
    heading->setBuddy(lvwNotes);
    lvwNotes->setObjectName(QStringLiteral("lvwNotes"));
    lvwNotes->setAccessibleName(tr("Notes"));
    fillNotes();

    auto *layout = new QVBoxLayout(side);
    layout->addWidget(lblDay);
    layout->addWidget(heading);
    layout->addWidget(lvwNotes, 1);
    if (m_series.notes.empty()) {
        heading->setText(tr("No notes in this period."));
        lvwNotes->hide();
        layout->addStretch();
    }
    return side;
}

void frmGeneralProgress::fillNotes()
{
    lvwNotes->setRowCount(int(m_series.notes.size()));
    lvwNotes->setColumnCount(2);
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
    lvwNotes->setShowGrid(false);
    lvwNotes->setAlternatingRowColors(true);
    lvwNotes->setEditTriggers(QAbstractItemView::NoEditTriggers);
    lvwNotes->setSelectionBehavior(QAbstractItemView::SelectRows);
    lvwNotes->setSelectionMode(QAbstractItemView::SingleSelection);
    lvwNotes->setTabKeyNavigation(false);
    lvwNotes->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    lvwNotes->horizontalHeader()->hide();
    lvwNotes->horizontalHeader()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    lvwNotes->horizontalHeader()->setSectionResizeMode(1, QHeaderView::Stretch);
    lvwNotes->verticalHeader()->hide();
    lvwNotes->verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
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
    auto *copyKey = new QShortcut(QKeySequence::Copy, m_days->list());
    copyKey->setContext(Qt::WidgetShortcut);
    connect(copyKey, &QShortcut::activated, this, &frmGeneralProgress::copyTable);
    connect(btnClose, &QPushButton::clicked, this, &QDialog::reject);
}

void frmGeneralProgress::sizeToScreen()
{
    const QSize wanted = QSize(76, 44) * fontMetrics().lineSpacing();
    resize(wanted.boundedTo(screen()->availableSize() * 0.94));
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
    QApplication::clipboard()->setText(m_table.toTabSeparated());
}

void showGeneralProgress(Session &session, Messages &messages, const Period &period,
                         QWidget *parent)
{
    try {
        frmGeneralProgress(session, messages, period, parent).exec();
    } catch (const DayOverflow &error) {
        messages.error(parent, frmGeneralProgress::tr(
                                   "The progress can't be shown: a measurement or the balance of "
                                   "%1 is too large. Please correct it and try again")
                                   .arg(session.text().mediumDate(error.day)));
    } catch (const OverflowError &) {
        messages.error(parent, frmGeneralProgress::tr(
                                   "The progress can't be shown: a measurement of this period is "
                                   "too large. Please correct it and try again"));
    } catch (const std::out_of_range &) {
        messages.error(parent, frmGeneralProgress::tr(
                                   "The progress can't be shown: the period has too many days"));
    }
}
