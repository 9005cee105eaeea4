#include "journal/frmMealConsume.h"

#include "catalogue/frmMeal.h"
#include "catalogue/mealcategorychooser.h"
#include "journal/consumptionfigures.h"
#include "journal/quantitysteps.h"
#include "session/session.h"
#include "ui/attempt.h"
#include "ui/datacombo.h"
#include "ui/fieldmessages.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimeEdit>

namespace {

constexpr Currency usualIncrement = Currency::fromTenThousandths(Currency::unitsPerOne);

Currency incrementOf(const Value &stored)
{
    try {
        return stored.isNull() ? usualIncrement : stored.toCurrency();
    } catch (const OverflowError &) {
        return usualIncrement; // no step that anybody could take
    }
}

} // namespace

frmMealConsume::frmMealConsume(Session &session, Messages &messages, QWidget *parent)
    : JournalEntryEditor(session, messages, session.data().rsMealConsume,
                         schema::MealConsume::ConsumeDate, QStringLiteral("frmMealConsume"),
                         tr("Meal Consumed"), parent)
{
    makeControls();
    setForm(makeForm());
    makeChecks();
    connect(dcbMealCategory, &DataCombo::boundValueChanged, this,
            attempting(this, messages, &frmMealConsume::categoryChanged));
    connect(dcbMeal, &DataCombo::rowsNeeded, this,
            attempting(this, messages, &frmMealConsume::offerMeals));
    connect(dcbMeal, &DataCombo::boundValueChanged, this, &frmMealConsume::mealChanged);
    // From the list, the meal that is chosen already may be taken once more.
    connect(dcbMeal, &QComboBox::activated, this, &frmMealConsume::showCategoryOfMeal);
    dcbMealCategory->load();
}

frmMealConsume::~frmMealConsume()
{
    session().data().rsMealAll.close(); // the whole catalogue need not be kept
}

void frmMealConsume::makeControls()
{
    dcbMealCategory = new MealCategoryChooser(session(), this);
    dcbMeal = makeChooser(QStringLiteral("dcbMeal"), tr("Meal"));
    btnNewMeal = makeNewButton(QStringLiteral("btnNewMeal"), tr("&New Meal"));
    connect(btnNewMeal, &QPushButton::clicked, this,
            attempting(this, messages(), &frmMealConsume::createMeal));
    dtpTime = makeTime(QStringLiteral("dtpTime"), tr("Time"));
    makeQuantity();
}

QLayout *frmMealConsume::makeForm()
{
    auto *form = new QGridLayout;
    form->addWidget(makeLabel(tr("Meal Cate&gory"), dcbMealCategory), 0, 0);
    form->addWidget(dcbMealCategory, 0, 1, 1, 2);
    form->addWidget(makeLabel(tr("&Meal"), dcbMeal), 1, 0);
    form->addWidget(dcbMeal, 1, 1, 1, 2);
    form->addWidget(btnNewMeal, 1, 3);
    form->addWidget(makeLabel(tr("&Time"), dtpTime), 2, 0);
    form->addWidget(dtpTime, 2, 1);
    form->addWidget(makeLabel(tr("&Quantity"), txtQty), 3, 0);
    form->addLayout(quantityLayout(), 3, 1);
    form->addWidget(lblUnit, 3, 2, 1, 2);
    form->addWidget(makeFigures(), 4, 0, 1, 4);
    addTellTales(form);
    form->setColumnStretch(2, 1);
    return form;
}

QGroupBox *frmMealConsume::makeFigures()
{
    auto *box = new QGroupBox(tr("Calories"), this);
    auto *grid = new QGridLayout(box);
    m_figures = {addFigure(grid, tr("Fat Cal."), QStringLiteral("lblFat")),
                 addFigure(grid, tr("Carboh. Cal."), QStringLiteral("lblCarboHydrate")),
                 addFigure(grid, tr("Protein Cal."), QStringLiteral("lblProtein"))};
    lblCalories = addFigure(grid, tr("Calories Total"), QStringLiteral("lblCalories"));
    return box;
}

void frmMealConsume::makeChecks()
{
    addCheck(dcbMealCategory, tr("The Meal Category is not specified or specified incorrect"),
             [this] { return dcbMealCategory->boundValue().has_value(); });
    addCheck(dcbMeal, shouldBeSpecified(tr("Meal")),
             [this] { return dcbMeal->boundValue().has_value(); });
    checkTyped(dtpTime, tr("Time"));
    checkQuantity();
}

void frmMealConsume::Populate()
{
    JournalEntryEditor::Populate();
    dtpTime->setTime(session().currentTime());
    if (appendsRecord() || source().isEof())
        return;
    // The category brings its meals; only then can the meal be chosen among them.
    dcbMealCategory->setBoundValue(source().integer(schema::Meal::MealCategoryID));
    dcbMeal->setBoundValue(source().integer(schema::MealConsume::MealID));
    dtpTime->setTime(source().time(schema::MealConsume::ConsumeTime));
    txtQty->setText(session().text().toText(source().value(schema::MealConsume::Qty)));
}

void frmMealConsume::categoryChanged()
{
    m_replacedCategory.reset();
    if (!dcbMealCategory->boundValue())
        return; // every meal is offered once the chooser is entered
    readMeals(session().data().rsMealForCategory);
    m_meals->moveFirst();
    if (m_meals->isEof())
        mealChanged();
    else
        dcbMeal->setBoundValue(m_meals->integer(schema::Meal::MealID));
}

// Only now, since most meals are chosen by their category and reading all takes longer. The
// category that a meal has brought counts as chosen from here on.
void frmMealConsume::offerMeals()
{
    const bool all = !dcbMealCategory->boundValue();
    if (all == offersAll())
        return;
    const std::optional<qint32> chosen = dcbMeal->boundValue();
    {
        // The meal stays, and with it the quantity, which may not be the usual one any more.
        const QSignalBlocker blocker(dcbMeal);
        const QString shown = dcbMeal->displayedText();
        readMeals(all ? session().data().rsMealAll : session().data().rsMealForCategory);
        dcbMeal->setDisplayedText(shown);
    }
    if (dcbMeal->boundValue() != chosen)
        mealChanged(); // another program has deleted or moved it
    else if (chosen)
        m_meals->moveTo(schema::Meal::MealID, *chosen);
}

void frmMealConsume::readMeals(Recordset &meals)
{
    const bool all = &meals == &session().data().rsMealAll;
    if (all)
        meals.reopenReadable();
    else
        meals.reopenReadable({Value(*dcbMealCategory->boundValue())});
    m_meals = &meals;
    dcbMeal->setRows(meals, schema::Meal::MealID, schema::Meal::Name,
                     all ? &commands::category : nullptr);
}

bool frmMealConsume::offersAll() const
{
    return m_meals == &session().data().rsMealAll;
}

void frmMealConsume::mealChanged()
{
    const std::optional<qint32> meal = dcbMeal->boundValue();
    const bool chosen = meal && m_meals && m_meals->moveTo(schema::Meal::MealID, *meal);
    m_increment = chosen ? incrementOf(m_meals->value(schema::Meal::Increment)) : usualIncrement;
    showCategoryOfMeal();
    showChoice(chosen ? m_meals : nullptr);
}

// What was typed there comes back when the meal is given up, as by one more letter of its name.
void frmMealConsume::showCategoryOfMeal()
{
    if (!offersAll())
        return;
    const QSignalBlocker blocker(dcbMealCategory); // it would choose its first meal
    if (dcbMeal->boundValue()) {
        if (!m_replacedCategory)
            m_replacedCategory = dcbMealCategory->displayedText();
        dcbMealCategory->setBoundValue(m_meals->integer(schema::Meal::MealCategoryID));
    } else if (m_replacedCategory) {
        dcbMealCategory->setDisplayedText(*m_replacedCategory);
        m_replacedCategory.reset();
    }
}

void frmMealConsume::createMeal()
{
    frmMeal editor(session(), messages(), this);
    editor.setCategoryId(dcbMealCategory->boundValue().value_or(0));
    editor.run(0);
    if (editor.categoriesChanged()) {
        dcbMealCategory->load();
        dcbMealCategory->setDisplayedText(editor.newCategoryName());
    }
    if (!editor.isStored())
        return;
    // Either way the category's meals are read anew, the new one among them.
    if (dcbMealCategory->boundValue() != editor.categoryId())
        dcbMealCategory->setBoundValue(editor.categoryId());
    else
        categoryChanged();
    dcbMeal->setDisplayedText(editor.storedName());
}

void frmMealConsume::recalculate()
{
    for (QLabel *figure : m_figures)
        figure->clear();
    lblCalories->clear();
    const std::optional<Currency> consumed = quantity();
    if (!consumed || !dcbMeal->boundValue() || !m_meals || m_meals->isEof())
        return;
    try {
        const auto perUnit =
            schema::Meal::shares.map([this](auto column) { return m_meals->number(column); });
        const Nutrients<qint64> figures = consumptionFigures(*consumed, perUnit);
        for (const Nutrient n : allNutrients)
            m_figures[n]->setText(QString::number(figures[n]));
        lblCalories->setText(QString::number(figures.sum()));
    } catch (const OverflowError &) {
        // Figures too large to be any person's meal stay blank; nothing is stored by showing them.
    }
}

QString frmMealConsume::steppedQuantity(bool up) const
{
    const LocaleText &text = session().text();
    if (up)
        return text.toText(mealStepUp(*quantity(), m_increment));
    const auto single = static_cast<float>(*text.toDouble(txtQty->text()));
    return text.toText(mealStepDown(single, m_increment));
}

void frmMealConsume::Gather()
{
    JournalEntryEditor::Gather();
    source().set(schema::MealConsume::MealID, Value(*dcbMeal->boundValue()));
    source().set(schema::MealConsume::ConsumeTime, Value(dtpTime->time()));
}

QTime frmMealConsume::entryTime() const
{
    return dtpTime->time();
}

QString frmMealConsume::entryName() const
{
    return dcbMeal->displayedText();
}

void frmMealConsume::clearChoosers()
{
    dcbMeal->setBoundValue(std::nullopt);
    dcbMealCategory->setBoundValue(std::nullopt);
}
