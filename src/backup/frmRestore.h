// Brings a backup back.
#pragma once

#include "data/filepassword.h"
#include "ui/formdialog.h"

class ElidedLabel;
class QListWidget;

/// The backups that the program keeps, the newest first, or any other file; what the chosen one
/// holds; and OK, which puts it in the place of the journal's contents.
class frmRestore : public FormDialog
{
    Q_OBJECT

public:
    frmRestore(Session &session, Messages &messages, QWidget *parent = nullptr);

protected:
    void accept() override;

private:
    QLayout *makeForm();
    void listBackups();
    void pickOther();
    void choose(const QString &path);
    void showChosen();
    void unlock();
    /// Reads the chosen file; why it can't be restored, empty where it can.
    QString examine(QString &contents);
    void restore();
    void tellAll();
    void bringGoals();

    QListWidget *lstBackups;
    QPushButton *btnOther;
    QPushButton *btnUnlock;
    ElidedLabel *lblFile;
    QLabel *lblContents;
    QString m_path;          ///< of the file chosen; empty where none is
    QString m_lockedPath;    ///< of one that takes another password
    FilePassword m_password; ///< that is tried: the journal's, or the one typed last
};
