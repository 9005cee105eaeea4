// The About window: what it tells of the journal, and that no licence is left out.
#include "about/frmAbout.h"
#include "backup/backupsettings.h"
#include "dayjournal.h"
#include "guitest.h"

#include <QClipboard>
#include <QLabel>
#include <QPlainTextEdit>
#include <QTreeView>

using namespace Qt::Literals;

class tst_about : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void everyNoticeIsShown();
    void tellsOfTheJournal();

private:
    std::unique_ptr<DayJournal> journal;
};

void tst_about::init()
{
    journal = std::make_unique<DayJournal>();
}

void tst_about::everyNoticeIsShown()
{
    QWidget parent;
    frmAbout window(*journal->session, &parent);
    auto &list = control<QTreeView>(window, "lvwComponents");
    auto &licence = control<QPlainTextEdit>(window, "txtLicence");
    QString shown;
    for (int row = 0; row < list.model()->rowCount(); ++row) {
        list.setCurrentIndex(list.model()->index(row, 0));
        const QString name = list.model()->index(row, 0).data().toString();
        QVERIFY2(!list.model()->index(row, 1).data().toString().isEmpty() || row == 0,
                 qPrintable(name));
        const QString text = licence.toPlainText();
        QVERIFY2(text.contains(u"copyright"_s, Qt::CaseInsensitive), qPrintable(name));
        shown += text + u'\n';
    }
    QFile notices(u":/licences/copyright"_s);
    QVERIFY(notices.open(QIODevice::ReadOnly));
    int files = 0;
    for (const QString &line : QString::fromUtf8(notices.readAll()).split(u'\n'))
        if (line.startsWith(u"Files: "_s) && line != u"Files: *"_s) {
            QCOMPARE(shown.count(line.sliced(7) + u'\n'), 1);
            ++files;
        }
    QVERIFY(files > 5);
    for (const char *words : {"GNU LESSER GENERAL PUBLIC LICENSE\n                       Version 3",
                              "Version 2.1, February 1999", "GNU GENERAL PUBLIC LICENSE",
                              "The authors of SQLite disclaim copyright"})
        QVERIFY2(shown.contains(QLatin1String(words)), words);
    QVERIFY(shown.count(u"\"Software\"), to deal"_s) >= 4);
}

void tst_about::tellsOfTheJournal()
{
    QWidget parent;
    const QString path = journal->session->data().Con.path();
    Installation installation = installationOf(journal->session->data().Con);
    const auto textOf = [&](const char *label) {
        frmAbout window(*journal->session, &parent);
        control<QPushButton>(window, "btnCopy").click();
        return control<QLabel>(window, label).text();
    };
    QCOMPARE(textOf("lblJournal"), QDir::toNativeSeparators(path));
    QVERIFY(QApplication::clipboard()->text().contains(QDir::toNativeSeparators(path)));
    QCOMPARE(textOf("lblBackup"), u"None so far"_s);
    keepBackupState(installation, {QDateTime({2026, 7, 1}, {8, 5}), {}});
    QCOMPARE(textOf("lblBackup"), u"1 Jul 2026, 08:05"_s);
    const auto kilobytes = QFileInfo(path).size() / 1024;
    QVERIFY2(textOf("lblSize").startsWith(QString::number(kilobytes)),
             qPrintable(textOf("lblSize")));
}

QTEST_MAIN(tst_about)
#include "tst_about.moc"
