// What importing files would do to the journal.
#pragma once

#include "exchange/importfile.h"
#include "exchange/importnames.h"
#include "session/session.h"

#include <functional>

/// What is done with a record of the catalogues whose name exists already. Of body measurements on
/// a day that has one, Renamed does what Kept does.
enum class ExistingRecords
{
    Kept,
    Updated, ///< by the columns that the file has
    Renamed  ///< the new one gets a number behind its name
};

struct ImportFault
{
    int line;
    QString reason; ///< a sentence
};

/// A record that will be stored.
struct PlannedRecord
{
    std::vector<Value> values;          ///< of its table's columns but the key
    bool isNew = true;                  ///< otherwise it updates another one
    qint64 id = 0;                      ///< of the measurement that it updates
    std::optional<size_t> self = {};    ///< where it is among the catalogue's names
    std::optional<size_t> subject = {}; ///< where its category, meal or activity is among theirs
};

struct FilePlan
{
    std::vector<PlannedRecord> records;
    std::vector<ImportFault> faults; ///< by line
    int added = 0;
    int updated = 0;
    int existing = 0; ///< that are left as they are, or were in the journal exactly so
};

/// Of the same files in the same order.
struct ImportPlan
{
    std::vector<FilePlan> files;
    CatalogueNames categories;
    CatalogueNames meals;
    CatalogueNames activities;
    QString obstacle = {}; ///< a sentence, where nothing can be imported
    qint64 dataVersion = 0;

    FilePlan sum() const; ///< of the counts
    /// Where a kind's records are called by name, or what those of a journal's kind refer to.
    CatalogueNames &namesOf(ImportKind kind);
};

/// Reads every line of the files and looks what it would do. Names and days are compared with the
/// journal and with what comes in by the lines before. Entries of the day that are in the journal
/// exactly so are not taken once more. Changes nothing. Calls `progress` with the share done, 0 to
/// 1. Throws StoreError.
ImportPlan planImport(Session &session, const std::vector<ImportFile> &files,
                      ExistingRecords existing, const std::function<void(double)> &progress = {});

/// What the first field that a file has nothing for is called; empty where it has all it needs. To
/// update a catalogue, names are enough.
QString missingField(const ImportFile &file, ExistingRecords existing);
