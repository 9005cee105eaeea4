#include "quickadd/frmQuickAdd.h"

#include "data/identifiers.h"
#include "data/steps.h"
#include "quickadd/plaincalories.h"
#include "quickadd/quickaddtexts.h"
#include "quickadd/recordfinder.h"
#include "session/session.h"
#include "ui/actionrecording.h"
#include "ui/attempt.h"
#include "ui/elidedlabel.h"
#include "ui/helpbutton.h"
#include "ui/icons.h"
#include "ui/telling.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

frmQuickAdd::frmQuickAdd(Session &session, Messages &messages, QWidget *parent)
    : QDialog(parent)
    , m_session(session)
    , m_messages(messages)
    , m_finder(new RecordFinder(session, Recordables::Among::All, tr("&What was eaten or done"),
                                tr("2 banana %1").arg(session.text().listTime(QTime(8, 15))), this))
    , m_pause(new QTimer(this))
{
    setObjectName(u"frmQuickAdd"_s);
    setWindowTitle(tr("Quick Add"));
    m_finder->box()->setAccessibleName(tr("What was eaten or done"));
    makeLabels();
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_finder, 1);
    layout->addWidget(lblStore);
    layout->addWidget(lblAdded);
    layout->addLayout(makeButtons());
    m_finder->setFocus();
    // As wide as it asks for, and no higher than leaves the chart in sight.
    resize(sizeHint().width(), minimumSizeHint().height() + 6 * fontMetrics().lineSpacing());

    connect(m_finder, &RecordFinder::changed, this, &frmQuickAdd::showEntry);
    connect(m_finder, &RecordFinder::taken, this, &frmQuickAdd::store);
    connect(btnAdd, &QPushButton::clicked, this, &frmQuickAdd::store);
    m_pause->setSingleShot(true);
    connect(m_pause, &QTimer::timeout, this, [this] { tell(*lblStore, lblStore->text()); });
    showEntry();
}

void frmQuickAdd::makeLabels()
{
    lblStore = new QLabel(this);
    lblStore->setObjectName(u"lblStore"_s);
    lblStore->setTextFormat(Qt::PlainText);
    lblStore->setWordWrap(true); // it is never cut off, and doesn't move what is around it
    lblStore->setMinimumHeight(2 * fontMetrics().lineSpacing());
    QFont bold = lblStore->font();
    bold.setBold(true);
    lblStore->setFont(bold);
    lblAdded = new ElidedLabel(this);
    lblAdded->setObjectName(u"lblAdded"_s);
}

QLayout *frmQuickAdd::makeButtons()
{
    btnAdd = new QPushButton(icon(u"Plus"_s, palette()), tr("&Add"), this);
    btnAdd->setObjectName(u"btnAdd"_s);
    btnAdd->setDefault(true);
    auto *close = new QPushButton(icon(u"Exit"_s, palette()), tr("&Close"), this);
    close->setObjectName(u"btnClose"_s);
    close->setAutoDefault(false);
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
    auto *help = makeHelpButton(this);
    help->setAutoDefault(false);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(btnAdd);
    buttons->addWidget(close);
    buttons->addWidget(help);
    return buttons;
}

void frmQuickAdd::showEntry()
{
    const Recordable *record = m_finder->record();
    const QuickEntry entry = m_finder->entry();
    lblStore->setText(record ? storeText(*record, entry, m_session.currentDate(), m_session.text())
                             : entry.problem);
    m_finder->box()->setAccessibleDescription(m_finder->understood() + u". "_s + lblStore->text());
    m_pause->start(500);
}

void frmQuickAdd::store()
{
    m_finder->setFocus();
    const Recordable *record = m_finder->record();
    const QuickEntry entry = m_finder->entry();
    if (!record || !entry.isValid()) {
        tell(*lblStore, entry.problem);
        return;
    }
    const QString what = storeText(*record, entry, m_session.currentDate(), m_session.text());
    const bool stored = attempt(
        this, m_messages, [&] { write(*record, entry); }, tr("The entry can't be stored"));
    if (stored)
        tell(*lblAdded, tr("Added: %1").arg(what));
    // Where it was refused the catalogue may have changed; what is typed stays.
    attempt(
        this, m_messages, [this] { m_finder->reload(); },
        tr("The list can't be read; it shows what it showed before"));
    if (stored)
        m_finder->setLine({});
}

void frmQuickAdd::write(const Recordable &record, const QuickEntry &entry)
{
    deData &store = m_session.data();
    const bool isMeal = record.kind == Recordable::Kind::Meal;
    const schema::Table &table =
        isMeal ? schema::MealConsume::table : schema::ExercisePerform::table;
    const bool isNewMeal = record.id == 0;
    const Value key(int(*newIdentifier(store, table)));
    const auto insert = [&] {
        Recordset row(store.Con, isMeal ? commands::MealConsume : commands::ExercisePerform);
        row.open({Value(0)});
        row.addNew();
        row.set(table.key(), key);
        if (isMeal) {
            row.set(schema::MealConsume::MealID,
                    Value(isNewMeal ? plaincalories::addTo(store) : record.id));
            row.set(schema::MealConsume::ConsumeDate, Value(m_session.currentDate()));
            row.set(schema::MealConsume::ConsumeTime, Value(entry.begin));
        } else {
            row.set(schema::ExercisePerform::ExerciseID, Value(record.id));
            row.set(schema::ExercisePerform::PerformDate, Value(m_session.currentDate()));
            row.set(schema::ExercisePerform::timeBeg, Value(entry.begin));
            row.set(schema::ExercisePerform::timeEnd, Value(entry.end));
        }
        row.set(schema::MealConsume::Qty, Value(entry.quantity));
        row.update();
    };
    {
        ActionRecording recording(m_session, ActionRecording::Action::Adding, table);
        runAsOne(store.Con, {insert}, Refusal::UndoesAll);
        recording.name(key.toInt32());
    }
    m_session.setCurrentTime(entry.begin);
    StoredChange change{{&table}, StoredChange::Kind::Added};
    if (isNewMeal)
        change.tables.insert(change.tables.end(),
                             {&schema::Meal::table, &schema::MealCategory::table});
    m_session.announce(change);
}
