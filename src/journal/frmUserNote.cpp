#include "journal/frmUserNote.h"

#include "session/session.h"
#include "ui/fieldmessages.h"
#include "ui/messages.h"
#include "ui/pickers.h"
#include "ui/plaintextbox.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>

frmUserNote::frmUserNote(Session &session, Messages &messages, QWidget *parent)
    : RecordEditor(session, messages, session.data().rsUserNote, QStringLiteral("frmUserNote"),
                   tr("User Note"), parent)
{
    makeControls();
    setForm(makeForm());
    makeChecks();
    resize(fontMetrics().averageCharWidth() * 65, fontMetrics().height() * 22);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        auto *shortcut = new QShortcut(Qt::ControlModifier | key, this);
        connect(shortcut, &QShortcut::activated, btnOK, &QPushButton::click);
    }
}

void frmUserNote::makeControls()
{
    dtpDateFrom = makeDatePicker(session(), QStringLiteral("dtpDateFrom"), this);
    dtpDateFrom->setAccessibleName(tr("Date From"));
    dtpDateTo = makeDatePicker(session(), QStringLiteral("dtpDateTo"), this);
    dtpDateTo->setAccessibleName(tr("Date To"));
    txtNote = new PlainTextBox(this);
    txtNote->setObjectName(QStringLiteral("txtNote"));
    txtNote->setAccessibleName(tr("User Note Text"));
    txtNote->setTabChangesFocus(true);
}

QLayout *frmUserNote::makeForm()
{
    auto *form = new QGridLayout;
    form->addWidget(makeLabel(tr("Date &From"), dtpDateFrom), 0, 0);
    form->addWidget(dtpDateFrom, 0, 1);
    form->addWidget(makeLabel(tr("Date &To"), dtpDateTo), 1, 0);
    form->addWidget(dtpDateTo, 1, 1);
    form->addWidget(makeLabel(tr("&User Note Text"), txtNote), 2, 0, 1, 3);
    form->addWidget(txtNote, 3, 0, 1, 3);
    form->setColumnStretch(2, 1);
    form->setRowStretch(3, 1);
    return form;
}

void frmUserNote::makeChecks()
{
    checkTyped(dtpDateFrom, tr("Date From"));
    checkTyped(dtpDateTo, tr("Date To"));
    addCheck(dtpDateTo, tr("The Date To is less than Date From"),
             [this] { return dtpDateTo->date() >= dtpDateFrom->date(); });
    addCheck(txtNote, shouldBeSpecified(tr("Note text")),
             [this] { return !note().trimmed().isEmpty(); });
}

// The box's own plain text would turn no-break spaces into blanks.
QString frmUserNote::note() const
{
    QString text = txtNote->document()->toRawText();
    for (const QChar lineBreak : {QChar(QChar::ParagraphSeparator), QChar(QChar::LineSeparator)})
        text.replace(lineBreak, u'\n');
    return text;
}

void frmUserNote::Populate()
{
    dtpDateFrom->setDate(session().currentDate());
    dtpDateTo->setDate(session().currentDate());
    if (source().isEof())
        return;
    dtpDateFrom->setDate(source().date(schema::UserNote::DateFrom));
    dtpDateTo->setDate(source().date(schema::UserNote::DateTo));
    txtNote->setText(source().text(schema::UserNote::NoteText));
}

void frmUserNote::Gather()
{
    source().set(schema::UserNote::DateFrom, Value(dtpDateFrom->date()));
    source().set(schema::UserNote::DateTo, Value(dtpDateTo->date()));
    source().set(schema::UserNote::NoteText, Value(note()));
}

bool frmUserNote::confirmStore()
{
    Recordset &check = session().data().rsUserNoteCheck;
    check.reopen({source().value(schema::UserNote::DateFrom),
                  source().value(schema::UserNote::DateTo), Value(recordId())});
    const bool overlaps = !check.isEof();
    const QString otherNote = overlaps ? check.text(schema::UserNote::NoteText) : QString();
    check.close();
    if (!overlaps)
        return true;
    const QString lineBreak = Session::lineBreak();
    messages().show(this, Messages::Icon::Exclamation, tr("Intersection"),
                    tr("This note intersects in time with the following another note: ") +
                        otherNote + lineBreak + tr("The intersections are not allowed.") +
                        lineBreak + lineBreak +
                        tr("Tip: You can split notes with big time periods to smaller pieces"));
    return false;
}
