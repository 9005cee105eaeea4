// What the list windows of the catalogues share.
#pragma once

#include "data/recordset.h"
#include "ui/recordlist.h"

#include <QDialog>

class Session;

/// A modal window with a list of records. A window states its columns, how its rows are read and
/// which editor opens; a record is deleted through the result set of its single-record command.
class CatalogueList : public QDialog
{
    Q_OBJECT

public:
    /// Reads the rows and shows the window modally.
    void run();

protected:
    CatalogueList(Session &session, Messages &messages, Recordset &source, const QString &name,
                  const QString &caption, std::vector<ListColumn> columns, QWidget *parent);

    /// The rows in the list command's order.
    virtual ListRows rows() = 0;
    /// Opens the editor, 0 for a new record; what to reselect where it stored something.
    virtual std::optional<Reselection> edit(qint32 id) = 0;
    /// Fills the window for its opening.
    virtual void load() { list()->refresh(); }

    /// All records of an open result set as rows, and closes it: the identifier as the tag, the
    /// values as texts, Null as the empty one.
    ListRows readRows(Recordset &records, const schema::Column &tag,
                      std::initializer_list<schema::Column> columns) const;
    /// Puts what belongs to the list above it.
    void setHead(QLayout *head);

    RecordList *list() const { return m_list; }
    Session &session() const { return m_session; }
    Messages &messages() const { return m_messages; }

private:
    Session &m_session;
    Messages &m_messages;
    RecordList *m_list;
};
