// Which column of a file becomes which of the journal's.
#pragma once

#include "exchange/importfile.h"

#include <QWidget>

class QComboBox;
class QGridLayout;
class QLabel;
class Session;

/// A line for each field of what a file holds: the file's column, its unit, how its numbers or
/// dates are written, what stands for an empty cell, and the first cells.
class ImportColumns : public QWidget
{
    Q_OBJECT

public:
    ImportColumns(const Session &session, QWidget *parent);

    /// Null, or a file that isn't imported: nothing. The file must live as long as it is shown.
    void show(ImportFile *file);

Q_SIGNALS:
    /// The file is matched otherwise.
    void changed();

private:
    struct Line
    {
        QComboBox *column;
        QComboBox *unit = nullptr;
        QComboBox *form = nullptr;
        QLabel *sample = nullptr;
    };

    void orderTabs();
    void addHeadings(QGridLayout &grid);
    void addLine(QGridLayout &grid, size_t field);
    QComboBox *makeChooser(const QString &name, const QString &accessibleName,
                           const QStringList &entries);
    QComboBox *makeColumnChooser(size_t field, const QString &name);
    QComboBox *makeUnitChooser(size_t field, const QString &name);
    QComboBox *makeFormChooser(size_t field, const QString &name);
    QWidget *makeEmptyBox(size_t field, const QString &name);
    void takeColumn(size_t field, int column);
    void showLine(size_t field);
    QString firstCells(int column) const;

    const Session &m_session;
    ImportFile *m_file = nullptr;
    QWidget *m_grid = nullptr;
    std::vector<Line> m_lines;
};
