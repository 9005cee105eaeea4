// Why a backup can't be made or read.
#pragma once

#include <QCoreApplication>

#include <stdexcept>

/// Its text is a sentence for the user. What the engine refuses is a StoreError.
class BackupError : public std::runtime_error
{
    Q_DECLARE_TR_FUNCTIONS(BackupError)

public:
    explicit BackupError(const QString &reason)
        : std::runtime_error(reason.toStdString())
    {
    }
};
