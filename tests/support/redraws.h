// How often the day's chart is drawn anew.
#pragma once

#include "data/commands.h"
#include "dayjournal.h"

#include <sqlite3.h>

/// How often the day's activities have been read since it was made: by the chart each time that it
/// is redrawn, and by their list.
class Redraws
{
public:
    explicit Redraws(DayJournal &journal)
        : m_handle(journal.data->Con.database().getHandle())
    {
        const auto trace = [](unsigned, void *self, void *, void *sql) {
            if (QByteArrayView(static_cast<const char *>(sql)) ==
                commands::ExercisePerformSorted.sql)
                ++static_cast<Redraws *>(self)->m_count;
            return 0;
        };
        sqlite3_trace_v2(m_handle, SQLITE_TRACE_STMT, trace, this);
    }
    ~Redraws() { sqlite3_trace_v2(m_handle, 0, nullptr, nullptr); }
    int count() const { return m_count; }

private:
    sqlite3 *m_handle;
    int m_count = 0;
};
