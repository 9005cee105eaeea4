#include "ui/datacombo.h"

#include "ui/namedelegate.h"
#include "ui/namefilter.h"
#include "ui/wheelguard.h"

#include <QCompleter>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QStandardItemModel>
#include <QTimer>
#include <QWheelEvent>

DataCombo::DataCombo(QWidget *parent)
    : QComboBox(parent)
    , m_filter(new NameFilter(this))
{
    guardFromWheel(*this);
    setEditable(true);
    setInsertPolicy(NoInsert);
    setMaxVisibleItems(16);
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(30);

    m_filter->setSourceModel(model());
    auto *matches = new QCompleter(m_filter, this);
    matches->setCompletionMode(QCompleter::UnfilteredPopupCompletion);
    matches->setMaxVisibleItems(maxVisibleItems());
    setCompleter(matches);
    matches->popup()->installEventFilter(this);
    for (QAbstractItemView *list : {matches->popup(), view()}) {
        // Otherwise each of thousands of names would be measured at every key.
        if (auto *names = qobject_cast<QListView *>(list))
            names->setUniformItemSizes(true);
        list->setItemDelegate(new NameDelegate(list));
        list->setTextElideMode(Qt::ElideRight);
    }

    connect(lineEdit(), &QLineEdit::textEdited, this, &DataCombo::offerMatches);
    // A match that the arrow keys reach is in the box, and so it is the choice.
    connect(
        matches, qOverload<const QString &>(&QCompleter::highlighted), this,
        [this](const QString &name) { announceIfChanged(idOfRow(m_filter->sourceRowOf(name))); });
    connect(this, &QComboBox::activated, this, &DataCombo::chooseRow);
}

void DataCombo::offerMatches(const QString &part)
{
    m_typed = part;
    m_filter->setPart(part);
    resolveText(part);
    // The line edit opens the list of matches after this.
    QTimer::singleShot(0, this, &DataCombo::highlightFirstMatch);
}

// What Enter or Tab would take is seen before it is taken.
void DataCombo::highlightFirstMatch()
{
    QAbstractItemView *popup = completer()->popup();
    if (!popup->isVisible() || popup->currentIndex().isValid())
        return;
    // Blocked, since the line edit would replace the typed text by what is highlighted.
    const QSignalBlocker blocker(completer());
    popup->setCurrentIndex(popup->model()->index(0, 0));
}

bool DataCombo::eventFilter(QObject *watched, QEvent *event)
{
    const bool inMatches = event->type() == QEvent::KeyPress && watched == completer()->popup();
    if (!inMatches)
        return QComboBox::eventFilter(watched, event);
    switch (static_cast<QKeyEvent *>(event)->key()) {
    case Qt::Key_Tab:
        takeMatch(true);
        return true;
    case Qt::Key_Backtab:
        takeMatch(false);
        return true;
    case Qt::Key_Escape:
        completer()->popup()->hide();
        if (m_keepsChoice)
            returnToChoice();
        else
            setDisplayedText(m_typed);
        return true;
    default:
        return QComboBox::eventFilter(watched, event);
    }
}

void DataCombo::takeMatch(bool forward)
{
    QAbstractItemView *popup = completer()->popup();
    const QString name = popup->currentIndex().data().toString();
    popup->hide();
    if (!name.isEmpty())
        chooseRow(findText(name, Qt::MatchExactly | Qt::MatchCaseSensitive));
    focusNextPrevChild(forward);
}

void DataCombo::setRows(Recordset &rows, const schema::Column &idColumn,
                        const schema::Column &nameColumn, const schema::Column *detailColumn)
{
    const QSignalBlocker blocker(this);
    QList<QStandardItem *> items;
    items.reserve(qsizetype(rows.rowCount()));
    for (; !rows.isEof(); rows.moveNext()) {
        items += new QStandardItem(rows.text(nameColumn));
        items.last()->setData(rows.integer(idColumn), Qt::UserRole);
        if (detailColumn)
            items.last()->setData(rows.text(*detailColumn), NameDelegate::DetailRole);
    }
    clear();
    // All at once: each of thousands of insertions would be told to every list and filter.
    static_cast<QStandardItemModel *>(model())->invisibleRootItem()->appendRows(items);
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
    if (!hasFocus())
        Q_EMIT rowsNeeded();
    setEditText(text);
    resolveText(text);
}

std::optional<qint32> DataCombo::idOfRow(int row) const
{
    return row < 0 ? std::nullopt : std::optional<qint32>(itemData(row).toInt());
}

void DataCombo::chooseRow(int row)
{
    setCurrentIndex(row);
    setEditText(itemText(row)); // none for no row
    if (!hasFocus())
        lineEdit()->home(false); // the beginning of a long name tells more than its end
    m_lastChoice = idOfRow(row);
    announceIfChanged(m_lastChoice);
}

void DataCombo::returnToChoice()
{
    setBoundValue(m_lastChoice);
    lineEdit()->selectAll();
}

void DataCombo::resolveText(const QString &text)
{
    const int match = m_filter->sourceRowOf(text);
    if (match != currentIndex()) {
        // `text` may be the very text that setCurrentIndex replaces.
        const QString shown = text; // NOLINT(performance-unnecessary-copy-initialization)
        const int cursor = lineEdit()->cursorPosition();
        const QSignalBlocker blocker(this);
        setCurrentIndex(match);
        setEditText(shown); // the text stays as it is written
        lineEdit()->setCursorPosition(cursor);
    }
    announceIfChanged(idOfRow(match));
}

void DataCombo::announceIfChanged(std::optional<qint32> id)
{
    if (id == m_boundValue || (!id && m_keepsChoice && count() > 0))
        return;
    m_boundValue = id;
    Q_EMIT boundValueChanged();
}

void DataCombo::focusInEvent(QFocusEvent *event)
{
    if (event->reason() != Qt::ActiveWindowFocusReason && event->reason() != Qt::PopupFocusReason) {
        Q_EMIT rowsNeeded();
        m_lastChoice = m_boundValue;
    }
    QComboBox::focusInEvent(event);
    if (event->reason() == Qt::OtherFocusReason)
        lineEdit()->selectAll(); // as on Tab, so that typing begins anew
}

void DataCombo::focusOutEvent(QFocusEvent *event)
{
    const bool leaves =
        event->reason() != Qt::ActiveWindowFocusReason && event->reason() != Qt::PopupFocusReason;
    if (leaves && m_keepsChoice && currentIndex() < 0)
        returnToChoice();
    QComboBox::focusOutEvent(event);
    if (leaves)
        lineEdit()->home(false);
}

void DataCombo::keyPressEvent(QKeyEvent *event)
{
    if (m_keepsChoice && event->key() == Qt::Key_Escape && currentIndex() < 0)
        returnToChoice();
    else
        QComboBox::keyPressEvent(event);
}

void DataCombo::showPopup()
{
    if (!hasFocus())
        Q_EMIT rowsNeeded();
    QComboBox::showPopup();
}

void DataCombo::wheelEvent(QWheelEvent *event)
{
    event->ignore();
}
