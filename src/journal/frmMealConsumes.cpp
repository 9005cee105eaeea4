#include "journal/frmMealConsumes.h"

#include "data/nutrients.h"
#include "journal/frmMealConsume.h"
#include "session/session.h"

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
               {{3, commands::sFat},
                {4, commands::sCarbohydrate},
                {5, commands::sProtein},
                {6, commands::sCalories}}},
              session.data().rsMealConsume, &commands::MealConsumeDelete, parent)
{
}

Recordset &frmMealConsumes::rows() const
{
    return session().data().rsMealConsumeSorted;
}

ListRow frmMealConsumes::currentRow() const
{
    const LocaleText &text = session().text();
    ListRow row{rows().integer(schema::MealConsume::MealConsumeID),
                {text.listTime(rows().time(schema::MealConsume::ConsumeTime)),
                 rows().text(schema::Meal::Name),
                 text.toText(rows().value(schema::MealConsume::Qty))}};
    for (const auto column : commands::consumed)
        row.texts << rows().text(column);
    row.texts << rows().text(commands::sCalories);
    return row;
}

std::optional<Reselection> frmMealConsumes::editRecord(qint32 id)
{
    frmMealConsume editor(session(), messages(), this);
    return editor.run(id) ? std::optional(editor.reselection()) : std::nullopt;
}
