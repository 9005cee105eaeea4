// What the menus of the lists of a day and of the chart offer for one entry, besides changing and
// deleting it.
#pragma once

#include "journal/entrycopying.h"

#include <functional>

struct EntryCommand
{
    QString name; ///< of the menu's entry
    QString caption;
    /// What it has copied. Throws StoreError where the entry that it shows can't be read; a copy
    /// tells itself of what is refused.
    std::function<std::optional<EntryCopies>(QWidget *parent, qint32 id)> run;
};

/// Session and messages must outlive the commands.
std::vector<EntryCommand> entryCommands(Session &session, Messages &messages,
                                        const EntryKind &kind);
