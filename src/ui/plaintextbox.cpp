#include "ui/plaintextbox.h"

#include <QMimeData>

namespace {

bool hasEndlessWord(const QString &text)
{
    constexpr qsizetype longestWord = 1000;
    qsizetype length = 0;
    for (const QChar c : text) {
        length = c.isSpace() ? 0 : length + 1;
        if (length > longestWord)
            return true;
    }
    return false;
}

} // namespace

void PlainTextBox::setText(const QString &text)
{
    wrapFor(text);
    setPlainText(text);
}

void PlainTextBox::insertFromMimeData(const QMimeData *source)
{
    wrapFor(source->text());
    QPlainTextEdit::insertFromMimeData(source);
}

// Before the text is in the box, which lays it out at once.
void PlainTextBox::wrapFor(const QString &text)
{
    if (hasEndlessWord(text))
        setWordWrapMode(QTextOption::WrapAnywhere);
}
