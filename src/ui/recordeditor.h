// What every record editor dialog shares.
#pragma once

#include "data/recordset.h"

#include <QDialog>

#include <functional>
#include <vector>

class DataCombo;
class Messages;
class QLabel;
class QLineEdit;
class QPushButton;
class Session;

/// A modal dialog that edits one record through the result set of its single-record command.
/// A window states its form, its checks in the order in which they are tried, and the three
/// procedures Populate, Validate (seldom) and Gather; the flow of opening, checking, storing and
/// refusing is here.
class RecordEditor : public QDialog
{
    Q_OBJECT

public:
    /// Shows the dialog modally for a record, 0 for a new one; true where something was stored.
    bool run(qint32 recordId);

    qint32 recordId() const { return m_recordId; }
    /// Whether the record was written during this opening.
    bool isStored() const { return m_stored; }

protected:
    struct FieldCheck
    {
        QWidget *field;
        QString message;
        std::function<bool()> passes;
    };

    RecordEditor(Session &session, Messages &messages, Recordset &source, const QString &name,
                 const QString &caption, QWidget *parent);

    /// Copies the record into the fields. The base calls it with the loading flag set.
    virtual void Populate() = 0;
    /// Tries the checks in their order; reports the first that fails and moves the focus there.
    virtual bool Validate();
    /// Copies the fields into the pending record.
    virtual void Gather() = 0;
    /// A last look at the gathered record before it is written; false discards the change and
    /// leaves the dialog open (the window has said why).
    virtual bool confirmStore() { return true; }
    /// After a successful write; the base closes the dialog.
    virtual void recordStored();
    /// What is said when the store is refused.
    virtual QString refusedStoreMessage() const;
    /// Opens the source for the record to edit; for a new one it yields no row.
    virtual void openSource();
    /// Whether OK appends a record rather than changing the one that was opened.
    virtual bool appendsRecord() const { return m_recordId == 0; }

    void addCheck(QWidget *field, const QString &message, std::function<bool()> passes);
    /// Fails for blanks alone.
    void checkSpecified(QLineEdit *box, const QString &message);
    /// Fails for what is no number in the user's locale.
    void checkNumeric(QLineEdit *box, const QString &message);
    /// The same, but an empty box passes.
    void checkNumericOrEmpty(QLineEdit *box, const QString &message);

    /// A text box for a number or a short text, named for tests and screen readers.
    QLineEdit *makeBox(const QString &name, const QString &accessibleName);
    /// A field's label with its access key.
    QLabel *makeLabel(const QString &caption, QWidget *field);
    /// Puts the form and, below it, the OK, Cancel and Help buttons into the dialog. The Tab key
    /// goes through the fields in the order in which they were made with the dialog as parent.
    void setForm(QLayout *form);

    bool isLoading() const { return m_loading; }
    void setLoading(bool loading) { m_loading = loading; }

    Session &session() const { return m_session; }
    Messages &messages() const { return m_messages; }
    Recordset &source() const { return m_source; }

    QPushButton *btnOK = nullptr; ///< these three are made by setForm()
    QPushButton *btnCancel = nullptr;
    QPushButton *btnHelp = nullptr;

private:
    void accept() override;
    QLayout *makeButtons();
    void load();
    void focusFirstField();
    bool store();

    Session &m_session;
    Messages &m_messages;
    Recordset &m_source;
    std::vector<FieldCheck> m_checks;
    qint32 m_recordId = 0;
    bool m_stored = false;
    bool m_loading = false;
};
