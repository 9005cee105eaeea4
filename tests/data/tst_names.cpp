// How names compare and sort, in memory and in the database's index.
#include "data/namecollation.h"
#include "testjournal.h"

#include <QTest>

#include <algorithm>

class tst_names : public QObject
{
    Q_OBJECT

private slots:
    void oneName_data();
    void oneName();
    void differentNames_data();
    void differentNames();
    void orderIsTotal();
    void theDatabaseOrdersAlike();
    void searchIgnoresCaseAndAccents();
};

void tst_names::oneName_data()
{
    QTest::addColumn<QString>("a");
    QTest::addColumn<QString>("b");
    QTest::newRow("ASCII") << u"apple"_qs << u"Apple"_qs;
    QTest::newRow("umlaut") << u"Äpfel"_qs << u"äpfel"_qs;
    QTest::newRow("composed and decomposed") << u"Crème"_qs << u"cre\u0300me"_qs;
    QTest::newRow("Cyrillic") << u"БОРЩ"_qs << u"борщ"_qs;
}

void tst_names::oneName()
{
    QFETCH(QString, a);
    QFETCH(QString, b);
    QCOMPARE(compareNames(a, b), 0);

    TestJournal journal;
    Recordset &categories = journal.data->rsMealCategory;
    categories.open({Value(0)});
    for (const QString &name : {a, b}) {
        categories.addNew();
        categories.set(QLatin1StringView("Name"), Value(name));
        if (name == a)
            categories.update();
        else
            QVERIFY_THROWS_EXCEPTION(StoreError, categories.update());
    }
}

void tst_names::differentNames_data()
{
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("second");
    QTest::newRow("accent behind its plain letter") << u"Apfel"_qs << u"Äpfel"_qs;
    QTest::newRow("accent before the next word") << u"Äpfel"_qs << u"Apfelmus"_qs;
    QTest::newRow("letters decide before accents") << u"Éclair"_qs << u"Edamer"_qs;
    QTest::newRow("a name and its beginning") << u"Rice"_qs << u"Rice, boiled"_qs;
    QTest::newRow("case does not decide") << u"apple"_qs << u"Banana"_qs;
    QTest::newRow("blank before letters") << u"Ice tea"_qs << u"Iceberg"_qs;
}

void tst_names::differentNames()
{
    QFETCH(QString, first);
    QFETCH(QString, second);
    QCOMPARE(compareNames(first, second), -1);
    QCOMPARE(compareNames(second, first), 1);
}

void tst_names::orderIsTotal()
{
    const QStringList names = {
        u"a"_qs, u"A"_qs, u"Á"_qs,  u"á"_qs,  u"a\u0301"_qs, u"ab"_qs,       u"Äb"_qs, u"_"_qs,
        u"Z"_qs, u"ß"_qs, u"ss"_qs, u"SS"_qs, u"½"_qs,       u"1\u20442"_qs, u""_qs,   u"\u00A0"_qs,
        u"İ"_qs, u"i"_qs, u"ﬁ"_qs,  u"fi"_qs, u"Ωa"_qs,      u"ωa"_qs,       u"中"_qs, u"😀"_qs};
    for (const QString &a : names) {
        for (const QString &b : names) {
            QCOMPARE(compareNames(a, b), -compareNames(b, a));
            for (const QString &c : names) {
                if (compareNames(a, b) <= 0 && compareNames(b, c) <= 0)
                    QVERIFY2(compareNames(a, c) <= 0, qPrintable(a + u' ' + b + u' ' + c));
            }
        }
    }
}

void tst_names::theDatabaseOrdersAlike()
{
    TestJournal journal;
    QStringList names = {u"zucchini"_qs, u"Äpfel"_qs,  u"Apfel"_qs,  u"apple"_qs,
                         u"Éclair"_qs,   u"eclair"_qs, u"Zander"_qs, u"борщ"_qs};
    for (const QString &name : names) {
        Recordset &categories = journal.data->rsMealCategory;
        categories.reopen({Value(0)});
        categories.addNew();
        categories.set(QLatin1StringView("Name"), Value(name));
        categories.update();
    }
    std::sort(names.begin(), names.end(),
              [](const QString &a, const QString &b) { return compareNames(a, b) < 0; });
    QCOMPARE(journal.rows("select Name from MealCategory order by Name"), names);
    QCOMPARE(journal.row("select count(*) from MealCategory where Name = 'ÄPFEL'"), u"1"_qs);
}

void tst_names::searchIgnoresCaseAndAccents()
{
    QCOMPARE(foldedForSearch(u"Crème BRÛLÉE"_qs), u"creme brulee"_qs);
    QCOMPARE(foldedForSearch(u"Milk 3.5%"_qs), u"milk 3.5%"_qs);
}

QTEST_APPLESS_MAIN(tst_names)
#include "tst_names.moc"
