// Fixed-point decimals: reading, writing, rounding, and what is out of range.
#include "data/currency.h"

#include <QRandomGenerator>
#include <QTest>

#include <cmath>
#include <limits>

namespace {

constexpr qint64 greatest = std::numeric_limits<qint64>::max();
constexpr qint64 least = std::numeric_limits<qint64>::min();

Currency units(qint64 tenThousandths)
{
    return Currency::fromTenThousandths(tenThousandths);
}

// The product as 128 bits have it, rounded half to even; none where it is out of range.
std::optional<qint64> wideProduct(qint64 a, qint64 b)
{
    __extension__ using Wide = __int128;
    const Wide product = Wide(a) * b;
    Wide rounded = product / 10000;
    const Wide rest = product % 10000;
    const Wide away = rest < 0 ? -1 : 1;
    const Wide doubled = rest * away * 2;
    if (doubled > 10000 || (doubled == 10000 && rounded % 2 != 0))
        rounded += away;
    if (rounded > greatest || rounded < least)
        return std::nullopt;
    return static_cast<qint64>(rounded);
}

} // namespace

class tst_currency : public QObject
{
    Q_OBJECT

private slots:
    void readsDigitByDigit_data();
    void readsDigitByDigit();
    void refusesWhatIsNoNumber();
    void textOutOfRangeIsRaised();
    void writesTheShortestText_data();
    void writesTheShortestText();
    void textSurvivesTheStore();
    void doublesAreRoundedHalfToEven();
    void sumsAreExactOrRaised();
    void productsEqualThoseOf128Bits();
};

void tst_currency::readsDigitByDigit_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<qint64>("tenThousandths");

    QTest::newRow("whole") << u"12"_qs << qint64(120000);
    QTest::newRow("signs") << u"-0.5"_qs << qint64(-5000);
    QTest::newRow("plus") << u"+3"_qs << qint64(30000);
    QTest::newRow("no digit before the point") << u".25"_qs << qint64(2500);
    QTest::newRow("no digit behind the point") << u"7."_qs << qint64(70000);
    QTest::newRow("leading zeros") << u"00000000000000000000000001"_qs << qint64(10000);
    QTest::newRow("half to even, down") << u"0.00025"_qs << qint64(2);
    QTest::newRow("half to even, up") << u"0.00035"_qs << qint64(4);
    QTest::newRow("half to even, negative") << u"-0.00035"_qs << qint64(-4);
    QTest::newRow("a trace above the half") << u"0.000250000000000000000001"_qs << qint64(3);
    QTest::newRow("a trace below the half") << u"0.000349999999999999999999"_qs << qint64(3);
    QTest::newRow("rounding carries") << u"9.99995"_qs << qint64(100000);
    // A double has no such number: it would end in 5808.
    QTest::newRow("greatest") << u"922337203685477.5807"_qs << greatest;
    QTest::newRow("least") << u"-922337203685477.5808"_qs << least;
    QTest::newRow("greatest, rounded down") << u"922337203685477.58074"_qs << greatest;
}

void tst_currency::readsDigitByDigit()
{
    QFETCH(QString, text);
    const std::optional<Currency> read = Currency::fromText(text);
    QVERIFY(read);
    QTEST(read->tenThousandths(), "tenThousandths");
}

void tst_currency::refusesWhatIsNoNumber()
{
    for (const char16_t *text : {u"", u"-", u".", u"+.", u"1,5", u"1.2.3", u"--1", u"1-", u" 1",
                                 u"1 ", u"1e3", u"0x10", u"nan", u"1\u00A0000", u"\u0661"}) {
        const auto read = Currency::fromText(QStringView(text));
        QVERIFY2(!read, qPrintable(QString::fromUtf16(text)));
    }
}

void tst_currency::textOutOfRangeIsRaised()
{
    for (const char16_t *text :
         {u"922337203685477.5808", u"-922337203685477.5809", u"922337203685477.58075",
          u"922337203685478", u"99999999999999999999999999999"})
        QVERIFY_THROWS_EXCEPTION(OverflowError, Currency::fromText(QStringView(text)));
}

void tst_currency::writesTheShortestText_data()
{
    QTest::addColumn<qint64>("tenThousandths");
    QTest::addColumn<QString>("text");

    QTest::newRow("zero") << qint64(0) << u"0"_qs;
    QTest::newRow("whole") << qint64(1000000) << u"100"_qs;
    QTest::newRow("zeros inside") << qint64(10050) << u"1.005"_qs;
    QTest::newRow("below one") << qint64(-1) << u"-0.0001"_qs;
    QTest::newRow("greatest") << greatest << u"922337203685477.5807"_qs;
    QTest::newRow("least") << least << u"-922337203685477.5808"_qs;
}

void tst_currency::writesTheShortestText()
{
    QFETCH(qint64, tenThousandths);
    QTEST(units(tenThousandths).toText(), "text");
    QCOMPARE(Currency::fromText(units(tenThousandths).toText()), units(tenThousandths));
}

// What a user types is kept as a double and read again.
void tst_currency::textSurvivesTheStore()
{
    QRandomGenerator random(1);
    for (int i = 0; i < 100'000; ++i) {
        const Currency typed = units(random.bounded(qint64(20'000'000'000)) - 10'000'000'000);
        QCOMPARE(Currency::fromDouble(typed.toDouble()), typed);
    }
}

void tst_currency::doublesAreRoundedHalfToEven()
{
    QCOMPARE(Currency::fromDouble(0.00003).tenThousandths(), 0);
    QCOMPARE(Currency::fromDouble(1.0 / 3).tenThousandths(), 3333);
    // Exact halves of a ten-thousandth: 0.03125 is 312.5 and 0.09375 is 937.5 of them.
    QCOMPARE(Currency::fromDouble(0.03125).tenThousandths(), 312);
    QCOMPARE(Currency::fromDouble(0.09375).tenThousandths(), 938);
    QCOMPARE(Currency::fromDouble(-0.09375).tenThousandths(), -938);

    for (const double outside : {9.3e14, -9.3e14, 1e300, std::nan(""), HUGE_VAL, -HUGE_VAL})
        QVERIFY_THROWS_EXCEPTION(OverflowError, Currency::fromDouble(outside));
}

void tst_currency::sumsAreExactOrRaised()
{
    QCOMPARE(units(greatest - 1) + units(1), units(greatest));
    QCOMPARE(units(least + 1) - units(1), units(least));
    QCOMPARE(-units(greatest), units(least + 1));
    QCOMPARE(units(greatest / 7) * 7, units(greatest)); // 2^63 - 1 is a multiple of 7
    QVERIFY_THROWS_EXCEPTION(OverflowError, units(greatest) + units(1));
    QVERIFY_THROWS_EXCEPTION(OverflowError, units(least) - units(1));
    QVERIFY_THROWS_EXCEPTION(OverflowError, -units(least));
    QVERIFY_THROWS_EXCEPTION(OverflowError, units(least) * -1);
    QVERIFY_THROWS_EXCEPTION(OverflowError, Currency::fromInteger(greatest / 10000 + 1));
}

void tst_currency::productsEqualThoseOf128Bits()
{
    QRandomGenerator random(2);
    const auto any = [&] {
        const auto bits = static_cast<qint64>(random.generate64());
        return bits >> random.bounded(64);
    };
    int raised = 0;
    int halves = 0;
    for (int i = 0; i < 200'000; ++i) {
        // Every other pair has a factor with few digits, so that halves and limits are met.
        const qint64 a = i % 2 ? any() : (any() >> 40) * 2500;
        const qint64 b = i % 4 == 3 ? 10000 + random.bounded(3) - 1 : any();
        const std::optional<qint64> expected = wideProduct(a, b);
        if (!expected) {
            ++raised;
            QVERIFY_THROWS_EXCEPTION(OverflowError, units(a) * units(b));
            continue;
        }
        halves += (b % 10000) * (a % 10000) % 10000 == 5000 ? 1 : 0;
        QCOMPARE((units(a) * units(b)).tenThousandths(), *expected);
    }
    QVERIFY(raised > 1000);
    QVERIFY(halves > 1000);
    QCOMPARE(units(least) * units(10000), units(least));
    QVERIFY_THROWS_EXCEPTION(OverflowError, units(least) * units(-10000));
}

QTEST_APPLESS_MAIN(tst_currency)
#include "tst_currency.moc"
