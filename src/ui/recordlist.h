// A list of records with its New, Edit and Delete buttons: what every list window shares.
#pragma once

#include "ui/listmodel.h"
#include "ui/removal.h"
#include "ui/reselection.h"

#include <QWidget>

#include <functional>
#include <optional>

class Messages;
class Session;
class QHBoxLayout;
class QLabel;
class QPushButton;
class QTreeView;
class ReportView;

/// What the two families of list windows say and test.
enum class ListFamily
{
    Catalogue, ///< "Nothing to edit", "Nothing to delete"
    Journal    ///< "No record selected"
};

/// The list in report view and its buttons. The window hands in how rows are read and edited; the
/// deletion, the flow, the messages, the focus and the reselection are here. Insert, Enter and
/// Delete in the list press the buttons, and so does its context menu.
class RecordList : public QWidget
{
    Q_OBJECT

public:
    /// Does something with a record; what to reselect where that may show in the rows.
    using Command = std::function<std::optional<Reselection>(qint32 id)>;

    struct Actions
    {
        /// Reads the rows in the list command's order.
        std::function<ListRows()> load;
        /// Opens the editor, 0 for a new record; what to reselect where it stored something.
        Command edit;
        Removal removal;
    };
    /// Object names of the controls; the defaults are those of a window with one list.
    struct Names
    {
        QString list = QStringLiteral("lvwList");
        QString newButton = QStringLiteral("btnNew");
        QString editButton = QStringLiteral("btnEdit");
        QString deleteButton = QStringLiteral("btnDelete");
    };

    RecordList(std::vector<ListColumn> columns, ListFamily family, Session &session,
               Messages &messages, Actions actions, const QString &accessibleName,
               QWidget *parent = nullptr);
    void setNames(const Names &names);
    /// Puts the window's help button beside the others.
    void addHelpButton();
    /// Adds an entry for the selected record to the context menu, the first one behind a separator.
    void addCommand(const QString &name, const QString &caption, const Command &run);
    /// In a window with several lists, the access keys go to the buttons of one of them.
    void setAccessKeysActive(bool active);

    /// Rebuilds the rows; throws StoreError and keeps the old rows where they can't be read.
    void refresh(const Reselection &reselection = {});

    QTreeView *list() const;
    ListModel *model() const { return m_model; }

private:
    QPushButton *makeButton(const QString &caption, const QString &toolTip,
                            void (RecordList::*press)());
    void makeKeys();
    void createRecord();
    void editSelected();
    void deleteSelected();
    void removeSelected();
    void runOnSelected(const Command &command);
    void run(const Command &command, qint32 id);
    void refreshOrTell(const Reselection &reselection);
    void select(int row);
    int selectedRow() const;
    qint32 selectedTag() const;
    void tellMissing(const ListRows &loaded);

    Session &m_session;
    Messages &m_messages;
    ListFamily m_family;
    Actions m_actions;
    ListModel *m_model;
    ReportView *m_list;
    QPushButton *m_new;
    QPushButton *m_edit;
    QPushButton *m_delete;
    QLabel *m_missing; ///< in sight only where there is something to tell
    QHBoxLayout *m_buttons;
};
