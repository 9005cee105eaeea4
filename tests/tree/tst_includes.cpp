// The folders of src/ include only downwards: reads every #include and fails on an arrow that
// runs up, or into a folder that the plan below does not know. And no two headers declare types of
// one name.
#include <QDirIterator>
#include <QMap>
#include <QRegularExpression>
#include <QTest>

class tst_includes : public QObject
{
    Q_OBJECT
private slots:
    void everyIncludeRunsDown();
    void everyTypeHasANameOfItsOwn();
};

namespace {

/// Calls with the name, relative to src/, and the text of each file.
template<typename Call>
void forEachSource(const QStringList &patterns, Call call)
{
    const QDir root(CORVANA_SOURCES);
    QDirIterator entries(root.path(), patterns, QDir::Files, QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        QFile file(entries.next());
        QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(file.fileName()));
        call(root.relativeFilePath(file.fileName()), QString::fromUtf8(file.readAll()));
    }
}

} // namespace

void tst_includes::everyIncludeRunsDown()
{
    // What each folder may include besides itself.
    const QMap<QString, QString> plan{
        {"app",
         "about backup lock help exchange progress goals quickadd journal catalogue settings "
         "chart plot ui "
         "session data"},
        {"about", "backup exchange ui session data"},
        {"exchange", "catalogue settings ui session data"},
        {"backup", "goals ui session data"},
        {"lock", "backup ui session data"},
        {"progress", "plot goals settings ui session data"},
        {"quickadd", "journal catalogue ui session data"},
        {"journal", "catalogue settings ui session data"},
        {"catalogue", "settings ui session data"},
        {"goals", "settings ui session data"},
        {"settings", "ui session data"},
        {"ui", "session data"},
        {"session", "data"},
        {"data", ""},
        {"chart", "plot data"},
        {"plot", ""},
        {"help", "ui plot"},
    };
    const QRegularExpression include(R"re(^[ \t]*#[ \t]*include[ \t]*"([^"/]+)/[^"]*")re",
                                     QRegularExpression::MultilineOption);
    QStringList wrong;
    int arrows = 0;
    forEachSource({"*.cpp", "*.h"}, [&](const QString &name, const QString &text) {
        const QString folder = name.section('/', 0, 0);
        for (const auto &match : include.globalMatch(text)) {
            const QString to = match.captured(1);
            if (!plan.contains(folder) ||
                (to != folder && !plan.value(folder).split(' ').contains(to)))
                wrong << name + " includes from " + to;
            ++arrows;
        }
    });
    QVERIFY(arrows > 100);
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join('\n')));
}

void tst_includes::everyTypeHasANameOfItsOwn()
{
    // Those of a class's own begin further right.
    const QRegularExpression type(R"re(^(?:class|struct|enum class) (\w+)[^;{}]*\{)re",
                                  QRegularExpression::MultilineOption);
    QMap<QString, QString> homes;
    forEachSource({"*.h"}, [&](const QString &name, const QString &text) {
        for (const auto &match : type.globalMatch(text)) {
            const QString other = homes.value(match.captured(1));
            QVERIFY2(other.isEmpty(), qPrintable(match.captured(1) + ": " + other + ", " + name));
            homes.insert(match.captured(1), name);
        }
    });
    QVERIFY(homes.size() > 50);
}

QTEST_GUILESS_MAIN(tst_includes)
#include "tst_includes.moc"
