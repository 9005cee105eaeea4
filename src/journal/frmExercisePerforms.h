// The activities performed on a day.
#pragma once

#include "journal/daylist.h"

class frmExercisePerforms : public DayList
{
    Q_OBJECT

public:
    frmExercisePerforms(Session &session, Messages &messages, QWidget *parent = nullptr);

protected:
    Recordset &rows() const override;
    ListRow currentRow() const override;
    std::optional<Reselection> editRecord(qint32 id) override;
};
