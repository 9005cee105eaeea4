#include "ui/listmodel.h"

#include <algorithm>

namespace {

template<typename Predicate>
int positionOf(const std::vector<ListRow> &rows, Predicate predicate)
{
    const auto found = std::find_if(rows.begin(), rows.end(), predicate);
    return found == rows.end() ? -1 : static_cast<int>(found - rows.begin());
}

} // namespace

ListModel::ListModel(std::vector<ListColumn> columns, QObject *parent)
    : QAbstractTableModel(parent)
    , m_columns(std::move(columns))
{
}

void ListModel::setRows(std::vector<ListRow> rows)
{
    beginResetModel();
    m_rows = std::move(rows);
    endResetModel();
}

int ListModel::rowOfTag(qint32 tag) const
{
    return positionOf(m_rows, [tag](const ListRow &row) { return row.tag == tag; });
}

int ListModel::rowOfText(const QString &text) const
{
    return positionOf(m_rows, [&text](const ListRow &row) { return row.texts.value(0) == text; });
}

int ListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int ListModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_columns.size());
}

QVariant ListModel::data(const QModelIndex &index, int role) const
{
    const ListRow &row = m_rows.at(static_cast<size_t>(index.row()));
    const ListColumn &column = m_columns.at(static_cast<size_t>(index.column()));
    switch (role) {
    case Qt::DisplayRole:
        return row.texts.value(index.column());
    case Qt::ToolTipRole:
        if (!row.toolTip.isEmpty())
            return row.toolTip;
        return row.texts.value(index.column()).size() > longText ? row.texts.value(index.column())
                                                                 : QVariant();
    case Qt::TextAlignmentRole:
        return int((column.isNumber ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    default:
        return {};
    }
}

QVariant ListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    const ListColumn &column = m_columns.at(static_cast<size_t>(section));
    switch (role) {
    case Qt::DisplayRole:
        return column.header;
    case Qt::ToolTipRole:
        return column.meaning.isEmpty() ? QVariant() : column.meaning;
    case Qt::TextAlignmentRole:
        return int((column.isNumber ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    default:
        return {};
    }
}
