// Removing a record, asked for and announced.
#pragma once

#include <QString>

class Messages;
class QWidget;
class Recordset;
class Session;
struct Command;

/// How a record of a kind is removed.
struct Removal
{
    /// Of the command for a single record, through which one is deleted.
    Recordset &records;
    /// Deletes it instead, where there is one; the identifier is its parameter.
    const Command *command = nullptr;
};

/// Asks whether the selected record is to be deleted.
bool confirmRemoval(QWidget *parent, Messages &messages);

/// Deletes a record and announces it; false where that was refused, and said so with `refusal`.
bool removeRecord(QWidget *parent, Session &session, Messages &messages, const Removal &removal,
                  qint32 id, const QString &refusal);
