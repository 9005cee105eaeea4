// The list with its buttons: the journal's family, where rows may be no records, and failing data.
#include "guitest.h"

#include "data/storeerror.h"
#include "ui/recordlist.h"

#include <QHeaderView>
#include <QLabel>
#include <QTreeView>

namespace {

/// A list over rows in memory: two meals of a day, a blank line and the totals.
struct Fixture
{
    Fixture()
        : list({{"Time", {}}, {"Meal", "What was eaten"}, {"Qty", {}, true}}, ListFamily::Journal,
               messages,
               {[this] { return load(); }, [](qint32) { return std::nullopt; },
                [this](qint32 id) { remove(id); }},
               "Meals")
    {
        list.refresh();
        list.show();
        if (!QTest::qWaitForWindowActive(&list))
            qFatal("the list can't be shown");
        view.setFocus();
    }

    std::vector<ListRow> load()
    {
        if (broken)
            throw StoreError(StoreError::Kind::Other, "unreadable");
        return rows;
    }
    void remove(qint32 id)
    {
        if (id == 7)
            throw StoreError(StoreError::Kind::ReferenceRefused, "referred to");
        std::erase_if(rows, [id](const ListRow &row) { return row.tag == id; });
    }
    int selectedRow() { return view.selectionModel()->selectedRows().value(0).row(); }
    void select(int row) { view.setCurrentIndex(list.model()->index(row, 0)); }

    std::vector<ListRow> rows{
        {7, {"08:00", "Tea", "1"}}, {-3, {"08:00", "Toast", "2"}}, {0, {}}, {0, {"", "Total"}}};
    RecordedMessages messages;
    bool broken = false;
    RecordList list;
    QTreeView &view = *list.list();
};

} // namespace

class tst_recordlist : public QObject
{
    Q_OBJECT

private slots:
    void deletes();
    void unreadableRowsKeepTheOldOnes();
    void columnsShowTheirWidestText();
};

void tst_recordlist::deletes()
{
    Fixture f;
    f.messages.answers = {true, true};
    f.select(1);
    QTest::keyClick(&f.view, Qt::Key_Delete);
    QCOMPARE(f.selectedRow(), 1); // positions count the rows that are no records
    QCOMPARE(f.list.model()->tag(1), 0);
    f.select(0);
    QTest::keyClick(&f.view, Qt::Key_Delete);
    QCOMPARE(f.messages.takeText(), "This record can't be deleted from database");
    QCOMPARE(f.selectedRow(), 0);
    QVERIFY(f.view.hasFocus());
}

void tst_recordlist::unreadableRowsKeepTheOldOnes()
{
    Fixture f;
    f.broken = true;
    QVERIFY_THROWS_EXCEPTION(StoreError, f.list.refresh());
    QCOMPARE(f.list.model()->rowCount(), 4);
}

void tst_recordlist::columnsShowTheirWidestText()
{
    Fixture f;
    f.rows.resize(1500, ListRow{1, {"08:00", "Tea", "1"}});
    const QString wide = f.rows[1400].texts[1] = "Tea with milk, sugar and a biscuit";
    const QString tooWide = f.rows[1450].texts[0] = QString(300, u'x');
    f.list.resize(900, 300);
    f.list.refresh();
    const QFontMetrics metrics(f.view.font());
    QVERIFY(f.view.columnWidth(1) > metrics.horizontalAdvance(wide));
    // One that would push all others out of sight is told by its tooltip.
    QVERIFY(f.view.columnWidth(0) < metrics.horizontalAdvance(tooWide) / 2);
    const QModelIndex longOne = f.list.model()->index(1450, 0);
    QString toolTip = longOne.data(Qt::ToolTipRole).toString();
    QLabel box(toolTip);
    box.setWordWrap(true);
    QVERIFY(box.sizeHint().width() < metrics.horizontalAdvance(tooWide) / 2);
    QVERIFY(toolTip.remove(QChar(0x200B)).contains(tooWide));
    f.rows.resize(2); // of another day
    const int before = f.view.columnWidth(0);
    f.list.refresh();
    QCOMPARE(f.view.columnWidth(0), before);
}

QTEST_MAIN(tst_recordlist)
#include "tst_recordlist.moc"
