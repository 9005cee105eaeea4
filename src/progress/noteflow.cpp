#include "progress/noteflow.h"

#include <QFontMetricsF>

#include <algorithm>

namespace progress {

NoteFlow::NoteFlow(const DaySeries &series, const ProgressTexts &texts, const QFont &font,
                   QPaintDevice *device, double width, qsizetype mostOfNote)
    : m_width(width)
{
    QFont bold = font;
    bold.setBold(true);
    const double gap = 0.6 * QFontMetricsF(font, device).height();
    for (size_t i = 0; i < series.notes.size(); ++i) {
        const Note &note = series.notes[i];
        append(QStringLiteral("%1  %2").arg(noteLetter(i), texts.days(note.DateFrom, note.DateTo)),
               bold, device, gap, true);
        append(texts.noteText(note, mostOfNote), font, device, 0, false);
    }
}

void NoteFlow::append(const QString &text, const QFont &font, QPaintDevice *device, double gap,
                      bool isHeading)
{
    QString lines = text;
    lines.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    lines.replace(u'\n', QChar::LineSeparator);
    auto &layout = *m_layouts.emplace_back(std::make_unique<QTextLayout>(lines, font, device));
    layout.setTextOption([] {
        QTextOption option;
        option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
        return option;
    }());
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(m_width);
        m_lines.push_back({line, std::exchange(gap, 0), isHeading});
    }
    layout.endLayout();
}

/// Of a line together with those below that must not be parted from it.
double NoteFlow::heightWithNext(size_t line) const
{
    constexpr size_t textLines = 2;
    size_t end = line;
    while (end < m_lines.size() && m_lines[end].isHeading)
        ++end;
    if (end > line)
        end += textLines;
    double height = m_lines[line].text.height();
    for (size_t i = line + 1; i < std::min(end, m_lines.size()) && m_lines[i].gap == 0; ++i)
        height += m_lines[i].text.height();
    return height;
}

std::vector<NoteFlow::Column> NoteFlow::columns(double height) const
{
    std::vector<Column> columns;
    for (size_t i = 0; i < m_lines.size(); ++i) {
        const Line &line = m_lines[i];
        if (columns.empty() || columns.back().height + line.gap + heightWithNext(i) > height)
            columns.push_back({i, i, 0});
        Column &column = columns.back();
        column.height += (i > column.first ? line.gap : 0) + line.text.height();
        column.last = i + 1;
    }
    return columns;
}

std::vector<NoteFlow::Column> NoteFlow::columnsBeside(size_t count, double leastHeight) const
{
    if (m_lines.empty())
        return {};
    double whole = 0;
    for (const Line &line : m_lines)
        whole += line.gap + line.text.height();
    for (double height = std::max(leastHeight, whole / double(count));;
         height += m_lines.front().text.height()) {
        std::vector<Column> dealt = columns(height);
        if (dealt.size() <= count)
            return dealt;
    }
}

void NoteFlow::paint(QPainter &painter, const Column &column, QPointF at) const
{
    for (size_t i = column.first; i < column.last; ++i) {
        const Line &line = m_lines[i];
        at.ry() += i > column.first ? line.gap : 0;
        line.text.draw(&painter, at);
        at.ry() += line.text.height();
    }
}

} // namespace progress
