#include "app/application.h"
#include "app/darkcolors.h"
#include "app/startup.h"
#include "app/translations.h"
#include "help/helpkey.h"
#include "session/installation.h"
#include "ui/messages.h"
#include "ui/windowplaces.h"

#include <QLocale>

int main(int argc, char **argv)
{
    MessageBoxes messages;
    allowDarkColors();
    Application application(argc, argv, messages);
    QCoreApplication::setApplicationName(QStringLiteral("Corvana"));
    QCoreApplication::setApplicationVersion(QStringLiteral(CORVANA_VERSION));

    installTranslations(QLocale::system().uiLanguages());

    const Installation installation = Installation::ofProgram();
    HelpKeyFilter helpKey(installation.helpPath());
    application.installEventFilter(&helpKey);

    WindowPlaces places(installation.folder());
    application.installEventFilter(&places);

    const SystemClock clock;
    StartUp startUp({installation, clock, QLocale::system(), messages});
    if (!startUp.run())
        return 1;
    const int result = Application::exec();
    startUp.end();
    return result;
}
