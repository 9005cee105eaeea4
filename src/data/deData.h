// The data environment: the connection and a result set per named command.
#pragma once

#include "data/recordset.h"

/// Everything of the store that a window works with. A window runs a command when it needs its
/// rows, reads or edits `rs` plus the command's name, and closes it.
class deData
{
public:
    /// Opens the database file; throws StoreError as Connection does.
    explicit deData(const QString &path, const FilePassword &password = {});
    ~deData();

    /// Runs a command without rows, durably; the number of rows changed.
    int run(const Command &command, std::initializer_list<Value> values = {});
    /// Runs a literal statement without parameters; the number of rows changed.
    int run(const char *sql);

    Connection Con;

    Recordset rsMealCategory{Con, commands::MealCategory};
    Recordset rsMealCategorySorted{Con, commands::MealCategorySorted};
    Recordset rsMeal{Con, commands::Meal};
    Recordset rsMealSorted{Con, commands::MealSorted};
    Recordset rsMealForCategory{Con, commands::MealForCategory};
    Recordset rsMealAll{Con, commands::MealAll};
    Recordset rsExercise{Con, commands::Exercise};
    Recordset rsExerciseSorted{Con, commands::ExerciseSorted};

    Recordset rsMealConsumeSorted{Con, commands::MealConsumeSorted};
    Recordset rsMealConsume{Con, commands::MealConsume};
    Recordset rsExercisePerformSorted{Con, commands::ExercisePerformSorted};
    Recordset rsExercisePerform{Con, commands::ExercisePerform};

    Recordset rsRecentMeals{Con, commands::RecentMeals};
    Recordset rsRecentActivities{Con, commands::RecentActivities};
    Recordset rsDaysWithEntries{Con, commands::DaysWithEntries};
    Recordset rsConsumedByDay{Con, commands::ConsumedByDay};

    Recordset rsBodySorted{Con, commands::BodySorted};
    Recordset rsBody{Con, commands::Body};
    Recordset rsBodyCheck{Con, commands::BodyCheck};
    Recordset rsUserNoteSorted{Con, commands::UserNoteSorted};
    Recordset rsUserNote{Con, commands::UserNote};
    Recordset rsUserNoteCheck{Con, commands::UserNoteCheck};

    Recordset rsCommon{Con, commands::Common};

    Recordset rschkMinMaxdate{Con, commands::chkMinMaxdate};
    Recordset rschkCaloriesDays{Con, commands::chkCaloriesDays};
    Recordset rschkBodyContig{Con, commands::chkBodyContig};
    Recordset rsGPBody{Con, commands::GPBody};
    Recordset rsGPCalories{Con, commands::GPCalories};
    Recordset rsGPNotes{Con, commands::GPNotes};
};
