// Compose a Meal: from ingredients to a meal of the catalogue.
#include "mainwindowtest.h"
#include "quickadd/frmComposeMeal.h"

#include <QLabel>

using namespace Qt::Literals;

class tst_composemeal : public MainWindowTest
{
    Q_OBJECT

private slots:
    // Apple: 30 kcal, Banana: 100, Crème brûlée: 300; a gram of each nutrient in each.
    void init()
    {
        open("update Meal set Unit = 'cup (200 g)' where MealID = 3;"
             "update Meal set Fat = 0.25, Protein = 12.5 where MealID = 2");
    }
    void composesByKeys();
    void changesAndRemoves();
    void refusesWithTheInputKept();

private:
    static void add(const QString &line)
    {
        typeKeys(line);
        pressKey(Qt::Key_Return);
    }
    static QStringList ingredients(const QWidget &window)
    {
        return shown(window, "lvwIngredients");
    }
    static QString figures(const QWidget &window, const QString &row)
    {
        QStringList texts;
        for (const char *figure : {"Calories", "Fat", "CarboHydrate", "Protein"})
            texts += control<QLabel>(window, qPrintable(row + QLatin1String(figure))).text();
        return texts.join(u'|');
    }
};

void tst_composemeal::composesByKeys()
{
    inWindow("mnuComposeMeal", "frmComposeMeal", [&](QWidget &window) {
        add(u"2 ban"_qs);
        add(u"100 g brulee"_qs);
        QCOMPARE(ingredients(window), (QStringList{u"Banana|2 × piece|200|0.5|2|25"_qs,
                                                   u"Crème brûlée|0.5 × cup (200 g)|150|0.5|0.5|"
                                                   "0.5"_qs}));
        QCOMPARE(textOf(window, "txtEntry"), QString());
        control<QWidget>(window, "txtPortions").setFocus();
        typeKeys(u"^4"_qs);
        QCOMPARE(figures(window, u"lblWhole"_qs), "350|1|2.5|25.5");
        QCOMPARE(figures(window, u"lblPortion"_qs), "87.5|0.25|0.62|6.38");
        inDialog(
            "frmMeal", [] { pressKey(Qt::Key_Return); },
            [&](QWidget &editor) {
                choose(editor, "dcbMealCategory", u"Dairy"_qs);
                type(editor, "txtName", u"Banana split"_qs);
                press(editor, "btnOK");
            });
        QVERIFY(!window.isVisible());
    });
    QCOMPARE(m_journal->row("select MealCategoryID, Name, Unit, DefaultQty, Calories, Fat,"
                            " Carbohydrate, Protein, round(FatBC + CarbohydrateBC + ProteinBC, 3)"
                            " from Meal where MealID = 4"),
             "2|Banana split|portion|1|87.5|0.25|0.62|6.38|87.5");
    QCOMPARE(entry("mnuUndo").text(), "&Undo Adding Banana split");
}

void tst_composemeal::changesAndRemoves()
{
    inWindow("mnuComposeMeal", "frmComposeMeal", [&](QWidget &window) {
        for (const QString &line : {u"2 ban"_qs, u"app"_qs, u"350 kcal"_qs})
            add(line);
        control<QWidget>(window, "lvwIngredients").setFocus();
        selectRow(window, 0, "lvwIngredients");
        pressKey(Qt::Key_Return); // back into the line
        QCOMPARE(textOf(window, "txtEntry"), "2 Banana");
        QCOMPARE(ingredients(window).size(), 2);
        pressKey(Qt::Key_Home);
        typeKeys(u"1"_qs);
        pressKey(Qt::Key_Return);
        QCOMPARE(ingredients(window).last(), u"Banana|12 × piece|1200|3|12|150"_qs);
        selectRow(window, 0, "lvwIngredients");
        control<QWidget>(window, "lvwIngredients").setFocus();
        pressKey(Qt::Key_Delete);
        QCOMPARE(figures(window, u"lblWhole"_qs), "1550|17|50.5|167.5");
        type(window, "txtPortions", u"2.5"_qs);
        QCOMPARE(figures(window, u"lblPortion"_qs), "620|6.8|20.2|67");
        type(window, "txtPortions", u"x"_qs);
        QCOMPARE(figures(window, u"lblPortion"_qs), "|||");
        press(window, "btnRemove"); // the one that is selected then
        press(window, "btnRemove");
        QVERIFY(!control<QPushButton>(window, "btnRemove").isEnabled());
        QVERIFY(!control<QPushButton>(window, "btnChange").isEnabled());
        QCOMPARE(figures(window, u"lblWhole"_qs), "0|0|0|0");
        pressKey(Qt::Key_Delete);
    });
}

void tst_composemeal::refusesWithTheInputKept()
{
    inWindow("mnuComposeMeal", "frmComposeMeal", [&](QWidget &window) {
        press(window, "btnOK");
        QCOMPARE(m_journal->messages.takeText(), "Add an ingredient first");
        QVERIFY(control<QWidget>(window, "txtEntry").hasFocus());
        const std::pair<QString, QString> lines[] = {
            {u"ban 8:15"_qs, u"An ingredient takes a quantity or a weight, and no time"_qs},
            {u"rowing"_qs, u"No meal has all of these words in its name"_qs},
            {u"ban 2 g"_qs, u"The unit of Banana, piece, names no weight"_qs}};
        for (const auto &[line, problem] : lines) {
            control<QLineEdit>(window, "txtEntry").clear();
            add(line);
            QCOMPARE(control<QLabel>(window, "lblEntry").text(), problem);
            QCOMPARE(textOf(window, "txtEntry"), line);
        }
        QCOMPARE(ingredients(window), QStringList());
        control<QLineEdit>(window, "txtEntry").clear();
        add(u"900000000000 ban"_qs); // more than a meal could hold
        QCOMPARE(ingredients(window), QStringList());
        control<QLineEdit>(window, "txtEntry").clear();
        add(u"9000000 ban"_qs);
        for (const char *portions : {"0", "-1", "", "1,5"}) {
            type(window, "txtPortions", QLatin1String(portions));
            press(window, "btnOK");
            QCOMPARE(m_journal->messages.takeText(),
                     "The Portions value should be a number above 0");
        }
        type(window, "txtPortions", u"0.0001"_qs);
        // The meal editor cancelled, all is there still.
        press(window, "btnOK", "frmMeal", [](QWidget &editor) { press(editor, "btnCancel"); });
        QVERIFY(window.isVisible());
        QCOMPARE(ingredients(window).size(), 1);
    });
    QCOMPARE(m_journal->row("select count(*) from Meal"), "3");
}

QTEST_MAIN(tst_composemeal)
#include "tst_composemeal.moc"
