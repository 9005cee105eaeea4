// Typing into a date or time, section by section.
#pragma once

#include <QDateTimeEdit>

#include <vector>

class QLineEdit;

/// Works on the text of a date or time editor as it stands while somebody types. A section is a
/// run of digits, or the letters of a month or of a half of the day. Where the text has not as many
/// of them as the format, it is plain text.
class SectionTyping
{
public:
    explicit SectionTyping(QLineEdit &box)
        : m_box(box)
    {
    }

    /// The sections in their order, and whether one of them is written in letters.
    void setSections(std::vector<QDateTimeEdit::Section> sections, bool haveWord);

    /// One character, as from the keyboard. A digit that its section has no room for begins the
    /// next one, a separator selects the next one, a letter goes to the section of letters.
    void type(QChar c);
    /// Selects a section; past the last one, the last.
    void select(size_t index);
    void selectAtCursor() { select(indexAtCursor()); }
    void walk(bool forward);
    size_t indexAtCursor() const;
    /// Whether digits that ran on into a section ended before it was full: "130" may be 1:30 or the
    /// beginning of 13:00.
    bool isTornOff() const;

private:
    struct Span
    {
        qsizetype at;
        qsizetype size;
        bool isWord;
        qsizetype end() const { return at + size; }
    };

    std::vector<Span> spans() const;
    bool isAllSelected() const;
    void typeDigit(QChar c);
    bool isFull(const QString &digits, size_t index, QChar next) const;
    void typeLetter(QChar c);
    void typeSeparator(QChar c);
    void select(const Span &span);

    QLineEdit &m_box;
    std::vector<QDateTimeEdit::Section> m_sections;
    bool m_haveWord = false;
    bool m_ranOn = false;
    QString m_tornOff; ///< the text that ended so
};
