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
    qint32 editRecord(qint32 id) override;
    void removeRecord(qint32 id) override;
};
