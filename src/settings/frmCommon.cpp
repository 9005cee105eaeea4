#include "settings/frmCommon.h"

#include "data/numbers.h"
#include "session/session.h"
#include "settings/recalculation.h"
#include "settings/units.h"
#include "ui/messages.h"
#include "ui/wheelguard.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

using namespace Qt::Literals;

namespace {

constexpr int imperialItem = 0;
constexpr int metricItem = 1;

} // namespace

frmCommon::frmCommon(Session &session, Messages &messages, QWidget *parent)
    : RecordEditor(session, messages, session.data().rsCommon, QStringLiteral("frmCommon"),
                   tr("Common Parameters"), parent)
    , txtWeight(makeBox(QStringLiteral("txtWeight"), tr("Body Weight")))
    , lblWeightUnit(new QLabel(this))
    , txtMetabolicRate(
          makeBox(QStringLiteral("txtMetabolicRate"), tr("Background Calories Consume")))
    , cbxMeasurement(new QComboBox(this))
{
    lblWeightUnit->setObjectName(QStringLiteral("lblWeightUnit"));
    cbxMeasurement->setObjectName(QStringLiteral("cbxMeasurement"));
    cbxMeasurement->setAccessibleName(tr("Measurement"));
    cbxMeasurement->addItem(tr("Imperial (lb, inch)"));
    cbxMeasurement->addItem(tr("Metric (kg, cm)"));
    guardFromWheel(*cbxMeasurement);
    setForm(makeForm());

    checkNumber(txtWeight, tr("The Weight is not specified or specified incorrect"));
    checkNumber(txtMetabolicRate,
                tr("The Background Calories Consume is not specified or specified incorrect"));

    connect(txtWeight, &QLineEdit::textChanged, this, &frmCommon::UpdateBackgroundCalories);
    connect(cbxMeasurement, &QComboBox::currentIndexChanged, this, &frmCommon::unitPicked);
    // Picking the item that is shown already computes anew, too.
    connect(cbxMeasurement, &QComboBox::activated, this, &frmCommon::unitPicked);
}

QLayout *frmCommon::makeForm()
{
    auto *form = new QGridLayout;
    form->addWidget(makeLabel(tr("Body &Weight"), txtWeight), 0, 0);
    form->addWidget(txtWeight, 0, 1);
    form->addWidget(lblWeightUnit, 0, 2);
    form->addWidget(makeLabel(tr("&Background Calories Consume"), txtMetabolicRate), 1, 0);
    form->addWidget(txtMetabolicRate, 1, 1);
    auto *perHour = new QLabel(tr("per hour"), this);
    form->addWidget(perHour, 1, 2);
    txtMetabolicRate->setAccessibleDescription(perHour->text());
    form->addWidget(makeLabel(tr("&Measurement"), cbxMeasurement), 2, 0);
    form->addWidget(cbxMeasurement, 2, 1);
    form->setColumnStretch(1, 1);
    return form;
}

void frmCommon::setFirstStart(bool on)
{
    m_firstStart = on;
    btnCancel->setEnabled(!on);
}

void frmCommon::reject()
{
    // Neither Escape nor the window's close button is a way round the disabled Cancel.
    if (!m_firstStart)
        RecordEditor::reject();
}

void frmCommon::openSource()
{
    source().reopen();
}

void frmCommon::Populate()
{
    const LocaleText &text = session().text();
    // Each of the first two recomputes the background calories; the stored value, last, wins.
    txtWeight->setText(text.toText(source().value(schema::Common::weight)));
    cbxMeasurement->setCurrentIndex(
        source().text(schema::Common::Measurement) == "M"_L1 ? metricItem : imperialItem);
    ShowWeightUnit();
    txtMetabolicRate->setText(text.toText(source().value(schema::Common::metabolicRate)));
}

bool frmCommon::isMetricChosen() const
{
    return cbxMeasurement->currentIndex() == metricItem;
}

void frmCommon::unitPicked()
{
    UpdateBackgroundCalories();
    ShowWeightUnit();
}

void frmCommon::UpdateBackgroundCalories()
{
    if (const auto weight = session().text().toDouble(txtWeight->text()))
        txtMetabolicRate->setText(
            session().text().toText(units::backgroundCalories(*weight, isMetricChosen())));
}

void frmCommon::ShowWeightUnit()
{
    lblWeightUnit->setText(units::weightLabel(isMetricChosen()));
    txtWeight->setAccessibleDescription(lblWeightUnit->text());
}

void frmCommon::Gather()
{
    const Currency weight = *session().text().toCurrency(txtWeight->text());
    // The program holds the weight in 16 bits: a larger one is refused before it is stored.
    roundToInt16(weight.toDouble());
    source().set(schema::Common::weight, Value(weight));
    source().set(schema::Common::Measurement, Value(units::codeOf(isMetricChosen())));
    source().set(schema::Common::metabolicRate,
                 Value(*session().text().toCurrency(txtMetabolicRate->text())));
}

std::vector<Step> frmCommon::storeSteps()
{
    std::vector<Step> steps = RecordEditor::storeSteps();
    steps.emplace_back(
        [this] { recalculateStoredData(session().data(), commonParametersOf(source())); });
    return steps;
}

void frmCommon::recordStored()
{
    session().setParameters(commonParametersOf(source()));
    m_okPressed = true;
    RecordEditor::recordStored();
    if (!m_firstStart)
        messages().information(parentWidget(),
                               tr("All existing data will be recalculated according with new "
                                  "common parameters. Your results may change now"));
}

QString frmCommon::refusedStoreMessage() const
{
    return tr("Can't store information in database.");
}
