// The folders of src/ include only downwards: reads every #include and fails on an arrow that
// runs up, or into a folder that the plan below does not know.
#include <QDirIterator>
#include <QMap>
#include <QRegularExpression>
#include <QTest>

class TestIncludes : public QObject
{
    Q_OBJECT
private slots:
    void everyIncludeRunsDown();
};

void TestIncludes::everyIncludeRunsDown()
{
    // What each folder may include besides itself.
    const QMap<QString, QString> plan{
        {"app", "help progress journal catalogue settings chart ui session data"},
        {"progress", "chart settings ui session data"},
        {"journal", "catalogue settings ui session data"},
        {"catalogue", "settings ui session data"},
        {"settings", "ui session data"},
        {"ui", "help session data"},
        {"session", "data"},
        {"data", ""},
        {"chart", ""},
        {"help", ""},
    };
    const QRegularExpression include(R"re(^[ \t]*#[ \t]*include[ \t]*"([^"/]+)/[^"]*")re",
                                     QRegularExpression::MultilineOption);
    const QDir root(CORVANA_SOURCES);
    QStringList wrong;
    int arrows = 0;
    QDirIterator entries(root.path(), {"*.cpp", "*.h"}, QDir::Files, QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        QFile file(entries.next());
        QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(file.fileName()));
        const QString name = root.relativeFilePath(file.fileName());
        const QString folder = name.section('/', 0, 0);
        for (const auto &match : include.globalMatch(QString::fromUtf8(file.readAll()))) {
            const QString to = match.captured(1);
            if (!plan.contains(folder) ||
                (to != folder && !plan.value(folder).split(' ').contains(to)))
                wrong << name + " includes from " + to;
            ++arrows;
        }
    }
    QVERIFY(arrows > 100);
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join('\n')));
}

QTEST_GUILESS_MAIN(TestIncludes)
#include "tst_includes.moc"
