// Everything that the program says in message boxes goes through here.
#pragma once

#include <QString>

class QWidget;

/// Handed to each window, so that a test can record what was said and answer questions.
class Messages
{
public:
    enum class Icon
    {
        Information,
        Exclamation,
        Critical
    };

    virtual ~Messages() = default;

    /// Modal, with an OK button. The cause, where it is known, stands below the text.
    virtual void show(QWidget *parent, Icon icon, const QString &title, const QString &text,
                      const QString &cause) = 0;
    void show(QWidget *parent, Icon icon, const QString &title, const QString &text)
    {
        show(parent, icon, title, text, {});
    }
    /// Modal, question icon, Yes and No with No as the default; true only for Yes.
    virtual bool ask(QWidget *parent, const QString &title, const QString &text) = 0;

    /// Title "Error", exclamation icon: a failed check or a refused change.
    void error(QWidget *parent, const QString &text, const QString &cause = {});
    /// Information icon, the program's name as the title.
    void information(QWidget *parent, const QString &text);
};

/// The real ones.
class MessageBoxes : public Messages
{
public:
    void show(QWidget *parent, Icon icon, const QString &title, const QString &text,
              const QString &cause) override;
    bool ask(QWidget *parent, const QString &title, const QString &text) override;
};
