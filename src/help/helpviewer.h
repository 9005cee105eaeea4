// The pages of Corvana.hlp.
#pragma once

#include <QDialog>

/// Shows one page and follows the links between them.
class HelpViewer : public QDialog
{
    Q_OBJECT

public:
    HelpViewer(const QString &page, QWidget *parent);

    /// Whether the opened help file holds a page of this name.
    static bool hasPage(const QString &page);
};

/// Opens the help file, if it is not open yet, and shows a page modally: the contents for an
/// empty or unknown name. Says so where the file is missing or damaged.
void showHelp(QWidget *parent, const QString &helpFile, const QString &page);
