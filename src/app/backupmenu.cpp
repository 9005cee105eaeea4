// Backups in the main window's menu.
#include "app/frmMain.h"

#include "backup/backuprun.h"
#include "backup/frmRestore.h"

void frmMain::backUp()
{
    backUpIntoChosenFolder(this, m_session, m_messages);
}

void frmMain::restoreBackup()
{
    frmRestore(m_session, m_messages, this).exec();
}
