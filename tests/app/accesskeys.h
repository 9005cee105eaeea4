// The letters that, with Alt, press a button, open a menu or go to a field.
#pragma once

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QMap>
#include <QMenu>
#include <QMenuBar>
#include <QTabBar>
#include <QTest>

/// Fails where two of these captions have the same access key.
inline void verifyAccessKeysDiffer(const QStringList &captions, const QString &where)
{
    QMap<QString, QString> taken;
    for (const QString &caption : captions) {
        const QString key = QKeySequence::mnemonic(caption).toString();
        const QString other = taken.value(key, caption);
        QVERIFY2(key.isEmpty() || other == caption,
                 qPrintable(where + ": " + caption + ", " + other));
        taken.insert(key, caption);
    }
}

inline QStringList captionsOf(const QList<QAction *> &entries)
{
    QStringList captions;
    for (const QAction *entry : entries)
        captions += entry->text();
    return captions;
}

/// Those of a window as it is seen now, and those of each of its menus.
inline void verifyAccessKeys(const QWidget &window)
{
    QStringList captions;
    for (const auto *control : window.findChildren<QWidget *>()) {
        if (const auto *menu = qobject_cast<const QMenu *>(control))
            verifyAccessKeysDiffer(captionsOf(menu->actions()), menu->title());
        if (!control->isVisible() || control->window() != &window)
            continue;
        if (const auto *menus = qobject_cast<const QMenuBar *>(control))
            captions += captionsOf(menus->actions());
        if (const auto *tabs = qobject_cast<const QTabBar *>(control)) {
            for (int tab = 0; tab < tabs->count(); ++tab)
                captions += tabs->tabText(tab);
        }
        if (const auto *box = qobject_cast<const QGroupBox *>(control))
            captions += box->title();
        const auto *label = qobject_cast<const QLabel *>(control);
        if (qobject_cast<const QAbstractButton *>(control) || (label && label->buddy()))
            captions += control->property("text").toString();
    }
    verifyAccessKeysDiffer(captions, window.objectName());
}
