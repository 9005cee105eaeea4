// The user note editor: notes as typed, and never two on one day.
#include "dayjournal.h"

#include "journal/frmUserNote.h"

#include <QDateEdit>
#include <QPlainTextEdit>
#include <QScreen>

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
    void keysInTheText();
    void keepsEveryCharacterOfAStoredNote();
    void tellsOfTheOtherNoteAndLosesAnIdentifier();
    void messageOfALongNoteFitsTheScreen();

private:
    void addNote(int id, int from, int to, const QString &text)
    {
        SQLite::Statement statement(journal->data->Con.database(),
                                    "insert into UserNote values (?, ? + 46203, ? + 46203, ?)");
        statement.bind(1, id);
        statement.bind(2, from);
        statement.bind(3, to);
        bindValue(statement, 4, Value(text));
        statement.exec();
    }
    // Days of the month; the text in the last column.
    QStringList stored()
    {
        return journal->rows("select UserNoteID, DateFrom - 46203, DateTo - 46203, NoteText"
                             " from UserNote order by UserNoteID");
    }
    QString counter() { return journal->row("select NextUserNoteID from Common"); }

    std::unique_ptr<DayJournal> journal;
};

void tst_notes::checksAndStores()
{
    const auto editor = journal->edit<frmUserNote>(0, [this](QWidget &dialog) {
        QCOMPARE(control<QDateEdit>(dialog, "dtpDateTo").date(), QDate(2026, 7, 22));
        setPeriod(dialog, 5, 4);
        press(dialog, "btnOK");
        QCOMPARE(journal->messages.takeText(), "The Date To is less than Date From");
        setPeriod(dialog, 5, 5);
        typeInto(note(dialog), "  ");
        journal->refuses(dialog, "txtNote", "The Note text should be specified",
                         "  a <b>fast</b> & 'quoted'; ");
        QCOMPARE(counter(), "1");
        press(dialog, "btnOK");
    });
    QCOMPARE(stored(), QStringList{"2|5|5|  a <b>fast</b> & 'quoted'; "});
    QCOMPARE(editor->storedId(), 2);
    QCOMPARE(counter(), "2");
}

void tst_notes::keysInTheText()
{
    journal->edit<frmUserNote>(0, [](QWidget &dialog) {
        typeInto(note(dialog), "one");
        QTest::keyClick(&note(dialog), Qt::Key_Return);
        QTest::keyClicks(&note(dialog), "two");
        QTest::keyClick(&note(dialog), Qt::Key_Return, Qt::ShiftModifier);
        QTest::keyClicks(&note(dialog), "three");
        QTest::keyClick(&note(dialog), Qt::Key_Tab);
        QCOMPARE(dialog.focusWidget()->objectName(), "btnOK");
        note(dialog).setFocus();
        QTest::keyClick(&note(dialog), Qt::Key_Return, Qt::ControlModifier);
    });
    QCOMPARE(stored(), QStringList{"2|22|22|one\ntwo\nthree"});
}

void tst_notes::keepsEveryCharacterOfAStoredNote()
{
    const QString text =
        QString("no-break\u00a0space, tab\t, 日本語, العربية, 😀, e\u0301, \n\n end ") +
        QString(1'000'000, u'x'); // wrapped at its blanks it would take minutes
    addNote(7, 1, 3, text);
    journal->edit<frmUserNote>(7, [](QWidget &dialog) {
        setPeriod(dialog, 3, 4); // which is no overlap with another
        press(dialog, "btnOK");
    });
    QCOMPARE(stored(), QStringList{"7|3|4|" + text});
    QCOMPARE(counter(), "1");
}

void tst_notes::tellsOfTheOtherNoteAndLosesAnIdentifier()
{
    addNote(9, 10, 14, "Holiday\nin the mountains ");
    journal->edit<frmUserNote>(0, [this](QWidget &dialog) {
        setPeriod(dialog, 14, 16);
        typeInto(note(dialog), "new");
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
        press(dialog, "btnOK");
    });
    QCOMPARE(stored().first(), "3|15|16|new");
}

void tst_notes::messageOfALongNoteFitsTheScreen()
{
    addNote(9, 22, 22, QString("A line of a note.\n").repeated(300) + QString(1'000'000, u'x'));
    MessageBoxes boxes;
    frmUserNote editor(*journal->session, boxes);
    const auto steps = [&](QWidget &dialog) {
        typeInto(note(dialog), "new");
        press(dialog, "btnOK", "message", [](QWidget &message) {
            QVERIFY(message.height() < message.screen()->availableSize().height());
            QVERIFY(control<QPlainTextEdit>(message, "text").toPlainText().endsWith("pieces"));
            QTest::keyClick(&message, Qt::Key_Return);
            QVERIFY(!message.isVisible());
        });
    };
    inDialog(
        "frmUserNote", [&] { editor.run(0); }, steps);
    QCOMPARE(stored().size(), 1);
}

QTEST_MAIN(tst_notes)
#include "tst_notes.moc"
