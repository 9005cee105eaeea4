// Records a body measurement, or changes one.
#pragma once

#include "ui/recordeditor.h"

class QDateEdit;

/// The body measurement editor. A new measurement is proposed for the session's current date and
/// written in the user's unit system. There is one measurement per day: storing one on a date that
/// has another replaces that other one, after a question.
class frmBody : public RecordEditor
{
    Q_OBJECT

public:
    frmBody(Session &session, Messages &messages, QWidget *parent = nullptr);

    bool OkPressed() const { return isStored(); }

protected:
    void Populate() override;
    void Gather() override;
    bool confirmStore() override;
    std::vector<Step> storeSteps() override;
    bool dependsOnParameters() const override { return true; }

private:
    void showUnits();
    QLayout *makeForm();
    void makeChecks();
    qint32 otherMeasurement();

    QDateEdit *dtpDate;
    QLineEdit *txtWeight;
    QLabel *lblWeightUnit;
    QLineEdit *txtBreast;
    QLineEdit *txtWaist;
    QLineEdit *txtHips;
    QLabel *lblGirthUnit;
    qint32 m_replaced = 0; ///< BodyID of the measurement that the user agreed to replace
};
