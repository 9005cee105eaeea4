// How names compare and sort, in memory and in the database's index.
#include "data/namecollation.h"
#include "testjournal.h"

#include <QTest>

namespace {

void addCategory(TestJournal &journal, const QString &name)
{
    Recordset &categories = journal.data->rsMealCategory;
    categories.reopen({Value(0)});
    categories.addNew();
    categories.set(QLatin1StringView("Name"), Value(name));
    categories.update();
}

} // namespace

class tst_names : public QObject
{
    Q_OBJECT

private slots:
    void oneName()
    {
        TestJournal journal;
        for (const auto &[a, b] :
             {std::pair(u"apple"_qs, u"Apple"_qs), std::pair(u"Äpfel"_qs, u"äpfel"_qs),
              std::pair(u"Crème"_qs, u"cre\u0300me"_qs), std::pair(u"БОРЩ"_qs, u"борщ"_qs)}) {
            QCOMPARE(compareNames(a, b), 0);
            addCategory(journal, a);
            QVERIFY_THROWS_EXCEPTION(StoreError, addCategory(journal, b));
        }
    }

    void theDatabaseOrdersAlike()
    {
        // An accent stands behind its plain letter, letters decide before accents, and blanks
        // stand before letters.
        const QStringList names = {u"Apfel"_qs,   u"Äpfel"_qs,  u"Apfelmus"_qs,     u"apple"_qs,
                                   u"Banana"_qs,  u"Éclair"_qs, u"Edamer"_qs,       u"Ice tea"_qs,
                                   u"Iceberg"_qs, u"Rice"_qs,   u"Rice, boiled"_qs, u"борщ"_qs};
        TestJournal journal;
        for (qsizetype i = 0; i < names.size(); ++i) {
            addCategory(journal, names[(i * 5) % names.size()]);
            for (qsizetype j = 0; j < i; ++j)
                QCOMPARE(compareNames(names[j], names[i]), -1);
        }
        QCOMPARE(journal.rows("select Name from MealCategory order by Name"), names);
        QCOMPARE(journal.row("select count(*) from MealCategory where Name = 'ÄPFEL'"), u"1"_qs);
    }

    void orderIsTotal()
    {
        const QString names[] = {u"a"_qs, u"A"_qs,  u"Á"_qs,  u"a\u0301"_qs,  u"ab"_qs, u"Äb"_qs,
                                 u"ß"_qs, u"ss"_qs, u"½"_qs,  u"1\u20442"_qs, u""_qs,   u"İ"_qs,
                                 u"ﬁ"_qs, u"fi"_qs, u"Ωa"_qs, u"ωa"_qs,       u"中"_qs, u"😀"_qs};
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
};

QTEST_APPLESS_MAIN(tst_names)
#include "tst_names.moc"
