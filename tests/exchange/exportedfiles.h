// Exports of a test's journal.
#pragma once

#include "exchange/journalexport.h"
#include "testjournal.h"

#include <QDir>

/// A journal with a meal, an activity and an empty folder beside it to export into.
class ExportJournal : public TestJournal
{
public:
    explicit ExportJournal(const QLocale &locale = QLocale(QStringLiteral("de_DE")))
        : TestJournal(locale)
    {
        exec("insert into MealCategory (Name) values ('Brot; \"frisch\"');"
             "insert into Meal values (1, 1, 'Roggenbrot', 'Scheibe', 1.5, Null, 90, 1, 18, 3,"
             " 9.5, 70.25, 10.75);"
             "insert into Exercise values (1, 'Gehen', 'min', 30, 4.0625, 4.0625, 0)");
        QDir(folder.path()).mkdir(QStringLiteral("out"));
    }

    QString out() const { return folder.filePath(QStringLiteral("out")); }
    QStringList outNames() const
    {
        return QDir(out()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    ExportOrder order(bool spreadsheet = false, std::optional<ExportPeriod> period = {}) const
    {
        return {out(), spreadsheet ? CsvFormat::spreadsheet(session->text()) : CsvFormat::plain(),
                period, clock.now()};
    }

    /// The file of this name of a new export.
    QByteArray exported(const char *name, bool spreadsheet = false,
                        std::optional<ExportPeriod> period = {})
    {
        const auto path = exportJournal(data->Con, order(spreadsheet, period),
                                        [](double share) { return share <= 1; });
        return path ? fileBytes(QDir(*path).filePath(QLatin1String(name))) : QByteArray();
    }
};
