#include "help/helpresults.h"

#include <QPainter>
#include <QSignalBlocker>
#include <QStyledItemDelegate>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int foundPageRole = Qt::UserRole;
constexpr int titleRole = Qt::UserRole + 1;
constexpr int excerptRole = Qt::UserRole + 2;

/// The title in bold above the excerpt, which has up to three lines.
class FoundPageDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &) const override
    {
        constexpr int lines = 4;
        return {option.fontMetrics.averageCharWidth(),
                lines * option.fontMetrics.lineSpacing() + 2 * marginOf(option)};
    }

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override
    {
        QStyleOptionViewItem item = option;
        initStyleOption(&item, index);
        item.text.clear();
        QStyle &style = *item.widget->style();
        style.drawControl(QStyle::CE_ItemViewItem, &item, painter, item.widget);

        const bool isSelected = (item.state & QStyle::State_Selected) != 0;
        const bool isActive = (item.state & QStyle::State_Active) != 0;
        const auto group = isActive ? QPalette::Active : QPalette::Inactive;
        const int margin = marginOf(item);
        const QRect room = item.rect.adjusted(margin, margin, -margin, -margin);
        painter->save();
        painter->setPen(
            item.palette.color(group, isSelected ? QPalette::HighlightedText : QPalette::Text));
        const QRect below = room.adjusted(0, item.fontMetrics.lineSpacing(), 0, 0);
        painter->drawText(below, Qt::TextWordWrap, index.data(excerptRole).toString());
        QFont bold = item.font;
        bold.setBold(true);
        painter->setFont(bold);
        const QString title = index.data(titleRole).toString();
        painter->drawText(room, Qt::TextSingleLine,
                          QFontMetrics(bold).elidedText(title, Qt::ElideRight, room.width()));
        painter->restore();
    }

private:
    static int marginOf(const QStyleOptionViewItem &option)
    {
        return option.fontMetrics.averageCharWidth() / 2;
    }
};

} // namespace

HelpResults::HelpResults(QWidget *parent)
    : QListWidget(parent)
{
    setObjectName(u"lstFound"_s);
    setAccessibleName(tr("Pages found"));
    setItemDelegate(new FoundPageDelegate(this));
    setAlternatingRowColors(true);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(this, &QListWidget::currentItemChanged, this, [this](const QListWidgetItem *item) {
        if (item)
            Q_EMIT pageChosen(item->data(foundPageRole).toString());
    });
}

void HelpResults::setPages(const std::vector<FoundPage> &pages)
{
    const QSignalBlocker quiet(this);
    clear();
    for (const FoundPage &page : pages) {
        auto *item = new QListWidgetItem(this);
        item->setText(page.title + u'\n' + page.excerpt); // what is read aloud
        item->setData(foundPageRole, page.page);
        item->setData(titleRole, page.title);
        item->setData(excerptRole, page.excerpt);
    }
    setVisible(!pages.empty());
    scrollToTop();
}

void HelpResults::follow(const QString &page)
{
    const QSignalBlocker quiet(this);
    int row = count() - 1;
    while (row >= 0 && item(row)->data(foundPageRole) != page)
        --row;
    setCurrentRow(row);
    if (row < 0)
        clearSelection();
}

QString HelpResults::pageAt(int step) const
{
    const int first = step > 0 ? -1 : count();
    const int from = currentRow() < 0 ? first : currentRow();
    return item((from + step + count()) % count())->data(foundPageRole).toString();
}
