// From the program's start to its main window.
#pragma once

#include "session/clock.h"
#include "session/installation.h"

#include <QCoreApplication>
#include <QLocale>
#include <QString>

#include <memory>
#include <optional>

class FilePassword;
class Messages;
class Session;
class deData;
class frmMain;

/// What start-up reads from its surroundings.
struct StartUpSettings
{
    Installation installation;
    const Clock &clock;
    QLocale locale;
    Messages &messages;
};

/// Provides a program folder where the user has none, opens the database, makes the session, runs
/// the first-start sequence where it has not been run before, and makes the main window. Owns
/// database, session and window for the life of the program.
class StartUp
{
    Q_DECLARE_TR_FUNCTIONS(StartUp)

public:
    explicit StartUp(const StartUpSettings &settings);
    ~StartUp();

    /// False where the program can't start; what stopped it has been said.
    bool run();
    /// Once the windows are closed: makes the weekly backup. What keeps it from being made is told
    /// at the next start.
    void end();
    frmMain *mainWindow() const { return m_mainWindow.get(); }
    Session *session() const { return m_session.get(); }

private:
    /// Why the database can't be opened.
    struct Refusal
    {
        QString cause;
        bool isLost = false; ///< a backup may help
    };

    bool openDatabase();
    bool openWith(const FilePassword &password);
    bool unlockDatabase();
    void tellRefusal() const;
    QString newestBackupAdvice() const;
    void makeSession();
    bool runFirstStart();
    bool askForParameters(Installation &installation);
    void tellDamage(Installation &installation);

    QString databasePath() const;

    StartUpSettings m_settings;
    std::optional<Refusal> m_refusal;
    std::unique_ptr<deData> m_data;
    std::unique_ptr<Session> m_session;
    std::unique_ptr<frmMain> m_mainWindow;
};
