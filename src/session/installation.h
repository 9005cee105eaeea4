// Where the program's files are, and what the installation remembers outside the database.
#pragma once

#include <QMap>
#include <QString>

class Connection;

/// The program's folder holds the user's journal and beside it Corvana.ini, which outlives a
/// replaced database file; a folder copied to another machine takes it along, so that no
/// measurement is moved there again. There are two ways in which a program is installed:
///
/// - As a folder that the user can write: executable, journal and help lie in it side by side.
/// - By the system's packages, to be read only: what is delivered lies in ../share/corvana, seen
///   from the executable, and the program's folder is each user's own, Corvana among the user's
///   data ($XDG_DATA_HOME or ~/.local/share). provide() makes it.
class Installation
{
public:
    /// As a folder.
    explicit Installation(const QString &programFolder);
    /// Of a program whose executable lies in the folder given. A Corvana.mdb beside it makes that
    /// the program's folder whatever lies elsewhere; otherwise ../share/corvana decides.
    static Installation ofExecutableIn(const QString &folder);
    /// Of the program that runs.
    static Installation ofProgram();

    QString folder() const { return m_folder; }
    /// Installed by the system's packages.
    bool isOfSystem() const { return m_delivered != m_folder; }
    /// Gives the user who has none a program folder with the delivered journal, whole or not at
    /// all. A folder that holds a journal, or what belongs to one that is gone, stays as it is.
    /// Throws std::runtime_error where the folder or the journal can't be made.
    void provide() const;
    QString databasePath() const;
    QString settingsPath() const;
    QString helpPath() const;

    enum class FirstStart
    {
        Pending,
        Done,
        Untold ///< the file is there but can't be read, or doesn't tell
    };
    /// What is untold counts as done: to begin the first start anew would move the user's own
    /// measurements.
    FirstStart firstStart() const;
    /// Throws std::runtime_error where setFirstStartDone() would; changes nothing.
    void requireWritable() const;
    /// Written to the disk when it returns; throws std::runtime_error where it can't be.
    void setFirstStartDone();

    /// What was kept under a key such as "Windows/frmMain"; empty where it is missing or can't be
    /// read.
    QString value(const QString &key) const;
    /// All of them by their keys, read at once.
    QMap<QString, QString> values() const;
    /// Keeps a value as well as it can: one that can't be written is not kept. What is known of
    /// the first start stays known. False where it was not.
    bool setValue(const QString &key, const QString &value);
    /// Several at once.
    bool setValues(const QMap<QString, QString> &values);

private:
    Installation(const QString &programFolder, const QString &delivered);
    bool holdsJournal() const;

    QString m_folder;
    QString m_delivered;
};

/// That the journal's file belongs to.
Installation installationOf(const Connection &journal);
