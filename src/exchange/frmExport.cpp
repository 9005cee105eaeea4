#include "exchange/frmExport.h"

#include "session/session.h"
#include "ui/attempt.h"
#include "ui/fieldmessages.h"
#include "ui/messages.h"
#include "ui/pickers.h"

#include <QCoreApplication>
#include <QDateEdit>
#include <QDir>
#include <QFileDialog>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScopeGuard>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace {

QString documents()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const bool isThere = !folder.isEmpty() && QDir(folder).exists();
    return QDir::toNativeSeparators(isThere ? folder : QDir::homePath());
}

} // namespace

frmExport::frmExport(Session &session, Messages &messages, QWidget *parent)
    : FormDialog(session, messages, u"frmExport"_s, tr("Export"), parent)
{
    makeControls();
    setForm(makeForm());
    // Only now that each pair has a frame of its own: beside each other they would exclude all.
    optWhole->setChecked(true);
    optPlain->setChecked(true);
    btnOK->setText(tr("E&xport"));
    makeChecks();
    focusFirstField();
}

void frmExport::makeControls()
{
    m_fields = new QWidget(this);
    optWhole = makeOption(u"optWhole"_s, tr("The &whole journal"));
    optPeriod = makeOption(u"optPeriod"_s, tr("A &period"));
    dtpDateFrom = makeDatePicker(session(), u"dtpDateFrom"_s, m_fields);
    dtpDateFrom->setAccessibleName(tr("Date From"));
    dtpDateFrom->setDate(session().currentDate().addMonths(-1));
    dtpDateTo = makeDatePicker(session(), u"dtpDateTo"_s, m_fields);
    dtpDateTo->setAccessibleName(tr("Date To"));
    dtpDateTo->setDate(session().currentDate());
    optPlain = makeOption(u"optPlain"_s, tr("For &other programs: commas, decimal points, ISO"
                                            " dates"));
    optSpreadsheet =
        makeOption(u"optSpreadsheet"_s,
                   tr("For &spreadsheets: numbers and dates as they are written in your region"));
    txtFolder = makeBox(u"txtFolder"_s, tr("Folder"));
    txtFolder->setParent(m_fields);
    txtFolder->setText(documents());
    btnBrowse = new QPushButton(tr("&Browse"), m_fields);
    btnBrowse->setObjectName(u"btnBrowse"_s);
    btnBrowse->setAutoDefault(false);
    prgExport = new QProgressBar(this);
    prgExport->setObjectName(u"prgExport"_s);
    prgExport->setAccessibleName(tr("Progress"));
    QSizePolicy policy = prgExport->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    prgExport->setSizePolicy(policy);
    prgExport->hide();

    for (QDateEdit *picker : {dtpDateFrom, dtpDateTo}) {
        picker->setEnabled(false);
        connect(optPeriod, &QRadioButton::toggled, picker, &QWidget::setEnabled);
    }
    connect(btnBrowse, &QPushButton::clicked, this, &frmExport::browse);
}

QRadioButton *frmExport::makeOption(const QString &name, const QString &caption)
{
    auto *option = new QRadioButton(caption, m_fields);
    option->setObjectName(name);
    return option;
}

QLayout *frmExport::makeForm()
{
    auto *period = new QGroupBox(tr("What"), m_fields);
    auto *days = new QHBoxLayout;
    days->addWidget(optPeriod);
    days->addWidget(makeLabel(tr("&From"), dtpDateFrom));
    days->addWidget(dtpDateFrom);
    QLabel *to = makeLabel(tr("&To"), dtpDateTo);
    // Parted by the line under its access key, the letters stand farther apart than is measured.
    to->setMinimumWidth(to->sizeHint().width() + fontMetrics().averageCharWidth() / 2);
    days->addWidget(to);
    days->addWidget(dtpDateTo);
    days->addStretch();
    auto *what = new QVBoxLayout(period);
    what->addWidget(optWhole);
    what->addLayout(days);

    auto *dialect = new QGroupBox(tr("How"), m_fields);
    auto *how = new QVBoxLayout(dialect);
    how->addWidget(optPlain);
    how->addWidget(optSpreadsheet);

    auto *folder = new QHBoxLayout;
    folder->addWidget(makeLabel(tr("Fo&lder"), txtFolder));
    folder->addWidget(txtFolder, 1);
    folder->addWidget(btnBrowse);

    auto *fields = new QVBoxLayout(m_fields);
    fields->setContentsMargins({});
    fields->addWidget(period);
    fields->addWidget(dialect);
    fields->addLayout(folder);
    auto *form = new QVBoxLayout;
    form->addWidget(m_fields);
    form->addWidget(prgExport);
    return form;
}

void frmExport::makeChecks()
{
    checkPicker(dtpDateFrom, tr("Date From"));
    checkPicker(dtpDateTo, tr("Date To"));
    addCheck(dtpDateTo, tr("The Date To is less than Date From"), [this] {
        return !optPeriod->isChecked() || dtpDateTo->date() >= dtpDateFrom->date();
    });
    checkSpecified(txtFolder, tr("Folder"));
    addCheck(txtFolder, tr("There is no such folder"),
             [this] { return QFileInfo(txtFolder->text()).isDir(); });
}

/// Only what is exported has to be a date.
void frmExport::checkPicker(QDateEdit *picker, const QString &field)
{
    addCheck(picker, containsIllegalData(field),
             [this, picker] { return !optPeriod->isChecked() || takeTyped(*picker); });
}

void frmExport::browse()
{
    const QString folder =
        QFileDialog::getExistingDirectory(this, tr("Folder for the Export"), txtFolder->text());
    if (!folder.isEmpty())
        txtFolder->setText(QDir::toNativeSeparators(folder));
}

ExportOrder frmExport::order() const
{
    ExportOrder order = {QDir::fromNativeSeparators(txtFolder->text()),
                         optPlain->isChecked() ? CsvFormat::plain()
                                               : CsvFormat::spreadsheet(session().text()),
                         std::nullopt, session().clock().now()};
    if (optPeriod->isChecked())
        order.period = ExportPeriod{dtpDateFrom->date(), dtpDateTo->date()};
    return order;
}

void frmExport::setWriting(bool on)
{
    m_isWriting = on;
    m_isCancelled = false;
    prgExport->setValue(0);
    prgExport->setVisible(on);
    m_fields->setEnabled(!on);
    btnOK->setEnabled(!on);
    btnHelp->setEnabled(!on);
    if (on)
        btnCancel->setFocus();
}

bool frmExport::showProgress(double share)
{
    const int percent = int(share * 100);
    if (percent == prgExport->value())
        return true;
    prgExport->setValue(percent);
    QCoreApplication::processEvents(); // Cancel
    return !m_isCancelled;
}

void frmExport::accept()
{
    if (!Validate())
        return;
    QWidget *const hadFocus = focusWidget();
    std::optional<QString> folder;
    const bool isDone = attempt(
        this, messages(),
        [&] {
            setWriting(true);
            const auto end = qScopeGuard([this] { setWriting(false); });
            folder = exportJournal(session().data().Con, order(),
                                   [this](double share) { return showProgress(share); });
        },
        tr("The journal can't be exported"));
    if (folder) {
        FormDialog::accept(); // first, or the focus would be given back to a window that goes, too
        messages().information(
            parentWidget(),
            tr("The journal has been exported to %1").arg(QDir::toNativeSeparators(*folder)));
        return;
    }
    if (isDone)
        messages().information(this, tr("The export was cancelled. Nothing has been written."));
    if (hadFocus)
        hadFocus->setFocus();
}

// Meanwhile it is the export that is left, not the window.
void frmExport::reject()
{
    if (m_isWriting)
        m_isCancelled = true;
    else
        FormDialog::reject();
}
