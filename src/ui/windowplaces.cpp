#include "ui/windowplaces.h"

#include "session/installation.h"

#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

#include <algorithm>
#include <optional>

namespace {

bool isKept(const QString &window)
{
    constexpr const char *kept[] = {"frmMain",         "frmMealCategories",  "frmMeals",
                                    "frmExercises",    "frmMealConsumes",    "frmExercisePerforms",
                                    "frmMeasurements", "frmGeneralProgress", "helpViewer"};
    return std::any_of(std::begin(kept), std::end(kept),
                       [&](const char *name) { return window == QLatin1String(name); });
}

/// Without the frame, whose size is not known before a window is shown; what it goes back to where
/// it fills the screen. In the file it is "120 80 1020 720 maximized".
struct Place
{
    QRect geometry;
    bool isMaximized = false;
};

QString toText(const Place &place)
{
    const QRect &at = place.geometry;
    const auto numbers = QStringLiteral("%1 %2 %3 %4");
    return numbers.arg(at.left()).arg(at.top()).arg(at.width()).arg(at.height()) +
           (place.isMaximized ? QStringLiteral(" maximized") : QString());
}

/// Nothing for what is no place, edited by hand or cut off.
std::optional<Place> fromText(const QString &text)
{
    const QStringList words = text.split(u' ');
    int numbers[4] = {};
    for (int i = 0; i < 4; ++i) {
        bool isNumber = false;
        numbers[i] = words.value(i).toInt(&isNumber);
        if (!isNumber)
            return std::nullopt;
    }
    const QRect geometry(numbers[0], numbers[1], numbers[2], numbers[3]);
    if (geometry.isEmpty())
        return std::nullopt;
    return Place{geometry, words.value(4) == QLatin1String("maximized")};
}

Place placeOf(const QWidget &window)
{
    const bool isMaximized = window.isMaximized();
    return {isMaximized ? window.normalGeometry() : window.geometry(), isMaximized};
}

void apply(const Place &place, QWidget &window)
{
    // A window is got hold of by its title, above this point.
    const QPoint top(place.geometry.center().x(), place.geometry.top());
    if (QGuiApplication::screenAt(top))
        window.setGeometry(place.geometry);
    else
        window.resize(place.geometry.size());
    if (place.isMaximized)
        window.setWindowState(window.windowState() | Qt::WindowMaximized);
}

} // namespace

WindowPlaces::WindowPlaces(const QString &programFolder, QObject *parent)
    : QObject(parent)
    , m_programFolder(programFolder)
{
}

bool WindowPlaces::eventFilter(QObject *watched, QEvent *event)
{
    const bool isShown = event->type() == QEvent::Show;
    if ((!isShown && event->type() != QEvent::Hide) || event->spontaneous() ||
        !isKept(watched->objectName()))
        return false;
    auto *window = static_cast<QWidget *>(watched);
    Installation installation(m_programFolder);
    const QString key = QStringLiteral("Windows/") + window->objectName();
    const QString kept = installation.value(key);
    if (isShown) {
        if (const std::optional<Place> place = fromText(kept))
            apply(*place, *window);
    } else if (const QString left = toText(placeOf(*window)); left != kept) {
        installation.setValue(key, left);
    }
    return false;
}
