#include "progress/weekstable.h"

#include "progress/weekstext.h"

#include <QLabel>

using namespace progress;

namespace {

/// Units stand below their names, so that all columns find room in a small window.
class WeeksModel : public ListModel
{
public:
    using ListModel::ListModel;

    QVariant headerData(int section, Qt::Orientation orientation, int role) const override
    {
        if (role == Qt::AccessibleTextRole)
            return ListModel::headerData(section, orientation, Qt::DisplayRole);
        const QVariant usual = ListModel::headerData(section, orientation, role);
        return role == Qt::DisplayRole
                   ? usual.toString().replace(QLatin1String(" ("), QLatin1String("\n("))
                   : usual;
    }
};

} // namespace

WeeksTable::WeeksTable(const ProgressTexts &texts, QWidget *parent)
    : FiguresTable(parent, QStringLiteral("lvwWeeks"), tr("Weeks"))
    , m_texts(texts)
{
    explanation()->setObjectName(QStringLiteral("lblWeeks"));
    const QStringList header = weekHeader(texts);
    std::vector<ListColumn> columns;
    columns.reserve(size_t(header.size()));
    for (int i = 0; i < header.size(); ++i) {
        const auto column = WeekColumn(i);
        columns.push_back({header[i], meaningOf(column),
                           column >= WeekColumn::Days && column <= WeekColumn::Change});
    }
    setModel(new WeeksModel(std::move(columns)));
}

void WeeksTable::showWeeks(const DaySeries &series, const std::vector<Consumed> &consumed)
{
    setTable(weeksTable(series, weeksOf(series, consumed, m_texts.locale()), m_texts),
             series.isEmpty() ? m_texts.emptyWords()
                              : tr("Eaten, burnt and balance are averages a day, over the days "
                                   "with a meal or an activity; the weight is the mean of the "
                                   "measured days."));
}
