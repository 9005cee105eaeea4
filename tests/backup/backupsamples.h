// Journals to be backed up and restored.
#pragma once

#include "testjournal.h"

/// All rows of a journal's eight tables, each with its table's name.
inline QStringList contentsOf(Connection &connection)
{
    QStringList rows;
    for (const schema::Table *table : schema::tables) {
        const std::string sql = std::string("select * from ") + table->name() + " order by rowid";
        for (const QString &row : queryRows(connection, sql.c_str()))
            rows << QString::fromLatin1(table->name()) + QStringLiteral(": ") + row;
    }
    return rows;
}

/// Of the journal in a folder.
inline QStringList contentsOf(const QString &folder)
{
    Connection connection(folder + QStringLiteral("/Corvana.mdb"));
    return contentsOf(connection);
}

/// A few rows in each table, with texts and numbers that are easily spoilt.
inline void fillJournal(TestJournal &journal)
{
    journal.exec("PRAGMA synchronous=OFF;"
                 "insert into MealCategory (Name) values ('Fruit'), ('Größe 日記'), ('gone');"
                 "delete from MealCategory where Name = 'gone';"
                 "insert into Meal values (1, 1, 'Apple', 'piece', 1.5, null, 30.1234, 1, 1, 1, 9,"
                 " 9, 9), (2, 2, 'Pear', '', null, 0.1, 40, 1, 1, 1, 9, 9, 9);"
                 "insert into Exercise values (7, 'Rowing', 'lap', null, 7, 8, 1);"
                 "insert into MealConsume values (-1, 1, 46225, 0.5, 1), (3, 2, 46200, 0.1, 2.5);"
                 "insert into ExercisePerform values (4, 7, 46226, 0.25, 0.5, 3);"
                 "insert into Body values (5, 46190, 70.5, 100, 90, 95, 'M');"
                 "insert into UserNote values (6, 46225, 46230, 'Naïve' || char(10) || '\"x\"')");
    journal.exec("update Common set NextBodyID = 5, NextMealConsumeID = 3,"
                 " NextExercisePerformID = 4, NextUserNoteID = 6");
}

/// Some megabytes more.
inline void enlargeJournal(TestJournal &journal)
{
    journal.exec("with recursive n(i) as (select 1000 union all select i + 1 from n where i < 2000)"
                 " insert into UserNote select i, 46300 + i, 46300 + i, hex(randomblob(2000))"
                 " from n");
}
