#include "journal/frmExercisePerforms.h"

#include "journal/frmExercisePerform.h"
#include "session/session.h"

frmExercisePerforms::frmExercisePerforms(Session &session, Messages &messages, QWidget *parent)
    : DayList(session, messages,
              {QStringLiteral("frmExercisePerforms"), tr("Activities Performed List"),
               tr("Date &Performed"), tr("Date Performed")},
              {{{tr("Begin")},
                {tr("End")},
                {.header = tr("Exercise"), .isLongText = true},
                {tr("Qty"), tr("Quantity"), true},
                {tr("Calories"), tr("Calories consumed"), true}},
               2,
               {{4, commands::sCalories}}},
              session.data().rsExercisePerform, nullptr, parent)
{
}

Recordset &frmExercisePerforms::rows() const
{
    return session().data().rsExercisePerformSorted;
}

ListRow frmExercisePerforms::currentRow() const
{
    const LocaleText &text = session().text();
    return {rows().integer(schema::ExercisePerform::ExercisePerformID),
            {text.listTime(rows().time(schema::ExercisePerform::timeBeg)),
             text.listTime(rows().time(schema::ExercisePerform::timeEnd)),
             rows().text(schema::Exercise::Name),
             text.toText(rows().value(schema::ExercisePerform::Qty)),
             rows().text(commands::sCalories)}};
}

std::optional<Reselection> frmExercisePerforms::editRecord(qint32 id)
{
    frmExercisePerform editor(session(), messages(), this);
    return editor.run(id) ? std::optional(editor.reselection()) : std::nullopt;
}
