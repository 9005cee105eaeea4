// A journal with a small catalogue for the windows of the day.
#pragma once

#include "guitest.h"
#include "testjournal.h"
#include "ui/datacombo.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTimeEdit>
#include <QTreeView>

void type(const QWidget &window, const char *box, const QString &text);

void choose(const QWidget &window, const char *chooser, const QString &text);

void press(const QWidget &window, const char *button);

/// Presses a button and does the steps on the dialog that it opens.
void press(const QWidget &window, const char *button, const char *dialog,
           const std::function<void(QWidget &)> &steps);

class DayJournal : public TestJournal
{
public:
    explicit DayJournal(const QLocale &locale = QLocale(QLocale::English, QLocale::UnitedKingdom));

    /// Rows of the two journal tables: key, catalogue key, day, minutes of the day, quantity.
    QStringList meals();
    QStringList activities();

    /// Runs an editor on a record, 0 for a new one, and the steps on it; the editor as closed.
    template<typename Editor>
    std::unique_ptr<Editor> edit(qint32 id, const std::function<void(QWidget &)> &steps)
    {
        auto editor = std::make_unique<Editor>(*session, messages);
        inDialog(
            qPrintable(editor->objectName()), [&] { editor->run(id); }, steps);
        return editor;
    }
    template<typename List>
    void inList(const std::function<void(QWidget &)> &steps)
    {
        List list(*session, messages);
        inDialog(
            qPrintable(list.objectName()), [&] { list.run(); }, steps);
    }

    void setUser(int weight, const char *measurement);

    /// Presses OK, which is refused with the focus on a field, and types the remedy there.
    void refuses(QWidget &window, const char *field, const QString &message, const QString &remedy);

    RecordedMessages messages;
};

QString textOf(const QWidget &window, const char *box);

/// Types a time over the whole of a time picker.
void typeTime(QTimeEdit &picker, const QString &text);

/// The rows of a list as shown, columns joined by "|".
QStringList shown(const QWidget &window, const char *list = "lvwList");

void selectRow(const QWidget &window, int row, const char *list = "lvwList");

/// The selected row, -1 for none.
int selectedRow(const QWidget &window, const char *list = "lvwList");
