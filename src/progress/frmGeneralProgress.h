// General progress over a period and those before and after it: the chart, what it tells, and the
// same as tables.
#pragma once

#include "progress/progresstexts.h"

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
class WeeksTable;

class frmGeneralProgress : public QDialog
{
    Q_OBJECT

public:
    /// Reads the period, one of periodOfMonths; throws StoreError, OverflowError and
    /// std::out_of_range as loadSeries and ProgressChart do.
    frmGeneralProgress(Session &session, Messages &messages, const progress::Period &period,
                       QWidget *parent = nullptr);

private:
    QWidget *makeChartPage();
    QWidget *makeSide();
    QBoxLayout *makeButtons();
    void makeConnections();
    QWidget *makePeriodBar();
    void makeNotes();
    void fillNotes();
    void measureNotes();
    void sizeToScreen();

    void showPeriod(const progress::PeriodSteps &steps);
    void tellPeriod();
    void offerSteps();
    void step(int periods);
    void tellDay(qint16 day);
    void print();
    void save();
    void copyTable();

    Session &m_session;
    Messages &m_messages;
    progress::PeriodSteps m_steps;
    progress::DaySeries m_series;
    progress::ProgressTexts m_texts;

    QTabWidget *tabPages;
    ProgressChart *m_chart;
    QLabel *lblDay;
    QLabel *m_notesHeading;
    QTableWidget *lvwNotes;
    DaysTable *m_days;
    WeeksTable *m_weeks;
    QPushButton *btnPrevious;
    QLabel *lblPeriod;
    QPushButton *btnNext;
    QPushButton *btnPrint;
    QPushButton *btnSave;
    QPushButton *btnCopy;
    QPushButton *btnClose;
    QPushButton *btnHelp;
};

/// Shows the window modally; a figure beyond what it can hold is told in a message instead.
void showGeneralProgress(Session &session, Messages &messages, const progress::Period &period,
                         QWidget *parent);
