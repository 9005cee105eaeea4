#include "app/startup.h"

#include "app/frmMain.h"
#include "session/installation.h"
#include "session/samplejournal.h"
#include "session/session.h"
#include "settings/frmCommon.h"
#include "ui/messages.h"

#include <QCoreApplication>

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("StartUp", text);
}

} // namespace

StartUp::StartUp(const StartUpSettings &settings)
    : m_settings(settings)
{
}

StartUp::~StartUp() = default;

bool StartUp::run()
{
    if (!openDatabase())
        return false;
    try {
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

bool StartUp::openDatabase()
{
    try {
        m_data = std::make_unique<deData>(Installation(m_settings.programFolder).databasePath());
        return true;
    } catch (const StoreError &) {
        m_settings.messages.show(nullptr, Messages::Icon::Critical, tr("Severe Error"),
                                 tr("Can't access database. Please make sure the database file "
                                    "Corvana.mdb is present in the program folder."));
        return false;
    }
}

void StartUp::makeSession()
{
    m_session = std::make_unique<Session>(*m_data, m_settings.clock, m_settings.locale);
    m_session->readCommonParameters();
}

// A file that doesn't tell is put right, so that this is said once.
void StartUp::tellDamage(Installation &installation)
{
    const QString text =
        tr("The file Corvana.ini in the program folder is damaged or can't be read. It remembers "
           "that the first start is done, and that is taken for granted now: no date in your "
           "journal is changed.");
    m_settings.messages.show(nullptr, Messages::Icon::Exclamation, tr("Error"), text);
    try {
        installation.setFirstStartDone();
    } catch (const std::runtime_error &) {
        // Where it can't be written, it is told of again at the next start.
    }
}

bool StartUp::runFirstStart()
{
    Installation installation(m_settings.programFolder);
    if (installation.isDamaged())
        tellDamage(installation);
    else if (!installation.isFirstStartDone())
        return askForParameters(installation);
    return true;
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
        return false; // the program was told to end meanwhile
    moveSampleJournal(*m_data, m_settings.clock.now().date());
    // Only now: a program that ends before begins the sequence anew at its next start.
    installation.setFirstStartDone();
    return true;
}
