// Records that a meal was eaten, or changes such a record.
#pragma once

#include "journal/journalentryeditor.h"

class QGroupBox;

/// The meal consumption editor.
class frmMealConsume : public JournalEntryEditor
{
    Q_OBJECT

public:
    frmMealConsume(Session &session, Messages &messages, QWidget *parent = nullptr);

protected:
    void Populate() override;
    void Gather() override;
    QTime entryTime() const override;
    QString entryName() const override;
    void recalculate() override;
    QString steppedQuantity(bool up) const override;
    void clearChoosers() override;

private:
    void makeControls();
    QLayout *makeForm();
    QGroupBox *makeFigures();
    void makeChecks();
    Recordset &meals() const;
    void loadCategories();
    void categoryChanged();
    void mealChanged();
    void createMeal();

    DataCombo *dcbMealCategory;
    DataCombo *dcbMeal;
    QPushButton *btnNewMeal;
    QTimeEdit *dtpTime;
    QLabel *lblFat;
    QLabel *lblCarboHydrate;
    QLabel *lblProtein;
    QLabel *lblCalories;

    Currency m_increment = Currency::fromInteger(1);
};
