#include "catalogue/frmExercises.h"

#include "catalogue/frmExercise.h"
#include "session/session.h"

using namespace Qt::Literals;

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
    return readRows(activities, "ExerciseID"_L1,
                    {"Name"_L1, "CaloriesConsume"_L1, "Unit"_L1, "DefaultQty"_L1});
}

std::optional<Reselection> frmExercises::edit(qint32 id)
{
    frmExercise editor(session(), messages(), this);
    if (!editor.run(id))
        return std::nullopt;
    return Reselection{editor.storedName()};
}
