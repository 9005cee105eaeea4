// What the two lists of a day share.
#pragma once

#include "data/schema.h"
#include "ui/recordlist.h"

#include <QDialog>

class QDateEdit;
class QLabel;
class Recordset;
class Session;
struct Command;

/// A list window of the journal that shows one day: a date picker, which moves the session's
/// current date, and the day's rows in the order of their time; below two or more of them a blank
/// row and a row of totals, which are no records.
class DayList : public QDialog
{
    Q_OBJECT

public:
    /// Shows the list of the current date modally. Throws StoreError where it can't be read.
    void run();

protected:
    struct Texts
    {
        QString name; ///< of the window
        QString caption;
        QString dateCaption; ///< with its access key
        QString dateName;
    };
    struct Columns
    {
        std::vector<ListColumn> columns;
        int nameColumn; ///< in the row of totals it tells how many items are added up
        /// Columns with totals and the fields that fill them.
        std::vector<std::pair<int, schema::Column>> totals;
    };

    /// The records are those of the command for a single one; the removal as in RecordList.
    DayList(Session &session, Messages &messages, const Texts &texts, const Columns &columns,
            Recordset &records, const Command *removal, QWidget *parent);

    /// The result set of the day's rows; it takes the day as its parameter.
    virtual Recordset &rows() const = 0;
    /// The row that the result set stands on.
    virtual ListRow currentRow() const = 0;
    /// Opens the editor, 0 for a new record; what to reselect where it stored something.
    virtual std::optional<Reselection> editRecord(qint32 id) = 0;

    Session &session() const { return m_session; }
    Messages &messages() const { return m_messages; }

private:
    QLayout *makeDateRow(const QString &caption);
    void addEntryCommands(const schema::Table &table);
    ListRows load();
    ListRow totalsRow(const class DayTotals &totals) const;
    std::optional<Reselection> edit(qint32 id);
    void showDay(QDate day);
    void refuseDate();

    Session &m_session;
    Messages &m_messages;
    Columns m_columns;
    QDateEdit *dtpDate;
    QLabel *lblTold; ///< of an entry that was copied to another day, until the rows are read anew
    RecordList *m_list;
    QString m_told; ///< with the next rows
};
