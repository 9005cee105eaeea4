// Finding words in the pages of the help file.
#pragma once

#include <QStringList>

#include <vector>

class HelpPages;

/// A word that was found, in characters of the page's text.
struct HelpHit
{
    int position;
    int length;
};

struct FoundPage
{
    QString page;
    QString title;
    QString excerpt; ///< the text around the first hit, on one line
};

/// The words that were typed, between spaces.
QStringList searchedWords(const QString &typed);

/// Where a text holds any of the words, in its order and without overlaps. Case and accents don't
/// count, and a word is found within a longer one.
std::vector<HelpHit> hitsIn(const QString &text, const QStringList &words);

/// The texts of all pages, read once and kept.
class HelpIndex
{
public:
    explicit HelpIndex(const HelpPages &pages);

    /// The pages that hold all of the words: those first that hold them in their titles, else in
    /// the order of the contents. None for no words.
    std::vector<FoundPage> find(const QStringList &words) const;

private:
    struct Page
    {
        QString name;
        QString title;
        QString text;
        QString foldedTitle;
        QString foldedText;
    };

    std::vector<Page> m_pages;
};
