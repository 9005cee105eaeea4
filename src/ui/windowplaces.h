// Where the user has put the windows.
#pragma once

#include <QObject>
#include <QString>

/// To be installed on the application: the main window, the lists, the progress window and the
/// help open where and as large as they were when they were closed last, in an earlier run too. A
/// place on a screen that is gone is forgotten. Editors and messages open where their opener is.
class WindowPlaces : public QObject
{
    Q_OBJECT

public:
    /// They are kept in the installation's settings, beside the database.
    explicit WindowPlaces(const QString &programFolder, QObject *parent = nullptr);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QString m_programFolder;
};
