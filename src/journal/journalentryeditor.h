// What the two editors of the daily journal share.
#pragma once

#include "ui/recordeditor.h"

class DataCombo;
class QGridLayout;
class QTimeEdit;
class UpDownSpinner;
class deData;

/// An editor of something eaten or done on a day: a catalogue record, a time and a quantity. A new
/// row takes its identifier from the journal's counter and goes to the session's current date; the
/// time stored is proposed for the next entry. In add mode the dialog stays open after each stored
/// row, cleared for the next one, and has the chart behind it follow.
class JournalEntryEditor : public RecordEditor
{
    Q_OBJECT

public:
    /// To be called before the dialog is shown; goes with a new record only.
    void setAddMode(bool on);
    /// The identifier of the row stored last, 0 before.
    qint32 storedId() const { return m_storedId; }

protected:
    /// Where the rows of the window's table get their key and their day from.
    struct Journal
    {
        QLatin1StringView idColumn;
        QLatin1StringView dateColumn;
        qint16 (*newId)(deData &);
    };

    JournalEntryEditor(Session &session, Messages &messages, Recordset &source,
                       const Journal &journal, const QString &name, const QString &caption,
                       QWidget *parent);

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
    QPushButton *makeNewButton(const QString &name, const QString &caption);
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
    std::optional<Currency> quantity() const;

    QLineEdit *txtQty = nullptr;
    UpDownSpinner *updSpin = nullptr;
    QLabel *lblUnit = nullptr;

private:
    void stepQuantity(bool up);
    void tellAdded();

    QLabel *lblDay = nullptr;
    QLabel *lblAdded = nullptr;
    Journal m_journal;
    bool m_addMode = false;
    qint32 m_storedId = 0;
};
