// How far a long action is.
#pragma once

#include <QCoreApplication>
#include <QProgressDialog>

/// Comes up where the action takes longer than a moment, and offers Cancel.
class ProgressBox : public QProgressDialog
{
    Q_DECLARE_TR_FUNCTIONS(ProgressBox)

public:
    ProgressBox(QWidget *window, const QString &name, const QString &text)
        : QProgressDialog(text, tr("&Cancel"), 0, 100, window)
    {
        constexpr int moment = 500; // milliseconds
        setObjectName(name);
        setWindowModality(Qt::ApplicationModal);
        setMinimumDuration(moment);
        setValue(0);
    }

    /// Shows what is done, from 0 to 100; false where it was cancelled.
    bool advance(int percent)
    {
        setValue(percent);
        return !wasCanceled();
    }
};
