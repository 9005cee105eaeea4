// What every dialog with fields to check shares.
#pragma once

#include <QDialog>

#include <functional>
#include <vector>

class Messages;
class QDateTimeEdit;
class QLabel;
class QLineEdit;
class QPushButton;
class Session;

/// A modal form with OK, Cancel and Help. A window states its fields and its checks in the order
/// in which they are tried; what OK does once they pass is accept(), which begins with Validate().
class FormDialog : public QDialog
{
    Q_OBJECT

protected:
    struct FieldCheck
    {
        QWidget *field;
        QString message;
        std::function<bool()> passes;
    };

    FormDialog(Session &session, Messages &messages, const QString &name, const QString &caption,
               QWidget *parent);
    /// Before there is a session: without session() and the checks of numbers.
    FormDialog(Messages &messages, const QString &name, const QString &caption, QWidget *parent);

    /// Tries the checks in their order; reports the first that fails and moves the focus there.
    virtual bool Validate();

    void addCheck(QWidget *field, const QString &message, std::function<bool()> passes);
    /// Fails for what is no number in the user's locale.
    void checkNumber(QLineEdit *box, const QString &message);
    // Of these the usual message is composed from the field's name.
    /// Fails for blanks alone.
    void checkSpecified(QLineEdit *box, const QString &field);
    /// Fails for what is no number in the user's locale.
    void checkNumeric(QLineEdit *box, const QString &field);
    /// The same, but an empty box passes.
    void checkNumericOrEmpty(QLineEdit *box, const QString &field);
    /// Fails for a half-typed date or time and takes a whole one.
    void checkTyped(QDateTimeEdit *picker, const QString &field);
    /// Says what is wrong with a field and moves the focus there.
    void refuse(QWidget *field, const QString &message);

    /// A text box for a number or a short text, named for tests and screen readers.
    QLineEdit *makeBox(const QString &name, const QString &accessibleName);
    /// Beside a chooser: makes a record of the kind that it offers.
    QPushButton *makeNewButton(const QString &name, const QString &caption);
    /// A field's label with its access key.
    QLabel *makeLabel(const QString &caption, QWidget *field);
    /// Puts the form and, below it, the OK, Cancel and Help buttons into the dialog. The Tab key
    /// goes through the fields in the order in which they were made with the dialog as parent.
    void setForm(QLayout *form);
    /// For the opening; left to itself, a dialog would give the focus to its default button.
    void focusFirstField();

    /// As wide as its title needs, too.
    QSize sizeHint() const override;
    /// On a screen too small for the form the form scrolls, and the buttons stay in sight.
    void showEvent(QShowEvent *event) override;

    Session &session() const { return *m_session; }
    Messages &messages() const { return m_messages; }

    QPushButton *btnOK = nullptr; ///< these three are made by setForm()
    QPushButton *btnCancel = nullptr;
    QPushButton *btnHelp = nullptr;

private:
    QLayout *makeButtons();
    void letFormScroll();

    Session *m_session = nullptr;
    Messages &m_messages;
    std::vector<FieldCheck> m_checks;
};
