// A journal's file that was picked to be restored.
#pragma once

#include "data/connection.h"

#include <QDate>
#include <QTemporaryDir>

/// How much a journal holds.
struct BackupContents
{
    QDate from; ///< the first and the last day of which there is something; invalid where there
    QDate to;   ///< is nothing
    qint64 mealsEaten = 0;
    qint64 activitiesPerformed = 0;
    qint64 measurements = 0;
    qint64 notes = 0;
    qint64 categories = 0; ///< of the catalogue, and the next two
    qint64 meals = 0;
    qint64 activities = 0;
};

/// A copy of the file, in the folder for temporary files, is opened and looked through: the file
/// itself and what lies beside it are only read, whatever state they are in.
class BackupFile
{
public:
    /// Throws BackupError where it is not whole, no journal of this program, or one of a newer
    /// program, StoreError where the copy can't be read, of the kind Locked where it takes another
    /// password. Of a file that isn't locked the password stays unused.
    explicit BackupFile(const QString &path, const FilePassword &password = {});

    Connection &connection() { return *m_connection; }
    BackupContents contents();

private:
    void copy(const QString &path, const FilePassword &password);
    void open(const FilePassword &password);
    void requireWhole();
    void requireKnownTables();

    QTemporaryDir m_folder;
    std::unique_ptr<Connection> m_connection;
};
