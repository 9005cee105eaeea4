// The catalogue of meal categories.
#pragma once

#include "catalogue/cataloguelist.h"

class frmMealCategories : public CatalogueList
{
    Q_OBJECT

public:
    frmMealCategories(Session &session, Messages &messages, QWidget *parent = nullptr);

protected:
    ListRows rows() override;
    std::optional<Reselection> edit(qint32 id) override;
};
