// How the program backs up by itself.
#pragma once

#include "ui/formdialog.h"

class QCheckBox;
class QSpinBox;

/// Whether it does so once a week, where, and how many backups it keeps there.
class frmBackupSettings : public FormDialog
{
    Q_OBJECT

public:
    frmBackupSettings(Session &session, Messages &messages, QWidget *parent = nullptr);

protected:
    void accept() override;

private:
    QLayout *makeForm();
    void chooseFolder();

    QCheckBox *chkAutomatic;
    QLineEdit *txtFolder;
    QPushButton *btnFolder;
    QSpinBox *spnKept;
};
