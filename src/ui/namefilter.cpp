#include "ui/namefilter.h"

#include "data/namecollation.h"

NameFilter::NameFilter(QObject *parent)
    : QSortFilterProxyModel(parent)
{
}

void NameFilter::setSourceModel(QAbstractItemModel *model)
{
    const auto forget = [this] { m_folded.clear(); };
    // Connected before the base class, which reads the rows as soon as it is told of them.
    connect(model, &QAbstractItemModel::rowsAboutToBeInserted, this, forget);
    connect(model, &QAbstractItemModel::rowsRemoved, this, forget);
    connect(model, &QAbstractItemModel::modelReset, this, forget);
    connect(model, &QAbstractItemModel::dataChanged, this, forget);
    QSortFilterProxyModel::setSourceModel(model);
}

void NameFilter::setPart(const QString &part)
{
    m_part = foldedForSearch(part.trimmed());
    if (sortColumn() < 0)
        sort(0);
    else
        invalidate();
}

int NameFilter::sourceRowOf(const QString &name) const
{
    const QString folded = foldedForSearch(name);
    const int rows = sourceModel()->rowCount();
    for (int row = 0; row < rows; ++row) {
        // The folded names alone, which are at hand, tell most of them apart.
        if (foldedName(row) == folded &&
            compareNames(sourceModel()->index(row, 0).data().toString(), name) == 0)
            return row;
    }
    return -1;
}

const QString &NameFilter::foldedName(int row) const
{
    const auto at = static_cast<size_t>(row);
    if (m_folded.size() <= at)
        m_folded.resize(static_cast<size_t>(sourceModel()->rowCount()));
    QString &name = m_folded[at];
    if (name.isNull())
        name = foldedForSearch(sourceModel()->index(row, 0).data().toString());
    return name;
}

bool NameFilter::filterAcceptsRow(int row, const QModelIndex &) const
{
    return m_part.isEmpty() || foldedName(row).contains(m_part);
}

bool NameFilter::lessThan(const QModelIndex &left, const QModelIndex &right) const
{
    const bool leftBegins = foldedName(left.row()).startsWith(m_part);
    const bool rightBegins = foldedName(right.row()).startsWith(m_part);
    return leftBegins != rightBegins ? leftBegins : left.row() < right.row();
}
