// Every window by keyboard alone and as a screen reader meets it, and the colours of what is drawn.
#include "app/darkcolors.h"
#include "app/frmMain.h"
#include "chart/daycolors.h"
#include "plot/paper.h"
#include "programwindows.h"
#include "progress/progresscolors.h"
#include "ui/edgestyle.h"
#include "ui/updownspinner.h"

#include <QAccessible>
#include <QAction>
#include <QCheckBox>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QRegularExpression>
#include <QSpinBox>
#include <QTabBar>
#include <QToolBar>

using namespace Qt::Literals;

class tst_accessibility : public QObject
{
    Q_OBJECT

private slots:
    void everyWindow();
    void menuOfTheChart();
    void colors_data();
    void colors();
    void placeholders();
    void edgesOnBlack();
};

namespace {

QString nameOf(const QObject *object)
{
    return object ? object->metaObject()->className() + u" "_s + object->objectName() : u"item"_s;
}

/// What Tab is to reach: of a group of radio buttons the chosen one, and the inner editor of a box
/// as the box itself.
QSet<QWidget *> stopsOf(const QWidget &window)
{
    QSet<QWidget *> stops;
    for (QWidget *part : window.findChildren<QWidget *>()) {
        const auto *radio = qobject_cast<QRadioButton *>(part);
        const bool takesFocus = (part->focusPolicy() & Qt::TabFocus) != 0 && !part->focusProxy();
        if (takesFocus && part->isVisible() && part->isEnabled() && part->window() == &window &&
            (!radio || radio->isChecked()))
            stops.insert(part);
    }
    return stops;
}

/// Where a key leads, from the focus on until it comes there again.
QList<QWidget *> roundBy(Qt::Key key, qsizetype most)
{
    QList<QWidget *> met{QApplication::focusWidget()};
    while (met.size() <= most) {
        pressKey(key, key == Qt::Key_Backtab ? Qt::ShiftModifier : Qt::NoModifier);
        if (QApplication::focusWidget() == met.first())
            break;
        met += QApplication::focusWidget();
    }
    return met;
}

void verifyTab(const QWidget &window)
{
    const QSet<QWidget *> stops = stopsOf(window);
    const QList<QWidget *> there = roundBy(Qt::Key_Tab, stops.size());
    QList<QWidget *> back = roundBy(Qt::Key_Backtab, stops.size());
    std::reverse(back.begin() + 1, back.end());
    for (const QWidget *stop : stops)
        QVERIFY2(there.contains(stop), qPrintable(window.objectName() + u' ' + nameOf(stop)));
    QVERIFY2(there == back && there.size() == stops.size(), qPrintable(window.objectName()));
}

/// The arrow keys reach each button of a group; they choose, so this comes last.
void verifyGroups(const QWidget &window)
{
    const QList<QRadioButton *> all = window.findChildren<QRadioButton *>();
    QSet<QWidget *> met;
    for (QRadioButton *radio : all) {
        if (!radio->isChecked() || !radio->isVisible())
            continue;
        radio->setFocus();
        for (qsizetype i = 0; i < 2 * all.size(); ++i) {
            met.insert(QApplication::focusWidget());
            pressKey(i % 2 == 0 ? Qt::Key_Down : Qt::Key_Right);
        }
    }
    for (QRadioButton *radio : all)
        QVERIFY2(met.contains(radio) || !radio->isEnabled() || !radio->isVisible(),
                 qPrintable(nameOf(radio)));
}

/// Whether its label or its description says what a combo box is for: on Linux its name is its
/// item.
bool isNamed(const QAccessibleInterface &item)
{
    if (item.role() != QAccessible::ComboBox)
        return !item.text(QAccessible::Name).isEmpty();
    const auto labels = item.relations(QAccessible::Label);
    return !item.text(QAccessible::Description).isEmpty() ||
           std::any_of(labels.begin(), labels.end(), [](const auto &label) {
               return !label.first->text(QAccessible::Name).isEmpty();
           });
}

/// A number without its unit is half of what a box says.
void verifyUnit(const QAccessibleInterface &item, const QWidget &box)
{
    static const QRegularExpression ofWords(
        u"^txt(Name|Unit|Entry|Find|Folder|New|Repeated|Password|Date|Portions|Empty.*)$"_s);
    static const QRegularExpression unit(
        u"\\b(kg|cm|kcal|grams|hours|calories|per|cup|piece|lap)\\b"_s,
        QRegularExpression::CaseInsensitiveOption);
    const auto *shown = box.window()->findChild<QLabel *>(u"lblUnit"_s);
    const bool hasUnit = !shown || !shown->text().isEmpty();
    if (qobject_cast<const QLineEdit *>(&box) && hasUnit &&
        !ofWords.match(box.objectName()).hasMatch())
        QVERIFY2((item.text(QAccessible::Name) + u' ' + item.text(QAccessible::Description))
                     .contains(unit),
                 qPrintable(box.window()->objectName() + u' ' + box.objectName()));
}

void verifyTable(QAccessibleTableInterface &table, const QString &what)
{
    for (int column = 0; column < table.columnCount(); ++column)
        QVERIFY2(!table.columnDescription(column).isEmpty(), qPrintable(what));
    if (table.rowCount() > 0)
        QVERIFY2(!table.cellAt(0, 0)->text(QAccessible::Name).isEmpty(), qPrintable(what));
}

void verifyRead(QAccessibleInterface &item, const QString &window)
{
    const QSet<QAccessible::Role> unfit{QAccessible::NoRole, QAccessible::Client,
                                        QAccessible::Window, QAccessible::Pane};
    const QSet<QAccessible::Role> cells{QAccessible::TreeItem, QAccessible::Cell};
    const QAccessible::State state = item.state();
    if (state.invisible)
        return;
    auto *widget = qobject_cast<QWidget *>(item.object());
    const QString what = window + u' ' + nameOf(item.object());
    const bool isInner = (widget && widget->focusProxy()) || cells.contains(item.role());
    if ((state.focusable && !isInner) || item.role() == QAccessible::Button) {
        QVERIFY2(!unfit.contains(item.role()), qPrintable(what));
        QVERIFY2(isNamed(item), qPrintable(what));
    }
    if (widget && state.focusable && !isInner)
        verifyUnit(item, *widget);
    if (QAccessibleTableInterface *table = item.tableInterface())
        verifyTable(*table, what);
    for (int i = 0; i < item.childCount(); ++i) {
        if (QAccessibleInterface *child = item.child(i))
            verifyRead(*child, window);
    }
}

/// What the mouse presses has a menu entry or a key.
void verifyKeys(const QWidget &window)
{
    for (const QAction *action : window.findChildren<QAction *>()) {
        const QObjectList places = action->associatedObjects();
        const bool isInReach = std::any_of(places.begin(), places.end(), [](const QObject *place) {
            const auto *widget = qobject_cast<const QWidget *>(place);
            return qobject_cast<const QMenu *>(place) || qobject_cast<const QMenuBar *>(place) ||
                   (widget && widget->contextMenuPolicy() == Qt::ActionsContextMenu &&
                    (widget->focusPolicy() & Qt::TabFocus) != 0);
        });
        const bool isOfToolBar = qobject_cast<QToolBar *>(action->parent()); // it can't be hidden
        QVERIFY2(isInReach || isOfToolBar || action->isSeparator() ||
                     !action->shortcut().isEmpty() || !action->isVisible() ||
                     action->text().isEmpty(),
                 qPrintable(nameOf(action->parent()) + u' ' + action->text()));
    }
    for (const auto *button : window.findChildren<QAbstractButton *>()) {
        const QObject *place = button->parent();
        QVERIFY2((button->focusPolicy() & Qt::TabFocus) != 0 || !button->isVisible() ||
                     qobject_cast<const QRadioButton *>(button) ||
                     qobject_cast<const QToolBar *>(place) ||
                     qobject_cast<const QTabBar *>(place) ||
                     qobject_cast<const UpDownSpinner *>(place),
                 qPrintable(nameOf(place) + u' ' + nameOf(button)));
    }
}

void verifyWindow(QWidget &window)
{
    QTest::qWait(20); // until everything stands where it is to stand
    if (auto *unit = window.findChild<QLineEdit *>(u"txtUnit"_s); unit && unit->text().isEmpty())
        unit->setText(u"cup"_s);
    verifyTab(window);
    verifyRead(*QAccessible::queryAccessibleInterface(&window), window.objectName());
    verifyKeys(window);
    verifyGroups(window);
}

} // namespace

void tst_accessibility::everyWindow()
{
    ProgramWindows windows;
    windows.forEachOfMenus(verifyWindow);
    const QString meals = windows.journal.folder.filePath(u"meals.csv"_s);
    setFileBytes(meals, "Name,Unit,kcal\nFood,cup,1\nFood,cup,x\n");
    windows.forEachOther({meals, meals}, verifyWindow);
}

// A popup is no child of any widget there.
void tst_accessibility::menuOfTheChart()
{
    ProgramWindows windows;
    auto &graph = control<QWidget>(*windows.mainWindow, "graph");
    QAccessibleInterface *chart = QAccessible::queryAccessibleInterface(&graph);
    const int items = chart->childCount();
    activate(*windows.mainWindow);
    graph.setFocus();
    QContextMenuEvent wanted(QContextMenuEvent::Keyboard, QPoint(), QPoint());
    QApplication::sendEvent(&graph, &wanted);
    QCOMPARE(chart->childCount(), items + 1);
    QAccessibleInterface *menu = chart->child(items);
    QCOMPARE(menu->role(), QAccessible::PopupMenu);
    QCOMPARE(chart->indexOfChild(menu), items);
    QCOMPARE(menu->child(menu->childCount() - 1)->text(QAccessible::Name), u"Meal Consumed List"_s);
    pressKey(Qt::Key_Escape);
    QTRY_COMPARE(chart->childCount(), items);
}

void tst_accessibility::colors_data()
{
    QTest::addColumn<QPalette>("palette");
    const auto add = [](const char *name, QRgb ground, QRgb ink, QRgb highlight, QRgb onHighlight) {
        QPalette palette;
        palette.setColor(QPalette::Base, ground);
        palette.setColor(QPalette::Text, ink);
        palette.setColor(QPalette::Highlight, highlight);
        palette.setColor(QPalette::HighlightedText, onHighlight);
        QTest::newRow(name) << palette;
    };
    add("light", 0xffffff, 0x000000, 0x308cc6, 0xffffff);
    add("grey", 0xc0c0c0, 0x000000, 0x000080, 0xffffff);
    add("dark", 0x202326, 0xf0f0f0, 0x308cc6, 0xffffff);
    add("white on black", 0x000000, 0xffffff, 0x1aebff, 0x000000);
    add("black on white", 0xffffff, 0x000000, 0x37006e, 0xffffff);
    add("yellow on black", 0x000000, 0xffff00, 0x008000, 0xffffff);
    add("white on blue", 0x00007f, 0xffffff, 0xffffff, 0x00007f);
    QTest::newRow("paper") << plot::paperPalette();
}

// The guidelines' 3:1 for what tells a figure and 4.5:1 for texts. Of an area the edge counts.
void tst_accessibility::colors()
{
    QFETCH(QPalette, palette);
    const daychart::DayColors day(palette);
    const progress::ProgressColors progress(palette);
    const QColor ground = palette.color(QPalette::Base);
    const auto onGround = [&ground](const QColor &color) {
        return plot::mixed(ground, color, double(color.alphaF()));
    };
    for (const QColor &mark :
         {day.nutrients[Nutrient::Fat], day.nutrients[Nutrient::Carbohydrate],
          day.nutrients[Nutrient::Protein], day.activityEdge, day.bandEdge, day.balance, day.now,
          day.axis, day.highlight, progress.weight, progress.trend, progress.breast, progress.waist,
          progress.hips, progress.surplus, progress.deficit, progress.muted, progress.noteEdge})
        QVERIFY2(plot::contrast(mark, ground) >= 3, qPrintable(mark.name()));
    QVERIFY(plot::contrast(day.fatHatch, day.nutrients[Nutrient::Fat]) >= 2);
    for (const auto &[ink, paper] : {std::pair(day.ink, ground),
                                     {day.muted, ground},
                                     {day.onFill, day.activity},
                                     {day.onHighlight, day.highlight},
                                     {progress.ink, onGround(progress.note)}})
        QVERIFY2(plot::contrast(ink, paper) >= 4.5, qPrintable(ink.name()));
}

void tst_accessibility::placeholders()
{
    chooseStyle();
    const QPalette palette = QApplication::palette();
    const QColor shown = palette.color(QPalette::PlaceholderText);
    QCOMPARE(shown.alpha(), 255);
    QVERIFY(plot::contrast(shown, palette.color(QPalette::Base)) >= 4.5);
}

// Boxes and indicators that have not the focus.
void tst_accessibility::edgesOnBlack()
{
    EdgeStyle style(u"fusion"_s);
    const QPalette palette(Qt::white, Qt::black, Qt::white, Qt::black, Qt::gray, Qt::white,
                           Qt::black);
    QLineEdit box;
    QCheckBox check;
    QRadioButton radio;
    QComboBox chooser;
    QSpinBox number;
    QPushButton button;
    QPlainTextEdit text;
    for (QWidget *control : std::initializer_list<QWidget *>{&box, &check, &radio, &chooser,
                                                             &number, &button, &text}) {
        control->setStyle(&style);
        control->setPalette(palette);
        control->resize(control->sizeHint());
        const QImage picture = control->grab().toImage();
        double most = 1;
        for (int x = 0; x < 6; ++x)
            most =
                qMax(most, plot::contrast(picture.pixelColor(x, picture.height() / 2), Qt::black));
        QVERIFY2(most >= 3, control->metaObject()->className());
    }
}

QTEST_MAIN(tst_accessibility)
#include "tst_accessibility.moc"
