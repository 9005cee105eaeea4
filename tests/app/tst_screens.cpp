// Every window on the screen that it opens on: run once more for each of several screens, and in
// another language.
#include "accesskeys.h"
#include "app/frmMain.h"
#include "app/translations.h"
#include "catalogue/frmMeal.h"
#include "programwindows.h"
#include "session/installation.h"
#include "ui/reportview.h"
#include "ui/screenfit.h"
#include "ui/windowplaces.h"

#include <QHeaderView>
#include <QLabel>
#include <QScreen>
#include <QTranslator>

using namespace Qt::Literals;

class tst_screens : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void everythingIsWithinReach();
    void formOfLargeTextScrolls();
    void keepsPlaces();
    void cleanupTestCase();

private:
    std::unique_ptr<ProgramWindows> windows;
};

namespace {

/// Hears of the texts that the translators installed after it don't have.
class Untranslated : public QTranslator
{
public:
    QString translate(const char *context, const char *text, const char * /*disambiguation*/,
                      int /*n*/) const override
    {
        if (context != "QGuiApplication"_ba) // the direction of the writing
            texts += context + u": "_s + text;
        return {};
    }
    bool isEmpty() const override { return false; }

    mutable QStringList texts;
};
Untranslated untranslated;

const QString language = qEnvironmentVariable("CORVANA_TEST_LANGUAGE");

// The whole of a control, wherever it has to be scrolled to.
bool isInSight(QWidget &control)
{
    control.setFocus();
    QCoreApplication::processEvents();
    return control.visibleRegion().boundingRect() == control.rect();
}

/// Where a control stands in its window; of a label what its text takes.
QRect placeOf(const QWidget &control)
{
    QRect place = control.rect();
    if (const auto *label = qobject_cast<const QLabel *>(&control))
        place = QStyle::alignedRect(label->layoutDirection(), label->alignment(),
                                    label->sizeHint().boundedTo(label->size()), place);
    const QWidget &around = *control.parentWidget();
    const QPoint corner = around.mapTo(control.window(), QPoint());
    return place.translated(control.pos() + corner) &
           around.visibleRegion().boundingRect().translated(corner);
}

void verifyApart(const QList<QWidget *> &controls)
{
    for (qsizetype i = 0; i < controls.size(); ++i) {
        for (qsizetype j = 0; j < i; ++j) {
            const QWidget &a = *controls[i];
            const QWidget &b = *controls[j];
            const QString what = a.objectName() + u' ' + b.objectName();
            QVERIFY2(a.isAncestorOf(&b) || b.isAncestorOf(&a) || !placeOf(a).intersects(placeOf(b)),
                     qPrintable(a.window()->objectName() + u' ' + what));
        }
    }
}

// Names and units give way; the captions of numbers are short and stand in full.
void verifyColumns(const QTreeView &list)
{
    const QHeaderView &header = *list.header();
    QVERIFY2(header.length() <= list.viewport()->width(), qPrintable(list.objectName()));
    for (int column = 0; column < header.count(); ++column) {
        const auto of = [&](int role) {
            return header.model()->headerData(column, Qt::Horizontal, role);
        };
        if ((of(Qt::TextAlignmentRole).toInt() & Qt::AlignRight) != 0)
            QVERIFY2(header.sectionSize(column) >= header.sectionSizeHint(column),
                     qPrintable(of(Qt::DisplayRole).toString()));
    }
}

void verifyWithinReach(QWidget &window)
{
    QTest::qWait(20); // until it has found its place
    verifyAccessKeys(window);
    const QRect screen = window.screen()->availableGeometry();
    const QRect withTitle = window.geometry().adjusted(0, -window.fontMetrics().height(), 0, 0);
    QVERIFY2(withTitle.height() <= screen.height(), qPrintable(window.objectName()));
    QVERIFY2(withTitle.width() <= screen.width(), qPrintable(window.objectName()));
    if (window.windowType() == Qt::Dialog) // others are placed by the window manager
        QVERIFY2(screen.contains(withTitle), qPrintable(window.objectName()));
    QList<QWidget *> controls;
    for (auto *control : window.findChildren<QWidget *>()) {
        if (const auto *list = qobject_cast<ReportView *>(control); list && list->isVisible())
            verifyColumns(*list);
        const QString text = control->property("text").toString();
        const QString what = window.objectName() + u' ' + control->objectName() + u' ' + text;
        const bool isButton = qobject_cast<QAbstractButton *>(control);
        const bool isText = (isButton && !text.isEmpty()) || qobject_cast<QLabel *>(control);
        if (!control->isVisible() || control->window() != &window)
            continue;
        if (isText)
            QVERIFY2(control->size().expandedTo(control->minimumSizeHint()) == control->size(),
                     qPrintable(what));
        if (isButton || (control->focusPolicy() & Qt::TabFocus) != 0)
            QVERIFY2(isInSight(*control), qPrintable(what));
        if (isText || (control->focusPolicy() & Qt::TabFocus) != 0)
            controls += control;
    }
    verifyApart(controls);
}

} // namespace

void tst_screens::initTestCase()
{
    qApp->installEventFilter(new ScreenFit(this));
    if (language.isEmpty())
        return;
    QCoreApplication::installTranslator(&untranslated);
    installTranslations({language});
}

void tst_screens::cleanupTestCase()
{
    windows.reset();
    untranslated.texts.removeDuplicates();
    QVERIFY2(untranslated.texts.isEmpty(), qPrintable(untranslated.texts.join(u'\n')));
}

// With names and units that are longer than any screen is wide.
void tst_screens::init()
{
    windows.reset();
    windows = std::make_unique<ProgramWindows>(
        "update Meal set Unit = replace(hex(zeroblob(300)), '00', 'cup '),"
        " Name = Name || Unit || replace(hex(zeroblob(300)), '00', ' soup');"
        "update Exercise set Name = replace(hex(zeroblob(300)), '00', 'run ')"
        " where ExerciseID = 1;"
        "update UserNote set NoteText = replace(hex(zeroblob(300)), '00', 'note ')");
}

void tst_screens::everythingIsWithinReach()
{
    windows->forEachOfMenus(verifyWithinReach);
    windows->mainWindow->resize(1, 1); // as small as it gets
    verifyWithinReach(*windows->mainWindow);
    // With more lines to match than a small screen has room for, and long names.
    const QString meals = windows->journal.folder.filePath(u"meals.csv"_s);
    setFileBytes(meals, "Name,kcal," + QByteArray(300, 'x') + "\nFood,1,2\nFood,x," +
                            QByteArray(3000, 'y') + '\n');
    windows->forEachOther({meals, meals}, verifyWithinReach);
}

void tst_screens::formOfLargeTextScrolls()
{
    const QFont usual = QApplication::font();
    const QSize screen = windows->mainWindow->screen()->availableSize();
    windows->mainWindow.reset();
    QFont large = usual;
    large.setPixelSize(qMin(screen.height() / 18, screen.width() / 40));
    QApplication::setFont(large);
    windows->journal.edit<frmMeal>(1, verifyWithinReach);
    QApplication::setFont(usual);
}

// The sizes fit the smallest of the screens.
void tst_screens::keepsPlaces()
{
    DayJournal &journal = windows->journal;
    std::unique_ptr<frmMain> &mainWindow = windows->mainWindow;
    WindowPlaces places(journal.folder.path());
    qApp->installEventFilter(&places);
    const auto reopened = [&](const QByteArray &place) {
        if (!place.isEmpty())
            Installation(journal.folder.path()).setValue(u"Windows/frmMain"_qs, place);
        mainWindow = std::make_unique<frmMain>(*journal.session, journal.messages);
        mainWindow->show();
        return mainWindow->geometry();
    };
    mainWindow->setGeometry(30, 40, 600, 350);
    mainWindow->close();
    QCOMPARE(reopened({}), QRect(30, 40, 600, 350));
    QCOMPARE(reopened("90000 40 600 350").size(), QSize(600, 350));
    QVERIFY(mainWindow->screen()->availableGeometry().contains(mainWindow->geometry()));
    for (const char *nonsense : {"30 40 600", "30 40 -600 350", "a b c d"})
        QCOMPARE(reopened(nonsense).size().expandedTo({600, 350}), mainWindow->size());
}

QTEST_MAIN(tst_screens)
#include "tst_screens.moc"
