// The notes' texts on paper and in pictures, flowing through columns.
#pragma once

#include "progress/progresstexts.h"

#include <QFont>
#include <QPointF>
#include <QTextLayout>

#include <memory>

class QPaintDevice;
class QPainter;

namespace progress {

class NoteFlow
{
public:
    /// Breaks the notes into lines of that width in the device's units, each note shortened to so
    /// many characters.
    NoteFlow(const DaySeries &series, const ProgressTexts &texts, const QFont &font,
             QPaintDevice *device, double width, qsizetype mostOfNote);

    /// The lines from first up to but without last.
    struct Column
    {
        size_t first = 0;
        size_t last = 0;
        double height = 0;
    };
    /// The lines dealt out into columns no higher than that. A note's heading stays with the
    /// beginning of its text.
    std::vector<Column> columns(double height) const;
    /// The same in at most so many columns, as low as they can be but not below a least height.
    std::vector<Column> columnsBeside(size_t count, double leastHeight) const;
    void paint(QPainter &painter, const Column &column, QPointF at) const;

private:
    struct Line
    {
        QTextLine text;
        double gap = 0; ///< above, unless it begins a column
        bool isHeading = false;
    };
    void append(const QString &text, const QFont &font, QPaintDevice *device, double gap,
                bool isHeading);
    double heightWithNext(size_t line) const;

    double m_width;
    std::vector<std::unique_ptr<QTextLayout>> m_layouts; ///< which the lines belong to
    std::vector<Line> m_lines;
};

} // namespace progress
