// Prints the rows of a query of a journal's file, columns joined by "|": for scripts that work the
// program from outside and want to know what it has stored.
//
//     journalrows FILE QUERY
#include "testjournal.h"

#include <cstdio>

int main(int argc, char **argv)
{
    if (argc != 3)
        return 2;
    try {
        Connection connection(QString::fromLocal8Bit(argv[1]));
        for (const QString &row : queryRows(connection, argv[2]))
            std::puts(qPrintable(row));
        return 0;
    } catch (const std::exception &error) {
        std::fputs(error.what(), stderr);
        return 1;
    }
}
