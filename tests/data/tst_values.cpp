// Rounding, narrowing, values of rows, dates, times and the small helpers on them.
#include "data/valuehelpers.h"

#include <QTest>

#include <cmath>

class tst_values : public QObject
{
    Q_OBJECT

private slots:
    void halvesGoToTheEvenNeighbour();
    void narrowingIsChecked();
    void datesCountFromDayZero();
    void timesAreWholeMinutes();
    void valuesConvert();
    void nullToEmptyAndToZero();
    void tiesGiveTheSecond();
    void snapsToStep_data();
    void snapsToStep();
    void stepsOutOfRangeAreRaised();
    void lettersRepeat();
};

void tst_values::halvesGoToTheEvenNeighbour()
{
    QCOMPARE(roundHalfEven(2.5), 2.0);
    QCOMPARE(roundHalfEven(3.5), 4.0);
    QCOMPARE(roundHalfEven(-2.5), -2.0);
    QCOMPARE(roundHalfEven(-3.5), -4.0);
    // The greatest number below a half: adding a half and cutting would make 1 of it.
    QCOMPARE(roundHalfEven(0.49999999999999994), 0.0);
    QCOMPARE(roundHalfEven(4503599627370497.5), 4503599627370498.0);
    QCOMPARE(roundHalfEven(1e300), 1e300);
    QVERIFY(std::isnan(roundHalfEven(std::nan(""))));

    QCOMPARE(roundHalfEven(2.25, 1), 2.2);
    QCOMPARE(roundHalfEven(2.75, 1), 2.8);
    QCOMPARE(roundHalfEven(-2.25, 1), -2.2);
    QCOMPARE(roundHalfEven(1e300, 10), 1e300);
}

void tst_values::narrowingIsChecked()
{
    QCOMPARE(toInt16(32767), qint16(32767));
    QCOMPARE(toInt16(-32768), qint16(-32768));
    QVERIFY_THROWS_EXCEPTION(OverflowError, toInt16(32768));
    QVERIFY_THROWS_EXCEPTION(OverflowError, toInt16(-32769));
    QVERIFY_THROWS_EXCEPTION(OverflowError, toInt32(qint64(1) << 31));

    QCOMPARE(roundToInt16(32767.5 - 1e-9), qint16(32767));
    QVERIFY_THROWS_EXCEPTION(OverflowError, roundToInt16(32767.5));
    QCOMPARE(roundToInt32(-2147483648.5), std::numeric_limits<qint32>::min());
    QVERIFY_THROWS_EXCEPTION(OverflowError, roundToInt32(2147483647.5));
    QVERIFY_THROWS_EXCEPTION(OverflowError, roundToInt32(std::nan("")));
    QVERIFY_THROWS_EXCEPTION(OverflowError, roundToInt16(-HUGE_VAL));
}

void tst_values::datesCountFromDayZero()
{
    // Day 1 is 31 December 1899; 1900 was no leap year.
    QCOMPARE(dayNumber(QDate(1899, 12, 30)), 0);
    QCOMPARE(dayNumber(QDate(1900, 3, 1)), 61);
    QCOMPARE(dayNumber(QDate(2026, 7, 22)), 46225);
    QCOMPARE(dayNumber(QDate(1899, 12, 29)), -1);
    QCOMPARE(dateOfDayNumber(46225), QDate(2026, 7, 22));
    QCOMPARE(Value(QDate(2024, 2, 29)).toDate(), QDate(2024, 2, 29));
    QVERIFY(!Value().toDate().isValid());
}

void tst_values::timesAreWholeMinutes()
{
    for (int minute = 0; minute < 24 * 60; ++minute) {
        const QTime time(minute / 60, minute % 60);
        QCOMPARE(timeOfDayFraction(dayFraction(time)), time);
    }
    QCOMPARE(dayFraction(QTime(12, 0, 59, 999)), 0.5);
    QCOMPARE(timeOfDayFraction(46225.96875), QTime(23, 15)); // the day is ignored
    QCOMPARE(timeOfDayFraction(0.99999), QTime(0, 0));       // the nearest minute is midnight
    QCOMPARE(Value(QTime(23, 59)).toTime(), QTime(23, 59));
}

void tst_values::valuesConvert()
{
    QCOMPARE(Value(2.5).toInt32(), 2);
    QCOMPARE(Value(QStringLiteral("-7")).toInt32(), -7);
    QVERIFY_THROWS_EXCEPTION(OverflowError, Value(qint64(1) << 40).toInt32());
    QVERIFY_THROWS_EXCEPTION(OverflowError, Value(1e10).toInt32());

    QCOMPARE(Value(Currency::fromTenThousandths(123)).toText(), u"0.0123"_qs);
    QCOMPARE(Value(0.1 + 0.2).toText(), u"0.3"_qs);
    QCOMPARE(Value(1e15).toText(), u"1000000000000000"_qs);
    QCOMPARE(Value(-0.0).toText(), u"0"_qs);
    QVERIFY(Value().toText().isEmpty());
    QCOMPARE(Value().toDouble(), 0.0);
}

void tst_values::nullToEmptyAndToZero()
{
    QCOMPARE(NullToEmpty(Value()), QString());
    QCOMPARE(NullToEmpty(Value(1.5)), u"1.5"_qs);
    QCOMPARE(NullToEmpty(Value(u"a"_qs)), u"a"_qs);

    QCOMPARE(NullToZero(Value()), 0);
    QCOMPARE(NullToZero(Value(QString())), 0);
    QCOMPARE(NullToZero(Value(u"12"_qs)), 12);
    QCOMPARE(NullToZero(Value(u"2.5"_qs)), 2);
    QCOMPARE(NullToZero(Value(3.5)), 4);
    QVERIFY_THROWS_EXCEPTION(OverflowError, NullToZero(Value(u"twelve"_qs)));
    QVERIFY_THROWS_EXCEPTION(OverflowError, NullToZero(Value(u"3000000000"_qs)));
}

void tst_values::tiesGiveTheSecond()
{
    // Equal in value, told apart by address.
    const int first = 5;
    const int second = 5;
    QCOMPARE(&MinOf(first, second), &second);
    QCOMPARE(&MaxOf(first, second), &second);
    QCOMPARE(MinOf(3, 4), 3);
    QCOMPARE(MinOf(4, 3), 3);
    QCOMPARE(MaxOf(3, 4), 4);
    QCOMPARE(MaxOf(4, 3), 4);
}

void tst_values::snapsToStep_data()
{
    QTest::addColumn<float>("value");
    QTest::addColumn<bool>("downward");
    QTest::addColumn<qint64>("step"); // in ten-thousandths, like the result
    QTest::addColumn<qint64>("result");

    QTest::newRow("down") << 17.0f << true << qint64(50000) << qint64(150000);
    QTest::newRow("up") << 17.0f << false << qint64(50000) << qint64(200000);
    QTest::newRow("down from past the middle") << 18.0f << true << qint64(50000) << qint64(150000);
    QTest::newRow("a multiple stays, up") << 15.0f << false << qint64(50000) << qint64(150000);
    QTest::newRow("a multiple stays, down") << 15.0f << true << qint64(50000) << qint64(150000);
    QTest::newRow("negative, down") << -17.0f << true << qint64(50000) << qint64(-200000);
    QTest::newRow("negative, up") << -17.0f << false << qint64(50000) << qint64(-150000);
    QTest::newRow("zero") << 0.0f << true << qint64(2500) << qint64(0);
    QTest::newRow("smallest step") << 0.00015f << false << qint64(1) << qint64(2);
}

void tst_values::snapsToStep()
{
    QFETCH(float, value);
    QFETCH(bool, downward);
    QFETCH(qint64, step);
    QTEST(SnapToStep(value, downward, Currency::fromTenThousandths(step)).tenThousandths(),
          "result");
}

void tst_values::stepsOutOfRangeAreRaised()
{
    QVERIFY_THROWS_EXCEPTION(OverflowError, SnapToStep(1, true, Currency()));
    QVERIFY_THROWS_EXCEPTION(OverflowError, SnapToStep(0, true, Currency()));
    QVERIFY_THROWS_EXCEPTION(OverflowError, SnapToStep(40000, true, Currency::fromInteger(1)));
}

void tst_values::lettersRepeat()
{
    QCOMPARE(LetterOf(0), QChar(u'A'));
    QCOMPARE(LetterOf(25), QChar(u'Z'));
    QCOMPARE(LetterOf(26), QChar(u'A'));
    QCOMPARE(LetterOf(32767), QChar(u'H'));
    QCOMPARE(LetterOf(-1), QChar(u'@')); // the remainder has the sign of the dividend
}

QTEST_APPLESS_MAIN(tst_values)
#include "tst_values.moc"
