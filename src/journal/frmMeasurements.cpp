#include "journal/frmMeasurements.h"

#include "journal/frmBody.h"
#include "journal/frmUserNote.h"
#include "session/session.h"
#include "settings/units.h"
#include "ui/attempt.h"
#include "ui/fieldmessages.h"
#include "ui/messages.h"
#include "ui/pickers.h"
#include "ui/recordlist.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QSplitter>
#include <QTreeView>
#include <QVBoxLayout>

using namespace Qt::Literals;

namespace {

/// Whatever begins a new line in a note becomes a blank.
QString onOneLine(QString text)
{
    text.replace("\r\n"_L1, " "_L1);
    for (QChar &c : text) {
        if (c == u'\n' || c == u'\r' || c == QChar::LineSeparator || c == QChar::ParagraphSeparator)
            c = u' ';
    }
    return text;
}

/// What is no day reads as it is stored.
QString dateText(const LocaleText &text, const Value &value)
{
    const QDate date = value.toDate();
    return date.isValid() ? text.shortDate(date) : text.toText(value);
}

} // namespace

frmMeasurements::frmMeasurements(Session &session, Messages &messages, QWidget *parent)
    : QDialog(parent)
    , m_session(session)
    , m_messages(messages)
    , dtpDate(makeDatePicker(session, QStringLiteral("dtpDate"), this))
    , lblWeightIn(new QLabel(this))
    , lblLinearIn(new QLabel(this))
    , m_measurements(makeMeasurementList())
    , m_notes(makeNoteList())
{
    setObjectName(QStringLiteral("frmMeasurements"));
    setWindowTitle(tr("Body Measurement and Notes"));
    auto *panes = new QSplitter(this);
    panes->setChildrenCollapsible(false);
    panes->setHandleWidth(2 * fontMetrics().averageCharWidth());
    panes->addWidget(makeMeasurementPane());
    panes->addWidget(makeNotePane());
    panes->widget(0)->lower();     // read first; a splitter puts each before those it has
    panes->setStretchFactor(1, 1); // the notes take what the measurements don't need
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(makeDateRow());
    layout->addWidget(panes, 1);
    resize(fontMetrics().averageCharWidth() * 130, fontMetrics().height() * 28);

    dtpDate->setDate(session.currentDate().addMonths(-1));
    refresh();
    directAccessKeys(nullptr);
    makeConnections();
}

// The focus moves on once more while the lists are being deleted, and must not be followed then.
frmMeasurements::~frmMeasurements()
{
    disconnect(qApp, nullptr, this, nullptr);
}

template<typename Editor>
std::optional<Reselection> frmMeasurements::edit(qint32 id)
{
    Editor editor(m_session, m_messages, this);
    return editor.run(id) ? std::optional(editor.reselection()) : std::nullopt;
}

RecordList *frmMeasurements::makeMeasurementList()
{
    RecordList::Actions actions{[this] { return measurements(); },
                                [this](qint32 id) { return edit<frmBody>(id); },
                                {m_session.data().rsBody}};
    auto *list = new RecordList({{tr("Date")},
                                 {.header = tr("Weight"), .isNumber = true},
                                 {.header = tr("Breast"), .isNumber = true},
                                 {.header = tr("Waist"), .isNumber = true},
                                 {.header = tr("Hips"), .isNumber = true}},
                                ListFamily::Journal, m_session, m_messages, std::move(actions),
                                tr("Body Measurement"), this);
    list->setNames({QStringLiteral("lvwMeasurementList"), QStringLiteral("btnMeasurementNew"),
                    QStringLiteral("btnMeasurementEdit"), QStringLiteral("btnMeasurementDelete")});
    return list;
}

RecordList *frmMeasurements::makeNoteList()
{
    RecordList::Actions actions{[this] { return notes(); },
                                [this](qint32 id) { return edit<frmUserNote>(id); },
                                {m_session.data().rsUserNote}};
    auto *list = new RecordList(
        {{tr("From")}, {tr("To")}, {.header = tr("Note"), .isLongText = true}}, ListFamily::Journal,
        m_session, m_messages, std::move(actions), tr("Personal Notes"), this);
    list->setNames({QStringLiteral("lvwNoteList"), QStringLiteral("btnNotetNew"),
                    QStringLiteral("btnNotetEdit"), QStringLiteral("btnNotetDelete")});
    list->addHelpButton(); // of the window, in its corner
    return list;
}

QLayout *frmMeasurements::makeDateRow()
{
    dtpDate->setAccessibleName(tr("Date From"));
    auto *label = new QLabel(tr("Date &From"), this);
    label->setBuddy(dtpDate);
    auto *row = new QHBoxLayout;
    row->addWidget(label);
    row->addWidget(dtpDate);
    row->addStretch();
    return row;
}

QLabel *frmMeasurements::makeHeading(const QString &caption, QWidget *list)
{
    auto *heading = new QLabel(caption, this);
    QFont bold = heading->font();
    bold.setBold(true);
    heading->setFont(bold);
    heading->setBuddy(list);
    return heading;
}

QWidget *frmMeasurements::makeMeasurementPane()
{
    const bool metric = !m_session.parameters().isImperial();
    const auto bracketed = [](const QString &unit) { return u'(' + unit + u')'; };
    lblWeightIn->setObjectName(QStringLiteral("lblWeightIn"));
    lblWeightIn->setText(tr("Weight ") + bracketed(units::weightLabel(metric)));
    lblLinearIn->setObjectName(QStringLiteral("lblLinearIn"));
    lblLinearIn->setText(tr("Breast, Waist, Hips ") + bracketed(units::girthLabel(metric)));
    m_measurements->list()->setAccessibleDescription(lblWeightIn->text() + QStringLiteral(", ") +
                                                     lblLinearIn->text());

    auto *top = new QHBoxLayout;
    top->addWidget(makeHeading(tr("Body &Measurement"), m_measurements->list()));
    top->addStretch();
    top->addWidget(lblWeightIn);
    top->addSpacing(fontMetrics().averageCharWidth());
    top->addWidget(lblLinearIn);
    auto *pane = new QWidget(this);
    auto *layout = new QVBoxLayout(pane);
    layout->setContentsMargins({});
    layout->addLayout(top);
    layout->addWidget(m_measurements);
    return pane;
}

QWidget *frmMeasurements::makeNotePane()
{
    auto *pane = new QWidget(this);
    auto *layout = new QVBoxLayout(pane);
    layout->setContentsMargins({});
    layout->addWidget(makeHeading(tr("&Personal Notes"), m_notes->list()));
    layout->addWidget(m_notes);
    return pane;
}

void frmMeasurements::makeConnections()
{
    connect(dtpDate, &QDateEdit::dateChanged, this,
            attempting(this, m_messages, &frmMeasurements::refresh));
    whenRefused(*dtpDate, [this] { m_messages.error(this, containsIllegalData(tr("Date From"))); });
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget *, QWidget *now) { directAccessKeys(now); });
}

void frmMeasurements::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    m_measurements->list()->scrollToBottom(); // to the newest
}

void frmMeasurements::refresh()
{
    m_measurements->refresh();
    m_notes->refresh();
}

// Both lists have the same captions: the access keys press the buttons of the list that has the
// focus, of the first one where neither has it.
void frmMeasurements::directAccessKeys(const QWidget *focus)
{
    const bool toNotes = m_notes->isAncestorOf(focus);
    m_measurements->setAccessKeysActive(!toNotes);
    m_notes->setAccessKeysActive(toNotes);
}

ListRows frmMeasurements::measurements() const
{
    const LocaleText &text = m_session.text();
    Recordset &source = m_session.data().rsBodySorted;
    std::vector<ListRow> rows;
    for (source.reopenReadable({Value(dtpDate->date())}); !source.isEof(); source.moveNext())
        rows.push_back({source.integer(schema::Body::BodyID),
                        {dateText(text, source.value(schema::Body::DateMeasured)),
                         text.toText(source.value(schema::Body::Weight)),
                         text.toText(source.value(schema::Body::Breast)),
                         text.toText(source.value(schema::Body::Waist)),
                         text.toText(source.value(schema::Body::Hips))}});
    source.close();
    return {std::move(rows), source.leftOut(), source.isCutShort()};
}

ListRows frmMeasurements::notes() const
{
    const LocaleText &text = m_session.text();
    Recordset &source = m_session.data().rsUserNoteSorted;
    std::vector<ListRow> rows;
    for (source.reopenReadable({Value(dtpDate->date())}); !source.isEof(); source.moveNext()) {
        const QString note = source.text(schema::UserNote::NoteText);
        rows.push_back({source.integer(schema::UserNote::UserNoteID),
                        {dateText(text, source.value(schema::UserNote::DateFrom)),
                         dateText(text, source.value(schema::UserNote::DateTo)), onOneLine(note)},
                        note});
    }
    source.close();
    return {std::move(rows), source.leftOut(), source.isCutShort()};
}
