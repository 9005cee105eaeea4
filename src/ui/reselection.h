// What a list selects anew.
#pragma once

#include <QString>

/// What becomes the selected row after a refresh: by name in the catalogues, by identifier in the
/// journal, nothing by default.
struct Reselection
{
    QString name = {};
    qint32 id = 0;
};
