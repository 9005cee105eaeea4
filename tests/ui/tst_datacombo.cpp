// The chooser of database rows, by the keys that a person presses.
#include "guitest.h"
#include "testjournal.h"

#include "ui/datacombo.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QVBoxLayout>
#include <QWheelEvent>

using namespace Qt::Literals;

namespace {

/// A dialog with a chooser of five categories, a field behind it and a default button.
class Form : public QDialog
{
public:
    explicit Form(Recordset &rows)
        : chooser(new DataCombo(this))
        , next(new QLineEdit(this))
        , ok(new QPushButton(this))
    {
        auto *layout = new QVBoxLayout(this);
        for (QWidget *part : {static_cast<QWidget *>(chooser), static_cast<QWidget *>(next),
                              static_cast<QWidget *>(ok)})
            layout->addWidget(part);
        ok->setDefault(true);
        chooser->setRows(rows, "MealCategoryID"_L1, "Name"_L1);
        show();
        chooser->setFocus();
    }
    bool isOffering() const { return chooser->completer()->popup()->isVisible(); }
    QStringList offered() const
    {
        const QAbstractItemModel &model = *chooser->completer()->popup()->model();
        QStringList names;
        for (int row = 0; row < model.rowCount(); ++row)
            names += model.index(row, 0).data().toString();
        return names;
    }
    QString highlighted() const
    {
        return chooser->completer()->popup()->currentIndex().data().toString();
    }

    DataCombo *chooser;
    QLineEdit *next;
    QPushButton *ok;
};

} // namespace

class tst_DataCombo : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        journal = std::make_unique<TestJournal>();
        journal->exec("insert into MealCategory (Name) values ('Fruit'), ('Fruit juice'),"
                      " ('Käse und Brot'), ('Dried fruit'), ('Crème')");
        journal->data->rsMealCategorySorted.open();
        form = std::make_unique<Form>(journal->data->rsMealCategorySorted);
        QVERIFY(QTest::qWaitForWindowActive(form.get()));
    }
    void offersParts_data();
    void offersParts();
    void takesByKey_data();
    void takesByKey();
    void escapesToWhatWasTyped();
    void walksThroughMatches();
    void keepsUnknownText();
    void opensWholeList();
    void ignoresWheel();
    void followsProgram();

private:
    std::unique_ptr<TestJournal> journal;
    std::unique_ptr<Form> form;
};

void tst_DataCombo::offersParts_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QStringList>("names");
    // Those that begin with the part come first.
    QTest::newRow("begin and middle")
        << "FRU" << QStringList{"Fruit", "Fruit juice", "Dried fruit"};
    QTest::newRow("no accents") << "creme" << QStringList{"Crème"};
    QTest::newRow("accents") << "KÄS" << QStringList{"Käse und Brot"};
    QTest::newRow("accents that are not there")
        << "frü" << QStringList{"Fruit", "Fruit juice", "Dried fruit"};
    QTest::newRow("across words") << "it j" << QStringList{"Fruit juice"};
}

void tst_DataCombo::offersParts()
{
    QFETCH(QString, typed);
    typeKeys(typed);
    QVERIFY(form->isOffering());
    QTEST(form->offered(), "names");
    QCOMPARE(form->highlighted(), form->offered().constFirst());
    QCOMPARE(form->chooser->displayedText(), typed);
    QCOMPARE(form->chooser->boundValue(), std::nullopt);
}

void tst_DataCombo::takesByKey_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<bool>("goesOn");
    QTest::newRow("Enter") << Qt::Key_Return << false;
    QTest::newRow("Tab") << Qt::Key_Tab << true;
}

void tst_DataCombo::takesByKey()
{
    QFETCH(Qt::Key, key);
    QFETCH(bool, goesOn);
    const QSignalSpy pressed(form->ok, &QPushButton::clicked);
    const QSignalSpy changed(form->chooser, &DataCombo::boundValueChanged);
    typeKeys(QStringLiteral("jui"));
    pressKey(key);
    QVERIFY(!form->isOffering());
    QCOMPARE(form->chooser->displayedText(), QStringLiteral("Fruit juice"));
    QCOMPARE(form->chooser->boundValue(), 2);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(pressed.count(), 0);
    QWidget *const focused = goesOn ? static_cast<QWidget *>(form->next) : form->chooser;
    QCOMPARE(form->focusWidget(), focused);
    pressKey(Qt::Key_Return); // now it is the dialog's
    QCOMPARE(pressed.count(), 1);
    QCOMPARE(form->chooser->boundValue(), 2);
}

void tst_DataCombo::escapesToWhatWasTyped()
{
    typeKeys(QStringLiteral("fru"));
    pressKey(Qt::Key_Down);
    QCOMPARE(form->chooser->boundValue(), 2);
    pressKey(Qt::Key_Escape);
    QVERIFY(!form->isOffering());
    QVERIFY(form->isVisible());
    QCOMPARE(form->chooser->displayedText(), QStringLiteral("fru"));
    QCOMPARE(form->chooser->boundValue(), std::nullopt);
    typeKeys(QStringLiteral("i"));
    QCOMPARE(form->chooser->displayedText(), QStringLiteral("frui"));
    QVERIFY(form->isOffering());
    pressKey(Qt::Key_Escape);
    pressKey(Qt::Key_Escape);
    QVERIFY(!form->isVisible());
}

// The choice follows the highlight, so that the dialog shows what it would be.
void tst_DataCombo::walksThroughMatches()
{
    typeKeys(QStringLiteral("fruit"));
    QCOMPARE(form->chooser->boundValue(), 1); // a whole name
    pressKey(Qt::Key_Down);
    QCOMPARE(form->chooser->boundValue(), 2);
    pressKey(Qt::Key_Down);
    QCOMPARE(form->chooser->boundValue(), 4);
    QCOMPARE(form->offered().size(), 3);
    pressKey(Qt::Key_Up);
    pressKey(Qt::Key_Tab);
    QCOMPARE(form->chooser->boundValue(), 2);
    QCOMPARE(form->chooser->currentIndex(), 3);
}

void tst_DataCombo::keepsUnknownText()
{
    form->chooser->setBoundValue(3);
    form->chooser->setFocus();
    pressKey(Qt::Key_A, Qt::ControlModifier);
    typeKeys(QStringLiteral("fruitcake"));
    QVERIFY(!form->isOffering());
    QCOMPARE(form->chooser->boundValue(), std::nullopt);
    pressKey(Qt::Key_Tab);
    QCOMPARE(form->focusWidget(), form->next);
    QCOMPARE(form->chooser->displayedText(), QStringLiteral("fruitcake"));
    QCOMPARE(form->chooser->boundValue(), std::nullopt);

    form->chooser->setFocus(); // which selects it, so that typing begins anew
    typeKeys(QStringLiteral("CRÈME"));
    QCOMPARE(form->chooser->boundValue(), 5);
    pressKey(Qt::Key_Tab);
    QCOMPARE(form->chooser->displayedText(), QStringLiteral("Crème"));
}

void tst_DataCombo::opensWholeList()
{
    form->chooser->setBoundValue(2);
    form->chooser->setFocus();
    for (const auto &[key, modifiers] :
         {std::pair(Qt::Key_F4, Qt::NoModifier), std::pair(Qt::Key_Down, Qt::AltModifier)}) {
        pressKey(key, modifiers);
        QVERIFY(form->chooser->view()->isVisible());
        QCOMPARE(form->chooser->view()->model()->rowCount(), 5);
        pressKey(Qt::Key_Escape);
        QTRY_VERIFY(!form->chooser->view()->isVisible());
        QVERIFY(form->isVisible());
        QCOMPARE(form->chooser->boundValue(), 2);
    }
    pressKey(Qt::Key_F4);
    pressKey(Qt::Key_Down);
    pressKey(Qt::Key_Return);
    QTRY_VERIFY(!form->chooser->view()->isVisible());
    QCOMPARE(form->chooser->displayedText(), QStringLiteral("Käse und Brot"));
    QCOMPARE(form->chooser->boundValue(), 3);
}

void tst_DataCombo::ignoresWheel()
{
    form->chooser->setBoundValue(2);
    const QPointF middle = QRectF(form->chooser->rect()).center();
    for (const int turn : {120, -120, -120}) {
        QWheelEvent wheel(middle, form->chooser->mapToGlobal(middle), {}, QPoint(0, turn),
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(form->chooser, &wheel);
        QCOMPARE(form->chooser->boundValue(), 2);
        QCOMPARE(form->chooser->displayedText(), QStringLiteral("Fruit juice"));
    }
}

void tst_DataCombo::followsProgram()
{
    const QSignalSpy changed(form->chooser, &DataCombo::boundValueChanged);
    form->chooser->setDisplayedText(QStringLiteral("dried FRUIT"));
    QCOMPARE(form->chooser->boundValue(), 4);
    QCOMPARE(form->chooser->displayedText(), QStringLiteral("dried FRUIT"));
    form->chooser->setBoundValue(99);
    QCOMPARE(form->chooser->boundValue(), std::nullopt);
    QCOMPARE(form->chooser->displayedText(), QString());
    form->chooser->setBoundValue(1);
    QCOMPARE(changed.count(), 3);
    journal->data->rsMealCategorySorted.reopen();
    form->chooser->setRows(journal->data->rsMealCategorySorted, "MealCategoryID"_L1, "Name"_L1);
    QCOMPARE(form->chooser->count(), 5);
    QCOMPARE(form->chooser->boundValue(), std::nullopt);
    QCOMPARE(form->chooser->displayedText(), QString());
    QCOMPARE(changed.count(), 3);
}

QTEST_MAIN(tst_DataCombo)
#include "tst_datacombo.moc"
