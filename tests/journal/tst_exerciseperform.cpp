// The activity performance editor, where it differs from that of meals.
#include "dayjournal.h"

#include "journal/frmExercisePerform.h"
#include "ui/datacombo.h"

#include <QLabel>
#include <QSignalSpy>

class tst_ExercisePerform : public QObject
{
    Q_OBJECT

private slots:
    void init() { journal = std::make_unique<DayJournal>(); }
    void choosesAndRecalculates();
    void storesNew();
    void changesStored();
    void checks_data();
    void checks();
    void addsInARow();
    void createsActivity();

private:
    void inEditor(qint32 id, bool addMode, const std::function<void(QWidget &)> &steps)
    {
        frmExercisePerform editor(*journal->session, journal->messages);
        editor.setAddMode(addMode);
        inDialog(
            "frmExercisePerform", [&] { stored = editor.run(id); }, steps);
        storedId = editor.storedId();
    }
    static void fill(QWidget &editor, const QString &activity, const char *begin, const char *end,
                     const QString &quantity)
    {
        control<DataCombo>(editor, "dcbExercise").setDisplayedText(activity);
        typeTime(control<QTimeEdit>(editor, "dtpBeginTime"), QLatin1String(begin));
        typeTime(control<QTimeEdit>(editor, "dtpEndTime"), QLatin1String(end));
        typeInto(control<QLineEdit>(editor, "txtQty"), quantity);
    }

    std::unique_ptr<DayJournal> journal;
    bool stored = false;
    qint32 storedId = 0;
};

void tst_ExercisePerform::choosesAndRecalculates()
{
    inEditor(0, false, [](QWidget &editor) {
        QCOMPARE(editor.windowTitle(), QStringLiteral("Activity Performed - New"));
        QCOMPARE(control<QTimeEdit>(editor, "dtpBeginTime").time(), QTime(12, 30));
        QCOMPARE(control<QTimeEdit>(editor, "dtpEndTime").time(), QTime(12, 30));
        auto &activity = control<DataCombo>(editor, "dcbExercise");
        auto &quantity = control<QLineEdit>(editor, "txtQty");
        const auto &calories = control<QLabel>(editor, "lblCalories");
        activity.setDisplayedText(QStringLiteral("Walking"));
        QCOMPARE(quantity.text(), QStringLiteral("30"));
        QCOMPARE(control<QLabel>(editor, "lblUnit").text(), QStringLiteral("minute"));
        QCOMPARE(calories.text(), QStringLiteral("105"));
        activity.setDisplayedText(QStringLiteral("Rowing"));
        QCOMPARE(quantity.text(), QStringLiteral("1"));
        typeInto(quantity, QStringLiteral("2.5"));
        QCOMPARE(calories.text(), QStringLiteral("17")); // 17.5, cut off

        QTest::keyClick(&quantity, Qt::Key_Up);
        QCOMPARE(quantity.text(), QStringLiteral("3.5"));
        for (int i = 0; i < 4; ++i)
            QTest::keyClick(&quantity, Qt::Key_Down);
        QCOMPARE(quantity.text(), QStringLiteral("-0.5"));
        QCOMPARE(calories.text(), QStringLiteral("-4"));
        typeInto(quantity, QStringLiteral("20000001")); // no single-precision number
        QTest::keyClick(&quantity, Qt::Key_Up);
        QCOMPARE(quantity.text(), QStringLiteral("20000000"));
        typeInto(quantity, QStringLiteral("many"));
        QTest::keyClick(&quantity, Qt::Key_Up);
        QCOMPARE(quantity.text() + calories.text(), QStringLiteral("many"));

        activity.setDisplayedText(QString());
        QCOMPARE(quantity.text() + control<QLabel>(editor, "lblUnit").text() + calories.text(),
                 QString());
    });
}

void tst_ExercisePerform::storesNew()
{
    inEditor(0, false, [&](QWidget &editor) {
        control<DataCombo>(editor, "dcbExercise").setDisplayedText(QStringLiteral("Walking"));
        press(editor, "btnOK"); // the times as proposed are the same
        QCOMPARE(journal->messages.takeText(),
                 QStringLiteral("The End Time value should be more than the Begin Time value"));
        typeTime(control<QTimeEdit>(editor, "dtpEndTime"), QStringLiteral("1331"));
        typeTime(control<QTimeEdit>(editor, "dtpBeginTime"), QStringLiteral("1300"));
        press(editor, "btnOK");
    });
    QVERIFY(stored);
    QCOMPARE(storedId, 2);
    // The quantity is the usual one: it is not taken from the times.
    QCOMPARE(journal->activities(), QStringList{QStringLiteral("2|2|%1|780|811|30").arg(testDay)});
    QCOMPARE(journal->row("select NextExercisePerformID from Common"), QStringLiteral("2"));
    QCOMPARE(journal->session->currentTime(), QTime(13, 0));
}

void tst_ExercisePerform::changesStored()
{
    journal->exec("insert into ExercisePerform values (-4, 2, 46000, 0.25, 0.5, 12.5)");
    inEditor(-4, false, [](QWidget &editor) {
        QCOMPARE(editor.windowTitle(), QStringLiteral("Activity Performed"));
        QCOMPARE(control<DataCombo>(editor, "dcbExercise").displayedText(),
                 QStringLiteral("Walking"));
        QCOMPARE(control<QTimeEdit>(editor, "dtpBeginTime").text(), QStringLiteral("6:00"));
        QCOMPARE(control<QTimeEdit>(editor, "dtpEndTime").text(), QStringLiteral("12:00"));
        QCOMPARE(textOf(editor, "txtQty"), QStringLiteral("12.5"));
        QCOMPARE(control<QLabel>(editor, "lblCalories").text(), QStringLiteral("43"));
        typeInto(control<QLineEdit>(editor, "txtQty"), QStringLiteral("-2"));
        press(editor, "btnOK");
    });
    QCOMPARE(storedId, -4);
    QCOMPARE(journal->activities(), QStringList{QStringLiteral("-4|2|46000|360|720|-2")});
}

void tst_ExercisePerform::checks_data()
{
    QTest::addColumn<QString>("activity");
    QTest::addColumn<QString>("end");
    QTest::addColumn<QString>("quantity");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("field");
    const QString later = QStringLiteral("The End Time value should be more than the Begin Time "
                                         "value");
    QTest::newRow("no activity") << "Walk"
                                 << "0000"
                                 << ""
                                 << "The Exercise is not specified or specified incorrect"
                                 << "dcbExercise";
    QTest::newRow("across midnight") << "Walking"
                                     << "0030"
                                     << "" << later << "dtpEndTime";
    QTest::newRow("no time at all") << "Walking"
                                    << "2300"
                                    << "1" << later << "dtpEndTime";
    QTest::newRow("blank") << "Walking"
                           << "2359"
                           << " "
                           << "The Quantity should be specified"
                           << "txtQty";
    QTest::newRow("no number") << "Walking"
                               << "2359"
                               << "1 1"
                               << "The Quantity field contains illegal data"
                               << "txtQty";
}

void tst_ExercisePerform::checks()
{
    QFETCH(QString, activity);
    QFETCH(QString, end);
    QFETCH(QString, quantity);
    QFETCH(QString, message);
    QFETCH(QString, field);
    inEditor(0, false, [&](QWidget &editor) {
        fill(editor, activity, "2300", qPrintable(end), quantity);
        press(editor, "btnOK");
        QCOMPARE(journal->messages.takeText(), message);
        QVERIFY(editor.isVisible());
        QCOMPARE(editor.focusWidget()->objectName(), field);
        QCOMPARE(control<DataCombo>(editor, "dcbExercise").displayedText(), activity);
        QCOMPARE(control<QTimeEdit>(editor, "dtpEndTime").time(),
                 QTime::fromString(end, QStringLiteral("HHmm")));
        QCOMPARE(textOf(editor, "txtQty"), quantity);
    });
    QVERIFY(!stored);
    QCOMPARE(journal->activities(), QStringList());
    QCOMPARE(journal->row("select NextExercisePerformID from Common"), QStringLiteral("1"));
}

void tst_ExercisePerform::addsInARow()
{
    const QSignalSpy rebuilt(journal->session.get(), &Session::journalChanged);
    inEditor(0, true, [&](QWidget &editor) {
        for (const char *end : {"1400", "1500"}) {
            fill(editor, QStringLiteral("Rowing"), "1300", end, QStringLiteral("4"));
            press(editor, "btnOK");
            QVERIFY(editor.isVisible());
            QCOMPARE(editor.focusWidget(), &control<DataCombo>(editor, "dcbExercise"));
            QCOMPARE(control<DataCombo>(editor, "dcbExercise").displayedText() +
                         textOf(editor, "txtQty") + control<QLabel>(editor, "lblUnit").text() +
                         control<QLabel>(editor, "lblCalories").text(),
                     QString());
            QCOMPARE(control<QTimeEdit>(editor, "dtpBeginTime").time(), QTime(13, 0));
        }
        QCOMPARE(control<QTimeEdit>(editor, "dtpEndTime").time(), QTime(15, 0));
        QCOMPARE(rebuilt.count(), 2);
    });
    QCOMPARE(storedId, 3);
    QCOMPARE(journal->activities(), (QStringList{QStringLiteral("2|1|%1|780|840|4").arg(testDay),
                                                 QStringLiteral("3|1|%1|780|900|4").arg(testDay)}));
}

void tst_ExercisePerform::createsActivity()
{
    inEditor(0, false, [&](QWidget &editor) {
        inDialog(
            "frmExercise", [&] { press(editor, "btnNewCategory"); },
            [](QWidget &activity) {
                typeInto(control<QLineEdit>(activity, "txtName"), QStringLiteral("Dancing"));
                typeInto(control<QLineEdit>(activity, "txtUnit"), QStringLiteral("tune"));
                typeInto(control<QLineEdit>(activity, "txtCaloriesConsume"), QStringLiteral("15"));
                typeInto(control<QLineEdit>(activity, "txtDefaultQty"), QStringLiteral("3"));
                press(activity, "btnOK");
            });
        QCOMPARE(journal->messages.takeText(), QString());
        QCOMPARE(control<DataCombo>(editor, "dcbExercise").displayedText(),
                 QStringLiteral("Dancing"));
        QCOMPARE(textOf(editor, "txtQty"), QStringLiteral("3"));
        QCOMPARE(control<QLabel>(editor, "lblCalories").text(), QStringLiteral("45"));
    });
}

QTEST_MAIN(tst_ExercisePerform)
#include "tst_exerciseperform.moc"
