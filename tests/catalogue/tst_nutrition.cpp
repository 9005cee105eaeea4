// The split of a meal's calories over its nutrients.
#include "catalogue/nutrition.h"

#include <QRandomGenerator>
#include <QTest>

class tst_nutrition : public QObject
{
    Q_OBJECT

private slots:
    void splits_data();
    void splits();
    void partsAddUpToTheCalories();
};

void tst_nutrition::splits_data()
{
    QTest::addColumn<QString>("input"); // fat, carbohydrate, protein, calories
    QTest::addColumn<QString>("parts"); // of fat, of carbohydrate, of protein
    const auto row = [](const char *name, const char *input, const char *parts) {
        QTest::newRow(name) << QString(input) << QString(parts);
    };
    row("rounding falls on carbohydrate", "10 20 5 250", "118.4211 105.2631 26.3158");
    // Fat alone: the weighted sum is rounded to 0.0004 (half to even of 0.00045), the share of
    // fat is not, so that carbohydrate must give back what is too much.
    row("smallest fat", "0.0001 0 0 100", "112.5 -12.5 0");
    row("negative nutrient", "-2 10 10 62", "-18 40 40");
    // Calories less those of fat are out of range; with those of protein they are not.
    row("no false overflow", "-2 4.5 5 600000000000000",
        "-540000000000000 540000000000000 600000000000000");
    row("no nutrients", "0 0 0 120", "none");
    row("nutrients that cancel each other out", "4 -9 0 120", "none");
    row("sum out of range", "900000000000000 0 0 1", "overflow");
    // The weighted sum is 0.0002 and fat's share 22,500 times the calories.
    row("share out of range", "1 -2.2499 0 900000000000000", "overflow");
}

void tst_nutrition::splits()
{
    QFETCH(QString, input);
    QFETCH(QString, parts);
    QList<Currency> in;
    for (const QString &text : input.split(' '))
        in << Currency::fromText(text).value();
    QString result;
    try {
        const auto split = caloriesByNutrient(in[3], in[0], in[1], in[2]);
        result = split ? split->fat.toText() + ' ' + split->carbohydrate.toText() + ' ' +
                             split->protein.toText()
                       : "none";
    } catch (const OverflowError &) {
        result = "overflow";
    }
    QCOMPARE(result, parts);
}

void tst_nutrition::partsAddUpToTheCalories()
{
    QRandomGenerator random(20260101);
    const auto any = [&] {
        return Currency::fromTenThousandths(random.bounded(6'000'001) - 3'000'000);
    };
    for (int i = 0; i < 20000; ++i) {
        const Currency calories = any();
        const auto parts = caloriesByNutrient(calories, any(), any(), any());
        if (parts)
            QCOMPARE(parts->fat + parts->carbohydrate + parts->protein, calories);
    }
}

QTEST_APPLESS_MAIN(tst_nutrition)
#include "tst_nutrition.moc"
