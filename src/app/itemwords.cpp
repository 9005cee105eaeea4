#include "app/itemwords.h"

#include "session/excerpt.h"
#include "session/localetext.h"

#include <QCoreApplication>

namespace {

QString lineOf(const QString &text)
{
    constexpr qsizetype most = 60; // characters
    return excerptOf(text.trimmed(), most).simplified();
}

} // namespace

daychart::ItemWords itemWords(const LocaleText &text, const QString &name, const Value &quantity,
                              const QString &unit)
{
    const QString number = lineOf(text.toText(quantity));
    const QString of = lineOf(unit);
    // "2 100 g" would be read as one number.
    const QString both = !of.isEmpty() && of.front().isDigit()
                             ? QCoreApplication::translate("itemWords", "%1 × %2")
                             : QCoreApplication::translate("itemWords", "%1 %2");
    return {lineOf(name), number.isEmpty() ? number : both.arg(number, of).trimmed()};
}
