#include "app/startup.h"

#include "app/frmMain.h"
#include "backup/backupplace.h"
#include "backup/backupsettings.h"
#include "backup/makebackup.h"
#include "data/pendingrollback.h"
#include "lock/changepassword.h"
#include "session/samplejournal.h"
#include "session/session.h"
#include "settings/frmCommon.h"
#include "ui/attempt.h"
#include "ui/frmUnlock.h"
#include "ui/messages.h"

#include <QDir>
#include <QGuiApplication>

namespace {

// Why a store that was cut short can't be undone, and what to do; empty where it can.
QString rollbackAdvice(PendingRollback rollback)
{
    switch (rollback) {
    case PendingRollback::None:
    case PendingRollback::Sound:
        return {};
    case PendingRollback::Foreign:
        return StartUp::tr(
            "The file Corvana.mdb-journal beside it was left by a store that was cut short, "
            "but not in this Corvana.mdb: it would spoil it. Have you put back a copy? Then "
            "move Corvana.mdb-journal into another folder and start again. Nothing has been "
            "changed.");
    case PendingRollback::Damaged:
        return StartUp::tr(
            "A store was cut short, and the file is damaged: undoing the store with "
            "Corvana.mdb-journal does not make it whole. Copy both files into another folder "
            "and keep them. Then put back your last copy of Corvana.mdb, or, where you have "
            "none, remove Corvana.mdb-journal only, to see what can still be read. Nothing "
            "has been changed.");
    case PendingRollback::Locked:
    case PendingRollback::Untried:
        break;
    }
    return StartUp::tr(
        "A store was cut short and has to be undone, which is tried on a copy first, but there "
        "is no room for it in the folder for temporary files. Please make room and start "
        "again. Nothing has been changed.");
}

} // namespace

StartUp::StartUp(const StartUpSettings &settings)
    : m_settings(settings)
{
}

StartUp::~StartUp() = default;

bool StartUp::run()
{
    try {
        m_settings.installation.provide();
        if (!openDatabase())
            return false;
        makeSession();
        if (!runFirstStart())
            return false;
        m_mainWindow = std::make_unique<frmMain>(*m_session, m_settings.messages);
    } catch (const std::runtime_error &error) {
        m_settings.messages.show(
            nullptr, Messages::Icon::Critical, tr("Severe Error"),
            tr("The program can't start: %1.").arg(QString::fromUtf8(error.what())));
        return false;
    }
    m_mainWindow->show();
    return true;
}

void StartUp::end()
{
    if (!m_mainWindow)
        return;
    Installation &installation = m_settings.installation;
    const BackupSettings settings = backupSettings(installation);
    const QDateTime now = m_settings.clock.now();
    if (!settings.isAutomatic || !isBackupDue(settings.place, now))
        return;
    QGuiApplication::sync(); // nobody has to look at a closed window meanwhile
    BackupState state = backupState(installation);
    try {
        const QString made = makeBackup(installation.databasePath(), settings.place, now, {},
                                        m_data->Con.password());
        removeOldBackups(settings.place, settings.kept, now, made);
        state = {now, {}};
    } catch (const std::exception &error) {
        const QString cause = causeOf(error);
        state.failure = cause.isEmpty() ? QString::fromUtf8(error.what()) : cause;
    }
    keepBackupState(installation, state);
}

// Empty where there is none.
QString StartUp::newestBackupAdvice() const
{
    const std::vector<Backup> backups = backupsIn(backupSettings(m_settings.installation).place);
    if (backups.empty())
        return {};
    return tr("Your newest backup, of %1, is in the folder %2. To bring it back, move what there "
              "is of Corvana.mdb and Corvana.mdb-journal out of the program folder, copy "
              "Corvana.mdb from the backup into it, and start again.")
        .arg(LocaleText(m_settings.locale).mediumDate(backups.front().time.date()),
             QDir::toNativeSeparators(backups.front().folder));
}

QString StartUp::databasePath() const
{
    return m_settings.installation.databasePath();
}

bool StartUp::openDatabase()
{
    removeUnfinishedChange(databasePath());
    // A file that isn't locked opens at once.
    if (!openWith({}) && !unlockDatabase())
        return false; // the user gave up
    if (m_refusal)
        tellRefusal();
    return m_data != nullptr;
}

/// False where it takes another password; else it is open, or there is a refusal.
bool StartUp::openWith(const FilePassword &password)
{
    const PendingRollback rollback = examineRollback(databasePath(), password);
    if (rollback == PendingRollback::Locked)
        return false;
    if (const QString advice = rollbackAdvice(rollback); !advice.isEmpty()) {
        m_refusal = {advice, rollback == PendingRollback::Damaged};
        return true;
    }
    try {
        m_data = std::make_unique<deData>(databasePath(), password);
    } catch (const StoreError &error) {
        if (error.kind() == StoreError::Kind::Locked)
            return false;
        const bool isDamaged = error.kind() == StoreError::Kind::Damaged;
        // A missing file counts as damaged, and of that the text below says enough.
        QString cause = isDamaged ? QString() : causeOf(error);
        if (isDamaged && !password.isEmpty())
            cause = tr("The password is right, but the file is damaged.");
        m_refusal = {cause, isDamaged || error.kind() == StoreError::Kind::Other};
    }
    return true;
}

bool StartUp::unlockDatabase()
{
    const auto opens = [this](const FilePassword &password) { return openWith(password); };
    return frmUnlock(m_settings.messages, databasePath(), opens).exec() == QDialog::Accepted;
}

void StartUp::tellRefusal() const
{
    QString cause = m_refusal->cause;
    if (m_refusal->isLost)
        cause = QStringList{cause, newestBackupAdvice()}.join(u'\n');
    if (m_settings.installation.isOfSystem())
        cause += tr("\nThe program folder is %1.")
                     .arg(QDir::toNativeSeparators(m_settings.installation.folder()));
    m_settings.messages.show(nullptr, Messages::Icon::Critical, tr("Severe Error"),
                             tr("Can't access database. Please make sure the database file "
                                "Corvana.mdb is present in the program folder."),
                             cause.trimmed());
}

void StartUp::makeSession()
{
    m_session = std::make_unique<Session>(*m_data, m_settings.clock, m_settings.locale);
    try {
        m_session->readCommonParameters();
    } catch (const OverflowError &) {
        m_session->setParameters(
            {.measurement = m_data->rsCommon.text(schema::Common::Measurement)});
        m_settings.messages.error(
            nullptr,
            tr("The body weight or the background calories are no number that the program can "
               "hold"),
            tr("Please set them anew: Settings, Common."));
    }
}

// A file that doesn't tell is put right, so that this is said once.
void StartUp::tellDamage(Installation &installation)
{
    m_settings.messages.error(
        nullptr, tr("The file Corvana.ini in the program folder is damaged or can't be read"),
        tr("It remembers that the first start is done, and that is taken for granted now: no date "
           "in your journal is changed."));
    try {
        installation.setFirstStartDone();
    } catch (const std::runtime_error &) {
        // Where it can't be written, it is told of again at the next start.
    }
}

bool StartUp::runFirstStart()
{
    Installation &installation = m_settings.installation;
    const Installation::FirstStart firstStart = installation.firstStart();
    if (firstStart == Installation::FirstStart::Untold)
        tellDamage(installation);
    return firstStart != Installation::FirstStart::Pending || askForParameters(installation);
}

bool StartUp::askForParameters(Installation &installation)
{
    // Found out afterwards, the dates would be moved again at every start.
    installation.requireWritable();
    m_settings.messages.information(nullptr,
                                    tr("Because it is a very first start of this program, you will "
                                       "be prompted now to specify common parameters."));
    frmCommon dialog(*m_session, m_settings.messages);
    dialog.setFirstStart(true);
    dialog.run();
    if (!dialog.OkPressed())
        return false;              // the program was told to end meanwhile
    m_session->history().forget(); // setting the program up is no action to take back
    moveSampleJournal(*m_data, m_settings.clock.now().date());
    // Only now: a program that ends before begins the sequence anew at its next start.
    installation.setFirstStartDone();
    return true;
}
