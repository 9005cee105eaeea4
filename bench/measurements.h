// The groups of measurements, each a part of the one table.
#pragma once

class QString;
class Table;
class deData;

/// From exec to the first painted main window, and the memory taken then, against an empty Qt
/// main window.
void measureStartUp(Table &table);
/// Queries and stored rows against the bare engine, on a full journal.
void measureStore(Table &table, const QString &fullJournal);
/// The whole journal exported, in what time and memory, and checked.
void measureExchange(Table &table, const QString &fullJournal);
/// What a person waits for: a day shown, an editor opened, a meal stored, on a full journal.
void measureWindows(Table &table, const QString &fullJournal);
