#include "app/frmMain.h"
#include "bareengine.h"
#include "chart/TrellumGraph.h"
#include "fulljournal.h"
#include "guitest.h"
#include "journal/frmMealConsume.h"
#include "measurements.h"
#include "session/session.h"
#include "table.h"
#include "testjournal.h"
#include "ui/datacombo.h"

#include <QLineEdit>
#include <QPushButton>

using namespace Qt::Literals;

namespace {

constexpr double frame = 1000.0 / 60;

// A session on the full journal with its main window shown.
class Program
{
public:
    explicit Program(const QString &journal)
        : clock(QDateTime(lastDay, QTime(12, 0)))
        , data(journal)
        , session(data, clock, QLocale(u"en_GB"_qs))
        , window(makeWindow())
        , graph(&control<TrellumGraph>(*window, "graph"))
    {
        window->resize(1280, 900);
        window->show();
        if (!QTest::qWaitForWindowExposed(window.get()))
            qFatal("the main window does not appear");
    }

    // Ends when the new picture is on the screen.
    void paint() { graph->repaint(); }

    RecordedMessages messages;
    FixedClock clock;
    deData data;
    Session session;
    std::unique_ptr<frmMain> window;
    TrellumGraph *graph;

private:
    std::unique_ptr<frmMain> makeWindow()
    {
        session.readCommonParameters();
        return std::make_unique<frmMain>(session, messages);
    }
};

void measureDays(Table &table, Program &program)
{
    program.session.setCurrentDate(dayOf40Items);
    for (const QSize size : {QSize(1280, 900), QSize(3840, 2160)}) {
        program.window->resize(size);
        QCoreApplication::processEvents();
        std::vector<double> times;
        for (int i = 0; i < 50; ++i)
            times.push_back(timed([&] {
                program.window->RePaintGraph();
                program.paint();
            }));
        table.addTime(u"a day of 40 items loaded and painted, %1 x %2"_qs.arg(size.width())
                          .arg(size.height()),
                      median(times), size.width() < 2000 ? std::optional(frame) : std::nullopt);
    }
    program.window->resize(1280, 900);
    QCoreApplication::processEvents();

    std::vector<double> times;
    auto &next = control<QPushButton>(*program.window, "btnNext");
    program.session.setCurrentDate(lastDay.addDays(-370));
    for (int i = 0; i < 365; ++i)
        times.push_back(timed([&] {
            next.click();
            program.paint();
        }));
    table.addTime(u"the next day, median of a year"_qs, median(times), frame);
    table.addTime(u"the next day, slowest of a year"_qs, times.back());
}

// What the meal editor reads when it opens: the categories, then the meals of one.
void measureEditor(Table &table, Program &program)
{
    Connection other(QString::fromStdString(program.data.Con.database().getFilename()));
    BareStatement categories(other, commands::MealCategorySorted.sql);
    BareStatement row(other, commands::MealConsume.sql);
    BareStatement meals(other, commands::MealForCategory.sql);
    const auto ours = [&] {
        QElapsedTimer timer;
        timer.start();
        double taken = 0;
        frmMealConsume editor(program.session, program.messages, program.window.get());
        QTimer::singleShot(0, &editor, [&] {
            editor.repaint();
            taken = double(timer.nsecsElapsed()) / 1e6;
            editor.close();
        });
        editor.run(500);
        return taken;
    };
    const auto floor = [&] {
        return timed([&] {
            categories.run({});
            row.run({500});
            meals.run({1});
        });
    };
    table.addRatio(u"meal editor opened and painted : its bare queries"_qs, u"ms"_qs,
                   compare(30, ours, floor));
}

// From the press on Add to the new chart, against the durable transactions and the day's queries.
void measureAddMode(Table &table, Program &program)
{
    makeRoomForMeals(program.data);
    program.session.setCurrentDate(dayOf40Items);
    Connection other(QString::fromStdString(program.data.Con.database().getFilename()));
    BareStatement counter(other, "update Common set NextMealConsumeID = NextMealConsumeID + 1");
    BareStatement row(other, "insert into MealConsume values"
                             " ((select NextMealConsumeID from Common), 1, ?, 0.5, 1.25)");
    BareStatement meals(other, commands::MealConsumeSorted.sql);
    BareStatement activities(other, commands::ExercisePerformSorted.sql);
    const int day = static_cast<int>(dayNumber(dayOf40Items));
    const auto floor = [&] {
        return timed([&] {
            counter.run({});
            row.run({day - 1});
            meals.run({day});
            activities.run({day});
        });
    };
    Compared measured;
    frmMealConsume editor(program.session, program.messages, program.window.get());
    editor.setAddMode(true);
    inDialog(
        "frmMealConsume", [&] { editor.run(0); },
        [&](QWidget &dialog) {
            const auto ours = [&] {
                control<DataCombo>(dialog, "dcbMealCategory").setBoundValue(1);
                return timed([&] {
                    control<QPushButton>(dialog, "btnOK").click();
                    program.paint();
                });
            };
            measured = compare(20, ours, floor);
        });
    if (!program.messages.said.empty())
        qFatal("%s", qPrintable(program.messages.takeText()));
    table.addRatio(u"a meal added and the chart redrawn : its bare statements"_qs, u"ms"_qs,
                   measured);
}

} // namespace

// A further window gets a function above and a line here.
void measureWindows(Table &table, const QString &fullJournal)
{
    Program program(fullJournal);
    measureDays(table, program);
    measureEditor(table, program);
    measureAddMode(table, program);
}
