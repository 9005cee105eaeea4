#include "about/frmAbout.h"

#include "backup/backupsettings.h"
#include "session/session.h"
#include "ui/attempt.h"
#include "ui/helpbutton.h"
#include "ui/listmodel.h"
#include "ui/plaintextbox.h"
#include "ui/reportview.h"

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QFileInfo>
#include <QFontDatabase>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::Literals;

namespace {

constexpr int licenceCharacters = 84; // lines of up to 80, and a scroll bar
constexpr int licenceLines = 10;

/// To be read by the keyboard and by a screen reader, too.
void letBeSelected(QLabel &label)
{
    label.setTextFormat(Qt::PlainText);
    label.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
}

} // namespace

frmAbout::frmAbout(Session &session, QWidget *parent)
    : QDialog(parent)
    , m_session(session)
{
    setObjectName(u"frmAbout"_s);
    setWindowTitle(tr("About the Program"));
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(makeHead());
    layout->addLayout(makeFacts());
    layout->addWidget(makeLicences(), 1);
    layout->addLayout(makeButtons());
}

QLayout *frmAbout::makeHead()
{
    auto *picture = new QLabel(this);
    picture->setPixmap(parentWidget()->windowIcon().pixmap(64));
    auto *text = new QLabel(u"<h3>Corvana %1</h3><p>%2</p><p>%3</p>"_s.arg(
                                QCoreApplication::applicationVersion(),
                                tr("A journal of what you eat, do and weigh."),
                                tr("Free software under the MIT licence.")),
                            this);
    auto *head = new QHBoxLayout;
    head->addWidget(picture, 0, Qt::AlignTop);
    head->addWidget(text, 1);
    return head;
}

QFormLayout *frmAbout::makeFacts()
{
    auto *facts = new QFormLayout;
    const Connection &journal = m_session.data().Con;
    const LocaleText &text = m_session.text();
    addFact(*facts, u"lblJournal"_s, tr("Your journal"), QDir::toNativeSeparators(journal.path()));
    addFact(*facts, u"lblSize"_s, tr("Its size"),
            text.locale().formattedDataSize(QFileInfo(journal.path()).size(), 1,
                                            QLocale::DataSizeTraditionalFormat));
    const QDateTime backup = backupState(installationOf(journal)).last;
    addFact(*facts, u"lblBackup"_s, tr("Last backup"),
            backup.isValid() ? text.moment(backup) : tr("None so far"));
    return facts;
}

void frmAbout::addFact(QFormLayout &facts, const QString &name, const QString &caption,
                       const QString &text)
{
    auto *label = new QLabel(text, this);
    label->setObjectName(name);
    label->setAccessibleName(u"%1: %2"_s.arg(caption, text));
    label->setWordWrap(true);
    letBeSelected(*label);
    facts.addRow(caption, label);
    m_facts += u"%1: %2"_s.arg(caption, text);
}

QWidget *frmAbout::makeLicences()
{
    m_components = components(m_session.data().Con);
    std::vector<ListRow> rows;
    rows.reserve(m_components.size());
    for (const Component &part : m_components)
        rows.push_back({.tag = 0, .texts = {part.name, part.version, part.licence}});
    auto *model = new ListModel(
        {{.header = tr("Built with")}, {.header = tr("Version")}, {.header = tr("Licence")}}, this);
    model->setRows(std::move(rows));

    auto *group = new QWidget(this);
    auto *list = new ReportView(*model, group);
    list->setObjectName(u"lvwComponents"_s);
    list->setAccessibleName(tr("Built with"));
    list->sizeColumns();
    list->setMaximumHeight(list->header()->sizeHint().height() + 2 * list->frameWidth() +
                           list->sizeHintForRow(0) * int(m_components.size() + 1));
    auto *licence = new PlainTextBox(group);
    licence->setObjectName(u"txtLicence"_s);
    licence->setAccessibleName(tr("Text of the licence"));
    licence->setReadOnly(true);
    licence->setTabChangesFocus(true);
    licence->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont)); // as they were laid out
    const QFontMetrics metrics = licence->fontMetrics();
    licence->setMinimumSize(licenceCharacters * metrics.averageCharWidth(),
                            licenceLines * metrics.lineSpacing());
    connect(list->selectionModel(), &QItemSelectionModel::currentRowChanged, licence,
            [this, licence](const QModelIndex &row) {
                licence->setText(m_components.at(static_cast<size_t>(row.row())).text);
            });
    list->setCurrentIndex(model->index(0, 0));
    auto *layout = new QVBoxLayout(group);
    layout->setContentsMargins({});
    layout->addWidget(list);
    layout->addWidget(licence, 1);
    return group;
}

QBoxLayout *frmAbout::makeButtons()
{
    const auto makeButton = [this](const QString &name, const QString &caption) {
        auto *button = new QPushButton(caption, this);
        button->setObjectName(name);
        button->setAutoDefault(false);
        return button;
    };
    auto *copyFacts = makeButton(u"btnCopy"_s, tr("C&opy"));
    copyFacts->setToolTip(tr("Copies the versions and where the journal lies, for a report"));
    connect(copyFacts, &QPushButton::clicked, this, &frmAbout::copy);
    auto *ok = makeButton(u"btnOK"_s, tr("OK"));
    ok->setDefault(true);
    ok->setFocus();
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
    auto *help = makeHelpButton(this);
    help->setAutoDefault(false);
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(copyFacts);
    buttons->addStretch();
    buttons->addWidget(ok);
    buttons->addWidget(help);
    return buttons;
}

void frmAbout::copy() const
{
    QStringList lines;
    for (const Component &part : m_components)
        lines += u"%1 %2"_s.arg(part.name, part.version);
    QApplication::clipboard()->setText((lines + m_facts).join(u'\n') + u'\n');
}
