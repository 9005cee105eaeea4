// The chooser of database rows, by the keys that a person presses.
#include "guitest.h"
#include "testjournal.h"

#include "plot/colors.h"
#include "ui/datacombo.h"

#include <QAbstractItemView>
#include <QAccessible>
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
    void paintsDetails();
    void keepsDetailsFromNames();
    void asksForRows();

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

// In grey that can be read on every ground; neither end of the line takes the other's place.
void tst_datacombo::paintsDetails()
{
    QAbstractItemView &list = *form->chooser->view();
    list.setFixedWidth(400);
    setTestFont(*form->chooser);
    form->chooser->showPopup();
    const auto pictureOf = [&](const QString &name, const QString &detail) {
        form->chooser->setItemText(0, name);
        form->chooser->setItemData(0, detail, Qt::AccessibleDescriptionRole);
        const QModelIndex row = list.model()->index(0, 0);
        return list.viewport()->grab(list.visualRect(row)).toImage();
    };
    for (const bool dark : {false, true}) {
        QPalette colors = list.palette();
        colors.setColor(QPalette::Base, dark ? QColor(0x202326) : QColor(Qt::white));
        colors.setColor(QPalette::Text, dark ? QColor(0xf0f0f0) : QColor(Qt::black));
        list.setPalette(colors);
        for (const bool selected : {true, false}) {
            list.setCurrentIndex(list.model()->index(selected ? 0 : 1, 0));
            const QImage picture = pictureOf(u"Apple"_qs, u"Fruit"_qs);
            const int middle = picture.width() / 2;
            const auto most = [&](int from, int to) {
                double found = 1;
                for (int x = from; x < to; ++x) {
                    for (int y = 3; y < picture.height() - 3; ++y)
                        found = qMax(found, plot::contrast(picture.pixelColor(x, y),
                                                           picture.pixelColor(middle, y)));
                }
                return found;
            };
            const double name = most(3, middle);
            const double detail = most(middle, picture.width() - 3);
            // Paler, but on the selection, whose colours may be near each other as they are.
            QVERIFY(selected ? detail > 0.95 * name : detail > 4.5 && detail < 0.8 * name);
        }
    }
    const QString endless(500, u'W');
    const QImage both = pictureOf(u"Apple"_qs, u"Fruit"_qs);
    const auto widthOf = [&](const QString &text) {
        return form->chooser->fontMetrics().horizontalAdvance(text) + 8;
    };
    const QRect name(0, 0, widthOf(u"Apple"_qs), both.height());
    QCOMPARE(pictureOf(u"Apple"_qs, endless).copy(name), both.copy(name));
    const int width = widthOf(u"Fruit"_qs);
    const QRect detail(both.width() - width, 0, width, both.height());
    QCOMPARE(pictureOf(endless, u"Fruit"_qs).copy(detail), both.copy(detail));
}

// Heard by those who can't see it; what is typed finds names alone.
void tst_datacombo::keepsDetailsFromNames()
{
    journal->exec("insert into Meal values (1, 1, 'Apple', 'x', 1, 1, 1, 0, 0, 0, 0, 0, 0),"
                  " (2, 3, 'Apple pie', 'x', 1, 1, 1, 0, 0, 0, 0, 0, 0)");
    Recordset &meals = journal->data->rsMealAll;
    meals.open();
    form->chooser->setRows(meals, schema::Meal::MealID, schema::Meal::Name, &commands::category);
    typeKeys(u"fruit"_qs);
    QCOMPARE(form->offered(), QString());
    typeKeys(u"^pie"_qs);
    QCOMPARE(form->offered(), u"Apple pie"_qs);
    QAccessibleInterface *matches =
        QAccessible::queryAccessibleInterface(form->chooser->completer()->popup());
    QCOMPARE(matches->child(0)->text(QAccessible::Name), u"Apple pie"_qs);
    QCOMPARE(matches->child(0)->text(QAccessible::Description), u"Käse und Brot"_qs);
    pressKey(Qt::Key_Tab);
    QCOMPARE(form->chooser->displayedText(), u"Apple pie"_qs);
    QCOMPARE(form->chooser->boundValue(), 2);
}

// Whoever comes in finds the rows; whoever is in keeps them.
void tst_datacombo::asksForRows()
{
    form->next->setFocus();
    const QSignalSpy asked(form->chooser, &DataCombo::rowsNeeded);
    const auto ask = [&] {
        form->chooser->showPopup();
        form->chooser->hidePopup();
    };
    ask();
    form->chooser->setDisplayedText(u"Fruit"_qs);
    form->chooser->setFocus();
    QCOMPARE(asked.count(), 3);
    ask();
    activate(*form);
    form->chooser->setDisplayedText(u"Crème"_qs);
    typeKeys(u"^fru"_qs);
    pressKey(Qt::Key_Down);
    pressKey(Qt::Key_Escape);
    QDialog other(form.get());
    other.show();
    activate(other);
    other.close();
    activate(*form);
    QVERIFY(form->chooser->hasFocus());
    QCOMPARE(asked.count(), 3);
}

QTEST_MAIN(tst_datacombo)
#include "tst_datacombo.moc"
