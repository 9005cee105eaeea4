#include "catalogue/frmExercise.h"

#include "catalogue/frmWeightAdjustment.h"
#include "catalogue/weightadjustment.h"
#include "session/session.h"
#include "ui/attempt.h"
#include "ui/fieldmessages.h"
#include "ui/messages.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

frmExercise::frmExercise(Session &session, Messages &messages, QWidget *parent)
    : CatalogueEditor(session, messages, session.data().rsExercise, QStringLiteral("frmExercise"),
                      tr("Activity Description"), parent)
{
    makeControls();
    setForm(makeForm());
    makeChecks();
    makeConnections();
}

void frmExercise::makeControls()
{
    makeNameBox(tr("Activity Name"));
    txtCaloriesConsume = makeBox(QStringLiteral("txtCaloriesConsume"), tr("Calories Consume"));
    lblPerWhat = new QLabel(this);
    lblPerWhat->setObjectName(QStringLiteral("lblPerWhat"));
    btnWeightAdjust = new QPushButton(tr("&For Me"), this);
    btnWeightAdjust->setObjectName(QStringLiteral("btnWeightAdjust"));
    btnWeightAdjust->setToolTip(tr("Weight Adjustment Calculator"));
    btnWeightAdjust->setAutoDefault(false);
    chkWeightDependent = new QCheckBox(tr("&Weight Dependent"), this);
    chkWeightDependent->setObjectName(QStringLiteral("chkWeightDependent"));
    txtDefaultQty = makeBox(QStringLiteral("txtDefaultQty"), tr("Default Qty"));
    txtUnit = makeBox(QStringLiteral("txtUnit"), tr("Unit"));
}

QLayout *frmExercise::makeForm()
{
    auto *form = new QGridLayout;
    form->addWidget(makeLabel(tr("Activity &Name"), txtName), 0, 0);
    form->addWidget(txtName, 0, 1, 1, 3);
    form->addWidget(makeLabel(tr("Ca&lories Consume"), txtCaloriesConsume), 1, 0);
    form->addWidget(txtCaloriesConsume, 1, 1);
    form->addWidget(lblPerWhat, 1, 2);
    form->addWidget(btnWeightAdjust, 1, 3);
    form->addWidget(chkWeightDependent, 2, 1, 1, 3);
    form->addWidget(makeLabel(tr("&Default Qty"), txtDefaultQty), 3, 0);
    form->addWidget(txtDefaultQty, 3, 1);
    form->addWidget(makeLabel(tr("&Unit"), txtUnit), 4, 0);
    form->addWidget(txtUnit, 4, 1);
    // The label beside them grows with the box ticked, and not at their expense.
    form->setColumnMinimumWidth(1, fontMetrics().averageCharWidth() * 16);
    form->setColumnStretch(2, 1);
    return form;
}

void frmExercise::makeChecks()
{
    checkSpecified(txtName, tr("Name"));
    addCheck(txtCaloriesConsume, shouldBeSpecified(tr("Calories Consume")),
             [this] { return !txtCaloriesConsume->text().isEmpty(); });
    checkNumeric(txtCaloriesConsume, tr("Calories Consume"));
    checkSpecified(txtUnit, tr("Unit"));
    checkNumericOrEmpty(txtDefaultQty, tr("Default Quantity"));
}

void frmExercise::makeConnections()
{
    connect(txtCaloriesConsume, &QLineEdit::textChanged, this,
            [this] { m_caloriesChanged = true; });
    // Not clicked(): screen readers toggle the box.
    connect(chkWeightDependent, &QCheckBox::toggled, this, [this] {
        m_caloriesChanged = true;
        showDependence();
    });
    connect(txtUnit, &QLineEdit::textChanged, txtDefaultQty, &QWidget::setAccessibleDescription);
    connect(btnWeightAdjust, &QPushButton::clicked, this,
            attempting(this, messages(), &frmExercise::adjustToWeight));
}

void frmExercise::Populate()
{
    if (!source().isEof()) {
        showColumn(txtName, schema::Exercise::Name);
        showColumn(txtCaloriesConsume, schema::Exercise::CaloriesConsume);
        showColumn(txtUnit, schema::Exercise::Unit);
        chkWeightDependent->setChecked(source().number(schema::Exercise::WeightDependent) == 1);
        showColumn(txtDefaultQty, schema::Exercise::DefaultQty);
    }
    showDependence();
    m_caloriesChanged = false;
    m_caloriesAdjusted = false;
}

void frmExercise::showDependence()
{
    const bool dependent = chkWeightDependent->isChecked();
    btnWeightAdjust->setEnabled(dependent);
    lblPerWhat->setText(dependent ? tr("per unit, for my body") : tr("per unit"));
    txtCaloriesConsume->setAccessibleDescription(lblPerWhat->text());
}

bool frmExercise::Validate()
{
    if (!RecordEditor::Validate())
        return false;
    const bool doubtful =
        chkWeightDependent->isChecked() && m_caloriesChanged && !m_caloriesAdjusted;
    return !doubtful ||
           messages().ask(this, tr("Are you sure?"),
                          tr("This activity is body weight dependent. Are you sure you've "
                             "specified the Calories Consume value exactly for your body weight? "
                             "If No, please press 'For Me' button and use our weight adjustment "
                             "calculator."));
}

void frmExercise::Gather()
{
    source().set(schema::Exercise::Name, Value(txtName->text()));
    source().set(schema::Exercise::Unit, Value(txtUnit->text()));
    source().set(schema::Exercise::WeightDependent, Value(chkWeightDependent->isChecked() ? 1 : 0));
    source().set(schema::Exercise::DefaultQty, numberOrNull(txtDefaultQty));
    // Untouched calories keep their base, which may have been given for another weight.
    if (!m_caloriesChanged)
        return;
    source().set(schema::Exercise::CaloriesConsume, Value(number(txtCaloriesConsume)));
    source().set(schema::Exercise::CaloriesConsumeBase, Value(caloriesForReferenceBody()));
}

double frmExercise::caloriesForReferenceBody() const
{
    const double calories = number(txtCaloriesConsume).toDouble();
    if (!chkWeightDependent->isChecked())
        return calories;
    const CommonParameters &user = session().parameters();
    return baseCalories(calories, user.weight, user.isMetric());
}

QString frmExercise::refusedStoreMessage() const
{
    return tr("Can't store this record in database. Please check whether there is already "
              "Activity with the same name in the database");
}

QString frmExercise::takenNameCause() const
{
    return tr("An activity of this name exists already.");
}

void frmExercise::adjustToWeight()
{
    frmWeightAdjustment calculator(session(), messages(), this);
    calculator.setCaloriesConsume(txtCaloriesConsume->text());
    if (!calculator.run())
        return;
    txtCaloriesConsume->setText(session().text().toText(int(calculator.caloriesAdjusted())));
    m_caloriesChanged = true;
    m_caloriesAdjusted = true;
}
