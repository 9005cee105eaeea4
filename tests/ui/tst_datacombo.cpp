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

using namespace Qt::Literals;

namespace {

/// A dialog with a chooser of five categories, a field behind it and a default button.
class Form : public QDialog
{
public:
    explicit Form(Recordset &rows)
    {
        QBoxLayout *layout = new QVBoxLayout(this);
        layout->addWidget(chooser);
        layout->addWidget(next);
        layout->addWidget(ok);
        ok->setDefault(true);
        chooser->setRows(rows, schema::MealCategory::MealCategoryID, schema::MealCategory::Name);
        show();
        chooser->setFocus();
    }
    bool isOffering() const { return chooser->completer()->popup()->isVisible(); }
    QString offered() const
    {
        const QAbstractItemModel &model = *chooser->completer()->popup()->model();
        QStringList names;
        for (int row = 0; row < model.rowCount(); ++row)
            names += model.index(row, 0).data().toString();
        return names.join(u'|');
    }

    DataCombo *chooser = new DataCombo(this);
    QLineEdit *next = new QLineEdit(this);
    QPushButton *ok = new QPushButton(this);
};

} // namespace

class tst_datacombo : public QObject
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
    void offersParts();
    void takesByKey();
    void escapesToWhatWasTyped();
    void cutsLongNamesShort();
    void keepsChoice();

private:
    std::unique_ptr<TestJournal> journal;
    std::unique_ptr<Form> form;
};

// Those that begin with the part come first; accents and case don't matter.
void tst_datacombo::offersParts()
{
    for (const auto &[typed, names] :
         {std::pair(u"FRU"_qs, u"Fruit|Fruit juice|Dried fruit"_qs),
          std::pair(u"frü"_qs, u"Fruit|Fruit juice|Dried fruit"_qs),
          std::pair(u"creme"_qs, u"Crème"_qs), std::pair(u"it j"_qs, u"Fruit juice"_qs)}) {
        pressKey(Qt::Key_A, Qt::ControlModifier);
        typeKeys(typed);
        QVERIFY(form->isOffering());
        QCOMPARE(form->offered(), names);
        QCOMPARE(form->chooser->displayedText(), typed);
        QCOMPARE(form->chooser->boundValue(), std::nullopt);
        pressKey(Qt::Key_Escape);
    }
}

void tst_datacombo::takesByKey()
{
    const struct
    {
        QString typed;
        Qt::Key key;
        QString text;
        std::optional<qint32> value;
    } cases[] = {{u"fruitcake"_qs, Qt::Key_Tab, u"fruitcake"_qs, {}},
                 {u"CRÈME"_qs, Qt::Key_Tab, u"Crème"_qs, 5},
                 {u"jui"_qs, Qt::Key_Tab, u"Fruit juice"_qs, 2},
                 {u"jui"_qs, Qt::Key_Return, u"Fruit juice"_qs, 2}};
    const QSignalSpy pressed(form->ok, &QPushButton::clicked);
    for (const auto &[typed, key, text, value] : cases) {
        form->chooser->setFocus(); // which selects it, so that typing begins anew
        typeKeys(typed);
        pressKey(key);
        QVERIFY(!form->isOffering());
        QCOMPARE(form->chooser->displayedText(), text);
        QCOMPARE(form->chooser->boundValue(), value);
        QCOMPARE(form->next->hasFocus(), key == Qt::Key_Tab);
        QCOMPARE(pressed.count(), 0);
    }
    pressKey(Qt::Key_Return); // now it is the dialog's
    QCOMPARE(pressed.count(), 1);
    QCOMPARE(form->chooser->boundValue(), 2);
}

// The choice follows the highlight, so that the dialog shows what it would be.
void tst_datacombo::escapesToWhatWasTyped()
{
    typeKeys(u"fru"_qs);
    pressKey(Qt::Key_Down);
    QCOMPARE(form->chooser->boundValue(), 2);
    pressKey(Qt::Key_Escape);
    QVERIFY(!form->isOffering());
    QVERIFY(form->isVisible());
    QCOMPARE(form->chooser->displayedText(), u"fru"_qs);
    QCOMPARE(form->chooser->boundValue(), std::nullopt);
    pressKey(Qt::Key_Escape);
    QVERIFY(!form->isVisible());
}

// Neither the form nor the list grows; box and list show the beginning.
void tst_datacombo::cutsLongNamesShort()
{
    const int width = form->sizeHint().width();
    form->chooser->addItem(QString(500, u'W'), 9);
    typeKeys(u"ww"_qs);
    const QAbstractItemView &list = *form->chooser->completer()->popup();
    QVERIFY(list.visualRect(list.model()->index(0, 0)).width() <= list.viewport()->width());
    pressKey(Qt::Key_Tab);
    QCOMPARE(form->chooser->boundValue(), 9);
    QCOMPARE(form->chooser->lineEdit()->cursorPosition(), 0);
    QCOMPARE(form->sizeHint().width(), width);
}

// Where there is always to be a choice.
void tst_datacombo::keepsChoice()
{
    form->chooser->setKeepsChoice(true);
    form->chooser->setBoundValue(2);
    QSignalSpy changed(form->chooser, &DataCombo::boundValueChanged);
    turnWheelOver(*form->chooser);
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Tab}) {
        form->chooser->setFocus();
        typeKeys(u"^cake"_qs);
        QCOMPARE(form->chooser->boundValue(), 2);
        pressKey(key);
        QVERIFY(form->isVisible());
        QCOMPARE(form->chooser->displayedText(), u"Fruit juice"_qs);
    }
    QCOMPARE(changed.count(), 0);
    form->chooser->setFocus();
    typeKeys(u"^fru"_qs);
    pressKey(Qt::Key_Down); // chooses another, for the time being
    pressKey(Qt::Key_Escape);
    QCOMPARE(form->chooser->boundValue(), 2);
}

QTEST_MAIN(tst_datacombo)
#include "tst_datacombo.moc"
