#include "journal/frmExercisePerforms.h"

#include "journal/frmExercisePerform.h"
#include "session/session.h"

#include <QScopeGuard>

using namespace Qt::Literals;

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
               {{4, "sCalories"_L1}}},
              parent)
{
}

Recordset &frmExercisePerforms::rows() const
{
    return session().data().rsExercisePerformSorted;
}

ListRow frmExercisePerforms::currentRow() const
{
    const LocaleText &text = session().text();
    return {rows().integer("ExercisePerformID"_L1),
            {text.listTime(rows().time("timeBeg"_L1)), text.listTime(rows().time("timeEnd"_L1)),
             rows().text("Name"_L1), text.toText(rows().value("Qty"_L1)),
             rows().text("sCalories"_L1)}};
}

qint32 frmExercisePerforms::editRecord(qint32 id)
{
    frmExercisePerform editor(session(), messages(), this);
    editor.run(id);
    return editor.storedId();
}

void frmExercisePerforms::removeRecord(qint32 id)
{
    Recordset &row = session().data().rsExercisePerform;
    const auto close = qScopeGuard([&row] { row.close(); });
    row.reopen({Value(id)});
    if (!row.isEof())
        row.remove();
}
