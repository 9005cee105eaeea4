#include "schemacheck.h"

#include "data/connection.h"
#include "data/schema.h"
#include "tsv.h"

using namespace Qt::StringLiterals;

namespace delivered {

namespace {

// Each row of a query as one text, its columns parted by blanks.
QStringList rowsOf(Connection &connection, const std::string &sql)
{
    QStringList rows;
    const StatementUse statement = connection.prepared(sql);
    while (statement->executeStep()) {
        QStringList texts;
        for (int column = 0; column < statement->getColumnCount(); ++column)
            texts += columnValue(*statement, column).toText();
        rows += texts.join(u' ');
    }
    return rows;
}

QString declared(const schema::Column &column)
{
    const char *const types[] = {"INTEGER", "REAL", "TEXT"};
    return QString::fromLatin1(column.name()) + u' ' +
           QString::fromLatin1(types[static_cast<size_t>(column.type())]) +
           (column.isNullable() ? u" null"_s : u" not null"_s);
}

void compare(const QString &what, const QStringList &found, const QStringList &expected)
{
    if (found == expected)
        return;
    qsizetype i = 0;
    while (i < found.size() && i < expected.size() && found[i] == expected[i])
        ++i;
    const QString nothing = u"nothing"_s;
    throw SourceError(u"schema.sql"_s, 0,
                      u"%1: there is %2 where the program expects %3"_s.arg(
                          what, found.value(i, nothing), expected.value(i, nothing)));
}

} // namespace

void checkSchema(Connection &connection)
{
    QStringList names;
    for (const schema::Table *table : schema::tables) {
        names += QString::fromLatin1(table->name());
        QStringList expected;
        for (const schema::Column &column : *table)
            expected += declared(column);
        // A key that numbers itself is declared without "not null".
        compare(names.last(),
                rowsOf(connection,
                       std::string("select name, type, iif(\"notnull\" or pk, 'not null', 'null')"
                                   " from pragma_table_info('") +
                           table->name() + "') order by cid"),
                expected);
    }
    compare(u"The tables"_s,
            rowsOf(connection, "select name from sqlite_schema where type = 'table'"
                               " and name not like 'sqlite_%' order by rowid"),
            names);
}

} // namespace delivered
