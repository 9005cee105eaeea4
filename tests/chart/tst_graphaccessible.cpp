// The daily chart as an assistive technology meets it.
#include "chart/TrellumGraph.h"
#include "samples.h"

#include <QAccessible>
#include <QSignalSpy>
#include <QTest>

class TestGraphAccessible : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void namesSayTheFigures();
    void childrenAreWhereTheyAreSeen();
    void pressingAChildChooses();
    void focusFollowsTheKeyboard();
    void stepsAreAnnounced();
    void childrenFollowTheItems();

private:
    QAccessibleInterface *chart() const
    {
        return QAccessible::queryAccessibleInterface(m_graph.get());
    }
    QString name(int child) const { return chart()->child(child)->text(QAccessible::Name); }

    std::unique_ptr<TrellumGraph> m_graph;
};

namespace {

std::vector<std::pair<QAccessible::Event, int>> announced;

void record(QAccessibleEvent *event)
{
    announced.emplace_back(event->type(), event->child());
}

} // namespace

void TestGraphAccessible::init()
{
    QAccessible::setActive(true);
    m_graph = std::make_unique<TrellumGraph>();
    m_graph->setLocale(QLocale::c());
    m_graph->resize(1000, 650);
    m_graph->setBackgroundRate(1.25);
    m_graph->addMeal(11, QTime(12, 30), 200, 150, 100);
    m_graph->addActivity(21, QTime(17, 0), QTime(17, 45), 320);
    m_graph->repaintChart();
    m_graph->show();
    m_graph->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_graph.get()));
}

void TestGraphAccessible::cleanup()
{
    QAccessible::installUpdateHandler(nullptr);
    m_graph.reset();
}

void TestGraphAccessible::namesSayTheFigures()
{
    QCOMPARE(chart()->role(), QAccessible::Chart);
    QCOMPARE(chart()->text(QAccessible::Name), QStringLiteral("Daily calorie chart"));
    QCOMPARE(chart()->text(QAccessible::Description),
             QStringLiteral("Eaten 450 kcal, burnt 2120 kcal of which 320 kcal by activities, "
                            "balance 1670 kcal less eaten than burnt. Meals: 1. Activities: 1."));
    QStringList names;
    for (int i = 0; i < chart()->childCount(); ++i)
        names << name(i);
    QCOMPARE(names, (QStringList{
                        "Meals: open the list",
                        "Meal at 12:30, 450 kcal: carbohydrate 200, fat 150, protein 100",
                        "New meal at 12:00",
                        "Activities: open the list",
                        "Activity from 17:00 to 17:45, 320 kcal",
                        "New activity at 12:00",
                    }));
}

void TestGraphAccessible::childrenAreWhereTheyAreSeen()
{
    for (const int item : {0, 1, 3, 4}) {
        QAccessibleInterface *child = chart()->child(item);
        const QPoint middle = child->rect().center();
        QCOMPARE(chart()->childAt(middle.x(), middle.y()), child);
        QCOMPARE(chart()->indexOfChild(child), item);
        QCOMPARE(child->parent(), chart());
    }
    QVERIFY(!chart()->child(6));
    QVERIFY(!chart()->child(-1));
}

void TestGraphAccessible::pressingAChildChooses()
{
    QSignalSpy meals(m_graph.get(), &TrellumGraph::mealItemChosen);
    QSignalSpy places(m_graph.get(), &TrellumGraph::freeActivityPlaceChosen);
    const auto press = [this](int index) {
        QAccessibleInterface *child = chart()->child(index);
        child->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        return child->state();
    };
    QVERIFY(press(1).selected);
    QCOMPARE(meals.takeFirst(), (QVariantList{11, true, QTime(12, 30)}));
    QVERIFY(press(5).focused);
    QCOMPARE(places.takeFirst(), (QVariantList{QTime(12, 30)}));
    QVERIFY(!chart()->child(1)->state().selected);
}

void TestGraphAccessible::focusFollowsTheKeyboard()
{
    m_graph->setFocus();
    QTest::keyClick(m_graph.get(), Qt::Key_Right);
    QCOMPARE(chart()->focusChild(), chart()->child(1));
    QTest::keyClick(m_graph.get(), Qt::Key_Right, Qt::ControlModifier);
    QCOMPARE(chart()->focusChild(), chart()->child(2));
    QCOMPARE(name(2), QStringLiteral("New meal at 12:35"));
}

void TestGraphAccessible::stepsAreAnnounced()
{
    if (!QAccessible::isActive())
        QSKIP("The platform has no assistive technology that listens.");
    m_graph->setFocus();
    announced.clear();
    QAccessible::installUpdateHandler(record);
    QTest::keyClick(m_graph.get(), Qt::Key_Right);
    QTest::keyClick(m_graph.get(), Qt::Key_Right, Qt::ControlModifier);
    const auto count = [](QAccessible::Event what, int child) {
        return std::count(announced.begin(), announced.end(), std::pair(what, child));
    };
    QCOMPARE(count(QAccessible::Focus, 1), 1);
    QCOMPARE(count(QAccessible::Focus, 2), 1);
    QCOMPARE(count(QAccessible::NameChanged, 2), 1);
    m_graph->repaintChart();
    QCOMPARE(count(QAccessible::ObjectReorder, -1), 1);
}

void TestGraphAccessible::childrenFollowTheItems()
{
    QCOMPARE(chart()->childCount(), 6);
    const QString before = name(1);
    m_graph->addMeal(12, QTime(8, 0), 10, 20, 30);
    QCOMPARE(name(1), before);
    m_graph->repaintChart();
    QCOMPARE(chart()->childCount(), 7);
    QVERIFY(name(1).startsWith(QStringLiteral("Meal at 08:00, 60 kcal")));
    QCOMPARE(name(2), before);
}

QTEST_MAIN(TestGraphAccessible)
#include "tst_graphaccessible.moc"
