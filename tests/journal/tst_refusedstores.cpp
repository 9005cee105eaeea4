// A store or deletion that the database refuses: the file is held by another program, or its disk
// is full.
#include "dayjournal.h"

#include "journal/frmMealConsume.h"
#include "journal/frmMealConsumes.h"
#include "ui/datacombo.h"

#include <QSignalSpy>
#include <QTreeView>

namespace {

const QString refused = QStringLiteral("Can't store this record in database. Please check whether "
                                       "all data are valid");

/// Another program in the middle of writing.
class OtherProgram
{
public:
    explicit OtherProgram(DayJournal &journal)
        : m_connection(journal.path())
    {
        journal.exec("PRAGMA busy_timeout=50");
        m_connection.exec("begin immediate");
    }
    void finish() { m_connection.exec("rollback"); }

private:
    Connection m_connection;
};

} // namespace

class tst_RefusedStores : public QObject
{
    Q_OBJECT

private slots:
    void init() { journal = std::make_unique<DayJournal>(); }
    void busyMeal();
    void busyDeletion();
    void fullDisk();

private:
    std::unique_ptr<DayJournal> journal;
};

void tst_RefusedStores::busyMeal()
{
    const QSignalSpy rebuilt(journal->session.get(), &Session::journalChanged);
    frmMealConsume editor(*journal->session, journal->messages);
    editor.setAddMode(true);
    inDialog(
        "frmMealConsume", [&] { editor.run(0); },
        [&](QWidget &window) {
            control<DataCombo>(window, "dcbMealCategory").setDisplayedText(QStringLiteral("Dairy"));
            typeTime(control<QTimeEdit>(window, "dtpTime"), QStringLiteral("0800"));
            typeInto(control<QLineEdit>(window, "txtQty"), QStringLiteral("3"));
            OtherProgram other(*journal);
            for (int i = 0; i < 2; ++i) {
                press(window, "btnOK");
                QCOMPARE(journal->messages.said.size(), 1U);
                QCOMPARE(journal->messages.takeText(), refused);
                QVERIFY(window.isVisible());
                QVERIFY(!editor.isStored());
                QCOMPARE(editor.storedId(), 0);
                QCOMPARE(control<DataCombo>(window, "dcbMeal").displayedText(),
                         QStringLiteral("Crème brûlée"));
                QCOMPARE(control<QTimeEdit>(window, "dtpTime").time(), QTime(8, 0));
                QCOMPARE(textOf(window, "txtQty"), QStringLiteral("3"));
            }
            QCOMPARE(journal->session->currentTime(), QTime(12, 30));
            QCOMPARE(rebuilt.count(), 0);
            QCOMPARE(journal->meals(), QStringList());

            other.finish();
            press(window, "btnOK"); // the same entry, as it still stands there
            QCOMPARE(journal->messages.takeText(), QString());
        });
    QVERIFY(editor.isStored());
    QCOMPARE(journal->meals(), QStringList{QStringLiteral("2|3|%1|480|3").arg(testDay)});
    QCOMPARE(rebuilt.count(), 1);
}

void tst_RefusedStores::busyDeletion()
{
    journal->exec("insert into MealConsume values (7, 1, 46225, 0.25, 3)");
    frmMealConsumes list(*journal->session, journal->messages);
    inDialog(
        "frmMealConsumes", [&] { list.run(); },
        [&](QWidget &window) {
            auto &view = control<QTreeView>(window, "lvwList");
            view.setCurrentIndex(view.model()->index(0, 0));
            OtherProgram other(*journal);
            journal->messages.answers = {true};
            press(window, "btnDelete");
            QCOMPARE(journal->messages.takeText(),
                     QStringLiteral("This record can't be deleted from database"));
            QCOMPARE(view.model()->rowCount(), 1);
        });
    QCOMPARE(journal->meals().size(), 1);
}

// The counter may be stored when the row no longer finds room: its number is then lost, and given
// to no other row.
void tst_RefusedStores::fullDisk()
{
    // The first page that a new row needs is one more than the file may have.
    const QString pages = journal->row("PRAGMA page_count");
    journal->exec(qPrintable(QStringLiteral("PRAGMA max_page_count=%1").arg(pages)));
    int added = 0;
    frmMealConsume editor(*journal->session, journal->messages);
    editor.setAddMode(true);
    inDialog(
        "frmMealConsume", [&] { editor.run(0); },
        [&](QWidget &window) {
            const auto add = [&] {
                control<DataCombo>(window, "dcbMealCategory")
                    .setDisplayedText(QStringLiteral("Dairy"));
                press(window, "btnOK");
                return journal->messages.takeText();
            };
            QString said;
            while (added < 1000 && (said = add()).isEmpty())
                ++added;
            QCOMPARE(said, refused);
            QVERIFY(window.isVisible());
            QCOMPARE(editor.storedId(), added + 1);
            QCOMPARE(control<DataCombo>(window, "dcbMeal").displayedText(),
                     QStringLiteral("Crème brûlée"));
            QCOMPARE(journal->meals().size(), added);

            journal->exec("PRAGMA max_page_count=100000");
            press(window, "btnOK");
            QCOMPARE(journal->messages.takeText(), QString());
        });
    QCOMPARE(journal->meals().size(), added + 1);
    QCOMPARE(journal->row("select max(MealConsumeID) - NextMealConsumeID from MealConsume, Common"),
             QStringLiteral("0"));
    QCOMPARE(journal->row("PRAGMA integrity_check"), QStringLiteral("ok"));
}

QTEST_MAIN(tst_RefusedStores)
#include "tst_refusedstores.moc"
