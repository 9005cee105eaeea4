#include "ui/sectiontyping.h"

#include <QLineEdit>

#include <algorithm>

namespace {

int largest(QDateTimeEdit::Section section)
{
    switch (section) {
    case QDateTimeEdit::MonthSection:
        return 12;
    case QDateTimeEdit::DaySection:
        return 31;
    case QDateTimeEdit::HourSection:
        return 23; // on a 12-hour clock, too: 15:30 is well understood
    case QDateTimeEdit::MinuteSection:
        return 59;
    default:
        return 9999;
    }
}

int valueOf(QStringView digits)
{
    int value = 0;
    for (const QChar c : digits)
        value = value * 10 + c.digitValue();
    return value;
}

} // namespace

void SectionTyping::setSections(std::vector<QDateTimeEdit::Section> sections, bool haveWord)
{
    m_sections = std::move(sections);
    m_haveWord = haveWord;
}

std::vector<SectionTyping::Span> SectionTyping::spans() const
{
    std::vector<Span> spans;
    const QString text = m_box.text();
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool letter = m_haveWord && text[i].isLetter();
        if (!letter && !text[i].isDigit())
            continue;
        // The words of a half of the day are one section, with the dots between them.
        if (!spans.empty() && spans.back().isWord == letter && (letter || spans.back().end() == i))
            spans.back().size = i + 1 - spans.back().at;
        else
            spans.push_back({i, 1, letter});
    }
    return spans;
}

bool SectionTyping::isAllSelected() const
{
    return m_box.hasSelectedText() && m_box.selectedText() == m_box.text();
}

void SectionTyping::select(const Span &span)
{
    m_ranOn = false;
    m_tornOff.clear();
    m_box.setSelection(int(span.at), int(span.size));
}

void SectionTyping::select(size_t index)
{
    const std::vector<Span> all = spans();
    if (!all.empty())
        select(all[std::min(index, all.size() - 1)]);
}

size_t SectionTyping::indexAtCursor() const
{
    const int cursor = m_box.hasSelectedText() ? m_box.selectionStart() : m_box.cursorPosition();
    const std::vector<Span> all = spans();
    const auto at =
        std::find_if(all.begin(), all.end(), [cursor](Span span) { return cursor <= span.end(); });
    return size_t(at - all.begin());
}

void SectionTyping::walk(bool forward)
{
    const size_t index = indexAtCursor();
    if (forward)
        select(index + 1);
    else
        select(index == 0 ? 0 : index - 1);
}

bool SectionTyping::isTornOff() const
{
    return !m_tornOff.isEmpty() && m_tornOff == m_box.text();
}

void SectionTyping::type(QChar c)
{
    if (c.isDigit())
        typeDigit(c);
    else if (isAllSelected())
        m_box.insert(c);
    else if (c.isLetter() && (m_haveWord || !m_box.text().contains(c)))
        typeLetter(c);
    else
        typeSeparator(c);
}

bool SectionTyping::isFull(const QString &digits, size_t index, QChar next) const
{
    const int most = largest(m_sections[index]);
    return digits.size() >= QString::number(most).size() || valueOf(digits + next) > most;
}

void SectionTyping::typeDigit(QChar c)
{
    if (isAllSelected())
        m_ranOn = false;
    const std::vector<Span> all = spans();
    const size_t index = indexAtCursor();
    const bool knowsNext = all.size() == m_sections.size() && index + 1 < all.size() &&
                           m_sections[index + 1] != QDateTimeEdit::AmPmSection;
    if (knowsNext && !m_box.hasSelectedText() && m_box.cursorPosition() == all[index].end() &&
        isFull(m_box.text().mid(all[index].at, all[index].size), index, c)) {
        select(all[index + 1]);
        m_ranOn = true;
    }
    m_box.insert(c);
    const bool tornOff = m_ranOn && spans()[indexAtCursor()].size == 1;
    m_tornOff = tornOff ? m_box.text() : QString();
}

void SectionTyping::typeLetter(QChar c)
{
    const int cursor = m_box.cursorPosition();
    for (const Span &span : spans()) {
        const bool isInside = cursor > span.at && cursor <= span.end();
        if (span.isWord && !(isInside && !m_box.hasSelectedText()))
            select(span);
    }
    m_box.insert(c);
}

void SectionTyping::typeSeparator(QChar c)
{
    if (m_box.hasSelectedText())
        return; // the second of two separators between the same sections
    const int cursor = m_box.cursorPosition();
    for (const Span &span : spans()) {
        if (span.at > cursor) {
            select(span);
            return;
        }
    }
    if (cursor < m_box.text().size() && m_box.text()[cursor] == c)
        m_box.cursorForward(false);
    else
        m_box.insert(c);
}
