#include "goals/frmGoals.h"

#include "goals/presentweight.h"
#include "session/session.h"
#include "settings/units.h"
#include "ui/attempt.h"
#include "ui/fieldmessages.h"
#include "ui/messages.h"
#include "ui/pickers.h"
#include "ui/telling.h"

#include <QCheckBox>
#include <QDateEdit>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include <cmath>

using namespace Qt::Literals;

namespace {

constexpr int paceLines = 4;
constexpr int widthInCharacters = 58;
constexpr int monthsAhead = 3; ///< proposed for the date

} // namespace

frmGoals::frmGoals(Session &session, Messages &messages, QWidget *parent)
    : FormDialog(session, messages, u"frmGoals"_s, tr("Goals"), parent)
    , m_isMetric(!session.parameters().isImperial())
{
    attempt(
        this, messages, [&] { m_presentWeight = presentWeight(session); },
        tr("The measured weight can't be read"));
    makeControls();
    setForm(makeForm());
    populate();
    makeChecks();
    makeConnections();
    showPace();
    focusFirstField();
}

void frmGoals::makeControls()
{
    txtWeight = makeBox(u"txtWeight"_s, tr("Target Weight"));
    txtWeight->setAccessibleDescription(units::weightLabel(m_isMetric));
    chkDate = new QCheckBox(tr("Reached b&y"), this);
    chkDate->setObjectName(u"chkDate"_s);
    dtpDate = makeDatePicker(session(), u"dtpDate"_s, this);
    dtpDate->setAccessibleName(tr("Date of the Target Weight"));
    txtGirths = {makeBox(u"txtBreast"_s, tr("Target Breast")),
                 makeBox(u"txtWaist"_s, tr("Target Waist")),
                 makeBox(u"txtHips"_s, tr("Target Hips"))};
    for (QLineEdit *box : txtGirths)
        box->setAccessibleDescription(units::girthLabel(m_isMetric));
    const auto makeOption = [this](const QString &name, const QString &caption) {
        auto *option = new QRadioButton(caption, this);
        option->setObjectName(name);
        return option;
    };
    optNoBudget = makeOption(u"optNoBudget"_s, tr("&None"));
    optBudget = makeOption(u"optBudget"_s, tr("A &fixed number of calories"));
    txtBudget = makeBox(u"txtBudget"_s, tr("Daily Budget"));
    optDeficit = makeOption(u"optDeficit"_s, tr("What the day burns, &less a deficit of"));
    txtDeficit = makeBox(u"txtDeficit"_s, tr("Daily Deficit"));
    for (QLineEdit *box : {txtBudget, txtDeficit})
        box->setAccessibleDescription(tr("kcal a day"));
    lblPace = new QLabel(this);
    lblPace->setObjectName(u"lblPace"_s);
    lblPace->setTextFormat(Qt::PlainText);
    lblPace->setWordWrap(true);
    lblPace->setAlignment(Qt::AlignTop | Qt::AlignLeading);
    lblPace->setMinimumHeight(paceLines * fontMetrics().lineSpacing());
    lblPace->setMinimumWidth(widthInCharacters * fontMetrics().averageCharWidth());
}

QLayout *frmGoals::makeForm()
{
    auto *form = new QVBoxLayout;
    form->addWidget(makeTargets());
    form->addWidget(makeBudget());
    form->addWidget(lblPace);
    form->addStretch();
    return form;
}

QWidget *frmGoals::makeTargets()
{
    auto *targets = new QGroupBox(tr("Targets"), this);
    auto *grid = new QGridLayout(targets);
    grid->addWidget(makeLabel(tr("&Weight"), txtWeight), 0, 0);
    grid->addWidget(txtWeight, 0, 1);
    grid->addWidget(new QLabel(units::weightLabel(m_isMetric), this), 0, 2);
    grid->addWidget(chkDate, 0, 3);
    grid->addWidget(dtpDate, 0, 4);
    const std::array captions = {tr("&Breast"), tr("W&aist"), tr("Hi&ps")};
    for (size_t i = 0; i < captions.size(); ++i) {
        const int row = int(i) + 1;
        grid->addWidget(makeLabel(captions.at(i), txtGirths.at(i)), row, 0);
        grid->addWidget(txtGirths.at(i), row, 1);
        grid->addWidget(new QLabel(units::girthLabel(m_isMetric), this), row, 2);
    }
    grid->setColumnStretch(1, 1);
    return targets;
}

QWidget *frmGoals::makeBudget()
{
    auto *budget = new QGroupBox(tr("Daily budget"), this);
    auto *grid = new QGridLayout(budget);
    grid->addWidget(optNoBudget, 0, 0);
    grid->addWidget(optBudget, 1, 0);
    grid->addWidget(txtBudget, 1, 1);
    grid->addWidget(new QLabel(tr("kcal"), this), 1, 2);
    grid->addWidget(optDeficit, 2, 0);
    grid->addWidget(txtDeficit, 2, 1);
    grid->addWidget(new QLabel(tr("kcal"), this), 2, 2);
    grid->setColumnStretch(1, 1);
    return budget;
}

void frmGoals::makeChecks()
{
    checkRange(txtWeight, tr("Weight"), Goals::mostWeight);
    addCheck(dtpDate, containsIllegalData(tr("Date")),
             [this] { return !chkDate->isChecked() || takeTyped(*dtpDate); });
    const std::array fields = {tr("Breast"), tr("Waist"), tr("Hips")};
    for (size_t i = 0; i < fields.size(); ++i)
        checkRange(txtGirths.at(i), fields.at(i), Goals::mostGirth);
    checkCalories(txtBudget, optBudget, tr("Daily Budget"));
    checkCalories(txtDeficit, optDeficit, tr("Daily Deficit"));
}

void frmGoals::checkRange(QLineEdit *box, const QString &field, double most)
{
    checkNumericOrEmpty(box, field);
    addCheck(box,
             tr("The %1 must be more than 0 and at most %2")
                 .arg(field, session().text().toText(int(most))),
             [this, box, most] {
                 const std::optional<double> number = numberIn(box);
                 return !number || (*number > 0 && *number <= most);
             });
}

/// Only of the option that is chosen.
void frmGoals::checkCalories(QLineEdit *box, const QRadioButton *option, const QString &field)
{
    addCheck(box,
             tr("The %1 must be a whole number from 1 to %2")
                 .arg(field, session().text().toText(DailyBudget::mostCalories)),
             [this, box, option] {
                 const std::optional<double> number = numberIn(box);
                 return !option->isChecked() ||
                        (number && *number >= 1 && *number <= DailyBudget::mostCalories &&
                         std::floor(*number) == *number);
             });
}

void frmGoals::makeConnections()
{
    connect(chkDate, &QCheckBox::toggled, dtpDate, &QWidget::setEnabled);
    connect(optBudget, &QRadioButton::toggled, txtBudget, &QWidget::setEnabled);
    connect(optDeficit, &QRadioButton::toggled, txtDeficit, &QWidget::setEnabled);
    for (const QLineEdit *box : {txtWeight, txtBudget, txtDeficit})
        connect(box, &QLineEdit::textChanged, this, &frmGoals::showPace);
    for (const QAbstractButton *button :
         {static_cast<QAbstractButton *>(chkDate), static_cast<QAbstractButton *>(optBudget),
          static_cast<QAbstractButton *>(optDeficit)})
        connect(button, &QAbstractButton::toggled, this, &frmGoals::showPace);
    connect(dtpDate, &QDateEdit::dateChanged, this, &frmGoals::showPace);
}

void frmGoals::populate()
{
    const Goals goals = goalsOf(installationOf(session().data().Con)).in(m_isMetric);
    const auto text = [this](const std::optional<double> &number) {
        return number ? session().text().toText(*number) : QString();
    };
    txtWeight->setText(text(goals.weight));
    for (size_t i = 0; i < txtGirths.size(); ++i)
        txtGirths.at(i)->setText(text(goals.girths.at(i)));
    chkDate->setChecked(goals.date.isValid());
    dtpDate->setEnabled(goals.date.isValid());
    dtpDate->setDate(goals.date.isValid() ? goals.date
                                          : session().clock().now().date().addMonths(monthsAhead));
    const auto isKind = [&goals](DailyBudget::Kind kind) {
        return goals.budget && goals.budget->kind == kind;
    };
    const auto populateBudget = [&](QRadioButton *option, QLineEdit *box, DailyBudget::Kind kind) {
        option->setChecked(isKind(kind));
        box->setEnabled(isKind(kind));
        if (isKind(kind))
            box->setText(session().text().toText(goals.budget->calories));
    };
    optNoBudget->setChecked(!goals.budget);
    populateBudget(optBudget, txtBudget, DailyBudget::Kind::Fixed);
    populateBudget(optDeficit, txtDeficit, DailyBudget::Kind::BurnLessDeficit);
}

std::optional<double> frmGoals::numberIn(const QLineEdit *box) const
{
    return session().text().toDouble(box->text());
}

Goals frmGoals::gather() const
{
    Goals goals;
    goals.isMetric = m_isMetric;
    goals.weight = numberIn(txtWeight);
    for (size_t i = 0; i < txtGirths.size(); ++i)
        goals.girths.at(i) = numberIn(txtGirths.at(i));
    if (chkDate->isChecked())
        goals.date = dtpDate->date();
    const auto calories = [this](const QLineEdit *box) {
        constexpr double most = DailyBudget::mostCalories;
        return int(std::clamp(numberIn(box).value_or(0), 0.0, most));
    };
    if (optBudget->isChecked())
        goals.budget = DailyBudget{DailyBudget::Kind::Fixed, calories(txtBudget)};
    else if (optDeficit->isChecked())
        goals.budget = DailyBudget{DailyBudget::Kind::BurnLessDeficit, calories(txtDeficit)};
    return goals;
}

QStringList frmGoals::paceSentences(const Goals &goals) const
{
    const LocaleText &text = session().text();
    const QString unit = units::weightLabel(m_isMetric);
    const auto weekly = [&](const Pace &pace) {
        const QLocale &locale = text.locale();
        return tr("%1 %2 a week, %3 % of your weight")
            .arg(locale.toString(pace.perWeek, 'f', 2), unit,
                 locale.toString(pace.share * 100, 'f', 1));
    };
    const QDate today = session().clock().now().date();
    QStringList sentences;
    if (const auto pace = paceToDate(goals, m_presentWeight, today))
        sentences += tr("From %1 %2 to the target by then: %3.")
                         .arg(text.toText(*m_presentWeight), unit, weekly(*pace));
    else if (goals.weight && goals.date.isValid() && goals.date <= today)
        sentences += tr("The date of the target weight is not ahead any more.");
    if (const auto pace = paceOfDeficit(goals, m_presentWeight); pace && pace->perWeek > 0)
        sentences += tr("The deficit comes to about %1.").arg(weekly(*pace));
    return sentences;
}

QString frmGoals::warning(const Goals &goals) const
{
    const auto isFast = [](const std::optional<Pace> &pace) { return pace && pace->isUnhealthy(); };
    return isFast(paceToDate(goals, m_presentWeight, session().clock().now().date())) ||
                   isFast(paceOfDeficit(goals, m_presentWeight))
               ? tr("More than 1 % of the body's weight a week is unhealthily fast.")
               : QString();
}

void frmGoals::showPace()
{
    const Goals goals = gather();
    QStringList sentences = paceSentences(goals);
    if (const QString warned = warning(goals); !warned.isEmpty())
        sentences += warned;
    if (const QString text = sentences.join(u'\n'); text != lblPace->text())
        tell(*lblPace, text);
}

void frmGoals::accept()
{
    if (!Validate())
        return;
    const Goals goals = gather();
    if (const QString warned = warning(goals); !warned.isEmpty()) {
        const QStringList lines =
            paceSentences(goals) +
            QStringList{warned, QString(), tr("Do you want to keep these goals all the same?")};
        if (!messages().ask(this, tr("Are you sure?"), lines.join(Session::lineBreak())))
            return;
    }
    Installation installation = installationOf(session().data().Con);
    if (!keepGoals(installation, goals)) {
        messages().error(this, tr("The goals can't be kept"),
                         tr("The file Corvana.ini in the program folder can't be written."));
        return;
    }
    QDialog::accept();
    session().announceGoals();
}
