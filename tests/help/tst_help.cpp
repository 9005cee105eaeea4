#include "guitest.h"
#include "help/helpkey.h"
#include "help/helpviewer.h"

#include <QDirIterator>
#include <QRegularExpression>
#include <QResource>
#include <QTextBrowser>

class tst_help : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_filter = std::make_unique<HelpKeyFilter>(m_helpFile); }
    void missingFileIsTold();
    void everyLinkLeadsToAPage();
    void f1OpensThePageOfItsWindow();

private:
    QString m_helpFile = QStringLiteral(CORVANA_HELP);
    std::unique_ptr<HelpKeyFilter> m_filter;
};

void tst_help::missingFileIsTold()
{
    QWidget window;
    window.show();
    bool told = false;
    QTimer::singleShot(0, &window, [&] {
        QWidget *box = QApplication::activeModalWidget();
        told = box && !qobject_cast<HelpViewer *>(box);
        if (box)
            box->close();
    });
    showHelp(&window, QStringLiteral("/nowhere/Corvana.hlp"), {});
    QVERIFY(told);
}

void tst_help::everyLinkLeadsToAPage()
{
    QVERIFY(QResource::registerResource(m_helpFile));
    const QRegularExpression link(QStringLiteral("href=\"([^\"]+)\""));
    int links = 0;
    QDirIterator pages(QStringLiteral(":/help"));
    while (pages.hasNext()) {
        QFile page(pages.next());
        QVERIFY(page.open(QIODevice::ReadOnly));
        auto matches = link.globalMatch(QString::fromUtf8(page.readAll()));
        for (; matches.hasNext(); ++links) {
            const QString target = matches.next().captured(1);
            QVERIFY2(QFile::exists(QStringLiteral(":/help/") + target), qPrintable(target));
        }
    }
    QVERIFY(links > 20);
}

void tst_help::f1OpensThePageOfItsWindow()
{
    qApp->installEventFilter(m_filter.get());
    QWidget window;
    window.setObjectName(QStringLiteral("frmCommon"));
    window.show();
    QString shown;
    inDialog(
        "helpViewer", [&] { sendHelpKey(&window); },
        [&](QWidget &viewer) {
            shown = control<QTextBrowser>(viewer, "helpText").documentTitle();
        });
    QCOMPARE(shown, QStringLiteral("Common Parameters"));
    // A window without a page of its own gets the contents.
    window.setObjectName(QStringLiteral("frmNobody"));
    inDialog(
        "helpViewer", [&] { sendHelpKey(&window); },
        [&](QWidget &viewer) {
            shown = control<QTextBrowser>(viewer, "helpText").documentTitle();
        });
    QCOMPARE(shown, QStringLiteral("Corvana Help"));
}

QTEST_MAIN(tst_help)
#include "tst_help.moc"
