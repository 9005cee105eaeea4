#include "journal/frmMealConsume.h"

#include "data/identifiers.h"
#include "journal/consumptionfigures.h"
#include "journal/quantitysteps.h"
#include "session/session.h"
#include "ui/datacombo.h"
#include "ui/icons.h"
#include "ui/pickers.h"
#include "ui/updownspinner.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::Literals;

frmMealConsume::frmMealConsume(Session &session, Messages &messages, QWidget *parent)
    : RecordEditor(session, messages, session.data().rsMealConsume,
                   QStringLiteral("frmMealConsume"), tr("Meal Consumed"), parent)
{
    makeControls();
    setForm(makeForm());
    makeChecks();
    makeConnections();
    loadCategories();
}

void frmMealConsume::makeControls()
{
    dcbMealCategory = new DataCombo(this);
    dcbMealCategory->setObjectName(QStringLiteral("dcbMealCategory"));
    dcbMealCategory->setAccessibleName(tr("Meal Category"));
    dcbMeal = new DataCombo(this);
    dcbMeal->setObjectName(QStringLiteral("dcbMeal"));
    dcbMeal->setAccessibleName(tr("Meal"));
    btnNewMeal = new QPushButton(tr("&New Meal"), this);
    btnNewMeal->setObjectName(QStringLiteral("btnNewMeal"));
    btnNewMeal->setToolTip(tr("New record"));
    btnNewMeal->setAutoDefault(false);
    btnNewMeal->setEnabled(false); // until there is a meal editor
    dtpTime = makeTimePicker(session(), QStringLiteral("dtpTime"), this);
    dtpTime->setAccessibleName(tr("Time"));
    txtQty = makeBox(QStringLiteral("txtQty"), tr("Quantity"));
    updSpin = new UpDownSpinner(txtQty, tr("Quantity"), this);
    updSpin->setObjectName(QStringLiteral("updSpin"));
    lblUnit = new QLabel(this);
    lblUnit->setObjectName(QStringLiteral("lblUnit"));
}

QLayout *frmMealConsume::makeForm()
{
    auto *quantity = new QHBoxLayout;
    quantity->setSpacing(0);
    quantity->addWidget(txtQty);
    quantity->addWidget(updSpin);

    auto *form = new QGridLayout;
    form->addWidget(makeLabel(tr("Meal Cate&gory"), dcbMealCategory), 0, 0);
    form->addWidget(dcbMealCategory, 0, 1, 1, 2);
    form->addWidget(makeLabel(tr("&Meal"), dcbMeal), 1, 0);
    form->addWidget(dcbMeal, 1, 1, 1, 2);
    form->addWidget(btnNewMeal, 1, 3);
    form->addWidget(makeLabel(tr("&Time"), dtpTime), 2, 0);
    form->addWidget(dtpTime, 2, 1);
    form->addWidget(makeLabel(tr("&Quantity"), txtQty), 3, 0);
    form->addLayout(quantity, 3, 1);
    form->addWidget(lblUnit, 3, 2, 1, 2);
    form->addWidget(makeFigures(), 4, 0, 1, 4);
    form->setColumnStretch(2, 1);
    return form;
}

QGroupBox *frmMealConsume::makeFigures()
{
    auto *box = new QGroupBox(tr("Calories"), this);
    auto *grid = new QGridLayout(box);
    int column = 0;
    const auto add = [&](const QString &caption, const QString &name) {
        auto *figure = new QLabel(box);
        figure->setObjectName(name);
        figure->setAccessibleName(caption);
        figure->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        QFont bold = figure->font();
        bold.setBold(true);
        figure->setFont(bold);
        auto *label = new QLabel(caption, box);
        label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        grid->addWidget(label, 0, column);
        grid->addWidget(figure, 1, column);
        grid->setColumnStretch(column++, 1);
        return figure;
    };
    lblFat = add(tr("Fat Cal."), QStringLiteral("lblFat"));
    lblCarboHydrate = add(tr("Carboh. Cal."), QStringLiteral("lblCarboHydrate"));
    lblProtein = add(tr("Protein Cal."), QStringLiteral("lblProtein"));
    lblCalories = add(tr("Calories Total"), QStringLiteral("lblCalories"));
    return box;
}

void frmMealConsume::makeChecks()
{
    addCheck(dcbMealCategory, tr("The Meal Category is not specified or specified incorrect"),
             [this] { return dcbMealCategory->boundValue().has_value(); });
    addCheck(dcbMeal, tr("The Meal should be specified"),
             [this] { return dcbMeal->boundValue().has_value(); });
    checkSpecified(txtQty, tr("The Quantity should be specified"));
    checkNumeric(txtQty, tr("The Quantity field contains illegal data"));
}

void frmMealConsume::makeConnections()
{
    connect(dcbMealCategory, &DataCombo::boundValueChanged, this, &frmMealConsume::categoryChanged);
    connect(dcbMeal, &DataCombo::boundValueChanged, this, &frmMealConsume::mealChanged);
    connect(txtQty, &QLineEdit::textChanged, this, &frmMealConsume::recalculate);
    connect(updSpin, &UpDownSpinner::upPressed, this, [this] { stepQuantity(true); });
    connect(updSpin, &UpDownSpinner::downPressed, this, [this] { stepQuantity(false); });
}

void frmMealConsume::loadCategories()
{
    Recordset &categories = session().data().rsMealCategorySorted;
    categories.reopen();
    dcbMealCategory->setRows(categories, "MealCategoryID"_L1, "Name"_L1);
    categories.close();
}

void frmMealConsume::Populate()
{
    dtpTime->setTime(session().currentTime());
    if (m_addMode)
        enterAddMode();
    if (appendsRecord() || source().isEof())
        return;
    // The category brings its meals; only then can the meal be chosen among them.
    dcbMealCategory->setBoundValue(source().integer("MealCategoryID"_L1));
    dcbMeal->setBoundValue(source().integer("MealID"_L1));
    dtpTime->setTime(source().time("ConsumeTime"_L1));
    txtQty->setText(session().text().toText(source().currency("Qty"_L1)));
}

void frmMealConsume::enterAddMode()
{
    btnOK->setText(tr("&Add"));
    btnOK->setIcon(icon(QStringLiteral("Plus"), palette()));
    btnCancel->setText(tr("&Close"));
    btnCancel->setIcon(icon(QStringLiteral("Exit"), palette()));
}

void frmMealConsume::categoryChanged()
{
    const std::optional<qint32> category = dcbMealCategory->boundValue();
    if (!category)
        return;
    Recordset &meals = session().data().rsMealForCategory;
    meals.reopen({Value(*category)});
    dcbMeal->setRows(meals, "MealID"_L1, "Name"_L1);
    meals.moveFirst();
    if (meals.isEof())
        mealChanged();
    else
        dcbMeal->setBoundValue(meals.integer("MealID"_L1));
}

void frmMealConsume::mealChanged()
{
    Recordset &meals = session().data().rsMealForCategory;
    const std::optional<qint32> meal = dcbMeal->boundValue();
    if (!meal || !meals.isOpen() || !meals.moveTo("MealID"_L1, *meal)) {
        lblUnit->clear();
        txtQty->clear();
        m_increment = Currency::fromInteger(1);
        recalculate();
        return;
    }
    lblUnit->setText(meals.text("Unit"_L1));
    m_increment =
        meals.isNull("Increment"_L1) ? Currency::fromInteger(1) : meals.currency("Increment"_L1);
    if (!isLoading())
        txtQty->setText(meals.isNull("DefaultQty"_L1)
                            ? QStringLiteral("1")
                            : session().text().toText(meals.currency("DefaultQty"_L1)));
    recalculate();
}

void frmMealConsume::recalculate()
{
    Recordset &meals = session().data().rsMealForCategory;
    const std::optional<Currency> quantity = session().text().toCurrency(txtQty->text());
    const bool known = quantity && dcbMeal->boundValue() && meals.isOpen() && !meals.isEof();
    const auto show = [](QLabel *label, qint64 figure) { label->setText(QString::number(figure)); };
    for (QLabel *label : {lblFat, lblCarboHydrate, lblProtein, lblCalories})
        label->clear();
    if (!known)
        return;
    try {
        const ConsumptionFigures figures =
            consumptionFigures(*quantity, meals.number("FatBC"_L1),
                               meals.number("CarbohydrateBC"_L1), meals.number("ProteinBC"_L1));
        show(lblFat, figures.fat);
        show(lblCarboHydrate, figures.carbohydrate);
        show(lblProtein, figures.protein);
        show(lblCalories, figures.total());
    } catch (const OverflowError &) {
        // Figures too large to be any person's meal stay blank; nothing is stored by showing them.
    }
}

void frmMealConsume::stepQuantity(bool up)
{
    const LocaleText &text = session().text();
    const std::optional<Currency> quantity = text.toCurrency(txtQty->text());
    if (!quantity)
        return;
    try {
        txtQty->setText(up ? text.toText(mealStepUp(*quantity, m_increment))
                           : text.toText(mealStepDown(*quantity, m_increment)));
    } catch (const OverflowError &) {
        // At the end of the decimal's range there is no next step.
    }
}

void frmMealConsume::Gather()
{
    if (recordId() == 0) {
        source().set("MealConsumeID"_L1, Value(int(NewMealConsumeID(session().data()))));
        source().set("ConsumeDate"_L1, Value(session().currentDate()));
    }
    source().set("MealID"_L1, Value(*dcbMeal->boundValue()));
    source().set("ConsumeTime"_L1, Value(dtpTime->time()));
    source().set("Qty"_L1, Value(*session().text().toCurrency(txtQty->text())));
}

void frmMealConsume::recordStored()
{
    m_storedId = source().integer("MealConsumeID"_L1);
    session().setCurrentTime(dtpTime->time());
    if (!m_addMode) {
        RecordEditor::recordStored();
        return;
    }
    clearForNextMeal();
    session().announceJournalChange();
}

void frmMealConsume::clearForNextMeal()
{
    dcbMeal->setBoundValue(std::nullopt);
    dcbMealCategory->setBoundValue(std::nullopt);
    txtQty->clear();
    lblUnit->clear();
    dcbMealCategory->setFocus();
}
