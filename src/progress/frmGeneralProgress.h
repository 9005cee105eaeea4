// General progress over a period: the chart, what it tells, and the same as a table.
#pragma once

#include "progress/progresstable.h"

#include <QDialog>

class DaysTable;
class Messages;
class ProgressChart;
class QBoxLayout;
class QLabel;
class QPushButton;
class QTabWidget;
class QTableWidget;
class Session;

class frmGeneralProgress : public QDialog
{
    Q_OBJECT

public:
    /// Reads the period once; throws StoreError, OverflowError and std::out_of_range as loadSeries
    /// and ProgressChart do.
    frmGeneralProgress(Session &session, Messages &messages, const progress::Period &period,
                       QWidget *parent = nullptr);

private:
    QWidget *makeChartPage();
    QWidget *makeSide();
    QBoxLayout *makeButtons();
    void makeConnections();
    void fillNotes();
    void sizeToScreen();

    void tellDay(qint16 day);
    void print();
    void save();
    void copyTable();

    Messages &m_messages;
    progress::DaySeries m_series;
    progress::ProgressTexts m_texts;
    progress::DaysText m_table;

    QTabWidget *tabPages;
    ProgressChart *m_chart;
    QLabel *lblDay;
    QTableWidget *lvwNotes;
    DaysTable *m_days;
    QPushButton *btnPrint;
    QPushButton *btnSave;
    QPushButton *btnCopy;
    QPushButton *btnClose;
    QPushButton *btnHelp;
};

/// Shows the window modally; a figure beyond what it can hold is told in a message instead.
void showGeneralProgress(Session &session, Messages &messages, const progress::Period &period,
                         QWidget *parent);
