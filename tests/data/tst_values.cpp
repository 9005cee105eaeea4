// Rounding, narrowing, values of rows, dates, times and the small helpers on them.
#include "data/valuehelpers.h"

#include <QTest>

#include <cmath>

class tst_values : public QObject
{
    Q_OBJECT

private slots:
    void halvesGoToTheEvenNeighbour()
    {
        // The greatest number below a half: adding a half and cutting would make 1 of it.
        QCOMPARE(roundHalfEven(0.49999999999999994), 0.0);
        QCOMPARE(roundHalfEven(4503599627370497.5), 4503599627370498.0);
        QCOMPARE(roundHalfEven(-2.25, 1), -2.2);
        QCOMPARE(roundHalfEven(1e300, 10), 1e300);
    }

    void narrowingIsChecked()
    {
        QVERIFY_THROWS_EXCEPTION(OverflowError, toInt16(-32769));
        QVERIFY_THROWS_EXCEPTION(OverflowError, toInt32(qint64(1) << 31));
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

        for (int minute = 0; minute < 24 * 60; ++minute) {
            const QTime time(minute / 60, minute % 60);
            QCOMPARE(timeOfDayFraction(dayFraction(time)), time);
        }
        QCOMPARE(dayFraction(QTime(12, 0, 59, 999)), 0.5);       // whole minutes
        QCOMPARE(timeOfDayFraction(46225.96875), QTime(23, 15)); // the day is ignored
        QCOMPARE(timeOfDayFraction(0.99999), QTime(0, 0));       // the nearest minute is midnight
    }

    void valuesConvert()
    {
        QCOMPARE(Value(2.5).toInt32(), 2);
        QVERIFY_THROWS_EXCEPTION(OverflowError, Value(qint64(1) << 40).toInt32());
        QCOMPARE(Value(0.1 + 0.2).toText(), u"0.3"_qs);
        QCOMPARE(Value(1e15).toText(), u"1000000000000000"_qs);
        QCOMPARE(NullToZero(Value()), 0);
        QCOMPARE(NullToZero(Value(u"2.5"_qs)), 2);
        QCOMPARE(NullToZero(Value(3.5)), 4);
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

    void smallHelpers()
    {
        // Equal in value, told apart by address: a tie gives the second.
        const int first = 5;
        const int second = 5;
        QCOMPARE(&MinOf(first, second), &second);
        QCOMPARE(&MaxOf(first, second), &second);
        QCOMPARE(MinOf(3, 4), 3);
        QCOMPARE(MaxOf(4, 3), 4);
        QCOMPARE(LetterOf(26), QChar(u'A'));
    }
};

QTEST_APPLESS_MAIN(tst_values)
#include "tst_values.moc"
