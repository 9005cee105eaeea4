// Compose a Meal: from ingredients to a meal of the catalogue.
#include "app/frmMain.h"
#include "dayjournal.h"
#include "quickadd/frmComposeMeal.h"

#include <QLabel>

using namespace Qt::Literals;

class tst_composemeal : public QObject
{
    Q_OBJECT

private slots:
    void init() { open(QLocale(QLocale::English, QLocale::UnitedKingdom)); }
    void cleanup() { m_window.reset(); }
    void composesByKeys();
    void changesAndRemoves();
    void figuresFollow();
    void refusesWithTheInputKept();
    void writesAsTheLocaleDoes();

private:
    // Apple: 30 kcal, Banana: 100, Crème brûlée: 300; a gram of each nutrient in each.
    void open(const QLocale &locale)
    {
        m_window.reset();
        m_journal = std::make_unique<DayJournal>(locale);
        m_journal->exec("update Meal set Unit = 'cup (200 g)' where MealID = 3;"
                        "update Meal set Fat = 0.25, Protein = 12.5 where MealID = 2");
        m_window = std::make_unique<frmMain>(*m_journal->session, m_journal->messages);
        m_window->show();
    }
    void inWindow(const std::function<void(QWidget &)> &steps)
    {
        activate(*m_window);
        inDialog(
            "frmComposeMeal", [&] { control<QAction>(*m_window, "mnuComposeMeal").trigger(); },
            steps);
    }
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

    std::unique_ptr<DayJournal> m_journal;
    std::unique_ptr<frmMain> m_window;
};

void tst_composemeal::composesByKeys()
{
    inWindow([&](QWidget &window) {
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
                const std::pair<const char *, const char *> boxes[] = {
                    {"txtName", ""},         {"txtUnit", "portion"}, {"txtDefaultQty", "1"},
                    {"txtCalories", "87.5"}, {"txtFat", "0.25"},     {"txtCarboHydrate", "0.62"},
                    {"txtProtein", "6.38"}};
                for (const auto &[box, text] : boxes)
                    QCOMPARE(textOf(editor, box), text);
                choose(editor, "dcbMealCategory", u"Dairy"_qs);
                type(editor, "txtName", u"Banana split"_qs);
                press(editor, "btnOK");
            });
        QVERIFY(!window.isVisible());
    });
    QCOMPARE(m_journal->row("select MealCategoryID, Name, Unit, Calories, Fat, Carbohydrate,"
                            " Protein, round(FatBC + CarbohydrateBC + ProteinBC, 3) from Meal"
                            " where MealID = 4"),
             "2|Banana split|portion|87.5|0.25|0.62|6.38|87.5");
    QCOMPARE(control<QAction>(*m_window, "mnuUndo").text(), "&Undo Adding Banana split");
}

void tst_composemeal::changesAndRemoves()
{
    inWindow([&](QWidget &window) {
        for (const QString &line : {u"2 ban"_qs, u"app"_qs, u"3 brulee"_qs})
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
        QCOMPARE(ingredients(window).size(), 2);
        QCOMPARE(figures(window, u"lblWhole"_qs), "2100|6|15|153");
        press(window, "btnRemove"); // the one that is selected then
        press(window, "btnRemove");
        QVERIFY(!control<QPushButton>(window, "btnRemove").isEnabled());
        QVERIFY(!control<QPushButton>(window, "btnChange").isEnabled());
        QCOMPARE(figures(window, u"lblWhole"_qs), "0|0|0|0");
        pressKey(Qt::Key_Delete);
    });
}

void tst_composemeal::figuresFollow()
{
    inWindow([&](QWidget &window) {
        add(u"350 kcal"_qs); // plain ones, though the catalogue has no meal for them
        QCOMPARE(figures(window, u"lblWhole"_qs), "350|14|38.5|17.5");
        type(window, "txtPortions", u"2.5"_qs);
        QCOMPARE(figures(window, u"lblPortion"_qs), "140|5.6|15.4|7");
        type(window, "txtPortions", u"x"_qs);
        QCOMPARE(figures(window, u"lblPortion"_qs), "|||");
        control<QWidget>(window, "txtEntry").setFocus();
        typeKeys(u"ban 50 kcal"_qs);
        QCOMPARE(control<QLabel>(window, "lblEntry").text(),
                 u"0.5181 × Banana, piece · 50 kcal"_qs);
        pressKey(Qt::Key_Return);
        QCOMPARE(ingredients(window).size(), 2);
    });
}

void tst_composemeal::refusesWithTheInputKept()
{
    inWindow([&](QWidget &window) {
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

void tst_composemeal::writesAsTheLocaleDoes()
{
    open(QLocale(QLocale::German, QLocale::Germany));
    inWindow([&](QWidget &window) {
        add(u"1,5 ban"_qs);
        QCOMPARE(ingredients(window), QStringList{u"Banana|1,5 × piece|150|0,38|1,5|18,75"_qs});
        type(window, "txtPortions", u"1,5"_qs);
        press(window, "btnOK", "frmMeal", [](QWidget &editor) {
            QCOMPARE(textOf(editor, "txtFat"), "0,25");
            QCOMPARE(textOf(editor, "txtProtein"), "12,5");
        });
    });
}

QTEST_MAIN(tst_composemeal)
#include "tst_composemeal.moc"
