#include "journal/frmCopyDay.h"

#include "session/session.h"
#include "session/typeddatetime.h"
#include "ui/actionrecording.h"
#include "ui/attempt.h"
#include "ui/entrydays.h"
#include "ui/fieldmessages.h"
#include "ui/pickers.h"
#include "ui/reportview.h"
#include "ui/telling.h"
#include "ui/wheelguard.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include <set>

frmCopyDay::frmCopyDay(Session &session, Messages &messages, QWidget *parent)
    : FormDialog(session, messages, QStringLiteral("frmCopyDay"), tr("Copy from Another Day"),
                 parent)
{
    makeControls();
    makeTimes();
    setForm(makeForm());
    btnOK->setText(tr("C&opy"));
    makeChecks();
}

void frmCopyDay::makeControls()
{
    dtpDate = makeDatePicker(session(), QStringLiteral("dtpDate"), this);
    dtpDate->setAccessibleName(tr("Day to copy from"));
    dtpDate->setDate(session().currentDate().addDays(-1));
    markEntryDays(*dtpDate->calendarWidget(), session().data());
    dtpDate->installEventFilter(this);
    connect(dtpDate, &QDateEdit::dateChanged, this, &frmCopyDay::showDay);

    m_rows = new ListModel({{tr("Time")},
                            {tr("Kind")},
                            {.header = tr("Meal or Activity"), .isLongText = true},
                            {tr("Qty"), tr("Quantity"), true},
                            {tr("Unit")},
                            {tr("Calories"), tr("Calories eaten or burnt"), true}},
                           this);
    const auto makeCheckButton = [this](const QString &name, const QString &caption, bool checked) {
        auto *button = new QPushButton(caption, this);
        button->setObjectName(name);
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, m_rows,
                [this, checked] { m_rows->setAllChecked(checked); });
        return button;
    };
    btnCheckAll = makeCheckButton(QStringLiteral("btnCheckAll"), tr("Check &All"), true);
    btnCheckNone = makeCheckButton(QStringLiteral("btnCheckNone"), tr("Check &None"), false);

    lvwList = new ReportView(*m_rows, this);
    lvwList->setObjectName(QStringLiteral("lvwList"));
    lvwList->setAccessibleName(tr("Entries to copy"));
    lblState = new QLabel(this);
    lblState->setObjectName(QStringLiteral("lblState"));
    lblState->setWordWrap(true);
}

void frmCopyDay::makeTimes()
{
    optKeep = new QRadioButton(tr("&Keep the times"), this);
    optKeep->setObjectName(QStringLiteral("optKeep"));
    optKeep->setChecked(true);
    optShift = new QRadioButton(tr("&Shift the times by"), this);
    optShift->setObjectName(QStringLiteral("optShift"));
    txtSpan = makeBox(QStringLiteral("txtSpan"), tr("Span in hours and minutes"));
    txtSpan->setText(QStringLiteral("1:00"));
    txtSpan->setMaximumWidth(8 * txtSpan->fontMetrics().averageCharWidth());
    cbxDirection = new QComboBox(this);
    cbxDirection->setObjectName(QStringLiteral("cbxDirection"));
    cbxDirection->setAccessibleName(tr("Earlier or later"));
    cbxDirection->setAccessibleDescription(cbxDirection->accessibleName()); // it has no label
    cbxDirection->addItem(tr("later"), 1);
    cbxDirection->addItem(tr("earlier"), -1);
    guardFromWheel(*cbxDirection);
    // Whoever gives a span means it.
    connect(txtSpan, &QLineEdit::textEdited, optShift, [this] { optShift->setChecked(true); });
    connect(cbxDirection, &QComboBox::activated, optShift, [this] { optShift->setChecked(true); });
    lblDay = new QLabel(
        tr("Copied to: %1").arg(session().text().mediumDate(session().currentDate())), this);
    lblDay->setObjectName(QStringLiteral("lblDay"));
}

QLayout *frmCopyDay::makeForm()
{
    auto *date = new QHBoxLayout;
    date->addWidget(makeLabel(tr("&Day to Copy from"), dtpDate));
    date->addWidget(dtpDate);
    date->addStretch();
    date->addWidget(btnCheckAll);
    date->addWidget(btnCheckNone);

    auto *form = new QVBoxLayout;
    form->addLayout(date);
    form->addWidget(lvwList, 1);
    form->addWidget(lblState);
    form->addLayout(makeTimesForm());
    form->addWidget(lblDay);
    return form;
}

QLayout *frmCopyDay::makeTimesForm()
{
    auto *times = new QHBoxLayout;
    times->addWidget(optKeep);
    times->addSpacing(fontMetrics().height());
    times->addWidget(optShift);
    times->addWidget(txtSpan);
    times->addWidget(new QLabel(tr("hours:minutes"), this));
    times->addWidget(cbxDirection);
    times->addStretch();
    return times;
}

void frmCopyDay::makeChecks()
{
    checkTyped(dtpDate, tr("Day to Copy from"));
    addCheck(lvwList, tr("No entry is checked"), [this] { return !checkedEntries().empty(); });
    addCheck(txtSpan, tr("The span should be hours and minutes, such as 1:30, and less than a day"),
             [this] { return optKeep->isChecked() || readSpan(txtSpan->text()); });
}

std::optional<EntryCopies> frmCopyDay::run()
{
    load();
    resize(sizeHint().expandedTo({fontMetrics().averageCharWidth() * 110, 0}));
    lvwList->setFocus();
    exec();
    return m_copies;
}

// What was unchecked stays so where the same day is read once more.
void frmCopyDay::load()
{
    std::set<std::pair<const EntryKind *, qint32>> unchecked;
    for (size_t row = 0; row < m_entries.size() && m_day == dtpDate->date(); ++row) {
        if (!*m_rows->rows()[row].isChecked)
            unchecked.emplace(m_entries[row].kind, m_entries[row].id);
    }
    std::vector<DayEntry> entries;
    std::vector<ListRow> rows;
    QStringList missing;
    for (const EntryKind &kind : entryKinds()) {
        Recordset day(session().data().Con, *kind.ofDay);
        for (day.reopenReadable({Value(dtpDate->date())}); !day.isEof(); day.moveNext()) {
            entries.push_back(entryIn(day, kind));
            rows.push_back(rowOf(day, kind));
            rows.back().isChecked = !unchecked.contains({&kind, entries.back().id});
        }
        missing += whatIsMissing(day.leftOut(), day.isCutShort());
    }
    m_day = dtpDate->date();
    m_entries = std::move(entries);
    m_rows->setRows(std::move(rows));
    lvwList->sizeColumns();
    if (!m_entries.empty())
        lvwList->setCurrentIndex(m_rows->index(0, 0));
    tellState(missing);
}

ListRow frmCopyDay::rowOf(const Recordset &entry, const EntryKind &kind) const
{
    const LocaleText &text = session().text();
    QStringList times;
    for (const schema::Column &time : kind.times)
        times += text.listTime(entry.time(time));
    return {entry.integer(kind.table->key()),
            {times.join(u'\u2013'), kind.isMeal() ? tr("Meal") : tr("Activity"),
             entry.text(schema::Meal::Name), text.toText(entry.value(kind.quantity)),
             entry.text(schema::Meal::Unit), entry.text(commands::sCalories)}};
}

void frmCopyDay::tellState(const QStringList &missing)
{
    QStringList lines = missing;
    lines.removeAll(QString());
    lines.removeDuplicates();
    if (m_entries.empty() && lines.isEmpty())
        lines += tr("Nothing is recorded on %1").arg(session().text().mediumDate(m_day));
    lblState->setVisible(!lines.isEmpty());
    tell(*lblState, lines.join(u'\n'));
    for (QPushButton *button : {btnCheckAll, btnCheckNone})
        button->setEnabled(!m_entries.empty());
}

// A day that can't be read is not shown: picker and list stay with the day before it.
void frmCopyDay::showDay()
{
    m_dayAsked = true;
    if (attempt(
            this, messages(), [this] { load(); }, tr("The day can't be shown")))
        return;
    const QSignalBlocker blocker(dtpDate);
    dtpDate->setDate(m_day);
}

// Nothing is copied that has not been seen: Enter on a day that was typed asks for its entries.
bool frmCopyDay::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == dtpDate && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        m_dayAsked = false;
        if ((key == Qt::Key_Return || key == Qt::Key_Enter) && takeTyped(*dtpDate) && m_dayAsked) {
            lvwList->setFocus();
            return true;
        }
    }
    return FormDialog::eventFilter(watched, event);
}

std::vector<DayEntry> frmCopyDay::checkedEntries() const
{
    std::vector<DayEntry> checked;
    for (size_t row = 0; row < m_entries.size(); ++row) {
        if (*m_rows->rows()[row].isChecked)
            checked.push_back(m_entries[row]);
    }
    return checked;
}

int frmCopyDay::minutes() const
{
    if (optKeep->isChecked())
        return 0;
    return readSpan(txtSpan->text()).value_or(0) * cbxDirection->currentData().toInt();
}

bool frmCopyDay::staysInDay(const std::vector<DayEntry> &entries)
{
    for (const DayEntry &entry : entries) {
        if (shifted(entry, minutes()))
            continue;
        refuse(txtSpan, tr("%1 at %2 would leave the day when shifted by this span. Nothing was "
                           "copied.")
                            .arg(recordName(session(), *entry.kind->table, entry.id),
                                 session().text().listTime(entry.times.front().toTime())));
        return false;
    }
    return true;
}

void frmCopyDay::accept()
{
    m_dayAsked = false;
    if (!Validate())
        return;
    if (m_dayAsked) { // typed, and taken only now
        lvwList->setFocus();
        return;
    }
    const std::vector<DayEntry> entries = checkedEntries();
    if (!staysInDay(entries))
        return;
    m_copies =
        copyEntries(this, session(), messages(), entries, minutes(), session().currentDate());
    if (m_copies)
        FormDialog::accept();
    else
        loadAgain();
}

// Another program's changes may be the cause of a refusal.
void frmCopyDay::loadAgain()
{
    try {
        load();
    } catch (const StoreError &) {
        // The refusal has been told; the rows stay as they were read.
    }
}
