// Records that a meal was eaten, or changes such a record.
#pragma once

#include "ui/recordeditor.h"

class DataCombo;
class QGroupBox;
class QTimeEdit;
class UpDownSpinner;

/// The meal consumption editor. A new row goes to the session's current date at the time shown.
/// In add mode it stays open after each stored row, cleared for the next meal.
class frmMealConsume : public RecordEditor
{
    Q_OBJECT

public:
    frmMealConsume(Session &session, Messages &messages, QWidget *parent = nullptr);

    /// To be set before the dialog is shown; goes with a new record only.
    void setAddMode(bool on) { m_addMode = on; }
    /// MealConsumeID of the row stored last, 0 before.
    qint32 storedId() const { return m_storedId; }

protected:
    void Populate() override;
    void Gather() override;
    void recordStored() override;
    bool appendsRecord() const override { return m_addMode || RecordEditor::appendsRecord(); }

private:
    void makeControls();
    QLayout *makeForm();
    QGroupBox *makeFigures();
    void makeChecks();
    void makeConnections();
    void enterAddMode();
    void loadCategories();
    void categoryChanged();
    void mealChanged();
    void recalculate();
    void stepQuantity(bool up);
    void clearForNextMeal();

    DataCombo *dcbMealCategory;
    DataCombo *dcbMeal;
    QPushButton *btnNewMeal;
    QTimeEdit *dtpTime;
    QLineEdit *txtQty;
    UpDownSpinner *updSpin;
    QLabel *lblUnit;
    QLabel *lblFat;
    QLabel *lblCarboHydrate;
    QLabel *lblProtein;
    QLabel *lblCalories;

    bool m_addMode = false;
    qint32 m_storedId = 0;
    Currency m_increment = Currency::fromInteger(1);
};
