#include "progress/daystable.h"

#include "ui/listmodel.h"
#include "ui/reportstyle.h"

#include <QFont>
#include <QHeaderView>
#include <QLabel>
#include <QTreeView>
#include <QVBoxLayout>

using namespace progress;

namespace {

constexpr int firstBody = 1; // column of the first weight or girth
constexpr int lastBody = firstBody + int(allSeries.size()) - 1;
constexpr int balance = lastBody + 2;

/// Values filled in are in brackets and italics.
class DaysModel : public ListModel
{
public:
    DaysModel(const DaySeries &series, std::vector<ListColumn> columns, QObject *parent)
        : ListModel(std::move(columns), parent)
        , m_series(series)
    {
    }

    QVariant data(const QModelIndex &index, int role) const override
    {
        QVariant usual = ListModel::data(index, role);
        const bool isBody = index.column() >= firstBody && index.column() <= lastBody;
        if (!isBody || m_series.at(qint16(index.row() + 1)).source != BodySource::FilledIn)
            return usual;
        if (role == Qt::DisplayRole && !usual.toString().isEmpty())
            return QStringLiteral("(%1)").arg(usual.toString());
        if (role == Qt::FontRole) {
            QFont italic;
            italic.setItalic(true);
            return italic;
        }
        return usual;
    }

private:
    const DaySeries &m_series;
};

ListModel *makeModel(const DaySeries &series, const DaysText &table, QObject *parent)
{
    std::vector<ListColumn> columns;
    for (const QString &header : table.header)
        columns.push_back({header, {}, false});
    for (int i = firstBody; i <= lastBody; ++i)
        columns[size_t(i)].isNumber = true;
    columns[balance].isNumber = true;

    std::vector<ListRow> rows;
    for (const QStringList &cells : table.rows) {
        ListRow row = {0, cells, cells.constLast()};
        row.texts.last() = row.texts.constLast().simplified();
        rows.push_back(std::move(row));
    }
    auto *model = new DaysModel(series, std::move(columns), parent);
    model->setRows(std::move(rows));
    return model;
}

} // namespace

DaysTable::DaysTable(const DaySeries &series, const DaysText &table, QWidget *parent)
    : QWidget(parent)
    , lvwDays(new QTreeView(this))
{
    setReportStyle(*lvwDays);
    lvwDays->setObjectName(QStringLiteral("lvwDays"));
    lvwDays->setAccessibleName(tr("Days"));
    lvwDays->setModel(makeModel(series, table, lvwDays));
    lvwDays->setRootIsDecorated(false);
    lvwDays->setUniformRowHeights(true);
    lvwDays->setAlternatingRowColors(true);
    lvwDays->setAllColumnsShowFocus(true);
    QHeaderView &header = *lvwDays->header();
    header.setSectionResizeMode(QHeaderView::ResizeToContents);
    header.setSectionResizeMode(header.count() - 1, QHeaderView::Stretch);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(lvwDays);
    bool hasFilledIn = false;
    for (qint16 day = 1; day <= series.nDays(); ++day)
        hasFilledIn = hasFilledIn || series.at(day).source == BodySource::FilledIn;
    auto *explanation = new QLabel(tr("Values in brackets were not measured. They are filled in "
                                      "from the measurements before and after."),
                                   this);
    explanation->setObjectName(QStringLiteral("lblFilledIn"));
    explanation->setVisible(hasFilledIn);
    explanation->setWordWrap(true);
    layout->addWidget(explanation);
}
