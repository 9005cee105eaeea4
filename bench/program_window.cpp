// The program as it starts, on the folder given as its argument.
#include "firstpaint.h"

#include "app/application.h"
#include "app/frmMain.h"
#include "app/startup.h"
#include "help/helpkey.h"
#include "session/installation.h"
#include "ui/messages.h"

int main(int argc, char **argv)
{
    MessageBoxes messages;
    Application application(argc, argv, messages);
    if (argc != 2)
        return 2;
    const Installation installation(QString::fromLocal8Bit(argv[1]));
    HelpKeyFilter helpKey(installation.helpPath());
    application.installEventFilter(&helpKey);

    const SystemClock clock;
    StartUp startUp({installation, clock, QLocale::system(), messages});
    if (!startUp.run())
        return 1;
    FirstPaint firstPaint(*startUp.mainWindow());
    return Application::exec();
}
