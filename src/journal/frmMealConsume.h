// Records that a meal was eaten, or changes such a record.
#pragma once

#include "data/nutrients.h"
#include "journal/journalentryeditor.h"

class MealCategoryChooser;
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
    void categoryChanged();
    void mealChanged();
    void createMeal();

    MealCategoryChooser *dcbMealCategory;
    DataCombo *dcbMeal;
    QPushButton *btnNewMeal;
    QTimeEdit *dtpTime;
    Nutrients<QLabel *> m_figures; ///< lblFat, lblCarboHydrate, lblProtein
    QLabel *lblCalories;

    Currency m_increment = Currency::fromInteger(1);
};
