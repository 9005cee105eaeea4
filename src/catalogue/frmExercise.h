// An activity of the catalogue: its unit and the calories that one unit burns.
#pragma once

#include "catalogue/catalogueeditor.h"

class QCheckBox;

/// The activity editor. The calories of a weight-dependent activity are entered for the user's own
/// body; with them the calories for the reference body are stored.
class frmExercise : public CatalogueEditor
{
    Q_OBJECT

public:
    frmExercise(Session &session, Messages &messages, QWidget *parent = nullptr);

protected:
    void Populate() override;
    bool Validate() override;
    void Gather() override;
    QString refusedStoreMessage() const override;
    QString takenNameCause() const override;
    bool dependsOnParameters() const override { return true; }

private:
    void makeControls();
    QLayout *makeForm();
    void makeChecks();
    void makeConnections();
    void showDependence();
    void adjustToWeight();
    double caloriesForReferenceBody() const;

    QLineEdit *txtCaloriesConsume;
    QLabel *lblPerWhat;
    QPushButton *btnWeightAdjust;
    QCheckBox *chkWeightDependent;
    QLineEdit *txtDefaultQty;
    QLineEdit *txtUnit;

    bool m_caloriesChanged = false;  ///< they or their dependence on weight, since the loading
    bool m_caloriesAdjusted = false; ///< by the calculator: known to be for the user's body
};
