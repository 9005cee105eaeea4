// The user note editor: notes as typed, and never two on one day.
#include "guitest.h"
#include "journal/frmUserNote.h"
#include "testjournal.h"

#include <QDateEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>

using namespace Qt::StringLiterals;

namespace {

// Days of the test's month, July 2026.
QDate day(int dayOfMonth)
{
    return QDate(2026, 7, 1).addDays(dayOfMonth - 1);
}

void setPeriod(QWidget &dialog, int from, int to)
{
    control<QDateEdit>(dialog, "dtpDateFrom").setDate(day(from));
    control<QDateEdit>(dialog, "dtpDateTo").setDate(day(to));
}

void press(QWidget &dialog, const char *button)
{
    QTest::mouseClick(&control<QWidget>(dialog, button), Qt::LeftButton);
}

} // namespace

class tst_notes : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void storesTheTextAsTyped();
    void keysInTheText();
    void keepsEveryCharacterOfAStoredNote();
    void refusesWhatIsIncomplete_data();
    void refusesWhatIsIncomplete();
    void tellsOfTheOtherNoteAndLosesAnIdentifier();
    void editedNoteDoesNotOverlapItself();
    void refusedStoreLeavesTheInput();
    void messageOfALongNoteFitsTheScreen();

private:
    bool edit(qint32 id, const std::function<void(QWidget &)> &steps);
    void addNote(int id, int from, int to, const QString &text);
    // Days of the month; the text in the last column.
    QStringList stored()
    {
        return m_journal->rows("select UserNoteID, DateFrom - 46203, DateTo - 46203, NoteText"
                               " from UserNote order by UserNoteID");
    }
    QString counter() { return m_journal->row("select NextUserNoteID from Common"); }

    std::unique_ptr<TestJournal> m_journal;
    RecordedMessages m_messages;
    qint32 m_storedId = 0;
};

void tst_notes::init()
{
    m_journal = std::make_unique<TestJournal>();
    m_messages = {};
    QCOMPARE(dayNumber(day(0)), 46203);
}

bool tst_notes::edit(qint32 id, const std::function<void(QWidget &)> &steps)
{
    frmUserNote editor(*m_journal->session, m_messages);
    inDialog(
        "frmUserNote", [&] { editor.run(id); }, steps);
    m_storedId = editor.storedId();
    return editor.isStored();
}

void tst_notes::addNote(int id, int from, int to, const QString &text)
{
    SQLite::Statement statement(m_journal->data->Con.database(),
                                "insert into UserNote values (?, ?, ?, ?)");
    statement.bind(1, id);
    bindValue(statement, 2, Value(day(from)));
    bindValue(statement, 3, Value(day(to)));
    bindValue(statement, 4, Value(text));
    statement.exec();
}

void tst_notes::storesTheTextAsTyped()
{
    QVERIFY(edit(0, [](QWidget &dialog) {
        QCOMPARE(dialog.windowTitle(), u"User Note - New"_s);
        QCOMPARE(control<QDateEdit>(dialog, "dtpDateFrom").date(), QDate(2026, 7, 22));
        QCOMPARE(control<QDateEdit>(dialog, "dtpDateTo").date(), QDate(2026, 7, 22));
        control<QDateEdit>(dialog, "dtpDateTo").setDate(day(24));
        typeInto(control<QPlainTextEdit>(dialog, "txtNote"), u"  a <b>fast</b> & 'quoted'; "_s);
        press(dialog, "btnOK");
    }));
    QCOMPARE(stored(), QStringList{u"2|22|24|  a <b>fast</b> & 'quoted'; "_s});
    QCOMPARE(m_storedId, 2);
    QCOMPARE(counter(), u"2"_s);
}

void tst_notes::keysInTheText()
{
    QVERIFY(edit(0, [](QWidget &dialog) {
        auto &text = control<QPlainTextEdit>(dialog, "txtNote");
        typeInto(text, u"one"_s);
        QTest::keyClick(&text, Qt::Key_Return);
        QTest::keyClicks(&text, u"two"_s);
        QTest::keyClick(&text, Qt::Key_Return, Qt::ShiftModifier);
        QTest::keyClicks(&text, u"three"_s);
        QTest::keyClick(&text, Qt::Key_Tab);
        QCOMPARE(dialog.focusWidget()->objectName(), u"btnOK"_s);
        text.setFocus();
        QTest::keyClick(&text, Qt::Key_Return, Qt::ControlModifier);
        QVERIFY(!dialog.isVisible());
    }));
    QCOMPARE(stored(), QStringList{u"2|22|22|one\ntwo\nthree"_s});
}

void tst_notes::keepsEveryCharacterOfAStoredNote()
{
    const QString note = u"no-break\u00a0space, tab\t, 日本語, العربية, 😀, e\u0301, \n\n  end "_s +
                         QString(20000, u'x');
    addNote(7, 1, 2, note);
    QVERIFY(edit(7, [](QWidget &dialog) {
        QCOMPARE(dialog.windowTitle(), u"User Note"_s);
        setPeriod(dialog, 3, 4);
        press(dialog, "btnOK");
    }));
    QCOMPARE(stored(), QStringList{u"7|3|4|"_s + note});
    QCOMPARE(counter(), u"1"_s);
}

void tst_notes::refusesWhatIsIncomplete_data()
{
    QTest::addColumn<int>("to");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("focus");

    QTest::newRow("ends the day before it begins, and says nothing")
        << 4 << u""_s << u"The Date To is less than Date From"_s << u"dtpDateTo"_s;
    QTest::newRow("one day, blanks alone")
        << 5 << u"  "_s << u"The Note text should be specified"_s << u"txtNote"_s;
}

void tst_notes::refusesWhatIsIncomplete()
{
    QFETCH(int, to);
    QFETCH(QString, text);
    QFETCH(QString, message);
    QFETCH(QString, focus);
    QVERIFY(!edit(0, [&](QWidget &dialog) {
        setPeriod(dialog, 5, to);
        typeInto(control<QPlainTextEdit>(dialog, "txtNote"), text);
        press(dialog, "btnOK");
        QVERIFY(dialog.isVisible());
        QCOMPARE(dialog.focusWidget()->objectName(), focus);
    }));
    QCOMPARE(m_messages.said.size(), size_t(1));
    QCOMPARE(m_messages.said.front().title, u"Error"_s);
    QCOMPARE(m_messages.said.front().text, message);
    QCOMPARE(counter(), u"1"_s);
}

void tst_notes::tellsOfTheOtherNoteAndLosesAnIdentifier()
{
    addNote(9, 10, 14, u"Holiday\nin the mountains "_s);
    QVERIFY(edit(0, [this](QWidget &dialog) {
        setPeriod(dialog, 14, 16);
        typeInto(control<QPlainTextEdit>(dialog, "txtNote"), u"new"_s);
        press(dialog, "btnOK");
        QCOMPARE(m_messages.said.size(), size_t(1));
        QCOMPARE(m_messages.said.front().title, u"Intersection"_s);
        QVERIFY(m_messages.said.front().icon == Messages::Icon::Exclamation);
        QCOMPARE(m_messages.takeText(),
                 u"This note intersects in time with the following another note: "
                 "Holiday\nin the mountains \r\n"
                 "The intersections are not allowed.\r\n\r\n"
                 "Tip: You can split notes with big time periods to smaller pieces"_s);
        QCOMPARE(counter(), u"2"_s); // taken before the periods are compared
        QCOMPARE(control<QPlainTextEdit>(dialog, "txtNote").toPlainText(), u"new"_s);

        setPeriod(dialog, 15, 16);
        press(dialog, "btnOK");
    }));
    QCOMPARE(m_storedId, 3);
    QCOMPARE(stored().first(), u"3|15|16|new"_s);
    QCOMPARE(counter(), u"3"_s);
}

void tst_notes::editedNoteDoesNotOverlapItself()
{
    addNote(8, 1, 3, u"first"_s);
    addNote(9, 10, 14, u"second"_s);
    QVERIFY(edit(9, [](QWidget &dialog) {
        setPeriod(dialog, 4, 12);
        press(dialog, "btnOK");
    }));
    QVERIFY(!edit(9, [](QWidget &dialog) {
        setPeriod(dialog, 3, 12);
        typeInto(control<QPlainTextEdit>(dialog, "txtNote"), u"changed"_s);
        press(dialog, "btnOK");
    }));
    QCOMPARE(stored(), (QStringList{u"8|1|3|first"_s, u"9|4|12|second"_s}));
}

void tst_notes::refusedStoreLeavesTheInput()
{
    m_journal->exec("create trigger Refuse before insert on UserNote begin"
                    " select raise(abort, 'no room'); end");
    QVERIFY(edit(0, [this](QWidget &dialog) {
        typeInto(control<QPlainTextEdit>(dialog, "txtNote"), u"new"_s);
        press(dialog, "btnOK");
        QCOMPARE(m_messages.takeText(),
                 u"Can't store this record in database. Please check whether all data are valid"_s);
        QVERIFY(dialog.isVisible());
        m_journal->exec("drop trigger Refuse");
        press(dialog, "btnOK");
    }));
    QCOMPARE(stored(), QStringList{u"3|22|22|new"_s});
}

void tst_notes::messageOfALongNoteFitsTheScreen()
{
    addNote(9, 22, 22, u"A line of a note.\n"_s.repeated(300));
    MessageBoxes boxes;
    frmUserNote editor(*m_journal->session, boxes);
    inDialog(
        "frmUserNote", [&] { editor.run(0); },
        [&](QWidget &dialog) {
            typeInto(control<QPlainTextEdit>(dialog, "txtNote"), u"new"_s);
            inDialog(
                "message", [&] { press(dialog, "btnOK"); },
                [](QWidget &message) {
                    QCOMPARE(message.windowTitle(), u"Intersection"_s);
                    QVERIFY(message.height() < message.screen()->availableSize().height());
                    auto &text = control<QPlainTextEdit>(message, "text");
                    QVERIFY(text.toPlainText().endsWith(u"smaller pieces"));
                    QTest::keyClick(&message, Qt::Key_Return);
                    QVERIFY(!message.isVisible());
                });
        });
    QCOMPARE(stored().size(), 1);
}

QTEST_MAIN(tst_notes)
#include "tst_notes.moc"
