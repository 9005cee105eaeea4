#include "progress/frmGeneralProgressSettings.h"

#include "help/helpkey.h"
#include "session/session.h"
#include "ui/messages.h"
#include "ui/pickers.h"

#include <QDateEdit>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

using namespace progress;

frmGeneralProgressSettings::frmGeneralProgressSettings(Session &session, Messages &messages,
                                                       QWidget *parent)
    : QDialog(parent)
    , m_session(session)
    , m_messages(messages)
    , dtpDate(makeDatePicker(session, QStringLiteral("dtpDate"), this))
    , opt1Month(makeLength(QStringLiteral("opt1Month"), tr("&1 Month")))
    , opt3Month(makeLength(QStringLiteral("opt3Month"), tr("&3 Months")))
    , opt6Month(makeLength(QStringLiteral("opt6Month"), tr("&6 Months")))
{
    setObjectName(QStringLiteral("frmGeneralProgressSettings"));
    setWindowTitle(tr("General Progress Parameters"));
    dtpDate->setAccessibleName(tr("Date From"));
    dtpDate->setDate(session.currentDate().addMonths(-1));
    opt3Month->setChecked(true);

    auto *layout = new QVBoxLayout(this);
    layout->addLayout(makeForm());
    layout->addStretch();
    layout->addLayout(makeButtons());
    dtpDate->setFocus();
}

QRadioButton *frmGeneralProgressSettings::makeLength(const QString &name, const QString &caption)
{
    auto *option = new QRadioButton(caption, this);
    option->setObjectName(name);
    return option;
}

QBoxLayout *frmGeneralProgressSettings::makeForm()
{
    auto *label = new QLabel(tr("&Date From"), this);
    label->setBuddy(dtpDate);
    auto *date = new QHBoxLayout;
    date->addWidget(label);
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

QBoxLayout *frmGeneralProgressSettings::makeButtons()
{
    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    const auto add = [&](const QString &name, const QString &caption) {
        auto *button = new QPushButton(caption, this);
        button->setObjectName(name);
        buttons->addWidget(button);
        return button;
    };
    auto *btnOK = add(QStringLiteral("btnOK"), tr("&OK"));
    btnOK->setDefault(true);
    auto *btnCancel = add(QStringLiteral("btnCancel"), tr("&Cancel"));
    auto *btnHelp = add(QStringLiteral("btnHelp"), tr("&Help"));
    btnHelp->setAutoDefault(false);
    connect(btnOK, &QPushButton::clicked, this, &frmGeneralProgressSettings::accept);
    connect(btnCancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(btnHelp, &QPushButton::clicked, this, [this] { sendHelpKey(this); });
    return buttons;
}

qint16 frmGeneralProgressSettings::chosenMonths() const
{
    if (opt1Month->isChecked())
        return 1;
    return opt3Month->isChecked() ? 3 : 6;
}

bool frmGeneralProgressSettings::wantsChartAnyway(const QString &question)
{
    return m_messages.ask(this, tr("Not enough data"), question);
}

void frmGeneralProgressSettings::accept()
{
    m_period = periodOfMonths(dtpDate->date(), chosenMonths());
    deData &store = m_session.data();
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
