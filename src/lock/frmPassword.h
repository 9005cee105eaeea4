// Locks the journal with a password of the user's own.
#pragma once

#include "data/filepassword.h"
#include "ui/formdialog.h"

class QCheckBox;

/// Sets a password, changes it or takes it away; the present one is asked for first.
class frmPassword : public FormDialog
{
    Q_OBJECT

public:
    frmPassword(Session &session, Messages &messages, QWidget *parent = nullptr);

protected:
    void accept() override;

private:
    QLayout *makeForm();
    void makeChecks();
    bool isRemoving() const;

    const FilePassword m_current;    ///< empty where the journal isn't locked
    QLineEdit *txtCurrent = nullptr; ///< only where it is, and the next
    QCheckBox *chkRemove = nullptr;
    QLineEdit *txtNew;
    QLineEdit *txtRepeated;
};
