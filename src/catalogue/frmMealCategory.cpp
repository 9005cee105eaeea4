#include "catalogue/frmMealCategory.h"

#include "session/session.h"

#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>

frmMealCategory::frmMealCategory(Session &session, Messages &messages, QWidget *parent)
    : CatalogueEditor(session, messages, session.data().rsMealCategory,
                      QStringLiteral("frmMealCategory"), tr("Meal Category"), parent)
{
    makeNameBox(tr("Meal Category Name"));
    auto *form = new QFormLayout;
    form->addRow(makeLabel(tr("Meal Category &Name"), txtName), txtName);
    setForm(form);
    checkSpecified(txtName, tr("Name"));
}

void frmMealCategory::Populate()
{
    if (!source().isEof())
        showColumn(txtName, schema::MealCategory::Name);
}

void frmMealCategory::Gather()
{
    source().set(schema::MealCategory::Name, Value(txtName->text()));
}

QString frmMealCategory::refusedStoreMessage() const
{
    return tr("Can't store this record in database. Please check whether there is already Meal "
              "Category with the same name in the database");
}

QString frmMealCategory::takenNameCause() const
{
    return tr("A meal category of this name exists already.");
}
