// Numbers, dates and times in several locales, both ways.
#include "session/localetext.h"

#include <QTest>

namespace {

LocaleText textOf(const QString &locale)
{
    return LocaleText(QLocale(locale));
}

Currency decimal(const char *text)
{
    return Currency::fromText(QString::fromLatin1(text)).value();
}

} // namespace

class tst_localetext : public QObject
{
    Q_OBJECT

private slots:
    void readsNumbers_data();
    void readsNumbers();
    void writtenNumbersAreRead_data();
    void writtenNumbersAreRead();
    void writesFloats();
    void mediumDates_data();
    void mediumDates();
    void mediumDatesAreWholeEverywhere();
    void clockFormat_data();
    void clockFormat();
};

void tst_localetext::readsNumbers_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("number"); // empty: refused

    QTest::newRow("English") << u"en_GB"_qs << u"1.5"_qs << u"1.5"_qs;
    QTest::newRow("English comma") << u"en_GB"_qs << u"1,5"_qs << QString();
    QTest::newRow("English group") << u"en_GB"_qs << u"1,500"_qs << QString();
    QTest::newRow("German") << u"de_DE"_qs << u"1,5"_qs << u"1.5"_qs;
    QTest::newRow("German point") << u"de_DE"_qs << u"1.5"_qs << QString();
    QTest::newRow("German group") << u"de_DE"_qs << u"1.500"_qs << QString();
    QTest::newRow("German group and decimals") << u"de_DE"_qs << u"1.500,25"_qs << QString();
    QTest::newRow("Swiss") << u"de_CH"_qs << u"1.5"_qs << u"1.5"_qs;
    QTest::newRow("Swiss group") << u"de_CH"_qs << u"1’500"_qs << QString();
    QTest::newRow("French") << u"fr_FR"_qs << u"-0,25"_qs << u"-0.25"_qs;
    QTest::newRow("French group") << u"fr_FR"_qs << u"1\u202F500"_qs << QString();
    QTest::newRow("French group, as typed") << u"fr_FR"_qs << u"1 500"_qs << QString();
    QTest::newRow("Swedish minus sign") << u"sv_SE"_qs << u"\u22122,5"_qs << u"-2.5"_qs;
    QTest::newRow("Arabic digits") << u"ar_EG"_qs << u"١٢٫٥"_qs << u"12.5"_qs;
    QTest::newRow("Arabic negative") << u"ar_EG"_qs << u"\u061C-٥"_qs << u"-5"_qs;
    QTest::newRow("ASCII digits in Arabic") << u"ar_EG"_qs << u"12"_qs << u"12"_qs;
    QTest::newRow("full-width digits") << u"ja_JP"_qs << u"１５"_qs << u"15"_qs;
    QTest::newRow("blanks around") << u"en_GB"_qs << u" 7 "_qs << u"7"_qs;
    QTest::newRow("superscript") << u"en_GB"_qs << u"5²"_qs << QString();
    QTest::newRow("exponent") << u"en_GB"_qs << u"1e3"_qs << QString();
    QTest::newRow("empty") << u"en_GB"_qs << QString() << QString();
    QTest::newRow("blanks") << u"en_GB"_qs << u"  "_qs << QString();
    QTest::newRow("out of range") << u"en_GB"_qs << u"922337203685478"_qs << QString();
}

void tst_localetext::readsNumbers()
{
    QFETCH(QString, locale);
    QFETCH(QString, typed);
    QFETCH(QString, number);
    const LocaleText text = textOf(locale);
    const std::optional<Currency> read = text.toCurrency(typed);
    QCOMPARE(read ? read->toText() : QString(), number);
    QCOMPARE(text.isNumeric(typed), !number.isEmpty());
    QCOMPARE(text.toDouble(typed).has_value(), !number.isEmpty());
    if (!number.isEmpty())
        QCOMPARE(*text.toDouble(typed), number.toDouble());
}

void tst_localetext::writtenNumbersAreRead_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("written");
    QTest::newRow("English") << u"en_GB"_qs << u"-1234567.5"_qs;
    QTest::newRow("German") << u"de_DE"_qs << u"-1234567,5"_qs;
    QTest::newRow("French") << u"fr_FR"_qs << u"-1234567,5"_qs;
    QTest::newRow("Arabic") << u"ar_EG"_qs << u"-١٢٣٤٥٦٧٫٥"_qs;
}

void tst_localetext::writtenNumbersAreRead()
{
    QFETCH(QString, locale);
    const LocaleText text = textOf(locale);
    QTEST(text.toText(decimal("-1234567.5")), "written"); // no groups
    for (const char *number : {"0", "0.0001", "-0.5", "922337203685477.5807", "100"})
        QCOMPARE(text.toCurrency(text.toText(decimal(number))), decimal(number));
    QCOMPARE(text.toCurrency(text.toText(42)), decimal("42"));
    QCOMPARE(text.toCurrency(text.toText(0.1 + 0.2)), decimal("0.3"));
}

void tst_localetext::writesFloats()
{
    QCOMPARE(textOf(u"en_GB"_qs).toText(0.1f), u"0.1"_qs);
    QCOMPARE(textOf(u"de_DE"_qs).toText(1.1f), u"1,1"_qs);
    QCOMPARE(textOf(u"en_GB"_qs).toText(16777216.0f), u"16777216"_qs);
    QVERIFY(textOf(u"en_GB"_qs).toText(std::numeric_limits<float>::max()).startsWith(u"34028"_qs));
}

void tst_localetext::mediumDates_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("date");
    QTest::newRow("British") << u"en_GB"_qs << u"22 Jul 2026"_qs;
    QTest::newRow("American") << u"en_US"_qs << u"Jul 22, 2026"_qs;
    QTest::newRow("German") << u"de_DE"_qs << u"22. Juli 2026"_qs;
    QTest::newRow("Danish") << u"da_DK"_qs << u"22. jul. 2026"_qs;
    QTest::newRow("French") << u"fr_FR"_qs << u"22 juil. 2026"_qs;
    QTest::newRow("Spanish") << u"es_ES"_qs << u"22 de jul de 2026"_qs;
    QTest::newRow("Russian") << u"ru_RU"_qs << u"22 июл. 2026 г."_qs;
    QTest::newRow("Hungarian") << u"hu_HU"_qs << u"2026. júl. 22."_qs;
    QTest::newRow("Lithuanian") << u"lt_LT"_qs << u"2026 m. liep. 22 d."_qs;
    QTest::newRow("Japanese") << u"ja_JP"_qs << u"2026年7月22日"_qs;
    QTest::newRow("Chinese") << u"zh_CN"_qs << u"2026年7月22日"_qs;
    QTest::newRow("Korean") << u"ko_KR"_qs << u"2026년 7월 22일"_qs;
    QTest::newRow("Arabic") << u"ar_EG"_qs << u"٢٢ يوليو ٢٠٢٦"_qs;
}

void tst_localetext::mediumDates()
{
    QFETCH(QString, locale);
    QTEST(textOf(locale).mediumDate(QDate(2026, 7, 22)), "date");
}

// Whatever a locale puts around them: the day and the year are there, the day of the week is not.
void tst_localetext::mediumDatesAreWholeEverywhere()
{
    const QDate date(2026, 7, 22);
    for (const QLocale &locale : QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript,
                                                          QLocale::AnyTerritory)) {
        const QString text = LocaleText(locale).mediumDate(date);
        QString digits;
        for (const char32_t c : text.toStdU32String()) {
            if (QChar::isDigit(c))
                digits += QString::number(QChar::digitValue(c));
        }
        QVERIFY2(digits.contains(u"22"_qs) && digits.contains(u"2026"_qs), qPrintable(text));
        const QString weekday = locale.dayName(date.dayOfWeek());
        // A day of the week may be a single letter, found in the name of a month too.
        QVERIFY2(weekday.size() < 3 || !text.contains(weekday), qPrintable(text));
    }
}

void tst_localetext::clockFormat_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<bool>("is24Hours");
    QTest::addColumn<QString>("morning"); // 8:05
    QTest::addColumn<QString>("midnight");
    QTest::newRow("British") << u"en_GB"_qs << true << u"08:05"_qs << u"00:00"_qs;
    QTest::newRow("German") << u"de_DE"_qs << true << u"08:05"_qs << u"00:00"_qs;
    QTest::newRow("American") << u"en_US"_qs << false << u"8:05 am"_qs << u"12:00 am"_qs;
    QTest::newRow("Arabic") << u"ar_EG"_qs << false << u"٨:٠٥ am"_qs << u"١٢:٠٠ am"_qs;
}

void tst_localetext::clockFormat()
{
    QFETCH(QString, locale);
    const LocaleText text = textOf(locale);
    QTEST(text.is24HourClock(), "is24Hours");
    QTEST(text.listTime(QTime(8, 5, 59)), "morning");
    QTEST(text.listTime(QTime(0, 0)), "midnight");
    const bool is24Hours = text.is24HourClock();
    if (!text.locale().zeroDigit().startsWith(u'0'))
        return;
    QCOMPARE(text.listTime(QTime(12, 0)), is24Hours ? u"12:00"_qs : u"12:00 pm"_qs);
    QCOMPARE(text.listTime(QTime(23, 15)), is24Hours ? u"23:15"_qs : u"11:15 pm"_qs);
}

QTEST_APPLESS_MAIN(tst_localetext)
#include "tst_localetext.moc"
