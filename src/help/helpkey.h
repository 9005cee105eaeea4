// F1 in every window.
#pragma once

#include <QObject>

/// Installed on the application: answers F1 with the page of the window it was pressed in, whose
/// name is the window's objectName; in a menu, list or calendar, with that of the window below.
class HelpKeyFilter : public QObject
{
    Q_OBJECT

public:
    explicit HelpKeyFilter(const QString &helpFile, QObject *parent = nullptr);
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QString m_helpFile;
};
