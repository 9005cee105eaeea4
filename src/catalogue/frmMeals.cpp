#include "catalogue/frmMeals.h"

#include "catalogue/frmMeal.h"
#include "catalogue/mealcategorychooser.h"
#include "session/session.h"
#include "ui/attempt.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QScopedValueRollback>

frmMeals::frmMeals(Session &session, Messages &messages, QWidget *parent)
    : CatalogueList(session, messages, session.data().rsMeal, QStringLiteral("frmMeals"),
                    tr("Meals"),
                    {{tr("Meal Name"), {}},
                     {tr("Unit"), tr("What the meal is counted in")},
                     {tr("Fat"), tr("Fat per unit"), true},
                     {tr("CarboHyd."), tr("Carbohydrate per unit"), true},
                     {tr("Protein"), tr("Protein per unit"), true},
                     {tr("Calor."), tr("Calories per unit"), true},
                     {tr("Def."), tr("Default quantity: proposed for a new entry"), true},
                     {tr("Increm."), tr("Increment: step by which the quantity is changed"), true}},
                    parent)
    , dcbMealCategory(new MealCategoryChooser(session, this))
{
    dcbMealCategory->setKeepsChoice(true); // the list always shows a category
    auto *label = new QLabel(tr("Meal Cate&gory"), this);
    label->setBuddy(dcbMealCategory);
    auto *head = new QHBoxLayout;
    head->addWidget(label);
    head->addWidget(dcbMealCategory);
    head->addStretch();
    setHead(head);
    connect(dcbMealCategory, &DataCombo::boundValueChanged, this,
            attempting(this, messages, &frmMeals::categoryChanged));
}

void frmMeals::load()
{
    dcbMealCategory->load();
    if (dcbMealCategory->count() > 0)
        dcbMealCategory->setBoundValue(dcbMealCategory->itemData(0).toInt());
    // The names of another category may be longer.
    resize(sizeHint().expandedTo({fontMetrics().averageCharWidth() * 110, 0}));
}

void frmMeals::categoryChanged()
{
    if (!m_switchingCategory)
        list()->refresh();
}

ListRows frmMeals::rows()
{
    const std::optional<qint32> category = dcbMealCategory->boundValue();
    if (!category)
        return {};
    Recordset &meals = session().data().rsMealSorted;
    meals.reopenReadable({Value(*category)});
    return readRows(meals, schema::Meal::MealID,
                    {schema::Meal::Name, schema::Meal::Unit, schema::Meal::Fat,
                     schema::Meal::Carbohydrate, schema::Meal::Protein, schema::Meal::Calories,
                     schema::Meal::DefaultQty, schema::Meal::Increment});
}

std::optional<Reselection> frmMeals::edit(qint32 id)
{
    frmMeal editor(session(), messages(), this);
    editor.setCategoryId(dcbMealCategory->boundValue().value_or(0));
    const bool stored = editor.run(id);
    if (editor.categoriesChanged()) {
        dcbMealCategory->load();
        dcbMealCategory->setDisplayedText(editor.newCategoryName());
    }
    if (!stored)
        return std::nullopt;
    if (dcbMealCategory->boundValue() != editor.categoryId()) {
        const QScopedValueRollback switching(m_switchingCategory, true);
        dcbMealCategory->setBoundValue(editor.categoryId());
    }
    return editor.reselection();
}
