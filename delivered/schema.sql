-- The journal's eight tables. Dates are whole day numbers (day 0 is 30 December 1899), times of
-- day are fractions of a day, numbers have at least the four decimals that a user can enter.
-- CORVANA_NAME, which the program registers, compares names without regard to case.

-- The catalogues. AUTOINCREMENT: the identifier of a deleted record is never given out again.

CREATE TABLE MealCategory (
    MealCategoryID INTEGER PRIMARY KEY AUTOINCREMENT,
    Name TEXT NOT NULL COLLATE CORVANA_NAME UNIQUE
);

CREATE TABLE Meal (
    MealID INTEGER PRIMARY KEY AUTOINCREMENT,
    MealCategoryID INTEGER NOT NULL REFERENCES MealCategory (MealCategoryID),
    Name TEXT NOT NULL COLLATE CORVANA_NAME UNIQUE,
    Unit TEXT NOT NULL,
    DefaultQty REAL,
    Increment REAL,
    Calories REAL NOT NULL,
    Fat REAL NOT NULL,
    Carbohydrate REAL NOT NULL,
    Protein REAL NOT NULL,
    FatBC REAL NOT NULL,
    CarbohydrateBC REAL NOT NULL,
    ProteinBC REAL NOT NULL
);

CREATE TABLE Exercise (
    ExerciseID INTEGER PRIMARY KEY AUTOINCREMENT,
    Name TEXT NOT NULL COLLATE CORVANA_NAME UNIQUE,
    Unit TEXT NOT NULL,
    DefaultQty REAL,
    CaloriesConsume REAL NOT NULL,
    CaloriesConsumeBase REAL NOT NULL,
    WeightDependent INTEGER NOT NULL
);

-- The journal. The program writes the keys, from the counters of Common; rows of the sample
-- journal have negative ones.

CREATE TABLE MealConsume (
    MealConsumeID INTEGER PRIMARY KEY,
    MealID INTEGER NOT NULL REFERENCES Meal (MealID),
    ConsumeDate INTEGER NOT NULL,
    ConsumeTime REAL NOT NULL,
    Qty REAL NOT NULL
);

CREATE TABLE ExercisePerform (
    ExercisePerformID INTEGER PRIMARY KEY,
    ExerciseID INTEGER NOT NULL REFERENCES Exercise (ExerciseID),
    PerformDate INTEGER NOT NULL,
    timeBeg REAL NOT NULL,
    timeEnd REAL NOT NULL,
    Qty REAL NOT NULL
);

CREATE TABLE Body (
    BodyID INTEGER PRIMARY KEY,
    DateMeasured INTEGER NOT NULL,
    Weight REAL NOT NULL,
    Breast REAL NOT NULL,
    Waist REAL NOT NULL,
    Hips REAL NOT NULL,
    Measurement TEXT NOT NULL
);

CREATE TABLE UserNote (
    UserNoteID INTEGER PRIMARY KEY,
    DateFrom INTEGER NOT NULL,
    DateTo INTEGER NOT NULL,
    NoteText TEXT NOT NULL
);

-- The user's common parameters, and for each journal table the key given out last.

CREATE TABLE Common (
    weight REAL NOT NULL,
    metabolicRate REAL NOT NULL,
    Measurement TEXT NOT NULL,
    NextBodyID INTEGER NOT NULL,
    NextMealConsumeID INTEGER NOT NULL,
    NextExercisePerformID INTEGER NOT NULL,
    NextUserNoteID INTEGER NOT NULL,
    installDate INTEGER NOT NULL
);

-- Every row has the same index entry, so that there can't be a second one.
CREATE UNIQUE INDEX CommonHasOneRow ON Common ((1));

CREATE TRIGGER CommonKeepsItsRow BEFORE DELETE ON Common
BEGIN
    SELECT RAISE(ABORT, 'the row of Common can''t be deleted');
END;

CREATE INDEX MealByCategory ON Meal (MealCategoryID, Name);
CREATE INDEX MealConsumeByDate ON MealConsume (ConsumeDate, ConsumeTime);
CREATE INDEX MealConsumeByMeal ON MealConsume (MealID);
CREATE INDEX ExercisePerformByDate ON ExercisePerform (PerformDate, timeBeg);
CREATE INDEX ExercisePerformByExercise ON ExercisePerform (ExerciseID);
CREATE INDEX BodyByDate ON Body (DateMeasured);
CREATE INDEX UserNoteByFirstDate ON UserNote (DateFrom, DateTo);
CREATE INDEX UserNoteByLastDate ON UserNote (DateTo, DateFrom);
