// A backup made in a window, with what is told of it.
#pragma once

#include <QString>

class Messages;
class QWidget;
class Session;

/// Makes a backup in this folder, with a progress bar and Cancel where it takes longer than a
/// moment. The backup's folder; empty where it was cancelled. Throws as makeBackup does.
QString runBackup(QWidget *window, const Session &session, const QString &place);

/// Asks for a folder, makes a backup in it, and says where it is or why there is none.
void backUpIntoChosenFolder(QWidget *window, const Session &session, Messages &messages);
