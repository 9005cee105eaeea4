// Every store and every deletion of every window, with each of its writes, synchronizations, locks
// and deletions failing in turn, and the program ending there.
#include "app/frmMain.h"
#include "backup/backupsettings.h"
#include "backup/frmRestore.h"
#include "backup/makebackup.h"
#include "catalogue/frmExercise.h"
#include "catalogue/frmExercises.h"
#include "catalogue/frmMeal.h"
#include "catalogue/frmMealCategories.h"
#include "catalogue/frmMealCategory.h"
#include "catalogue/frmMeals.h"
#include "data/identifiers.h"
#include "exchange/frmImport.h"
#include "faultyfiles.h"
#include "journal/frmBody.h"
#include "journal/frmCopyDay.h"
#include "journal/frmExercisePerform.h"
#include "journal/frmExercisePerforms.h"
#include "journal/frmMealConsume.h"
#include "journal/frmMealConsumes.h"
#include "journal/frmMeasurements.h"
#include "journal/frmUserNote.h"
#include "quickadd/frmQuickAdd.h"
#include "session/samplejournal.h"
#include "settings/frmCommon.h"
#include "ui/attempt.h"

#include "dayjournal.h"

#include <QAction>
#include <QMetaProperty>
#include <QRegularExpression>

using namespace Qt::Literals;
using namespace std::string_literals;
using faultyfiles::Fault;

namespace {

using Fields = std::vector<std::pair<const char *, QString>>;

void fill(QWidget &window, const Fields &fields)
{
    for (const auto &[name, text] : fields) {
        auto *field = &control<QWidget>(window, name);
        if (auto *chooser = qobject_cast<DataCombo *>(field))
            chooser->setDisplayedText(text);
        else
            QVERIFY2(field->metaObject()->userProperty().write(field, text), name);
    }
}

QVariantList shownIn(const QWidget &window, const Fields &fields)
{
    QVariantList values;
    for (const auto &field : fields) {
        const auto &shown = control<QWidget>(window, field.first);
        values += shown.metaObject()->userProperty().read(&shown);
    }
    return values;
}

/// What is on the disk, but for the counters: each row with its table's name.
QStringList stored(const QString &path)
{
    Connection connection(path);
    QStringList found;
    for (const auto &[table, columns] : std::initializer_list<std::pair<QString, QString>>{
             {u"MealConsume"_s, u"*"_s},
             {u"ExercisePerform"_s, u"*"_s},
             {u"Body"_s, u"*"_s},
             {u"UserNote"_s, u"*"_s},
             {u"MealCategory"_s, u"MealCategoryID, Name collate binary"_s},
             {u"Meal"_s, u"MealID, Name collate binary, Unit, Calories"_s},
             {u"Exercise"_s, u"ExerciseID, Name collate binary, CaloriesConsume"_s},
             {u"Common"_s, u"weight, metabolicRate, Measurement, installDate"_s}}) {
        const QString sql = u"select %1 from %2 order by 1"_s.arg(columns, table);
        for (const QString &row : queryRows(connection, qPrintable(sql)))
            found += table + u": "_s + row;
    }
    return found;
}

/// The same whatever number a new row was given, and in whatever order the rows stand then.
QStringList numberless(QStringList rows)
{
    static const QRegularExpression number(u"^(\\w+): \\d{2,}\\|"_s);
    rows.replaceInStrings(number, u"\\1: new|"_s);
    rows.sort();
    return rows;
}

/// One try of an action under one fault.
struct Try
{
    DayJournal &journal;
    Fault fault;
    int n;
    bool persists;
    bool struck = false;
    QStringList afterKill = {}; ///< what the next start would find had the program ended there

    /// Runs what asks the window to store or delete.
    void act(const std::function<void()> &action)
    {
        journal.messages.said.clear();
        journal.messages.answers = {true};
        faultyfiles::arm(fault, n, persists);
        action();
        // Nothing has reached the files since the first fault where all of them fail: they are
        // those that a program leaves which is killed at that moment.
        const bool isFrozen = fault == Fault::InputOutput && persists;
        const QTemporaryDir left;
        if (isFrozen)
            copyJournal(left.filePath(u"Corvana.mdb"_s));
        struck = faultyfiles::disarm();
        if (isFrozen)
            afterKill = stored(left.filePath(u"Corvana.mdb"_s));
    }
    void copyJournal(const QString &path) const
    {
        QVERIFY(QFile::copy(journal.path(), path));
        const QString rollback = journal.path() + u"-journal"_s;
        QVERIFY(!QFile::exists(rollback) || QFile::copy(rollback, path + u"-journal"_s));
    }
    bool isRefused() const
    {
        return !journal.messages.said.empty() &&
               journal.messages.said.back().icon == Messages::Icon::Exclamation;
    }
};

struct Action
{
    const char *name;
    QString refusal; ///< what its window says
    std::function<void(Try &)> run;
    QString mayBeGone = {}; ///< rows of earlier steps, which a refused later step leaves done
};

const QString journalRefusal =
    u"Can't store this record in database. Please check whether all data are valid"_s;
const QString journalDeletion = u"This record can't be deleted from database"_s;
const QString catalogueDeletion = u"This record can't be deleted because there are records in the "
                                  "database, which refer to it"_s;

QString catalogueRefusal(const QString &what)
{
    return u"Can't store this record in database. Please check whether there is already %1 with "
           "the same name in the database"_s.arg(what);
}

template<typename Editor>
Action storing(const char *name, const QString &refusal, qint32 id, const Fields &fields)
{
    return {name, refusal, [=](Try &attempt) {
                Editor editor(*attempt.journal.session, attempt.journal.messages);
                const auto open = [&] {
                    if constexpr (std::is_same_v<Editor, frmCommon>)
                        editor.run();
                    else
                        editor.run(id);
                };
                inDialog(qPrintable(editor.objectName()), open, [&](QWidget &window) {
                    fill(window, fields);
                    const QVariantList typed = shownIn(window, fields);
                    attempt.act([&] { press(window, "btnOK"); });
                    QCOMPARE(window.isVisible(), attempt.isRefused());
                    QCOMPARE(shownIn(window, fields), typed);
                    QCOMPARE(editor.isStored(), !attempt.isRefused());
                });
            }};
}

template<typename List>
Action deleting(const char *name, const QString &refusal, const char *list = "lvwList",
                const char *button = "btnDelete")
{
    return {name, refusal, [=](Try &attempt) {
                List window(*attempt.journal.session, attempt.journal.messages);
                const auto open = [&] {
                    if constexpr (requires { window.run(); })
                        window.run();
                    else
                        window.exec();
                };
                inDialog(qPrintable(window.objectName()), open, [&](QWidget &) {
                    if (auto *category = window.template findChild<DataCombo *>())
                        category->setDisplayedText(u"Fruit"_s);
                    selectRow(window, 0, list);
                    const QStringList rows = shown(window, list);
                    attempt.act([&] { press(window, button); });
                    if (attempt.isRefused())
                        QCOMPARE(shown(window, list), rows);
                });
            }};
}

Action copyingADay()
{
    return {"copying a day", u"The copy can't be stored"_s, [](Try &attempt) {
                frmCopyDay window(*attempt.journal.session, attempt.journal.messages);
                inDialog(
                    "frmCopyDay", [&] { window.run(); },
                    [&](QWidget &) {
                        const QStringList rows = shown(window);
                        attempt.act([&] { press(window, "btnOK"); });
                        QCOMPARE(window.isVisible(), attempt.isRefused());
                        QCOMPARE(shown(window), rows);
                    });
            }};
}

Action copyingAnEntry()
{
    return {"copying an entry", u"The copy can't be stored"_s, [](Try &attempt) {
                frmExercisePerforms list(*attempt.journal.session, attempt.journal.messages);
                inDialog(
                    "frmExercisePerforms", [&] { list.run(); },
                    [&](QWidget &) {
                        selectRow(list, 0);
                        attempt.act([&] { control<QAction>(list, "mnuCopyToday").trigger(); });
                    });
            }};
}

Action deletingTrialData()
{
    return {"deleting the trial data", u"The trial data can't be deleted"_s,
            [](Try &attempt) {
                frmMain window(*attempt.journal.session, attempt.journal.messages);
                window.show();
                attempt.act([&] { control<QAction>(window, "mnuDeleteTrialData").trigger(); });
            },
            u"^\\w+: -\\d"_s};
}

Action movingTheSample()
{
    return {"moving the sample", u"moved not"_s,
            [](Try &attempt) {
                attempt.act([&] {
                    const QDate later(2026, 8, 1);
                    const auto move = [&] { moveSampleJournal(*attempt.journal.data, later); };
                    ::attempt(nullptr, attempt.journal.messages, move, u"moved not"_s);
                });
            },
            // Its single steps are tried with the data; here it succeeds or is undone.
            u"^\\w+: "_s};
}

Action quickAdding()
{
    return {"a quick entry", u"The entry can't be stored"_s, [](Try &attempt) {
                frmQuickAdd window(*attempt.journal.session, attempt.journal.messages);
                inDialog(
                    "frmQuickAdd", [&] { window.exec(); },
                    [&](QWidget &) {
                        auto &entry = control<QLineEdit>(window, "txtEntry");
                        entry.setText(u"350 kcal 8:15"_s); // with a meal made for it
                        attempt.act([&] { press(window, "btnAdd"); });
                        // Stored is stored, whether the list can be read afterwards or not.
                        const auto &said = attempt.journal.messages.said;
                        const bool isRefused =
                            !said.empty() && said.front().text == u"The entry can't be stored"_s;
                        QCOMPARE(entry.text().isEmpty(), !isRefused);
                    });
            }};
}

// A step that has changed rows of several tables, done and then taken back by another one, so that
// taking that one back, or doing the first again, begins with the rows as they are.
Action takingAStep(const char *name, const char *entry, const QString &refusal)
{
    return {name, refusal, [entry](Try &attempt) {
                Session &session = *attempt.journal.session;
                const auto record = [&](const char *sign) {
                    const UndoHistory::Recording recording(session.history(), u"Recounting"_s,
                                                           session.currentDate());
                    WriteTransaction transaction(session.data().Con);
                    for (const char *column :
                         {"MealConsume set Qty = Qty", "Body set Waist = Waist",
                          "Common set weight = weight"})
                        attempt.journal.data->run(("update "s + column + sign + " 1").c_str());
                    transaction.commit();
                };
                record("+");
                if (QByteArray(entry) == "mnuUndo")
                    record("-");
                else
                    session.history().take(Direction::Backward);
                frmMain window(session, attempt.journal.messages);
                window.show();
                attempt.act([&] { control<QAction>(window, entry).trigger(); });
            }};
}

std::unique_ptr<DayJournal> journalToTry()
{
    auto journal = std::make_unique<DayJournal>();
    journal->exec(
        "PRAGMA synchronous=EXTRA; PRAGMA busy_timeout=0;"
        "update Common set NextBodyID = 100, NextMealConsumeID = 100, NextExercisePerformID = 100,"
        " NextUserNoteID = 100;"
        "insert into MealCategory (MealCategoryID, Name) values (9, 'A vacant one');"
        "insert into Meal select 9, MealCategoryID, 'A vacant one', Unit, DefaultQty, Increment,"
        " Calories, Fat, Carbohydrate, Protein, FatBC, CarbohydrateBC, ProteinBC from Meal"
        " where MealID = 1;"
        "insert into Exercise values (9, 'A vacant one', 'lap', 1, 7, 7, 1);"
        "insert into MealConsume values (5, 1, 46225, 0.25, 3), (-1, 1, 46224, 0.25, 3);"
        "insert into ExercisePerform values (5, 1, 46225, 0.25, 0.5, 3), (-1, 1, 46224, 0.1, 0.2,"
        " 3);"
        "insert into Body values (5, 46222, 80, 100, 90, 95, 'M'), (-1, 46000, 80, 100, 90, 95,"
        " 'M');"
        "insert into UserNote values (5, 46210, 46211, 'Old'), (-1, 46000, 46001, 'Sample')");
    return journal;
}

/// A backup that holds a note more than the journals that are tried, made once.
QString backup()
{
    static const QTemporaryDir place;
    static const QString made = [] {
        const auto journal = journalToTry();
        journal->exec("insert into UserNote values (77, 46000, 46000, 'Backed up')");
        return makeBackup(journal->path(), place.path(), journal->clock.now());
    }();
    return made;
}

Action restoring()
{
    return {"restoring a backup", u"The backup can't be restored"_s, [](Try &attempt) {
                DayJournal &journal = attempt.journal;
                const QString place = usualBackupPlace(installationOf(journal.data->Con));
                QDir(place).removeRecursively();
                const QDir made(backup());
                const QString copy = place + u'/' + made.dirName() + u'/';
                QVERIFY(QDir().mkpath(copy));
                for (const QString &file : made.entryList(QDir::Files))
                    QVERIFY(QFile::copy(made.filePath(file), copy + file));
                frmRestore window(*journal.session, journal.messages);
                inDialog(
                    "frmRestore", [&] { window.exec(); },
                    [&](QWidget &) {
                        attempt.act([&] { press(window, "btnOK"); });
                        QCOMPARE(window.isVisible(), attempt.isRefused());
                    });
            }};
}

Action importing()
{
    return {"an import", u"The files can't be imported"_s, [](Try &attempt) {
                DayJournal &journal = attempt.journal;
                const QString meals = journal.folder.filePath(u"meals.csv"_s);
                const QString notes = journal.folder.filePath(u"notes.csv"_s);
                setFileBytes(meals, "Name,Category,Unit,kcal\nTyped,Made,g,1\n");
                setFileBytes(notes, "Date,Note\n2026-07-20,Typed\n2026-07-21,Typed\n");
                frmImport window(*journal.session, journal.messages);
                inDialog(
                    "frmImport", [&] { window.exec(); },
                    [&](QWidget &) {
                        window.read({meals, notes});
                        attempt.act([&] { press(window, "btnOK"); });
                        QCOMPARE(window.isVisible(), attempt.isRefused());
                        QCOMPARE(shown(window, "lvwFiles").size(), 2);
                    });
            }};
}

std::vector<Action> allActions()
{
    const Fields meal = {{"dcbMealCategory", u"Fruit"_s},
                         {"dcbMeal", u"Banana"_s},
                         {"dtpTime", u"07:05"_s},
                         {"txtQty", u"2.75"_s}};
    const Fields activity = {{"dcbExercise", u"Rowing"_s},
                             {"dtpBeginTime", u"07:05"_s},
                             {"dtpEndTime", u"08:00"_s},
                             {"txtQty", u"2.75"_s}};
    const auto body = [](const QString &date) {
        return Fields{{"dtpDate", date},
                      {"txtWeight", u"71"_s},
                      {"txtBreast", u"99"_s},
                      {"txtWaist", u"80"_s},
                      {"txtHips", u"90"_s}};
    };
    const Fields note = {{"dtpDateTo", u"2026-07-23"_s}, {"txtNote", u"Typed"_s}};
    const Fields newMeal = {
        {"dcbMealCategory", u"Fruit"_s}, {"txtName", u"Typed"_s}, {"txtUnit", u"g"_s},
        {"txtCalories", u"9"_s},         {"txtFat", u"1"_s},      {"txtCarboHydrate", u"1"_s},
        {"txtProtein", u"1"_s}};
    const Fields newActivity = {
        {"txtName", u"Typed"_s}, {"txtCaloriesConsume", u"9"_s}, {"txtUnit", u"lap"_s}};
    const Fields common = {{"txtWeight", u"80"_s}, {"cbxMeasurement", u"Imperial (lb, inch)"_s}};

    Action replaced =
        storing<frmBody>("replacing a measurement", journalRefusal, 0, body(u"2026-07-19"_s));
    replaced.mayBeGone = u"^Body: 5\\|"_s;
    return {
        storing<frmMealConsume>("a new meal eaten", journalRefusal, 0, meal),
        storing<frmMealConsume>("a meal eaten", journalRefusal, 5, meal),
        storing<frmExercisePerform>("a new activity performed", journalRefusal, 0, activity),
        storing<frmExercisePerform>("an activity performed", journalRefusal, 5, activity),
        storing<frmBody>("a new measurement", journalRefusal, 0, body(u"2026-07-20"_s)),
        storing<frmBody>("a measurement", journalRefusal, 5, body(u"2026-07-20"_s)),
        replaced,
        storing<frmUserNote>("a new note", journalRefusal, 0, note),
        storing<frmUserNote>("a note", journalRefusal, 5, note),
        storing<frmMealCategory>("a new category", catalogueRefusal(u"Meal Category"_s), 0,
                                 {{"txtName", u"Typed"_s}}),
        storing<frmMealCategory>("a category", catalogueRefusal(u"Meal Category"_s), 1,
                                 {{"txtName", u"Typed"_s}}),
        storing<frmMeal>("a new meal", catalogueRefusal(u"Meal"_s), 0, newMeal),
        storing<frmMeal>("a meal", catalogueRefusal(u"Meal"_s), 1, newMeal),
        storing<frmExercise>("a new activity", catalogueRefusal(u"Activity"_s), 0, newActivity),
        storing<frmExercise>("an activity", catalogueRefusal(u"Activity"_s), 1, newActivity),
        storing<frmCommon>("the parameters", u"Can't store information in database."_s, 0, common),
        deleting<frmMealConsumes>("deleting a meal eaten", journalDeletion),
        deleting<frmExercisePerforms>("deleting an activity performed", journalDeletion),
        deleting<frmMeasurements>("deleting a measurement", journalDeletion, "lvwMeasurementList",
                                  "btnMeasurementDelete"),
        deleting<frmMeasurements>("deleting a note", journalDeletion, "lvwNoteList",
                                  "btnNotetDelete"),
        deleting<frmMealCategories>("deleting a category", catalogueDeletion),
        deleting<frmMeals>("deleting a meal", catalogueDeletion),
        deleting<frmExercises>("deleting an activity", catalogueDeletion),
        quickAdding(),
        takingAStep("undo", "mnuUndo", u"Recounting can't be undone"_s),
        takingAStep("redo", "mnuRedo", u"Recounting can't be redone"_s),
        copyingADay(),
        copyingAnEntry(),
        deletingTrialData(),
        movingTheSample(),
        restoring(),
        importing(),
    };
}

QString causeOf(Fault fault, bool persists)
{
    if (fault == Fault::Busy)
        return u"Another program is using the database."_s;
    if (fault == Fault::Full)
        return u"The disk is full."_s;
    if (fault == Fault::InputOutput)
        return u"The disk reported an error."_s;
    return persists ? u"The disk reported an error at the very end: the change may have been "
                      "stored. Please look before you repeat it."_s
                    : QString();
}

QStringList carriedOut(const Action &action)
{
    const auto journal = journalToTry();
    Try undisturbed{*journal, Fault::Busy, 0, false};
    action.run(undisturbed);
    return numberless(stored(journal->path()));
}

// As a window would: nothing that the refused action left is in its way.
void storesTheNext(DayJournal &journal)
{
    Recordset &notes = journal.data->rsUserNote;
    notes.reopen({0});
    notes.addNew();
    notes.set(schema::UserNote::UserNoteID, NewUserNoteID(*journal.data));
    for (const auto &day : {schema::UserNote::DateFrom, schema::UserNote::DateTo})
        notes.set(day, 50000);
    notes.set(schema::UserNote::NoteText, u"Next"_s);
    notes.update();
    QVERIFY(!QFile::exists(journal.path() + u"-journal"_s));
    QVERIFY(stored(journal.path()).join(u'\n').contains(u"50000|Next"_s));
    journal.exec("delete from UserNote where NoteText = 'Next'");
}

// Whether the action was carried out; what was found afterwards is looked at either way.
bool isSurvivedBy(DayJournal &journal, const Action &action, Try &attempt)
{
    const QStringList before = stored(journal.path());
    action.run(attempt);
    const std::vector<RecordedMessages::Said> said = journal.messages.said;
    const auto refused = std::find_if(said.begin(), said.end(), [&](const auto &message) {
        return message.text == action.refusal;
    });
    [&] {
        QVERIFY(!journal.data->Con.isInTransaction());
        // One that can't be deleted while the fault persists is gone with the next store.
        QVERIFY(attempt.persists || !QFile::exists(journal.path() + u"-journal"_s));
        QStringList now = stored(journal.path());
        if (refused == said.end()) {
            QVERIFY(now != before);
            return;
        }
        QVERIFY(attempt.struck);
        QCOMPARE(refused->cause, causeOf(attempt.fault, attempt.persists));
        if (attempt.fault == Fault::Unsynchronized)
            return; // it may be there, as the message says
        QStringList whole = before;
        if (!action.mayBeGone.isEmpty()) {
            const QRegularExpression gone(action.mayBeGone);
            for (QStringList *rows : {&now, &whole})
                rows->removeIf([&](const QString &row) { return gone.match(row).hasMatch(); });
        }
        QCOMPARE(now, whole);
        storesTheNext(journal);
    }();
    return refused == said.end() || attempt.fault == Fault::Unsynchronized;
}

} // namespace

class tst_refusals : public QObject
{
    Q_OBJECT

private slots:
    void everyFaultOfEveryStore_data();
    void everyFaultOfEveryStore();
};

void tst_refusals::everyFaultOfEveryStore_data()
{
    QTest::addColumn<Action>("action");
    const int half = qEnvironmentVariableIntValue("CORVANA_TEST_HALF"); // 0: both
    int number = 0;
    for (const Action &action : allActions()) {
        if (half == 0 || ++number % 2 == half % 2)
            QTest::newRow(action.name) << action;
    }
}

void tst_refusals::everyFaultOfEveryStore()
{
    QFETCH(Action, action);
    struct
    {
        Fault fault;
        bool persists;
    } const kinds[] = {{Fault::Busy, true},           {Fault::Full, true},
                       {Fault::InputOutput, false},   {Fault::InputOutput, true},
                       {Fault::Unsynchronized, true}, {Fault::Unsynchronized, false}};
    const QStringList after = carriedOut(action);
    int refusals = 0;
    for (const auto &[fault, persists] : kinds) {
        auto journal = journalToTry();
        for (int n = 1;; ++n) {
            Try attempt{*journal, fault, n, persists};
            const QStringList before = stored(journal->path());
            const bool survived = isSurvivedBy(*journal, action, attempt);
            if (!attempt.afterKill.isEmpty() && attempt.afterKill != before)
                QCOMPARE(numberless(attempt.afterKill), after); // all of it, or nothing
            if (QTest::currentTestFailed()) {
                qWarning("fault %d, operation %d%s", int(fault), n, persists ? " and on" : "");
                return;
            }
            refusals += survived ? 0 : 1;
            if (!attempt.struck)
                break; // the action has fewer operations
            if (survived)
                journal = journalToTry();
        }
    }
    // An action that is never refused was never tried.
    QVERIFY2(refusals > 10, qPrintable(QString::number(refusals)));
    qInfo("refused %d times", refusals);
}

int main(int argc, char **argv)
{
    faultyfiles::install();
    QApplication application(argc, argv);
    tst_refusals test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_refusals.moc"
