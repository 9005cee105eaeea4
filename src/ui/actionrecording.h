// Records what the user does under the words in which it can be undone.
#pragma once

#include "data/undohistory.h"

#include <QCoreApplication>

class Session;

/// What is called by what was stored: a catalogue record and an entry of the day by their name, a
/// measurement and a note by their date. Never empty; a name too long for a menu is cut short.
QString recordName(const Session &session, const schema::Table &table, qint32 id);

/// Records one action on a record: what is stored while this lives is one step of the session's
/// history. Its words name the record, before it is deleted or after it is stored.
class ActionRecording
{
    Q_DECLARE_TR_FUNCTIONS(ActionRecording)

public:
    enum class Action
    {
        Adding,
        Changing,
        Deleting
    };

    ActionRecording(Session &session, Action action, const schema::Table &table);

    /// Puts the name of the record into the words.
    void name(qint32 id);

private:
    QString words(const QString &what) const;

    Session &m_session;
    Action m_action;
    const schema::Table &m_table;
    UndoHistory::Recording m_recording;
};
