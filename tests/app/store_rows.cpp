// Stores journal rows as the editors do, in each journal table in turn, and reports on standard
// output each identifier as it is taken ("taken MealConsume 7") and each row once it is stored.
// Usage: store_rows DATABASE COUNT PAUSE, the pause after each row in milliseconds.
#include "data/identifiers.h"

#include <QThread>

#include <cstdio>
#include <cstdlib>

using namespace Qt::Literals;

namespace {

void report(const char *what, const Recordset &rows, int id)
{
    std::printf("%s %s %d\n", what, rows.command().name, id);
    std::fflush(stdout);
}

// The row tells its own identifier a second time, so that a half-written one would show.
void store(Recordset &rows, qint16 (*newId)(deData &), deData &data,
           std::initializer_list<std::pair<QLatin1StringView, Value>> fields,
           QLatin1StringView copyOfId)
{
    rows.reopen({0});
    rows.addNew();
    const int id = newId(data);
    report("taken", rows, id);
    rows.set(QLatin1StringView(rows.command().key), Value(id));
    for (const auto &[column, value] : fields)
        rows.set(column, value);
    rows.set(copyOfId, Value(QString::number(id)));
    rows.update();
    report("stored", rows, id);
}

void storeOne(deData &data, int number)
{
    const Value day(46000 + number);
    switch (number % 4) {
    case 0:
        store(data.rsMealConsume, &NewMealConsumeID, data,
              {{"MealID"_L1, 1}, {"ConsumeDate"_L1, day}, {"ConsumeTime"_L1, 0.5}}, "Qty"_L1);
        break;
    case 1:
        store(data.rsExercisePerform, &NewExercisePerformID, data,
              {{"ExerciseID"_L1, 1},
               {"PerformDate"_L1, day},
               {"timeBeg"_L1, 0.5},
               {"timeEnd"_L1, 0.6}},
              "Qty"_L1);
        break;
    case 2:
        store(data.rsBody, &NewBodyID, data,
              {{"DateMeasured"_L1, day},
               {"Breast"_L1, 90},
               {"Waist"_L1, 80},
               {"Hips"_L1, 95},
               {"Measurement"_L1, QStringLiteral("M")}},
              "Weight"_L1);
        break;
    default:
        store(data.rsUserNote, &NewUserNoteID, data, {{"DateFrom"_L1, day}, {"DateTo"_L1, day}},
              "NoteText"_L1);
    }
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 4)
        return 2;
    try {
        deData data(QString::fromLocal8Bit(argv[1]));
        const int count = std::atoi(argv[2]);
        const auto pause = static_cast<unsigned long>(std::atoi(argv[3]));
        for (int number = 0; number < count; ++number) {
            storeOne(data, number);
            QThread::msleep(pause);
        }
    } catch (const std::exception &error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
    return 0;
}
