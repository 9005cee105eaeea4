// Exports the journal as files for spreadsheets and other programs.
#pragma once

#include "exchange/journalexport.h"
#include "ui/formdialog.h"

class QDateEdit;
class QProgressBar;
class QRadioButton;

/// Asks what is to be exported, in which dialect and into which folder. While it is written a bar
/// shows how far it is, and Cancel, Escape or closing the window end it without a trace.
class frmExport : public FormDialog
{
    Q_OBJECT

public:
    frmExport(Session &session, Messages &messages, QWidget *parent = nullptr);

    void reject() override;

private:
    void accept() override;
    void makeControls();
    QLayout *makeForm();
    void makeChecks();
    QRadioButton *makeOption(const QString &name, const QString &caption);
    void checkPicker(QDateEdit *picker, const QString &field);
    void browse();
    ExportOrder order() const;
    void setWriting(bool on);
    bool showProgress(double share);

    QRadioButton *optWhole;
    QRadioButton *optPeriod;
    QDateEdit *dtpDateFrom;
    QDateEdit *dtpDateTo;
    QRadioButton *optPlain;
    QRadioButton *optSpreadsheet;
    QLineEdit *txtFolder;
    QPushButton *btnBrowse;
    QProgressBar *prgExport;
    QWidget *m_fields; ///< all but the bar and the buttons
    bool m_isWriting = false;
    bool m_isCancelled = false;
};
