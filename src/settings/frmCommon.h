// The facts about the user that the rest of the program computes with.
#pragma once

#include "ui/recordeditor.h"

class QComboBox;

/// The common parameters dialog. Accepting it stores the parameters and brings all stored data
/// into line: body measurements of the other unit system are converted, weight-dependent
/// activities scaled to the new weight.
class frmCommon : public RecordEditor
{
    Q_OBJECT

public:
    frmCommon(Session &session, Messages &messages, QWidget *parent = nullptr);

    /// The very first start: the user can only accept, and is not told of recalculated data.
    void setFirstStart(bool on);
    /// Shows the dialog modally; true where the parameters were stored and the data recalculated.
    bool run() { return RecordEditor::run(0); }
    bool OkPressed() const { return m_okPressed; }

    void reject() override;

protected:
    void openSource() override;
    bool appendsRecord() const override { return false; }
    void Populate() override;
    void Gather() override;
    std::vector<Step> storeSteps() override;
    Refusal refusal() const override { return Refusal::UndoesAll; }
    void recordStored() override;
    QString refusedStoreMessage() const override;

private:
    QLayout *makeForm();
    bool isMetricChosen() const;
    void unitPicked();
    void UpdateBackgroundCalories();
    void ShowWeightUnit();

    QLineEdit *txtWeight;
    QLabel *lblWeightUnit;
    QLineEdit *txtMetabolicRate;
    QComboBox *cbxMeasurement;
    bool m_firstStart = false;
    bool m_okPressed = false;
};
