#include "journal/frmBody.h"

#include "session/session.h"
#include "settings/units.h"
#include "ui/messages.h"
#include "ui/pickers.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

frmBody::frmBody(Session &session, Messages &messages, QWidget *parent)
    : RecordEditor(session, messages, session.data().rsBody, QStringLiteral("frmBody"),
                   tr("Body Measurement"), parent)
    , dtpDate(makeDatePicker(session, QStringLiteral("dtpDate"), this))
    , txtWeight(makeBox(QStringLiteral("txtWeight"), tr("Weight")))
    , lblWeightUnit(new QLabel(this))
    , txtBreast(makeBox(QStringLiteral("txtBreast"), tr("Breast")))
    , txtWaist(makeBox(QStringLiteral("txtWaist"), tr("Waist")))
    , txtHips(makeBox(QStringLiteral("txtHips"), tr("Hips")))
    , lblGirthUnit(new QLabel(this))
{
    lblWeightUnit->setObjectName(QStringLiteral("lblWeightUnit"));
    lblGirthUnit->setObjectName(QStringLiteral("lblGirthUnit"));
    dtpDate->setAccessibleName(tr("Date"));
    showUnits();
    // Another program may change them while this window is open.
    connect(&session, &Session::parametersChanged, this, &frmBody::showUnits);
    setForm(makeForm());
    makeChecks();
}

void frmBody::showUnits()
{
    const bool metric = !session().parameters().isImperial();
    lblWeightUnit->setText(units::weightLabel(metric));
    lblGirthUnit->setText(units::girthLabel(metric));
    txtWeight->setAccessibleDescription(lblWeightUnit->text());
    for (QLineEdit *girth : {txtBreast, txtWaist, txtHips})
        girth->setAccessibleDescription(lblGirthUnit->text());
}

QLayout *frmBody::makeForm()
{
    auto *form = new QGridLayout;
    form->addWidget(makeLabel(tr("&Date"), dtpDate), 0, 0);
    form->addWidget(dtpDate, 0, 1);
    form->addWidget(makeLabel(tr("&Weight"), txtWeight), 1, 0);
    form->addWidget(txtWeight, 1, 1);
    form->addWidget(lblWeightUnit, 1, 2);
    form->addWidget(makeLabel(tr("&Breast"), txtBreast), 2, 0);
    form->addWidget(txtBreast, 2, 1);
    form->addWidget(makeLabel(tr("W&aist"), txtWaist), 3, 0);
    form->addWidget(txtWaist, 3, 1);
    form->addWidget(makeLabel(tr("Hi&ps"), txtHips), 4, 0);
    form->addWidget(txtHips, 4, 1);
    form->addWidget(lblGirthUnit, 2, 2, 3, 1); // one unit for the three
    form->setColumnStretch(1, 1);
    return form;
}

void frmBody::makeChecks()
{
    checkTyped(dtpDate, tr("Date"));
    checkNumber(txtWeight, tr("The Weight is not specified or contains illegal data"));
    checkNumber(txtBreast, tr("The Breast measurement is not specified or contains illegal data"));
    checkNumber(txtWaist, tr("The Waist measurement is not specified or contains illegal data"));
    checkNumber(txtHips, tr("The Hips measurement is not specified or contains illegal data"));
}

void frmBody::Populate()
{
    dtpDate->setDate(session().currentDate());
    if (source().isEof())
        return;
    const LocaleText &text = session().text();
    dtpDate->setDate(source().date(schema::Body::DateMeasured));
    txtWeight->setText(text.toText(source().value(schema::Body::Weight)));
    txtWaist->setText(text.toText(source().value(schema::Body::Waist)));
    txtBreast->setText(text.toText(source().value(schema::Body::Breast)));
    txtHips->setText(text.toText(source().value(schema::Body::Hips)));
}

void frmBody::Gather()
{
    if (recordId() == 0)
        source().set(schema::Body::Measurement, Value(session().parameters().measurement));
    const auto number = [this](const QLineEdit *box) {
        return Value(*session().text().toCurrency(box->text()));
    };
    source().set(schema::Body::DateMeasured, Value(dtpDate->date()));
    source().set(schema::Body::Weight, number(txtWeight));
    source().set(schema::Body::Breast, number(txtBreast));
    source().set(schema::Body::Waist, number(txtWaist));
    source().set(schema::Body::Hips, number(txtHips));
}

// The identifier of another measurement on the gathered date, 0 where there is none.
qint32 frmBody::otherMeasurement()
{
    Recordset &check = session().data().rsBodyCheck;
    check.reopen({source().value(schema::Body::DateMeasured), Value(recordId())});
    const qint32 other = check.isEof() ? 0 : check.integer(schema::Body::BodyID);
    check.close();
    return other;
}

bool frmBody::confirmStore()
{
    m_replaced = otherMeasurement();
    return m_replaced == 0 ||
           messages().ask(this, tr("Same date"),
                          tr("There is already Body Measurement for this date in the database. Do "
                             "you want to replace it?"));
}

// The other measurement stays deleted where the store of this one is refused.
std::vector<Step> frmBody::storeSteps()
{
    std::vector<Step> steps = RecordEditor::storeSteps();
    if (m_replaced != 0)
        steps.insert(steps.end() - 1, [this] {
            source().requireUnchanged(); // or the other would be deleted for nothing
            session().data().run(commands::BodyDelete, {Value(m_replaced)});
        });
    return steps;
}
