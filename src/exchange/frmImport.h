// Imports files of comma-separated values.
#pragma once

#include "exchange/importplan.h"
#include "ui/formdialog.h"

class ElidedLabel;
class ImportColumns;
class ListModel;
class QComboBox;
class QTabWidget;
class QTableWidget;
class QTimer;
class ReportView;

/// Files, and what is recognized in them: what each holds, which column is which, the first records
/// as they would be stored, and the lines with a fault. Nothing is stored before Import, which
/// stores everything as one step.
class frmImport : public FormDialog
{
    Q_OBJECT

public:
    frmImport(Session &session, Messages &messages, QWidget *parent = nullptr);

    /// Reads these files in the place of those that are shown; what can't be read is told of.
    void read(const QStringList &paths);

protected:
    void accept() override;

private:
    void makeControls();
    void makeTabs();
    QLayout *makeForm();
    void pickFiles();
    void pickFolder();
    void showFiles();
    void showFile(int row);
    void takeKind(int entry);
    void planSoon();
    void plan();
    void showPlan();
    void showPreview();
    void showFaults();
    void copyFaults() const;
    QString countsText() const;
    QString obstacle() const;
    ExistingRecords existing() const;
    ImportPlace place() const;
    void store();
    ImportFile *current();

    std::vector<ImportFile> m_files;
    ImportPlan m_plan;
    int m_current = -1; ///< of the files

    QPushButton *btnFiles;
    QPushButton *btnFolder;
    ElidedLabel *lblPath;
    ListModel *m_fileRows;
    ReportView *lvwFiles;
    QComboBox *cboHolds;
    ElidedLabel *lblRead;
    QTabWidget *tabFile;
    ImportColumns *m_columns;
    QTableWidget *tblPreview;
    ListModel *m_faultRows;
    ReportView *lvwFaults;
    QPushButton *btnCopy;
    QComboBox *cboExisting;
    QLabel *lblCounts;
    QTimer *m_planning; ///< runs while the plan is older than what is shown
};
