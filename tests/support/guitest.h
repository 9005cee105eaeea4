// Driving real windows from tests.
#pragma once

#include "ui/messages.h"

#include <QApplication>
#include <QImage>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>
#include <QWidget>

#include <functional>
#include <vector>

/// Keeps what the program says and answers its questions, No unless told otherwise.
class RecordedMessages : public Messages
{
public:
    struct Said
    {
        Icon icon;
        QString title;
        QString text;
        QString cause = {};
        bool isQuestion = false;
    };

    RecordedMessages();
    ~RecordedMessages() override;

    void show(QWidget *, Icon icon, const QString &title, const QString &text,
              const QString &cause) override;
    bool ask(QWidget *, const QString &title, const QString &text) override;

    /// The text said last, and forgets everything; empty where nothing was said.
    QString takeText();

    std::vector<Said> said;
    QList<bool> answers; ///< for the next questions, in their order
};

/// The control of this name; ends the test where there is none.
template<typename Control>
Control &control(const QWidget &window, const char *name)
{
    auto *found = window.findChild<Control *>(QLatin1String(name));
    if (!found)
        qFatal("%s has no control %s", qPrintable(window.objectName()), name);
    return *found;
}

/// The share of a rectangle's dots in a picture that have exactly this colour.
double share(const QImage &picture, const QRectF &rect, const QColor &color);

/// Gives a widget the same font on every system: what it paints depends on that.
void setTestFont(QWidget &widget);

/// Types as a person does: focus, select all, keys.
void typeInto(QWidget &field, const QString &text);

/// Gives a window the focus, as a window manager would.
void activate(QWidget &window);

/// A key as it comes from the keyboard: to the open popup or else the widget that has the focus.
inline void pressKey(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
                     const QString &text = {})
{
    const auto receiver = [] {
        QWidget *const popup = QApplication::activePopupWidget();
        if (!popup)
            return QApplication::focusWidget();
        return popup->focusWidget() ? popup->focusWidget() : popup;
    };
    QVERIFY2(QTest::qWaitFor([&] { return receiver() != nullptr; }), "no focus");
    if (text.isEmpty())
        QTest::keyClick(receiver(), key, modifiers);
    else
        QTest::sendKeyEvent(QTest::Click, receiver(), key, text, modifiers);
    QCoreApplication::processEvents();
}
/// Keys to the field that has the focus: < deletes, > walks on, ^ selects all.
void typeKeys(const QString &text);

/// The wheel turned up over a field, wherever the focus is.
void turnWheelOver(QWidget &field);

/// Runs `open`, which shows a modal dialog of the given name, and `steps` on that dialog as soon
/// as it has the focus; a dialog that the steps leave open is rejected. Dialogs may be nested: call
/// it again from within the steps. Fails where the dialog does not appear within five seconds.
void inDialog(const char *name, const std::function<void()> &open,
              const std::function<void(QWidget &)> &steps);
