// The file of an export that holds a row for each day.
#pragma once

#include "data/connection.h"
#include "exchange/csvfile.h"

#include <functional>

/// Both days belong to it.
struct ExportPeriod
{
    QDate dateFrom;
    QDate dateTo;
};

/// Every day of a period that has a meal, an activity or a measurement. Its figures are those of
/// the day's chart, rounded so that they add up, beside them the balance that general progress
/// shows. Calls `advance` with the number of records behind each row. Throws StoreError and
/// ExportError.
void writeDays(Connection &connection, const ExportPeriod &period, CsvFile &file,
               const std::function<void(qint64)> &advance);
