// A line of text and the records that it can mean.
#pragma once

#include "quickadd/quickentry.h"

#include <QWidget>

class ListModel;
class QLabel;
class QLineEdit;
class ReportView;

/// A text box, what was understood of its figures, and a list of the records that the line can
/// mean, the likeliest selected. The box keeps the focus; the arrow keys in it walk through the
/// list. What the selected record and the line make is the entry.
class RecordFinder : public QWidget
{
    Q_OBJECT

public:
    /// Looks among meals alone, or activities too. Throws StoreError where catalogue or journal
    /// can't be read.
    RecordFinder(Session &session, Recordables::Among among, const QString &caption,
                 const QString &example, QWidget *parent);

    /// Reads catalogue and habits anew and shows what the line means now. Throws StoreError and
    /// shows what it showed.
    void reload();
    /// Begins anew, or with a line.
    void setLine(const QString &line);

    const QuickText &line() const { return m_line; }
    /// The selected record, null for none; it stands until the line or the list changes.
    const Recordable *record() const;
    /// What would be recorded now, as it is shown; of no record why there is none.
    QuickEntry entry() const;
    /// What was understood, as it is shown.
    QString understood() const;

    QLineEdit *box() const { return txtEntry; }
    QSize sizeHint() const override;

Q_SIGNALS:
    /// The line, the selection or the minute is another one.
    void changed();
    /// A record of the list was double-clicked.
    void taken();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void makeList();
    void layOut(const QString &caption);
    void showLine();
    void offer(const std::vector<const Recordable *> &records);
    void followClock();
    Recordables::Among kinds() const;
    QString nothingFound() const;
    QTime now() const;

    Session &m_session;
    const Recordables::Among m_among;
    QuickTextReader m_reader;
    Recordables m_recordables;
    Recordable m_plainCalories; ///< while the catalogue has none
    QuickText m_line;
    QTime m_now; ///< that the entries shown were made with
    std::vector<const Recordable *> m_offered;
    ListModel *m_model;

    QLineEdit *txtEntry;
    QLabel *lblUnderstood;
    ReportView *lvwList;
};
