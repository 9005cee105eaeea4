// What a line of Quick Add is read as, and what would be stored of it.
#include "quickadd/quickaddtexts.h"

#include <QTest>

using namespace Qt::Literals;

namespace {

LocaleText textOf(const char *locale)
{
    return LocaleText(QLocale(QString::fromLatin1(locale)));
}

QString readIn(const char *locale, const QString &line)
{
    const LocaleText text = textOf(locale);
    const QuickText read = QuickTextReader(text).read(line);
    return read.words.join(u'+') + u'|' + understoodText(read, text).section(u": "_qs, 1);
}

Recordable meal(const QString &name, const QString &unit, double calories)
{
    Recordable record;
    record.name = name;
    record.unit = unit;
    record.usualQuantity = Currency::fromInteger(3);
    record.shares = {calories / 2, calories / 4, calories / 4};
    return record;
}

Recordable activity(const QString &unit, double calories, std::optional<int> minutes = {})
{
    Recordable record = meal(u"Rowing"_qs, unit, 0);
    record.kind = Recordable::Kind::Activity;
    record.burned = calories;
    record.minutes = minutes;
    return record;
}

// At 12:30.
QString stored(const Recordable &record, const QString &line, const char *locale = "en_GB")
{
    const LocaleText text = textOf(locale);
    return entryText(record, entryOf(QuickTextReader(text).read(line), record, QTime(12, 30)),
                     text);
}

} // namespace

class tst_quicktext : public QObject
{
    Q_OBJECT

private slots:
    void readsLines()
    {
        const std::tuple<const char *, QString, QString> lines[] = {
            {"en_GB", u""_qs, u"|"_qs},
            {"en_GB", u"2 Banana"_qs, u"banana|quantity 2"_qs},
            {"en_GB", u"crème  BRÛLÉE, 1.5"_qs, u"creme+brulee|quantity 1.5"_qs},
            {"en_GB", u"2x egg 8:15"_qs, u"egg|quantity 2 · time 08:15"_qs},
            {"en_GB", u"x 2"_qs, u"x|quantity 2"_qs},
            {"en_GB", u"rye 150g"_qs, u"rye|weight 150 g"_qs},
            {"en_GB", u"2 oz rye"_qs, u"rye|weight 56.699 g"_qs},
            {"en_GB", u"3 dl milk"_qs, u"milk|volume 300 ml"_qs},
            {"en_GB", u"5cl rum 0.5 l"_qs, u"rum|volume 50 ml · can't be read: 0.5 l"_qs},
            {"en_GB", u"350 kcal"_qs, u"|350 kcal"_qs},
            {"en_GB", u"run 45 min"_qs, u"run|45 min long"_qs},
            {"en_GB", u"run 1 h 30 min"_qs, u"run|90 min long"_qs},
            {"de_DE", u"laufen 1,5 Std"_qs, u"laufen|90 min long"_qs},
            {"en_GB", u"run 25 h"_qs, u"run|can't be read: 25 h"_qs},
            {"en_GB", u"run 17:10-17:40"_qs, u"run|from 17:10 to 17:40"_qs},
            {"en_GB", u"run 17:40-17:10"_qs, u"run|can't be read: 17:40-17:10"_qs},
            // No figures: a letter or a per cent sign makes it a part of a name.
            {"en_GB", u"7-up b12"_qs, u"7-up+b12|"_qs},
            {"en_GB", u"milk 3.5% (fat)"_qs, u"milk+3.5%+fat|"_qs},
            // Said and never guessed.
            {"en_GB", u"egg 1,5"_qs, u"egg|can't be read: 1,5"_qs},
            {"en_GB", u"egg 2 3"_qs, u"egg|quantity 2 · can't be read: 3"_qs},
            {"en_GB", u"egg 8:15 9:15"_qs, u"egg|time 08:15 · can't be read: 9:15"_qs},
            {"en_GB", u"egg 0"_qs, u"egg|can't be read: 0"_qs},
            {"en_GB", u"egg -2"_qs, u"egg|can't be read: -2"_qs},
            {"en_GB", u"egg 8:1"_qs, u"egg|can't be read: 8:1"_qs},
            {"en_GB", u"egg 99999999999999999999"_qs,
             u"egg|can't be read: 99999999999999999999"_qs},
            {"de_DE", u"1,5 Ei 8:15"_qs, u"ei|quantity 1,5 · time 08:15"_qs},
            {"de_DE", u"1.5 Ei"_qs, u"ei|can't be read: 1.5"_qs},
            {"de_DE", u"1.500 g Ei"_qs, u"ei|weight 1500 g"_qs},
            {"da_DK", u"8.15 brød 1,5"_qs, u"brød|quantity 1,5 · time 08:15"_qs},
            {"en_US", u"egg 8:15 pm"_qs, u"egg|time 8:15 pm"_qs},
            {"en_US", u"egg 8 am"_qs, u"egg|time 8:00 am"_qs},
            {"en_US", u"egg 20:15"_qs, u"egg|time 8:15 pm"_qs},
            {"en_US", u"egg 8:15"_qs, u"egg|can't be read: 8:15"_qs}, // which of the two?
            {"en_US", u"run 5:10-5:40 pm"_qs, u"run|from 5:10 pm to 5:40 pm"_qs},
            {"en_US", u"run 11:10 am - 1 pm"_qs, u"run|from 11:10 am to 1:00 pm"_qs},
            {"ar_EG", u"٢ موز"_qs, u"موز|quantity ٢"_qs},
        };
        for (const auto &[locale, line, expected] : lines)
            QCOMPARE(QString::fromLatin1(locale) + u' ' + line + u": "_qs + readIn(locale, line),
                     QString::fromLatin1(locale) + u' ' + line + u": "_qs + expected);
    }

    void unitsNameAmounts()
    {
        const std::tuple<QString, double, Measure> named[] = {
            {u"medium (118 g)"_qs, 118, Measure::Weight},
            {u"g"_qs, 1, Measure::Weight},
            {u"Glas (0,2 l)"_qs, 200, Measure::Volume},
            {u"minute"_qs, 1, Measure::Time},
            {u"Hours"_qs, 60, Measure::Time},
            {u"Stunden"_qs, 60, Measure::Time},
            {u"12 fl oz (355 ml)"_qs, 355, Measure::Volume},
            {u"1.5 oz"_qs, 42.5242846875, Measure::Weight}};
        for (const auto &[unit, value, measure] : named) {
            const std::optional<Amount> amount = amountNamedBy(unit);
            QVERIFY2(amount && amount->measure == measure, qPrintable(unit));
            QCOMPARE(amount->value, value);
        }
        for (const auto &unit : {u"piece"_qs, u"8 fl oz"_qs, u"vitamin g"_qs, u"0 g"_qs,
                                 u"100 m"_qs, u""_qs, u"lap"_qs, u"size l shirt"_qs})
            QVERIFY2(!amountNamedBy(unit), qPrintable(unit));
    }

    void mealsTakeQuantities()
    {
        const Recordable banana = meal(u"Banana"_qs, u"medium (118 g)"_qs, 104);
        QCOMPARE(stored(banana, u""_qs), u"3 × Banana, medium (118 g) · 312 kcal · 12:30"_qs);
        QCOMPARE(stored(banana, u"2 8:15"_qs), u"2 × Banana, medium (118 g) · 208 kcal · 08:15"_qs);
        QCOMPARE(stored(banana, u"59 g"_qs), u"0.5 × Banana, medium (118 g) · 52 kcal · 12:30"_qs);
        QCOMPARE(stored(banana, u"208 kcal"_qs),
                 u"2 × Banana, medium (118 g) · 208 kcal · 12:30"_qs);
        QCOMPARE(stored(banana, u"2,5 8:15"_qs, "de_DE"),
                 u"2,5 × Banana, medium (118 g) · 260 kcal · 08:15"_qs);
        QCOMPARE(stored(banana, u"1 8:15 pm"_qs, "en_US"),
                 u"1 × Banana, medium (118 g) · 104 kcal · 8:15 pm"_qs);
        const std::pair<QString, QString> refused[] = {
            {u"2 dl"_qs, u"The unit of Banana, medium (118 g), names no volume"_qs},
            {u"2 59 g"_qs, u"There are two quantities"_qs},
            {u"8:99"_qs, u"\"8:99\" can't be read"_qs},
            {u"1 h"_qs, u"A meal has one time and takes none"_qs},
            {u"8:00-9:00"_qs, u"A meal has one time and takes none"_qs},
            {u"0.001 g"_qs, u"This is too little to be counted"_qs},
            {u"900000000000"_qs, u"The quantity is too large"_qs}};
        for (const auto &[line, problem] : refused)
            QCOMPARE(stored(banana, line), problem);
        QCOMPARE(stored(meal(u"Water"_qs, u"glass"_qs, 0), u"100 kcal"_qs),
                 u"Water has no calories to count by"_qs);
    }

    void activitiesTakeTimes()
    {
        const Recordable minutes = activity(u"minute"_qs, 10);
        const Recordable hours = activity(u"hour"_qs, 300, 45);
        const Recordable laps = activity(u"lap"_qs, 7, 20);
        const std::tuple<const Recordable &, QString, QString> lines[] = {
            // The usual quantity of minutes, and the last duration where the unit is no time.
            {minutes, u""_qs, u"3 × Rowing, minute · 30 kcal · 12:27–12:30"_qs},
            {hours, u""_qs, u"3 × Rowing, hour · 900 kcal · 11:45–12:30"_qs},
            {laps, u"50"_qs, u"50 × Rowing, lap · 350 kcal · 12:10–12:30"_qs},
            {minutes, u"45 min"_qs, u"45 × Rowing, minute · 450 kcal · 11:45–12:30"_qs},
            {hours, u"45 min 9:00"_qs, u"0.75 × Rowing, hour · 225 kcal · 08:15–09:00"_qs},
            {hours, u"0.5 9:00"_qs, u"0.5 × Rowing, hour · 150 kcal · 08:30–09:00"_qs},
            {minutes, u"17:10-17:40"_qs, u"30 × Rowing, minute · 300 kcal · 17:10–17:40"_qs},
            {minutes, u"20 17:10-17:40"_qs, u"20 × Rowing, minute · 200 kcal · 17:10–17:40"_qs},
            {laps, u"17:10-17:40"_qs, u"3 × Rowing, lap · 21 kcal · 17:10–17:40"_qs},
            {laps, u"70 kcal 1 h"_qs, u"10 × Rowing, lap · 70 kcal · 11:30–12:30"_qs},
            {laps, u"100 g"_qs, u"The unit of Rowing, lap, names no weight"_qs},
            {minutes, u"45 min 0:30"_qs,
             u"It would begin on the day before: say from when to when"_qs},
            {minutes, u"30 min 0:30"_qs, u"30 × Rowing, minute · 300 kcal · 00:00–00:30"_qs}};
        for (const auto &[record, line, expected] : lines)
            QCOMPARE(stored(record, line), expected);
        QVERIFY(stored(activity(u"lap"_qs, 7), u"50"_qs).startsWith(u"Say how long it took"_qs));
        // Half to even, as the list of the day rounds.
        QVERIFY(stored(activity(u"minute"_qs, 0.5), u"5 min"_qs).contains(u"· 2 kcal ·"_qs));
    }
};

QTEST_GUILESS_MAIN(tst_quicktext)
#include "tst_quicktext.moc"
