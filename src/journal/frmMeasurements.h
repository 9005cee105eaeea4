// The body measurements and the notes from a date on.
#pragma once

#include "ui/listmodel.h"
#include "ui/reselection.h"

#include <QDialog>

#include <optional>

class Messages;
class QDateEdit;
class QLabel;
class RecordList;
class Session;

/// The measurements and notes window: two lists side by side, independent of each other but for
/// the date from which both show their rows, a month before the session's current date at first.
class frmMeasurements : public QDialog
{
    Q_OBJECT

public:
    frmMeasurements(Session &session, Messages &messages, QWidget *parent = nullptr);
    ~frmMeasurements() override;

protected:
    void showEvent(QShowEvent *event) override;

private:
    template<typename Editor>
    std::optional<Reselection> edit(qint32 id);
    RecordList *makeMeasurementList();
    RecordList *makeNoteList();
    QLayout *makeDateRow();
    QWidget *makeMeasurementPane();
    QWidget *makeNotePane();
    QLabel *makeHeading(const QString &caption, QWidget *list);
    void makeConnections();
    void refresh();
    void directAccessKeys(const QWidget *focus);
    ListRows measurements() const;
    ListRows notes() const;

    Session &m_session;
    Messages &m_messages;
    QDateEdit *dtpDate;
    QLabel *lblWeightIn;
    QLabel *lblLinearIn;
    RecordList *m_measurements;
    RecordList *m_notes;
};
