#include "catalogue/frmMealCategories.h"

#include "catalogue/frmMealCategory.h"
#include "session/session.h"

frmMealCategories::frmMealCategories(Session &session, Messages &messages, QWidget *parent)
    : CatalogueList(session, messages, session.data().rsMealCategory,
                    QStringLiteral("frmMealCategories"), tr("Meal Categories"),
                    {{tr("Meal Category Name"), {}}}, parent)
{
}

ListRows frmMealCategories::rows()
{
    Recordset &categories = session().data().rsMealCategorySorted;
    categories.reopenReadable();
    return readRows(categories, schema::MealCategory::MealCategoryID, {schema::MealCategory::Name});
}

std::optional<Reselection> frmMealCategories::edit(qint32 id)
{
    frmMealCategory editor(session(), messages(), this);
    return editor.run(id) ? std::optional(editor.reselection()) : std::nullopt;
}
