// The check of a journal finds each fault that is planted once, and nothing else.
#include "exchange/journalcheck.h"
#include "faultyfiles.h"
#include "testjournal.h"

#include <QTest>

using namespace Qt::Literals;

namespace {

const LocaleText text(QLocale(u"en_GB"_qs));

/// "2026-07-22|Meals consumed: Bread|The quantity is negative: -2."
QStringList findingsOf(deData &data)
{
    QStringList lines;
    for (const CheckFinding &finding : checkJournal(data.Con, text).findings)
        lines +=
            QStringList{finding.day.toString(Qt::ISODate), finding.record, finding.what}.join(u'|');
    return lines;
}

/// A sound journal with a record or two of everything.
class SoundJournal : public TestJournal
{
public:
    SoundJournal()
    {
        exec(
            "insert into MealCategory (Name) values ('Food');"
            "insert into Meal values (1, 1, 'Bread', 'slice', 1, Null, 90, 1, 18, 3, 9, 70, 11);"
            "insert into Exercise values (1, 'Walk', 'min', 30, 4, 4, 0);"
            "insert into MealConsume values (1, 1, 46225, 0, 1), (-2, 1, 46225, 0, 0);"
            "insert into ExercisePerform values (1, 1, 46225, 0.5, 0.75, 1),"
            " (-1, 1, 46225, 0.5, 0.75, 1);"
            "insert into Body values (1, 46225, 70, 0, 80, 95, 'M'), (-9, 46226, 70, 1, 1, 1, 'I');"
            "insert into UserNote values (1, 46220, 46224, 'a'), (-7, 46225, 46225, 'b'),"
            " (-8, 46226, 46300, 'c')");
    }
};

} // namespace

class tst_journalcheck : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { faultyfiles::install(); }
    void deliveredJournalIsSound();
    void eachFaultIsFoundOnce_data();
    void eachFaultIsFoundOnce();
    void damagedPages();
    void manyFindingsAreCounted();
    void busyFileIsNoFinding();
};

void tst_journalcheck::deliveredJournalIsSound()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"Corvana.mdb"_qs);
    QVERIFY(QFile::copy(QStringLiteral(CORVANA_DELIVERED_DATABASE), path));
    deData data(path);
    double last = 0;
    const CheckReport report = checkJournal(data.Con, text, [&](double share) {
        QVERIFY(share > last && share <= 1);
        last = share;
    });
    QCOMPARE(last, 1.0);
    QVERIFY2(report.isSound(), qPrintable(findingsOf(data).join(u'\n')));
    QCOMPARE(report.checked.size(), 5);
    const QStringList counts = queryRows(
        data.Con, "select (select count(*) from MealCategory) + (select count(*) from Meal)"
                  " + (select count(*) from Exercise) + (select count(*) from MealConsume)"
                  " + (select count(*) from ExercisePerform) + (select count(*) from Body)"
                  " + (select count(*) from UserNote) + 1");
    QVERIFY(report.checked[2].contains(counts.first() + u" records"_qs));
    QVERIFY(!data.Con.isInTransaction());
}

void tst_journalcheck::eachFaultIsFoundOnce_data()
{
    QTest::addColumn<QString>("finding");
    const auto plant = [](const char *sql, const char *finding) {
        QTest::newRow(sql) << QString::fromUtf8(finding);
    };
    plant("select 1", "");
    plant("update MealConsume set MealID = 9 where MealConsumeID = 1",
          "2026-07-22|Meals consumed: record 1|Its meal does not exist.");
    plant("update ExercisePerform set ExerciseID = 9 where ExercisePerformID = 1",
          "2026-07-22|Activities performed: record 1|Its activity does not exist.");
    plant("update Meal set MealCategoryID = 9", "|Meals: Bread|Its meal category does not exist.");
    plant("update MealConsume set ConsumeTime = 1 where MealConsumeID = 1",
          "2026-07-22|Meals consumed: Bread|The time is outside the day: 1 of a day.");
    plant("update MealConsume set ConsumeTime = 'noon' where MealConsumeID = 1",
          "2026-07-22|Meals consumed: Bread|The time is no number: noon.");
    plant("update MealConsume set Qty = x'00' where MealConsumeID = 1",
          "2026-07-22|Meals consumed: Bread|The quantity is no number: binary data.");
    plant("update MealConsume set Qty = -2 where MealConsumeID = 1",
          "2026-07-22|Meals consumed: Bread|The quantity is negative: -2.");
    plant("update MealConsume set Qty = 9e999 where MealConsumeID = 1",
          "2026-07-22|Meals consumed: Bread|The quantity is out of range: inf.");
    plant("update MealConsume set ConsumeDate = 46225.5 where MealConsumeID = 1",
          "|Meals consumed: Bread|The date is no day: 46225.5.");
    plant("update MealConsume set ConsumeDate = -53799 where MealConsumeID = 1",
          "|Meals consumed: Bread|The date is no day: -53799.");
    plant("update MealConsume set MealConsumeID = 2147483648 where MealConsumeID = 1",
          "2026-07-22|Meals consumed: Bread|Its identifier is out of range: 2147483648.");
    plant("update MealConsume set MealConsumeID = 2 where MealConsumeID = 1",
          "|Common parameters|The counter NextMealConsumeID is at 1, but there is a record 2:"
          " new records may be refused.");
    plant("update ExercisePerform set timeEnd = 0.5 where ExercisePerformID = 1",
          "2026-07-22|Activities performed: Walk|It does not end after it begins.");
    plant("insert into Body values (-1, 46225, 1, 1, 1, 1, 'M'), (-2, 46225, 1, 1, 1, 1, 'M')",
          "2026-07-22|Body measurements: record -1|There are several measurements on this day.");
    plant("update Body set Measurement = 'm' where BodyID = 1",
          "2026-07-22|Body measurements: record 1|The unit system is neither M nor I: m.");
    plant("update UserNote set DateTo = 46225 where UserNoteID = 1",
          "2026-07-22|Notes: b|It shares days with a note before it.");
    plant("insert into UserNote values (-11, 46200, 46219, 'long'), (-12, 46201, 46202, 'd'),"
          " (-13, 46210, 46210, 'e')",
          "2026-06-28|Notes: d|It shares days with a note before it.\n"
          "2026-07-07|Notes: e|It shares days with a note before it.");
    plant("update UserNote set DateTo = 46219 where UserNoteID = 1",
          "2026-07-17|Notes: a|It ends before it begins.");
    plant("update UserNote set NoteText = x'41' where UserNoteID = 1",
          "2026-07-17|Notes: record 1|The text is no text: binary data.");
    plant("update Meal set ProteinBC = -0.5",
          "|Meals: Bread|The number of calories from protein is negative: -0.5.");
    plant("update Common set metabolicRate = -1",
          "|Common parameters|The background burn is negative: -1.");
    plant("PRAGMA writable_schema = ON; update sqlite_schema set sql = replace(sql, 'Qty REAL NOT "
          "NULL', 'Qty REAL') where name = 'MealConsume'; PRAGMA writable_schema = RESET;"
          "update MealConsume set Qty = Null where MealConsumeID = 1;"
          "PRAGMA writable_schema = ON; update sqlite_schema set sql = replace(sql, 'Qty REAL',"
          " 'Qty REAL NOT NULL') where name = 'MealConsume'; PRAGMA writable_schema = RESET",
          "|The file|The file is damaged: NULL value in MealConsume.Qty");
}

void tst_journalcheck::eachFaultIsFoundOnce()
{
    SoundJournal journal;
    journal.exec("PRAGMA foreign_keys = OFF");
    journal.exec(QTest::currentDataTag());
    const QString before = journal.row("select count(*), total_changes() from MealConsume");
    QFETCH(const QString, finding);
    QCOMPARE(findingsOf(*journal.data).join(u'\n'), finding);
    QCOMPARE(journal.row("select count(*), total_changes() from MealConsume"), before);
    QVERIFY(!journal.data->Con.isInTransaction());
}

// Everything else is checked all the same.
void tst_journalcheck::damagedPages()
{
    for (const char *damaged : {"MealConsume", "Body", "UserNote", "Meal", "Exercise",
                                "UserNoteByFirstDate", "sqlite_autoindex_MealCategory_1"}) {
        SoundJournal journal;
        const bool isBody = qstrcmp(damaged, "Body") == 0;
        journal.exec(isBody ? "update UserNote set DateTo = 0 where UserNoteID = 1"
                            : "update Body set Weight = -1 where BodyID = 1");
        journal.damagePageOf(damaged);
        const QStringList findings = findingsOf(*journal.data);
        QVERIFY2(findings.first().startsWith(u"|The file|The file is damaged"_qs), damaged);
        const qsizetype unread = findings.filter(u"could not be checked"_qs).size();
        const bool isAskedFor = !QByteArray(damaged).startsWith("sqlite_"); // by its table's check
        QVERIFY2(unread >= (isAskedFor ? 1 : 0) && unread <= 4, qPrintable(findings.join(u'\n')));
        QCOMPARE(findings.filter(isBody ? u"ends before"_qs : u"The weight is negative"_qs).size(),
                 1);
        QVERIFY(!journal.data->Con.isInTransaction());
    }
}

void tst_journalcheck::manyFindingsAreCounted()
{
    SoundJournal journal;
    journal.exec("update MealConsume set Qty = 1;"
                 "with recursive n(i) as (select 10 union all select i + 1 from n where i < 1299)"
                 " insert into MealConsume select -i, 1, 46225, 0.5, -1 from n");
    const QStringList findings = findingsOf(*journal.data);
    QCOMPARE(size_t(findings.size()), mostFindings + 1);
    QCOMPARE(findings.last(), u"|Meals consumed|There are more findings like these: 290."_qs);
}

void tst_journalcheck::busyFileIsNoFinding()
{
    SoundJournal journal;
    faultyfiles::arm(faultyfiles::Fault::Busy, 1, true);
    bool isRefused = false;
    try {
        checkJournal(journal.data->Con, text);
    } catch (const StoreError &error) {
        isRefused = error.kind() == StoreError::Kind::Busy;
    }
    QVERIFY(faultyfiles::disarm() && isRefused);
    QVERIFY(!journal.data->Con.isInTransaction());
}

QTEST_GUILESS_MAIN(tst_journalcheck)
#include "tst_journalcheck.moc"
