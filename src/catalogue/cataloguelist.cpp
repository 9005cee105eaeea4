#include "catalogue/cataloguelist.h"

#include "session/session.h"

#include <QVBoxLayout>

CatalogueList::CatalogueList(Session &session, Messages &messages, Recordset &source,
                             const QString &name, const QString &caption,
                             std::vector<ListColumn> columns, QWidget *parent)
    : QDialog(parent)
    , m_session(session)
    , m_messages(messages)
    , m_list(new RecordList(
          std::move(columns), ListFamily::Catalogue, session, messages,
          {[this] { return rows(); }, [this](qint32 id) { return edit(id); }, {source}}, caption,
          this))
{
    setObjectName(name);
    setWindowTitle(caption);
    m_list->addHelpButton();
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_list);
}

void CatalogueList::setHead(QLayout *head)
{
    static_cast<QVBoxLayout *>(layout())->insertLayout(0, head);
}

void CatalogueList::run()
{
    load();
    m_list->setFocus();
    exec();
}

ListRows CatalogueList::readRows(Recordset &records, const schema::Column &tag,
                                 std::initializer_list<schema::Column> columns) const
{
    std::vector<ListRow> rows;
    rows.reserve(records.rowCount());
    for (; !records.isEof(); records.moveNext()) {
        ListRow row{records.integer(tag), {}};
        for (const schema::Column &column : columns)
            row.texts += m_session.text().toText(records.value(column));
        rows.push_back(std::move(row));
    }
    records.close();
    return {std::move(rows), records.leftOut(), records.isCutShort()};
}
