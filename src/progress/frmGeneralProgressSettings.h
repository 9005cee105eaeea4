// The choice of the period whose progress is shown.
#pragma once

#include "progress/progressperiod.h"
#include "ui/formdialog.h"

class QDateEdit;
class QRadioButton;

/// Asks for the first day and for a length of one, three or six months, and warns where the
/// journal holds little in that period.
class frmGeneralProgressSettings : public FormDialog
{
    Q_OBJECT

public:
    frmGeneralProgressSettings(Session &session, Messages &messages, QWidget *parent = nullptr);

    bool OkPressed() const { return m_okPressed; }
    /// What was chosen, once OkPressed.
    const progress::Period &period() const { return m_period; }

private:
    void accept() override;
    QRadioButton *makeLength(const QString &name, const QString &caption);
    QLayout *makeForm();
    qint16 chosenMonths() const;
    bool wantsChartAnyway(const QString &question);

    QDateEdit *dtpDate;
    QRadioButton *opt1Month;
    QRadioButton *opt3Month;
    QRadioButton *opt6Month;
    progress::Period m_period;
    bool m_okPressed = false;
};
