// The split of a meal's calories over its nutrients, and calories of an activity for bodies of
// different weight.
#include "catalogue/nutrition.h"
#include "catalogue/weightadjustment.h"

#include <QTest>

class tst_nutrition : public QObject
{
    Q_OBJECT

private slots:
    void splits();
    void adjustsToTheWeight();
};

void tst_nutrition::splits()
{
    // Fat, carbohydrate, protein and calories; of fat, of carbohydrate, of protein.
    const std::pair<QString, QString> cases[] = {
        {"10 20 5 250", "118.4211 105.2631 26.3158"}, // rounding falls on carbohydrate
        // Fat alone: the weighted sum is rounded to 0.0004 (half to even of 0.00045), the share of
        // fat is not, so that carbohydrate must give back what is too much.
        {"0.0001 0 0 100", "112.5 -12.5 0"},
        {"-2 10 10 62", "-18 40 40"},
        // Calories less those of fat are out of range; with those of protein they are not.
        {"-2 4.5 5 600000000000000", "-540000000000000 540000000000000 600000000000000"},
        {"0 0 0 120", "none"},
        {"4 -9 0 120", "none"}, // they cancel each other out
        {"900000000000000 0 0 1", "overflow"},
        // The weighted sum is 0.0002 and fat's share 22,500 times the calories.
        {"1 -2.2499 0 900000000000000", "overflow"}};
    for (const auto &[input, parts] : cases) {
        QList<Currency> in;
        for (const QString &text : input.split(' '))
            in << Currency::fromText(text).value();
        QString result;
        try {
            const auto split = caloriesByNutrient(in[3], {in[0], in[1], in[2]});
            QStringList texts;
            for (const Currency part : split.value_or(Nutrients<Currency>()))
                texts << part.toText();
            result = split ? texts.join(' ') : "none";
        } catch (const OverflowError &) {
            result = "overflow";
        }
        QCOMPARE(result, parts);
    }
}

void tst_nutrition::adjustsToTheWeight()
{
    QCOMPARE(int(adjustedCalories(450, 68.04, 90)), 595); // as in a published table
    QCOMPARE(int(adjustedCalories(250.5, 70, 70)), 250);  // halves to the even
    QCOMPARE(int(adjustedCalories(251.5, 70, 70)), 252);
    QCOMPARE(int(adjustedCalories(-32768.5, 70, 70)), -32768);
    QVERIFY_THROWS_EXCEPTION(OverflowError, adjustedCalories(0, 0, 90)); // not even a number
    QVERIFY_THROWS_EXCEPTION(OverflowError, adjustedCalories(32767.5, 70, 70));
    QVERIFY_THROWS_EXCEPTION(OverflowError, baseCalories(0, 0, false));
    QCOMPARE(baseCalories(300, 200, false), 225.0);
}

QTEST_APPLESS_MAIN(tst_nutrition)
#include "tst_nutrition.moc"
