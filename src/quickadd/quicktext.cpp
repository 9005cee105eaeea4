#include "quickadd/quicktext.h"

#include "data/namecollation.h"
#include "session/typeddatetime.h"

#include <QRegularExpression>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

/// What separates hours from minutes: the colon, and what the locale writes.
QString timeSeparators(const QLocale &locale)
{
    static const QRegularExpression between(u"[Hh]+(.)m"_s);
    const QString format = locale.timeFormat(QLocale::ShortFormat);
    const QString own = between.match(format).captured(1);
    const bool isDecimalPoint = own == locale.decimalPoint();
    return u":"_s + (isDecimalPoint ? QString() : own);
}

QString anyOf(const QStringList &texts)
{
    QStringList escaped;
    for (const QString &text : texts) {
        if (!text.isEmpty())
            escaped += QRegularExpression::escape(text);
    }
    return u"(?:"_s + escaped.join(u'|') + u')';
}

// A figure ends where a blank or the line does; a comma behind it belongs to neither.
QRegularExpression figure(const QString &pattern)
{
    return QRegularExpression(pattern + u"(?=[,;]?(?:\\s|$))"_s,
                              QRegularExpression::CaseInsensitiveOption |
                                  QRegularExpression::UseUnicodePropertiesOption);
}

} // namespace

/// A line while it is read.
class QuickTextReader::Line
{
public:
    Line(const QString &line, const QuickTextReader &reader)
        : m_line(line)
        , m_reader(reader)
    {
    }

    QuickText read();

    void takeSpan(const QRegularExpressionMatch &match);
    void takeTime(const QRegularExpressionMatch &match);
    void takeAmount(const QRegularExpressionMatch &match);
    void takeQuantity(const QRegularExpressionMatch &match);

private:
    void skipBlanks();
    bool takeFigure();
    void takeWord();
    std::optional<QTime> timeOf(const QString &typed) const;
    template<typename T>
    void put(std::optional<T> &place, const std::optional<T> &value,
             const QRegularExpressionMatch &match);

    const QString &m_line;
    const QuickTextReader &m_reader;
    qsizetype m_at = 0;
    QuickText m_read;
};

QuickTextReader::QuickTextReader(const LocaleText &text)
    : m_text(text)
{
    const QLocale &locale = text.locale();
    const QString half =
        u"(?:\\s*"_s +
        anyOf({locale.amText(), locale.pmText(), u"a.m."_s, u"p.m."_s, u"am"_s, u"pm"_s}) + u')';
    const QString time = u"(\\d{1,2}[%1]\\d{2}%2?|\\d{1,2}%2)"_s.arg(
        QRegularExpression::escape(timeSeparators(locale)), half);
    const QString number = u"([+\\-\\x{2212}]?[\\d.,'\\x{2019}\\x{66B}\\x{66C}]*\\d)"_s;
    m_figures = {
        {figure(time + u"\\s*[-\\x{2013}\\x{2014}]\\s*"_s + time), &Line::takeSpan},
        {figure(time), &Line::takeTime},
        {figure(number + u"\\s*(kg|g|oz|lb|ml|cl|dl|l|min|h|std|kcal)"_s), &Line::takeAmount},
        {figure(number + u"(?:\\s*[x\\x{D7}](?=\\s|$))?"_s), &Line::takeQuantity},
    };
    for (const Figure &each : m_figures)
        each.pattern.optimize(); // not at the first key
}

QuickText QuickTextReader::read(const QString &line) const
{
    return Line(line, *this).read();
}

QuickText QuickTextReader::Line::read()
{
    for (skipBlanks(); m_at < m_line.size(); skipBlanks()) {
        if (!takeFigure())
            takeWord();
    }
    return m_read;
}

void QuickTextReader::Line::skipBlanks()
{
    while (m_at < m_line.size() &&
           (m_line[m_at].isSpace() || QStringView(u",;").contains(m_line[m_at])))
        ++m_at;
}

bool QuickTextReader::Line::takeFigure()
{
    for (const Figure &each : m_reader.m_figures) {
        const QRegularExpressionMatch match =
            each.pattern.match(m_line, m_at, QRegularExpression::NormalMatch,
                               QRegularExpression::AnchorAtOffsetMatchOption);
        if (match.hasMatch()) {
            m_at = match.capturedEnd();
            (this->*each.take)(match);
            return true;
        }
    }
    return false;
}

// Up to the next blank; without the marks around it, which a name may have in another place.
void QuickTextReader::Line::takeWord()
{
    static const QRegularExpression marks(u"^[\\pP\\pS]+|[\\pP\\pS]+$"_s,
                                          QRegularExpression::UseUnicodePropertiesOption);
    static const QRegularExpression figures(u"^[\\pP\\pS]*\\d[\\d\\pP\\pS]*$"_s,
                                            QRegularExpression::UseUnicodePropertiesOption);
    const qsizetype begin = m_at;
    while (m_at < m_line.size() && !m_line[m_at].isSpace())
        ++m_at;
    const QString typed = m_line.mid(begin, m_at - begin);
    if (typed.contains(figures) && !typed.contains(u'%')) {
        m_read.unread += typed;
        return;
    }
    const bool isPercentage = typed.endsWith(u'%');
    QString word = typed;
    word.remove(marks);
    if (isPercentage)
        word += u'%';
    if (!word.isEmpty())
        m_read.words += foldedForSearch(word);
}

template<typename T>
void QuickTextReader::Line::put(std::optional<T> &place, const std::optional<T> &value,
                                const QRegularExpressionMatch &match)
{
    if (!value || place)
        m_read.unread += match.captured();
    else
        place = value;
}

std::optional<QTime> QuickTextReader::Line::timeOf(const QString &typed) const
{
    return readTime(typed, m_reader.m_text.locale(), m_reader.m_text.is24HourClock());
}

void QuickTextReader::Line::takeSpan(const QRegularExpressionMatch &match)
{
    static const QRegularExpression letters(u"\\pL.*$"_s,
                                            QRegularExpression::UseUnicodePropertiesOption);
    const QString first = match.captured(1);
    std::optional<QTime> begin = timeOf(first);
    const std::optional<QTime> end = timeOf(match.captured(2));
    if (!begin) // "5:10-5:40 pm": the half of the day may stand once
        begin = timeOf(first + u' ' + letters.match(match.captured(2)).captured());
    if (!begin || !end || *begin >= *end || m_read.time) {
        m_read.unread += match.captured();
        return;
    }
    m_read.time = begin;
    m_read.end = end;
}

void QuickTextReader::Line::takeTime(const QRegularExpressionMatch &match)
{
    put(m_read.time, timeOf(match.captured()), match);
}

void QuickTextReader::Line::takeAmount(const QRegularExpressionMatch &match)
{
    const std::optional<double> count = m_reader.m_text.toDouble(match.captured(1));
    const std::optional<Amount> one = oneOf(match.captured(2));
    std::optional<Amount> amount;
    if (count && *count > 0 && one)
        amount = Amount{*count * one->value, one->measure};
    if (!amount || amount->measure != Measure::Time) {
        put(m_read.amount, amount, match);
        return;
    }
    // "1 h 30 min" is one duration.
    const double minutes = std::round(amount->value) + m_read.minutes.value_or(0);
    if (minutes < 1 || minutes >= 24 * 60)
        m_read.unread += match.captured();
    else
        m_read.minutes = int(minutes);
}

void QuickTextReader::Line::takeQuantity(const QRegularExpressionMatch &match)
{
    std::optional<Currency> quantity = m_reader.m_text.toCurrency(match.captured(1));
    if (quantity && *quantity <= Currency())
        quantity.reset();
    put(m_read.quantity, quantity, match);
}

bool QuickText::isEmpty() const
{
    return words.isEmpty() && !quantity && !amount && !minutes && !time && unread.isEmpty();
}
