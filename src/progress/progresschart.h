// The progress chart, a control of its own.
#pragma once

#include "plot/chartwidget.h"
#include "progress/progresspainter.h"
#include "progress/progresstexts.h"

/// Shows a period and says which of its days the pointer or the keyboard stands on.
///
/// Left and Right move by a day, Page Up and Page Down by a week, Home and End to the first and
/// the last day; a click moves the keyboard's day to the pointer, or chooses a note.
class ProgressChart : public plot::ChartWidget
{
    Q_OBJECT

public:
    /// The series and the texts must outlive the chart. Throws OverflowError where a value is
    /// beyond what a scale can hold; nothing later throws.
    ProgressChart(const progress::DaySeries &series, const progress::ProgressTexts &texts,
                  QWidget *parent = nullptr);

    /// To be called when the series holds another period: stands on its last known day then, and
    /// no note is chosen. Throws as the constructor does.
    void startAnew();
    /// The day of the keyboard, from 1.
    qint16 day() const { return m_day; }
    /// The note shown as chosen.
    void showNote(std::optional<size_t> note);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The day to tell of: the one under the pointer, else the one of the keyboard.
    void dayChanged(qint16 day);
    /// A note's span was clicked.
    void noteChosen(size_t note);

protected:
    void forgetLayout() override;
    void computeLayout() override { geometry(); }
    void paintPicture(QPainter &painter) override;
    void paintEmphasis(QPainter &painter) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    const progress::ProgressGeometry &geometry();
    void moveTo(int day);
    void point(std::optional<qint16> day);
    std::optional<qint16> dayAt(QPointF place);

    const progress::DaySeries &m_series;
    const progress::ProgressTexts &m_texts;
    std::optional<progress::ProgressGeometry> m_geometry; ///< in this size
    progress::ProgressColors m_colors;
    qint16 m_day = 1;
    std::optional<qint16> m_pointed;
    std::optional<size_t> m_note;
};
