#include "catalogue/mealcategorychooser.h"

#include "session/session.h"

MealCategoryChooser::MealCategoryChooser(Session &session, QWidget *parent)
    : DataCombo(parent)
    , m_session(session)
{
    setObjectName(QStringLiteral("dcbMealCategory"));
    setAccessibleName(tr("Meal Category"));
}

void MealCategoryChooser::load()
{
    Recordset &categories = m_session.data().rsMealCategorySorted;
    categories.reopenReadable();
    setRows(categories, schema::MealCategory::MealCategoryID, schema::MealCategory::Name);
    categories.close();
}
