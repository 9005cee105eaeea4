// What the Journal menu does with backups, as a person works it.
#include "backup/backupplace.h"
#include "backup/backupsettings.h"
#include "backup/makebackup.h"
#include "backupsamples.h"
#include "goals/goals.h"
#include "mainwindowtest.h"

#include <QFileDialog>
#include <QLabel>
#include <QListWidget>

using namespace Qt::Literals;

class tst_backupwindows : public MainWindowTest
{
    Q_OBJECT

private slots:
    void init()
    {
        open("insert into MealConsume values (-1, 3, 46224, 0.5, 1), (1, 3, 46225, 0.5, 1)",
             QLocale(QLocale::German, QLocale::Germany));
    }
    void backsUpIntoAChosenFolder();
    void restoresAndTakesItBack();
    void tellsWhyItCantRestore();

private:
    QString folder(const QString &name) { return m_journal->folder.filePath(name); }
};

namespace {

void chooseInFileDialog(QWidget &dialog, const QString &path)
{
    control<QLineEdit>(dialog, "fileNameEdit").setText(path);
    static_cast<QFileDialog &>(dialog).QDialog::accept();
}

} // namespace

void tst_backupwindows::backsUpIntoAChosenFolder()
{
    const QString place = folder(u"Größe"_s);
    QVERIFY(QDir().mkpath(place));
    const auto choose = [&](QWidget &dialog) { chooseInFileDialog(dialog, place); };
    inWindow("mnuBackUp", "dlgBackupPlace", choose);
    const std::vector<Backup> backups = backupsIn(place);
    QCOMPARE(backups.size(), size_t(1));
    QCOMPARE(backups.front().time, QDateTime(QDate(2026, 7, 22), QTime(12, 30, 45)));
    QCOMPARE(contentsOf(backups.front().folder), contentsOf(m_journal->data->Con));
    QCOMPARE(m_journal->messages.said.front().icon, Messages::Icon::Information);
    QVERIFY(
        m_journal->messages.takeText().contains(QDir::toNativeSeparators(backups.front().folder)));
    // The same folder is offered the next time.
    QString offered;
    inWindow("mnuBackUp", "dlgBackupPlace", [&](QWidget &dialog) {
        offered = static_cast<QFileDialog &>(dialog).directory().path();
    });
    QCOMPARE(offered, place);
    QVERIFY(m_journal->messages.said.empty()); // nothing was chosen

    m_journal->exec("begin exclusive");
    inWindow("mnuBackUp", "dlgBackupPlace", choose);
    m_journal->exec("rollback");
    QCOMPARE(m_journal->messages.said.front().cause, u"Another program is using the database."_s);
    QCOMPARE(m_journal->messages.takeText(), u"The journal can't be backed up"_s);
    QCOMPARE(backupsIn(place).size(), size_t(1));
}

void tst_backupwindows::restoresAndTakesItBack()
{
    const QString place = usualBackupPlace(installationOf(m_journal->data->Con));
    const QDateTime today = m_journal->clock.now();
    m_journal->clock.setNow(today.addDays(-8));
    Installation installation = installationOf(m_journal->data->Con);
    const Goals goals = {65.5, {}, true, {}, {}};
    keepGoals(installation, goals);
    makeBackup(m_journal->path(), place, m_journal->clock.now());
    const QStringList backedUp = contentsOf(m_journal->data->Con);
    keepGoals(installation, {});
    m_journal->exec("update MealConsume set Qty = 2.5; insert into Body values (9, 46100, 70, 9, 8,"
                    " 9, 'M'); update Common set weight = 90");
    m_journal->session->readCommonParameters();
    makeBackup(m_journal->path(), place, today.addDays(-1));
    m_journal->clock.setNow(today);
    m_journal->session->setCurrentDate(today.date().addDays(-1)); // where both hold a meal
    const QStringList before = contentsOf(m_journal->data->Con);
    const auto eaten = [this] { return chartText().section(u' ', 1, 1); };
    QCOMPARE(eaten(), u"750"_s);

    inWindow("mnuRestore", "frmRestore", [&](QWidget &window) {
        auto &list = control<QListWidget>(window, "lstBackups");
        QCOMPARE(list.count(), 2);
        QCOMPARE(list.item(0)->text(), u"21. Juli 2026, 12:30"_s);
        QCOMPARE(list.currentRow(), 0);
        list.setCurrentRow(1);
        const QString holds = control<QLabel>(window, "lblContents").text();
        QVERIFY2(holds.startsWith(u"Days: 21. Juli 2026 to 22. Juli 2026\n"
                                  "Meals eaten: 2, activities performed: 0\n"_s),
                 qPrintable(holds));
        press(window, "btnOK"); // answered with No
        QVERIFY(window.isVisible());
        QCOMPARE(contentsOf(m_journal->data->Con), before);
        m_journal->messages.said.clear();
        m_journal->messages.answers = {true};
        press(window, "btnOK");
        QVERIFY(!window.isVisible());
    });
    QCOMPARE(contentsOf(m_journal->data->Con), backedUp);
    QCOMPARE(int(m_journal->session->parameters().weight), 70);
    QCOMPARE(eaten(), u"300"_s);             // the chart has followed
    QVERIFY(goalsOf(installation) == goals); // there were none any more
    // What was there is told of, lies in a backup of its own, and comes back.
    const Backup kept = backupsIn(place).front();
    QCOMPARE(kept.time, today);
    QVERIFY(m_journal->messages.takeText().contains(QDir::toNativeSeparators(kept.folder)));
    QCOMPARE(contentsOf(kept.folder), before);
    auto &undo = entry("mnuUndo");
    QCOMPARE(undo.text(), u"&Undo Restoring a Backup"_s);
    undo.trigger();
    QCOMPARE(contentsOf(m_journal->data->Con), before);
    QCOMPARE(int(m_journal->session->parameters().weight), 90);
    QCOMPARE(eaten(), u"750"_s);
    QVERIFY(m_journal->messages.said.empty());
}

void tst_backupwindows::tellsWhyItCantRestore()
{
    const QString good =
        makeBackup(m_journal->path(), folder(u"elsewhere"_s), m_journal->clock.now());
    const QString picture = folder(u"picture.mdb"_s);
    setFileBytes(picture, QByteArray(9999, 'x'));
    const QStringList before = contentsOf(m_journal->data->Con);
    inWindow("mnuRestore", "frmRestore", [&](QWidget &window) {
        const auto &contents = control<QLabel>(window, "lblContents");
        const auto &restore = control<QPushButton>(window, "btnOK");
        const auto pick = [&](const QString &path) {
            press(window, "btnOther", "dlgOpenBackup",
                  [&](QWidget &dialog) { chooseInFileDialog(dialog, path); });
        };
        QVERIFY(contents.text().contains("no backup yet") && !restore.isEnabled());
        pick(picture);
        QVERIFY(contents.text().contains("no journal of this program") && !restore.isEnabled());
        pick(m_journal->path());
        QVERIFY(contents.text().contains("the journal itself") && !restore.isEnabled());
        pick(good + u"/Corvana.mdb"_s);
        QVERIFY(contents.text().contains("is whole") && restore.isEnabled());
        // Spoilt since it was looked at; and a place into which the present journal can't be saved.
        const QByteArray bytes = fileBytes(good + u"/Corvana.mdb"_s);
        setFileBytes(good + u"/Corvana.mdb"_s, bytes.chopped(4096));
        m_journal->messages.answers = {true};
        press(window, "btnOK");
        QVERIFY(!m_journal->messages.said.back().cause.isEmpty());
        QCOMPARE(m_journal->messages.takeText(), u"The backup can't be restored"_s);
        setFileBytes(good + u"/Corvana.mdb"_s, bytes);
        setFileBytes(folder(u"backups"_s), "a file");
        m_journal->messages.answers = {true};
        press(window, "btnOK");
        QVERIFY(m_journal->messages.said.back().cause.contains("backups"));
        QCOMPARE(m_journal->messages.takeText(), u"The backup can't be restored"_s);
        QVERIFY(window.isVisible());
    });
    QCOMPARE(contentsOf(m_journal->data->Con), before);
    QVERIFY(!m_journal->session->history().next(Direction::Backward));
}

QTEST_MAIN(tst_backupwindows)
#include "tst_backupwindows.moc"
