// The Set Date dialog.
#pragma once

#include <QDialog>

class QDateEdit;
class Session;

/// Picks the current date; OK hands it to the session.
class frmDate : public QDialog
{
    Q_OBJECT

public:
    explicit frmDate(Session &session, QWidget *parent = nullptr);

private:
    void accept() override;

    Session &m_session;
    QDateEdit *dtpDate;
};
