// What the installation remembers outside the database.
#pragma once

#include <QMap>
#include <QString>

class Connection;

/// Kept in Corvana.ini in the program's folder, beside the database: it outlives a replaced
/// database file, and a folder copied to another machine takes it along, so that no measurement is
/// moved there again.
class Installation
{
public:
    explicit Installation(const QString &programFolder);

    QString folder() const { return m_folder; }
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
    /// Keeps a value as well as it can: one that can't be written is not kept. What is known of
    /// the first start stays known. False where it was not.
    bool setValue(const QString &key, const QString &value);
    /// Several at once.
    bool setValues(const QMap<QString, QString> &values);

private:
    QString m_folder;
};

/// That the journal's file belongs to.
Installation installationOf(const Connection &journal);
