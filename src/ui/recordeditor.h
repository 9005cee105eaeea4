// What every record editor dialog shares.
#pragma once

#include "data/recordset.h"
#include "data/steps.h"
#include "ui/formdialog.h"
#include "ui/reselection.h"

/// A modal dialog that edits one record through the result set of its single-record command.
/// A window states its form, its checks in the order in which they are tried, and the three
/// procedures Populate, Validate (seldom) and Gather; the flow of opening, checking, storing and
/// refusing is here.
class RecordEditor : public FormDialog
{
    Q_OBJECT

public:
    /// Shows the dialog modally for a record, 0 for a new one; true where something was stored.
    /// Throws StoreError, and shows nothing, where the record can't be read or is gone.
    bool run(qint32 recordId);

    qint32 recordId() const { return m_recordId; }
    /// The identifier of the record stored last, 0 before.
    qint32 storedId() const { return m_storedId; }
    /// What a list that opened the editor selects afterwards.
    virtual Reselection reselection() const { return {.id = m_storedId}; }
    /// Whether the record was written during this opening.
    bool isStored() const { return m_stored; }

protected:
    RecordEditor(Session &session, Messages &messages, Recordset &source, const QString &name,
                 const QString &caption, QWidget *parent);

    /// Copies the record into the fields. The base calls it with the loading flag set.
    virtual void Populate() = 0;
    /// Copies the fields into the pending record, which has its identifier already.
    virtual void Gather() = 0;
    /// A last look at the gathered record before it is written; false discards the change and
    /// leaves the dialog open (the window has said why).
    virtual bool confirmStore() { return true; }
    /// What storing the gathered record takes, as one transaction, and what remains of it where a
    /// step is refused: the record alone, unless the window adds to it.
    virtual std::vector<Step> storeSteps();
    virtual Refusal refusal() const { return Refusal::KeepsEarlierSteps; }
    /// Whether what is typed means something else once another program has changed the user's
    /// parameters: such a store is refused, and the session tells of the new ones.
    virtual bool dependsOnParameters() const { return false; }
    /// After a successful write; the base closes the dialog.
    virtual void recordStored();
    /// What is said when the store is refused.
    virtual QString refusedStoreMessage() const;
    /// What is said below it where a unique name is taken.
    virtual QString takenNameCause() const { return {}; }
    /// Opens the source for the record to edit; for a new one it yields no row.
    virtual void openSource();
    /// Whether OK appends a record rather than changing the one that was opened.
    virtual bool appendsRecord() const { return m_recordId == 0; }

    bool isLoading() const { return m_loading; }

    Recordset &source() const { return m_source; }

private:
    void accept() override;
    void load();
    bool store();
    void runRecorded();
    const schema::Table &table() const { return *m_source.command().table; }
    void refuseStore(const std::exception &error);

    Recordset &m_source;
    qint32 m_recordId = 0;
    qint32 m_storedId = 0;
    bool m_stored = false;
    bool m_loading = false;
};
