#include "catalogue/frmWeightAdjustment.h"

#include "catalogue/weightadjustment.h"
#include "data/numbers.h"
#include "session/session.h"
#include "settings/units.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

frmWeightAdjustment::frmWeightAdjustment(Session &session, Messages &messages, QWidget *parent)
    : FormDialog(session, messages, QStringLiteral("frmWeightAdjustment"), tr("Weight Adjustment"),
                 parent)
    , txtWeight(makeBox(QStringLiteral("txtWeight"), tr("For Weight")))
    , lblMeasurement(new QLabel(this))
    , txtCaloriesConsume(makeBox(QStringLiteral("txtCaloriesConsume"), tr("Calories")))
{
    const bool metric = session.parameters().isMetric();
    lblMeasurement->setObjectName(QStringLiteral("lblMeasurement"));
    lblMeasurement->setText(units::weightLabel(metric));
    txtWeight->setAccessibleDescription(lblMeasurement->text());
    txtWeight->setText(session.text().toText(units::referenceWeight(metric)));
    setForm(makeForm());

    checkNumber(txtCaloriesConsume, tr("Calories field contains illegal value"));
    checkNumber(txtWeight, tr("For Weight field contains illegal value"));
    addCheck(txtWeight, tr("For Weight should be other than 0"),
             [this] { return *this->session().text().toDouble(txtWeight->text()) != 0; });
}

QLayout *frmWeightAdjustment::makeForm()
{
    auto *hint = new QLabel(tr("Please enter the data as you find them in your source of "
                               "information: a book, a sport guide or the Internet."),
                            this);
    hint->setWordWrap(true);
    auto *form = new QGridLayout;
    form->addWidget(hint, 0, 0, 1, 3);
    form->addWidget(makeLabel(tr("For &Weight"), txtWeight), 1, 0);
    form->addWidget(txtWeight, 1, 1);
    form->addWidget(lblMeasurement, 1, 2);
    form->addWidget(makeLabel(tr("Ca&lories"), txtCaloriesConsume), 2, 0);
    form->addWidget(txtCaloriesConsume, 2, 1);
    form->setColumnStretch(1, 1);
    return form;
}

void frmWeightAdjustment::setCaloriesConsume(const QString &text)
{
    txtCaloriesConsume->setText(text);
}

bool frmWeightAdjustment::run()
{
    m_ok = false;
    focusFirstField();
    exec();
    return m_ok;
}

void frmWeightAdjustment::accept()
{
    if (!Validate())
        return;
    const LocaleText &text = session().text();
    try {
        m_caloriesAdjusted =
            adjustedCalories(*text.toDouble(txtCaloriesConsume->text()),
                             *text.toDouble(txtWeight->text()), session().parameters().weight);
    } catch (const OverflowError &) {
        refuse(txtCaloriesConsume,
               tr("The calories for your weight are out of range (-32768 to 32767)"));
        return;
    }
    m_ok = true;
    FormDialog::accept();
}
