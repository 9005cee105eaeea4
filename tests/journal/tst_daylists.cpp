// The lists of a day: its meals and its activities.
#include "dayjournal.h"

#include "journal/frmExercisePerforms.h"
#include "journal/frmMealConsumes.h"
#include "ui/datacombo.h"

#include <QDateEdit>
#include <QSignalSpy>
#include <QTreeView>

class tst_DayLists : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        journal = std::make_unique<DayJournal>();
        journal->exec("insert into MealConsume values"
                      " (1, 1, 46225, 0.5, 0.25), (2, 1, 46225, 0.25, 0.25), (3, 3, 46225, 0.9, 1),"
                      " (4, 2, 46226, 0.5, 1), (5, 2, 46227, 0.5, 1), (6, 2, 46227, 0.6, 1);"
                      "insert into ExercisePerform values (1, 1, 46225, 0.5, 0.75, 2.5),"
                      " (2, 2, 46225, 0.25, 0.5, 10), (3, 1, 46226, 0.5, 0.75, 1.5);"
                      "update Common set NextMealConsumeID = 6, NextExercisePerformID = 3");
    }
    void showsMeals();
    void showsActivities();
    void showsTwelveHourClock();
    void survivesAbsurdRows();
    void followsTheDate();
    void editsAndSelects();
    void deletesMeal();
    void deletesActivity();
    void refusesTotals();

private:
    template<typename List>
    void inList(const char *name, const std::function<void(QWidget &)> &steps)
    {
        List list(*journal->session, journal->messages);
        inDialog(
            name, [&] { list.run(); }, steps);
    }
    void inMeals(const std::function<void(QWidget &)> &steps)
    {
        inList<frmMealConsumes>("frmMealConsumes", steps);
    }
    void inActivities(const std::function<void(QWidget &)> &steps)
    {
        inList<frmExercisePerforms>("frmExercisePerforms", steps);
    }
    static QTreeView &list(QWidget &window) { return control<QTreeView>(window, "lvwList"); }
    static QStringList shown(QWidget &window)
    {
        const QAbstractItemModel &model = *list(window).model();
        QStringList rows;
        for (int row = 0; row < model.rowCount(); ++row) {
            QStringList texts;
            for (int column = 0; column < model.columnCount(); ++column)
                texts += model.index(row, column).data().toString();
            rows += texts.join(u'|');
        }
        return rows;
    }
    static void select(QWidget &window, int row)
    {
        list(window).setCurrentIndex(list(window).model()->index(row, 0));
    }
    static int selected(QWidget &window)
    {
        const QModelIndexList rows = list(window).selectionModel()->selectedRows();
        return rows.isEmpty() ? -1 : rows.first().row();
    }

    std::unique_ptr<DayJournal> journal;
};

void tst_DayLists::showsMeals()
{
    inMeals([](QWidget &window) {
        // The totals add up the rounded figures: 2 and 2 for 2.5 and 2.5.
        QCOMPARE(shown(window), (QStringList{
                                    QStringLiteral("06:00|Apple|0.25|2|4|1|7"),
                                    QStringLiteral("12:00|Apple|0.25|2|4|1|7"),
                                    QStringLiteral("21:36|Crème brûlée|1|150|120|30|300"),
                                    QStringLiteral("||||||"),
                                    QStringLiteral("|   Total (3 items)||154|128|32|314"),
                                }));
        QCOMPARE(selected(window), -1);
    });
}

void tst_DayLists::showsActivities()
{
    inActivities([](QWidget &window) {
        // 17.5 calories are 18 here and 17 in the editor.
        QCOMPARE(shown(window), (QStringList{
                                    QStringLiteral("06:00|12:00|Walking|10|35"),
                                    QStringLiteral("12:00|18:00|Rowing|2.5|18"),
                                    QStringLiteral("||||"),
                                    QStringLiteral("||   Total (2 items)||53"),
                                }));
    });
    journal->session->setCurrentDate(QDate(2026, 7, 23));
    inActivities([](QWidget &window) {
        QCOMPARE(shown(window), QStringList{QStringLiteral("12:00|18:00|Rowing|1.5|10")});
    });
}

void tst_DayLists::showsTwelveHourClock()
{
    journal = std::make_unique<DayJournal>(QLocale(QLocale::English, QLocale::UnitedStates));
    journal->exec("insert into MealConsume values (1, 2, 46225, 0.0, 1), (2, 2, 46225, 0.9, 1.5)");
    inMeals([](QWidget &window) {
        QCOMPARE(shown(window).mid(0, 2), (QStringList{
                                              QStringLiteral("12:00 am|Banana|1|2|90|4|96"),
                                              QStringLiteral("9:36 pm|Banana|1.5|4|135|6|145"),
                                          }));
    });
}

// Whoever has typed too many digits must be able to open the list and delete the row.
void tst_DayLists::survivesAbsurdRows()
{
    journal->exec("insert into MealConsume values (7, 3, 46226, 0.6, 900000000000.5)");
    journal->session->setCurrentDate(QDate(2026, 7, 23));
    inMeals([&](QWidget &window) {
        QCOMPARE(shown(window).size(), 4);
        QCOMPARE(shown(window).last(), QStringLiteral("|   Total (2 items)|||||"));
        select(window, 1);
        journal->messages.answers = {true};
        press(window, "btnDelete");
        QCOMPARE(shown(window), QStringList{QStringLiteral("12:00|Banana|1|2|90|4|96")});
    });
}

void tst_DayLists::followsTheDate()
{
    const QSignalSpy dayChanged(journal->session.get(), &Session::dayChanged);
    inMeals([&](QWidget &window) {
        auto &date = control<QDateEdit>(window, "dtpDate");
        QCOMPARE(date.date(), QDate(2026, 7, 22));
        date.setFocus();
        date.setSelectedSection(QDateTimeEdit::DaySection);
        QTest::keyClicks(&date, QStringLiteral("23"));
        QCOMPARE(dayChanged.count(), 0); // the 2nd was no day that anybody meant
        QTest::keyClick(&date, Qt::Key_Return);
        QVERIFY(window.isVisible());
        QCOMPARE(shown(window), QStringList{QStringLiteral("12:00|Banana|1|2|90|4|96")});
        QCOMPARE(journal->session->currentDate(), QDate(2026, 7, 23));
        date.setDate(QDate(2026, 8, 1));
        QCOMPARE(shown(window), QStringList());
        inDialog(
            "frmMealConsume", [&] { press(window, "btnNew"); },
            [](QWidget &editor) {
                control<DataCombo>(editor, "dcbMealCategory")
                    .setDisplayedText(QStringLiteral("Dairy"));
                press(editor, "btnOK");
            });
        QCOMPARE(journal->messages.takeText(), QString());
        QCOMPARE(shown(window).size(), 1);
        QCOMPARE(selected(window), 0);
    });
    QCOMPARE(journal->row("select count(*) from MealConsume where ConsumeDate = 46235"),
             QStringLiteral("1"));
}

void tst_DayLists::editsAndSelects()
{
    const QSignalSpy changed(journal->session.get(), &Session::journalChanged);
    inMeals([&](QWidget &window) {
        select(window, 0);
        inDialog(
            "frmMealConsume", [&] { pressKey(Qt::Key_Return); },
            [](QWidget &editor) {
                typeTime(control<QTimeEdit>(editor, "dtpTime"), QStringLiteral("2300"));
                press(editor, "btnCancel");
            });
        QCOMPARE(selected(window), 0);
        QCOMPARE(changed.count(), 0);
        const QRect row = list(window).visualRect(list(window).model()->index(0, 1));
        const auto doubleClick = [&] {
            QTest::mouseClick(list(window).viewport(), Qt::LeftButton, {}, row.center());
            QTest::mouseDClick(list(window).viewport(), Qt::LeftButton, {}, row.center());
        };
        inDialog("frmMealConsume", doubleClick, [](QWidget &editor) {
            typeTime(control<QTimeEdit>(editor, "dtpTime"), QStringLiteral("2300"));
            press(editor, "btnOK");
        });
        // It has become the last one.
        QCOMPARE(selected(window), 2);
        QCOMPARE(shown(window).at(2), QStringLiteral("23:00|Apple|0.25|2|4|1|7"));
        QCOMPARE(window.focusWidget(), &list(window));
        QCOMPARE(changed.count(), 1);
    });
}

void tst_DayLists::deletesMeal()
{
    inMeals([&](QWidget &window) {
        select(window, 1);
        pressKey(Qt::Key_Delete);
        QCOMPARE(journal->messages.said.back().title, QStringLiteral("Are you sure"));
        QCOMPARE(journal->messages.takeText(),
                 QStringLiteral("Are you sure you want to delete the selected record?"));
        QCOMPARE(shown(window).size(), 5);

        journal->messages.answers = {true, true};
        press(window, "btnDelete");
        QCOMPARE(selected(window), 1); // which has followed
        QCOMPARE(shown(window).size(), 4);
        press(window, "btnDelete"); // one is left, and no totals
        QCOMPARE(shown(window), QStringList{QStringLiteral("06:00|Apple|0.25|2|4|1|7")});
        QCOMPARE(selected(window), 0);
    });
    QCOMPARE(journal->meals().size(), 4);
}

void tst_DayLists::deletesActivity()
{
    inActivities([&](QWidget &window) {
        journal->messages.answers = {true, true};
        select(window, 1);
        press(window, "btnDelete");
        QCOMPARE(shown(window), QStringList{QStringLiteral("06:00|12:00|Walking|10|35")});
        press(window, "btnDelete");
        QCOMPARE(shown(window), QStringList());
        journal->messages.said.clear();
        press(window, "btnDelete");
        QCOMPARE(journal->messages.takeText(), QStringLiteral("No record selected"));
    });
    QCOMPARE(journal->activities(), QStringList{QStringLiteral("3|1|46226|720|1080|1.5")});
    QVERIFY(!journal->data->rsExercisePerform.isOpen());
}

void tst_DayLists::refusesTotals()
{
    journal->messages.answers = {true, true, true};
    const auto refuse = [&](QWidget &window) {
        const QStringList before = shown(window);
        for (const int row : {-1, int(before.size()) - 2, int(before.size()) - 1}) {
            if (row >= 0)
                select(window, row);
            for (const char *button : {"btnEdit", "btnDelete"}) {
                press(window, button);
                QCOMPARE(journal->messages.said.size(), 1U);
                QCOMPARE(journal->messages.takeText(), QStringLiteral("No record selected"));
            }
        }
        QCOMPARE(shown(window), before);
    };
    inMeals(refuse);
    inActivities(refuse);
}

QTEST_MAIN(tst_DayLists)
#include "tst_daylists.moc"
