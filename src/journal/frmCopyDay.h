// Copies entries of another day to the day shown.
#pragma once

#include "journal/entrycopying.h"
#include "ui/formdialog.h"

class ListModel;
class QComboBox;
class QDateEdit;
class QRadioButton;
class ReportView;
struct ListRow;

/// Offers the meals and activities of a day, yesterday's first, all of them checked. Those that
/// stay checked are copied, at the same times or all of them earlier or later by the same span.
class frmCopyDay : public FormDialog
{
    Q_OBJECT

public:
    frmCopyDay(Session &session, Messages &messages, QWidget *parent = nullptr);

    /// Shows the window modally; what was copied. Throws StoreError where yesterday can't be read.
    std::optional<EntryCopies> run();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void makeControls();
    void makeTimes();
    QLayout *makeForm();
    QLayout *makeTimesForm();
    void makeChecks();
    void load();
    ListRow rowOf(const Recordset &entry, const EntryKind &kind) const;
    void tellState(const QStringList &missing);
    void showDay();
    void loadAgain();
    std::vector<DayEntry> checkedEntries() const;
    int minutes() const;
    bool staysInDay(const std::vector<DayEntry> &entries);
    void accept() override;

    QDateEdit *dtpDate;
    ListModel *m_rows;
    ReportView *lvwList;
    QLabel *lblState; ///< in sight only where there is something to tell
    QPushButton *btnCheckAll;
    QPushButton *btnCheckNone;
    QRadioButton *optKeep;
    QRadioButton *optShift;
    QLineEdit *txtSpan;
    QComboBox *cbxDirection;
    QLabel *lblDay;

    QDate m_day;                     ///< of the rows
    bool m_dayAsked = false;         ///< since the last key in the picker or press of Copy
    std::vector<DayEntry> m_entries; ///< row by row
    std::optional<EntryCopies> m_copies;
};
