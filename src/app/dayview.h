// The day shown: its chart, its date and the way to the next.
#pragma once

#include <QWidget>

class ElidedLabel;
class QLabel;
class QLineEdit;
class QPushButton;
class TrellumGraph;

/// What fills the main window below its toolbar.
class DayView : public QWidget
{
    Q_OBJECT

public:
    explicit DayView(QWidget *parent = nullptr);

    /// While the chart is printed, what does not belong on the page is out of sight.
    void setNavigationVisible(bool visible);
    /// Says beside the heading that there is sample data, with a button to delete it.
    void setSampleNoticeVisible(bool visible);
    /// Names the date's day of the week beside it, by the abbreviation where there is no room.
    void setWeekday(const QString &name, const QString &abbreviation);
    /// Says beside the heading what was done, until it is called with an empty text.
    void tell(const QString &text);
    /// Tells of backups beside the weekday, where there is room.
    void setBackupNotice(const QString &text);
    double pixelsPerTwip() const;

    QLabel *Label1;
    TrellumGraph *graph;
    QPushButton *btnPrev;
    QPushButton *btnNext;
    QLineEdit *txtDate;
    QLabel *lblWeekday;
    ElidedLabel *lblBackup;
    QPushButton *btnHelp;
    QPushButton *btnDeleteSample;

Q_SIGNALS:
    void dateDoubleClicked();

protected:
    void resizeEvent(QResizeEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget *makeSampleNotice();
    QWidget *makeBesideHeading();
    void layOut();
    void placeWeekday();
    void placeBackupNotice();

    QLabel *lblTold;
    QWidget *m_sampleNotice;
    QString m_weekday;
    QString m_weekdayAbbreviation;
    QWidget *m_besideHeading;
};
