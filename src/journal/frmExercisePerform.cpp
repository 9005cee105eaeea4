#include "journal/frmExercisePerform.h"

#include "catalogue/frmExercise.h"
#include "journal/performancefigures.h"
#include "journal/quantitysteps.h"
#include "session/session.h"
#include "ui/attempt.h"
#include "ui/datacombo.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimeEdit>

frmExercisePerform::frmExercisePerform(Session &session, Messages &messages, QWidget *parent)
    : JournalEntryEditor(session, messages, session.data().rsExercisePerform,
                         schema::ExercisePerform::PerformDate, QStringLiteral("frmExercisePerform"),
                         tr("Activity Performed"), parent)
{
    makeControls();
    setForm(makeForm());
    makeChecks();
    connect(dcbExercise, &DataCombo::boundValueChanged, this, &frmExercisePerform::activityChanged);
    loadActivities();
}

void frmExercisePerform::makeControls()
{
    dcbExercise = makeChooser(QStringLiteral("dcbExercise"), tr("Activity"));
    btnNewCategory = makeNewButton(QStringLiteral("btnNewCategory"), tr("&New Activity"));
    connect(btnNewCategory, &QPushButton::clicked, this,
            attempting(this, messages(), &frmExercisePerform::createActivity));
    dtpBeginTime = makeTime(QStringLiteral("dtpBeginTime"), tr("Begin Time"));
    dtpEndTime = makeTime(QStringLiteral("dtpEndTime"), tr("End Time"));
    makeQuantity();
}

QLayout *frmExercisePerform::makeForm()
{
    auto *figures = new QGroupBox(tr("Calories"), this);
    lblCalories =
        addFigure(new QGridLayout(figures), tr("Calories Total"), QStringLiteral("lblCalories"));

    auto *form = new QGridLayout;
    form->addWidget(makeLabel(tr("Ac&tivity"), dcbExercise), 0, 0);
    form->addWidget(dcbExercise, 0, 1, 1, 2);
    form->addWidget(btnNewCategory, 0, 3);
    form->addWidget(makeLabel(tr("&Begin Time"), dtpBeginTime), 1, 0);
    form->addWidget(dtpBeginTime, 1, 1);
    form->addWidget(makeLabel(tr("&End Time"), dtpEndTime), 2, 0);
    form->addWidget(dtpEndTime, 2, 1);
    form->addWidget(makeLabel(tr("&Quantity"), txtQty), 3, 0);
    form->addLayout(quantityLayout(), 3, 1);
    form->addWidget(lblUnit, 3, 2, 1, 2);
    form->addWidget(figures, 4, 0, 1, 4);
    addTellTales(form);
    form->setColumnStretch(2, 1);
    return form;
}

void frmExercisePerform::makeChecks()
{
    addCheck(dcbExercise, tr("The Exercise is not specified or specified incorrect"),
             [this] { return dcbExercise->boundValue().has_value(); });
    checkTyped(dtpBeginTime, tr("Begin Time"));
    checkTyped(dtpEndTime, tr("End Time"));
    addCheck(dtpEndTime, tr("The End Time value should be more than the Begin Time value"),
             [this] { return dtpBeginTime->time() < dtpEndTime->time(); });
    checkQuantity();
}

Recordset &frmExercisePerform::activities() const
{
    return session().data().rsExerciseSorted;
}

void frmExercisePerform::loadActivities()
{
    activities().reopenReadable();
    dcbExercise->setRows(activities(), schema::Exercise::ExerciseID, schema::Exercise::Name);
}

void frmExercisePerform::Populate()
{
    JournalEntryEditor::Populate();
    dtpBeginTime->setTime(session().currentTime());
    dtpEndTime->setTime(session().currentTime());
    if (appendsRecord() || source().isEof())
        return;
    dcbExercise->setBoundValue(source().integer(schema::ExercisePerform::ExerciseID));
    dtpBeginTime->setTime(source().time(schema::ExercisePerform::timeBeg));
    dtpEndTime->setTime(source().time(schema::ExercisePerform::timeEnd));
    txtQty->setText(session().text().toText(source().value(schema::ExercisePerform::Qty)));
}

void frmExercisePerform::activityChanged()
{
    const std::optional<qint32> activity = dcbExercise->boundValue();
    const bool chosen = activity && activities().isOpen() &&
                        activities().moveTo(schema::Exercise::ExerciseID, *activity);
    showChoice(chosen ? &activities() : nullptr);
}

void frmExercisePerform::createActivity()
{
    frmExercise editor(session(), messages(), this);
    if (!editor.run(0))
        return;
    loadActivities();
    dcbExercise->setDisplayedText(editor.storedName());
}

void frmExercisePerform::recalculate()
{
    lblCalories->clear();
    const std::optional<Currency> performed = quantity();
    if (!performed || !dcbExercise->boundValue() || !activities().isOpen() || activities().isEof())
        return;
    try {
        const Currency perUnit =
            Currency::fromDouble(activities().number(schema::Exercise::CaloriesConsume));
        lblCalories->setText(QString::number(performanceFigure(*performed, perUnit)));
    } catch (const OverflowError &) {
        // A figure too large to be any person's activity stays blank.
    }
}

QString frmExercisePerform::steppedQuantity(bool up) const
{
    const LocaleText &text = session().text();
    const auto single = static_cast<float>(*text.toDouble(txtQty->text()));
    return text.toText(up ? activityStepUp(single) : activityStepDown(single));
}

void frmExercisePerform::Gather()
{
    JournalEntryEditor::Gather();
    source().set(schema::ExercisePerform::ExerciseID, Value(*dcbExercise->boundValue()));
    source().set(schema::ExercisePerform::timeBeg, Value(dtpBeginTime->time()));
    source().set(schema::ExercisePerform::timeEnd, Value(dtpEndTime->time()));
}

QTime frmExercisePerform::entryTime() const
{
    return dtpBeginTime->time();
}

QString frmExercisePerform::entryName() const
{
    return dcbExercise->displayedText();
}

void frmExercisePerform::clearChoosers()
{
    dcbExercise->setBoundValue(std::nullopt);
}
