#include "exchange/importcolumns.h"

#include "session/excerpt.h"
#include "session/session.h"
#include "ui/elidedlabel.h"
#include "ui/wheelguard.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace {

constexpr int longestEntry = 24; // characters

/// What a field is called in the names of its controls: "Calories".
QString shortName(const ImportField &field)
{
    return QString::fromLatin1(field.header).section(u' ', 0, 0);
}

bool isNumber(FieldKind kind)
{
    return kind != FieldKind::Text && kind != FieldKind::Date && kind != FieldKind::Time;
}

} // namespace

ImportColumns::ImportColumns(const Session &session, QWidget *parent)
    : QWidget(parent)
    , m_session(session)
{
    auto *layout = new QVBoxLayout(this);
    layout->addStretch();
}

void ImportColumns::show(ImportFile *file)
{
    m_file = file && file->kind ? file : nullptr;
    delete m_grid;
    m_grid = nullptr;
    m_lines.clear();
    if (!m_file)
        return;
    m_grid = new QWidget(this);
    auto *grid = new QGridLayout(m_grid);
    grid->setContentsMargins({});
    addHeadings(*grid);
    for (size_t field = 0; field < m_file->matches.size(); ++field) {
        addLine(*grid, field);
        showLine(field);
    }
    grid->setColumnStretch(5, 1);
    static_cast<QVBoxLayout *>(layout())->insertWidget(0, m_grid);
    orderTabs();
}

/// Tab goes through what was made last here, and not behind all else in the window.
void ImportColumns::orderTabs()
{
    QWidget *before = this;
    for (auto *control : m_grid->findChildren<QWidget *>(Qt::FindDirectChildrenOnly)) {
        setTabOrder(before, control);
        before = control;
    }
}

void ImportColumns::addHeadings(QGridLayout &grid)
{
    int column = 0;
    for (const QString &heading : {tr("Of the journal"), tr("Column of the file"), tr("Unit"),
                                   tr("Written as"), tr("Where it is empty"), tr("First cells")}) {
        auto *label = new QLabel(heading, m_grid);
        QFont bold = label->font();
        bold.setBold(true);
        label->setFont(bold);
        grid.addWidget(label, 0, column++);
    }
}

void ImportColumns::addLine(QGridLayout &grid, size_t field)
{
    const ImportField &shown = m_file->table().fields[field];
    const QString name = shortName(shown);
    const int row = int(field) + 1;
    Line line = {makeColumnChooser(field, name), makeUnitChooser(field, name),
                 makeFormChooser(field, name)};
    QWidget *const whenEmpty = makeEmptyBox(field, name);
    line.sample = new ElidedLabel(m_grid);
    line.sample->setMinimumWidth(longestEntry / 2 * fontMetrics().averageCharWidth());
    line.sample->setObjectName(u"lblSample"_s + name);
    auto *caption = new QLabel(shown.caption, m_grid);
    caption->setBuddy(line.column);
    grid.addWidget(caption, row, 0);
    grid.addWidget(line.column, row, 1);
    if (line.unit)
        grid.addWidget(line.unit, row, 2);
    if (line.form)
        grid.addWidget(line.form, row, 3);
    grid.addWidget(whenEmpty, row, 4);
    grid.addWidget(line.sample, row, 5);
    m_lines.push_back(line);
}

QComboBox *ImportColumns::makeChooser(const QString &name, const QString &accessibleName,
                                      const QStringList &entries)
{
    auto *chooser = new QComboBox(m_grid);
    chooser->setObjectName(name);
    chooser->setAccessibleName(accessibleName);
    chooser->setAccessibleDescription(accessibleName); // on Linux Qt tells the item for the name
    chooser->addItems(entries);
    guardFromWheel(*chooser);
    return chooser;
}

QComboBox *ImportColumns::makeColumnChooser(size_t field, const QString &name)
{
    const ImportField &shown = m_file->table().fields[field];
    QStringList entries = {tr("(none)")};
    for (const QString &header : m_file->headers)
        entries += excerptOf(header.simplified(), qsizetype(2) * longestEntry);
    QComboBox *chooser = makeChooser(u"cboColumn"_s + name, shown.caption, entries);
    chooser->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    chooser->setMinimumContentsLength(longestEntry / 2);
    chooser->setMaximumWidth(longestEntry * 3 / 2 * fontMetrics().averageCharWidth());
    connect(chooser, &QComboBox::activated, this,
            [this, field](int entry) { takeColumn(field, entry - 1); });
    return chooser;
}

QComboBox *ImportColumns::makeUnitChooser(size_t field, const QString &name)
{
    const ImportField &shown = m_file->table().fields[field];
    const QStringList units = unitsOf(shown.kind);
    if (units.isEmpty())
        return nullptr;
    const bool isOfRecord = shown.kind == FieldKind::BodyWeight || shown.kind == FieldKind::Girth;
    QComboBox *chooser = makeChooser(u"cboUnit"_s + name, tr("Unit of %1").arg(shown.caption),
                                     isOfRecord ? QStringList(tr("as stored")) + units : units);
    connect(chooser, &QComboBox::activated, this, [this, field, chooser, isOfRecord](int entry) {
        m_file->matches[field].unit = isOfRecord && entry == 0 ? QString() : chooser->currentText();
        Q_EMIT changed();
    });
    return chooser;
}

QComboBox *ImportColumns::makeFormChooser(size_t field, const QString &name)
{
    const ImportField &shown = m_file->table().fields[field];
    const bool isDate = shown.kind == FieldKind::Date;
    if (!isDate && !isNumber(shown.kind))
        return nullptr;
    QComboBox *chooser = makeChooser(
        u"cboForm"_s + name, tr("Form of %1").arg(shown.caption),
        isDate ? QStringList{tr("year, month, day"), tr("day, month, year"), tr("month, day, year")}
               : QStringList{u"1.5"_s, u"1,5"_s});
    connect(chooser, &QComboBox::activated, this, [this, field, isDate](int entry) {
        FieldMatch &match = m_file->matches[field];
        if (isDate)
            match.dateOrder = DateOrder(entry);
        else
            match.hasDecimalComma = entry == 1;
        Q_EMIT changed();
    });
    return chooser;
}

QWidget *ImportColumns::makeEmptyBox(size_t field, const QString &name)
{
    auto *box = new QLineEdit(m_file->matches[field].whenEmpty, m_grid);
    box->setObjectName(u"txtEmpty"_s + name);
    box->setAccessibleName(tr("%1 where it is empty").arg(m_file->table().fields[field].caption));
    box->setMaximumWidth(longestEntry / 2 * fontMetrics().averageCharWidth());
    connect(box, &QLineEdit::textEdited, this, [this, field](const QString &text) {
        m_file->matches[field].whenEmpty = text;
        Q_EMIT changed();
    });
    return box;
}

void ImportColumns::takeColumn(size_t field, int column)
{
    matchColumn(*m_file, field, column, {m_session.text(), m_session.clock().now().date()});
    showLine(field);
    Q_EMIT changed();
}

void ImportColumns::showLine(size_t field)
{
    const FieldMatch &match = m_file->matches[field];
    const Line &line = m_lines[field];
    const bool isMatched = match.column >= 0;
    line.column->setCurrentIndex(match.column + 1);
    if (line.unit) {
        line.unit->setCurrentIndex(std::max(0, line.unit->findText(match.unit)));
        line.unit->setEnabled(isMatched);
    }
    if (line.form) {
        const bool isDate = m_file->table().fields[field].kind == FieldKind::Date;
        line.form->setCurrentIndex(isDate ? int(match.dateOrder) : int(match.hasDecimalComma));
        line.form->setEnabled(isMatched);
    }
    line.sample->setText(firstCells(match.column));
}

QString ImportColumns::firstCells(int column) const
{
    constexpr qsizetype cellsShown = 3;
    QStringList cells;
    for (const CsvRecord &record : m_file->records) {
        const QString cell = record.cells.value(column).simplified();
        if (cells.size() < cellsShown && !cell.isEmpty())
            cells += excerptOf(cell, longestEntry);
    }
    return cells.join(u" \u00B7 "_s);
}
