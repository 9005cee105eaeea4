#include "ui/recordlist.h"

#include "session/session.h"
#include "ui/attempt.h"
#include "ui/helpbutton.h"
#include "ui/messages.h"
#include "ui/reportview.h"

#include <QAction>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

RecordList::RecordList(std::vector<ListColumn> columns, ListFamily family, Session &session,
                       Messages &messages, Actions actions, const QString &accessibleName,
                       QWidget *parent)
    : QWidget(parent)
    , m_session(session)
    , m_messages(messages)
    , m_family(family)
    , m_actions(std::move(actions))
    , m_model(new ListModel(std::move(columns), this))
    , m_list(new ReportView(*m_model, this))
    , m_new(makeButton(tr("&New"), tr("New record"), &RecordList::createRecord))
    , m_edit(makeButton(tr("&Edit"), tr("Apply changes"), &RecordList::editSelected))
    , m_delete(makeButton(tr("&Delete"), tr("Delete record"), &RecordList::deleteSelected))
    , m_missing(new QLabel(this))
    , m_buttons(new QHBoxLayout)
{
    m_list->setAccessibleName(accessibleName);
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

QTreeView *RecordList::list() const
{
    return m_list;
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

void RecordList::addCommand(const QString &name, const QString &caption, const Command &run)
{
    const QList<QAction *> entries = m_list->actions();
    if (entries.last()->objectName().isEmpty()) { // of those that press the buttons
        auto *separator = new QAction(m_list);
        separator->setSeparator(true);
        m_list->addAction(separator);
    }
    auto *entry = new QAction(caption, m_list);
    entry->setObjectName(name);
    connect(entry, &QAction::triggered, this, [this, run] { runOnSelected(run); });
    m_list->addAction(entry);
}

void RecordList::refresh(const Reselection &reselection)
{
    ListRows loaded = m_actions.load();
    m_model->setRows(std::move(loaded.rows));
    tellMissing(loaded);
    m_list->sizeColumns();
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
    run(m_actions.edit, 0);
}

void RecordList::editSelected()
{
    runOnSelected(m_actions.edit);
}

void RecordList::runOnSelected(const Command &command)
{
    const qint32 tag = selectedTag();
    if (tag != 0)
        run(command, tag);
    else
        m_messages.error(window(), m_family == ListFamily::Catalogue ? tr("Nothing to edit")
                                                                     : tr("No record selected"));
    m_list->setFocus();
}

void RecordList::run(const Command &command, qint32 id)
{
    std::optional<Reselection> stored;
    // A record that can't be opened may be gone: the list is read anew then, too.
    if (!attempt(
            window(), m_messages, [&] { stored = command(id); }, tr("The record can't be opened")))
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
