#include "journal/daylist.h"

#include "data/recordset.h"
#include "journal/daytotals.h"
#include "journal/entrycommands.h"
#include "session/session.h"
#include "ui/attempt.h"
#include "ui/elidedlabel.h"
#include "ui/fieldmessages.h"
#include "ui/messages.h"
#include "ui/pickers.h"
#include "ui/telling.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QScopeGuard>
#include <QTimer>
#include <QTreeView>
#include <QVBoxLayout>

#include <utility>

DayList::DayList(Session &session, Messages &messages, const Texts &texts, const Columns &columns,
                 Recordset &records, const Command *removal, QWidget *parent)
    : QDialog(parent)
    , m_session(session)
    , m_messages(messages)
    , m_columns(columns)
    , dtpDate(makeDatePicker(session, QStringLiteral("dtpDate"), this))
    , lblTold(new ElidedLabel(this))
    , m_list(new RecordList(
          columns.columns, ListFamily::Journal, session, messages,
          {[this] { return load(); }, [this](qint32 id) { return edit(id); }, {records, removal}},
          texts.caption, this))
{
    setObjectName(texts.name);
    setWindowTitle(texts.caption);
    dtpDate->setAccessibleName(texts.dateName);
    connect(dtpDate, &QDateEdit::dateChanged, this, &DayList::showDay);
    whenRefused(*dtpDate, [this] { refuseDate(); });

    lblTold->setObjectName(QStringLiteral("lblTold"));
    m_list->addHelpButton();
    addEntryCommands(*records.command().table);

    auto *layout = new QVBoxLayout(this);
    layout->addLayout(makeDateRow(texts.dateCaption));
    layout->addWidget(m_list);
    const QFontMetrics metrics = fontMetrics();
    resize(metrics.averageCharWidth() * 110, metrics.lineSpacing() * 26);
}

QLayout *DayList::makeDateRow(const QString &caption)
{
    auto *label = new QLabel(caption, this);
    label->setBuddy(dtpDate);
    auto *row = new QHBoxLayout;
    row->addWidget(label);
    row->addWidget(dtpDate);
    row->addWidget(lblTold, 1);
    return row;
}

void DayList::addEntryCommands(const schema::Table &table)
{
    for (const EntryCommand &command : entryCommands(m_session, m_messages, entryKindOf(table))) {
        m_list->addCommand(command.name, command.caption, [this, run = command.run](qint32 id) {
            const std::optional<EntryCopies> copies = run(this, id);
            if (copies)
                m_told = copies->told;
            const bool isHere = copies && copies->day == dtpDate->date();
            return std::optional(Reselection{.id = isHere ? copies->entries.front().id : id});
        });
    }
}

void DayList::run()
{
    {
        const QSignalBlocker blocker(dtpDate);
        dtpDate->setDate(m_session.currentDate());
    }
    m_list->refresh();
    m_list->list()->setFocus();
    exec();
}

// A day that can't be read is not shown: picker, list and chart stay with the day before it.
void DayList::showDay(QDate day)
{
    const QDate before = m_session.currentDate();
    m_session.setCurrentDate(day);
    if (m_session.currentDate() == day &&
        attempt(
            this, m_messages, [this] { m_list->refresh(); }, tr("The day can't be shown")))
        return;
    m_session.setCurrentDate(before);
    const QSignalBlocker blocker(dtpDate);
    dtpDate->setDate(m_session.currentDate());
}

void DayList::refuseDate()
{
    m_messages.error(this, containsIllegalData(dtpDate->accessibleName()));
    // Later, as a button's work ends with the focus in the list.
    QTimer::singleShot(0, dtpDate, [this] {
        dtpDate->setFocus();
        selectForTyping(*dtpDate);
    });
}

ListRows DayList::load()
{
    tell(*lblTold, std::exchange(m_told, {}));
    Recordset &source = rows();
    const auto close = qScopeGuard([&source] { source.close(); });
    std::vector<ListRow> list;
    DayTotals totals(m_columns.totals.size());
    for (source.reopenReadable({Value(dtpDate->date())}); !source.isEof(); source.moveNext()) {
        list.push_back(currentRow());
        std::vector<double> figures;
        for (const auto &[column, field] : m_columns.totals)
            figures.push_back(source.number(field));
        totals.addRow(figures);
    }
    if (totals.areShown()) {
        list.emplace_back();
        list.push_back(totalsRow(totals));
    }
    return {std::move(list), source.leftOut(), source.isCutShort()};
}

ListRow DayList::totalsRow(const DayTotals &totals) const
{
    ListRow row;
    row.isTotal = true;
    row.texts.resize(static_cast<qsizetype>(m_columns.columns.size()));
    row.texts[m_columns.nameColumn] = tr("   Total (%1 items)").arg(totals.count());
    for (size_t i = 0; i < m_columns.totals.size(); ++i) {
        if (const std::optional<qint32> total = totals.totals()[i])
            row.texts[m_columns.totals[i].first] = QString::number(*total);
    }
    return row;
}

std::optional<Reselection> DayList::edit(qint32 id)
{
    // An access key leaves the focus in the date; a new record is to go to the day that is written.
    if (!takeTyped(*dtpDate)) {
        refuseDate();
        return std::nullopt;
    }
    return editRecord(id);
}
