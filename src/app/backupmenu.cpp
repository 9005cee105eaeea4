// Backups in the main window: its menu, and the line that tells of the last one.
#include "app/frmMain.h"

#include "app/dayview.h"
#include "backup/backuprun.h"
#include "backup/backupsettings.h"
#include "backup/frmBackupSettings.h"
#include "backup/frmRestore.h"
#include "session/session.h"

void frmMain::backUp()
{
    backUpIntoChosenFolder(this, m_session, m_messages);
    showBackupState();
}

void frmMain::restoreBackup()
{
    frmRestore(m_session, m_messages, this).exec();
    showBackupState();
}

void frmMain::openBackupSettings()
{
    frmBackupSettings(m_session, m_messages, this).exec();
}

void frmMain::showBackupState()
{
    const BackupState state = backupState(installationOf(m_session.data().Con));
    const QString last =
        state.last.isValid()
            ? tr("Last backup: %1").arg(m_session.text().mediumDate(state.last.date()))
            : tr("No backup yet");
    m_view->setBackupNotice(
        state.failure.isEmpty()
            ? last
            : tr("The automatic backup failed: %1 %2").arg(state.failure, last));
}
