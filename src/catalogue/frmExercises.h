// The catalogue of activities.
#pragma once

#include "catalogue/cataloguelist.h"

class frmExercises : public CatalogueList
{
    Q_OBJECT

public:
    frmExercises(Session &session, Messages &messages, QWidget *parent = nullptr);

protected:
    ListRows rows() override;
    std::optional<Reselection> edit(qint32 id) override;
};
