// Checks the journal and lists what was found in it.
#pragma once

#include "exchange/journalcheck.h"

#include <QDialog>

class ListModel;
class Messages;
class QLabel;
class QProgressBar;
class QPushButton;
class QTreeView;
class Session;

/// Checks as soon as it is shown, and then has what was found as a list to be read and copied. It
/// changes nothing and offers nothing that would.
class frmCheckJournal : public QDialog
{
    Q_OBJECT

public:
    frmCheckJournal(Session &session, Messages &messages, QWidget *parent = nullptr);

protected:
    void showEvent(QShowEvent *event) override;

private:
    void makeList();
    QLayout *makeButtons();
    void check();
    void showProgress(double share);
    void showReport();
    QString dayOf(const CheckFinding &finding) const;
    void copy() const;

    Session &m_session;
    Messages &m_messages;
    CheckReport m_report;
    ListModel *m_model;
    bool m_isChecked = false;

    QLabel *lblResult;
    QProgressBar *prgCheck;
    QTreeView *lvwList;
    QPushButton *btnCopy;
};
