#include "session/installation.h"

#include "session/inifile.h"

#include <QDir>

#include <optional>
#include <stdexcept>

namespace {

const QString firstStartKey = QStringLiteral("FirstStartDone");
const QString yes = QStringLiteral("true");
constexpr char unwritable[] = "Corvana.ini can't be written in the program folder; please make "
                              "sure that there is room and that you may write there";
const QString no = QStringLiteral("false");

IniFile settingsIn(const QString &folder)
{
    return IniFile(QDir(folder).filePath(QStringLiteral("Corvana.ini")));
}

// None where the file is there but doesn't tell.
std::optional<bool> firstStartDone(IniFile &settings)
{
    if (!settings.exists())
        return false;
    const QString mark = settings.read() ? settings.value(firstStartKey) : QString();
    return mark == yes ? std::optional(true) : mark == no ? std::optional(false) : std::nullopt;
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
    IniFile settings = settingsIn(m_folder);
    return firstStartDone(settings).value_or(true);
}

bool Installation::isDamaged() const
{
    IniFile settings = settingsIn(m_folder);
    return !firstStartDone(settings);
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

void Installation::setValue(const QString &key, const QString &value)
{
    IniFile settings = settingsIn(m_folder);
    const bool isDone = firstStartDone(settings).value_or(true);
    settings.setValue(key, value);
    settings.setValue(firstStartKey, isDone ? yes : no);
    settings.write();
}
