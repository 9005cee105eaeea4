// The names that hold a typed part.
#pragma once

#include <QSortFilterProxyModel>

#include <vector>

/// Lets through the rows whose name contains the part, without regard to case or accents; those
/// that begin with it come first. The folded names are kept, so that a keystroke in a list of
/// thousands is answered at once.
class NameFilter : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    explicit NameFilter(QObject *parent = nullptr);

    void setPart(const QString &part);
    /// The source row of this name, case apart; -1 where there is none.
    int sourceRowOf(const QString &name) const;
    void setSourceModel(QAbstractItemModel *model) override;

protected:
    bool filterAcceptsRow(int row, const QModelIndex &parent) const override;
    bool lessThan(const QModelIndex &left, const QModelIndex &right) const override;

private:
    const QString &foldedName(int row) const;

    QString m_part;
    mutable std::vector<QString> m_folded;
};
