// The split of a meal's calories over its nutrients.
#include "catalogue/nutrition.h"

#include <QRandomGenerator>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

Currency decimal(const char *text)
{
    return Currency::fromText(QString::fromLatin1(text)).value();
}

} // namespace

class tst_nutrition : public QObject
{
    Q_OBJECT

private slots:
    void splits_data();
    void splits();
    void noSplitWithoutNutrients();
    void partsAddUpToTheCalories();
    void outOfRangeIsRaised();
};

void tst_nutrition::splits_data()
{
    QTest::addColumn<QString>("input"); // fat, carbohydrate, protein, calories
    QTest::addColumn<QString>("parts"); // of fat, of carbohydrate, of protein

    QTest::newRow("rounding falls on carbohydrate")
        << u"10 20 5 250"_s << u"118.4211 105.2631 26.3158"_s;
    QTest::newRow("one nutrient takes all") << u"0 12.5 0 47.3"_s << u"0 47.3 0"_s;
    // Fat alone: the weighted sum is rounded to 0.0004 (half to even of 0.00045), the share of
    // fat is not, so that carbohydrate must give back what is too much.
    QTest::newRow("smallest fat") << u"0.0001 0 0 100"_s << u"112.5 -12.5 0"_s;
    QTest::newRow("negative nutrient") << u"-2 10 10 62"_s << u"-18 40 40"_s;
    QTest::newRow("no calories") << u"3 4 5 0"_s << u"0 0 0"_s;
    // Calories less those of fat are out of range; with those of protein they are not.
    QTest::newRow("no false overflow")
        << u"-2 4.5 5 600000000000000"_s << u"-540000000000000 540000000000000 600000000000000"_s;
}

void tst_nutrition::splits()
{
    QFETCH(QString, input);
    QFETCH(QString, parts);
    QList<Currency> in;
    for (const QString &text : input.split(u' '))
        in << Currency::fromText(text).value();

    const auto split = caloriesByNutrient(in[3], in[0], in[1], in[2]);
    QVERIFY(split);
    QCOMPARE(
        (QStringList{split->fat.toText(), split->carbohydrate.toText(), split->protein.toText()})
            .join(u' '),
        parts);
}

void tst_nutrition::noSplitWithoutNutrients()
{
    QVERIFY(!caloriesByNutrient(decimal("120"), Currency(), Currency(), Currency()));
    // 4.5 x 4 - 2 x 9: nutrients that cancel each other out.
    QVERIFY(!caloriesByNutrient(decimal("120"), decimal("4"), decimal("-9"), Currency()));
    QVERIFY(caloriesByNutrient(decimal("120"), decimal("4"), decimal("-9"), decimal("0.0001")));
}

void tst_nutrition::partsAddUpToTheCalories()
{
    QRandomGenerator random(20260101);
    const auto any = [&](qint64 limit) {
        return Currency::fromTenThousandths(random.bounded(2 * limit + 1) - limit);
    };
    int split = 0;
    for (const qint64 limit : {qint64(30), qint64(3'000'000), qint64(1) << 42}) {
        for (int i = 0; i < 20000; ++i) {
            const Currency calories = any(limit);
            const auto parts = caloriesByNutrient(calories, any(limit), any(limit), any(limit));
            if (!parts)
                continue;
            ++split;
            QCOMPARE((parts->fat + parts->carbohydrate + parts->protein).tenThousandths(),
                     calories.tenThousandths());
        }
    }
    QVERIFY(split > 50000);
}

void tst_nutrition::outOfRangeIsRaised()
{
    const Currency huge = Currency::fromInteger(900'000'000'000'000);
    QVERIFY_THROWS_EXCEPTION(OverflowError,
                             caloriesByNutrient(decimal("1"), huge, Currency(), Currency()));
    // The weighted sum is 0.0002 and fat's share 22,500 times the calories.
    QVERIFY_THROWS_EXCEPTION(
        OverflowError, caloriesByNutrient(huge, decimal("1"), decimal("-2.2499"), Currency()));
}

QTEST_APPLESS_MAIN(tst_nutrition)
#include "tst_nutrition.moc"
