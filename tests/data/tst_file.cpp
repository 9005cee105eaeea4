// The file: encrypted, authenticated, opened only as what it is, and left as it was.
#include "testjournal.h"

#include <QTest>

#include <sqlite3.h>

namespace {

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("%s can't be written", qPrintable(path));
}

// Reads every row of every table; the engine checks each page as it comes in.
bool readsWhole(const QString &path)
{
    try {
        Connection connection(path);
        SQLite::Statement check(connection.database(), "PRAGMA integrity_check");
        return check.executeStep() && check.getColumn(0).getString() == "ok";
    } catch (const std::exception &) {
        return false;
    }
}

constexpr int pageSize = 4096;

} // namespace

class tst_file : public QObject
{
    Q_OBJECT

private slots:
    void holdsNoReadableText();
    void opensWithItsPasswordAlone();
    void everyFlippedByteIsNoticed();
    void pagesCanNotBeSwapped();
    void otherFilesAreRefusedUnchanged_data();
    void otherFilesAreRefusedUnchanged();
    void openingChangesNothing();
    void createLeavesAnExistingFileAlone();
    void commonKeepsItsOneRow();
};

void tst_file::holdsNoReadableText()
{
    TestJournal journal;
    journal.exec("insert into MealCategory (Name) values ('Conspicuous')");
    const QByteArray bytes = contents(journal.path());
    for (const char *text : {"SQLite", "CREATE TABLE", "MealCategory", "Conspicuous", "qmvzr271"})
        QVERIFY2(!bytes.contains(text), text);
    // Noise: no byte value is much more frequent than another.
    std::array<int, 256> counts{};
    for (const char byte : bytes)
        ++counts[static_cast<unsigned char>(byte)];
    const double even = double(bytes.size()) / 256;
    for (const int count : counts)
        QVERIFY2(count > even / 2 && count < even * 2, qPrintable(QString::number(count)));
}

void tst_file::opensWithItsPasswordAlone()
{
    TestJournal journal;
    const auto rowsWith = [&](const char *key) {
        SQLite::Database database(journal.path().toStdString(), SQLite::OPEN_READONLY);
        database.exec(key);
        return SQLite::Statement(database, "select count(*) from Common").executeStep();
    };
    // How other tools open it.
    QVERIFY(rowsWith("PRAGMA cipher='sqlcipher'; PRAGMA legacy=3; PRAGMA legacy_page_size=4096;"
                     "PRAGMA kdf_iter=1; PRAGMA key='qmvzr271'"));
    for (const char *key :
         {"select 1",
          "PRAGMA cipher='sqlcipher'; PRAGMA legacy=3;"
          "PRAGMA legacy_page_size=4096; PRAGMA kdf_iter=1; PRAGMA key='qmvzr272'",
          "PRAGMA key='qmvzr271'"})
        QVERIFY_THROWS_EXCEPTION(SQLite::Exception, rowsWith(key));
}

void tst_file::everyFlippedByteIsNoticed()
{
    TestJournal journal;
    journal.exec("insert into MealCategory (Name) values ('a'), ('b')");
    journal.data.reset();
    const QByteArray whole = contents(journal.path());
    const auto pages = whole.size() / pageSize;
    QVERIFY(pages > 10);
    QVERIFY(readsWhole(journal.path()));
    for (qsizetype page = 0; page < pages; ++page) {
        // In the first bytes (of page 1: the salt), in the data, and in the page's own code. Only
        // the last twelve bytes of a page are padding, which nothing depends on.
        for (const int offset : {0, 15, 16, 17, 2000, pageSize - 40, pageSize - 13}) {
            QByteArray damaged = whole;
            damaged[page * pageSize + offset] =
                static_cast<char>(damaged[page * pageSize + offset] ^ 0x10);
            write(journal.path(), damaged);
            QVERIFY2(!readsWhole(journal.path()),
                     qPrintable(QStringLiteral("page %1, byte %2").arg(page + 1).arg(offset)));
        }
    }
    write(journal.path(), whole);
    QVERIFY(readsWhole(journal.path()));
}

void tst_file::pagesCanNotBeSwapped()
{
    TestJournal journal;
    journal.data.reset();
    QByteArray bytes = contents(journal.path());
    const QByteArray second = bytes.mid(pageSize, pageSize);
    bytes.replace(pageSize, pageSize, bytes.mid(2 * pageSize, pageSize));
    bytes.replace(2 * pageSize, pageSize, second);
    write(journal.path(), bytes);
    QVERIFY(!readsWhole(journal.path()));
}

void tst_file::otherFilesAreRefusedUnchanged_data()
{
    QTest::addColumn<QByteArray>("bytes");

    TestJournal journal;
    journal.exec("drop index MealByCategory");
    const auto variant = [&](const char *change) {
        const QString path = journal.folder.filePath(u"other.mdb"_qs);
        QFile::remove(path);
        QFile::copy(journal.path(), path);
        Connection(path).exec(change);
        return contents(path);
    };
    const QByteArray whole = contents(journal.path());
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("one byte") << QByteArray("x");
    QTest::newRow("cut in a page") << whole.left(3 * pageSize + 100);
    QTest::newRow("first page alone") << whole.left(pageSize);
    QTest::newRow("garbage") << QByteArray(20 * pageSize, '\x5a');
    QTest::newRow("text") << QByteArray("Dear diary,\n");
    QTest::newRow("a table is missing") << variant("drop table UserNote");
    QTest::newRow("a column is missing") << variant("alter table Body drop column Hips");
    QTest::newRow("Common is empty")
        << variant("drop trigger CommonKeepsItsRow; delete from Common");
    QTest::newRow("Common has two rows")
        << variant("drop index CommonHasOneRow; insert into Common select * from Common");

    const QString plainPath = journal.folder.filePath(u"plain.mdb"_qs);
    SQLite::Database plain(plainPath.toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
    plain.exec("create table Common (weight)");
    QTest::newRow("a plain database") << contents(plainPath);
}

void tst_file::otherFilesAreRefusedUnchanged()
{
    QFETCH(QByteArray, bytes);
    QTemporaryDir folder;
    const QString path = folder.filePath(u"Corvana.mdb"_qs);
    write(path, bytes);
    QVERIFY_THROWS_EXCEPTION(StoreError, Connection connection(path));
    QCOMPARE(contents(path), bytes);
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList{u"Corvana.mdb"_qs});
    QVERIFY_THROWS_EXCEPTION(StoreError, Connection connection(folder.filePath(u"missing"_qs)));
    QVERIFY_THROWS_EXCEPTION(StoreError, Connection connection(folder.path()));
}

void tst_file::openingChangesNothing()
{
    TestJournal journal;
    journal.data.reset();
    const QByteArray before = contents(journal.path());
    deData(journal.path()).rsCommon.open();
    QCOMPARE(contents(journal.path()), before);
    QCOMPARE(QDir(journal.folder.path()).entryList(QDir::Files), QStringList{u"Corvana.mdb"_qs});
}

void tst_file::createLeavesAnExistingFileAlone()
{
    TestJournal journal;
    const QByteArray before = contents(journal.path());
    QVERIFY_THROWS_EXCEPTION(StoreError, Connection::create(journal.path()));
    QCOMPARE(contents(journal.path()), before);
}

void tst_file::commonKeepsItsOneRow()
{
    TestJournal journal;
    QVERIFY_THROWS_EXCEPTION(StoreError, journal.exec("delete from Common"));
    QVERIFY_THROWS_EXCEPTION(StoreError, journal.exec("insert into Common select * from Common"));
    QCOMPARE(journal.row("select count(*) from Common"), u"1"_qs);
}

QTEST_APPLESS_MAIN(tst_file)
#include "tst_file.moc"
