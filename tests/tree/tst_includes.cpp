// The folders of src/ include only downwards: reads every #include and fails on an arrow that
// runs up, or into a folder that the plan below does not know.
#include <QDirIterator>
#include <QMap>
#include <QRegularExpression>
#include <QTest>

namespace {

/// What each folder may include besides itself.
const QMap<QString, QStringList> &plan()
{
    static const QStringList windows{"ui", "session", "data"};
    static const QMap<QString, QStringList> folders{
        {"app",
         QStringList{"help", "progress", "journal", "catalogue", "settings", "chart"} + windows},
        {"progress", QStringList{"chart", "settings"} + windows},
        {"journal", QStringList{"catalogue", "settings"} + windows},
        {"catalogue", QStringList{"settings"} + windows},
        {"settings", windows},
        {"ui", {"help", "session", "data"}},
        {"session", {"data"}},
        {"data", {}},
        {"chart", {}},
        {"help", {}},
    };
    return folders;
}

bool mayInclude(const QString &from, const QString &to)
{
    return plan().contains(from) && (from == to || plan().value(from).contains(to));
}

/// The folders that a source text includes from: `data` of `#include "data/currency.h"`.
QStringList includedFolders(const QString &source)
{
    static const QRegularExpression line(R"re(^[ \t]*#[ \t]*include[ \t]*"([^"/]+)/[^"]*")re",
                                         QRegularExpression::MultilineOption);
    QStringList folders;
    for (const QRegularExpressionMatch &match : line.globalMatch(source))
        folders << match.captured(1);
    return folders;
}

} // namespace

class TestIncludes : public QObject
{
    Q_OBJECT
private slots:
    void rule_data();
    void rule();
    void readsIncludes();
    void everyIncludeRunsDown();
};

void TestIncludes::rule_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");
    QTest::addColumn<bool>("allowed");

    QTest::newRow("down") << "app"
                          << "chart" << true;
    QTest::newRow("two floors down") << "journal"
                                     << "data" << true;
    QTest::newRow("itself") << "chart"
                            << "chart" << true;
    QTest::newRow("up") << "data"
                        << "session" << false;
    QTest::newRow("to the top") << "ui"
                                << "app" << false;
    QTest::newRow("between neighbours, as planned") << "journal"
                                                    << "catalogue" << true;
    QTest::newRow("between neighbours, backwards") << "catalogue"
                                                   << "journal" << false;
    QTest::newRow("into a folder that is not planned") << "app"
                                                       << "util" << false;
    QTest::newRow("from a folder that is not planned") << "util"
                                                       << "util" << false;
}

void TestIncludes::rule()
{
    QFETCH(QString, from);
    QFETCH(QString, to);
    QTEST(mayInclude(from, to), "allowed");
}

void TestIncludes::readsIncludes()
{
    const QString source = "#include \"data/currency.h\"\n"
                           "#include <QString>\n"
                           "#include \"numbers.h\"\n"
                           "// #include \"app/frmMain.h\"\n"
                           "  #  include \"ui/icons.h\"\n";
    QCOMPARE(includedFolders(source), QStringList({"data", "ui"}));
}

void TestIncludes::everyIncludeRunsDown()
{
    const QDir root(CORVANA_SOURCES);
    QStringList wrong;
    int files = 0;
    QDirIterator entries(root.path(), {"*.cpp", "*.h"}, QDir::Files, QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        QFile file(entries.next());
        QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(file.fileName()));
        const QString name = root.relativeFilePath(file.fileName());
        for (const QString &to : includedFolders(QString::fromUtf8(file.readAll()))) {
            if (!mayInclude(name.section('/', 0, 0), to))
                wrong << name + " includes from " + to;
        }
        ++files;
    }
    QVERIFY(files > 0);
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join('\n')));
}

QTEST_GUILESS_MAIN(TestIncludes)
#include "tst_includes.moc"
