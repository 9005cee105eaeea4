#include "session/installation.h"

#include "data/connection.h"
#include "session/inifile.h"
#include "session/synchronizedfolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLockFile>
#include <QStandardPaths>

#include <stdexcept>

namespace {

const QString firstStartKey = QStringLiteral("FirstStartDone");
const QString yes = QStringLiteral("true");
const QString no = QStringLiteral("false");
struct InstallationTexts
{
    Q_DECLARE_TR_FUNCTIONS(InstallationTexts)
};

QString unwritable()
{
    return InstallationTexts::tr("Corvana.ini can't be written in the program folder; please make "
                                 "sure that there is room and that you may write there");
}

IniFile settingsIn(const QString &folder)
{
    return IniFile(Installation(folder).settingsPath());
}

QString unmade(const QString &folder)
{
    return InstallationTexts::tr("your journal can't be put into the folder %1; please make sure "
                                 "that there is room and that you may write there")
        .arg(QDir::toNativeSeparators(folder));
}

QString unreadable(const QString &delivered)
{
    return InstallationTexts::tr("the delivered journal %1 can't be read; please install the "
                                 "program anew")
        .arg(QDir::toNativeSeparators(delivered));
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
    : Installation(programFolder, programFolder)
{
}

Installation::Installation(const QString &programFolder, const QString &delivered)
    : m_folder(programFolder)
    , m_delivered(delivered)
{
}

Installation Installation::ofExecutableIn(const QString &folder)
{
    const QString delivered =
        QDir::cleanPath(QDir(folder).filePath(QStringLiteral("../share/corvana")));
    if (QFile::exists(Installation(folder).databasePath()) || !QDir(delivered).exists())
        return Installation(folder);
    QDir data(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation));
    if (data.isRelative()) // to where the program was started: counts as not set
        data.setPath(QDir::home().filePath(QStringLiteral(".local/share")));
    return {data.filePath(QStringLiteral("Corvana")), delivered};
}

Installation Installation::ofProgram()
{
    return ofExecutableIn(QCoreApplication::applicationDirPath());
}

// A new journal in the place of one that was lost would hide the loss, and beside the rollback
// journal of that one it would be spoilt.
bool Installation::holdsJournal() const
{
    return QFile::exists(databasePath()) ||
           QFile::exists(databasePath() + QStringLiteral("-journal")) ||
           QFile::exists(settingsPath());
}

void Installation::provide() const
{
    if (!isOfSystem() || holdsJournal())
        return;
    constexpr int patience = 10'000; // milliseconds: it is a small file
    // A second program that starts now must not replace what the first one stores already.
    QLockFile lock(databasePath() + QStringLiteral(".lock"));
    const QString delivered = Installation(m_delivered).databasePath();
    if (!makeSynchronizedFolder(m_folder) || !lock.tryLock(patience))
        throw std::runtime_error(unmade(m_folder).toStdString());
    if (holdsJournal())
        return;
    if (!QFileInfo(delivered).isReadable())
        throw std::runtime_error(unreadable(delivered).toStdString());
    if (!copySynchronized(delivered, databasePath()))
        throw std::runtime_error(unmade(m_folder).toStdString());
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
    return QDir(m_delivered).filePath(QStringLiteral("Corvana.hlp"));
}

Installation::FirstStart Installation::firstStart() const
{
    IniFile settings = settingsIn(m_folder);
    return firstStartIn(settings);
}

void Installation::requireWritable() const
{
    if (!settingsIn(m_folder).isWritable())
        throw std::runtime_error(unwritable().toStdString());
}

void Installation::setFirstStartDone()
{
    IniFile settings = settingsIn(m_folder);
    settings.read();
    settings.setValue(firstStartKey, yes);
    if (!settings.write())
        throw std::runtime_error(unwritable().toStdString());
}

QString Installation::value(const QString &key) const
{
    return values().value(key);
}

QMap<QString, QString> Installation::values() const
{
    IniFile settings = settingsIn(m_folder);
    settings.read();
    return settings.values();
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
