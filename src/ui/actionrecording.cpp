#include "ui/actionrecording.h"

#include "session/session.h"

namespace {

constexpr qsizetype longestName = 40;

// A result set of its own: the windows' may be in use.
Recordset rowsOf(const Session &session, const Command &command, qint32 id)
{
    Recordset rows(session.data().Con, command);
    rows.open({Value(id)});
    return rows;
}

QString nameIn(const Session &session, const Command &command, const schema::Column &column,
               qint32 id)
{
    const Recordset rows = rowsOf(session, command, id);
    return rows.isEof() ? QString() : rows.text(column);
}

QString nameOf(const Session &session, const schema::Table &table, qint32 id)
{
    const auto date = [&](const Recordset &rows, const schema::Column &column) {
        return rows.isEof() ? QString() : session.text().mediumDate(rows.date(column));
    };
    if (&table == &schema::Common::table)
        return ActionRecording::tr("Common Parameters");
    if (&table == &schema::Body::table)
        return ActionRecording::tr("Body Measurement of %1")
            .arg(date(rowsOf(session, commands::Body, id), schema::Body::DateMeasured));
    if (&table == &schema::UserNote::table)
        return ActionRecording::tr("Note of %1")
            .arg(date(rowsOf(session, commands::UserNote, id), schema::UserNote::DateFrom));
    if (&table == &schema::MealCategory::table)
        return nameIn(session, commands::MealCategory, schema::MealCategory::Name, id);
    if (&table == &schema::Meal::table)
        return nameIn(session, commands::Meal, schema::Meal::Name, id);
    if (&table == &schema::Exercise::table)
        return nameIn(session, commands::Exercise, schema::Exercise::Name, id);
    const bool isMeal = &table == &schema::MealConsume::table;
    const Recordset entry =
        rowsOf(session, isMeal ? commands::MealConsume : commands::ExercisePerform, id);
    if (entry.isEof())
        return {};
    return isMeal ? nameOf(session, schema::Meal::table, entry.integer(schema::MealConsume::MealID))
                  : nameOf(session, schema::Exercise::table,
                           entry.integer(schema::ExercisePerform::ExerciseID));
}

} // namespace

QString recordName(const Session &session, const schema::Table &table, qint32 id)
{
    QString name;
    try {
        name = nameOf(session, table, id).simplified();
    } catch (const std::exception &) {
        // The action counts, and not what it is called.
    }
    if (name.isEmpty())
        return ActionRecording::tr("a Record");
    return name.size() <= longestName ? name : name.left(longestName - 1).trimmed() + u'\u2026';
}

ActionRecording::ActionRecording(Session &session, Action action, const schema::Table &table)
    : m_session(session)
    , m_action(action)
    , m_table(table)
    , m_recording(session.history(), words(tr("a Record")), session.currentDate())
{
}

void ActionRecording::name(qint32 id)
{
    m_recording.describe(words(recordName(m_session, m_table, id)));
}

QString ActionRecording::words(const QString &what) const
{
    switch (m_action) {
    case Action::Adding:
        return tr("Adding %1").arg(what);
    case Action::Changing:
        return tr("Changing %1").arg(what);
    case Action::Deleting:
        break;
    }
    return tr("Deleting %1").arg(what);
}
