// Copying entries of a day, undoably and announced.
#pragma once

#include "journal/dayentry.h"

#include <QString>

class Messages;
class QWidget;
class Session;

/// What was stored by copying, and the words that tell so.
struct EntryCopies
{
    std::vector<DayEntry> entries;
    QDate day;
    QString told; ///< "Banana copied to 22 Jul 2026"

    /// Of those of a kind.
    std::vector<qint32> ids(const EntryKind &kind) const;
};

/// The entry as it is stored now. Throws StoreError; where the entry is gone, that is announced.
DayEntry openEntry(Session &session, const EntryKind &kind, qint32 id);

/// Copies entries to a day, all of them as one step of the history; their times, which stay within
/// the day, become so many minutes later. None where that was refused, and said so.
std::optional<EntryCopies> copyEntries(QWidget *parent, Session &session, Messages &messages,
                                       const std::vector<DayEntry> &entries, int minutes,
                                       QDate day);
/// The same of a single entry, at its own time.
std::optional<EntryCopies> copyEntry(QWidget *parent, Session &session, Messages &messages,
                                     const EntryKind &kind, qint32 id, QDate day);
