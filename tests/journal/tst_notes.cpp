// The user note editor: notes as typed, and never two on one day.
#include "dayjournal.h"

#include "journal/frmUserNote.h"

#include <QDateEdit>
#include <QPlainTextEdit>

namespace {

// In days of the test's month, July 2026.
void setPeriod(QWidget &dialog, int from, int to)
{
    control<QDateEdit>(dialog, "dtpDateFrom").setDate(QDate(2026, 7, from));
    control<QDateEdit>(dialog, "dtpDateTo").setDate(QDate(2026, 7, to));
}

QPlainTextEdit &note(QWidget &dialog)
{
    return control<QPlainTextEdit>(dialog, "txtNote");
}

} // namespace

class tst_notes : public QObject
{
    Q_OBJECT

private slots:
    void init() { journal = std::make_unique<DayJournal>(); }
    void checksAndStores();
    void keepsEveryCharacterOfAStoredNote();

private:
    // Days of the month; the text in the last column.
    QStringList stored()
    {
        return journal->rows("select UserNoteID, DateFrom - 46203, DateTo - 46203, NoteText"
                             " from UserNote order by UserNoteID");
    }
    QString counter() { return journal->row("select NextUserNoteID from Common"); }

    std::unique_ptr<DayJournal> journal;
};

// With the keys that the text takes and those that it leaves to the dialog.
void tst_notes::checksAndStores()
{
    journal->exec("insert into UserNote values (9, 46213, 46217, 'Holiday\nin the mountains ')");
    const auto editor = journal->edit<frmUserNote>(0, [this](QWidget &dialog) {
        QCOMPARE(control<QDateEdit>(dialog, "dtpDateTo").date(), QDate(2026, 7, 22));
        setPeriod(dialog, 14, 13);
        press(dialog, "btnOK");
        QCOMPARE(journal->messages.takeText(), "The Date To is less than Date From");
        setPeriod(dialog, 14, 16);
        typeInto(note(dialog), "  ");
        journal->refuses(dialog, "txtNote", "The Note text should be specified",
                         "  a <b>fast</b> & 'quoted'; ");
        QCOMPARE(counter(), "1");
        press(dialog, "btnOK");
        QCOMPARE(journal->messages.said.size(), size_t(1));
        QCOMPARE(journal->messages.said.front().title, "Intersection");
        QCOMPARE(journal->messages.takeText(),
                 "This note intersects in time with the following another note: "
                 "Holiday\nin the mountains \r\n"
                 "The intersections are not allowed.\r\n\r\n"
                 "Tip: You can split notes with big time periods to smaller pieces");
        QCOMPARE(counter(), "2"); // taken before the periods are compared
        setPeriod(dialog, 15, 16);
        note(dialog).setFocus();
        for (const auto modifier : {Qt::NoModifier, Qt::ShiftModifier}) {
            pressKey(Qt::Key_Return, modifier);
            QTest::keyClicks(&note(dialog), "more");
        }
        pressKey(Qt::Key_Tab);
        QCOMPARE(dialog.focusWidget()->objectName(), "btnOK");
        note(dialog).setFocus();
        pressKey(Qt::Key_Return, Qt::ControlModifier);
    });
    QCOMPARE(editor->storedId(), 3);
    QCOMPARE(stored().first(), "3|15|16|  a <b>fast</b> & 'quoted'; \nmore\nmore");
}

void tst_notes::keepsEveryCharacterOfAStoredNote()
{
    const QString text =
        QString("no-break\u00a0space, tab\t, 日本語, العربية, 😀, e\u0301, \n\n end ") +
        QString(1'000'000, u'x'); // wrapped at its blanks it would take minutes
    const auto insert = QString("insert into UserNote values (7, 46204, 46206, '%1')").arg(text);
    journal->exec(insert.toUtf8().constData());
    journal->edit<frmUserNote>(7, [](QWidget &dialog) {
        setPeriod(dialog, 3, 4); // which is no overlap with another
        press(dialog, "btnOK");
    });
    QCOMPARE(stored(), QStringList{"7|3|4|" + text});
    QCOMPARE(counter(), "1");
    // A message that quotes it is no slower, and its button is at hand.
    const auto quote = [&text] { MessageBoxes().error(nullptr, text); };
    inDialog("message", quote, [](QWidget &message) {
        pressKey(Qt::Key_Return);
        QVERIFY(!message.isVisible());
    });
}

QTEST_MAIN(tst_notes)
#include "tst_notes.moc"
