// A meal of the catalogue: its unit, its calories and what they come from.
#pragma once

#include "catalogue/catalogueeditor.h"
#include "data/nutrients.h"

class MealCategoryChooser;
class QGroupBox;

/// The meal editor. The calories by nutrient are computed while calories or nutrients are typed;
/// what their boxes show at OK is what is stored.
class frmMeal : public CatalogueEditor
{
    Q_OBJECT

public:
    frmMeal(Session &session, Messages &messages, QWidget *parent = nullptr);

    /// To be set before the dialog is shown: the category to preselect for a new meal, 0 for none.
    void setCategoryId(qint32 id) { m_categoryId = id; }
    /// What a new meal is filled in with, per unit; to be set before the dialog is shown.
    struct Proposal
    {
        QString unit;
        Currency calories;
        Nutrients<Currency> grams;
    };
    void propose(const Proposal &proposal) { m_proposal = proposal; }
    /// After a store the stored meal's category, otherwise what was set.
    qint32 categoryId() const { return m_categoryId; }
    /// Whether a category was created from here, stored meal or not: the opener then reloads its
    /// own categories.
    bool categoriesChanged() const { return m_categoriesChanged; }
    /// Name of the category created last.
    QString newCategoryName() const { return m_newCategoryName; }

protected:
    void Populate() override;
    void Gather() override;
    void recordStored() override;
    QString refusedStoreMessage() const override;
    QString takenNameCause() const override;

private:
    /// A column of the record with the box that it is bound to.
    struct Bound
    {
        QLineEdit *box;
        schema::Column column;
    };

    void makeControls();
    QLayout *makeForm();
    QGroupBox *makeFrame(const QString &title, const Nutrients<QString> &captions,
                         const Nutrients<QLineEdit *> &boxes);
    void makeChecks();
    void makeConnections();
    std::vector<Bound> requiredNumbers() const;
    void createCategory();
    void showUnit();
    void showProposal();
    void splitCalories();
    void showShares();

    MealCategoryChooser *dcbMealCategory;
    QPushButton *btnNewCategory;
    QLineEdit *txtUnit;
    QLineEdit *txtDefaultQty;
    QLineEdit *txtIncrement;
    QLabel *lblCalories;
    QLineEdit *txtCalories;
    Nutrients<QLineEdit *> m_weights; ///< txtFat, txtCarboHydrate, txtProtein
    Nutrients<QLineEdit *> m_shares;  ///< txtFatBC, txtCarboHydrateBC, txtProteinBC

    std::optional<Proposal> m_proposal;
    qint32 m_categoryId = 0;
    bool m_categoriesChanged = false;
    QString m_newCategoryName;
};
