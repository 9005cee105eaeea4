#include "help/helpviewer.h"

#include <QCryptographicHash>
#include <QDialogButtonBox>
#include <QFile>
#include <QFontMetrics>
#include <QMessageBox>
#include <QPushButton>
#include <QResource>
#include <QTextBrowser>
#include <QVBoxLayout>

namespace {

const QString contentsPage = QStringLiteral("contents");

QString pathOf(const QString &page)
{
    return QStringLiteral(":/help/%1.html").arg(page);
}

// The bundle is followed by its sum; without a look at it, one wrong bit may send the reader of
// the resources anywhere.
bool isIntact(const QByteArray &file)
{
    constexpr qsizetype sumLength = 64;
    const QByteArray sum = QCryptographicHash::hash(file.chopped(qMin(sumLength, file.size())),
                                                    QCryptographicHash::Sha256)
                               .toHex();
    return file.size() > sumLength && file.endsWith(sum);
}

/// Registers the pages; what is wrong otherwise, empty where nothing is.
QString openHelpFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return HelpViewer::tr("Can't open the help file Corvana.hlp. Please make sure it is "
                              "present in the program folder.");
    static QByteArray bundle; // read from as long as the program runs
    bundle = file.readAll();
    if (!isIntact(bundle) ||
        !QResource::registerResource(reinterpret_cast<const uchar *>(bundle.constData())))
        return HelpViewer::tr("The help file Corvana.hlp is damaged. Please put back the one that "
                              "came with the program.");
    return {};
}

} // namespace

HelpViewer::HelpViewer(const QString &page, QWidget *parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("helpViewer"));
    setWindowTitle(tr("Corvana Help"));

    auto *browser = new QTextBrowser;
    browser->setObjectName(QStringLiteral("helpText"));
    browser->setAccessibleName(tr("Help text"));
    browser->setSource(QUrl(QLatin1String("qrc") + pathOf(page)));

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    auto *contents = buttons->addButton(tr("Con&tents"), QDialogButtonBox::ActionRole);
    auto *back = buttons->addButton(tr("&Back"), QDialogButtonBox::ActionRole);
    back->setEnabled(false);
    connect(contents, &QPushButton::clicked, browser,
            [browser] { browser->setSource(QUrl(QLatin1String("qrc") + pathOf(contentsPage))); });
    connect(back, &QPushButton::clicked, browser, &QTextBrowser::backward);
    connect(browser, &QTextBrowser::backwardAvailable, back, &QPushButton::setEnabled);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(browser);
    layout->addWidget(buttons);
    const QFontMetrics metrics(font());
    resize(metrics.averageCharWidth() * 84, metrics.lineSpacing() * 34);
}

bool HelpViewer::hasPage(const QString &page)
{
    return !page.isEmpty() && QFile::exists(pathOf(page));
}

void showHelp(QWidget *parent, const QString &helpFile, const QString &page)
{
    if (!HelpViewer::hasPage(contentsPage)) {
        const QString problem = openHelpFile(helpFile);
        if (!problem.isEmpty()) {
            QMessageBox::warning(parent, HelpViewer::tr("Error"), problem);
            return;
        }
    }
    HelpViewer(HelpViewer::hasPage(page) ? page : contentsPage, parent).exec();
}
