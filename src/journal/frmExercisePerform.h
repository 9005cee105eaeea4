// Records that an activity was performed, or changes such a record.
#pragma once

#include "journal/journalentryeditor.h"

/// The activity performance editor. The quantity is the user's: it is not derived from the times,
/// which are for the chart and the list.
class frmExercisePerform : public JournalEntryEditor
{
    Q_OBJECT

public:
    frmExercisePerform(Session &session, Messages &messages, QWidget *parent = nullptr);

protected:
    void Populate() override;
    void Gather() override;
    QTime entryTime() const override;
    QString entryName() const override;
    void recalculate() override;
    QString steppedQuantity(bool up) const override;
    void clearChoosers() override;

private:
    void makeControls();
    QLayout *makeForm();
    void makeChecks();
    Recordset &activities() const;
    void loadActivities();
    void activityChanged();
    void createActivity();

    DataCombo *dcbExercise;
    QPushButton *btnNewCategory;
    QTimeEdit *dtpBeginTime;
    QTimeEdit *dtpEndTime;
    QLabel *lblCalories;
};
