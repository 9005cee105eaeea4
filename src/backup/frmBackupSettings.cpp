#include "backup/frmBackupSettings.h"

#include "backup/backupsettings.h"
#include "session/session.h"
#include "ui/messages.h"
#include "ui/wheelguard.h"

#include <QCheckBox>
#include <QDir>
#include <QFileDialog>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTemporaryFile>

using namespace Qt::Literals;

namespace {

constexpr int folderCharacters = 44;

// Of which on some systems only trying tells.
bool canHoldBackups(const QString &folder)
{
    if (!QDir::isAbsolutePath(folder))
        return false;
    const bool isNew = !QDir(folder).exists();
    if (!QDir().mkpath(folder))
        return false;
    const bool isWritable = QTemporaryFile(QDir(folder).filePath(u"Corvana-XXXXXX.tmp"_s)).open();
    if (isNew)
        QDir().rmdir(folder); // made with the first backup
    return isWritable;
}

} // namespace

frmBackupSettings::frmBackupSettings(Session &session, Messages &messages, QWidget *parent)
    : FormDialog(session, messages, u"frmBackupSettings"_s, tr("Backup Settings"), parent)
    , chkAutomatic(new QCheckBox(tr("Back up &automatically once a week, at the end"), this))
    , txtFolder(makeBox(u"txtFolder"_s, tr("Folder")))
    , btnFolder(new QPushButton(tr("Choo&se\u2026"), this))
    , spnKept(new QSpinBox(this))
{
    chkAutomatic->setObjectName(u"chkAutomatic"_s);
    btnFolder->setObjectName(u"btnFolder"_s);
    btnFolder->setAutoDefault(false);
    spnKept->setObjectName(u"spnKept"_s);
    spnKept->setAccessibleName(tr("Backups to keep"));
    spnKept->setRange(1, BackupSettings::mostKept);
    guardFromWheel(*spnKept);
    const BackupSettings settings = backupSettings(installationOf(session.data().Con));
    chkAutomatic->setChecked(settings.isAutomatic);
    txtFolder->setText(QDir::toNativeSeparators(settings.place));
    txtFolder->setMinimumWidth(folderCharacters * fontMetrics().averageCharWidth());
    spnKept->setValue(settings.kept);
    setForm(makeForm());
    checkSpecified(txtFolder, tr("Folder"));
    addCheck(txtFolder, tr("Backups can't be written into this folder"),
             [this] { return canHoldBackups(QDir::fromNativeSeparators(txtFolder->text())); });
    connect(btnFolder, &QPushButton::clicked, this, &frmBackupSettings::chooseFolder);
    focusFirstField();
}

QLayout *frmBackupSettings::makeForm()
{
    auto *form = new QGridLayout;
    form->addWidget(chkAutomatic, 0, 0, 1, 3);
    form->addWidget(makeLabel(tr("&Folder"), txtFolder), 1, 0);
    form->addWidget(txtFolder, 1, 1);
    form->addWidget(btnFolder, 1, 2);
    form->addWidget(makeLabel(tr("Backups to &keep"), spnKept), 2, 0);
    form->addWidget(spnKept, 2, 1, Qt::AlignLeading);
    form->setColumnStretch(1, 1);
    return form;
}

void frmBackupSettings::chooseFolder()
{
    QFileDialog dialog(this, tr("Folder of the Backups"));
    dialog.setObjectName(u"dlgBackupFolder"_s);
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    const QString folder = QDir::fromNativeSeparators(txtFolder->text());
    dialog.setDirectory(QDir(folder).exists() ? folder : QDir::homePath());
    if (dialog.exec() == QDialog::Accepted)
        txtFolder->setText(QDir::toNativeSeparators(dialog.selectedFiles().constFirst()));
}

void frmBackupSettings::accept()
{
    if (!Validate())
        return;
    Installation installation = installationOf(session().data().Con);
    const BackupSettings settings{chkAutomatic->isChecked(),
                                  QDir::cleanPath(QDir::fromNativeSeparators(txtFolder->text())),
                                  spnKept->value()};
    if (keepBackupSettings(installation, settings))
        QDialog::accept();
    else
        messages().error(this, tr("The settings can't be kept"),
                         tr("The file Corvana.ini in the program folder can't be written."));
}
