#include "session/installation.h"

#include "data/connection.h"
#include "session/inifile.h"

#include <QDir>
#include <QFileInfo>

#include <stdexcept>

namespace {

const QString firstStartKey = QStringLiteral("FirstStartDone");
const QString yes = QStringLiteral("true");
const QString no = QStringLiteral("false");
constexpr char unwritable[] = "Corvana.ini can't be written in the program folder; please make "
                              "sure that there is room and that you may write there";

IniFile settingsIn(const QString &folder)
{
    return IniFile(Installation(folder).settingsPath());
}

Installation::FirstStart firstStartIn(IniFile &settings)
{
    using enum Installation::FirstStart;
    if (!settings.exists())
        return Pending;
    const QString mark = settings.read() ? settings.value(firstStartKey) : QString();
    return mark == yes ? Done : mark == no ? Pending : Untold;
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

QString Installation::settingsPath() const
{
    return QDir(m_folder).filePath(QStringLiteral("Corvana.ini"));
}

QString Installation::helpPath() const
{
    return QDir(m_folder).filePath(QStringLiteral("Corvana.hlp"));
}

Installation::FirstStart Installation::firstStart() const
{
    IniFile settings = settingsIn(m_folder);
    return firstStartIn(settings);
}

void Installation::requireWritable() const
{
    if (!settingsIn(m_folder).isWritable())
        throw std::runtime_error(unwritable);
}

void Installation::setFirstStartDone()
{
    IniFile settings = settingsIn(m_folder);
    settings.read();
    settings.setValue(firstStartKey, yes);
    if (!settings.write())
        throw std::runtime_error(unwritable);
}

QString Installation::value(const QString &key) const
{
    IniFile settings = settingsIn(m_folder);
    settings.read();
    return settings.value(key);
}

bool Installation::setValue(const QString &key, const QString &value)
{
    return setValues({{key, value}});
}

bool Installation::setValues(const QMap<QString, QString> &values)
{
    IniFile settings = settingsIn(m_folder);
    const bool isPending = firstStartIn(settings) == FirstStart::Pending;
    for (auto value = values.cbegin(); value != values.cend(); ++value)
        settings.setValue(value.key(), value.value());
    settings.setValue(firstStartKey, isPending ? no : yes);
    return settings.write();
}

Installation installationOf(const Connection &journal)
{
    return Installation(QFileInfo(journal.path()).absolutePath());
}
