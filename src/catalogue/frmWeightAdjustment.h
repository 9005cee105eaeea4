// The weight adjustment calculator.
#pragma once

#include "ui/formdialog.h"

/// Scales the calories that a source of information gives for some body weight to the user's own.
class frmWeightAdjustment : public FormDialog
{
    Q_OBJECT

public:
    frmWeightAdjustment(Session &session, Messages &messages, QWidget *parent = nullptr);

    /// To be set before the dialog is shown: the text to begin with.
    void setCaloriesConsume(const QString &text);
    /// Shows the dialog modally; true where there is a result.
    bool run();
    bool OK() const { return m_ok; }
    /// The calories for the user's body, once OK.
    qint16 caloriesAdjusted() const { return m_caloriesAdjusted; }

private:
    void accept() override;
    QLayout *makeForm();

    QLineEdit *txtWeight;
    QLabel *lblMeasurement;
    QLineEdit *txtCaloriesConsume;
    bool m_ok = false;
    qint16 m_caloriesAdjusted = 0;
};
