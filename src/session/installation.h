// What the installation remembers outside the database.
#pragma once

#include <QString>

/// Kept in the program's folder, beside the database: it outlives a replaced database file, and a
/// folder copied to another machine takes it along, so that no measurement is moved there again.
class Installation
{
public:
    explicit Installation(const QString &programFolder);

    QString databasePath() const;
    QString helpPath() const;

    bool isFirstStartDone() const;
    /// Written to the disk when it returns; throws std::runtime_error where it can't be.
    void setFirstStartDone();

    /// What else is kept, such as a window's place; empty where it is missing or can't be read.
    QString value(const QString &key) const;
    /// As far as the folder can be written to; nothing is said where it can't.
    void setValue(const QString &key, const QString &value);

private:
    QString m_folder;
};
