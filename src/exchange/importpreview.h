// The records of an import in words.
#pragma once

#include "exchange/importplan.h"

/// What stands above the values of a kind's records.
QStringList previewHeaders(const ImportTable &table);
/// The values of a record of a plan as the windows show them.
QStringList previewOf(const ImportTable &table, const PlannedRecord &record, ImportPlan &plan,
                      const LocaleText &text);
