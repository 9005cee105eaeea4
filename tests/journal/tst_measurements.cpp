// The measurements and notes window: two lists that know nothing of each other.
#include "dayjournal.h"

#include "journal/frmMeasurements.h"

#include <QDateEdit>
#include <QLabel>

namespace {

constexpr char bodies[] = "lvwMeasurementList";
constexpr char notes[] = "lvwNoteList";

void focus(QWidget &window, const char *field)
{
    activate(window);
    control<QWidget>(window, field).setFocus();
}

} // namespace

class tst_measurements : public QObject
{
    Q_OBJECT

private slots:
    void init() { journal = std::make_unique<DayJournal>(QLocale("de_DE")); }
    void followsItsOwnDateAlone();
    void opensAtTheNewestWithEachNoteOnOneLine();
    void accessKeysGoToTheListWithTheFocus();

private:
    std::unique_ptr<frmMeasurements> open()
    {
        auto window = std::make_unique<frmMeasurements>(*journal->session, journal->messages);
        window->show();
        activate(*window);
        return window;
    }

    std::unique_ptr<DayJournal> journal;
};

void tst_measurements::followsItsOwnDateAlone()
{
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

void tst_measurements::opensAtTheNewestWithEachNoteOnOneLine()
{
    journal->exec("with recursive days(n) as (select 1 union all select n + 1 from days limit 90)"
                  " insert into Body select n, 46225 + n, 70, 98, 85, 94, 'M' from days;"
                  "insert into UserNote values (1, 46225, 46225, 'one' || char(13, 10) || 'two' ||"
                  " char(10, 10, 8232) || '<b>four</b> ' || hex(zeroblob(500000)))");
    const auto window = open();
    const auto &list = control<QTreeView>(*window, bodies);
    QVERIFY(list.viewport()->rect().contains(list.visualRect(list.model()->index(89, 0)).center()));
    QCOMPARE(selectedRow(*window, bodies), -1);

    const QModelIndex note = control<QTreeView>(*window, notes).model()->index(0, 2);
    QVERIFY(note.data().toString().startsWith("one two   <b>four</b> 000"));
    // As rich text, which is what tooltips wrap, with the note's own markup shown as typed.
    const QString toolTip = note.data(Qt::ToolTipRole).toString();
    QVERIFY(Qt::mightBeRichText(toolTip));
    QVERIFY(toolTip.contains("&lt;b&gt;four&lt;/b&gt; 000"));
    QVERIFY(toolTip.size() < 1000); // a small box
}

void tst_measurements::accessKeysGoToTheListWithTheFocus()
{
    const auto window = open();
    const std::pair<const char *, const char *> cases[] = {{notes, "frmUserNote"},
                                                           {"btnNotetDelete", "frmUserNote"},
                                                           {bodies, "frmBody"},
                                                           {"dtpDate", "frmBody"}};
    for (const auto &[from, dialog] : cases) {
        focus(*window, from);
        const auto pressAltN = [&] {
            QTest::keyClick(window.get(), Qt::Key_N, Qt::AltModifier);
            QTest::qWait(300); // for a moment, the button is seen pressed
        };
        inDialog(dialog, pressAltN, [](QWidget &) {});
    }
}

QTEST_MAIN(tst_measurements)
#include "tst_measurements.moc"
