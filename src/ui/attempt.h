// Handlers that touch the store: what they throw is said where it arises.
#pragma once

#include <QString>

#include <exception>
#include <functional>

class Messages;
class QWidget;

/// Why something was refused, in a sentence for the user; empty where the program knows no more
/// than that it was.
QString causeOf(const std::exception &error);

/// Why some records are not shown, in a sentence each: those with an identifier out of range, and
/// those behind a damaged page of the file. Empty where none are missing.
QString whatIsMissing(size_t leftOut, bool isCutShort);

/// Says what was not done, by default the last action, and why.
void tellFailure(QWidget *window, Messages &messages, const std::exception &error,
                 const QString &failure = {});

/// Runs what a handler does. What it throws is shown, below the words that say what was not done,
/// and goes no further: an exception must not travel through the event loop that called the
/// handler. True where nothing was thrown.
bool attempt(QWidget *window, Messages &messages, const std::function<void()> &action,
             const QString &failure = {});

/// A handler for connect(): a window's method run as an attempt.
template<typename Window, typename... Arguments>
auto attempting(Window *window, Messages &messages, void (Window::*method)(Arguments...))
{
    return [window, &messages, method](Arguments... arguments) {
        attempt(window, messages, [&] { (window->*method)(arguments...); });
    };
}
