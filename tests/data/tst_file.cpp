// The file: encrypted and authenticated.
#include "testjournal.h"

#include <QTest>

namespace {

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

constexpr qsizetype pageSize = 4096;

} // namespace

class tst_file : public QObject
{
    Q_OBJECT

private slots:
    void isReadableWithItsPasswordAlone()
    {
        TestJournal journal;
        journal.exec("insert into MealCategory (Name) values ('Conspicuous')");
        const QByteArray bytes = fileBytes(journal.path());
        for (const char *text : {"SQLite", "CREATE TABLE", "Conspicuous", "qmvzr271"})
            QVERIFY2(!bytes.contains(text), text);
        const auto rowsWith = [&](const std::string &key) {
            SQLite::Database database(journal.path().toStdString(), SQLite::OPEN_READONLY);
            database.exec(key);
            return SQLite::Statement(database, "select count(*) from Common").executeStep();
        };
        // How other tools open it.
        const std::string cipher = "PRAGMA cipher='sqlcipher'; PRAGMA legacy=3;"
                                   "PRAGMA legacy_page_size=4096; PRAGMA kdf_iter=1;";
        QVERIFY(rowsWith(cipher + "PRAGMA key='qmvzr271'"));
        QVERIFY_THROWS_EXCEPTION(SQLite::Exception, rowsWith(cipher + "PRAGMA key='qmvzr272'"));
        QVERIFY_THROWS_EXCEPTION(SQLite::Exception, rowsWith("PRAGMA key='qmvzr271'"));
        QVERIFY_THROWS_EXCEPTION(SQLite::Exception, rowsWith("select 1"));
    }

    void liesInAnyFolder()
    {
        const QTemporaryDir temporary;
        QString folder = temporary.path();
        // Longer than the 260 letters that Windows takes unasked, the journal's name included.
        while (folder.size() < 300)
            folder += QStringLiteral(u"/Größe & Maß's 日记 100% #1");
        QVERIFY(QDir().mkpath(folder));
        const QString path = folder + QStringLiteral("/Corvana.mdb");
        makeEmptyJournal(path);
        deData data(path);
        data.Con.exec("begin immediate; insert into MealCategory (Name) values ('Stored')");
        QVERIFY(QFile::exists(path + QStringLiteral("-journal")));
        data.Con.exec("commit");
        QCOMPARE(queryRows(data.Con, "select Name from MealCategory"), QStringList("Stored"));
        QCOMPARE(QDir(folder).entryList(QDir::Files), QStringList("Corvana.mdb"));
    }

    void damageIsNoticed()
    {
        TestJournal journal;
        journal.data.reset();
        const QByteArray whole = fileBytes(journal.path());
        QVERIFY(readsWhole(journal.path()));
        const auto page = [&](qsizetype number) { return whole.mid(number * pageSize, pageSize); };
        for (qsizetype start = 0; start < whole.size(); start += pageSize) {
            QByteArray damaged = whole;
            damaged[start + 2000] = char(damaged[start + 2000] ^ 0x10);
            setFileBytes(journal.path(), damaged);
            QVERIFY2(!readsWhole(journal.path()), qPrintable(QString::number(start)));
        }
        // Two whole pages that changed places.
        setFileBytes(journal.path(), page(0) + page(2) + page(1) + whole.mid(3 * pageSize));
        QVERIFY(!readsWhole(journal.path()));
    }
};

QTEST_APPLESS_MAIN(tst_file)
#include "tst_file.moc"
