#include "catalogue/frmMeal.h"

#include "catalogue/frmMealCategory.h"
#include "catalogue/nutrition.h"
#include "session/session.h"
#include "ui/attempt.h"
#include "ui/datacombo.h"
#include "ui/elidedlabel.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

using namespace Qt::Literals;

frmMeal::frmMeal(Session &session, Messages &messages, QWidget *parent)
    : CatalogueEditor(session, messages, session.data().rsMeal, QStringLiteral("frmMeal"),
                      tr("Meal Description"), parent)
{
    makeControls();
    setForm(makeForm());
    makeChecks();
    makeConnections();
    loadCategories();
}

void frmMeal::makeControls()
{
    dcbMealCategory = new DataCombo(this);
    dcbMealCategory->setObjectName(QStringLiteral("dcbMealCategory"));
    dcbMealCategory->setAccessibleName(tr("Meal Category"));
    btnNewCategory = new QPushButton(tr("&New Category"), this);
    btnNewCategory->setObjectName(QStringLiteral("btnNewCategory"));
    btnNewCategory->setToolTip(tr("New record"));
    btnNewCategory->setAutoDefault(false);
    makeNameBox(tr("Meal Name"));
    txtUnit = makeBox(QStringLiteral("txtUnit"), tr("Unit"));
    txtDefaultQty = makeBox(QStringLiteral("txtDefaultQty"), tr("Default Qty"));
    txtIncrement = makeBox(QStringLiteral("txtIncrement"), tr("Increment"));
    txtCalories = makeBox(QStringLiteral("txtCalories"), tr("Calories per Unit"));
    txtFat = makeBox(QStringLiteral("txtFat"), tr("Fat by Weight"));
    txtCarboHydrate = makeBox(QStringLiteral("txtCarboHydrate"), tr("Carbohydrate by Weight"));
    txtProtein = makeBox(QStringLiteral("txtProtein"), tr("Protein by Weight"));
    txtFatBC = makeBox(QStringLiteral("txtFatBC"), tr("Fat by Calories"));
    txtCarboHydrateBC =
        makeBox(QStringLiteral("txtCarboHydrateBC"), tr("Carbohydrate by Calories"));
    txtProteinBC = makeBox(QStringLiteral("txtProteinBC"), tr("Protein by Calories"));
}

QLayout *frmMeal::makeForm()
{
    lblCalories = new ElidedLabel(this); // it holds the unit
    lblCalories->setBuddy(txtCalories);
    lblCalories->setObjectName(QStringLiteral("lblCalories"));
    showCaloriesLabel();

    auto *form = new QGridLayout;
    form->addWidget(makeLabel(tr("Meal Cate&gory"), dcbMealCategory), 0, 0);
    form->addWidget(dcbMealCategory, 0, 1, 1, 2);
    form->addWidget(btnNewCategory, 0, 3);
    form->addWidget(makeLabel(tr("&Meal Name"), txtName), 1, 0);
    form->addWidget(txtName, 1, 1, 1, 3);
    form->addWidget(makeLabel(tr("&Unit"), txtUnit), 2, 0);
    form->addWidget(txtUnit, 2, 1, 1, 2);
    form->addWidget(makeLabel(tr("&Default Qty"), txtDefaultQty), 3, 0);
    form->addWidget(txtDefaultQty, 3, 1);
    form->addWidget(makeLabel(tr("&Increment"), txtIncrement), 4, 0);
    form->addWidget(txtIncrement, 4, 1);
    form->addWidget(lblCalories, 5, 0);
    form->addWidget(txtCalories, 5, 1);

    auto *frames = new QHBoxLayout;
    frames->addWidget(
        makeFrame(tr("By Weight"),
                  {makeLabel(tr("&Fat"), txtFat), makeLabel(tr("Car&bohydr."), txtCarboHydrate),
                   makeLabel(tr("&Protein"), txtProtein)},
                  {txtFat, txtCarboHydrate, txtProtein}));
    frames->addWidget(
        makeFrame(tr("By Calories"),
                  {makeLabel(tr("F&at"), txtFatBC), makeLabel(tr("Carboh&ydr."), txtCarboHydrateBC),
                   makeLabel(tr("Pro&tein"), txtProteinBC)},
                  {txtFatBC, txtCarboHydrateBC, txtProteinBC}));
    form->addLayout(frames, 6, 0, 1, 4);
    form->setColumnStretch(2, 1);
    return form;
}

QGroupBox *frmMeal::makeFrame(const QString &title, std::initializer_list<QLabel *> labels,
                              std::initializer_list<QLineEdit *> boxes)
{
    auto *frame = new QGroupBox(title, this);
    auto *grid = new QGridLayout(frame);
    int row = 0;
    for (QLabel *label : labels)
        grid->addWidget(label, row++, 0);
    row = 0;
    for (QLineEdit *box : boxes)
        grid->addWidget(box, row++, 1);
    return frame;
}

void frmMeal::makeChecks()
{
    addCheck(dcbMealCategory, tr("The Meal Category is not specified or specified incorrect"),
             [this] { return dcbMealCategory->boundValue().has_value(); });
    checkSpecified(txtName, tr("The Meal Name should be specified"));
    checkSpecified(txtUnit, tr("The Unit should be specified"));
    checkNumericOrEmpty(txtDefaultQty, tr("The Default Quantity field contains illegal data"));
    checkNumericOrEmpty(txtIncrement, tr("The Increment field contains illegal data"));
    checkSpecified(txtFat, tr("The Fat should be specified"));
    checkNumeric(txtFat, tr("The Fat field contains illegal data"));
    checkSpecified(txtCarboHydrate, tr("The CarboHydrate should be specified"));
    checkNumeric(txtCarboHydrate, tr("The CarboHydrate field contains illegal data"));
    checkSpecified(txtProtein, tr("The Protein should be specified"));
    checkNumeric(txtProtein, tr("The Protein field contains illegal data"));
    checkSpecified(txtCalories, tr("The Calories should be specified"));
    checkNumeric(txtCalories, tr("The Calories field contains illegal data"));
}

void frmMeal::makeConnections()
{
    connect(btnNewCategory, &QPushButton::clicked, this,
            attempting(this, messages(), &frmMeal::createCategory));
    connect(txtUnit, &QLineEdit::textChanged, this, &frmMeal::showCaloriesLabel);
    for (QLineEdit *box : {txtCalories, txtFat, txtCarboHydrate, txtProtein})
        connect(box, &QLineEdit::textChanged, this, &frmMeal::splitCalories);
}

void frmMeal::loadCategories()
{
    Recordset &categories = session().data().rsMealCategorySorted;
    categories.reopenReadable();
    dcbMealCategory->setRows(categories, "MealCategoryID"_L1, "Name"_L1);
    categories.close();
}

std::vector<frmMeal::Bound> frmMeal::requiredNumbers() const
{
    return {{txtCalories, "Calories"_L1},
            {txtFat, "Fat"_L1},
            {txtCarboHydrate, "Carbohydrate"_L1},
            {txtProtein, "Protein"_L1},
            {txtFatBC, "FatBC"_L1},
            {txtProteinBC, "ProteinBC"_L1},
            {txtCarboHydrateBC, "CarbohydrateBC"_L1}};
}

void frmMeal::Populate()
{
    if (source().isEof()) {
        if (m_categoryId != 0)
            dcbMealCategory->setBoundValue(m_categoryId);
        return;
    }
    dcbMealCategory->setBoundValue(source().integer("MealCategoryID"_L1));
    showColumn(txtName, "Name"_L1);
    showColumn(txtUnit, "Unit"_L1);
    showColumn(txtDefaultQty, "DefaultQty"_L1);
    showColumn(txtIncrement, "Increment"_L1);
    for (const auto &[box, column] : requiredNumbers())
        showColumn(box, column);
}

void frmMeal::Gather()
{
    source().set("MealCategoryID"_L1, Value(*dcbMealCategory->boundValue()));
    source().set("Name"_L1, Value(txtName->text()));
    source().set("Unit"_L1, Value(txtUnit->text()));
    source().set("DefaultQty"_L1, numberOrNull(txtDefaultQty));
    source().set("Increment"_L1, numberOrNull(txtIncrement));
    for (const auto &[box, column] : requiredNumbers())
        source().set(column, Value(number(box)));
}

void frmMeal::recordStored()
{
    m_categoryId = *dcbMealCategory->boundValue();
    CatalogueEditor::recordStored();
}

QString frmMeal::refusedStoreMessage() const
{
    return tr("Can't store this record in database. Please check whether there is already Meal "
              "with the same name in the database");
}

QString frmMeal::takenNameCause() const
{
    return tr("A meal of this name exists already.");
}

void frmMeal::createCategory()
{
    frmMealCategory editor(session(), messages(), this);
    if (!editor.run(0))
        return;
    m_newCategoryName = editor.storedName();
    m_categoriesChanged = true;
    loadCategories();
    dcbMealCategory->setDisplayedText(m_newCategoryName);
}

void frmMeal::showCaloriesLabel()
{
    QString unit = txtUnit->text();
    if (unit.isEmpty()) {
        lblCalories->setText(tr("Ca&lories per Unit"));
        return;
    }
    // The unit is no place for an access key.
    lblCalories->setText(tr("Ca&lories per %1").arg(unit.replace(u'&', "&&"_L1)));
}

void frmMeal::splitCalories()
{
    if (isLoading())
        return;
    const LocaleText &text = session().text();
    const auto calories = text.toCurrency(txtCalories->text());
    const auto fat = text.toCurrency(txtFat->text());
    const auto carbohydrate = text.toCurrency(txtCarboHydrate->text());
    const auto protein = text.toCurrency(txtProtein->text());
    if (!calories || !fat || !carbohydrate || !protein)
        return;
    try {
        const auto parts = caloriesByNutrient(*calories, *fat, *carbohydrate, *protein);
        if (!parts)
            return;
        txtFatBC->setText(text.toText(parts->fat));
        txtProteinBC->setText(text.toText(parts->protein));
        txtCarboHydrateBC->setText(text.toText(parts->carbohydrate));
    } catch (const OverflowError &) {
        // Beyond any meal: the boxes keep what they show, as they do for what is no number.
    }
}
