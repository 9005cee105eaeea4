// One of the groups into which meals are sorted.
#pragma once

#include "catalogue/catalogueeditor.h"

/// The meal category editor.
class frmMealCategory : public CatalogueEditor
{
    Q_OBJECT

public:
    frmMealCategory(Session &session, Messages &messages, QWidget *parent = nullptr);

protected:
    void Populate() override;
    void Gather() override;
    QString refusedStoreMessage() const override;
    QString takenNameCause() const override;
};
