// The window of the help.
#pragma once

#include "help/helppages.h"
#include "help/helpsearch.h"

#include <QDialog>
#include <QLocale>

#include <optional>

class Companion;
class HelpContents;
class HelpResults;
class HelpText;
class QLabel;
class QLineEdit;

/// Shows the pages of the help with their contents as a tree, goes back and forward, and finds
/// words in all of them. It stays open and usable beside the windows that ask for it, modal ones
/// too.
class HelpViewer : public QDialog
{
    Q_OBJECT

public:
    /// The pages' languages are best first.
    HelpViewer(const QString &page, QWidget *parent,
               const QStringList &languages = QLocale::system().uiLanguages());

    /// Whether the opened help file holds a page of this name.
    static bool hasPage(const QString &page);

    void showPage(const QString &page);
    /// Opens it beside the window that asks.
    Companion &companion() { return *m_companion; }

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    QWidget *makeFindRow();
    QWidget *makeSide();
    QLayout *makeButtons();
    void addKeys();
    void arrange();
    void follow(const QString &page);
    void find(const QString &typed);
    void showHit(int hit);
    void goToHit(int step);
    void say(const QString &text);

    HelpPages m_pages;
    std::optional<HelpIndex> m_index; // made when it is first searched
    HelpText *m_text;
    HelpContents *m_contents;
    HelpResults *m_found;
    QLabel *lblFound;
    QLineEdit *txtFind;
    QWidget *m_results = nullptr;
    QWidget *m_side;
    Companion *m_companion;
};

/// Opens the help file, if it is not open yet, and shows a page in the one help window, beside the
/// parent, which is the window that asks. For an unknown name it is the page of the nearest window
/// above that has one, else the contents, as for an empty name. Says so where the file is missing
/// or damaged.
void showHelp(QWidget *parent, const QString &helpFile, const QString &page);
