// Records a note on a period of days, or changes one.
#pragma once

#include "ui/recordeditor.h"

class QDateEdit;
class PlainTextBox;

/// The user note editor. The periods of two notes never share a day: a note that would overlap
/// another one is refused. In the text, Enter begins a new line and Ctrl+Enter presses OK.
class frmUserNote : public RecordEditor
{
    Q_OBJECT

public:
    frmUserNote(Session &session, Messages &messages, QWidget *parent = nullptr);

protected:
    void Populate() override;
    void Gather() override;
    bool confirmStore() override;

private:
    void makeControls();
    QLayout *makeForm();
    void makeChecks();
    QString note() const;

    QDateEdit *dtpDateFrom;
    QDateEdit *dtpDateTo;
    PlainTextBox *txtNote;
};
