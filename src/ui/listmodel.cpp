#include "ui/listmodel.h"

#include "session/excerpt.h"
#include "ui/tooltips.h"

#include <QFont>

#include <algorithm>
#include <numeric>

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

std::vector<int> ListModel::longestRows(int column, size_t count) const
{
    std::vector<int> rows(m_rows.size());
    std::iota(rows.begin(), rows.end(), 0);
    count = std::min(count, rows.size());
    const auto length = [&](int row) {
        const QStringList &texts = m_rows[static_cast<size_t>(row)].texts;
        return column < texts.size() ? texts[column].size() : 0;
    };
    const auto end = rows.begin() + static_cast<std::ptrdiff_t>(count);
    std::partial_sort(rows.begin(), end, rows.end(),
                      [&](int a, int b) { return length(a) > length(b); });
    rows.erase(end, rows.end());
    return rows;
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
    if (!index.isValid())
        return {}; // Ctrl+C in a list without a current row asks for it
    const ListRow &row = m_rows.at(static_cast<size_t>(index.row()));
    const ListColumn &column = this->column(index.column());
    switch (role) {
    case Qt::DisplayRole:
        return excerptOf(row.texts.value(index.column()), mostInCell);
    case Qt::ToolTipRole:
        return toolTip(index);
    case Qt::TextAlignmentRole:
        return int((column.isNumber ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    case Qt::FontRole: {
        QFont font;
        font.setBold(true);
        return row.isTotal ? QVariant(font) : QVariant();
    }
    case Qt::CheckStateRole:
        return hasBox(index) ? (*row.isChecked ? Qt::Checked : Qt::Unchecked) : QVariant();
    default:
        return {};
    }
}

bool ListModel::hasBox(const QModelIndex &index) const
{
    return index.column() == 0 && m_rows.at(static_cast<size_t>(index.row())).isChecked;
}

bool ListModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (role != Qt::CheckStateRole || !index.isValid() || !hasBox(index))
        return false;
    m_rows.at(static_cast<size_t>(index.row())).isChecked = value.toInt() == Qt::Checked;
    Q_EMIT dataChanged(index, index, {role});
    return true;
}

Qt::ItemFlags ListModel::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    return index.isValid() && hasBox(index) ? flags | Qt::ItemIsUserCheckable : flags;
}

void ListModel::setAllChecked(bool checked)
{
    for (int row = 0; row < rowCount(); ++row)
        setData(index(row, 0), checked ? Qt::Checked : Qt::Unchecked, Qt::CheckStateRole);
}

QVariant ListModel::toolTip(const QModelIndex &index) const
{
    const ListRow &row = m_rows.at(static_cast<size_t>(index.row()));
    QString text = row.toolTip;
    if (text.isEmpty())
        text = row.texts.value(index.column());
    if (row.toolTip.isEmpty() && text.size() <= longText)
        return {};
    return toolTipOf(text);
}

QVariant ListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    const ListColumn &column = this->column(section);
    switch (role) {
    case Qt::DisplayRole:
        return column.header;
    case Qt::ToolTipRole:
    case Qt::AccessibleDescriptionRole:
        return column.meaning.isEmpty() ? QVariant() : column.meaning;
    case Qt::TextAlignmentRole:
        return int((column.isNumber ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    default:
        return {};
    }
}
