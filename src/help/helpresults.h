// The pages that a search of the help has found.
#pragma once

#include "help/helpsearch.h"

#include <QListWidget>

/// Lists pages by title, each with an excerpt.
class HelpResults : public QListWidget
{
    Q_OBJECT

public:
    explicit HelpResults(QWidget *parent = nullptr);

    /// Goes to none of them.
    void setPages(const std::vector<FoundPage> &pages);
    /// Selects a page that is shown already; nothing where it is none of them.
    void follow(const QString &page);
    bool isEmpty() const { return count() == 0; }
    /// The page so many places after the current one, before the first after the last; with none
    /// current the first, or the last where the step is negative.
    QString pageAt(int step) const;

Q_SIGNALS:
    /// The user has gone to a page.
    void pageChosen(const QString &page);
};
