// A line of words and figures, as it is typed to record something.
#pragma once

#include "quickadd/unitamount.h"
#include "session/localetext.h"

#include <QRegularExpression>
#include <QStringList>

#include <vector>

/// What a line says: "2 banana 8:15", "porridge 150 g", "rowing 17:10-17:40". Whatever is no figure
/// is a word of the name looked for.
struct QuickText
{
    QStringList words; ///< folded for search
    std::optional<Currency> quantity;
    std::optional<Amount> amount; ///< a weight, a volume or an energy
    std::optional<int> minutes;   ///< how long
    std::optional<QTime> time;    ///< alone, or the begin of a span
    std::optional<QTime> end;     ///< of a span
    /// Figures as typed that can't be read, or of which there is one of the kind already. While
    /// there are any, the line says nothing that could be stored.
    QStringList unread;

    bool isEmpty() const;
};

/// Reads lines; numbers, decimals and times of day as the locale writes them.
class QuickTextReader
{
public:
    explicit QuickTextReader(const LocaleText &text);

    QuickText read(const QString &line) const;

private:
    class Line;
    using Handler = void (Line::*)(const QRegularExpressionMatch &);
    struct Figure
    {
        QRegularExpression pattern;
        Handler take;
    };

    const LocaleText &m_text;
    std::vector<Figure> m_figures; ///< tried in their order
};
