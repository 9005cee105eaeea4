#include "exchange/frmImport.h"

#include "exchange/importcolumns.h"
#include "exchange/importpreview.h"
#include "exchange/importstore.h"
#include "exchange/importtext.h"
#include "session/excerpt.h"
#include "session/session.h"
#include "ui/attempt.h"
#include "ui/elidedlabel.h"
#include "ui/formscroll.h"
#include "ui/messages.h"
#include "ui/progressbox.h"
#include "ui/reportview.h"
#include "ui/telling.h"
#include "ui/wheelguard.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScopeGuard>
#include <QStandardPaths>
#include <QTabWidget>
#include <QTableWidget>
#include <QTimer>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int recordsShown = 20;

QString documentsFolder()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return !folder.isEmpty() && QDir(folder).exists() ? folder : QDir::homePath();
}

/// What was recognized of a whole file.
QString formOf(const ImportFile &file)
{
    const QString separator = file.separator == '\t'  ? frmImport::tr("tabs")
                              : file.separator == ';' ? frmImport::tr("semicolons")
                              : file.separator == '|' ? frmImport::tr("bars")
                                                      : frmImport::tr("commas");
    QString text = frmImport::tr("%1, %2").arg(file.encoding, separator);
    const QStringList left = file.kind ? file.leftOut() : QStringList();
    if (!left.isEmpty())
        text = frmImport::tr("%1. Not imported: %2").arg(text, left.join(u", "_s));
    return text;
}

} // namespace

frmImport::frmImport(Session &session, Messages &messages, QWidget *parent)
    : FormDialog(session, messages, u"frmImport"_s, tr("Import"), parent)
    , m_fileRows(new ListModel({{.header = tr("File"), .isLongText = true},
                                {.header = tr("Holds")},
                                {tr("New"), tr("Records that come in"), true},
                                {tr("Changed"), tr("Records that are updated"), true},
                                {tr("There"), tr("Records that exist already"), true},
                                {tr("Faults"), tr("Lines that can't be imported"), true}},
                               this))
    , m_faultRows(new ListModel(
          {{tr("Line"), {}, true}, {.header = tr("What is wrong"), .isLongText = true}}, this))
    , m_planning(new QTimer(this))
{
    makeControls();
    makeTabs();
    setForm(makeForm());
    btnOK->setText(tr("&Import"));
    constexpr int pauseInTyping = 300; // milliseconds
    m_planning->setInterval(pauseInTyping);
    m_planning->setSingleShot(true);
    connect(m_planning, &QTimer::timeout, this, &frmImport::plan);
    connect(m_columns, &ImportColumns::changed, this, &frmImport::planSoon);
    showFiles();
    focusFirstField();
    resize(fontMetrics().averageCharWidth() * 150, fontMetrics().height() * 42);
}

void frmImport::makeControls()
{
    const auto button = [this](const QString &name, const QString &caption,
                               void (frmImport::*press)()) {
        auto *made = new QPushButton(caption, this);
        made->setObjectName(name);
        made->setAutoDefault(false);
        connect(made, &QPushButton::clicked, this, press);
        return made;
    };
    btnFiles = button(u"btnFiles"_s, tr("&Files\u2026"), &frmImport::pickFiles);
    btnFolder = button(u"btnFolder"_s, tr("Fol&der\u2026"), &frmImport::pickFolder);
    lblPath = new ElidedLabel(this, Qt::ElideMiddle);
    lblPath->setObjectName(u"lblPath"_s);
    lvwFiles = new ReportView(*m_fileRows, this);
    lvwFiles->setObjectName(u"lvwFiles"_s);
    lvwFiles->setAccessibleName(tr("Files"));
    lvwFiles->setFixedHeight(fontMetrics().lineSpacing() * 6);
    connect(lvwFiles->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex &row) { showFile(row.row()); });
    cboHolds = new QComboBox(this);
    cboHolds->setObjectName(u"cboHolds"_s);
    cboHolds->setAccessibleName(tr("What the file holds"));
    cboHolds->addItem(tr("(not imported)"));
    for (const ImportTable &table : importTables())
        cboHolds->addItem(table.title);
    guardFromWheel(*cboHolds);
    connect(cboHolds, &QComboBox::activated, this, &frmImport::takeKind);
    lblRead = new ElidedLabel(this);
    lblRead->setObjectName(u"lblRead"_s);
}

void frmImport::makeTabs()
{
    tabFile = new QTabWidget(this);
    tabFile->setObjectName(u"tabFile"_s);
    m_columns = new ImportColumns(session(), this);
    auto *columns = new FormScroll(m_columns, tabFile);
    tabFile->addTab(columns, tr("Co&lumns"));

    tblPreview = new QTableWidget(tabFile);
    tblPreview->setObjectName(u"tblPreview"_s);
    tblPreview->setAccessibleName(tr("The first records as they would be stored"));
    tblPreview->setEditTriggers(QAbstractItemView::NoEditTriggers);
    tblPreview->setTabKeyNavigation(false);
    tblPreview->verticalHeader()->hide();
    tblPreview->verticalHeader()->setDefaultSectionSize(fontMetrics().lineSpacing() * 3 / 2);
    tabFile->addTab(tblPreview, tr("Pre&view"));

    auto *faults = new QWidget(tabFile);
    lvwFaults = new ReportView(*m_faultRows, faults);
    lvwFaults->setObjectName(u"lvwFaults"_s);
    lvwFaults->setAccessibleName(tr("Lines with a fault"));
    btnCopy = new QPushButton(tr("Co&py as Text"), faults);
    btnCopy->setObjectName(u"btnCopy"_s);
    btnCopy->setAutoDefault(false);
    connect(btnCopy, &QPushButton::clicked, this, &frmImport::copyFaults);
    auto *layout = new QVBoxLayout(faults);
    layout->addWidget(lvwFaults, 1);
    layout->addWidget(btnCopy, 0, Qt::AlignLeading);
    tabFile->addTab(faults, tr("Fa&ults"));

    cboExisting = new QComboBox(this);
    cboExisting->setObjectName(u"cboExisting"_s);
    cboExisting->setAccessibleName(tr("Records that exist already"));
    cboExisting->addItems({tr("stay as they are"), tr("are updated by the file"),
                           tr("stay, and the new one gets a number behind its name")});
    guardFromWheel(*cboExisting);
    connect(cboExisting, &QComboBox::activated, this, &frmImport::plan);
    lblCounts = new QLabel(this);
    lblCounts->setObjectName(u"lblCounts"_s);
    lblCounts->setTextFormat(Qt::PlainText);
    lblCounts->setWordWrap(true);
    lblCounts->setAlignment(Qt::AlignLeading | Qt::AlignTop);
    lblCounts->setMinimumHeight(2 * fontMetrics().lineSpacing());
}

QLayout *frmImport::makeForm()
{
    auto *files = new QHBoxLayout;
    files->addWidget(btnFiles);
    files->addWidget(btnFolder);
    files->addWidget(lblPath, 1);
    auto *holds = new QHBoxLayout;
    holds->addWidget(makeLabel(tr("The file h&olds"), cboHolds));
    holds->addWidget(cboHolds);
    holds->addWidget(lblRead, 1);
    auto *existingRow = new QHBoxLayout;
    existingRow->addWidget(makeLabel(tr("Records that e&xist already"), cboExisting));
    existingRow->addWidget(cboExisting);
    existingRow->addStretch();
    auto *form = new QVBoxLayout;
    form->addLayout(files);
    form->addWidget(lvwFiles);
    form->addLayout(holds);
    form->addWidget(tabFile, 1);
    form->addLayout(existingRow);
    form->addWidget(lblCounts);
    return form;
}

void frmImport::pickFiles()
{
    QFileDialog dialog(this, tr("Choose Files to Import"));
    dialog.setObjectName(u"dlgImportFiles"_s);
    dialog.setFileMode(QFileDialog::ExistingFiles);
    dialog.setNameFilters({tr("Tables of text (*.csv *.tsv *.txt)"), tr("All files (*)")});
    dialog.setDirectory(m_files.empty() ? documentsFolder()
                                        : QFileInfo(m_files.front().path).absolutePath());
    if (dialog.exec() == QDialog::Accepted)
        read(dialog.selectedFiles());
}

void frmImport::pickFolder()
{
    QFileDialog dialog(this, tr("Choose the Folder of an Export"));
    dialog.setObjectName(u"dlgImportFolder"_s);
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    dialog.setDirectory(documentsFolder());
    if (dialog.exec() != QDialog::Accepted)
        return;
    const QStringList paths = tableFilesIn(dialog.selectedFiles().constFirst());
    if (paths.isEmpty())
        messages().error(this, tr("There is no file in this folder that could be imported."));
    else
        read(paths);
}

void frmImport::read(const QStringList &paths)
{
    std::vector<ImportFile> files;
    QStringList refused;
    {
        QApplication::setOverrideCursor(Qt::WaitCursor);
        const auto restoreCursor = qScopeGuard([] { QApplication::restoreOverrideCursor(); });
        for (const QString &path : paths) {
            try {
                files.push_back(readImportFile(path, place()));
            } catch (const ImportError &error) {
                refused +=
                    tr("%1: %2").arg(QFileInfo(path).fileName(), QString::fromUtf8(error.what()));
            }
        }
    }
    if (!refused.isEmpty())
        messages().error(this, tr("What can't be read is left out."), refused.join(u'\n'));
    if (files.empty())
        return; // what is shown stays
    m_columns->show(nullptr);
    m_files = std::move(files);
    lblPath->setText(QDir::toNativeSeparators(
        m_files.size() == 1 ? m_files.front().path
                            : QFileInfo(m_files.front().path).absolutePath()));
    m_current = -1;
    plan();
    lvwFiles->setCurrentIndex(m_fileRows->index(0, 0));
    lvwFiles->setFocus();
}

ImportPlace frmImport::place() const
{
    return {session().text(), session().clock().now().date()};
}

ExistingRecords frmImport::existing() const
{
    return ExistingRecords(cboExisting->currentIndex());
}

ImportFile *frmImport::current()
{
    return m_current >= 0 && size_t(m_current) < m_files.size() ? &m_files[size_t(m_current)]
                                                                : nullptr;
}

void frmImport::showFiles()
{
    std::vector<ListRow> rows;
    rows.reserve(m_files.size());
    const LocaleText &text = session().text();
    for (size_t i = 0; i < m_files.size(); ++i) {
        const FilePlan &plan = m_plan.files.at(i);
        const QString kind = m_files[i].kind ? m_files[i].table().title : tr("(not imported)");
        rows.push_back(
            {int(i) + 1,
             {m_files[i].name(), kind, text.toText(plan.added), text.toText(plan.updated),
              text.toText(plan.existing), text.toText(int(plan.faults.size()))}});
    }
    const QSignalBlocker blocker(lvwFiles->selectionModel());
    m_fileRows->setRows(std::move(rows));
    lvwFiles->sizeColumns();
    if (m_current >= 0)
        lvwFiles->setCurrentIndex(m_fileRows->index(m_current, 0));
    for (QWidget *field :
         std::initializer_list<QWidget *>{lvwFiles, cboHolds, tabFile, cboExisting})
        field->setEnabled(!m_files.empty());
    showPlan();
}

void frmImport::showFile(int row)
{
    m_current = row;
    ImportFile *const file = current();
    cboHolds->setCurrentIndex(file && file->kind ? int(*file->kind) + 1 : 0);
    m_columns->show(file);
    showPlan();
}

void frmImport::takeKind(int entry)
{
    ImportFile *const file = current();
    if (!file)
        return;
    m_columns->show(nullptr);
    takeAs(*file, entry == 0 ? std::nullopt : std::optional(ImportKind(entry - 1)), place());
    m_columns->show(file);
    plan();
}

// What is shown is no longer what would be stored.
void frmImport::planSoon()
{
    btnOK->setEnabled(false);
    m_planning->start();
}

void frmImport::plan()
{
    m_planning->stop();
    attempt(
        this, messages(),
        [this] {
            QApplication::setOverrideCursor(Qt::WaitCursor);
            const auto restoreCursor = qScopeGuard([] { QApplication::restoreOverrideCursor(); });
            m_plan = {};
            m_plan.files.resize(m_files.size());
            m_plan = planImport(session(), m_files, existing());
        },
        tr("The journal can't be read"));
    showFiles();
}

void frmImport::showPlan()
{
    const ImportFile *const file = current();
    lblRead->setText(file ? formOf(*file) : QString());
    showPreview();
    showFaults();
    const FilePlan sum = m_plan.sum();
    const QString problem = obstacle();
    const bool isReady = problem.isEmpty() && sum.added + sum.updated > 0;
    tell(*lblCounts, problem.isEmpty() ? countsText() : problem);
    btnOK->setEnabled(isReady && !m_planning->isActive());
}

QString frmImport::obstacle() const
{
    if (m_files.empty())
        return tr("Choose files of comma-separated values, or the folder of an export. Nothing is "
                  "stored before you have seen what would come in.");
    for (const ImportFile &file : m_files) {
        if (const QString field = missingField(file, existing()); !field.isEmpty())
            return tr("%1: choose a column for %2, or say what stands where it is empty.")
                .arg(file.name(), field);
    }
    return m_plan.obstacle;
}

QString frmImport::countsText() const
{
    const LocaleText &text = session().text();
    const FilePlan sum = m_plan.sum();
    const auto &categories = m_plan.categories.entries();
    const auto made =
        std::count_if(categories.begin(), categories.end(),
                      [](const CatalogueNames::Entry &category) { return category.id == 0; });
    QString counts = tr("New: %1. Updated: %2. There already: %3. Lines with a fault, which are "
                        "left out: %4.")
                         .arg(text.toText(sum.added), text.toText(sum.updated),
                              text.toText(sum.existing), text.toText(int(sum.faults.size())));
    if (made > 0)
        counts += u' ' + tr("Categories that are made: %1.").arg(text.toText(int(made)));
    return counts;
}

void frmImport::showPreview()
{
    const ImportFile *const file = current();
    tblPreview->clear();
    tblPreview->setRowCount(0);
    tblPreview->setColumnCount(0);
    if (!file || !file->kind)
        return;
    const ImportTable &table = file->table();
    const QStringList headers = previewHeaders(table);
    const auto &records = m_plan.files.at(size_t(m_current)).records;
    tblPreview->setColumnCount(int(headers.size()));
    tblPreview->setHorizontalHeaderLabels(headers);
    tblPreview->setRowCount(int(std::min<size_t>(records.size(), recordsShown)));
    for (int row = 0; row < tblPreview->rowCount(); ++row) {
        const PlannedRecord &record = records[size_t(row)];
        const QStringList texts = previewOf(table, record, m_plan, session().text());
        for (int column = 0; column < texts.size(); ++column) {
            auto *item = new QTableWidgetItem(texts[column]);
            const auto &value = record.values[size_t(column)].storage();
            if (std::holds_alternative<double>(value))
                item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
            tblPreview->setItem(row, column, item);
        }
    }
    tblPreview->resizeColumnsToContents();
}

void frmImport::showFaults()
{
    std::vector<ListRow> rows;
    if (current()) {
        for (const ImportFault &fault : m_plan.files.at(size_t(m_current)).faults)
            rows.push_back({fault.line, {session().text().toText(fault.line), fault.reason}});
    }
    tabFile->setTabText(2, rows.empty()
                               ? tr("Fa&ults")
                               : tr("Fa&ults (%1)").arg(session().text().toText(int(rows.size()))));
    btnCopy->setEnabled(!rows.empty());
    m_faultRows->setRows(std::move(rows));
    lvwFaults->sizeColumns();
}

void frmImport::copyFaults() const
{
    QString text;
    for (const ImportFault &fault : m_plan.files.at(size_t(m_current)).faults)
        text += QString::number(fault.line) + u'\t' + fault.reason + u'\n';
    QApplication::clipboard()->setText(text);
}

void frmImport::accept()
{
    const QString counts = countsText();
    bool isCancelled = false;
    const bool isStored = attempt(
        this, messages(),
        [&] {
            try {
                store();
            } catch (const ImportCancelled &) {
                isCancelled = true;
            }
        },
        tr("The files can't be imported"));
    if (isStored && !isCancelled) {
        QDialog::accept(); // first, or the focus would be given back to a window that goes, too
        messages().information(parentWidget(),
                               tr("The import is stored.") + Session::lineBreak() + counts);
        return;
    }
    if (isCancelled)
        messages().information(this, tr("The import was cancelled. Nothing has been stored."));
    plan(); // the journal may be another one
}

void frmImport::store()
{
    constexpr qsizetype longestName = 40;
    ProgressBox box(this, u"dlgImportProgress"_s, tr("Importing\u2026"));
    const auto progress = [&box](double share) {
        return box.advance(std::min(99, int(share * 100)));
    };
    const QString description =
        m_files.size() == 1
            ? tr("Importing %1").arg(excerptOf(m_files.front().name(), longestName))
            : tr("Importing %1 Files").arg(session().text().toText(int(m_files.size())));
    const auto announce = qScopeGuard([this] {
        StoredChange change = {{}, StoredChange::Kind::Changed};
        for (const ImportTable &table : importTables())
            change.tables.push_back(table.table);
        session().announce(change); // refused at the very end, it may have been stored, too
    });
    storeImport(session(), m_files, m_plan, description, progress);
}
