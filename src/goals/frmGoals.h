// Sets what the user aims at.
#pragma once

#include "goals/goalpace.h"
#include "ui/formdialog.h"

class QCheckBox;
class QDateEdit;
class QRadioButton;

/// Target weight and girths, a date and a daily budget, each of which may be left out. What would
/// be unhealthily fast is said while it is typed, and once more before it is kept.
class frmGoals : public FormDialog
{
    Q_OBJECT

public:
    frmGoals(Session &session, Messages &messages, QWidget *parent = nullptr);

protected:
    void accept() override;

private:
    void makeControls();
    QLayout *makeForm();
    QWidget *makeTargets();
    QWidget *makeBudget();
    void makeChecks();
    void makeConnections();
    void populate();
    Goals gather() const;
    void checkRange(QLineEdit *box, const QString &field, double most);
    void checkCalories(QLineEdit *box, const QRadioButton *option, const QString &field);
    std::optional<double> numberIn(const QLineEdit *box) const;
    void showPace();
    /// What the goals would take, a sentence each; the last one warns, where that is too fast.
    QStringList paceSentences(const Goals &goals) const;
    QString warning(const Goals &goals) const;

    const bool m_isMetric;
    std::optional<double> m_presentWeight;

    QLineEdit *txtWeight;
    std::array<QLineEdit *, Goals::girthCount> txtGirths;
    QCheckBox *chkDate;
    QDateEdit *dtpDate;
    QRadioButton *optNoBudget;
    QRadioButton *optBudget;
    QRadioButton *optDeficit;
    QLineEdit *txtBudget;
    QLineEdit *txtDeficit;
    QLabel *lblPace;
};
