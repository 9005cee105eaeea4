#include "journal/entrycopying.h"

#include "session/session.h"
#include "ui/actionrecording.h"
#include "ui/attempt.h"
#include "ui/messages.h"

#include <QCoreApplication>

#include <functional>

namespace {

struct EntryCopying
{
    Q_DECLARE_TR_FUNCTIONS(EntryCopying)
};

/// What a copy is called in the words for Undo and in those that tell of it.
struct Words
{
    QString action;
    QString done;
};

Words wordsFor(const Session &session, const std::vector<DayEntry> &entries, QDate day)
{
    const int count = static_cast<int>(entries.size());
    const QString date = session.text().mediumDate(day);
    if (count > 1)
        return {EntryCopying::tr("Copying %n Entries", nullptr, count),
                EntryCopying::tr("%n entries copied to %1", nullptr, count).arg(date)};
    const QString name = recordName(session, *entries.front().kind->table, entries.front().id);
    return {EntryCopying::tr("Copying %1").arg(name),
            EntryCopying::tr("%1 copied to %2").arg(name, date)};
}

StoredChange additionOf(const std::vector<DayEntry> &entries)
{
    StoredChange change{{}, StoredChange::Kind::Added};
    for (const DayEntry &entry : entries) {
        if (!change.touches(*entry.kind->table))
            change.tables.push_back(entry.kind->table);
    }
    return change;
}

EntryCopies store(Session &session, const std::vector<DayEntry> &originals, int minutes, QDate day)
{
    std::vector<DayEntry> copies;
    copies.reserve(originals.size());
    for (const DayEntry &entry : originals)
        copies.push_back(shifted(entry, minutes).value());
    copies = withNewIdentifiers(session.data(), std::move(copies));
    const Words words = wordsFor(session, originals, day);
    // With the day of the copies: they are what is to be seen going.
    const UndoHistory::Recording recording(session.history(), words.action, day);
    storeCopies(session.data(), originals, copies, day);
    return {std::move(copies), day, words.done};
}

QString causeOfRefusedCopy(const std::exception &error)
{
    const auto *refusal = dynamic_cast<const StoreError *>(&error);
    if (refusal && refusal->kind() == StoreError::Kind::Changed)
        return EntryCopying::tr("Another program has changed an entry meanwhile.");
    return causeOf(error);
}

std::optional<EntryCopies> tryToCopy(QWidget *parent, Session &session, Messages &messages,
                                     const std::function<EntryCopies()> &copy)
{
    std::optional<EntryCopies> copies;
    try {
        copies = copy();
    } catch (const std::exception &error) {
        messages.error(parent, EntryCopying::tr("The copy can't be stored"),
                       causeOfRefusedCopy(error));
        return std::nullopt;
    }
    session.announce(additionOf(copies->entries)); // recorded, for whoever shows what can be undone
    return copies;
}

} // namespace

std::vector<qint32> EntryCopies::ids(const EntryKind &kind) const
{
    std::vector<qint32> ids;
    for (const DayEntry &entry : entries) {
        if (entry.kind == &kind)
            ids.push_back(entry.id);
    }
    return ids;
}

DayEntry openEntry(Session &session, const EntryKind &kind, qint32 id)
{
    try {
        return readEntry(session.data(), kind, id);
    } catch (const StoreError &error) {
        if (error.kind() == StoreError::Kind::Gone)
            session.announce({{kind.table}, StoredChange::Kind::Removed});
        throw;
    }
}

std::optional<EntryCopies> copyEntries(QWidget *parent, Session &session, Messages &messages,
                                       const std::vector<DayEntry> &entries, int minutes, QDate day)
{
    return tryToCopy(parent, session, messages,
                     [&] { return store(session, entries, minutes, day); });
}

std::optional<EntryCopies> copyEntry(QWidget *parent, Session &session, Messages &messages,
                                     const EntryKind &kind, qint32 id, QDate day)
{
    return tryToCopy(parent, session, messages,
                     [&] { return store(session, {openEntry(session, kind, id)}, 0, day); });
}
