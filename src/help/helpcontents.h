// The contents tree of the help.
#pragma once

#include "help/helppages.h"

#include <QTreeWidget>

/// The groups of the contents page with their pages.
class HelpContents : public QTreeWidget
{
    Q_OBJECT

public:
    explicit HelpContents(const std::vector<HelpGroup> &groups, QWidget *parent = nullptr);

    /// Selects the entry of the page shown; nothing where the contents don't name it.
    void follow(const QString &page);

Q_SIGNALS:
    /// The user has gone to the entry of a page.
    void pageChosen(const QString &page);
};
