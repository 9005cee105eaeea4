#include "catalogue/frmMealCategories.h"

#include "catalogue/frmMealCategory.h"
#include "session/session.h"

using namespace Qt::Literals;

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
    return readRows(categories, "MealCategoryID"_L1, {"Name"_L1});
}

std::optional<Reselection> frmMealCategories::edit(qint32 id)
{
    frmMealCategory editor(session(), messages(), this);
    if (!editor.run(id))
        return std::nullopt;
    return Reselection{editor.storedName()};
}
