// What the two editors of the daily journal share.
#pragma once

#include "ui/recordeditor.h"

class DataCombo;
class QGridLayout;
class QTimeEdit;
class UpDownSpinner;

/// An editor of something eaten or done on a day: a catalogue record, a time and a quantity. A new
/// row goes to the session's current date; the time stored is proposed for the next entry. In add
/// mode the dialog stays open after each stored row, cleared for the next one.
class JournalEntryEditor : public RecordEditor
{
    Q_OBJECT

public:
    /// To be called before the dialog is shown; goes with a new record only.
    void setAddMode(bool on);

protected:
    JournalEntryEditor(Session &session, Messages &messages, Recordset &source,
                       const schema::Column &dateColumn, const QString &name,
                       const QString &caption, QWidget *parent);

    /// Proposed for the next entry once this one is stored.
    virtual QTime entryTime() const = 0;
    /// Name of what was eaten or done.
    virtual QString entryName() const = 0;
    /// Shows the calories of what is in the fields, or blanks; called on every change of the
    /// quantity.
    virtual void recalculate() = 0;
    /// The text of the quantity one step up or down. May throw OverflowError.
    virtual QString steppedQuantity(bool up) const = 0;
    /// Clears the choosers after a row stored in add mode.
    virtual void clearChoosers() = 0;

    /// Overridden by the windows, which call these first.
    void Populate() override;
    void Gather() override;
    void recordStored() override;
    bool appendsRecord() const override { return m_addMode || RecordEditor::appendsRecord(); }

    DataCombo *makeChooser(const QString &name, const QString &accessibleName);
    QTimeEdit *makeTime(const QString &name, const QString &accessibleName);
    /// Makes the box, its spinner and the unit beside it.
    void makeQuantity();
    QLayout *quantityLayout();
    /// Below the fields: the day that the entry is written to and, in add mode, the row added
    /// last.
    void addTellTales(QGridLayout *form);
    /// A caption of calories and, below it, the figure, at the right end of a grid.
    QLabel *addFigure(QGridLayout *grid, const QString &caption, const QString &name);

    void checkQuantity();

    /// The chosen catalogue row's unit and, unless the record is being loaded, its usual quantity;
    /// null where nothing is chosen.
    void showChoice(const Recordset *row);
    /// What the box holds, null for what is no number.
    std::optional<Currency> quantity() const { return m_quantity; }

    QLineEdit *txtQty = nullptr;
    UpDownSpinner *updSpin = nullptr;
    QLabel *lblUnit = nullptr;

private:
    void showUnit(const QString &unit);
    void readQuantity();
    void stepQuantity(bool up);
    void tellAdded();

    QLabel *lblDay = nullptr;
    QLabel *lblAdded = nullptr;
    schema::Column m_dateColumn;
    bool m_addMode = false;
    std::optional<Currency> m_quantity;
};
