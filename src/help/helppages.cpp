#include "help/helppages.h"

#include <QDir>
#include <QFile>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextList>

using namespace Qt::StringLiterals;

namespace {

QString folderOf(const QStringList &languages)
{
    for (const QString &each : languages) {
        QString language = each.section(u'-', 0, 0);
        if (language == u"en"_s)
            break;
        if (QFile::exists(u":/help/%1/%2.html"_s.arg(language, HelpPages::contentsPage())))
            return language;
    }
    return {};
}

void takeLinks(const QTextBlock &block, HelpGroup &group)
{
    for (auto part = block.begin(); !part.atEnd(); ++part) {
        const QString target = part.fragment().charFormat().anchorHref();
        if (!target.isEmpty())
            group.entries.push_back({target.section(u'.', 0, 0), part.fragment().text()});
    }
}

} // namespace

HelpPages::HelpPages(const QStringList &languages)
    : m_folder(folderOf(languages))
{
}

QString HelpPages::pathOf(const QString &page) const
{
    const QString own = u":/help/%1/%2.html"_s.arg(m_folder, page);
    return !m_folder.isEmpty() && QFile::exists(own) ? own : u":/help/%1.html"_s.arg(page);
}

bool HelpPages::has(const QString &page) const
{
    return !page.isEmpty() && QFile::exists(pathOf(page));
}

QString HelpPages::html(const QString &page) const
{
    QFile file(pathOf(page));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QString HelpPages::title(const QString &page) const
{
    const QString text = html(page);
    const qsizetype from = text.indexOf(u"<title>"_s) + 7;
    return text.mid(from, text.indexOf(u"</title>"_s) - from);
}

QString HelpPages::text(const QString &page) const
{
    QTextDocument document;
    document.setHtml(html(page));
    return document.toPlainText();
}

QStringList HelpPages::names() const
{
    QStringList names;
    for (const HelpGroup &group : contents()) {
        for (const HelpGroup::Entry &entry : group.entries)
            names << entry.page;
    }
    for (const QString &file : QDir(u":/help"_s).entryList({u"*.html"_s}, QDir::Files, QDir::Name))
        names << file.chopped(5);
    names.removeDuplicates();
    return names;
}

std::vector<HelpGroup> HelpPages::contents() const
{
    QTextDocument document;
    document.setHtml(html(contentsPage()));
    std::vector<HelpGroup> groups;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        if (block.blockFormat().headingLevel() == 3)
            groups.push_back({block.text(), {}});
        else if (block.textList() && !groups.empty())
            takeLinks(block, groups.back());
    }
    return groups;
}

QImage HelpPages::picture(const QString &name, bool isDark)
{
    return QImage(u":/help/pictures/%1-%2.png"_s.arg(name, isDark ? u"dark"_s : u"light"_s));
}
