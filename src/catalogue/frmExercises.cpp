#include "catalogue/frmExercises.h"

#include "catalogue/frmExercise.h"
#include "session/session.h"

frmExercises::frmExercises(Session &session, Messages &messages, QWidget *parent)
    : CatalogueList(session, messages, session.data().rsExercise, QStringLiteral("frmExercises"),
                    tr("Activities"),
                    {{tr("Exercise Name"), {}},
                     {tr("Calor."), tr("Calories consumed per unit, for your body"), true},
                     {tr("Unit"), tr("What the activity is counted in")},
                     {tr("Def. Qty"), tr("Default quantity: proposed for a new entry"), true}},
                    parent)
{
}

ListRows frmExercises::rows()
{
    Recordset &activities = session().data().rsExerciseSorted;
    activities.reopenReadable();
    return readRows(activities, schema::Exercise::ExerciseID,
                    {schema::Exercise::Name, schema::Exercise::CaloriesConsume,
                     schema::Exercise::Unit, schema::Exercise::DefaultQty});
}

std::optional<Reselection> frmExercises::edit(qint32 id)
{
    frmExercise editor(session(), messages(), this);
    return editor.run(id) ? std::optional(editor.reselection()) : std::nullopt;
}
