#include "progress/daystable.h"

#include <QFont>
#include <QLabel>

using namespace progress;

namespace {

constexpr int firstBody = 1; // column of the first weight or girth
constexpr int lastBody = firstBody + int(allSeries.size()) - 1;
constexpr int balance = lastBody + 2;

/// Values filled in are in brackets and italics.
class DaysModel : public ListModel
{
public:
    DaysModel(const DaySeries &series, std::vector<ListColumn> columns)
        : ListModel(std::move(columns))
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

std::vector<ListColumn> columnsOf(const QStringList &header)
{
    std::vector<ListColumn> columns;
    columns.reserve(size_t(header.size()));
    for (int i = 0; i < header.size(); ++i)
        columns.push_back({header[i], {}, (i >= firstBody && i <= lastBody) || i == balance});
    return columns;
}

} // namespace

DaysTable::DaysTable(const DaySeries &series, const ProgressTexts &texts, QWidget *parent)
    : FiguresTable(parent, QStringLiteral("lvwDays"), tr("Days"))
    , m_series(series)
    , m_texts(texts)
{
    explanation()->setObjectName(QStringLiteral("lblFilledIn"));
    setModel(new DaysModel(series, columnsOf(dayHeader(texts))));
    refill();
}

void DaysTable::refill()
{
    setTable(tableOf(m_series, m_texts), explanationWords());
}

QString DaysTable::explanationWords() const
{
    if (m_series.isEmpty())
        return m_texts.emptyWords();
    for (qint16 day = 1; day <= m_series.nDays(); ++day) {
        if (m_series.at(day).source == BodySource::FilledIn)
            return tr("Values in brackets were not measured. They are filled in from the "
                      "measurements before and after.");
    }
    return {};
}
