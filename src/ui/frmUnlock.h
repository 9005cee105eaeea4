// Asks for the password of a locked file.
#pragma once

#include "data/filepassword.h"
#include "ui/formdialog.h"

/// Stays until a password opens the file or the user gives up.
class frmUnlock : public FormDialog
{
    Q_OBJECT

public:
    /// Tries a password; false where it is a wrong one. Throws nothing.
    using Trial = std::function<bool(const FilePassword &password)>;

    frmUnlock(Messages &messages, const QString &path, Trial opens, QWidget *parent = nullptr);

protected:
    void accept() override;

private:
    QString m_fileName;
    Trial m_opens;
    QLineEdit *txtPassword;
};
