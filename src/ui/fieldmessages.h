// What is said of a field that can't be stored, by the field's name.
#pragma once

#include <QCoreApplication>

/// "The Unit should be specified".
inline QString shouldBeSpecified(const QString &field)
{
    return QCoreApplication::translate("FieldMessages", "The %1 should be specified").arg(field);
}

/// "The Fat field contains illegal data".
inline QString containsIllegalData(const QString &field)
{
    return QCoreApplication::translate("FieldMessages", "The %1 field contains illegal data")
        .arg(field);
}
