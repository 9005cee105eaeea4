// A small settings file: sections of "key=value" lines.
#pragma once

#include <QMap>
#include <QString>

/// Written whole and synchronized or not at all, and without a lock file: a left-over one would
/// hold up every start. A key is "Section/Key"; one without a slash stands in section General.
class IniFile
{
public:
    explicit IniFile(const QString &path);

    bool exists() const;
    /// False for a missing file and for one that can't be read. Lines that say nothing are passed
    /// over.
    bool read();
    /// Whether write() could be expected to succeed; changes nothing.
    bool isWritable() const;
    /// On the disk, with its place in the folder, when it returns true.
    bool write() const;

    QString value(const QString &key) const { return m_values.value(key); }
    const QMap<QString, QString> &values() const { return m_values; }
    void setValue(const QString &key, const QString &value) { m_values[key] = value; }

private:
    QByteArray contents() const;

    QString m_path;
    QMap<QString, QString> m_values;
};
