// A window that is used beside others.
#pragma once

#include <QObject>
#include <QPointer>

class QWidget;

/// Opens a window beside others, so that it hides as little of them as it can, and lets it be used
/// while modal ones are open: it becomes a window of the topmost of these. It closes with its
/// parent, doesn't keep the program running, and gives the focus back when it closes.
class Companion : public QObject
{
    Q_OBJECT

public:
    explicit Companion(QWidget &window);

    /// Brings the window to the front where it is open.
    void openBeside(QWidget &other);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void keepTo(QWidget &other);
    void keepToTop();
    void keepToTopSoon();
    void moveBeside();
    void giveFocusBack();

    QWidget &m_window;
    QPointer<QWidget> m_other;
};
