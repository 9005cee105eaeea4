#include "guitest.h"
#include "help/helpkey.h"
#include "help/helpviewer.h"

#include <QDirIterator>
#include <QMenu>
#include <QMessageBox>
#include <QRegularExpression>
#include <QResource>
#include <QTemporaryFile>
#include <QTextBrowser>

class tst_help : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void unusableFileIsTold();
    void everyLinkLeadsToAPage();
    void f1OpensThePageOfItsWindow();

private:
    QString m_helpFile = QStringLiteral(CORVANA_HELP);
};

void tst_help::unusableFileIsTold()
{
    const auto told = [this](const QString &path) {
        QString text;
        QTimer::singleShot(0, this, [&] {
            QWidget *box = QApplication::activeModalWidget();
            if (auto *message = qobject_cast<QMessageBox *>(box))
                text = message->text();
            if (box)
                box->close();
        });
        showHelp(nullptr, path, {});
        return text;
    };
    QVERIFY(told(QStringLiteral("/nowhere/Corvana.hlp")).contains("present"));
    QFile whole(m_helpFile);
    QVERIFY(whole.open(QIODevice::ReadOnly));
    const QByteArray bytes = whole.readAll();
    QByteArray flipped = bytes;
    flipped[bytes.size() / 2] = char(flipped[bytes.size() / 2] ^ 1);
    for (const QByteArray &damaged : {QByteArray(), bytes.chopped(1), flipped}) {
        QTemporaryFile file;
        QVERIFY(file.open() && file.write(damaged) == damaged.size() && file.flush());
        QVERIFY(told(file.fileName()).contains("damaged"));
    }
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
        for (const auto &match : link.globalMatch(QString::fromUtf8(page.readAll()))) {
            const QString target = match.captured(1);
            QVERIFY2(QFile::exists(QStringLiteral(":/help/") + target), qPrintable(target));
            ++links;
        }
    }
    QVERIFY(links > 20);
}

void tst_help::f1OpensThePageOfItsWindow()
{
    HelpKeyFilter filter(m_helpFile);
    qApp->installEventFilter(&filter);
    // A window without a page of its own gets the contents.
    for (const auto &[name, title] :
         {std::pair("frmCommon", "Common Parameters"), std::pair("frmNobody", "Corvana Help")}) {
        QWidget window;
        window.setObjectName(name);
        window.show();
        activate(window);
        QMenu menu(&window); // open or not
        menu.addAction(QStringLiteral("entry"));
        if (name == QLatin1String("frmCommon"))
            menu.popup({});
        QString shown;
        inDialog(
            "helpViewer", [&] { sendHelpKey(menu.isVisible() ? &menu : &window); },
            [&](QWidget &viewer) {
                shown = control<QTextBrowser>(viewer, "helpText").documentTitle();
            });
        QCOMPARE(shown, title);
    }
}

QTEST_MAIN(tst_help)
#include "tst_help.moc"
