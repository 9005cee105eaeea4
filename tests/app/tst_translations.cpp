// The program in another language than that of its code.
#include "accesskeys.h"
#include "app/frmMain.h"
#include "app/translations.h"
#include "dayjournal.h"
#include "exchange/importstore.h"
#include "journal/frmMealConsumes.h"

#include <QContextMenuEvent>
#include <QDir>
#include <QRegularExpression>
#include <QTranslator>
#include <QXmlStreamReader>

using namespace Qt::Literals;

class tst_translations : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { qDeleteAll(qApp->findChildren<QTranslator *>()); }
    void speaksTheFirstLanguageThatItKnows();
    void translationsHoldWhatTheTextHolds();
    void germanProgram();
    void accessKeysOfChartMenus();
    void unitsOfFilesStayAsTheyAre();
};

void tst_translations::speaksTheFirstLanguageThatItKnows()
{
    const std::tuple<QStringList, QString, QString> systems[] = {
        {{"de-AT", "en-US"}, "&Abbrechen", "&Ja"},
        {{"fr-FR", "de"}, "&Abbrechen", "&Ja"},
        {{"en-GB", "de-DE"}, "&Cancel", "&Yes"},
        {{"C"}, "&Cancel", "&Yes"},
        {{}, "&Cancel", "&Yes"}};
    for (const auto &[languages, ours, ofQt] : systems) {
        installTranslations(languages);
        QCOMPARE(QCoreApplication::translate("FormDialog", "&Cancel"), ours);
        QCOMPARE(QCoreApplication::translate("QPlatformTheme", "&Yes"), ofQt);
        QCOMPARE(QCoreApplication::translate("FormDialog", "In no catalogue"), "In no catalogue");
        cleanup();
    }
}

// What is put into a text, marked up in it, and the blanks that join it to others.
void tst_translations::translationsHoldWhatTheTextHolds()
{
    static const QRegularExpression kept(u"%\\d|%n|<[^>]*>|\\*\\.\\w+|&(?=\\w)|^\\s+|\\s+$"_s);
    const auto partsOf = [](const QString &text) {
        QStringList parts;
        for (const QRegularExpressionMatch &match : kept.globalMatch(text))
            parts += match.captured();
        parts.sort();
        return parts.join(u'|');
    };
    const QDir folder(QStringLiteral(CORVANA_TRANSLATIONS));
    for (const QString &name : folder.entryList({u"*.ts"_s})) {
        QFile file(folder.filePath(name));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QXmlStreamReader catalogue(&file);
        QString source;
        int count = 0;
        while (!catalogue.atEnd()) {
            catalogue.readNext();
            if (!catalogue.isStartElement())
                continue;
            if (catalogue.name() == u"source"_s) {
                source = catalogue.readElementText();
            } else if (catalogue.name() == u"numerusform"_s ||
                       (catalogue.name() == u"translation"_s && !source.contains(u"%n"_s))) {
                const QString translation = catalogue.readElementText();
                QVERIFY2(partsOf(translation) == partsOf(source), qPrintable(source));
                ++count;
            }
        }
        QVERIFY(!catalogue.hasError() && count > 900);
    }
}

void tst_translations::germanProgram()
{
    installTranslations({"de"});
    DayJournal journal(QLocale("de_DE"));
    const frmMain window(*journal.session, journal.messages);
    QStringList menus = captionsOf(window.findChild<QMenuBar *>()->actions());
    QCOMPARE(menus.join(u' '), "A&ktionen &Tagebuch Aus&wertung &Einstellungen &Hilfe");
    journal.inList<frmMealConsumes>([&](QWidget &list) {
        press(list, "btnDelete");
        QCOMPARE(journal.messages.takeText(), "Kein Datensatz ausgewählt");
    });
}

void tst_translations::accessKeysOfChartMenus()
{
    for (const QString language : {"en", "de"}) {
        installTranslations({language});
        DayJournal journal;
        journal.exec("insert into MealConsume values (-1, 3, 46225, 0.5, 1);"
                     "insert into ExercisePerform values (-1, 1, 46225, 0.5, 0.6, 3)");
        frmMain window(*journal.session, journal.messages);
        window.show();
        activate(window);
        auto &chart = control<QWidget>(window, "graph");
        qsizetype most = 0;
        for (int item = 0; item < 4; ++item) {
            chart.setFocus();
            pressKey(Qt::Key_Right);
            QContextMenuEvent event(QContextMenuEvent::Keyboard, {}, {});
            QApplication::sendEvent(&chart, &event);
            const auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
            QVERIFY(menu);
            most = qMax(most, menu->actions().size());
            verifyAccessKeysDiffer(captionsOf(menu->actions()), language);
            pressKey(Qt::Key_Escape);
            activate(window);
        }
        QVERIFY(most > 8);
        cleanup();
    }
}

// A column without a unit is in the system of the others, whatever inches are called.
void tst_translations::unitsOfFilesStayAsTheyAre()
{
    installTranslations({"de"});
    TestJournal journal(QLocale("de_DE"));
    const QString path = journal.folder.filePath(u"file.csv"_s);
    setFileBytes(path, "Tag;Gewicht (lb);Taille\n3. Juli 2026;180,5;35,5\n");
    const std::vector files = {
        readImportFile(path, {journal.session->text(), journal.clock.now().date()})};
    const ImportPlan plan = planImport(*journal.session, files, ExistingRecords::Kept);
    storeImport(*journal.session, files, plan, u"Import"_s);
    QCOMPARE(journal.row("select Weight, Waist, Measurement from Body"), "81.9|89.5|M");
}

QTEST_MAIN(tst_translations)
#include "tst_translations.moc"
