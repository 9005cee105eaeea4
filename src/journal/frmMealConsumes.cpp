#include "journal/frmMealConsumes.h"

#include "journal/frmMealConsume.h"
#include "session/session.h"

using namespace Qt::Literals;

frmMealConsumes::frmMealConsumes(Session &session, Messages &messages, QWidget *parent)
    : DayList(session, messages,
              {QStringLiteral("frmMealConsumes"), tr("Meal Consumed List"), tr("&Consume Date"),
               tr("Consume Date")},
              {{{tr("Time")},
                {.header = tr("Meal"), .isLongText = true},
                {tr("Qty"), tr("Quantity"), true},
                {tr("Fat"), tr("Calories from fat"), true},
                {tr("Carboh."), tr("Calories from carbohydrate"), true},
                {tr("Protein"), tr("Calories from protein"), true},
                {tr("Calor."), tr("Calories in all"), true}},
               1,
               {{3, "sFat"_L1}, {4, "sCarbohydrate"_L1}, {5, "sProtein"_L1}, {6, "sCalories"_L1}}},
              parent)
{
}

Recordset &frmMealConsumes::rows() const
{
    return session().data().rsMealConsumeSorted;
}

ListRow frmMealConsumes::currentRow() const
{
    const LocaleText &text = session().text();
    return {rows().integer("MealConsumeID"_L1),
            {text.listTime(rows().time("ConsumeTime"_L1)), rows().text("Name"_L1),
             text.toText(rows().value("Qty"_L1)), rows().text("sFat"_L1),
             rows().text("sCarbohydrate"_L1), rows().text("sProtein"_L1),
             rows().text("sCalories"_L1)}};
}

qint32 frmMealConsumes::editRecord(qint32 id)
{
    frmMealConsume editor(session(), messages(), this);
    editor.run(id);
    return editor.storedId();
}

void frmMealConsumes::removeRecord(qint32 id)
{
    session().data().run(commands::MealConsumeDelete, {Value(id)});
}
