// The meal consumption editor.
#include "dayjournal.h"

#include "journal/frmMealConsume.h"
#include "ui/datacombo.h"

#include <QLabel>
#include <QSignalSpy>

class tst_MealConsume : public QObject
{
    Q_OBJECT

private slots:
    void init() { journal = std::make_unique<DayJournal>(); }
    void chooses();
    void recalculates();
    void steps();
    void readsTheLocale();
    void storesNew();
    void changesStored();
    void checks_data();
    void checks();
    void addsInARow();
    void takesTypedTime_data();
    void takesTypedTime();
    void createsMeal();
    void refusesWhatIsGone();

private:
    void inEditor(qint32 id, bool addMode, const std::function<void(QWidget &)> &steps)
    {
        frmMealConsume editor(*journal->session, journal->messages);
        editor.setAddMode(addMode);
        inDialog(
            "frmMealConsume", [&] { stored = editor.run(id); }, steps);
        storedId = editor.storedId();
    }
    static void choose(QWidget &editor, const char *chooser, const QString &name)
    {
        control<DataCombo>(editor, chooser).setDisplayedText(name);
    }
    static QString figures(QWidget &editor)
    {
        QStringList texts;
        for (const char *name : {"lblFat", "lblCarboHydrate", "lblProtein", "lblCalories"})
            texts += control<QLabel>(editor, name).text();
        return texts.join(u' ');
    }

    std::unique_ptr<DayJournal> journal;
    bool stored = false;
    qint32 storedId = 0;
};

void tst_MealConsume::chooses()
{
    inEditor(0, false, [](QWidget &editor) {
        QCOMPARE(editor.windowTitle(), QStringLiteral("Meal Consumed - New"));
        QCOMPARE(control<QTimeEdit>(editor, "dtpTime").text(), QStringLiteral("12:30"));
        const auto &meal = control<DataCombo>(editor, "dcbMeal");
        choose(editor, "dcbMealCategory", QStringLiteral("fruit"));
        QCOMPARE(meal.displayedText(), QStringLiteral("Apple"));
        QCOMPARE(control<QLabel>(editor, "lblUnit").text(), QStringLiteral("piece"));
        QCOMPARE(textOf(editor, "txtQty"), QStringLiteral("1.5"));
        choose(editor, "dcbMeal", QStringLiteral("Banana"));
        QCOMPARE(textOf(editor, "txtQty"), QStringLiteral("1"));
        QCOMPARE(figures(editor), QStringLiteral("2 90 4 96"));

        choose(editor, "dcbMealCategory", QStringLiteral("Vacant"));
        QCOMPARE(meal.boundValue(), std::nullopt);
        QCOMPARE(meal.displayedText() + control<QLabel>(editor, "lblUnit").text() +
                     textOf(editor, "txtQty"),
                 QString());
        QCOMPARE(figures(editor).trimmed(), QString());
    });
    QVERIFY(!stored);
    QCOMPARE(journal->meals(), QStringList());
}

void tst_MealConsume::recalculates()
{
    inEditor(0, false, [](QWidget &editor) {
        choose(editor, "dcbMealCategory", QStringLiteral("Fruit"));
        auto &quantity = control<QLineEdit>(editor, "txtQty");
        const std::pair<const char *, const char *> cases[] = {
            {"0.25", "2 4 1 7"}, {"-1", "-10 -15 -5 -30"}, {"x", ""}, {"", ""}, {"1,5", ""},
            {"0", "0 0 0 0"},    {"900000000000000", ""}, // beyond what is shown
        };
        for (const auto &[text, shown] : cases) {
            typeInto(quantity, QLatin1String(text));
            QCOMPARE(figures(editor).trimmed(), QLatin1String(shown));
        }
    });
}

void tst_MealConsume::steps()
{
    inEditor(0, false, [](QWidget &editor) {
        choose(editor, "dcbMealCategory", QStringLiteral("Fruit"));
        auto &quantity = control<QLineEdit>(editor, "txtQty");
        typeInto(quantity, QStringLiteral("1"));
        QTest::keyClick(&quantity, Qt::Key_Up);
        QTest::keyClick(&quantity, Qt::Key_Up);
        QCOMPARE(quantity.text(), QStringLiteral("1.5"));
        QCOMPARE(figures(editor), QStringLiteral("15 22 8 45"));
        for (int i = 0; i < 7; ++i)
            QTest::keyClick(&quantity, Qt::Key_Down);
        QCOMPARE(quantity.text(), QStringLiteral("-0.25"));

        // Exact on the way up, through single precision on the way down.
        typeInto(quantity, QStringLiteral("20000001"));
        QTest::keyClick(&quantity, Qt::Key_Up);
        QCOMPARE(quantity.text(), QStringLiteral("20000001.25"));
        QTest::keyClick(&quantity, Qt::Key_Down);
        QCOMPARE(quantity.text(), QStringLiteral("20000002"));

        choose(editor, "dcbMeal", QStringLiteral("Banana")); // which has no increment
        QTest::keyClick(&quantity, Qt::Key_Up);
        QCOMPARE(quantity.text(), QStringLiteral("2"));
        for (const char *left : {"two", "922337203685477"}) { // no number; no next step
            typeInto(quantity, QLatin1String(left));
            QTest::keyClick(&quantity, Qt::Key_Up);
            QCOMPARE(quantity.text(), QLatin1String(left));
        }
    });
}

void tst_MealConsume::readsTheLocale()
{
    journal = std::make_unique<DayJournal>(QLocale(QLocale::German, QLocale::Germany));
    inEditor(0, false, [&](QWidget &editor) {
        choose(editor, "dcbMealCategory", QStringLiteral("Fruit"));
        auto &quantity = control<QLineEdit>(editor, "txtQty");
        QCOMPARE(quantity.text(), QStringLiteral("1,5"));
        QTest::keyClick(&quantity, Qt::Key_Down);
        QCOMPARE(quantity.text(), QStringLiteral("1,25"));
        typeInto(quantity, QStringLiteral("2.5"));
        press(editor, "btnOK");
        QCOMPARE(journal->messages.takeText(),
                 QStringLiteral("The Quantity field contains illegal data"));
        typeInto(quantity, QStringLiteral("2,5"));
        press(editor, "btnOK");
    });
    QCOMPARE(journal->meals(), QStringList{QStringLiteral("2|1|%1|750|2.5").arg(testDay)});
}

void tst_MealConsume::storesNew()
{
    inEditor(0, false, [](QWidget &editor) {
        choose(editor, "dcbMealCategory", QStringLiteral("Dairy"));
        typeTime(control<QTimeEdit>(editor, "dtpTime"), QStringLiteral("0715"));
        typeInto(control<QLineEdit>(editor, "txtQty"), QStringLiteral("-0.5"));
        press(editor, "btnOK");
        QVERIFY(!editor.isVisible());
    });
    QVERIFY(stored);
    // The counter holds the number given out last.
    QCOMPARE(storedId, 2);
    QCOMPARE(journal->meals(), QStringList{QStringLiteral("2|3|%1|435|-0.5").arg(testDay)});
    QCOMPARE(journal->row("select NextMealConsumeID from Common"), QStringLiteral("2"));
    QCOMPARE(journal->session->currentTime(), QTime(7, 15));
}

void tst_MealConsume::changesStored()
{
    journal->exec("insert into MealConsume values (-4, 1, 46000, 0.25, 3)");
    inEditor(-4, false, [](QWidget &editor) {
        QCOMPARE(editor.windowTitle(), QStringLiteral("Meal Consumed"));
        QCOMPARE(control<DataCombo>(editor, "dcbMealCategory").displayedText(),
                 QStringLiteral("Fruit"));
        QCOMPARE(control<QTimeEdit>(editor, "dtpTime").text(), QStringLiteral("6:00"));
        QCOMPARE(textOf(editor, "txtQty"), QStringLiteral("3")); // not what is usual
        QCOMPARE(figures(editor), QStringLiteral("30 45 15 90"));
        choose(editor, "dcbMeal", QStringLiteral("Banana"));
        press(editor, "btnOK");
    });
    QCOMPARE(storedId, -4);
    QCOMPARE(journal->meals(), QStringList{QStringLiteral("-4|2|46000|360|1")});
    QCOMPARE(journal->row("select NextMealConsumeID from Common"), QStringLiteral("1"));
}

void tst_MealConsume::checks_data()
{
    QTest::addColumn<QString>("category");
    QTest::addColumn<QString>("meal");
    QTest::addColumn<QString>("quantity");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("field");
    const QString category =
        QStringLiteral("The Meal Category is not specified or specified incorrect");
    const QString meal = QStringLiteral("The Meal should be specified");
    QTest::newRow("nothing") << ""
                             << ""
                             << "" << category << "dcbMealCategory";
    QTest::newRow("part of a category") << "Fru"
                                        << ""
                                        << "x" << category << "dcbMealCategory";
    QTest::newRow("no meal") << "Vacant"
                             << ""
                             << "" << meal << "dcbMeal";
    QTest::newRow("unknown meal") << "Fruit"
                                  << "Appl"
                                  << "1" << meal << "dcbMeal";
    QTest::newRow("blank quantity") << "Fruit"
                                    << "Apple"
                                    << "  "
                                    << "The Quantity should be specified"
                                    << "txtQty";
    QTest::newRow("no number") << "Fruit"
                               << "Apple"
                               << "1.5.2"
                               << "The Quantity field contains illegal data"
                               << "txtQty";
}

void tst_MealConsume::checks()
{
    QFETCH(QString, category);
    QFETCH(QString, meal);
    QFETCH(QString, quantity);
    QFETCH(QString, message);
    QFETCH(QString, field);
    inEditor(0, false, [&](QWidget &editor) {
        choose(editor, "dcbMealCategory", category);
        choose(editor, "dcbMeal", meal);
        typeInto(control<QLineEdit>(editor, "txtQty"), quantity);
        press(editor, "btnOK");
        QCOMPARE(journal->messages.said.size(), 1U);
        QCOMPARE(journal->messages.said[0].title, QStringLiteral("Error"));
        QCOMPARE(journal->messages.takeText(), message);
        QVERIFY(editor.isVisible());
        QCOMPARE(editor.focusWidget()->objectName(), field);
        QCOMPARE(control<DataCombo>(editor, "dcbMealCategory").displayedText(), category);
        QCOMPARE(control<DataCombo>(editor, "dcbMeal").displayedText(), meal);
        QCOMPARE(textOf(editor, "txtQty"), quantity);
    });
    QVERIFY(!stored);
    QCOMPARE(journal->meals(), QStringList());
    QCOMPARE(journal->row("select NextMealConsumeID from Common"), QStringLiteral("1"));
}

void tst_MealConsume::addsInARow()
{
    const QSignalSpy rebuilt(journal->session.get(), &Session::journalChanged);
    inEditor(0, true, [&](QWidget &editor) {
        QCOMPARE(control<QPushButton>(editor, "btnOK").text(), QStringLiteral("&Add"));
        QCOMPARE(control<QPushButton>(editor, "btnCancel").text(), QStringLiteral("&Close"));
        // By keys alone, the focus always standing where the next entry begins.
        auto &category = control<DataCombo>(editor, "dcbMealCategory");
        for (const int hour : {7, 10, 10}) {
            control<QTimeEdit>(editor, "dtpTime").setTime(QTime(hour, 30));
            QCOMPARE(editor.focusWidget(), &category);
            typeKeys(QStringLiteral("fru"));
            pressKey(Qt::Key_Tab);
            typeKeys(QStringLiteral("nan"));
            pressKey(Qt::Key_Tab);
            pressKey(Qt::Key_Return);
            QVERIFY(editor.isVisible());
            QCOMPARE(category.boundValue(), std::nullopt);
            QCOMPARE(category.displayedText() + textOf(editor, "txtQty") +
                         control<DataCombo>(editor, "dcbMeal").displayedText() +
                         control<QLabel>(editor, "lblUnit").text() + figures(editor).trimmed(),
                     QString());
        }
        QCOMPARE(control<QTimeEdit>(editor, "dtpTime").text(), QStringLiteral("10:30"));
        QCOMPARE(rebuilt.count(), 3);
        press(editor, "btnCancel");
    });
    QVERIFY(stored);
    QCOMPARE(storedId, 4);
    QCOMPARE(journal->meals(), (QStringList{QStringLiteral("2|2|%1|450|1").arg(testDay),
                                            QStringLiteral("3|2|%1|630|1").arg(testDay),
                                            QStringLiteral("4|2|%1|630|1").arg(testDay)}));
}

void tst_MealConsume::takesTypedTime_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<QString>("keys"); // < deletes
    QTest::addColumn<int>("minute");   // -1 where it is refused
    const QLocale british(QLocale::English, QLocale::UnitedKingdom);
    const QLocale american(QLocale::English, QLocale::UnitedStates);
    QTest::newRow("as proposed") << british << "" << 750;
    QTest::newRow("digits alone") << british << "2359" << 1439;
    QTest::newRow("with colon") << british << "8:45" << 525;
    QTest::newRow("one digit of minutes") << british << "6:5" << 365;
    QTest::newRow("no hour") << british << "<" << -1;
    QTest::newRow("no minutes") << british << "8:<" << -1;
    QTest::newRow("afternoon") << american << "8:45" << 1245;
    QTest::newRow("morning") << american << "8:45 a" << 525;
    QTest::newRow("midnight") << american << "12:00 a" << 0;
    QTest::newRow("no half of the day") << american << "8:45 <" << -1;
}

// With the picker still focused, by Enter and by a click: neither stores a time that is on no
// screen.
void tst_MealConsume::takesTypedTime()
{
    QFETCH(QLocale, locale);
    QFETCH(QString, keys);
    QFETCH(int, minute);
    journal = std::make_unique<DayJournal>(locale);
    for (const bool byEnter : {true, false}) {
        journal->exec("delete from MealConsume");
        journal->session->setCurrentTime(QTime(12, 30));
        inEditor(0, false, [&](QWidget &editor) {
            choose(editor, "dcbMealCategory", QStringLiteral("Dairy"));
            auto &picker = control<QTimeEdit>(editor, "dtpTime");
            typeTime(picker, QString());
            for (const QChar key : keys) {
                if (key == u'<')
                    pressKey(Qt::Key_Backspace);
                else
                    typeKeys(key);
            }
            const QString seen = picker.text();
            if (byEnter)
                pressKey(Qt::Key_Return);
            else
                QTest::mouseClick(&control<QPushButton>(editor, "btnOK"), Qt::LeftButton);
            QCOMPARE(journal->messages.takeText(),
                     minute < 0 ? QStringLiteral("The Time field contains illegal data")
                                : QString());
            QCOMPARE(editor.isVisible(), minute < 0);
            if (minute < 0)
                QCOMPARE(picker.text(), seen);
        });
        QCOMPARE(journal->row("select round(ConsumeTime * 1440) from MealConsume"),
                 minute < 0 ? QString() : QString::number(minute));
    }
}

void tst_MealConsume::createsMeal()
{
    inEditor(0, false, [&](QWidget &editor) {
        choose(editor, "dcbMealCategory", QStringLiteral("Vacant"));
        inDialog(
            "frmMeal", [&] { press(editor, "btnNewMeal"); },
            [&](QWidget &meal) {
                QCOMPARE(control<DataCombo>(meal, "dcbMealCategory").displayedText(),
                         QStringLiteral("Vacant"));
                inDialog(
                    "frmMealCategory", [&] { press(meal, "btnNewCategory"); },
                    [](QWidget &category) {
                        typeInto(control<QLineEdit>(category, "txtName"), QStringLiteral("Bread"));
                        press(category, "btnOK");
                    });
                typeInto(control<QLineEdit>(meal, "txtName"), QStringLiteral("Rye"));
                typeInto(control<QLineEdit>(meal, "txtUnit"), QStringLiteral("slice"));
                typeInto(control<QLineEdit>(meal, "txtDefaultQty"), QStringLiteral("2"));
                for (const char *box : {"txtCalories", "txtFat", "txtCarboHydrate", "txtProtein"})
                    typeInto(control<QLineEdit>(meal, box), QStringLiteral("10"));
                press(meal, "btnOK");
            });
        QCOMPARE(journal->messages.takeText(), QString());
        QCOMPARE(control<DataCombo>(editor, "dcbMealCategory").displayedText(),
                 QStringLiteral("Bread"));
        QCOMPARE(control<DataCombo>(editor, "dcbMeal").displayedText(), QStringLiteral("Rye"));
        QCOMPARE(textOf(editor, "txtQty"), QStringLiteral("2"));
        QCOMPARE(control<QLabel>(editor, "lblUnit").text(), QStringLiteral("slice"));

        typeInto(control<QLineEdit>(editor, "txtQty"), QStringLiteral("7"));
        inDialog(
            "frmMeal", [&] { press(editor, "btnNewMeal"); },
            [](QWidget &meal) { press(meal, "btnCancel"); });
        QCOMPARE(textOf(editor, "txtQty"), QStringLiteral("7"));
        press(editor, "btnOK");
    });
    QCOMPARE(journal->row("select Name, Qty from MealConsume natural join Meal"),
             QStringLiteral("Rye|7"));
}

void tst_MealConsume::refusesWhatIsGone()
{
    journal->exec("insert into MealConsume values (9, 1, 46000, 0.25, 3)");
    inEditor(9, false, [&](QWidget &editor) {
        journal->exec("delete from MealConsume");
        press(editor, "btnOK");
        QVERIFY(editor.isVisible());
        QCOMPARE(journal->messages.takeText(),
                 QStringLiteral("Can't store this record in database. Please check whether all "
                                "data are valid"));
    });
    QVERIFY(!stored);
    inEditor(9, false, [&](QWidget &editor) {
        choose(editor, "dcbMealCategory", QStringLiteral("Dairy"));
        press(editor, "btnOK");
        QVERIFY(editor.isVisible());
        QVERIFY(!journal->messages.takeText().isEmpty());
    });
    QCOMPARE(journal->meals(), QStringList());
}

QTEST_MAIN(tst_MealConsume)
#include "tst_mealconsume.moc"
