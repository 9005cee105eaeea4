#include "journal/journalentryeditor.h"

#include "session/session.h"
#include "ui/datacombo.h"
#include "ui/elidedlabel.h"
#include "ui/icons.h"
#include "ui/pickers.h"
#include "ui/telling.h"
#include "ui/updownspinner.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

JournalEntryEditor::JournalEntryEditor(Session &session, Messages &messages, Recordset &source,
                                       const schema::Column &dateColumn, const QString &name,
                                       const QString &caption, QWidget *parent)
    : RecordEditor(session, messages, source, name, caption, parent)
    , m_dateColumn(dateColumn)
{
}

void JournalEntryEditor::setAddMode(bool on)
{
    m_addMode = on;
    if (!on)
        return;
    btnOK->setText(tr("&Add"));
    btnOK->setIcon(icon(QStringLiteral("Plus"), palette()));
    btnCancel->setText(tr("&Close"));
    btnCancel->setIcon(icon(QStringLiteral("Exit"), palette()));
    lblAdded->show();
}

DataCombo *JournalEntryEditor::makeChooser(const QString &name, const QString &accessibleName)
{
    auto *chooser = new DataCombo(this);
    chooser->setObjectName(name);
    chooser->setAccessibleName(accessibleName);
    return chooser;
}

QTimeEdit *JournalEntryEditor::makeTime(const QString &name, const QString &accessibleName)
{
    QTimeEdit *picker = makeTimePicker(session(), name, this);
    picker->setAccessibleName(accessibleName);
    return picker;
}

void JournalEntryEditor::makeQuantity()
{
    txtQty = makeBox(QStringLiteral("txtQty"), tr("Quantity"));
    updSpin = new UpDownSpinner(txtQty, tr("Quantity"), this);
    updSpin->setObjectName(QStringLiteral("updSpin"));
    lblUnit = new ElidedLabel(this);
    lblUnit->setObjectName(QStringLiteral("lblUnit"));
    connect(txtQty, &QLineEdit::textChanged, this, [this] { readQuantity(); });
    connect(updSpin, &UpDownSpinner::upPressed, this, [this] { stepQuantity(true); });
    connect(updSpin, &UpDownSpinner::downPressed, this, [this] { stepQuantity(false); });
}

QLayout *JournalEntryEditor::quantityLayout()
{
    auto *layout = new QHBoxLayout;
    layout->setSpacing(0);
    layout->addWidget(txtQty);
    layout->addWidget(updSpin);
    return layout;
}

void JournalEntryEditor::addTellTales(QGridLayout *form)
{
    const auto add = [&](const QString &name, Qt::TextElideMode mode) {
        auto *label = new ElidedLabel(this, mode);
        label->setObjectName(name);
        form->addWidget(label, form->rowCount(), 0, 1, form->columnCount());
        return label;
    };
    lblDay = add(QStringLiteral("lblDay"), Qt::ElideRight);
    lblAdded = add(QStringLiteral("lblAdded"), Qt::ElideMiddle); // a name, and then the figures
    lblAdded->hide();                                            // but for add mode
}

QLabel *JournalEntryEditor::addFigure(QGridLayout *grid, const QString &caption,
                                      const QString &name)
{
    auto *label = new QLabel(caption, this);
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    auto *figure = new QLabel(this);
    figure->setObjectName(name);
    label->setBuddy(figure); // a screen reader says the caption and then the figure
    figure->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    QFont bold = figure->font();
    bold.setBold(true);
    figure->setFont(bold);
    const int column = grid->count() == 0 ? 0 : grid->columnCount();
    grid->addWidget(label, 0, column);
    grid->addWidget(figure, 1, column);
    grid->setColumnStretch(column, 1);
    return figure;
}

void JournalEntryEditor::checkQuantity()
{
    checkSpecified(txtQty, tr("Quantity"));
    checkNumeric(txtQty, tr("Quantity"));
}

void JournalEntryEditor::showChoice(const Recordset *row)
{
    showUnit(row ? row->text(schema::Meal::Unit) : QString());
    if (!row)
        txtQty->clear();
    else if (!isLoading())
        txtQty->setText(row->isNull(schema::Meal::DefaultQty)
                            ? QStringLiteral("1")
                            : session().text().toText(row->value(schema::Meal::DefaultQty)));
    recalculate();
}

void JournalEntryEditor::showUnit(const QString &unit)
{
    lblUnit->setText(unit);
    txtQty->setAccessibleDescription(unit);
}

void JournalEntryEditor::readQuantity()
{
    m_quantity = session().text().toCurrency(txtQty->text());
    recalculate();
}

void JournalEntryEditor::stepQuantity(bool up)
{
    if (!quantity())
        return;
    try {
        txtQty->setText(steppedQuantity(up));
    } catch (const OverflowError &) {
        // At the end of the decimal's range there is no next step.
    }
}

void JournalEntryEditor::Populate()
{
    const bool isNew = appendsRecord() || source().isEof();
    const QDate day = isNew ? session().currentDate() : source().date(m_dateColumn);
    lblDay->setText(tr("Day: %1").arg(session().text().mediumDate(day)));
}

void JournalEntryEditor::Gather()
{
    if (recordId() == 0)
        source().set(m_dateColumn, Value(session().currentDate()));
    source().set(schema::MealConsume::Qty, Value(*quantity()));
}

void JournalEntryEditor::recordStored()
{
    session().setCurrentTime(entryTime());
    if (!m_addMode) {
        RecordEditor::recordStored();
        return;
    }
    tellAdded();
    clearChoosers();
    txtQty->clear();
    showUnit({});
    focusFirstField();
}

// The form is cleared for the next row: this is what is left to see of the last one.
void JournalEntryEditor::tellAdded()
{
    const LocaleText &text = session().text();
    tell(*lblAdded, tr("Added: %1, %2, %3")
                        .arg(entryName(), text.toText(*quantity()), text.listTime(entryTime())));
}
