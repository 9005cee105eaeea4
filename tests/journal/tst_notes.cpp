// The user note editor: notes as typed, and never two on one day. The window of measurements and
// notes: two lists that know nothing of each other.
#include "dayjournal.h"

#include "journal/frmMeasurements.h"
#include "journal/frmUserNote.h"

#include <QDateEdit>
#include <QLabel>
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

constexpr char bodies[] = "lvwMeasurementList";
constexpr char notes[] = "lvwNoteList";

} // namespace

class tst_notes : public QObject
{
    Q_OBJECT

private slots:
    void init() { journal = std::make_unique<DayJournal>(); }
    void checksAndStores();
    void keepsEveryCharacterOfAStoredNote();
    void listsFollowTheirOwnDateAlone();
    void opensAtTheNewestWithEachNoteOnOneLine();

private:
    // Days of the month; the text in the last column.
    QStringList stored()
    {
        return journal->rows("select UserNoteID, DateFrom - 46203, DateTo - 46203, NoteText"
                             " from UserNote order by UserNoteID");
    }
    std::unique_ptr<frmMeasurements> open()
    {
        auto window = std::make_unique<frmMeasurements>(*journal->session, journal->messages);
        window->show();
        activate(*window);
        return window;
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

void tst_notes::listsFollowTheirOwnDateAlone()
{
    journal = std::make_unique<DayJournal>(QLocale("de_DE"));
    const QDate today(2026, 3, 31); // a month before: 28 February
    journal->session->setCurrentDate(today);
    journal->exec("insert into Body values (1, 46083, 70.5, 98.25, 85, 94, 'M'),"
                  " (2, 46081, 71, 98.25, 85, 94, 'M'), (3, 46080, 70, 98.25, 85, 94, 'M');"
                  "insert into UserNote values (1, 46086, 46087, 'later'),"
                  " (2, 45658, 46081, 'still running'), (3, 46054, 46080, 'ended the day before')");
    const auto window = open();
    QCOMPARE(control<QLabel>(*window, "lblLinearIn").text(), "Breast, Waist, Hips (cm)");
    QCOMPARE(shown(*window, bodies),
             (QStringList{"28.02.26|71|98,25|85|94", "02.03.26|70,5|98,25|85|94"}));
    QCOMPARE(shown(*window, notes),
             (QStringList{"01.01.25|28.02.26|still running", "05.03.26|06.03.26|later"}));
    control<QDateEdit>(*window, "dtpDate").setDate(QDate(2026, 2, 27));
    QCOMPARE(shown(*window, bodies).size(), 3);
    QCOMPARE(shown(*window, notes).size(), 3);
    QCOMPARE(journal->session->currentDate(), today);
}

void tst_notes::opensAtTheNewestWithEachNoteOnOneLine()
{
    journal = std::make_unique<DayJournal>(QLocale("de_DE"));
    journal->exec("with recursive days(n) as (select 1 union all select n + 1 from days limit 90)"
                  " insert into Body select n, 46225 + n, 70, 98, 85, 94, 'M' from days;"
                  "insert into UserNote values (1, 46225, 46225, 'one' || char(13, 10) || 'two' ||"
                  " char(10, 10, 8232) || '<b>four</b> ' || hex(zeroblob(500000)))");
    const auto window = open();
    const auto &list = control<QTreeView>(*window, bodies);
    QVERIFY(list.viewport()->rect().contains(list.visualRect(list.model()->index(89, 0)).center()));
    QCOMPARE(selectedRow(*window, bodies), -1);

    const QModelIndex noted = control<QTreeView>(*window, notes).model()->index(0, 2);
    QVERIFY(noted.data().toString().startsWith("one two   <b>four</b> 000"));
    // As rich text, which is what tooltips wrap, with the note's own markup shown as typed.
    const QString toolTip = noted.data(Qt::ToolTipRole).toString();
    QVERIFY(Qt::mightBeRichText(toolTip));
    QVERIFY(toolTip.contains("&lt;b&gt;four&lt;/b&gt; 000"));
    QVERIFY(toolTip.size() < 1000); // a small box
}

QTEST_MAIN(tst_notes)
#include "tst_notes.moc"
