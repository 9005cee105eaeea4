// Quick Add as a person uses it: typing, Enter, arrow keys and the mouse.
#include "mainwindowtest.h"
#include "quickadd/frmQuickAdd.h"

#include <QLabel>

using namespace Qt::Literals;

namespace {

QString label(const QWidget &window, const char *name)
{
    return control<QLabel>(window, name).text();
}

QString firstNames(const QWidget &window)
{
    QStringList names;
    for (const QString &row : shown(window))
        names += row.section(u'|', 0, 0);
    return names.join(u", "_qs);
}

} // namespace

class tst_quickadd : public MainWindowTest
{
    Q_OBJECT

private slots:
    // Apple, Banana, Crème brûlée; Rowing, Walking; 22 July 2026, 12:30.
    void init() { open(); }
    void recordsByKeys();
    void recordsByMouseAndArrows();
    void saysWhatItCantStore();
    void recordsPlainCalories();
    void keepsUpWithTheClock();
    void keepsWhatIsRefused();

private:
    // The main window, and Quick Add opened by its key.
    void inQuickAdd(const std::function<void(QWidget &)> &steps)
    {
        activate(*m_window);
        inDialog(
            "frmQuickAdd", [] { pressKey(Qt::Key_K, Qt::ControlModifier); }, steps);
    }
};

void tst_quickadd::recordsByKeys()
{
    inQuickAdd([&](QWidget &window) {
        QCOMPARE(shown(window), QStringList()); // nothing is usual yet
        QCOMPARE(label(window, "lblStore"), "Type a part of a name");
        typeKeys(u"2 ban 8:15"_qs);
        QCOMPARE(label(window, "lblUnderstood"), "Understood: quantity 2 · time 08:15");
        QCOMPARE(label(window, "lblStore"),
                 "2 × Banana, piece · 193 kcal · 08:15 · Wednesday, 22 Jul 2026");
        QCOMPARE(shown(window), QStringList{u"Banana|Fruit|2 × piece|193"_qs});
        QVERIFY(control<QWidget>(window, "txtEntry")
                    .accessibleDescription()
                    .contains(label(window, "lblStore")));
        pressKey(Qt::Key_Return);
        QCOMPARE(textOf(window, "txtEntry"), QString());
        QVERIFY(label(window, "lblAdded").startsWith("Added: 2 × Banana"));
        QCOMPARE(m_journal->meals(), QStringList{u"2|2|46225|495|2"_qs});
        // The chart behind shows it already.
        QVERIFY(chartText().contains(u"193"_qs));
        typeKeys(u"walk 45 min"_qs);
        pressKey(Qt::Key_Return);
        QCOMPARE(m_journal->activities(), QStringList{u"2|2|46225|705|750|45"_qs});
        // Now there are habits: the first is stored by Enter alone, as it was the last time.
        QCOMPARE(firstNames(window), "Walking, Banana");
        pressKey(Qt::Key_Return);
        QCOMPARE(m_journal->activities().size(), 2);
        pressKey(Qt::Key_Escape);
        QVERIFY(!window.isVisible());
    });
    QCOMPARE(m_journal->messages.said.size(), 0u);
    QCOMPARE(m_journal->session->currentTime(), QTime(11, 45)); // proposed by the editors
    // Each is a step of its own.
    activate(*m_window);
    for (int i = 0; i < 2; ++i)
        pressKey(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(m_journal->activities().size(), 0);
    QCOMPARE(entry("mnuUndo").text(), "&Undo Adding Banana");
}

void tst_quickadd::recordsByMouseAndArrows()
{
    inQuickAdd([&](QWidget &window) {
        typeKeys(u"a"_qs);
        QCOMPARE(firstNames(window), "Apple, Banana, Walking");
        auto &list = control<QTreeView>(window, "lvwList");
        const auto placeOf = [&list](int row) {
            return list.visualRect(list.model()->index(row, 0)).center();
        };
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, placeOf(1));
        QVERIFY(label(window, "lblStore").startsWith("1 × Banana"));
        press(window, "btnAdd");
        QCOMPARE(m_journal->meals(), QStringList{u"2|2|46225|750|1"_qs});
        QVERIFY(control<QWidget>(window, "txtEntry").hasFocus());
        typeKeys(u"a"_qs);
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, placeOf(0));
        QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, placeOf(0));
        QCOMPARE(m_journal->meals().last(), u"3|1|46225|750|1.5"_qs);
        typeKeys(u"a"_qs);
        pressKey(Qt::Key_PageDown);
        QVERIFY(label(window, "lblStore").startsWith("30 × Walking, minute · 105 kcal · 12:00–"));
        pressKey(Qt::Key_Up);
        pressKey(Qt::Key_Return);
        QCOMPARE(m_journal->meals().size(), 3);
        press(window, "btnClose");
        QVERIFY(!window.isVisible());
    });
}

void tst_quickadd::saysWhatItCantStore()
{
    m_journal->exec("update Meal set Unit = 'cup (200 g)' where MealID = 3");
    inQuickAdd([&](QWidget &window) {
        const std::pair<QString, QString> lines[] = {
            {u"pear"_qs, u"No meal or activity has all of these words in its name"_qs},
            {u"8:99"_qs, u"\"8:99\" can't be read"_qs},
            {u"apple 100 g"_qs, u"The unit of Apple, piece, names no weight"_qs}};
        for (const auto &[line, problem] : lines) {
            control<QLineEdit>(window, "txtEntry").clear();
            typeKeys(line);
            QCOMPARE(label(window, "lblStore"), problem);
            pressKey(Qt::Key_Return);
            QCOMPARE(textOf(window, "txtEntry"), line);
        }
        control<QLineEdit>(window, "txtEntry").clear();
        typeKeys(u"e 100 g"_qs); // what can be stored comes first
        QCOMPARE(firstNames(window), "Crème brûlée, Apple");
        QVERIFY(label(window, "lblStore").startsWith("0.5 × Crème brûlée, cup (200 g)"));
    });
    QCOMPARE(m_journal->meals(), QStringList());
}

// By a meal that is made when it is first needed, and with it taken back.
void tst_quickadd::recordsPlainCalories()
{
    const auto record = [&](const QString &line) {
        inQuickAdd([&](QWidget &window) {
            typeKeys(line);
            QCOMPARE(shown(window).size(), 1);
            pressKey(Qt::Key_Return);
        });
    };
    record(u"350 kcal 9:00"_qs);
    QCOMPARE(m_journal->row("select Unit || Calories || '=' || FatBC || CarbohydrateBC || ProteinBC"
                            " from Meal where MealID = 4"),
             "kcal1.0=0.360.440.2");
    QCOMPARE(m_journal->row("select count(*) from MealCategory"), "4");
    m_journal->exec("update Meal set Name = 'Whatever' where MealID = 4");
    record(u"100 kcal"_qs); // found by what it is
    QCOMPARE(m_journal->meals(), (QStringList{u"2|4|46225|540|350"_qs, u"3|4|46225|750|100"_qs}));
    m_journal->data->rsMealConsumeSorted.reopen({Value(QDate(2026, 7, 22))});
    QCOMPARE(m_journal->data->rsMealConsumeSorted.integer(commands::sCalories), 350);
    m_journal->exec("update Meal set Name = 'Calories (36% fat, 44% carbohydrate, 20% protein)'"
                    " where MealID = 4");
    activate(*m_window);
    for (int i = 0; i < 2; ++i)
        pressKey(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(m_journal->row("select count(*) from Meal"), "3");
    QCOMPARE(m_journal->row("select count(*) from MealCategory"), "3");
    // With a food they count its quantity.
    inQuickAdd([&](QWidget &window) {
        typeKeys(u"ban 193 kcal"_qs);
        QVERIFY(label(window, "lblStore").startsWith("2 × Banana"));
    });
}

// What is shown is what is stored, at whatever minute.
void tst_quickadd::keepsUpWithTheClock()
{
    inQuickAdd([&](QWidget &window) {
        typeKeys(u"a"_qs);
        pressKey(Qt::Key_Down);
        m_journal->clock.setNow(QDateTime(QDate(2026, 7, 22), QTime(12, 47)));
        QVERIFY(label(window, "lblStore").contains("12:30"));
        QTRY_VERIFY_WITH_TIMEOUT(label(window, "lblStore").contains("12:47"), 5000);
        pressKey(Qt::Key_Return);
    });
    QCOMPARE(m_journal->meals(), QStringList{u"2|2|46225|767|1"_qs});
}

void tst_quickadd::keepsWhatIsRefused()
{
    inQuickAdd([&](QWidget &window) {
        typeKeys(u"ban"_qs);
        Connection(m_journal->path()).exec("delete from Meal where MealID = 2");
        pressKey(Qt::Key_Return);
        QCOMPARE(m_journal->messages.said.front().text, "The entry can't be stored");
        QCOMPARE(textOf(window, "txtEntry"), "ban");
        QCOMPARE(shown(window), QStringList()); // it is gone
        m_journal->exec("update Common set NextMealConsumeID = 40000");
        control<QLineEdit>(window, "txtEntry").clear();
        typeKeys(u"app"_qs);
        pressKey(Qt::Key_Return);
        QVERIFY(!m_journal->messages.said.back().cause.isEmpty());
        QCOMPARE(textOf(window, "txtEntry"), "app");
    });
    QCOMPARE(m_journal->meals(), QStringList());
    QVERIFY(!entry("mnuUndo").isEnabled());
}

QTEST_MAIN(tst_quickadd)
#include "tst_quickadd.moc"
