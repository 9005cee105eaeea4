// Backups in the main window's menu.
#include "app/frmMain.h"

#include "backup/backuprun.h"

void frmMain::backUp()
{
    backUpIntoChosenFolder(this, m_session, m_messages);
}
