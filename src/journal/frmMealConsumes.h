// The meals consumed on a day.
#pragma once

#include "journal/daylist.h"

class frmMealConsumes : public DayList
{
    Q_OBJECT

public:
    frmMealConsumes(Session &session, Messages &messages, QWidget *parent = nullptr);

protected:
    Recordset &rows() const override;
    ListRow currentRow() const override;
    std::optional<Reselection> editRecord(qint32 id) override;
};
