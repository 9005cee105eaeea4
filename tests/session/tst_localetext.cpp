// Numbers, dates and times in several locales, both ways.
#include "session/localetext.h"

#include <QTest>

namespace {

LocaleText textOf(const char *locale)
{
    return LocaleText(QLocale(QString::fromLatin1(locale)));
}

} // namespace

class tst_localetext : public QObject
{
    Q_OBJECT

private slots:
    void readsNumbers()
    {
        // Without a number: refused. Group separators are, whatever the locale.
        const std::tuple<const char *, QString, QString> inputs[] = {
            {"en_GB", u" 7 "_qs, u"7"_qs},
            {"en_GB", u"1,500"_qs, {}},
            {"en_GB", u"5²"_qs, {}},
            {"en_GB", u"1e3"_qs, {}},
            {"en_GB", u"922337203685478"_qs, {}},
            {"de_DE", u"1,5"_qs, u"1.5"_qs},
            {"de_DE", u"1.5"_qs, {}},
            {"de_DE", u"1.500,25"_qs, {}},
            {"fr_FR", u"1\u202F500"_qs, {}},
            {"sv_SE", u"\u22122,5"_qs, u"-2.5"_qs},
            {"ar_EG", u"١٢٫٥"_qs, u"12.5"_qs},
            {"ar_EG", u"\u061C-٥"_qs, u"-5"_qs},
            {"ja_JP", u"１５"_qs, u"15"_qs}};
        for (const auto &[locale, typed, number] : inputs) {
            const LocaleText text = textOf(locale);
            const std::optional<Currency> read = text.toCurrency(typed);
            QVERIFY2((read ? read->toText() : QString()) == number, qPrintable(typed));
            QCOMPARE(text.toDouble(typed).has_value(), read.has_value());
            QCOMPARE(text.toDouble(typed).value_or(0), number.toDouble());
        }
    }

    void writtenNumbersAreRead()
    {
        for (const char *locale : {"en_GB", "de_DE", "fr_FR", "ar_EG"}) {
            const LocaleText text = textOf(locale);
            for (const qint64 units : {0LL, 1LL, -5000LL, -12345675000LL, 9223372036854775807LL}) {
                const auto number = Currency::fromTenThousandths(units);
                QCOMPARE(text.toCurrency(text.toText(number)), number);
            }
        }
        QCOMPARE(textOf("de_DE").toText(Currency::fromInteger(-1234567)), u"-1234567"_qs);
        QCOMPARE(textOf("de_DE").toText(1.1f), u"1,1"_qs);
        QCOMPARE(textOf("en_GB").toText(16777216.0f), u"16777216"_qs);
    }

    void mediumDates()
    {
        const QDate date(2026, 7, 22);
        QCOMPARE(textOf("en_US").mediumDate(date), u"Jul 22, 2026"_qs);
        QCOMPARE(textOf("es_ES").mediumDate(date), u"22 de jul de 2026"_qs);
        QCOMPARE(textOf("ja_JP").mediumDate(date), u"2026年7月22日"_qs);
        // Whatever a locale puts around them: day and year are there, the day of the week is not.
        for (const QLocale &locale : QLocale::matchingLocales(
                 QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyTerritory)) {
            const QString text = LocaleText(locale).mediumDate(date);
            QString digits;
            for (const char32_t c : text.toStdU32String()) {
                if (QChar::isDigit(c))
                    digits += QString::number(QChar::digitValue(c));
            }
            QVERIFY2(digits.contains(u"22"_qs) && digits.contains(u"2026"_qs), qPrintable(text));
            // A day of the week may be a single letter, found in the name of a month too.
            const QString weekday = locale.dayName(date.dayOfWeek());
            QVERIFY2(weekday.size() < 3 || !text.contains(weekday), qPrintable(text));
        }
    }

    void clockFormat()
    {
        const auto time = [](const char *locale, int hour, int minute) {
            return textOf(locale).listTime(QTime(hour, minute, 59));
        };
        QCOMPARE(time("de_DE", 0, 0), u"00:00"_qs);
        QCOMPARE(time("de_DE", 23, 15), u"23:15"_qs);
        QCOMPARE(time("en_US", 0, 5), u"12:05 am"_qs);
        QCOMPARE(time("en_US", 12, 0), u"12:00 pm"_qs);
        QCOMPARE(time("ar_EG", 8, 5), u"٨:٠٥ am"_qs);
    }
};

QTEST_APPLESS_MAIN(tst_localetext)
#include "tst_localetext.moc"
