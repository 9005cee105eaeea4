// The chooser of a meal category.
#pragma once

#include "ui/datacombo.h"

class Session;

/// Offers all categories by name, and is named after them for screen readers.
class MealCategoryChooser : public DataCombo
{
    Q_OBJECT

public:
    MealCategoryChooser(Session &session, QWidget *parent);

    /// Reads the categories; none is chosen then. Throws StoreError.
    void load();

private:
    Session &m_session;
};
