#include "help/helpviewer.h"

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
    if (!HelpViewer::hasPage(contentsPage) && !QResource::registerResource(helpFile)) {
        QMessageBox::warning(parent, HelpViewer::tr("Error"),
                             HelpViewer::tr("Can't open the help file Corvana.hlp. Please make "
                                            "sure it is present in the program folder."));
        return;
    }
    HelpViewer(HelpViewer::hasPage(page) ? page : contentsPage, parent).exec();
}
