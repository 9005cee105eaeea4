// The catalogue of meals, one category at a time.
#pragma once

#include "catalogue/cataloguelist.h"

class MealCategoryChooser;

class frmMeals : public CatalogueList
{
    Q_OBJECT

public:
    frmMeals(Session &session, Messages &messages, QWidget *parent = nullptr);

protected:
    ListRows rows() override;
    std::optional<Reselection> edit(qint32 id) override;
    void load() override;

private:
    void categoryChanged();

    MealCategoryChooser *dcbMealCategory;
    /// The window itself chooses a category and refreshes the list afterwards.
    bool m_switchingCategory = false;
};
