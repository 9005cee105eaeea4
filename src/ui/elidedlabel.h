// A label for a text of any length.
#pragma once

#include <QLabel>

/// Asks for no more width than short texts need, and shows of a longer one what there is room for
/// and an ellipsis; the whole is in its tooltip and is what a screen reader says. One line, plain
/// text.
class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget *parent = nullptr, Qt::TextElideMode mode = Qt::ElideRight);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    int textFlags() const;
    QString elidedText() const;

    Qt::TextElideMode m_mode;
};
