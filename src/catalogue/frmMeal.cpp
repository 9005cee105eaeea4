#include "catalogue/frmMeal.h"

#include "catalogue/frmMealCategory.h"
#include "catalogue/mealcategorychooser.h"
#include "catalogue/nutrition.h"
#include "session/session.h"
#include "ui/attempt.h"
#include "ui/elidedlabel.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <algorithm>

using namespace Qt::Literals;

frmMeal::frmMeal(Session &session, Messages &messages, QWidget *parent)
    : CatalogueEditor(session, messages, session.data().rsMeal, QStringLiteral("frmMeal"),
                      tr("Meal Description"), parent)
{
    makeControls();
    setForm(makeForm());
    makeChecks();
    makeConnections();
    dcbMealCategory->load();
}

void frmMeal::makeControls()
{
    dcbMealCategory = new MealCategoryChooser(session(), this);
    btnNewCategory = makeNewButton(QStringLiteral("btnNewCategory"), tr("&New Category"));
    makeNameBox(tr("Meal Name"));
    txtUnit = makeBox(QStringLiteral("txtUnit"), tr("Unit"));
    txtDefaultQty = makeBox(QStringLiteral("txtDefaultQty"), tr("Default Qty"));
    txtIncrement = makeBox(QStringLiteral("txtIncrement"), tr("Increment"));
    txtCalories = makeBox(QStringLiteral("txtCalories"), tr("Calories per Unit"));
    m_weights = {makeBox(QStringLiteral("txtFat"), tr("Fat by Weight")),
                 makeBox(QStringLiteral("txtCarboHydrate"), tr("Carbohydrate by Weight")),
                 makeBox(QStringLiteral("txtProtein"), tr("Protein by Weight"))};
    m_shares = {makeBox(QStringLiteral("txtFatBC"), tr("Fat by Calories")),
                makeBox(QStringLiteral("txtCarboHydrateBC"), tr("Carbohydrate by Calories")),
                makeBox(QStringLiteral("txtProteinBC"), tr("Protein by Calories"))};
    for (const Nutrient n : allNutrients) {
        m_weights[n]->setAccessibleDescription(tr("grams"));
        m_shares[n]->setAccessibleDescription(tr("kcal"));
    }
}

QLayout *frmMeal::makeForm()
{
    lblCalories = new ElidedLabel(this); // it holds the unit
    lblCalories->setBuddy(txtCalories);
    lblCalories->setObjectName(QStringLiteral("lblCalories"));
    showUnit();

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
        makeFrame(tr("By Weight"), {tr("&Fat"), tr("Car&bohydr."), tr("&Protein")}, m_weights));
    frames->addWidget(
        makeFrame(tr("By Calories"), {tr("F&at"), tr("Carboh&ydr."), tr("Pro&tein")}, m_shares));
    form->addLayout(frames, 6, 0, 1, 4);
    form->setColumnStretch(2, 1);
    return form;
}

QGroupBox *frmMeal::makeFrame(const QString &title, const Nutrients<QString> &captions,
                              const Nutrients<QLineEdit *> &boxes)
{
    auto *frame = new QGroupBox(title, this);
    auto *grid = new QGridLayout(frame);
    for (const Nutrient n : allNutrients) {
        const int row = grid->rowCount();
        grid->addWidget(makeLabel(captions[n], boxes[n]), row, 0);
        grid->addWidget(boxes[n], row, 1);
    }
    return frame;
}

void frmMeal::makeChecks()
{
    addCheck(dcbMealCategory, tr("The Meal Category is not specified or specified incorrect"),
             [this] { return dcbMealCategory->boundValue().has_value(); });
    checkSpecified(txtName, tr("Meal Name"));
    checkSpecified(txtUnit, tr("Unit"));
    checkNumericOrEmpty(txtDefaultQty, tr("Default Quantity"));
    checkNumericOrEmpty(txtIncrement, tr("Increment"));
    const Nutrients<QString> names{tr("Fat"), tr("CarboHydrate"), tr("Protein")};
    for (const Nutrient n : allNutrients) {
        checkSpecified(m_weights[n], names[n]);
        checkNumeric(m_weights[n], names[n]);
    }
    checkSpecified(txtCalories, tr("Calories"));
    checkNumeric(txtCalories, tr("Calories"));
}

void frmMeal::makeConnections()
{
    connect(btnNewCategory, &QPushButton::clicked, this,
            attempting(this, messages(), &frmMeal::createCategory));
    connect(txtUnit, &QLineEdit::textChanged, this, &frmMeal::showUnit);
    connect(txtCalories, &QLineEdit::textChanged, this, &frmMeal::splitCalories);
    for (QLineEdit *box : m_weights)
        connect(box, &QLineEdit::textChanged, this, &frmMeal::splitCalories);
}

std::vector<frmMeal::Bound> frmMeal::requiredNumbers() const
{
    std::vector<Bound> numbers = {{txtCalories, schema::Meal::Calories}};
    for (const Nutrient n : allNutrients)
        numbers.push_back({m_weights[n], schema::Meal::weights[n]});
    for (const Nutrient n : allNutrients)
        numbers.push_back({m_shares[n], schema::Meal::shares[n]});
    return numbers;
}

void frmMeal::Populate()
{
    if (source().isEof()) {
        if (m_categoryId != 0)
            dcbMealCategory->setBoundValue(m_categoryId);
        if (m_proposal)
            showProposal();
        return;
    }
    dcbMealCategory->setBoundValue(source().integer(schema::Meal::MealCategoryID));
    showColumn(txtName, schema::Meal::Name);
    showColumn(txtUnit, schema::Meal::Unit);
    showColumn(txtDefaultQty, schema::Meal::DefaultQty);
    showColumn(txtIncrement, schema::Meal::Increment);
    for (const auto &[box, column] : requiredNumbers())
        showColumn(box, column);
}

void frmMeal::showProposal()
{
    const LocaleText &text = session().text();
    txtUnit->setText(m_proposal->unit);
    txtDefaultQty->setText(text.toText(1));
    txtCalories->setText(text.toText(m_proposal->calories));
    for (const Nutrient n : allNutrients)
        m_weights[n]->setText(text.toText(m_proposal->grams[n]));
    showShares();
}

void frmMeal::Gather()
{
    source().set(schema::Meal::MealCategoryID, Value(*dcbMealCategory->boundValue()));
    source().set(schema::Meal::Name, Value(txtName->text()));
    source().set(schema::Meal::Unit, Value(txtUnit->text()));
    source().set(schema::Meal::DefaultQty, numberOrNull(txtDefaultQty));
    source().set(schema::Meal::Increment, numberOrNull(txtIncrement));
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
    dcbMealCategory->load();
    dcbMealCategory->setDisplayedText(m_newCategoryName);
}

void frmMeal::showUnit()
{
    QString unit = txtUnit->text();
    for (QLineEdit *box : {txtDefaultQty, txtIncrement})
        box->setAccessibleDescription(unit);
    QString calories = tr("Ca&lories per %1");
    txtCalories->setAccessibleDescription(
        unit.isEmpty() ? QString() : QString(calories).remove(u'&').arg(unit));
    // The unit is no place for an access key.
    lblCalories->setText(unit.isEmpty() ? tr("Ca&lories per Unit")
                                        : calories.arg(unit.replace(u'&', "&&"_L1)));
}

void frmMeal::splitCalories()
{
    if (!isLoading())
        showShares();
}

void frmMeal::showShares()
{
    const LocaleText &text = session().text();
    const auto calories = text.toCurrency(txtCalories->text());
    const auto grams =
        m_weights.map([&](const QLineEdit *box) { return text.toCurrency(box->text()); });
    if (!calories || std::find(grams.begin(), grams.end(), std::nullopt) != grams.end())
        return;
    try {
        const auto parts =
            caloriesByNutrient(*calories, grams.map([](const auto &value) { return *value; }));
        if (!parts)
            return;
        for (const Nutrient n : allNutrients)
            m_shares[n]->setText(text.toText((*parts)[n]));
    } catch (const OverflowError &) {
        // Beyond any meal: the boxes keep what they show, as they do for what is no number.
    }
}
