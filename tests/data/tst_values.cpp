// Fixed-point decimals, rounding, narrowing, values of rows, dates and times.
#include "data/valuehelpers.h"

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

} // namespace

class tst_values : public QObject
{
    Q_OBJECT

private slots:
    void readsDigitByDigit()
    {
        // Half to even, but a trace above or below decides. No double is as great as the greatest.
        const std::pair<const char16_t *, qint64> numbers[] = {{u"-0.5", -5000},
                                                               {u"+.25", 2500},
                                                               {u"0.00025", 2},
                                                               {u"-0.00035", -4},
                                                               {u"0.000250000000000000000001", 3},
                                                               {u"0.000349999999999999999999", 3},
                                                               {u"922337203685477.58074", greatest},
                                                               {u"-922337203685477.5808", least}};
        for (const auto &[text, expected] : numbers) {
            const std::optional<Currency> read = Currency::fromText(text);
            QVERIFY2(read == units(expected), qPrintable(QString::fromUtf16(text)));
        }
    }

    void refusesWhatIsNoNumber()
    {
        for (const char16_t *text : {u"", u"-", u".", u"+.", u"1,5", u"1.2.3", u"--1", u"1-", u" 1",
                                     u"1 ", u"1e3", u"0x10", u"nan", u"1\u00A0000", u"\u0661"})
            QVERIFY2(!Currency::fromText(text), qPrintable(QString::fromUtf16(text)));
        for (const char16_t *text : {u"922337203685477.5808", u"-922337203685477.5809",
                                     u"922337203685477.58075", u"99999999999999999999999999999"})
            QVERIFY_THROWS_EXCEPTION(OverflowError, Currency::fromText(text));
    }

    void doublesAreRoundedHalfToEven()
    {
        // What a user types is kept as a double and read again.
        QRandomGenerator random(1);
        for (int i = 0; i < 100'000; ++i) {
            const Currency typed = units(random.bounded(qint64(20'000'000'000)) - 10'000'000'000);
            QCOMPARE(Currency::fromDouble(typed.toDouble()), typed);
        }
        // Exact halves of a ten-thousandth: 0.03125 is 312.5 and 0.09375 is 937.5 of them.
        QCOMPARE(Currency::fromDouble(0.03125).tenThousandths(), 312);
        QCOMPARE(Currency::fromDouble(-0.09375).tenThousandths(), -938);
        for (const double outside : {9.3e14, -9.3e14, std::nan(""), HUGE_VAL})
            QVERIFY_THROWS_EXCEPTION(OverflowError, Currency::fromDouble(outside));
    }

    void sumsAreExactOrRaised()
    {
        QCOMPARE(units(least + 1) - units(1), units(least));
        QVERIFY_THROWS_EXCEPTION(OverflowError, units(greatest) + units(1));
        QVERIFY_THROWS_EXCEPTION(OverflowError, -units(least));
        QVERIFY_THROWS_EXCEPTION(OverflowError, units(least) * -1);
        QVERIFY_THROWS_EXCEPTION(OverflowError, Currency::fromInteger(greatest / 10000 + 1));
    }

    void roundsAndNarrows()
    {
        // The greatest number below a half: adding a half and cutting would make 1 of it.
        QCOMPARE(roundHalfEven(0.49999999999999994), 0.0);
        QCOMPARE(roundHalfEven(4503599627370497.5), 4503599627370498.0);
        QCOMPARE(roundHalfEven(-2.25, 1), -2.2);
        QCOMPARE(roundHalfEven(1e300, 10), 1e300);
        QVERIFY_THROWS_EXCEPTION(OverflowError, toInt16(-32769));
        QCOMPARE(roundToInt16(32767.5 - 1e-9), qint16(32767));
        QVERIFY_THROWS_EXCEPTION(OverflowError, roundToInt16(32767.5));
        QCOMPARE(roundToInt32(-2147483648.5), std::numeric_limits<qint32>::min());
        QVERIFY_THROWS_EXCEPTION(OverflowError, roundToInt32(std::nan("")));
    }

    void datesAndTimes()
    {
        QCOMPARE(dayNumber(QDate(1899, 12, 29)), -1);
        QCOMPARE(dayNumber(QDate(1900, 3, 1)), 61); // day 1 is 31 December; 1900 was no leap year
        QCOMPARE(dateOfDayNumber(46225), QDate(2026, 7, 22));

        for (QTime time(0, 0); time < QTime(23, 59); time = time.addSecs(60))
            QCOMPARE(timeOfDayFraction(dayFraction(time)), time);
        QCOMPARE(dayFraction(QTime(12, 0, 59, 999)), 0.5);       // whole minutes
        QCOMPARE(timeOfDayFraction(46225.96875), QTime(23, 15)); // the day is ignored
        QCOMPARE(timeOfDayFraction(0.99999), QTime(0, 0));       // the nearest minute is midnight
    }

    void valuesConvert()
    {
        QVERIFY_THROWS_EXCEPTION(OverflowError, Value(qint64(1) << 31).toInt32());
        QCOMPARE(Value(0.1 + 0.2).toText(), u"0.3"_qs);
        QCOMPARE(Value(1e15).toText(), u"1000000000000000"_qs);
        QCOMPARE(NullToZero(Value()), 0);
        QCOMPARE(NullToZero(Value(u"2.5"_qs)), 2);
        QVERIFY_THROWS_EXCEPTION(OverflowError, NullToZero(Value(u"twelve"_qs)));
    }

    void snapsToStep()
    {
        const auto snapped = [](float value, bool downward) {
            return SnapToStep(value, downward, Currency::fromInteger(5)).toText();
        };
        QCOMPARE(snapped(18, true), u"15"_qs); // from past the middle
        QCOMPARE(snapped(17, false), u"20"_qs);
        QCOMPARE(snapped(15, false), u"15"_qs);
        QCOMPARE(snapped(-17, true), u"-20"_qs);
        QVERIFY_THROWS_EXCEPTION(OverflowError, SnapToStep(0, true, Currency()));
        QVERIFY_THROWS_EXCEPTION(OverflowError, SnapToStep(40000, true, Currency::fromInteger(1)));
    }
};

QTEST_APPLESS_MAIN(tst_values)
#include "tst_values.moc"
