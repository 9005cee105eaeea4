// Records meals and activities by a line of text.
#pragma once

#include "quickadd/quickentry.h"

#include <QDialog>

class Messages;
class QLabel;
class QPushButton;
class RecordFinder;

/// Quick Add: a line, the records that it can mean, and what Enter stores. After each store the
/// line is cleared for the next entry.
class frmQuickAdd : public QDialog
{
    Q_OBJECT

public:
    /// Throws StoreError where catalogue or journal can't be read.
    frmQuickAdd(Session &session, Messages &messages, QWidget *parent = nullptr);

private:
    void makeLabels();
    QLayout *makeButtons();
    void showEntry();
    void store();
    void write(const Recordable &record, const QuickEntry &entry);

    Session &m_session;
    Messages &m_messages;
    RecordFinder *m_finder;
    QTimer *m_pause; ///< in the typing, after which a screen reader says what would be stored

    QLabel *lblStore;
    QLabel *lblAdded;
    QPushButton *btnAdd;
};
