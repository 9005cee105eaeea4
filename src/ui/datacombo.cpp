#include "ui/datacombo.h"

#include "data/namecollation.h"
#include "ui/namefilter.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QFocusEvent>
#include <QLineEdit>
#include <QTimer>

DataCombo::DataCombo(QWidget *parent)
    : QComboBox(parent)
    , m_filter(new NameFilter(this))
{
    setEditable(true);
    setInsertPolicy(NoInsert);
    setMaxVisibleItems(16);
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(30);

    m_filter->setSourceModel(model());
    auto *completer = new QCompleter(m_filter, this);
    completer->setCompletionMode(QCompleter::UnfilteredPopupCompletion);
    completer->setMaxVisibleItems(maxVisibleItems());
    setCompleter(completer);

    connect(lineEdit(), &QLineEdit::textEdited, this, [this](const QString &text) {
        m_filter->setPart(text);
        resolveText(text);
        // The line edit opens the list of matches after this signal.
        QTimer::singleShot(0, this, &DataCombo::highlightFirstMatch);
    });
    connect(this, &QComboBox::activated, this, &DataCombo::chooseRow);
}

// Enter or Tab takes the match that stands first, seen before it is taken.
void DataCombo::highlightFirstMatch()
{
    QAbstractItemView *popup = completer()->popup();
    if (!popup->isVisible() || popup->currentIndex().isValid())
        return;
    // Blocked, since the line edit would replace the typed text by what is highlighted.
    const QSignalBlocker blocker(completer());
    popup->setCurrentIndex(popup->model()->index(0, 0));
}

void DataCombo::setRows(Recordset &rows, QLatin1StringView idColumn, QLatin1StringView nameColumn)
{
    const QSignalBlocker blocker(this);
    clear();
    for (; !rows.isEof(); rows.moveNext())
        addItem(rows.text(nameColumn), rows.integer(idColumn));
    setCurrentIndex(-1);
    clearEditText();
    m_boundValue.reset();
}

void DataCombo::setBoundValue(std::optional<qint32> id)
{
    chooseRow(id ? findData(*id) : -1);
}

void DataCombo::setDisplayedText(const QString &text)
{
    setEditText(text);
    resolveText(text);
}

void DataCombo::chooseRow(int row)
{
    setCurrentIndex(row);
    if (row < 0) {
        clearEditText();
        announceIfChanged(std::nullopt);
        return;
    }
    setEditText(itemText(row));
    announceIfChanged(itemData(row).toInt());
}

void DataCombo::resolveText(const QString &text)
{
    int match = -1;
    for (int row = 0; row < count() && match < 0; ++row) {
        if (compareNames(itemText(row), text) == 0)
            match = row;
    }
    const QString typed = text;
    const int cursor = lineEdit()->cursorPosition();
    {
        const QSignalBlocker blocker(this);
        setCurrentIndex(match);
        setEditText(typed); // the text stays as typed
        lineEdit()->setCursorPosition(cursor);
    }
    announceIfChanged(match < 0 ? std::nullopt : std::optional<qint32>(itemData(match).toInt()));
}

void DataCombo::announceIfChanged(std::optional<qint32> id)
{
    if (id == m_boundValue)
        return;
    m_boundValue = id;
    Q_EMIT boundValueChanged();
}

void DataCombo::focusInEvent(QFocusEvent *event)
{
    QComboBox::focusInEvent(event);
    lineEdit()->selectAll();
}
