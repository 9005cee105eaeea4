#include "quickadd/frmQuickAdd.h"

#include "data/identifiers.h"
#include "data/steps.h"
#include "quickadd/plaincalories.h"
#include "quickadd/quickaddtexts.h"
#include "session/session.h"
#include "ui/actionrecording.h"
#include "ui/attempt.h"
#include "ui/elidedlabel.h"
#include "ui/helpbutton.h"
#include "ui/icons.h"
#include "ui/listmodel.h"
#include "ui/reportstyle.h"

#include <QAccessible>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QTreeView>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr size_t mostOffered = 100;

Recordable plainCaloriesToBe()
{
    Recordable meal;
    meal.name = plaincalories::name;
    meal.category = plaincalories::category;
    meal.unit = plaincalories::unit;
    meal.shares = plaincalories::shares;
    return meal;
}

void say(QWidget *label)
{
    QAccessibleEvent said(label, QAccessible::Alert);
    QAccessible::updateAccessibility(&said);
}

} // namespace

frmQuickAdd::frmQuickAdd(Session &session, Messages &messages, QWidget *parent)
    : QDialog(parent)
    , m_session(session)
    , m_messages(messages)
    , m_reader(session.text())
    , m_plainCalories(plainCaloriesToBe())
    , m_model(new ListModel({{.header = tr("Name"), .isLongText = true},
                             {.header = tr("Category")},
                             {.header = tr("Quantity")},
                             {.header = tr("Calories"), .isNumber = true}},
                            this))
    , m_pause(new QTimer(this))
{
    setObjectName(u"frmQuickAdd"_s);
    setWindowTitle(tr("Quick Add"));
    load();
    makeControls();
    layOut();
    showLine();

    connect(txtEntry, &QLineEdit::textChanged, this, &frmQuickAdd::showLine);
    connect(lvwList->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &frmQuickAdd::showEntry);
    connect(lvwList, &QTreeView::doubleClicked, this, &frmQuickAdd::store);
    connect(btnAdd, &QPushButton::clicked, this, &frmQuickAdd::store);
    m_pause->setSingleShot(true);
    connect(m_pause, &QTimer::timeout, this, [this] { say(lblStore); });
    auto *clock = new QTimer(this);
    connect(clock, &QTimer::timeout, this, &frmQuickAdd::followClock);
    clock->start(2000);
}

void frmQuickAdd::makeControls()
{
    txtEntry = new QLineEdit(this);
    txtEntry->setObjectName(u"txtEntry"_s);
    txtEntry->setAccessibleName(tr("What was eaten or done"));
    txtEntry->setPlaceholderText(tr("2 banana %1").arg(m_session.text().listTime(QTime(8, 15))));
    txtEntry->installEventFilter(this);

    lvwList = new QTreeView(this);
    setReportStyle(*lvwList);
    lvwList->setObjectName(u"lvwList"_s);
    lvwList->setAccessibleName(tr("What it can be"));
    lvwList->setModel(m_model);
    lvwList->setRootIsDecorated(false);
    lvwList->setUniformRowHeights(true);
    lvwList->setAllColumnsShowFocus(true);
    lvwList->setAlternatingRowColors(true);
    lvwList->setTextElideMode(Qt::ElideRight);
    QHeaderView *header = lvwList->header();
    const int character = fontMetrics().averageCharWidth();
    header->setSectionsMovable(false);
    header->setStretchLastSection(false);
    header->setSectionResizeMode(0, QHeaderView::Stretch);
    lvwList->setColumnWidth(1, 24 * character);
    lvwList->setColumnWidth(2, 28 * character);
    lvwList->setColumnWidth(3, 12 * character);
    lvwList->setMinimumWidth(112 * character);
    lvwList->setMinimumHeight(8 * fontMetrics().height());

    const auto label = [this](const QString &name) {
        auto *line = new ElidedLabel(this);
        line->setObjectName(name);
        return line;
    };
    lblUnderstood = label(u"lblUnderstood"_s);
    lblStore = new QLabel(this);
    lblStore->setObjectName(u"lblStore"_s);
    lblStore->setTextFormat(Qt::PlainText);
    lblStore->setWordWrap(true); // it is never cut off, and doesn't move what is around it
    lblStore->setMinimumHeight(2 * fontMetrics().lineSpacing());
    QFont bold = lblStore->font();
    bold.setBold(true);
    lblStore->setFont(bold);
    lblAdded = label(u"lblAdded"_s);
    btnAdd = new QPushButton(icon(u"Plus"_s, palette()), tr("&Add"), this);
    btnAdd->setObjectName(u"btnAdd"_s);
    btnAdd->setDefault(true);
}

QLayout *frmQuickAdd::makeButtons()
{
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

void frmQuickAdd::layOut()
{
    auto *caption = new QLabel(tr("&What was eaten or done"), this);
    caption->setBuddy(txtEntry);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(caption);
    layout->addWidget(txtEntry);
    layout->addWidget(lblUnderstood);
    layout->addWidget(lvwList, 1);
    layout->addWidget(lblStore);
    layout->addWidget(lblAdded);
    layout->addLayout(makeButtons());
    txtEntry->setFocus();
}

void frmQuickAdd::load()
{
    Recordables read;
    read.load(m_session.data());
    read.readHabits(m_session.data(), m_session.clock().now());
    m_recordables = std::move(read);
}

QTime frmQuickAdd::now() const
{
    const QTime time = m_session.clock().now().time();
    return {time.hour(), time.minute()};
}

void frmQuickAdd::showLine()
{
    m_now = now();
    m_line = m_reader.read(txtEntry->text());
    lblUnderstood->setText(m_line.isEmpty()
                               ? tr("A part of a name and, as you like, a quantity, a weight, a "
                                    "time, a duration")
                               : understoodText(m_line, m_session.text()));
    const bool isPlain =
        m_line.words.isEmpty() && m_line.amount && m_line.amount->measure == Measure::Energy;
    if (!isPlain) {
        offer(m_recordables.find(m_line.words, kindsMeant(m_line), mostOffered));
        return;
    }
    const Recordable *plain = m_recordables.plainCalories();
    offer({plain ? plain : &m_plainCalories});
}

// What can't be stored as it is typed comes behind what can.
void frmQuickAdd::offer(std::vector<const Recordable *> records)
{
    const LocaleText &text = m_session.text();
    std::vector<ListRow> rows;
    std::vector<ListRow> refused;
    std::vector<const Recordable *> refusedRecords;
    m_offered.clear();
    rows.reserve(records.size());
    for (const Recordable *record : records) {
        const QuickEntry entry = entryOf(m_line, *record, m_now);
        const bool isMeal = record->kind == Recordable::Kind::Meal;
        ListRow row{0, {record->name, isMeal ? record->category : tr("Activity")}};
        if (entry.isValid()) {
            row.texts << text.toText(entry.quantity) + u" \u00D7 "_s + record->unit
                      << text.toText(int(entry.calories));
            rows.push_back(std::move(row));
            m_offered.push_back(record);
        } else {
            row.texts << record->unit;
            refused.push_back(std::move(row));
            refusedRecords.push_back(record);
        }
    }
    std::move(refused.begin(), refused.end(), std::back_inserter(rows));
    m_offered.insert(m_offered.end(), refusedRecords.begin(), refusedRecords.end());
    m_model->setRows(std::move(rows));
    lvwList->setCurrentIndex(m_model->index(0, 0));
    lvwList->scrollToTop();
    showEntry();
}

const Recordable *frmQuickAdd::selected() const
{
    const QModelIndex row = lvwList->currentIndex();
    return row.isValid() ? m_offered.at(static_cast<size_t>(row.row())) : nullptr;
}

QString frmQuickAdd::nothingFound() const
{
    if (!m_line.unread.isEmpty())
        return tr("\"%1\" can't be read").arg(m_line.unread.join(u"\", \""_s));
    if (m_line.words.isEmpty())
        return tr("Type a part of a name");
    switch (kindsMeant(m_line)) {
    case Recordables::Among::Meals:
        return tr("No meal has all of these words in its name");
    case Recordables::Among::Activities:
        return tr("No activity has all of these words in its name");
    case Recordables::Among::All:
        break;
    }
    return tr("No meal or activity has all of these words in its name");
}

void frmQuickAdd::showEntry()
{
    const Recordable *record = selected();
    lblStore->setText(record ? storeText(*record, entryOf(m_line, *record, m_now),
                                         m_session.currentDate(), m_session.text())
                             : nothingFound());
    const QString described = lblUnderstood->text() + u". "_s + lblStore->text();
    txtEntry->setAccessibleDescription(described);
    m_pause->start(500);
}

// What is shown is what is stored: with the minute the line goes on.
void frmQuickAdd::followClock()
{
    if (m_now == now() || m_line.time)
        return;
    const int row = lvwList->currentIndex().row();
    showLine();
    lvwList->setCurrentIndex(m_model->index(row, 0));
}

bool frmQuickAdd::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == txtEntry && event->type() == QEvent::KeyPress) {
        switch (static_cast<QKeyEvent *>(event)->key()) {
        case Qt::Key_Up:
        case Qt::Key_Down:
        case Qt::Key_PageUp:
        case Qt::Key_PageDown:
            QCoreApplication::sendEvent(lvwList, event);
            return true;
        default:
            break;
        }
    }
    return QDialog::eventFilter(watched, event);
}

void frmQuickAdd::store()
{
    txtEntry->setFocus();
    const Recordable *record = selected();
    const QuickEntry entry = record ? entryOf(m_line, *record, m_now) : QuickEntry();
    if (!record || !entry.isValid()) {
        say(lblStore);
        return;
    }
    const QString what = storeText(*record, entry, m_session.currentDate(), m_session.text());
    const bool stored = attempt(
        this, m_messages, [&] { write(*record, entry); }, tr("The entry can't be stored"));
    // Where it was refused the catalogue may have changed; what is typed stays.
    attempt(
        this, m_messages, [this] { load(); },
        tr("The list can't be read; it shows what it showed before"));
    if (!stored) {
        showLine();
        return;
    }
    tellAdded(what);
    txtEntry->clear();
    showLine();
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

void frmQuickAdd::tellAdded(const QString &what)
{
    lblAdded->setText(tr("Added: %1").arg(what));
    say(lblAdded);
}
