#include "help/helpcontents.h"

#include <QSignalBlocker>

namespace {

constexpr int pageRole = Qt::UserRole;

QString pageOf(const QTreeWidgetItem *item)
{
    return item ? item->data(0, pageRole).toString() : QString();
}

} // namespace

HelpContents::HelpContents(const std::vector<HelpGroup> &groups, QWidget *parent)
    : QTreeWidget(parent)
{
    setObjectName(QStringLiteral("helpContents"));
    setAccessibleName(tr("Help contents"));
    setHeaderHidden(true);
    for (const HelpGroup &group : groups) {
        auto *parentItem = new QTreeWidgetItem(this, {group.title});
        for (const HelpGroup::Entry &entry : group.entries) {
            auto *item = new QTreeWidgetItem(parentItem, {entry.caption});
            item->setData(0, pageRole, entry.page);
            item->setToolTip(0, entry.caption); // it may be cut off
        }
    }
    connect(this, &QTreeWidget::currentItemChanged, this, [this](const QTreeWidgetItem *item) {
        if (const QString page = pageOf(item); !page.isEmpty())
            Q_EMIT pageChosen(page);
    });
}

void HelpContents::follow(const QString &page)
{
    if (pageOf(currentItem()) == page)
        return;
    const QSignalBlocker quiet(this);
    setCurrentItem(nullptr);
    clearSelection();
    for (QTreeWidgetItemIterator each(this); *each; ++each) {
        if (pageOf(*each) != page)
            continue;
        setCurrentItem(*each);
        scrollToItem(*each);
        return;
    }
}
