// The list with its buttons: the journal's family, where rows may be no records, and failing data.
#include "guitest.h"

#include "data/storeerror.h"
#include "ui/recordlist.h"

#include <QHeaderView>
#include <QPushButton>
#include <QTreeView>

namespace {

/// A list over rows in memory that counts what it is asked for.
struct Fixture
{
    explicit Fixture(ListFamily family, std::vector<ListRow> content)
        : rows(std::move(content))
        , list({{"Time", {}}, {"Meal", "What was eaten"}, {"Qty", {}, true}}, family, messages,
               {[this] { return load(); }, [this](qint32 id) { return edit(id); },
                [this](qint32 id) { remove(id); }},
               "Meals")
    {
        list.refresh();
        list.show();
        if (!QTest::qWaitForWindowActive(&list))
            qFatal("the list can't be shown");
        view().setFocus();
    }

    std::vector<ListRow> load()
    {
        if (broken)
            throw StoreError(StoreError::Kind::Other, "unreadable");
        return rows;
    }
    std::optional<Reselection> edit(qint32 id)
    {
        edited.push_back(id);
        return stored;
    }
    void remove(qint32 id)
    {
        if (refuses)
            throw StoreError(StoreError::Kind::ReferenceRefused, "referred to");
        std::erase_if(rows, [id](const ListRow &row) { return row.tag == id; });
    }

    QTreeView &view() { return *list.list(); }
    int selectedRow() { return view().selectionModel()->selectedRows().value(0).row(); }
    void select(int row) { view().setCurrentIndex(list.model()->index(row, 0)); }
    void press(const char *button)
    {
        QTest::mouseClick(&control<QPushButton>(list, button), Qt::LeftButton);
    }

    std::vector<ListRow> rows;
    RecordedMessages messages;
    std::vector<qint32> edited;
    std::optional<Reselection> stored;
    bool refuses = false;
    bool broken = false;
    RecordList list;
};

const std::vector<ListRow> dayWithTotals{
    {7, {"08:00", "Tea", "1"}}, {-3, {"08:00", "Toast", "2"}}, {0, {}}, {0, {"", "Total"}}};

} // namespace

class tst_recordlist : public QObject
{
    Q_OBJECT

private slots:
    void totalsAreNoRecords();
    void reselectsByIdentifier();
    void deletionSelectsTheRowThatFollows();
    void refusedDeletionIsSaidAndKeepsTheRows();
    void unreadableRowsAreNotARefusedDeletion();
    void columnsShowTheirWidestText();
};

void tst_recordlist::totalsAreNoRecords()
{
    Fixture f(ListFamily::Journal, dayWithTotals);
    for (const int row : {-1, 2, 3}) {
        f.select(row);
        for (const char *button : {"btnEdit", "btnDelete"}) {
            f.press(button);
            QCOMPARE(f.messages.said.size(), size_t(1));
            QCOMPARE(f.messages.takeText(), "No record selected");
        }
    }
    QVERIFY(f.edited.empty());
}

void tst_recordlist::reselectsByIdentifier()
{
    Fixture f(ListFamily::Journal, dayWithTotals);
    f.stored = Reselection{{}, -3};
    f.select(0);
    QTest::keyClick(&f.view(), Qt::Key_Enter);
    QCOMPARE(f.selectedRow(), 1);
    // Cancelled: the list, and what is selected in it, stay as they were.
    f.stored.reset();
    f.rows.clear();
    QTest::keyClick(&f.view(), Qt::Key_Insert);
    QCOMPARE(f.selectedRow(), 1);
    QCOMPARE(f.edited, (std::vector<qint32>{7, 0}));
}

void tst_recordlist::deletionSelectsTheRowThatFollows()
{
    Fixture f(ListFamily::Journal, dayWithTotals);
    f.messages.answers = {true, true};
    f.select(1);
    QTest::keyClick(&f.view(), Qt::Key_Delete);
    QCOMPARE(f.selectedRow(), 1); // positions count the rows that are no records
    QCOMPARE(f.list.model()->tag(1), 0);
    f.rows.resize(1);
    f.select(0);
    QTest::keyClick(&f.view(), Qt::Key_Delete);
    QCOMPARE(f.list.model()->rowCount(), 0);
    QVERIFY(!f.view().selectionModel()->hasSelection());
}

void tst_recordlist::refusedDeletionIsSaidAndKeepsTheRows()
{
    Fixture f(ListFamily::Journal, dayWithTotals);
    f.refuses = true;
    f.messages.answers = {true};
    f.select(1);
    f.press("btnDelete");
    QCOMPARE(f.messages.takeText(), "This record can't be deleted from database");
    QCOMPARE(f.selectedRow(), 1);
    QVERIFY(f.view().hasFocus());
}

void tst_recordlist::unreadableRowsAreNotARefusedDeletion()
{
    Fixture f(ListFamily::Journal, dayWithTotals);
    f.broken = true;
    QVERIFY_THROWS_EXCEPTION(StoreError, f.list.refresh());
    QCOMPARE(f.list.model()->rowCount(), 4);
}

void tst_recordlist::columnsShowTheirWidestText()
{
    std::vector<ListRow> rows(1500, ListRow{1, {"08:00", "Tea", "1"}});
    rows[1400].texts[1] = "Tea with milk, sugar and a biscuit";
    rows[1450].texts[0] = QString(300, u'x');
    const Fixture f(ListFamily::Journal, rows);
    const QTreeView &view = *f.list.list();
    const QFontMetrics metrics(view.font());
    QVERIFY(view.columnWidth(1) > metrics.horizontalAdvance(rows[1400].texts[1]));
    // One that would push all others out of sight is told by its tooltip.
    QVERIFY(view.columnWidth(0) < metrics.horizontalAdvance(rows[1450].texts[0]) / 2);
    const QModelIndex longOne = f.list.model()->index(1450, 0);
    QVERIFY(longOne.data(Qt::ToolTipRole).toString().contains(rows[1450].texts[0]));
    QCOMPARE(f.list.model()->headerData(1, Qt::Horizontal, Qt::ToolTipRole), "What was eaten");
}

QTEST_MAIN(tst_recordlist)
#include "tst_recordlist.moc"
