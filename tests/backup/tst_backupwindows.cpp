// What the Journal menu does with backups, as a person works it.
#include "app/frmMain.h"
#include "backup/backupplace.h"
#include "backup/backupsettings.h"
#include "backupsamples.h"
#include "dayjournal.h"

#include <QAction>
#include <QFileDialog>

using namespace Qt::Literals;

class tst_backupwindows : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_window.reset(); }
    void backsUpIntoAChosenFolder();

private:
    void inWindow(const char *menuEntry, const char *dialog,
                  const std::function<void(QWidget &)> &steps)
    {
        inDialog(
            dialog, [&] { control<QAction>(*m_window, menuEntry).trigger(); }, steps);
    }
    QString folder(const QString &name) { return m_journal->folder.filePath(name); }

    std::unique_ptr<DayJournal> m_journal;
    std::unique_ptr<frmMain> m_window;
};

namespace {

void chooseInFileDialog(QWidget &dialog, const QString &path)
{
    control<QLineEdit>(dialog, "fileNameEdit").setText(path);
    static_cast<QFileDialog &>(dialog).QDialog::accept();
}

} // namespace

void tst_backupwindows::init()
{
    m_journal = std::make_unique<DayJournal>(QLocale(QLocale::German, QLocale::Germany));
    m_journal->exec("insert into MealConsume values (-1, 3, 46224, 0.5, 1), (1, 3, 46225, 0.5, 1)");
    m_window = std::make_unique<frmMain>(*m_journal->session, m_journal->messages);
    m_window->show();
    activate(*m_window);
}

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

QTEST_MAIN(tst_backupwindows)
#include "tst_backupwindows.moc"
