// Records meals and activities by a line of text.
#pragma once

#include "quickadd/quickentry.h"

#include <QDialog>

class ListModel;
class Messages;
class QLabel;
class QLineEdit;
class QPushButton;
class QTreeView;

/// Quick Add: a text box, the records that its line can mean, and what Enter stores. The box keeps
/// the focus; the arrow keys in it walk through the list. After each store it is cleared for the
/// next entry.
class frmQuickAdd : public QDialog
{
    Q_OBJECT

public:
    /// Throws StoreError where catalogue or journal can't be read.
    frmQuickAdd(Session &session, Messages &messages, QWidget *parent = nullptr);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void makeControls();
    QLayout *makeButtons();
    void layOut();
    void load();
    /// Reads the line anew and offers what it can mean.
    void showLine();
    void offer(std::vector<const Recordable *> records);
    void showEntry();
    void followClock();
    void store();
    void write(const Recordable &record, const QuickEntry &entry);
    void tellAdded(const QString &what);
    /// What a screen reader says of the line, once the typing pauses.
    void speakLater();

    QTime now() const;
    const Recordable *selected() const;
    QString nothingFound() const;

    Session &m_session;
    Messages &m_messages;
    QuickTextReader m_reader;
    Recordables m_recordables;
    Recordable m_plainCalories; ///< while the catalogue has none
    QuickText m_line;
    QTime m_now; ///< that the entries shown were made with
    std::vector<const Recordable *> m_offered;
    ListModel *m_model;
    QTimer *m_pause;

    QLineEdit *txtEntry;
    QLabel *lblUnderstood;
    QTreeView *lvwList;
    QLabel *lblStore;
    QLabel *lblAdded;
    QPushButton *btnAdd;
};
