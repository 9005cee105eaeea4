#include "backup/frmRestore.h"

#include "backup/backuperror.h"
#include "backup/backupfile.h"
#include "backup/backupplace.h"
#include "backup/backuprun.h"
#include "backup/backupsettings.h"
#include "backup/restorebackup.h"
#include "goals/goals.h"
#include "session/session.h"
#include "ui/attempt.h"
#include "ui/elidedlabel.h"
#include "ui/frmUnlock.h"
#include "ui/messages.h"
#include "ui/progressbox.h"
#include "ui/telling.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QScopeGuard>
#include <QVBoxLayout>

using namespace Qt::Literals;

namespace {

constexpr int linesOfContents = 6;
constexpr int widthInCharacters = 56;

QString contentsText(const LocaleText &text, const BackupContents &holds)
{
    const auto number = [&text](qint64 count) { return text.toText(int(count)); };
    const QStringList lines = {
        holds.from.isValid() ? frmRestore::tr("Days: %1 to %2")
                                   .arg(text.mediumDate(holds.from), text.mediumDate(holds.to))
                             : frmRestore::tr("Days: none"),
        frmRestore::tr("Meals eaten: %1, activities performed: %2")
            .arg(number(holds.mealsEaten), number(holds.activitiesPerformed)),
        frmRestore::tr("Body measurements: %1, notes: %2")
            .arg(number(holds.measurements), number(holds.notes)),
        frmRestore::tr("In the catalogues: %1 meals in %2 categories, %3 activities")
            .arg(number(holds.meals), number(holds.categories), number(holds.activities)),
        frmRestore::tr("The file can be opened and is whole."),
    };
    return lines.join(u'\n');
}

} // namespace

frmRestore::frmRestore(Session &session, Messages &messages, QWidget *parent)
    : FormDialog(session, messages, u"frmRestore"_s, tr("Restore a Backup"), parent)
    , lstBackups(new QListWidget(this))
    , btnOther(new QPushButton(tr("&Other File\u2026"), this))
    , btnUnlock(new QPushButton(tr("&Password\u2026"), this))
    , lblFile(new ElidedLabel(this, Qt::ElideMiddle))
    , lblContents(new QLabel(this))
{
    lstBackups->setObjectName(u"lstBackups"_s);
    lstBackups->setAccessibleName(tr("Backups"));
    btnOther->setObjectName(u"btnOther"_s);
    btnOther->setAutoDefault(false);
    btnUnlock->setObjectName(u"btnUnlock"_s);
    btnUnlock->setAutoDefault(false);
    lblFile->setObjectName(u"lblFile"_s);
    lblContents->setObjectName(u"lblContents"_s);
    lblContents->setTextFormat(Qt::PlainText);
    lblContents->setWordWrap(true);
    lblContents->setAlignment(Qt::AlignTop | Qt::AlignLeading);
    lblContents->setMinimumHeight(linesOfContents * fontMetrics().lineSpacing());
    lblContents->setMinimumWidth(widthInCharacters * fontMetrics().averageCharWidth());
    setForm(makeForm());
    btnOK->setText(tr("&Restore"));
    listBackups();
    connect(lstBackups, &QListWidget::currentItemChanged, this,
            [this](const QListWidgetItem *item) {
                if (item)
                    choose(item->data(Qt::UserRole).toString());
            });
    connect(btnOther, &QPushButton::clicked, this, &frmRestore::pickOther);
    connect(btnUnlock, &QPushButton::clicked, this, &frmRestore::unlock);
    choose({});
    lstBackups->setCurrentRow(0);
    focusFirstField();
}

QLayout *frmRestore::makeForm()
{
    auto *form = new QVBoxLayout;
    form->addWidget(makeLabel(tr("&Backups"), lstBackups));
    form->addWidget(lstBackups, 1);
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(btnOther);
    buttons->addWidget(btnUnlock);
    buttons->addStretch();
    form->addLayout(buttons);
    form->addWidget(lblFile);
    form->addWidget(lblContents);
    return form;
}

void frmRestore::listBackups()
{
    const QString place = backupSettings(installationOf(session().data().Con)).place;
    for (const Backup &backup : backupsIn(place)) {
        auto *item = new QListWidgetItem(session().text().moment(backup.time), lstBackups);
        item->setData(Qt::UserRole, backup.databasePath());
    }
}

void frmRestore::pickOther()
{
    QFileDialog dialog(this, tr("Choose a Backup"));
    dialog.setObjectName(u"dlgOpenBackup"_s);
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setNameFilters({tr("Journals (*.mdb)"), tr("All files (*)")});
    dialog.setDirectory(m_path.isEmpty() ? QDir::homePath() : QFileInfo(m_path).absolutePath());
    if (dialog.exec() != QDialog::Accepted)
        return;
    QString path = dialog.selectedFiles().constFirst();
    if (QFileInfo(path).isDir())
        path = Installation(path).databasePath();
    lstBackups->setCurrentItem(nullptr);
    choose(path);
    if (!m_lockedPath.isEmpty())
        unlock();
}

void frmRestore::choose(const QString &path)
{
    m_path = path;
    m_password = session().data().Con.password();
    lblFile->setText(QDir::toNativeSeparators(path));
    showChosen();
}

void frmRestore::showChosen()
{
    m_lockedPath.clear();
    QString text;
    if (m_path.isEmpty()) {
        text = tr("There is no backup yet in the folder of the settings. Choose a file.");
    } else if (const QString reason = examine(text); !reason.isEmpty()) {
        m_path.clear();
        text = tr("It can't be restored. %1").arg(reason);
    }
    tell(*lblContents, text);
    btnOK->setEnabled(!m_path.isEmpty());
    btnUnlock->setEnabled(!m_lockedPath.isEmpty());
}

void frmRestore::unlock()
{
    const QString path = m_lockedPath;
    const auto opens = [this, &path](const FilePassword &password) {
        m_path = path;
        m_password = password;
        showChosen();
        return m_lockedPath.isEmpty();
    };
    frmUnlock(messages(), path, opens, this).exec();
}

QString frmRestore::examine(QString &contents)
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const auto restoreCursor = qScopeGuard([] { QApplication::restoreOverrideCursor(); });
    if (QFileInfo(m_path) == QFileInfo(session().data().Con.path()))
        return tr("It is the journal itself.");
    try {
        BackupFile file(m_path, m_password);
        contents = contentsText(session().text(), file.contents());
        return {};
    } catch (const std::exception &error) {
        const auto *refusal = dynamic_cast<const StoreError *>(&error);
        if (refusal && refusal->kind() == StoreError::Kind::Locked) {
            m_lockedPath = m_path;
            return tr("It is locked with another password than the journal. Press Password\u2026 "
                      "to type it.");
        }
        const QString cause = causeOf(error);
        return cause.isEmpty() ? QString::fromUtf8(error.what()) : cause;
    }
}

void frmRestore::accept()
{
    const QStringList lines = {
        tr("This will replace all that the journal holds now, its catalogues and the common "
           "parameters, too, by what the backup holds."),
        tr("The journal as it is now will be backed up first, and Undo can take the restoring "
           "back."),
        QString(),
        tr("Are you sure you want to restore the backup now?"),
    };
    if (m_path.isEmpty() ||
        !messages().ask(this, tr("Are you sure?"), lines.join(Session::lineBreak())))
        return;
    restore();
}

void frmRestore::restore()
{
    const QString place = backupSettings(installationOf(session().data().Con)).place;
    QString kept;
    bool isCancelled = false;
    const auto replace = [&] {
        BackupFile file(m_path, m_password); // anew: it may be another one since it was shown
        kept = runBackup(this, session(), place);
        if (kept.isEmpty())
            return; // cancelled before anything was changed
        ProgressBox progress(this, u"dlgRestoreProgress"_s, tr("Restoring the backup\u2026"));
        isCancelled = !restoreBackup(session(), file.connection(), tr("Restoring a Backup"),
                                     [&](int percent) { return progress.advance(percent); });
    };
    const bool isRestored = attempt(this, messages(), replace, tr("The backup can't be restored"));
    if (isCancelled)
        messages().information(this,
                               tr("The restoring was cancelled. The journal is as it was before."));
    if (kept.isEmpty() || isCancelled)
        return;
    tellAll(); // refused at the very end, it may have been stored
    if (!isRestored)
        return;
    bringGoals();
    QDialog::accept(); // first, or the focus would be given back to a window that goes, too
    messages().information(parentWidget(),
                           tr("The backup is restored. The journal as it was before is "
                              "backed up in the folder %1")
                               .arg(QDir::toNativeSeparators(kept)));
}

void frmRestore::tellAll()
{
    attempt(
        this, messages(), [this] { session().readCommonParameters(); },
        tr("The common parameters can't be read anew. What was stored is stored"));
    session().announce(
        {{schema::tables.begin(), schema::tables.end()}, StoredChange::Kind::Changed});
}

// Into a journal without any, as on a new machine. They are in no step of Undo: what was set here
// stays as it is.
void frmRestore::bringGoals()
{
    Installation installation = installationOf(session().data().Con);
    const Goals backedUp = goalsOf(Installation(QFileInfo(m_path).absolutePath()));
    if (backedUp.isEmpty() || !goalsOf(installation).isEmpty())
        return;
    keepGoals(installation, backedUp);
    session().announceGoals();
}
