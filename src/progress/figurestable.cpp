#include "progress/figurestable.h"

#include "ui/reportstyle.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QLabel>
#include <QShortcut>
#include <QTreeView>
#include <QVBoxLayout>

using namespace progress;

namespace {

std::vector<ListRow> listRows(const TableText &table)
{
    std::vector<ListRow> rows;
    rows.reserve(table.rows.size() + table.foot.size());
    for (const QStringList &cells : table.rows) {
        const QString remark = table.remarks.value(qsizetype(rows.size()));
        rows.push_back({0, cells, remark});
        rows.back().texts.last() = cells.constLast().simplified();
    }
    for (const QStringList &cells : table.foot)
        rows.push_back({0, cells, {}, true});
    return rows;
}

} // namespace

FiguresTable::FiguresTable(QWidget *parent, const QString &listName, const QString &accessibleName)
    : QWidget(parent)
    , m_list(new QTreeView(this))
    , m_explanation(new QLabel(this))
{
    setReportStyle(*m_list);
    m_list->setObjectName(listName);
    m_list->setAccessibleName(accessibleName);
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->setAlternatingRowColors(true);
    m_list->setAllColumnsShowFocus(true);
    auto *copyKey = new QShortcut(QKeySequence::Copy, m_list);
    copyKey->setContext(Qt::WidgetShortcut);
    connect(copyKey, &QShortcut::activated, this, &FiguresTable::copy);

    m_explanation->setWordWrap(true);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_list);
    layout->addWidget(m_explanation);
}

void FiguresTable::setModel(ListModel *model)
{
    model->setParent(this);
    m_model = model;
    m_list->setModel(model);
    QHeaderView &header = *m_list->header();
    header.setSectionResizeMode(QHeaderView::ResizeToContents);
    header.setSectionResizeMode(header.count() - 1, QHeaderView::Stretch);
}

void FiguresTable::setTable(TableText table, const QString &explanation)
{
    m_table = std::move(table);
    m_model->setRows(listRows(m_table));
    m_explanation->setText(explanation);
    m_explanation->setVisible(!explanation.isEmpty());
}

void FiguresTable::copy() const
{
    QApplication::clipboard()->setText(m_table.toTabSeparated());
}
