// Driving real windows from tests.
#pragma once

#include "ui/messages.h"

#include <QApplication>
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

    void show(QWidget *, Icon icon, const QString &title, const QString &text,
              const QString &cause) override
    {
        said.push_back({icon, title, text, cause});
    }
    bool ask(QWidget *, const QString &title, const QString &text) override
    {
        said.push_back({Icon::Information, title, text, {}, true});
        return !answers.isEmpty() && answers.takeFirst();
    }

    /// The text said last, and forgets everything; empty where nothing was said.
    QString takeText()
    {
        const QString text = said.empty() ? QString() : said.back().text;
        said.clear();
        return text;
    }

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

/// Types as a person does: focus, select all, keys.
inline void typeInto(QWidget &field, const QString &text)
{
    field.setFocus();
    QTest::keyClick(&field, Qt::Key_A, Qt::ControlModifier);
    if (text.isEmpty())
        QTest::keyClick(&field, Qt::Key_Delete);
    else
        QTest::keyClicks(&field, text);
}

/// Gives a window the focus, as a window manager would.
inline void activate(QWidget &window)
{
    window.activateWindow();
    if (!QTest::qWaitForWindowActive(&window))
        qFatal("%s does not get the focus", qPrintable(window.objectName()));
}

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
inline void typeKeys(const QString &text)
{
    for (const QChar c : text) {
        if (c == u'<')
            pressKey(Qt::Key_Backspace);
        else if (c == u'>')
            pressKey(Qt::Key_Right);
        else if (c == u'^')
            pressKey(Qt::Key_A, Qt::ControlModifier);
        else
            pressKey(Qt::Key(c.toUpper().unicode()), Qt::NoModifier, c);
    }
}

/// The wheel turned up over a field, wherever the focus is.
inline void turnWheelOver(QWidget &field)
{
    QWheelEvent wheel({}, {}, {}, QPoint(0, 120), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                      false);
    QApplication::sendEvent(&field, &wheel);
}

/// Runs `open`, which shows a modal dialog of the given name, and `steps` on that dialog as soon
/// as it has the focus; a dialog that the steps leave open is rejected. Dialogs may be nested: call
/// it again from within the steps. Fails where the dialog does not appear within five seconds.
inline void inDialog(const char *name, const std::function<void()> &open,
                     const std::function<void(QWidget &)> &steps)
{
    bool appeared = false;
    int waited = 0;
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, [&] {
        QWidget *dialog = QApplication::activeModalWidget();
        if (!dialog || !dialog->isVisible() || dialog->objectName() != QLatin1String(name)) {
            if (++waited > 1000 && dialog) {
                poll.stop();
                dialog->close(); // another one: let `open` return and the check below fail
            }
            return;
        }
        poll.stop();
        appeared = true;
        activate(*dialog);
        steps(*dialog);
        if (dialog->isVisible())
            dialog->close();
    });
    poll.start(5);
    open();
    QVERIFY2(appeared, name);
    if (QWidget *opener = QApplication::activeModalWidget())
        activate(*opener);
}
