#include "backup/backuprun.h"

#include "backup/backupsettings.h"
#include "backup/makebackup.h"
#include "session/session.h"
#include "ui/attempt.h"
#include "ui/messages.h"
#include "ui/progressbox.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>

namespace {

const QString chosenPlaceKey = QStringLiteral("Backup/ChosenFolder");

class BackupPlaceDialog : public QFileDialog
{
    Q_DECLARE_TR_FUNCTIONS(BackupPlaceDialog)

public:
    BackupPlaceDialog(QWidget *parent, const QString &place)
        : QFileDialog(parent, tr("Back Up into Folder"))
    {
        setObjectName(QStringLiteral("dlgBackupPlace"));
        setFileMode(Directory);
        setOption(ShowDirsOnly);
        const bool isThere = !place.isEmpty() && QDir(place).exists();
        setDirectory(isThere ? place : QDir::homePath());
    }
};

} // namespace

QString runBackup(QWidget *window, const Session &session, const QString &place)
{
    ProgressBox progress(window, QStringLiteral("dlgBackupProgress"),
                         BackupPlaceDialog::tr("Backing up the journal\u2026"));
    const QDateTime now = session.clock().now();
    const Connection &journal = session.data().Con;
    QString folder = makeBackup(
        journal.path(), place, now, [&](int percent) { return progress.advance(percent); },
        journal.password());
    if (!folder.isEmpty()) {
        Installation installation = installationOf(session.data().Con);
        keepBackupState(installation, {now, {}});
    }
    return folder;
}

void backUpIntoChosenFolder(QWidget *window, const Session &session, Messages &messages)
{
    Installation installation = installationOf(session.data().Con);
    BackupPlaceDialog dialog(window, installation.value(chosenPlaceKey));
    if (dialog.exec() != QDialog::Accepted)
        return;
    const QString place = dialog.selectedFiles().constFirst();
    QString folder;
    if (!attempt(
            window, messages, [&] { folder = runBackup(window, session, place); },
            BackupPlaceDialog::tr("The journal can't be backed up")) ||
        folder.isEmpty())
        return;
    installation.setValue(chosenPlaceKey, place);
    messages.information(
        window, BackupPlaceDialog::tr("The journal is backed up, and the copy has been checked. "
                                      "It is in the folder %1")
                    .arg(QDir::toNativeSeparators(folder)));
}
