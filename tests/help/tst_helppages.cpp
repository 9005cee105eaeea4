// What the help's pages promise: that they are there, lead on, and speak of what the program has.
#include "help/helppages.h"

#include <QDirIterator>
#include <QRegularExpression>
#include <QResource>
#include <QSet>
#include <QTest>
#include <QTextDocument>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

class tst_helppages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(QResource::registerResource(QStringLiteral(CORVANA_HELP))); }
    void everyWindowHasAPage();
    void everyLinkAndPictureIsThere();
    void everyPageIsReached();
    void everyCaptionIsTheProgramsOwn();
};

namespace {

struct Page
{
    QString language; ///< empty for English
    QString name;
    QString html;
};

QString textOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QList<Page> allPages()
{
    QList<Page> pages;
    QDirIterator files(u":/help"_s, {u"*.html"_s}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QFileInfo file(files.next());
        const QString folder = file.dir().dirName();
        pages << Page{folder == u"help"_s ? QString() : folder, file.completeBaseName(),
                      textOf(file.filePath())};
    }
    return pages;
}

QStringList captured(const QString &text, const char *pattern)
{
    QStringList found;
    for (const auto &match : QRegularExpression(QString::fromUtf8(pattern)).globalMatch(text))
        found << match.captured(1);
    return found;
}

QStringList linksOf(const QString &html)
{
    return captured(html, R"re(href="([^"]+)\.html")re");
}

// As a caption is written on a page: without access key and what follows a name.
QString plainCaption(QString text)
{
    static const QRegularExpression key(u"&(?=\\S)"_s);
    static const QRegularExpression end(u"(\\.\\.\\.|…|:)$"_s);
    return text.remove(key).trimmed().remove(end);
}

/// What the program says, in English and in the language of the file, each by itself.
std::pair<QSet<QString>, QSet<QString>> captionsOf(const QString &translations)
{
    std::pair<QSet<QString>, QSet<QString>> captions;
    QXmlStreamReader xml(textOf(translations));
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement() && xml.name() == u"source"_s)
            captions.first << plainCaption(xml.readElementText());
        else if (xml.isStartElement() && xml.name() == u"translation"_s)
            captions.second << plainCaption(
                xml.readElementText(QXmlStreamReader::IncludeChildElements));
    }
    return captions;
}

} // namespace

void tst_helppages::everyWindowHasAPage()
{
    QStringList without;
    int windows = 0;
    QDirIterator sources(QStringLiteral(CORVANA_ROOT "/src"), {u"*.cpp"_s}, QDir::Files,
                         QDirIterator::Subdirectories);
    while (sources.hasNext()) {
        for (const QString &name : captured(textOf(sources.next()), R"re("(frm\w+)")re")) {
            ++windows;
            if (!HelpPages({}).has(name))
                without << name;
        }
    }
    QVERIFY(windows > 30);
    QVERIFY2(without.isEmpty(), qPrintable(without.join(u' ')));
}

void tst_helppages::everyLinkAndPictureIsThere()
{
    QStringList lost;
    int links = 0;
    for (const Page &page : allPages()) {
        const HelpPages pages({page.language});
        for (const QString &target : captured(page.html, R"re(href="([^"]+)")re")) {
            ++links;
            if (!target.startsWith(u"https://"_s) &&
                (!target.endsWith(u".html"_s) || !pages.has(target.chopped(5))))
                lost << page.name + u" to "_s + target;
        }
        for (const QString &picture : captured(page.html, R"re(src="([^"]+)")re")) {
            const QString name = QFileInfo(picture).completeBaseName();
            if (HelpPages::picture(name, false).isNull() || HelpPages::picture(name, true).isNull())
                lost << page.name + u" shows "_s + picture;
        }
        if (!page.html.contains(u"<title>"_s))
            lost << page.name + u" has no title"_s;
    }
    QVERIFY(links > 20);
    QVERIFY2(lost.isEmpty(), qPrintable(lost.join(u'\n')));
}

void tst_helppages::everyPageIsReached()
{
    QMap<QString, QStringList> links;
    QSet<QString> languages;
    for (const Page &page : allPages()) {
        languages << page.language;
        links[page.language + u'/' + page.name] = linksOf(page.html);
    }
    for (const QString &language : std::as_const(languages)) {
        QStringList reached{HelpPages::contentsPage()};
        for (qsizetype i = 0; i < reached.size(); ++i) {
            const QString own = language + u'/' + reached[i];
            for (const QString &target : links.value(links.contains(own) ? own : u'/' + reached[i]))
                if (!reached.contains(target))
                    reached << target;
        }
        for (const Page &page : allPages())
            if (page.language.isEmpty() || page.language == language)
                QVERIFY2(reached.contains(page.name), qPrintable(language + u'/' + page.name));
    }
}

void tst_helppages::everyCaptionIsTheProgramsOwn()
{
    QMap<QString, QSet<QString>> known;
    for (const QFileInfo &file :
         QDir(QStringLiteral(CORVANA_ROOT "/translations")).entryInfoList({u"corvana_*.ts"_s}))
        std::tie(known[{}], known[file.baseName().section(u'_', 1)]) = captionsOf(file.filePath());
    QStringList unknown;
    int captions = 0;
    for (const Page &page : allPages()) {
        QTextDocument document;
        document.setHtml(page.html);
        const char *quoted =
            page.language.isEmpty() ? R"re("([^"]*)")re" : "\u201E([^\u201C]*)\u201C";
        for (const QString &caption : captured(document.toPlainText(), quoted)) {
            ++captions;
            if (!known.value(page.language).contains(plainCaption(caption)))
                unknown << page.language + u'/' + page.name + u": "_s + caption;
        }
    }
    QVERIFY(captions > 20);
    QVERIFY2(unknown.isEmpty(), qPrintable(unknown.join(u'\n')));
}

QTEST_MAIN(tst_helppages)
#include "tst_helppages.moc"
