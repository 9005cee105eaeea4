// A page of the progress window that shows figures as a table.
#pragma once

#include "progress/progresstable.h"
#include "ui/listmodel.h"

#include <QWidget>

class QLabel;
class QTreeView;

/// A list of figures with a sentence below it that explains them, copied as a whole.
class FiguresTable : public QWidget
{
    Q_OBJECT

public:
    QTreeView *list() const { return m_list; }
    /// Puts the table on the clipboard, as Ctrl+C in its list does.
    void copy() const;

protected:
    FiguresTable(QWidget *parent, const QString &listName, const QString &accessibleName);

    /// To be called once; the table becomes the owner.
    void setModel(ListModel *model);
    /// Shows other rows, the foot in bold below them. Without words there is no explanation.
    void setTable(progress::TableText table, const QString &explanation);
    QLabel *explanation() const { return m_explanation; }

private:
    progress::TableText m_table;
    QTreeView *m_list;
    ListModel *m_model = nullptr;
    QLabel *m_explanation;
};
