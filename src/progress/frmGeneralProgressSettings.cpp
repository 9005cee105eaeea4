#include "progress/frmGeneralProgressSettings.h"

#include "session/session.h"
#include "ui/messages.h"
#include "ui/pickers.h"

#include <QDateEdit>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>

using namespace progress;

frmGeneralProgressSettings::frmGeneralProgressSettings(Session &session, Messages &messages,
                                                       QWidget *parent)
    : FormDialog(session, messages, QStringLiteral("frmGeneralProgressSettings"),
                 tr("General Progress Parameters"), parent)
    , dtpDate(makeDatePicker(session, QStringLiteral("dtpDate"), this))
    , opt1Month(makeLength(QStringLiteral("opt1Month"), tr("&1 Month")))
    , opt3Month(makeLength(QStringLiteral("opt3Month"), tr("&3 Months")))
    , opt6Month(makeLength(QStringLiteral("opt6Month"), tr("&6 Months")))
{
    dtpDate->setAccessibleName(tr("Date From"));
    dtpDate->setDate(session.currentDate().addMonths(-1));
    opt1Month->setChecked(true); // from a month ago, more would be half empty
    setForm(makeForm());
    checkTyped(dtpDate, tr("Date From"));
    focusFirstField();
}

QRadioButton *frmGeneralProgressSettings::makeLength(const QString &name, const QString &caption)
{
    auto *option = new QRadioButton(caption, this);
    option->setObjectName(name);
    return option;
}

QLayout *frmGeneralProgressSettings::makeForm()
{
    auto *date = new QHBoxLayout;
    date->addWidget(makeLabel(tr("&Date From"), dtpDate));
    date->addWidget(dtpDate, 1);

    auto *length = new QGroupBox(tr("For Period"), this);
    auto *options = new QHBoxLayout(length);
    for (QRadioButton *option : {opt1Month, opt3Month, opt6Month})
        options->addWidget(option);

    auto *form = new QVBoxLayout;
    form->addLayout(date);
    form->addWidget(length);
    return form;
}

qint16 frmGeneralProgressSettings::chosenMonths() const
{
    if (opt1Month->isChecked())
        return 1;
    return opt3Month->isChecked() ? 3 : 6;
}

bool frmGeneralProgressSettings::wantsChartAnyway(const QString &question)
{
    return messages().ask(this, tr("Not enough data"), question);
}

void frmGeneralProgressSettings::accept()
{
    if (!Validate())
        return;
    m_period = periodOfMonths(dtpDate->date(), chosenMonths());
    deData &store = session().data();
    const Coverage coverage = checkCoverage(store, m_period);
    if (!coverage.isEnough &&
        !wantsChartAnyway(tr("Present data cover less then 30% of selected time period. The Chart "
                             "will be too small. Build the Chart anyway?")))
        return;
    if (!checkContiguity(store, coverage) &&
        !wantsChartAnyway(tr("Data selected to be shown on Chart are not contiguous. Either "
                             "Calories data (meal/activity) are not present for every day or Body "
                             "measurement is not present for each 3 days period. The Chart will be "
                             "ripped. Build the Chart anyway?")))
        return;
    m_okPressed = true;
    QDialog::accept();
}
