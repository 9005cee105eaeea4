// The measurements and notes window: two lists that know nothing of each other.
#include "guitest.h"
#include "journal/frmMeasurements.h"
#include "settings/frmCommon.h"
#include "testjournal.h"

#include <QComboBox>
#include <QDateEdit>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTreeView>

using namespace Qt::StringLiterals;

namespace {

const QDate today(2026, 7, 22);

// The rows of a list as shown, columns joined by "|".
QStringList shown(QWidget &window, const char *list)
{
    QAbstractItemModel &model = *control<QTreeView>(window, list).model();
    QStringList rows;
    for (int row = 0; row < model.rowCount(); ++row) {
        QStringList texts;
        for (int column = 0; column < model.columnCount(); ++column)
            texts << model.index(row, column).data().toString();
        rows << texts.join(u'|');
    }
    return rows;
}

int selectedRow(QWidget &window, const char *list)
{
    const auto rows = control<QTreeView>(window, list).selectionModel()->selectedRows();
    return rows.isEmpty() ? -1 : rows.first().row();
}

void select(QWidget &window, const char *list, int row)
{
    auto &view = control<QTreeView>(window, list);
    view.setCurrentIndex(view.model()->index(row, 0));
}

// Without a window manager no window becomes active again when a dialog closes.
void focus(QWidget &window, const char *field)
{
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    control<QWidget>(window, field).setFocus();
}

void press(QWidget &window, const char *button)
{
    QTest::mouseClick(&control<QWidget>(window, button), Qt::LeftButton);
}

} // namespace

class tst_measurements : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void opensAMonthBack();
    void followsItsOwnDateAlone();
    void unitsStandInTheLabels();
    void longNoteStaysOnOneLine();
    void newRecordBecomesTheSelectedRow();
    void accessKeysGoToTheListWithTheFocus();
    void saysWhenNothingIsSelected();
    void deletesInOneListAlone();
    void refusedDeletionKeepsTheRow();
    void showsWhatAChangeOfUnitsConverted();

private:
    void addMeasurement(int id, QDate date, double weight = 70);
    void addNote(int id, QDate from, QDate to, const QString &text);
    std::unique_ptr<frmMeasurements> open();

    std::unique_ptr<TestJournal> m_journal;
    RecordedMessages m_messages;
};

void tst_measurements::init()
{
    m_journal = std::make_unique<TestJournal>(QLocale(QLocale::German, QLocale::Germany));
    m_messages = {};
}

void tst_measurements::addMeasurement(int id, QDate date, double weight)
{
    SQLite::Statement statement(m_journal->data->Con.database(),
                                "insert into Body values (?, ?, ?, 98.25, 85, 94, 'M')");
    statement.bind(1, id);
    bindValue(statement, 2, Value(date));
    statement.bind(3, weight);
    statement.exec();
}

void tst_measurements::addNote(int id, QDate from, QDate to, const QString &text)
{
    SQLite::Statement statement(m_journal->data->Con.database(),
                                "insert into UserNote values (?, ?, ?, ?)");
    statement.bind(1, id);
    bindValue(statement, 2, Value(from));
    bindValue(statement, 3, Value(to));
    bindValue(statement, 4, Value(text));
    statement.exec();
}

std::unique_ptr<frmMeasurements> tst_measurements::open()
{
    auto window = std::make_unique<frmMeasurements>(*m_journal->session, m_messages);
    window->show();
    if (!QTest::qWaitForWindowActive(window.get()))
        qFatal("the window does not come up");
    return window;
}

void tst_measurements::opensAMonthBack()
{
    m_journal->session->setCurrentDate(QDate(2026, 3, 31)); // a month before: 28 February
    addMeasurement(1, QDate(2026, 3, 2), 70.5);
    addMeasurement(2, QDate(2026, 2, 28), 71);
    addMeasurement(3, QDate(2026, 2, 27));
    addMeasurement(4, QDate(2027, 1, 1));
    addNote(1, QDate(2026, 3, 5), QDate(2026, 3, 6), u"later"_s);
    addNote(2, QDate(2025, 1, 1), QDate(2026, 2, 28), u"still running"_s);
    addNote(3, QDate(2026, 2, 1), QDate(2026, 2, 27), u"ended the day before"_s);

    const auto window = open();
    QCOMPARE(control<QDateEdit>(*window, "dtpDate").date(), QDate(2026, 2, 28));
    QCOMPARE(shown(*window, "lvwMeasurementList"),
             (QStringList{u"28.02.26|71|98,25|85|94"_s, u"02.03.26|70,5|98,25|85|94"_s,
                          u"01.01.27|70|98,25|85|94"_s}));
    QCOMPARE(shown(*window, "lvwNoteList"),
             (QStringList{u"01.01.25|28.02.26|still running"_s, u"05.03.26|06.03.26|later"_s}));
    QCOMPARE(selectedRow(*window, "lvwMeasurementList"), -1);
    QCOMPARE(selectedRow(*window, "lvwNoteList"), -1);
}

void tst_measurements::followsItsOwnDateAlone()
{
    addMeasurement(1, today.addDays(-100));
    addNote(1, today.addDays(-100), today.addDays(-90), u"old"_s);
    const auto window = open();
    QVERIFY(shown(*window, "lvwMeasurementList").isEmpty());
    control<QDateEdit>(*window, "dtpDate").setDate(today.addDays(-100));
    QCOMPARE(shown(*window, "lvwMeasurementList").size(), 1);
    QCOMPARE(shown(*window, "lvwNoteList").size(), 1);
    control<QDateEdit>(*window, "dtpDate").setDate(today.addDays(-95));
    QCOMPARE(shown(*window, "lvwMeasurementList").size(), 0);
    QCOMPARE(shown(*window, "lvwNoteList").size(), 1);
    QCOMPARE(m_journal->session->currentDate(), today);
}

void tst_measurements::unitsStandInTheLabels()
{
    const auto labels = [this] {
        const auto window = open();
        return control<QLabel>(*window, "lblWeightIn").text() + u'/' +
               control<QLabel>(*window, "lblLinearIn").text();
    };
    QCOMPARE(labels(), u"Weight (kg)/Breast, Waist, Hips (cm)"_s);
    m_journal->exec("update Common set Measurement = 'I'");
    m_journal->data->rsCommon.close();
    m_journal->session->readCommonParameters();
    QCOMPARE(labels(), u"Weight (lb)/Breast, Waist, Hips (inch)"_s);
}

void tst_measurements::longNoteStaysOnOneLine()
{
    addNote(1, today, today, u"one\r\ntwo\n\nthree\u2028<b>four</b> "_s + QString(5000, u'x'));
    const auto window = open();
    auto &list = control<QTreeView>(*window, "lvwNoteList");
    const QModelIndex note = list.model()->index(0, 2);
    QVERIFY(note.data().toString().startsWith(u"one two  three <b>four</b> xxx"_s));
    QVERIFY(list.columnWidth(2) < list.viewport()->width());

    // As rich text, which is what tooltips wrap, with the note's own markup shown as typed.
    const QString toolTip = note.data(Qt::ToolTipRole).toString();
    QVERIFY(Qt::mightBeRichText(toolTip));
    QVERIFY(toolTip.contains(u"&lt;b&gt;four&lt;/b&gt;"_s));
    QVERIFY(toolTip.contains(QString(5000, u'x')));
}

void tst_measurements::newRecordBecomesTheSelectedRow()
{
    addMeasurement(5, today.addDays(-3));
    addMeasurement(6, today.addDays(2));
    const auto window = open();
    inDialog(
        "frmBody", [&] { press(*window, "btnMeasurementNew"); },
        [](QWidget &dialog) {
            for (const char *box : {"txtWeight", "txtBreast", "txtWaist", "txtHips"})
                typeInto(control<QLineEdit>(dialog, box), u"77"_s);
            press(dialog, "btnOK");
        });
    QCOMPARE(shown(*window, "lvwMeasurementList").size(), 3);
    QCOMPARE(selectedRow(*window, "lvwMeasurementList"), 1);
    QCOMPARE(window->focusWidget()->objectName(), u"lvwMeasurementList"_s);

    // Edited with Enter and moved behind the others, it stays selected.
    focus(*window, "lvwMeasurementList");
    inDialog(
        "frmBody",
        [&] {
            QTest::keyClick(&control<QTreeView>(*window, "lvwMeasurementList"), Qt::Key_Return);
        },
        [](QWidget &dialog) {
            control<QDateEdit>(dialog, "dtpDate").setDate(today.addDays(9));
            press(dialog, "btnOK");
        });
    QCOMPARE(selectedRow(*window, "lvwMeasurementList"), 2);
}

void tst_measurements::accessKeysGoToTheListWithTheFocus()
{
    const auto window = open();
    const auto opensWithAltN = [&](const char *from, const char *dialog) {
        focus(*window, from);
        inDialog(
            dialog,
            [&] {
                QTest::keyClick(window.get(), Qt::Key_N, Qt::AltModifier);
                QTest::qWait(300); // for a moment, the button is seen pressed
            },
            [](QWidget &) {});
    };
    opensWithAltN("lvwNoteList", "frmUserNote");
    opensWithAltN("btnNotetDelete", "frmUserNote");
    opensWithAltN("lvwMeasurementList", "frmBody");
    opensWithAltN("dtpDate", "frmBody");
}

void tst_measurements::saysWhenNothingIsSelected()
{
    addMeasurement(1, today);
    addNote(1, today, today, u"note"_s);
    const auto window = open();
    for (const char *button :
         {"btnMeasurementEdit", "btnMeasurementDelete", "btnNotetEdit", "btnNotetDelete"}) {
        press(*window, button);
        QCOMPARE(m_messages.said.size(), size_t(1));
        QCOMPARE(m_messages.said.front().title, u"Error"_s);
        QCOMPARE(m_messages.takeText(), u"No record selected"_s);
    }
}

void tst_measurements::deletesInOneListAlone()
{
    for (int i = 0; i < 3; ++i) {
        addMeasurement(i + 1, today.addDays(i));
        addNote(i + 1, today.addDays(i), today.addDays(i), QString::number(i));
    }
    const auto window = open();
    m_messages.answers = {false, true, true};
    select(*window, "lvwNoteList", 2);
    press(*window, "btnNotetDelete");
    QCOMPARE(m_messages.said.back().title, u"Are you sure"_s);
    QCOMPARE(m_messages.takeText(), u"Are you sure you want to delete the selected record?"_s);
    QCOMPARE(shown(*window, "lvwNoteList").size(), 3); // answered No

    press(*window, "btnNotetDelete");
    QCOMPARE(m_journal->rows("select UserNoteID from UserNote"), (QStringList{u"1"_s, u"2"_s}));
    QCOMPARE(selectedRow(*window, "lvwNoteList"), 1); // the new last one
    QCOMPARE(m_journal->row("select count(*) from Body"), u"3"_s);

    m_journal->exec("delete from UserNote"); // unseen: the note list is not read again
    focus(*window, "lvwMeasurementList");
    select(*window, "lvwMeasurementList", 0);
    QTest::keyClick(&control<QTreeView>(*window, "lvwMeasurementList"), Qt::Key_Delete);
    QCOMPARE(m_journal->rows("select BodyID from Body"), (QStringList{u"2"_s, u"3"_s}));
    QCOMPARE(selectedRow(*window, "lvwMeasurementList"), 0);
    QCOMPARE(shown(*window, "lvwNoteList").size(), 2);
}

void tst_measurements::refusedDeletionKeepsTheRow()
{
    addNote(1, today, today, u"note"_s);
    m_journal->exec("create trigger Refuse before delete on UserNote begin"
                    " select raise(abort, 'no'); end");
    const auto window = open();
    m_messages.answers = {true};
    select(*window, "lvwNoteList", 0);
    press(*window, "btnNotetDelete");
    QCOMPARE(m_messages.takeText(), u"This record can't be deleted from database"_s);
    QCOMPARE(shown(*window, "lvwNoteList").size(), 1);
    QVERIFY(!m_journal->data->rsUserNote.isOpen());
}

void tst_measurements::showsWhatAChangeOfUnitsConverted()
{
    addMeasurement(1, today, 68.04);
    frmCommon common(*m_journal->session, m_messages);
    inDialog(
        "frmCommon", [&] { common.run(); },
        [](QWidget &dialog) {
            control<QComboBox>(dialog, "cbxMeasurement").setCurrentIndex(0);
            press(dialog, "btnOK");
        });
    const auto window = open();
    QCOMPARE(shown(*window, "lvwMeasurementList"), QStringList{u"22.07.26|150|39|33,7|37,3"_s});
    QCOMPARE(control<QLabel>(*window, "lblWeightIn").text(), u"Weight (lb)"_s);
    select(*window, "lvwMeasurementList", 0);
    inDialog(
        "frmBody", [&] { press(*window, "btnMeasurementEdit"); },
        [](QWidget &dialog) {
            QCOMPARE(control<QLineEdit>(dialog, "txtWaist").text(), u"33,7"_s);
            QCOMPARE(control<QLabel>(dialog, "lblGirthUnit").text(), u"inch"_s);
        });
}

QTEST_MAIN(tst_measurements)
#include "tst_measurements.moc"
