// build_delivered <folder with the sources> <database file>: makes the delivered database.
#include "database.h"

#include <QCoreApplication>

#include <cstdio>
#include <exception>

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3) {
        std::fputs("usage: build_delivered <folder with the sources> <database file>\n", stderr);
        return 2;
    }
    try {
        delivered::writeDatabase(arguments[2], delivered::loadSources(arguments[1]));
    } catch (const std::exception &error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
    return 0;
}
