// The up-down spinner beside a number's text box.
#pragma once

#include <QWidget>

class QLineEdit;
class QToolButton;

/// Two small buttons; the Up and Down keys in the text box do the same. What a step means is the
/// window's: the spinner knows no value and no bounds.
class UpDownSpinner : public QWidget
{
    Q_OBJECT

public:
    /// `what` names the stepped quantity for screen readers ("Quantity").
    UpDownSpinner(QLineEdit *box, const QString &what, QWidget *parent = nullptr);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void upPressed();
    void downPressed();

private:
    QToolButton *makeButton(Qt::ArrowType arrow, const QString &name);

    QLineEdit *m_box;
};
