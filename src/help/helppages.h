// The pages of the help file in the user's language.
#pragma once

#include <QImage>
#include <QStringList>

#include <vector>

/// A group of the contents page and the pages that it names, in their order.
struct HelpGroup
{
    struct Entry
    {
        QString page;
        QString caption;
    };

    QString title;
    std::vector<Entry> entries;
};

/// Reads the opened help file. A page has a name without folder and ending ("frmMeal"). It is
/// looked for in the folder of the user's language first (":/help/de"), then among the English
/// ones, each by itself.
class HelpPages
{
public:
    static QString contentsPage() { return QStringLiteral("contents"); }

    /// The user's languages, best first ("de-AT"): the first of them that the file has pages in
    /// counts, unless English comes before it.
    explicit HelpPages(const QStringList &languages);

    bool has(const QString &page) const;
    /// Empty where there is no such page.
    QString html(const QString &page) const;
    QString title(const QString &page) const;
    /// The words of a page as a QTextDocument holds them, character by character.
    QString text(const QString &page) const;
    /// Those of the contents in its order, then the others.
    QStringList names() const;
    /// Of the contents page: its third headings, and the links of the lists below them.
    std::vector<HelpGroup> contents() const;

    /// A picture in light or dark colours; null where there is none.
    static QImage picture(const QString &name, bool isDark);

private:
    QString pathOf(const QString &page) const;

    QString m_folder; // of the language; empty for English
};
