// The text of a help page.
#pragma once

#include "help/helpsearch.h"

#include <QTextBrowser>

class HelpPages;

/// Shows a page in lines of a readable length, its pictures in the palette's colours and never
/// wider than the text, and marks what was searched. The mouse's back and forward buttons go
/// through the pages that were read.
class HelpText : public QTextBrowser
{
    Q_OBJECT

public:
    /// The pages must outlive it.
    explicit HelpText(const HelpPages &pages, QWidget *parent = nullptr);

    void showPage(const QString &page);
    /// Empty where none has been shown.
    QString page() const { return m_page; }

    /// Marks each of the words on this page and those that are shown after it.
    void mark(const QStringList &words);
    int hitCount() const { return static_cast<int>(m_hits.size()); }
    /// The hit gone to, from 0; -1 where none is.
    int currentHit() const { return m_currentHit; }
    /// Brings a hit into view and marks it before the others.
    void goToHit(int hit);

    QVariant loadResource(int type, const QUrl &url) override;

Q_SIGNALS:
    void pageShown(const QString &page);

protected:
    void changeEvent(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void setStyle();
    void showNew(const QUrl &url);
    void fitWidth();
    void tellPictures();
    void showHits();
    QImage fitted(const QString &picture) const;

    const HelpPages &m_pages;
    QString m_page; // the signal of a new source comes before it is the source
    QStringList m_words;
    std::vector<HelpHit> m_hits;
    int m_currentHit = -1;
};
