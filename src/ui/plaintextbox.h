// A box for texts of any length.
#pragma once

#include <QPlainTextEdit>

/// Plain text that wraps at its blanks; one with very long words wraps anywhere, since the search
/// for a place to wrap such words at would take minutes.
class PlainTextBox : public QPlainTextEdit
{
    Q_OBJECT

public:
    using QPlainTextEdit::QPlainTextEdit;

    void setText(const QString &text);

protected:
    void insertFromMimeData(const QMimeData *source) override;

private:
    void wrapFor(const QString &text);
};
