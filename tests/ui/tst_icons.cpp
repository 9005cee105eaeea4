// The icons reach the program through a static library: are they there, and in the colours that
// the palette needs?
#include "ui/icons.h"

#include <QTest>

class tst_icons : public QObject
{
    Q_OBJECT
private slots:
    void drawnForBothPalettes();
};

void tst_icons::drawnForBothPalettes()
{
    for (const char *name : {"mnuMealConsume", "mnuAddMeal", "mnuExercisePerformed",
                             "mnuAddExercise", "mnuMeasurement", "mnuAddMeasurement", "mnuAddNote",
                             "mnuPrintChart", "mnuGeneralProgress", "mnuMealCategories", "mnuMeal",
                             "mnuExercises", "mnuHelpAbout", "mnuHelpContents", "Plus", "Exit"}) {
        for (const QColor window : {Qt::white, Qt::black}) {
            const QImage picture = icon(name, QPalette(window)).pixmap(24).toImage();
            QCOMPARE(picture.size(), QSize(24, 24));
            int ink = 0; // dark and light points that are drawn, counted against each other
            for (int point = 0; point < 24 * 24; ++point) {
                const QColor colour = picture.pixelColor(point % 24, point / 24);
                if (colour.alpha() >= 128)
                    ink += colour.lightness() < 128 ? 1 : -1;
            }
            QVERIFY2(window == Qt::white ? ink > 0 : ink < 0, name);
        }
    }
    for (const int size : {16, 32, 256})
        QCOMPARE(programIcon().actualSize(QSize(size, size)), QSize(size, size));
}

QTEST_MAIN(tst_icons)
#include "tst_icons.moc"
