// Looks through the whole journal for what should not be in it.
#pragma once

#include "data/connection.h"
#include "session/localetext.h"

#include <functional>
#include <vector>

struct CheckFinding
{
    QDate day;      ///< invalid where it belongs to none
    QString record; ///< its kind and name
    QString what;   ///< a sentence
};

struct CheckReport
{
    std::vector<CheckFinding> findings;
    QStringList checked; ///< what was looked at, a phrase each

    bool isSound() const { return findings.empty(); }
};

/// Checks the file's pages and indexes, the references between records, what each column holds, and
/// what holds between records: notes that share days, two measurements on a day, activities that
/// don't end after they begin, counters that would give an identifier out twice. Changes nothing.
/// A damaged page is a finding, and everything else is checked all the same. Of one table at most
/// mostFindings are told one by one, and the number of the others. Calls `progress` with the share
/// done, 0 to 1. Throws StoreError where the file can't be read for another reason.
CheckReport checkJournal(Connection &connection, const LocaleText &text,
                         const std::function<void(double)> &progress = {});

inline constexpr size_t mostFindings = 1000;
