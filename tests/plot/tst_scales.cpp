// The scales of the charts and their steps.
#include "plot/scales.h"
#include "properties.h"

#include <QTest>

#include <cmath>

using namespace plot;

class tst_scales : public QObject
{
    Q_OBJECT
private slots:
    void stepsAreRound();
    void rangesFitBetweenHeights();
};

void tst_scales::stepsAreRound()
{
    for (int i = 0; i < 340; ++i) {
        const double least = 1e-3 * std::pow(1.07, i);
        const double step = roundStep(least);
        const double leading = step / std::pow(10, std::floor(std::log10(step) + 1e-9));
        QVERIFY(near(leading, 1) || near(leading, 2) || near(leading, 5));
        QVERIFY(step >= least * 0.999 && step <= std::max(0.01, 2.5001 * least));
        const auto values = multiplesBetween(-3.2 * step, 4 * step, step);
        QCOMPARE(values.size(), size_t(8));
        for (int k = 0; k < 8; ++k)
            QVERIFY(near(values[size_t(k)], (k - 3) * step, 1e-6 * step));
    }
    QCOMPARE(roundStep(2 * (1 + 1e-10)), 2.0); // what rounding adds is no reason for a coarser one
    QVERIFY(multiplesBetween(1.1, 1.9, 1).empty());
    QCOMPARE(roundStep(std::nan("")), 0.01);
}

void tst_scales::rangesFitBetweenHeights()
{
    QRandomGenerator random(1);
    for (int i = 0; i < 500; ++i) {
        const double low = random.bounded(900.0) - 600, high = low + random.bounded(900.0) + 1;
        const double top = random.bounded(99.0), bottom = top + 10 + random.bounded(900.0);
        const ValueScale fitted = fittedScale(low, high, top, bottom);
        QVERIFY(near(fitted.y(std::max(0.0, high)), top) && near(fitted.y(0), fitted.zeroY));
        QVERIFY(near(fitted.y(std::min(0.0, low)), bottom));
        const double zero = top + 0.4 * (bottom - top);
        const ValueScale around = scaleAround(zero, low, high, top, bottom);
        QVERIFY(around.y(0) == zero && around.y(std::max(0.0, high)) >= top - 1e-6);
        QVERIFY(around.y(std::min(0.0, low)) <= bottom + 1e-6);
        QVERIFY(near(around.y(std::max(0.0, high)), top) ||
                near(around.y(std::min(0.0, low)), bottom)); // as large as it can be
        const double step = (high - low) / 7;
        const auto ticks = ticksBetween(fitted, step, top, bottom);
        QVERIFY(ticks.size() > 5 && near(ticks[1] - ticks[0], step));
        QVERIFY(fitted.y(ticks.front()) <= bottom + 1e-3 && fitted.y(ticks.back()) >= top - 1e-3);
    }
    QCOMPARE(fittedScale(0, 0, 0, 9).perValue, 0.0);
    QCOMPARE(fittedScale(1, 2, 9, 9).perValue, 0.0);
    QCOMPARE(scaleAround(5, 0, 0, 0, 9).perValue, 0.0);
    QVERIFY(ticksBetween({5, 0}, 1, 0, 9).empty() && ticksBetween({5, 1}, 0, 0, 9).empty());
}

QTEST_APPLESS_MAIN(tst_scales)
#include "tst_scales.moc"
