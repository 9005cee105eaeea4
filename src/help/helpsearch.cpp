#include "help/helpsearch.h"

#include "help/helppages.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// Character by character, so that what is found has its place in the text as it is shown.
QString folded(const QString &text)
{
    QString plain = text;
    for (QChar &character : plain) {
        const QString parts = character.decomposition();
        if (character.decompositionTag() == QChar::Canonical && !parts.isEmpty())
            character = parts.front();
        character = character.toCaseFolded();
    }
    return plain;
}

QStringList folded(const QStringList &words)
{
    QStringList plain;
    for (const QString &word : words)
        plain << folded(word);
    return plain;
}

bool holdsAll(const QString &text, const QStringList &words)
{
    return std::all_of(words.begin(), words.end(),
                       [&](const QString &word) { return text.contains(word); });
}

// Of two that begin at the same place the longer one; none within another.
std::vector<HelpHit> withoutOverlaps(std::vector<HelpHit> hits)
{
    std::sort(hits.begin(), hits.end(), [](const HelpHit &a, const HelpHit &b) {
        return a.position != b.position ? a.position < b.position : a.length > b.length;
    });
    std::vector<HelpHit> apart;
    apart.reserve(hits.size());
    for (const HelpHit &hit : hits) {
        if (apart.empty() || hit.position >= apart.back().position + apart.back().length)
            apart.push_back(hit);
    }
    return apart;
}

std::vector<HelpHit> foldedHits(const QString &text, const QStringList &words)
{
    std::vector<HelpHit> found;
    for (const QString &word : words) {
        for (qsizetype at = text.indexOf(word); at >= 0; at = text.indexOf(word, at + 1))
            found.push_back({static_cast<int>(at), static_cast<int>(word.size())});
    }
    return withoutOverlaps(std::move(found));
}

// The heading says no more than the title; where nothing else does, it has to do.
HelpHit firstBelowHeading(const QString &text, const QStringList &words)
{
    const std::vector<HelpHit> hits = foldedHits(text, words);
    const qsizetype heading = text.indexOf(u'\n');
    const auto first = std::find_if(
        hits.begin(), hits.end(), [heading](const HelpHit &hit) { return hit.position > heading; });
    return first == hits.end() ? hits.front() : *first;
}

// Up to whole words, where the text around has any.
QString excerptAround(const QString &text, const HelpHit &hit)
{
    constexpr int before = 40;
    constexpr int after = 110;
    int from = std::max(0, hit.position - before);
    int to = std::min(static_cast<int>(text.size()), hit.position + hit.length + after);
    while (from > 0 && from < hit.position && !text[from - 1].isSpace())
        ++from;
    while (to < text.size() && to > hit.position + hit.length && !text[to].isSpace())
        --to;
    const QString part =
        text.mid(from, to - from).simplified().remove(QChar::ObjectReplacementCharacter);
    return (from > 0 ? u"… "_s : QString()) + part + (to < text.size() ? u" …"_s : QString());
}

} // namespace

QStringList searchedWords(const QString &typed)
{
    return typed.simplified().split(u' ', Qt::SkipEmptyParts);
}

std::vector<HelpHit> hitsIn(const QString &text, const QStringList &words)
{
    return foldedHits(folded(text), folded(words));
}

HelpIndex::HelpIndex(const HelpPages &pages)
{
    for (const QString &name : pages.names()) {
        const QString title = pages.title(name);
        const QString text = pages.text(name);
        m_pages.push_back({name, title, text, folded(title), folded(text)});
    }
}

std::vector<FoundPage> HelpIndex::find(const QStringList &words) const
{
    const QStringList plain = folded(words);
    std::vector<FoundPage> found;
    std::vector<FoundPage> others;
    for (const Page &page : m_pages) {
        if (plain.isEmpty() || !holdsAll(page.foldedText, plain))
            continue;
        (holdsAll(page.foldedTitle, plain) ? found : others)
            .push_back({page.name, page.title,
                        excerptAround(page.text, firstBelowHeading(page.foldedText, plain))});
    }
    found.insert(found.end(), others.begin(), others.end());
    return found;
}
