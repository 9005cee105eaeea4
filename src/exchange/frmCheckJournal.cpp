#include "exchange/frmCheckJournal.h"

#include "session/session.h"
#include "ui/attempt.h"
#include "ui/helpbutton.h"
#include "ui/listmodel.h"
#include "ui/reportstyle.h"
#include "ui/telling.h"

#include <QApplication>
#include <QClipboard>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QScopeGuard>
#include <QShortcut>
#include <QTreeView>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

frmCheckJournal::frmCheckJournal(Session &session, Messages &messages, QWidget *parent)
    : QDialog(parent)
    , m_session(session)
    , m_messages(messages)
    , m_model(new ListModel({{.header = tr("Day")},
                             {.header = tr("Record"), .isLongText = true},
                             {.header = tr("What was found"), .isLongText = true}},
                            this))
    , lblResult(new QLabel(tr("The journal is being checked."), this))
    , prgCheck(new QProgressBar(this))
    , lvwList(new QTreeView(this))
{
    setObjectName(u"frmCheckJournal"_s);
    setWindowTitle(tr("Check Journal"));
    lblResult->setObjectName(u"lblResult"_s);
    lblResult->setTextFormat(Qt::PlainText);
    lblResult->setTextInteractionFlags(Qt::TextSelectableByMouse);
    lblResult->setWordWrap(true);
    lblResult->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    lblResult->setMinimumHeight(8 * fontMetrics().lineSpacing());
    prgCheck->setObjectName(u"prgCheck"_s);
    prgCheck->setAccessibleName(tr("Progress"));
    makeList();
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(lblResult);
    layout->addWidget(prgCheck);
    layout->addWidget(lvwList, 1);
    layout->addLayout(makeButtons());
    resize(fontMetrics().averageCharWidth() * 120, fontMetrics().height() * 28);
}

void frmCheckJournal::makeList()
{
    setReportStyle(*lvwList);
    lvwList->setObjectName(u"lvwList"_s);
    lvwList->setAccessibleName(tr("What was found"));
    lvwList->setModel(m_model);
    lvwList->setRootIsDecorated(false);
    lvwList->setUniformRowHeights(true);
    lvwList->setAlternatingRowColors(true);
    lvwList->setAllColumnsShowFocus(true);
    QHeaderView &header = *lvwList->header();
    const int character = fontMetrics().averageCharWidth();
    header.setSectionsMovable(false);
    header.resizeSection(0, 14 * character);
    header.resizeSection(1, 40 * character);
    header.setSectionResizeMode(2, QHeaderView::Stretch);
}

QLayout *frmCheckJournal::makeButtons()
{
    btnCopy = new QPushButton(tr("C&opy as Text"), this);
    btnCopy->setObjectName(u"btnCopy"_s);
    btnCopy->setAutoDefault(false);
    btnCopy->setEnabled(false);
    connect(btnCopy, &QPushButton::clicked, this, &frmCheckJournal::copy);
    auto *copyKey = new QShortcut(QKeySequence::Copy, lvwList);
    copyKey->setContext(Qt::WidgetShortcut);
    connect(copyKey, &QShortcut::activated, this, &frmCheckJournal::copy);
    auto *close = new QPushButton(tr("&Close"), this);
    close->setObjectName(u"btnClose"_s);
    close->setDefault(true);
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
    auto *help = makeHelpButton(this);
    help->setAutoDefault(false);
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(btnCopy);
    buttons->addStretch();
    buttons->addWidget(close);
    buttons->addWidget(help);
    return buttons;
}

void frmCheckJournal::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    if (!m_isChecked)
        QMetaObject::invokeMethod(this, &frmCheckJournal::check, Qt::QueuedConnection);
    m_isChecked = true;
}

void frmCheckJournal::check()
{
    const bool isDone = attempt(
        this, m_messages,
        [this] {
            QApplication::setOverrideCursor(Qt::WaitCursor);
            const auto restoreCursor = qScopeGuard([] { QApplication::restoreOverrideCursor(); });
            m_report = checkJournal(m_session.data().Con, m_session.text(),
                                    [this](double share) { showProgress(share); });
        },
        tr("The journal can't be checked"));
    prgCheck->hide();
    if (isDone)
        showReport();
    else
        lblResult->setText(tr("The journal has not been checked."));
}

// The engine must not be asked for anything else meanwhile, and so nothing but the bar is let go
// on.
void frmCheckJournal::showProgress(double share)
{
    prgCheck->setValue(int(share * 100));
    prgCheck->repaint();
}

void frmCheckJournal::showReport()
{
    const QString checked =
        tr("Checked were:") + u"\n\u2022 "_s + m_report.checked.join(u"\n\u2022 "_s);
    const QString result = m_report.isSound()
                               ? tr("The journal is sound: nothing was found.")
                               : tr("Findings: %1. Nothing has been changed.")
                                     .arg(m_session.text().toText(int(m_report.findings.size())));
    lblResult->setText(result + u'\n' + checked);
    std::vector<ListRow> rows;
    rows.reserve(m_report.findings.size());
    for (const CheckFinding &finding : m_report.findings)
        rows.push_back({0, {dayOf(finding), finding.record, finding.what}});
    m_model->setRows(std::move(rows));
    btnCopy->setEnabled(true);
    announce(*lblResult);
    if (!m_report.isSound()) {
        lvwList->setCurrentIndex(m_model->index(0, 0));
        lvwList->setFocus();
    }
}

QString frmCheckJournal::dayOf(const CheckFinding &finding) const
{
    return finding.day.isValid() ? m_session.text().shortDate(finding.day) : QString();
}

void frmCheckJournal::copy() const
{
    QString text = lblResult->text() + u'\n';
    for (const CheckFinding &finding : m_report.findings)
        text += QStringList{dayOf(finding), finding.record, finding.what}.join(u'\t') + u'\n';
    QApplication::clipboard()->setText(text);
}
