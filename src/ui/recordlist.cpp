#include "ui/recordlist.h"

#include "session/session.h"
#include "ui/attempt.h"
#include "ui/helpbutton.h"
#include "ui/messages.h"
#include "ui/reportstyle.h"
#include "ui/tooltips.h"

#include <QAction>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QHelpEvent>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QToolTip>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>

namespace {

/// A list as wide as its columns, unless told otherwise, and a screenful high.
class ReportView : public QTreeView
{
public:
    using QTreeView::QTreeView;

    QSize sizeHint() const override
    {
        constexpr int rows = 18;
        const int width = header()->length() + verticalScrollBar()->sizeHint().width();
        const int height = header()->sizeHint().height() + rows * fontMetrics().height() * 5 / 4;
        return QSize(width, height) + QSize(2, 2) * frameWidth();
    }

    /// Where the columns are wider than the list, its names and units give way, the widest first.
    void keepNumbersInSight()
    {
        int excess = isVisible() ? header()->length() - viewport()->width() : 0;
        std::vector<int> texts; // widths of their columns, 0 for the others
        for (int column = 0; column < model()->columnCount(); ++column)
            texts.push_back(isText(column) ? columnWidth(column) : 0);
        const int step = fontMetrics().averageCharWidth();
        for (; excess > 0; excess -= step) {
            const auto widest = std::max_element(texts.begin(), texts.end());
            if (*widest <= fewestCharacters * step)
                break;
            *widest -= step;
            setColumnWidth(static_cast<int>(widest - texts.begin()), *widest);
        }
    }

protected:
    void resizeEvent(QResizeEvent *event) override
    {
        QTreeView::resizeEvent(event);
        keepNumbersInSight();
    }

    void showEvent(QShowEvent *event) override
    {
        QTreeView::showEvent(event);
        keepNumbersInSight();
    }

    /// Whatever is cut off tells itself.
    bool viewportEvent(QEvent *event) override
    {
        if (event->type() != QEvent::ToolTip)
            return QTreeView::viewportEvent(event);
        const auto *help = static_cast<QHelpEvent *>(event);
        const QModelIndex index = indexAt(help->pos());
        if (!index.isValid() || index.data(Qt::ToolTipRole).isValid() ||
            sizeHintForIndex(index).width() <= columnWidth(index.column()))
            return QTreeView::viewportEvent(event);
        QToolTip::showText(help->globalPos(), toolTipOf(index.data().toString()), viewport(),
                           visualRect(index));
        return true;
    }

    void focusInEvent(QFocusEvent *event) override
    {
        QTreeView::focusInEvent(event);
        // The first row is current now though not selected, and Down would pass it by.
        if (!selectionModel()->hasSelection())
            selectionModel()->clearCurrentIndex();
    }

private:
    static constexpr int fewestCharacters = 12; ///< of a text, in the narrowest window

    bool isText(int column) const
    {
        return !static_cast<ListModel *>(model())->column(column).isNumber &&
               header()->sectionResizeMode(column) == QHeaderView::Interactive;
    }
};

} // namespace

RecordList::RecordList(std::vector<ListColumn> columns, ListFamily family, Session &session,
                       Messages &messages, Actions actions, const QString &accessibleName,
                       QWidget *parent)
    : QWidget(parent)
    , m_session(session)
    , m_messages(messages)
    , m_family(family)
    , m_actions(std::move(actions))
    , m_model(new ListModel(std::move(columns), this))
    , m_list(new ReportView(this))
    , m_new(makeButton(tr("&New"), tr("New record"), &RecordList::createRecord))
    , m_edit(makeButton(tr("&Edit"), tr("Apply changes"), &RecordList::editSelected))
    , m_delete(makeButton(tr("&Delete"), tr("Delete record"), &RecordList::deleteSelected))
    , m_missing(new QLabel(this))
    , m_buttons(new QHBoxLayout)
{
    setReportStyle(*m_list);
    m_list->setModel(m_model);
    m_list->setAccessibleName(accessibleName);
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->setAllColumnsShowFocus(true);
    m_list->setAlternatingRowColors(true);
    arrangeColumns();
    connect(m_list, &QTreeView::doubleClicked, this, &RecordList::editSelected);
    m_missing->setObjectName(QStringLiteral("lblMissing"));
    m_missing->setWordWrap(true);
    m_missing->hide();
    makeKeys();
    setNames({});

    m_buttons->addWidget(m_new);
    m_buttons->addWidget(m_edit);
    m_buttons->addWidget(m_delete);
    m_buttons->addStretch();
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_list);
    layout->addWidget(m_missing);
    layout->addLayout(m_buttons);
    setFocusProxy(m_list);
}

void RecordList::setNames(const Names &names)
{
    m_list->setObjectName(names.list);
    m_new->setObjectName(names.newButton);
    m_edit->setObjectName(names.editButton);
    m_delete->setObjectName(names.deleteButton);
}

void RecordList::addHelpButton()
{
    m_buttons->addWidget(makeHelpButton(this));
}

void RecordList::setAccessKeysActive(bool active)
{
    for (QPushButton *button : {m_new, m_edit, m_delete})
        button->setShortcut(active ? QKeySequence::mnemonic(button->text()) : QKeySequence());
}

QPushButton *RecordList::makeButton(const QString &caption, const QString &toolTip,
                                    void (RecordList::*press)())
{
    auto *button = new QPushButton(caption, this);
    button->setToolTip(toolTip);
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, press);
    return button;
}

// In the list's context menu, too, with their keys.
void RecordList::makeKeys()
{
    const auto press = [this](const QList<QKeySequence> &keys, QPushButton *button) {
        auto *entry = new QAction(button->text(), m_list);
        entry->setShortcuts(keys);
        entry->setShortcutContext(Qt::WidgetShortcut);
        connect(entry, &QAction::triggered, button, &QPushButton::click);
        m_list->addAction(entry);
    };
    press({Qt::Key_Insert}, m_new);
    press({Qt::Key_Return, Qt::Key_Enter}, m_edit);
    press({Qt::Key_Delete}, m_delete);
    m_list->setContextMenuPolicy(Qt::ActionsContextMenu);
}

void RecordList::refresh(const Reselection &reselection)
{
    ListRows loaded = m_actions.load();
    m_model->setRows(std::move(loaded.rows));
    tellMissing(loaded);
    sizeColumns();
    if (!reselection.name.isEmpty())
        select(m_model->rowOfText(reselection.name));
    else if (reselection.id != 0)
        select(m_model->rowOfTag(reselection.id));
}

void RecordList::tellMissing(const ListRows &loaded)
{
    const QString text = whatIsMissing(loaded.leftOut, loaded.isCutShort);
    m_missing->setText(text);
    m_missing->setVisible(!text.isEmpty());
}

void RecordList::select(int row)
{
    if (row < 0)
        return;
    const QModelIndex index = m_model->index(row, 0);
    m_list->setCurrentIndex(index);
    m_list->scrollTo(index);
}

int RecordList::selectedRow() const
{
    const QModelIndexList rows = m_list->selectionModel()->selectedRows();
    return rows.isEmpty() ? -1 : rows.first().row();
}

qint32 RecordList::selectedTag() const
{
    const int row = selectedRow();
    return row < 0 ? 0 : m_model->tag(row);
}

void RecordList::createRecord()
{
    edit(0);
}

void RecordList::editSelected()
{
    const qint32 tag = selectedTag();
    if (tag != 0)
        edit(tag);
    else
        m_messages.error(window(), m_family == ListFamily::Catalogue ? tr("Nothing to edit")
                                                                     : tr("No record selected"));
    m_list->setFocus();
}

void RecordList::edit(qint32 id)
{
    std::optional<Reselection> stored;
    // A record that can't be opened may be gone: the list is read anew then, too.
    if (!attempt(
            window(), m_messages, [&] { stored = m_actions.edit(id); },
            tr("The record can't be opened")))
        stored.emplace();
    if (stored)
        refreshOrTell(*stored);
    m_list->setFocus();
}

void RecordList::deleteSelected()
{
    const bool catalogue = m_family == ListFamily::Catalogue;
    const bool nothing = catalogue ? m_model->rowCount() == 0 : selectedTag() == 0;
    if (nothing || confirmRemoval(window(), m_messages)) {
        if (selectedTag() != 0)
            removeSelected();
        else // in a catalogue the question comes before the look at the selection
            m_messages.error(window(),
                             catalogue ? tr("Nothing to delete") : tr("No record selected"));
    }
    m_list->setFocus();
}

void RecordList::removeSelected()
{
    const int row = selectedRow();
    if (!removeRecord(window(), m_session, m_messages, m_actions.removal, selectedTag(),
                      m_family == ListFamily::Catalogue
                          ? tr("This record can't be deleted because there are records in the "
                               "database, which refer to it")
                          : tr("This record can't be deleted from database")))
        return;
    refreshOrTell({});
    select(qMin(row, m_model->rowCount() - 1));
}

// What was stored or deleted before is so, whether the rows can be read afterwards or not.
void RecordList::refreshOrTell(const Reselection &reselection)
{
    attempt(
        window(), m_messages, [&] { refresh(reselection); },
        tr("The list can't be read; it shows what it showed before"));
}

void RecordList::arrangeColumns()
{
    QHeaderView *header = m_list->header();
    const int last = m_model->columnCount() - 1;
    header->setSectionsMovable(false);
    // Stretched, a last number would stand far from the others of its row.
    header->setStretchLastSection(!m_model->column(last).isNumber);
    for (int column = 0; column <= last; ++column) {
        if (m_model->column(column).isLongText)
            header->setSectionResizeMode(column, QHeaderView::Stretch);
    }
}

// Of all rows and not only those in sight, so that nothing is cut off when it is scrolled to; but
// measuring thousands would take longer than reading them, and the widest is among the longest.
int RecordList::contentsWidth(int column) const
{
    int width = m_list->header()->sectionSizeHint(column);
    for (const int row : m_model->longestRows(column, 60))
        width = qMax(width, m_list->sizeHintForIndex(m_model->index(row, column)).width());
    return width;
}

// Columns only grow, so that they stand still while one day or category after the other is shown.
void RecordList::sizeColumns()
{
    const int widest = fontMetrics().averageCharWidth() * ListModel::longText;
    for (int column = 0; column < m_model->columnCount(); ++column) {
        if (m_model->column(column).isLongText)
            continue;
        const int before = m_isSized ? m_list->columnWidth(column) : 0;
        m_list->setColumnWidth(column, qMax(before, qMin(contentsWidth(column), widest)));
    }
    m_isSized = true;
    static_cast<ReportView *>(m_list)->keepNumbersInSight();
}
