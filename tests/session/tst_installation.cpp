// Where the program's folder is, and how a user comes to one.
#include "session/installation.h"
#include "testjournal.h"

#include <QTest>

#include <algorithm>
#include <array>
#include <barrier>
#include <thread>

using namespace Qt::Literals;

namespace {

// A system into which the program is installed by packages, and a user without a program folder.
struct TestSystem
{
    TestSystem()
    {
        for (const auto &name : {u"usr/bin"_s, u"usr/share/corvana"_s, u"home"_s})
            QDir(root.path()).mkpath(name);
        setFileBytes(delivered, QByteArray(300'000, 'd'));
        qputenv("XDG_DATA_HOME", at(u"home/.local/share"_s).toLocal8Bit());
    }
    QString at(const QString &name) const { return root.filePath(name); }
    Installation installation() const { return Installation::ofExecutableIn(at(u"usr/bin"_s)); }

    QTemporaryDir root;
    QString delivered = at(u"usr/share/corvana/Corvana.mdb"_s);
    QString folder = at(u"home/.local/share/Corvana"_s);
    QString journal = folder + u"/Corvana.mdb"_s;
};

} // namespace

class tst_installation : public QObject
{
    Q_OBJECT

private slots:
    void isAFolderOrOfTheSystem()
    {
        const TestSystem system;
        Installation found = system.installation();
        QVERIFY(found.isOfSystem());
        QCOMPARE(found.databasePath(), system.journal);
        QCOMPARE(found.settingsPath(), system.folder + u"/Corvana.ini"_s);
        QCOMPARE(found.helpPath(), system.at(u"usr/share/corvana/Corvana.hlp"_s));
        // A path that depends on where the program was started is none.
        qputenv("XDG_DATA_HOME", "data");
        QCOMPARE(system.installation().folder(), QDir::homePath() + u"/.local/share/Corvana"_s);

        // The journal beside it decides; without one there is nothing but the folder to look in.
        const auto verifyFolder = [&](const QString &folder) {
            found = Installation::ofExecutableIn(folder);
            found.provide();
            QVERIFY(!found.isOfSystem());
            QCOMPARE(found.databasePath(), folder + u"/Corvana.mdb"_s);
            QCOMPARE(found.helpPath(), folder + u"/Corvana.hlp"_s);
        };
        setFileBytes(system.at(u"usr/bin/Corvana.mdb"_s), "u");
        verifyFolder(system.at(u"usr/bin"_s));
        verifyFolder(system.at(u"home"_s));
        QVERIFY(!QFile::exists(system.at(u"home/Corvana.mdb"_s)));
    }

    void aUserIsProvidedForOnce()
    {
        const TestSystem system;
        const QDir folder(system.folder);
        system.installation().provide();
        QCOMPARE(fileBytes(system.journal), fileBytes(system.delivered));
        QCOMPARE(folder.entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
                 QStringList{u"Corvana.mdb"_s});
#ifdef Q_OS_UNIX
        constexpr auto others = QFile::ReadGroup | QFile::ExeGroup | QFile::ReadOther;
        QCOMPARE(QFile::permissions(system.folder) & others, QFile::Permissions());
#endif
        // Neither a newer package nor the loss of the journal brings another one.
        setFileBytes(system.delivered, "newer");
        system.installation().provide();
        QCOMPARE(fileBytes(system.journal).size(), 300'000);
        for (const auto &left : {u"Corvana.ini"_s, u"Corvana.mdb-journal"_s}) {
            QVERIFY(QFile::remove(system.journal));
            setFileBytes(folder.filePath(left), "x");
            system.installation().provide();
            QVERIFY(!QFile::exists(system.journal));
            QVERIFY(QFile::rename(folder.filePath(left), system.journal));
        }
    }

    // Each stores something as soon as it has been provided for.
    void startsAtOnceReplaceNothing()
    {
        for (int round = 0; round < 4; ++round) {
            const TestSystem system;
            std::barrier together(4);
            const auto start = [&] {
                together.arrive_and_wait();
                system.installation().provide();
                QFile journal(system.journal);
                QVERIFY(journal.open(QIODevice::WriteOnly | QIODevice::Append));
                QCOMPARE(journal.write("s"), 1);
            };
            std::array<std::thread, 4> starts;
            std::generate(starts.begin(), starts.end(), [&] { return std::thread(start); });
            for (std::thread &each : starts)
                each.join();
            QCOMPARE(fileBytes(system.journal).size(), 300'004);
        }
    }

    void saysWhatKeepsAUserWithout()
    {
        const TestSystem system;
        const auto verifyRefused = [&](const QString &said) {
            try {
                system.installation().provide();
                QFAIL("it was provided");
            } catch (const std::runtime_error &error) {
                QVERIFY2(QString::fromUtf8(error.what()).contains(said), error.what());
            }
            QVERIFY(!QFile::exists(system.journal));
        };
        setFileBytes(system.at(u"home/.local"_s), "a file");
        verifyRefused(QDir::toNativeSeparators(system.folder));
        QVERIFY(QFile::remove(system.at(u"home/.local"_s)));
        QVERIFY(QFile::remove(system.delivered));
        verifyRefused(QDir::toNativeSeparators(system.delivered));
    }
};

QTEST_GUILESS_MAIN(tst_installation)
#include "tst_installation.moc"
