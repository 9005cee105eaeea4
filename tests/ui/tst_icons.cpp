// The icons reach the program through a static library: are they there, whole, and in the colours
// that the palette needs?
#include "ui/icons.h"

#include <QTest>

namespace {

/// Mean lightness of what is drawn, 0 (black) to 255; -1 where nothing is.
int inkLightness(const QImage &picture)
{
    int sum = 0;
    int points = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QColor colour = picture.pixelColor(x, y);
            if (colour.alpha() < 128)
                continue;
            sum += colour.lightness();
            ++points;
        }
    }
    return points ? sum / points : -1;
}

} // namespace

class TestIcons : public QObject
{
    Q_OBJECT
private slots:
    void drawnForBothPalettes_data();
    void drawnForBothPalettes();
    void programIconInEverySize();
};

void TestIcons::drawnForBothPalettes_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"mnuMealConsume", "mnuAddMeal", "mnuExercisePerformed",
                             "mnuAddExercise", "mnuMeasurement", "mnuAddMeasurement", "mnuAddNote",
                             "mnuPrintChart", "mnuGeneralProgress", "mnuMealCategories", "mnuMeal",
                             "mnuExercises", "mnuHelpAbout", "mnuHelpContents", "Plus", "Exit"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void TestIcons::drawnForBothPalettes()
{
    QFETCH(QString, name);
    for (const int size : {16, 20, 24, 32, 48}) {
        const QImage onLight = icon(name, QPalette(Qt::white)).pixmap(size).toImage();
        const QImage onDark = icon(name, QPalette(Qt::black)).pixmap(size).toImage();
        QCOMPARE(onLight.size(), QSize(size, size));
        QCOMPARE(onDark.size(), QSize(size, size));
        const int dark = inkLightness(onLight);
        const int light = inkLightness(onDark);
        QVERIFY2(dark >= 0 && dark < 128, qPrintable(QString::number(dark)));
        QVERIFY2(light > 128, qPrintable(QString::number(light)));
    }
}

void TestIcons::programIconInEverySize()
{
    for (const int size : {16, 24, 32, 48, 64, 128, 256})
        QCOMPARE(programIcon().actualSize(QSize(size, size)), QSize(size, size));
}

QTEST_MAIN(TestIcons)
#include "tst_icons.moc"
