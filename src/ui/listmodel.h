// The rows of a list window.
#pragma once

#include <QAbstractTableModel>
#include <QStringList>

#include <optional>
#include <vector>

struct ListColumn
{
    QString header;
    QString meaning = {}; ///< the header's tooltip: what the short header stands for
    bool isNumber = false;
    bool isLongText = false; ///< cut off at the width that the other columns leave
};

/// One record: its identifier as the hidden tag (0 for a row that is none, such as totals) and a
/// text per column; missing texts are empty.
struct ListRow
{
    qint32 tag = 0;
    QStringList texts;
    QString toolTip = {};               ///< plain text, for one that the row itself shortens
    bool isTotal = false;               ///< stands out from the rows that it adds up
    std::optional<bool> isChecked = {}; ///< of a row with a check box, which the user turns
};

/// The rows of a list, and what is known of those that can't be shown.
struct ListRows
{
    ListRows(std::vector<ListRow> shown = {}, size_t notShown = 0, bool damaged = false)
        : rows(std::move(shown))
        , leftOut(notShown)
        , isCutShort(damaged)
    {
    }

    std::vector<ListRow> rows;
    size_t leftOut;  ///< records with an identifier that the program can't hold
    bool isCutShort; ///< a damaged page ends the rows
};

class ListModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    /// Characters beyond which a text is not shown in full but in its tooltip.
    static constexpr int longText = 50;
    /// Characters that a cell shows at most of a text of any length.
    static constexpr int mostInCell = 2000;

    explicit ListModel(std::vector<ListColumn> columns, QObject *parent = nullptr);

    const ListColumn &column(int column) const { return m_columns.at(static_cast<size_t>(column)); }
    void setRows(std::vector<ListRow> rows);
    qint32 tag(int row) const { return m_rows.at(static_cast<size_t>(row)).tag; }
    const std::vector<ListRow> &rows() const { return m_rows; }
    /// Turns the check boxes of all rows that have one.
    void setAllChecked(bool checked);
    /// The rows, at most so many, that have the longest texts in a column.
    std::vector<int> longestRows(int column, size_t count) const;
    /// The row of this tag or, compared in the first column, of this text; -1 where there is none.
    int rowOfTag(qint32 tag) const;
    int rowOfText(const QString &text) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QVariant toolTip(const QModelIndex &index) const;
    /// Whether it is the one that shows the row's check box.
    bool hasBox(const QModelIndex &index) const;

    std::vector<ListColumn> m_columns;
    std::vector<ListRow> m_rows;
};
