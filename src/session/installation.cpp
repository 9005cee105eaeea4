#include "session/installation.h"

#include <QDir>
#include <QSettings>

#include <stdexcept>

namespace {

const QString firstStartKey = QStringLiteral("FirstStartDone");

QString settingsPath(const QString &folder)
{
    return QDir(folder).filePath(QStringLiteral("Corvana.ini"));
}

} // namespace

Installation::Installation(const QString &programFolder)
    : m_folder(programFolder)
{
}

QString Installation::databasePath() const
{
    return QDir(m_folder).filePath(QStringLiteral("Corvana.mdb"));
}

QString Installation::helpPath() const
{
    return QDir(m_folder).filePath(QStringLiteral("Corvana.hlp"));
}

bool Installation::isFirstStartDone() const
{
    return QSettings(settingsPath(m_folder), QSettings::IniFormat).value(firstStartKey).toBool();
}

void Installation::setFirstStartDone()
{
    QSettings settings(settingsPath(m_folder), QSettings::IniFormat);
    settings.setValue(firstStartKey, true);
    settings.sync();
    if (settings.status() != QSettings::NoError)
        throw std::runtime_error("Corvana.ini can't be written in the program folder");
}

QString Installation::value(const QString &key) const
{
    return QSettings(settingsPath(m_folder), QSettings::IniFormat).value(key).toString();
}

void Installation::setValue(const QString &key, const QString &value)
{
    QSettings(settingsPath(m_folder), QSettings::IniFormat).setValue(key, value);
}
