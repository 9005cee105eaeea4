// The control that a chart is shown in.
#pragma once

#include "plot/fonts.h"

#include <QPixmap>
#include <QWidget>

namespace plot {

/// Draws a chart when it has changed and is next seen, however many changes came before. From the
/// next time on it keeps a picture of it, so that a pointer that moves over it costs little. Takes
/// the keyboard's focus and follows the pointer.
class ChartWidget : public QWidget
{
    Q_OBJECT

protected:
    explicit ChartWidget(QWidget *parent);

    /// To be called when something of the chart has changed; the size, the font and the palette
    /// call it themselves.
    void relayout();
    /// Forgets what was computed for the chart as it was.
    virtual void forgetLayout() = 0;
    /// Computes what paintPicture needs.
    virtual void computeLayout() = 0;
    /// Draws the whole chart but for what is emphasized.
    virtual void paintPicture(QPainter &painter) = 0;
    /// Draws what the pointer and the keyboard stand on, over the chart.
    virtual void paintEmphasis(QPainter &painter) = 0;
    /// Whether the frame of the keyboard's focus is drawn.
    virtual bool showsFocus() const { return hasFocus(); }

    const Fonts &fonts() const { return m_fonts; }

    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    void keepPicture();

    Fonts m_fonts;
    bool m_isNew = true; ///< not seen since it was last laid out
    QPixmap m_picture;
};

} // namespace plot
