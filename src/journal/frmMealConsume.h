// Records that a meal was eaten, or changes such a record.
#pragma once

#include "data/nutrients.h"
#include "journal/journalentryeditor.h"

class MealCategoryChooser;
class QGroupBox;

/// The meal consumption editor. A category offers its meals and chooses the first of them. Without
/// one every meal is offered, and the meal chosen shows its category.
class frmMealConsume : public JournalEntryEditor
{
    Q_OBJECT

public:
    frmMealConsume(Session &session, Messages &messages, QWidget *parent = nullptr);
    ~frmMealConsume() override;

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
    void categoryChanged();
    void offerMeals();
    void readMeals(Recordset &meals);
    bool offersAll() const;
    void mealChanged();
    void showCategoryOfMeal();
    void createMeal();

    MealCategoryChooser *dcbMealCategory;
    DataCombo *dcbMeal;
    QPushButton *btnNewMeal;
    QTimeEdit *dtpTime;
    Nutrients<QLabel *> m_figures; ///< lblFat, lblCarboHydrate, lblProtein
    QLabel *lblCalories;

    Recordset *m_meals = nullptr; ///< those offered, on the chosen one; null before there are any
    /// The text that the category of the chosen meal stands in place of; none while the category
    /// is as it was chosen or typed.
    std::optional<QString> m_replacedCategory;
    Currency m_increment = Currency::fromInteger(1);
};
