#include "app/application.h"
#include "app/darkcolors.h"
#include "app/startup.h"
#include "help/helpkey.h"
#include "session/installation.h"
#include "ui/messages.h"
#include "ui/windowplaces.h"

#include <QDir>

int main(int argc, char **argv)
{
    MessageBoxes messages;
    allowDarkColors();
    Application application(argc, argv, messages);
    QCoreApplication::setApplicationName(QStringLiteral("Corvana"));
    QCoreApplication::setApplicationVersion(QStringLiteral(CORVANA_VERSION));

    const QString folder = QCoreApplication::applicationDirPath();
    HelpKeyFilter helpKey(Installation(folder).helpPath());
    application.installEventFilter(&helpKey);

    WindowPlaces places(folder);
    application.installEventFilter(&places);

    const SystemClock clock;
    StartUp startUp({folder, clock, QLocale::system(), messages});
    if (!startUp.run())
        return 1;
    const int result = Application::exec();
    startUp.end();
    return result;
}
