// Undo and Redo in the main window, of what its windows store and delete.
#include "mainwindowtest.h"
#include "ui/plaintextbox.h"

#include <QDateEdit>

using namespace Qt::Literals;

class tst_undoing : public MainWindowTest
{
    Q_OBJECT

private slots:
    void init()
    {
        open("insert into MealConsume values (-1, 3, 46225, 0.5, 1), (1, 3, 46225, 0.5, 1);"
             "insert into Body values (-3, 46225, 80, 100, 90, 95, 'M');"
             "insert into UserNote values (-5, 46000, 46001, 'n')");
    }
    void takesBackWhatTheWindowsDo();
    void showsTheDayOfTheStep();
    void takesBackParameters();
    void saysWhatItCantTakeBack();

private:
    void addMeal(const QString &name, const QString &category = u"Fruit"_qs)
    {
        inWindow("mnuAddMeal", "frmMealConsume", [&](QWidget &window) {
            choose(window, "dcbMealCategory", category);
            choose(window, "dcbMeal", name);
            press(window, "btnOK");
        });
    }
    void undo() { pressKey(Qt::Key_Z, Qt::ControlModifier); }
    void redo() { pressKey(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier); }
    QString captions()
    {
        const auto caption = [&](const char *name) {
            return entry(name).text() + (entry(name).isEnabled() ? u""_qs : u" (off)"_qs);
        };
        return caption("mnuUndo") + u", "_qs + caption("mnuRedo");
    }
    QStringList everything()
    {
        QStringList rows = m_journal->meals() + m_journal->activities();
        for (const char *table : {"MealCategory", "Meal", "Exercise", "Body", "UserNote"})
            rows += m_journal->rows((std::string("select * from ") + table).c_str());
        return rows;
    }
};

void tst_undoing::takesBackWhatTheWindowsDo()
{
    QCOMPARE(captions(), "&Undo (off), &Redo (off)");
    undo(); // nothing to take back: nothing happens
    const auto remove = [&](QWidget &list) {
        m_journal->messages.answers = {true};
        selectRow(list, 0);
        press(list, "btnDelete");
    };
    const auto measure = [&](QWidget &window) {
        m_journal->messages.answers = {true}; // in the place of the other one of this day
        for (const char *box : {"txtWeight", "txtBreast", "txtWaist", "txtHips"})
            type(window, box, u"70"_qs);
        press(window, "btnOK");
    };
    const std::pair<const char *, std::function<void()>> actions[] = {
        {"Adding Banana", [&] { addMeal(u"Banana"_qs); }},
        {"Copying 3 Entries",
         [&] {
             inWindow("mnuCopyDay", "frmCopyDay", [](QWidget &window) {
                 control<QDateEdit>(window, "dtpDate").setDate(QDate(2026, 7, 22));
                 press(window, "btnOK");
             });
         }},
        {"Deleting Crème brûlée", [&] { inWindow("mnuMealConsume", "frmMealConsumes", remove); }},
        {"Adding Body Measurement of 22 Jul 2026",
         [&] { inWindow("mnuAddMeasurement", "frmBody", measure); }},
        {"Adding Nuts && Co",
         [&] {
             inWindow("mnuMealCategories", "frmMealCategories", [](QWidget &list) {
                 press(list, "btnNew", "frmMealCategory", [](QWidget &window) {
                     type(window, "txtName", u"Nuts & Co"_qs);
                     press(window, "btnOK");
                 });
             });
         }},
        {"Deleting Rowing", [&] { inWindow("mnuExercises", "frmExercises", remove); }},
        {"Deleting Trial Data",
         [&] {
             m_journal->messages.answers = {true};
             entry("mnuDeleteTrialData").trigger();
         }},
    };
    QList<QStringList> moments{everything()};
    for (const auto &[description, act] : actions) {
        act();
        moments << everything();
        QVERIFY(moments.last() != *(moments.end() - 2));
        QCOMPARE(captions(), u"&Undo %1, &Redo (off)"_qs.arg(description));
    }
    for (qsizetype i = moments.size() - 1; i-- > 0;) {
        undo();
        QCOMPARE(everything(), moments[i]);
    }
    QCOMPARE(captions(), "&Undo (off), &Redo Adding Banana");
    for (qsizetype i = 1; i < moments.size(); ++i) {
        redo();
        QCOMPARE(everything(), moments[i]);
    }
    // A cancelled window and a refused store are no steps.
    inWindow("mnuAddNote", "frmUserNote", [](QWidget &window) { press(window, "btnCancel"); });
    QCOMPARE(captions(), "&Undo Deleting Trial Data, &Redo (off)");
}

void tst_undoing::showsTheDayOfTheStep()
{
    addMeal(u"Apple"_qs);
    pressKey(Qt::Key_Left, Qt::ControlModifier);
    QCOMPARE(textOf(*m_window, "txtDate"), "21 Jul 2026");
    undo();
    QCOMPARE(textOf(*m_window, "txtDate"), "22 Jul 2026");
    QCOMPARE(m_journal->meals().size(), 2);
    // What stands in no day shows none.
    inWindow("mnuAddNote", "frmUserNote", [](QWidget &window) {
        control<PlainTextBox>(window, "txtNote").setPlainText(u"x"_qs);
        press(window, "btnOK");
    });
    pressKey(Qt::Key_Left, Qt::ControlModifier);
    undo();
    QCOMPARE(textOf(*m_window, "txtDate"), "21 Jul 2026");
}

// With all that they were computed into.
void tst_undoing::takesBackParameters()
{
    m_journal->exec("update Exercise set WeightDependent = 1");
    const auto computed = [&] {
        return m_journal->rows("select weight, metabolicRate, Measurement from Common") +
               m_journal->rows("select CaloriesConsume from Exercise") +
               m_journal->rows("select Weight, Waist, Measurement from Body");
    };
    const QStringList before = computed();
    inWindow("mnuCommon", "frmCommon", [](QWidget &window) {
        control<QComboBox>(window, "cbxMeasurement").setCurrentIndex(0);
        type(window, "txtWeight", u"180"_qs);
        press(window, "btnOK");
    });
    const QStringList after = computed();
    QVERIFY(m_journal->session->parameters().isImperial());
    QCOMPARE(captions(), "&Undo Changing Common Parameters, &Redo (off)");
    undo();
    QCOMPARE(computed(), before);
    QVERIFY(m_journal->session->parameters().isMetric());
    QCOMPARE(int(m_journal->session->parameters().weight), 70);
    redo();
    QCOMPARE(computed(), after);
    QCOMPARE(int(m_journal->session->parameters().weight), 180);
}

void tst_undoing::saysWhatItCantTakeBack()
{
    addMeal(u"Apple"_qs);
    addMeal(u"Banana"_qs);
    Connection(m_journal->path()).exec("update MealConsume set Qty = 3 where MealID = 2");
    const QStringList before = everything();
    undo();
    QCOMPARE(m_journal->messages.said.size(), 1u);
    QCOMPARE(m_journal->messages.said.front().text, "Adding Banana can't be undone");
    QVERIFY(m_journal->messages.said.front().cause.startsWith("Another program has changed"));
    QCOMPARE(everything(), before);
    QCOMPARE(captions(), "&Undo Adding Apple, &Redo (off)");
    activate(*m_window);
    undo();
    QCOMPARE(m_journal->meals().size(), 3);
}

QTEST_MAIN(tst_undoing)
#include "tst_undoing.moc"
