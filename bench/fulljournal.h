// Journals to measure on.
#pragma once

#include <QDate>
#include <QString>

class deData;

/// The last of the ten years of the full journal, and days of it with many rows.
inline const QDate lastDay(2026, 7, 22);
inline const QDate dayOf40Items = lastDay.addDays(-1);
inline const QDate dayOf200Meals = lastDay.addDays(-2);

/// A copy of the delivered database whose every journal table holds 32,767 user rows, the most
/// that there can be, over ten years.
void makeFullJournal(const QString &path);

/// Drops the last 500 consumptions of a full journal and sets their counter back accordingly.
void makeRoomForMeals(deData &data);

/// Fills the catalogue up to so many meals and activities.
void growCatalogue(deData &data, int meals, int activities);

/// A program folder as after a first start today: the delivered database, its sample journal
/// around today.
void makeStartedFolder(const QString &folder);
