#include "app/frmMain.h"
#include "bareengine.h"
#include "chart/TrellumGraph.h"
#include "fulljournal.h"
#include "guitest.h"
#include "journal/frmMealConsume.h"
#include "journal/frmMealConsumes.h"
#include "measurements.h"
#include "progress/frmGeneralProgress.h"
#include "quickadd/frmQuickAdd.h"
#include "session/session.h"
#include "table.h"
#include "testjournal.h"
#include "ui/datacombo.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>

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
        auto times = repeated(50, [&] {
            return timed([&] {
                program.window->RePaintGraph();
                program.paint();
            });
        });
        table.addTime(u"a day of 40 items loaded and painted, %1 x %2"_qs.arg(size.width())
                          .arg(size.height()),
                      median(times), frame);
    }
    program.window->resize(1280, 900);
    QCoreApplication::processEvents();

    auto &next = control<QPushButton>(*program.window, "btnNext");
    program.session.setCurrentDate(lastDay.addDays(-370));
    auto times = repeated(365, [&] {
        return timed([&] {
            next.click();
            program.paint();
        });
    });
    table.addTime(u"the next day, median of a year"_qs, median(times), frame);
    table.addTime(u"the next day, slowest of a year"_qs, times.back());
}

// Milliseconds from the start of `open`, which makes a modal dialog and runs it, to its picture on
// the screen; the dialog is closed then.
template<typename Open>
double timeToPicture(Open open)
{
    QElapsedTimer timer;
    timer.start();
    double taken = 0;
    QTimer::singleShot(0, [&] {
        QWidget *dialog = QApplication::activeModalWidget();
        dialog->repaint();
        taken = double(timer.nsecsElapsed()) / 1e6;
        dialog->close();
    });
    open();
    return taken;
}

void measureDayList(Table &table, Program &program)
{
    program.session.setCurrentDate(dayOf200Meals);
    Connection other(QString::fromStdString(program.data.Con.database().getFilename()));
    BareStatement meals(other, commands::MealConsumeSorted.sql);
    const int day = static_cast<int>(dayNumber(dayOf200Meals));
    const auto ours = [&] {
        return timeToPicture([&] {
            frmMealConsumes(program.session, program.messages, program.window.get()).run();
        });
    };
    const auto floor = [&] { return timed([&] { meals.run({day}); }); };
    table.addRatio(u"list of a day of 200 meals opened and painted : its bare query"_qs, u"ms"_qs,
                   compare(30, ours, floor));
}

// From period to period through all the years and back, on each page of the window.
void measureProgressSteps(Table &table, Program &program, const progress::Period &period)
{
    frmGeneralProgress window(program.session, program.messages, period, program.window.get());
    window.show();
    if (!QTest::qWaitForWindowExposed(&window))
        qFatal("general progress does not appear");
    auto &pages = control<QTabWidget>(window, "tabPages");
    for (int page = 0; page < pages.count(); ++page) {
        pages.setCurrentIndex(page);
        QCoreApplication::processEvents();
        std::vector<double> times;
        for (const char *name : {"btnPrevious", "btnNext"}) {
            auto &button = control<QPushButton>(window, name);
            const auto taken = repeated(18, [&] {
                return timed([&] {
                    button.click();
                    window.repaint();
                });
            });
            times.insert(times.end(), taken.begin(), taken.end());
        }
        const QString what = u"to the next six months of progress, page %1, "_qs.arg(
            pages.tabText(page).remove(u'&'));
        table.addTime(what + u"median"_qs, median(times), 2 * frame);
        table.addTime(what + u"slowest"_qs, times.back());
    }
}

// As many measurements and notes as the editors allow, one a day: with the full journal's nine the
// picture would be of a journal that nobody can have.
void measureProgress(Table &table, Program &program)
{
    program.data.run("delete from Body where BodyID not in"
                     " (select min(BodyID) from Body group by DateMeasured)");
    program.data.run("delete from UserNote where UserNoteID not in"
                     " (select min(UserNoteID) from UserNote group by DateFrom)");
    // Before the crowded days, whose balance no chart holds.
    const QDate end = dayOf200Meals.addDays(-1);
    const progress::Period period{end.addMonths(-6), end};
    auto times = repeated(20, [&] {
        return timeToPicture([&] {
            frmGeneralProgress(program.session, program.messages, period, program.window.get())
                .exec();
        });
    });
    table.addTime(u"six months of progress loaded and painted"_qs, median(times), 2 * frame);
    measureProgressSteps(table, program, period);
}

// What the meal editor reads when it opens: the categories, then the meals of one.
void measureEditor(Table &table, Program &program)
{
    Connection other(QString::fromStdString(program.data.Con.database().getFilename()));
    BareStatement categories(other, commands::MealCategorySorted.sql);
    BareStatement row(other, commands::MealConsume.sql);
    BareStatement meals(other, commands::MealForCategory.sql);
    const auto ours = [&] {
        return timeToPicture([&] {
            frmMealConsume(program.session, program.messages, program.window.get()).run(500);
        });
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

// Without a category, the chooser reads every meal as soon as it is entered.
void measureMealChooser(Table &table, Program &program)
{
    frmMealConsume editor(program.session, program.messages, program.window.get());
    double taken = 0;
    inDialog(
        "frmMealConsume", [&] { editor.run(0); },
        [&](QWidget &dialog) {
            auto &meal = control<DataCombo>(dialog, "dcbMeal");
            taken = timed([&] {
                meal.setFocus();
                dialog.repaint();
            });
            if (meal.count() == 0)
                qFatal("no meals are offered");
        });
    table.addTime(u"the chooser of every meal entered and painted"_qs, taken, frame);
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

// With a catalogue that nobody's outgrows. Of the keys the first letter finds most.
void measureQuickAdd(Table &table, Program &program)
{
    growCatalogue(program.data, 5000, 500);
    program.session.setCurrentDate(lastDay);
    const auto open = [&](const std::function<void(QWidget &)> &steps) {
        frmQuickAdd window(program.session, program.messages, program.window.get());
        inDialog(
            "frmQuickAdd", [&] { window.exec(); }, steps);
    };
    auto opening = repeated(20, [&] {
        return timeToPicture(
            [&] { frmQuickAdd(program.session, program.messages, program.window.get()).exec(); });
    });
    table.addTime(u"Quick Add opened and painted, 5,000 meals"_qs, median(opening), 2 * frame);
    std::vector<double> keys;
    open([&](QWidget &window) {
        auto &box = control<QLineEdit>(window, "txtEntry");
        for (const QString &line : {u"e"_qs, u"2 rye bread"_qs, u"number 12 150 g"_qs}) {
            box.clear();
            for (const QChar letter : line) {
                keys.push_back(timed([&] {
                    QTest::keyClick(&box, letter.toLatin1());
                    window.repaint();
                }));
            }
        }
    });
    table.addTime(u"a key in Quick Add answered, median"_qs, median(keys), frame / 2);
    table.addTime(u"a key in Quick Add answered, slowest"_qs, keys.back());
}

} // namespace

// A further window gets a function above and a line here.
void measureWindows(Table &table, const QString &fullJournal)
{
    Program program(fullJournal);
    measureDays(table, program);
    measureEditor(table, program);
    measureMealChooser(table, program);
    measureDayList(table, program);
    measureAddMode(table, program);
    measureProgress(table, program);
    measureQuickAdd(table, program);
}
