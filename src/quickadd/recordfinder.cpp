#include "quickadd/recordfinder.h"

#include "quickadd/plaincalories.h"
#include "quickadd/quickaddtexts.h"
#include "session/session.h"
#include "ui/elidedlabel.h"
#include "ui/listmodel.h"
#include "ui/reportview.h"

#include <QCoreApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QTimer>
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
    meal.calories = 1;
    meal.grams = plaincalories::grams;
    meal.shares = plaincalories::shares;
    return meal;
}

} // namespace

RecordFinder::RecordFinder(Session &session, Recordables::Among among, const QString &caption,
                           const QString &example, QWidget *parent)
    : QWidget(parent)
    , m_session(session)
    , m_among(among)
    , m_reader(session.text())
    , m_plainCalories(plainCaloriesToBe())
    , m_model(new ListModel({{.header = tr("Name"), .isLongText = true},
                             {.header = tr("Category")},
                             {.header = tr("Quantity")},
                             {.header = tr("Calories"), .isNumber = true}},
                            this))
    , txtEntry(new QLineEdit(this))
    , lblUnderstood(new ElidedLabel(this))
    , lvwList(new ReportView(*m_model, this))
{
    txtEntry->setObjectName(u"txtEntry"_s);
    txtEntry->setPlaceholderText(example);
    txtEntry->installEventFilter(this);
    lblUnderstood->setObjectName(u"lblUnderstood"_s);
    makeList();
    layOut(caption);
    reload();

    connect(txtEntry, &QLineEdit::textChanged, this, &RecordFinder::showLine);
    connect(lvwList->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &RecordFinder::changed);
    connect(lvwList, &QTreeView::doubleClicked, this, &RecordFinder::taken);
    auto *clock = new QTimer(this);
    connect(clock, &QTimer::timeout, this, &RecordFinder::followClock);
    clock->start(2000);
}

void RecordFinder::makeList()
{
    lvwList->setObjectName(u"lvwList"_s);
    lvwList->setAccessibleName(tr("What it can be"));
    // Of one width for all lines: columns that followed the rows would move at every key.
    const int character = fontMetrics().averageCharWidth();
    lvwList->setColumnWidth(1, 22 * character);
    lvwList->setColumnWidth(2, 26 * character);
    lvwList->setColumnWidth(3, qMax(11 * character, lvwList->header()->sectionSizeHint(3)));
    lvwList->setMinimumWidth(80 * character);
    lvwList->setMinimumHeight(6 * fontMetrics().height());
}

// With room for long names where the screen has it.
QSize RecordFinder::sizeHint() const
{
    return QWidget::sizeHint().expandedTo({125 * fontMetrics().averageCharWidth(), 0});
}

void RecordFinder::layOut(const QString &caption)
{
    auto *label = new QLabel(caption, this);
    label->setBuddy(txtEntry);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(label);
    layout->addWidget(txtEntry);
    layout->addWidget(lblUnderstood);
    layout->addWidget(lvwList, 1);
    setFocusProxy(txtEntry);
}

void RecordFinder::reload()
{
    Recordables read;
    read.load(m_session.data());
    read.readHabits(m_session.data(), m_session.clock().now());
    m_recordables = std::move(read);
    showLine();
}

void RecordFinder::setLine(const QString &line)
{
    if (txtEntry->text() == line)
        showLine();
    else
        txtEntry->setText(line);
}

QTime RecordFinder::now() const
{
    const QTime time = m_session.clock().now().time();
    return {time.hour(), time.minute()};
}

Recordables::Among RecordFinder::kinds() const
{
    return m_among == Recordables::Among::All ? kindsMeant(m_line) : m_among;
}

void RecordFinder::showLine()
{
    m_now = now();
    m_line = m_reader.read(txtEntry->text());
    lblUnderstood->setText(understood());
    const bool isPlain =
        m_line.words.isEmpty() && m_line.amount && m_line.amount->measure == Measure::Energy;
    if (!isPlain) {
        offer(m_recordables.find(m_line.words, kinds(), mostOffered));
        return;
    }
    const Recordable *plain = m_recordables.plainCalories();
    offer({plain ? plain : &m_plainCalories});
}

// What can't be recorded as it is typed comes behind what can.
void RecordFinder::offer(const std::vector<const Recordable *> &records)
{
    const LocaleText &text = m_session.text();
    std::vector<ListRow> rows;
    std::vector<ListRow> refusedRows;
    std::vector<const Recordable *> refused;
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
            refusedRows.push_back(std::move(row));
            refused.push_back(record);
        }
    }
    std::move(refusedRows.begin(), refusedRows.end(), std::back_inserter(rows));
    m_offered.insert(m_offered.end(), refused.begin(), refused.end());
    m_model->setRows(std::move(rows));
    {
        const QSignalBlocker once(lvwList->selectionModel());
        lvwList->setCurrentIndex(m_model->index(0, 0));
    }
    lvwList->scrollToTop();
    Q_EMIT changed();
}

const Recordable *RecordFinder::record() const
{
    const QModelIndex row = lvwList->currentIndex();
    return row.isValid() ? m_offered.at(static_cast<size_t>(row.row())) : nullptr;
}

QuickEntry RecordFinder::entry() const
{
    if (const Recordable *found = record())
        return entryOf(m_line, *found, m_now);
    QuickEntry none;
    none.problem = nothingFound();
    return none;
}

QString RecordFinder::understood() const
{
    if (!m_line.isEmpty())
        return understoodText(m_line, m_session.text());
    return m_among == Recordables::Among::Meals
               ? tr("A part of a name and, as you like, a quantity or a weight")
               : tr("A part of a name and, as you like, a quantity, a weight, a time, a duration");
}

QString RecordFinder::nothingFound() const
{
    if (!m_line.unread.isEmpty())
        return tr("\"%1\" can't be read").arg(m_line.unread.join(u"\", \""_s));
    if (m_line.words.isEmpty())
        return tr("Type a part of a name");
    switch (kinds()) {
    case Recordables::Among::Meals:
        return tr("No meal has all of these words in its name");
    case Recordables::Among::Activities:
        return tr("No activity has all of these words in its name");
    case Recordables::Among::All:
        break;
    }
    return tr("No meal or activity has all of these words in its name");
}

// What is shown is what is recorded: with the minute the line goes on.
void RecordFinder::followClock()
{
    if (m_now == now() || m_line.time)
        return;
    const int row = lvwList->currentIndex().row();
    showLine();
    lvwList->setCurrentIndex(m_model->index(row, 0));
}

bool RecordFinder::eventFilter(QObject *watched, QEvent *event)
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
    return QWidget::eventFilter(watched, event);
}
