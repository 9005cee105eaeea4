// Measures the program against what it stands on and prints one table. Ends with status 1 where a
// bound is missed.
#include "fulljournal.h"
#include "measurements.h"
#include "table.h"

#include <QApplication>
#include <QTemporaryDir>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("Corvana"));
    const QTemporaryDir folder;
    const QString journal = folder.filePath(QStringLiteral("Corvana.mdb"));
    makeFullJournal(journal);

    Table table;
    measureStartUp(table);
    measureStore(table, journal);
    measureExchange(table, journal);
    measureWindows(table, journal);
    return table.print() ? 0 : 1;
}
