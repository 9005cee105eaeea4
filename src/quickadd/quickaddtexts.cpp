#include "quickadd/quickaddtexts.h"

#include "session/excerpt.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace {

struct QuickAddTexts
{
    Q_DECLARE_TR_FUNCTIONS(QuickAddTexts)
};

QString joined(const QStringList &parts)
{
    return parts.join(u" \u00B7 "_s);
}

QString amountText(const Amount &amount, const LocaleText &text)
{
    const QString value = text.toText(amount.value);
    switch (amount.measure) {
    case Measure::Weight:
        return QuickAddTexts::tr("weight %1 g").arg(value);
    case Measure::Volume:
        return QuickAddTexts::tr("volume %1 ml").arg(value);
    default:
        return QuickAddTexts::tr("%1 kcal").arg(value);
    }
}

QString timesText(const QuickEntry &entry, const LocaleText &text)
{
    const QString begin = text.listTime(entry.begin);
    return entry.end.isValid() ? begin + u'\u2013' + text.listTime(entry.end) : begin;
}

} // namespace

QString understoodText(const QuickText &line, const LocaleText &text)
{
    QStringList parts;
    if (line.quantity)
        parts += QuickAddTexts::tr("quantity %1").arg(text.toText(*line.quantity));
    if (line.amount)
        parts += amountText(*line.amount, text);
    if (line.minutes)
        parts += QuickAddTexts::tr("%1 min long").arg(text.toText(*line.minutes));
    if (line.end)
        parts += QuickAddTexts::tr("from %1 to %2")
                     .arg(text.listTime(*line.time), text.listTime(*line.end));
    else if (line.time)
        parts += QuickAddTexts::tr("time %1").arg(text.listTime(*line.time));
    if (!line.unread.isEmpty())
        parts += QuickAddTexts::tr("can't be read: %1").arg(line.unread.join(u", "_s));
    return parts.isEmpty() ? QString() : QuickAddTexts::tr("Understood: %1").arg(joined(parts));
}

QString quantityText(const Recordable &record, const QuickEntry &entry, const LocaleText &text)
{
    return joined({QuickAddTexts::tr("%1 \u00D7 %2, %3")
                       .arg(text.toText(entry.quantity), excerptOf(record.name, 80),
                            excerptOf(record.unit, 40)),
                   QuickAddTexts::tr("%1 kcal").arg(text.toText(int(entry.calories)))});
}

QString entryText(const Recordable &record, const QuickEntry &entry, const LocaleText &text)
{
    if (!entry.isValid())
        return entry.problem;
    return joined({quantityText(record, entry, text), timesText(entry, text)});
}

QString storeText(const Recordable &record, const QuickEntry &entry, QDate day,
                  const LocaleText &text)
{
    const QString what = entryText(record, entry, text);
    if (!entry.isValid())
        return what;
    return joined({what, text.locale().dayName(day.dayOfWeek()) + u", "_s + text.mediumDate(day)});
}
