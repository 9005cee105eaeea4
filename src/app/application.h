#pragma once

#include <QApplication>

class Messages;

/// The last catch: what no window could explain is shown, and the program keeps running with the
/// data as they were.
class Application : public QApplication
{
    Q_OBJECT

public:
    Application(int &argc, char **argv, Messages &messages);
    bool notify(QObject *receiver, QEvent *event) override;

protected:
    bool event(QEvent *event) override;

private:
    Messages &m_messages;
};
