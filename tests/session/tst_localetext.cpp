// Numbers, dates and times in several locales, both ways.
#include "session/localetext.h"
#include "session/typeddatetime.h"

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
        // Without a number: refused, as group separators in a wrong place are.
        const std::tuple<const char *, QString, QString> inputs[] = {
            {"en_GB", u"1,500"_qs, u"1500"_qs},
            {"en_GB", u"1,5"_qs, {}},
            {"en_GB", u"1.5,000"_qs, {}},
            {"en_IN", u"1,50,000"_qs, u"150000"_qs},
            {"en_GB", u"1e3"_qs, {}},
            {"en_GB", u"922337203685478"_qs, {}},
            {"de_DE", u"1,5"_qs, u"1.5"_qs},
            {"de_DE", u"1.5"_qs, {}},
            {"de_DE", u"-1.234.500,25"_qs, u"-1234500.25"_qs},
            {"de_DE", u"0.500"_qs, {}}, // half of something, not five hundred
            {"fr_FR", u"1\u202F500"_qs, u"1500"_qs},
            {"fr_FR", u"1 500,5"_qs, u"1500.5"_qs},
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
        QCOMPARE(textOf("de_DE").toText(1.1f - 1.0f), u"0,1"_qs);
        QCOMPARE(textOf("en_GB").toText(16777216.0f), u"16777216"_qs);
    }

    void mediumDates()
    {
        const QDate date(2026, 7, 22);
        QCOMPARE(textOf("en_US").mediumDate(date), u"Jul 22, 2026"_qs);
        QCOMPARE(textOf("es_ES").mediumDate(date), u"22 de jul de 2026"_qs);
        QCOMPARE(textOf("ja_JP").mediumDate(date), u"2026年7月22日"_qs);
    }

    void readsDates()
    {
        // Typed as the locale writes it, with other separators, without, with half of the year.
        const std::tuple<const char *, QString, QDate> inputs[] = {
            {"en_US", u"5/3/2025"_qs, {2025, 5, 3}},
            {"en_US", u"05032025"_qs, {2025, 5, 3}},
            {"en_US", u"13/5/2025"_qs, {}},
            {"de_DE", u"3-5-25"_qs, {2025, 5, 3}},
            {"de_DE", u"030525"_qs, {2025, 5, 3}},
            {"de_DE", u"3.5.47"_qs, {1947, 5, 3}},
            {"de_DE", u"3.5.46"_qs, {2046, 5, 3}},
            {"de_DE", u"3.5.20"_qs, {}}, // perhaps of 2026
            {"de_DE", u"3052025"_qs, {}},
            {"de_DE", u"29.2.2025"_qs, {}},
            {"de_DE", u"3. Mai 2025"_qs, {2025, 5, 3}},
            {"de_DE", u"3.5.2025 x"_qs, {}},
            {"sv_SE", u"25-05-03"_qs, {2025, 5, 3}},
            {"sv_SE", u"03-05-2025"_qs, {}}, // either way round
            {"ja_JP", u"２０２５/5/3"_qs, {2025, 5, 3}},
            {"hu_HU", u"2025. 05. 03."_qs, {2025, 5, 3}},
            {"ar_EG", u"٣/٥/٢٠٢٥"_qs, {2025, 5, 3}},
            {"C", u"3 may 2025"_qs, {2025, 5, 3}}};
        for (const auto &[name, typed, date] : inputs) {
            const QLocale locale{QString::fromLatin1(name)};
            const QString format = LocaleText(locale).dateInputFormat();
            QVERIFY2(readDate(typed, locale, format, QDate(2026, 7, 22)).value_or(QDate()) == date,
                     qPrintable(typed));
        }
    }

    void datesOfEveryLocale()
    {
        const QDate date(2026, 7, 22);
        for (const QLocale &locale : QLocale::matchingLocales(
                 QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyTerritory)) {
            const QString format = LocaleText(locale).dateInputFormat();
            QVERIFY2(readDate(locale.toString(date, format), locale, format, date) == date,
                     qPrintable(locale.name()));
            // Whatever stands around them: day and year are there, the day of the week is not.
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

    void readsTimes()
    {
        const std::tuple<const char *, QString, QTime> inputs[] = {
            {"de_DE", u"6.5"_qs, {6, 5}},         {"de_DE", u"7"_qs, {}},
            {"de_DE", u"7:30:15"_qs, {}},         {"de_DE", u"7:30 p"_qs, {19, 30}},
            {"en_US", u"7pm"_qs, {19, 0}},        {"en_US", u"7: pm"_qs, {}},
            {"en_US", u"15:30 am"_qs, {15, 30}}, // the hour tells it
            {"en_US", u"7:30 x"_qs, {}},          {"ar_EG", u"٧:٣٠ م"_qs, {19, 30}},
            {"es_MX", u"7:30 p. m."_qs, {19, 30}}};
        for (const auto &[name, typed, time] : inputs) {
            const QLocale locale{QString::fromLatin1(name)};
            const bool is24HourClock = LocaleText(locale).is24HourClock();
            QVERIFY2(readTime(typed, locale, is24HourClock).value_or(QTime()) == time,
                     qPrintable(typed));
        }
    }

    void spans()
    {
        for (const auto &[typed, minutes] : {std::pair(u"1:30"_qs, 90),
                                             {u" 0 : 05 "_qs, 5},
                                             {u"23:59"_qs, 1439},
                                             {u"٢:٠٥"_qs, 125},
                                             {u"00:00"_qs, 0}})
            QCOMPARE(readSpan(typed).value_or(-1), minutes);
        for (const auto &doubtful : {u""_qs, u"90"_qs, u"130"_qs, u"1:5"_qs, u"1,5"_qs, u"1.30"_qs,
                                     u"-1:30"_qs, u"1:60"_qs, u"24:00"_qs, u"1:30 pm"_qs})
            QVERIFY2(!readSpan(doubtful), qPrintable(doubtful));
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
