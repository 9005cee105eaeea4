#include "ui/pickers.h"

#include "session/session.h"
#include "session/typeddatetime.h"
#include "ui/sectiontyping.h"
#include "ui/wheelguard.h"

#include <QCalendarWidget>
#include <QContextMenuEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>

namespace {

/// What the functions of the header ask of a picker of either kind.
class TypedEntry
{
public:
    virtual ~TypedEntry() = default;
    virtual bool take() = 0;
    virtual void selectForTyping() = 0;
    std::function<void()> tellRefused;
};

TypedEntry &entryOf(QDateTimeEdit &picker)
{
    return dynamic_cast<TypedEntry &>(picker);
}

/// Whether the focus is only away for a while, with a menu, a calendar or another window.
bool isPassing(Qt::FocusReason reason)
{
    return reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason;
}

/// An editor of dates or times, which while somebody types is a plain line of text: its own
/// reading of every key would complete and reorder half of a date. To that end its line's signals
/// are blocked; all else (sections, steps, calendar) is the base's.
template<typename Edit>
class Picker : public Edit, public TypedEntry
{
public:
    Picker(const Session &session, const QString &name, const QString &format, QWidget *parent)
        : Edit(parent)
        , m_session(session)
        , m_sections(*this->lineEdit())
    {
        this->setObjectName(name);
        this->setLocale(session.text().locale());
        this->setDisplayFormat(format);
        std::vector<QDateTimeEdit::Section> sections;
        sections.reserve(size_t(this->sectionCount()));
        for (int i = 0; i < this->sectionCount(); ++i)
            sections.push_back(this->sectionAt(i));
        m_sections.setSections(std::move(sections), format.contains(QLatin1String("MMM")) ||
                                                        format.contains(QLatin1String("ap")));
        guardFromWheel(*this);
        this->lineEdit()->installEventFilter(this);
        // Text that comes otherwise than by keys, as from a screen reader.
        QObject::connect(this->lineEdit(), &QLineEdit::textChanged, this, [this] {
            if (!showsValue())
                setTyping(true);
        });
    }

    bool take() override
    {
        if (!showsValue()) {
            const std::optional<Value> typed = m_sections.isTornOff() ? std::nullopt : read();
            if (!typed)
                return false;
            setTyping(false);
            set(*typed);
        }
        setTyping(false);
        return true;
    }

    void selectForTyping() override
    {
        if (showsValue())
            m_sections.select(0);
        else
            this->lineEdit()->selectAll();
    }

    void stepBy(int steps) override
    {
        if (m_isTyping) {
            const size_t section = m_sections.indexAtCursor();
            if (!take())
                return;
            m_sections.select(section);
        }
        Edit::stepBy(steps);
    }

    // In the style of Windows the button of the calendar takes more than the base reckons with.
    QSize sizeHint() const override
    {
        return Edit::sizeHint() + QSize(this->fontMetrics().averageCharWidth(), 0);
    }

    QValidator::State validate(QString &text, int &position) const override
    {
        return m_isTyping ? QValidator::Intermediate : Edit::validate(text, position);
    }

protected:
    bool event(QEvent *event) override
    {
        if (event->type() != QEvent::InputMethod)
            return Edit::event(event);
        setTyping(true);
        const bool isDone = Edit::event(event);
        setTyping(!showsValue());
        return isDone;
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (watched == this->lineEdit() && event->type() == QEvent::MouseButtonRelease) {
            if (static_cast<QMouseEvent *>(event)->button() == Qt::MiddleButton)
                setTyping(true); // it pastes
            else if (!this->lineEdit()->hasSelectedText())
                m_sections.selectAtCursor();
        }
        return Edit::eventFilter(watched, event);
    }

    void keyPressEvent(QKeyEvent *event) override
    {
        const bool isPlain =
            (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) ==
            Qt::NoModifier;
        if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
            finish(event);
        else if (walk(*event))
            event->accept();
        else if (isPlain && !event->text().isEmpty() && event->text().front().isPrint())
            type(event->text());
        else if (changesText(*event))
            passToLine(event);
        else
            Edit::keyPressEvent(event);
    }

    // Past the base's own: it would walk the sections before it left the field, and on entering
    // write the value over a refused text.
    // NOLINTBEGIN(bugprone-parent-virtual-call)
    bool focusNextPrevChild(bool next) override { return QWidget::focusNextPrevChild(next); }

    void focusInEvent(QFocusEvent *event) override
    {
        QAbstractSpinBox::focusInEvent(event);
        const bool isBack = isPassing(event->reason()) && m_wasEntered;
        m_wasEntered = true;
        if (!isBack && event->reason() != Qt::MouseFocusReason)
            selectForTyping();
    }
    // NOLINTEND(bugprone-parent-virtual-call)

    void focusOutEvent(QFocusEvent *event) override
    {
        if (!isPassing(event->reason()) && !take() && tellRefused) {
            this->lineEdit()->setText(this->textFromDateTime(this->dateTime()));
            setTyping(false);
        }
        QLineEdit &line = *this->lineEdit();
        const QString typed = line.text();
        const int cursor = line.cursorPosition();
        const int start = line.selectionStart();
        const int length = line.selectionLength();
        Edit::focusOutEvent(event); // writes the value
        if (m_isTyping && line.text() != typed) {
            line.setText(typed);
            line.setCursorPosition(cursor);
            if (length > 0)
                line.setSelection(start, length);
        }
    }

    void mousePressEvent(QMouseEvent *event) override
    {
        take(); // for the calendar to begin with it
        Edit::mousePressEvent(event);
    }

    void contextMenuEvent(QContextMenuEvent *event) override
    {
        setTyping(true); // until its Paste is done
        Edit::contextMenuEvent(event);
        setTyping(!showsValue());
    }

private:
    using Value = std::conditional_t<std::is_same_v<Edit, QDateEdit>, QDate, QTime>;

    bool showsValue() const { return this->text() == this->textFromDateTime(this->dateTime()); }
    void set(QDate date) { this->setDate(date); }
    void set(QTime time) { this->setTime(time); }

    std::optional<Value> read() const
    {
        const LocaleText &text = m_session.text();
        if constexpr (std::is_same_v<Edit, QDateEdit>) {
            const auto date = readDate(this->text(), text.locale(), this->displayFormat(),
                                       m_session.clock().now().date());
            const bool fits = date && *date >= this->minimumDate() && *date <= this->maximumDate();
            return fits ? date : std::nullopt;
        } else {
            return readTime(this->text(), text.locale(), text.is24HourClock());
        }
    }

    void setTyping(bool on)
    {
        m_isTyping = on;
        this->lineEdit()->blockSignals(on);
    }

    void type(const QString &text)
    {
        setTyping(true);
        for (const QChar c : text)
            m_sections.type(c);
    }

    static bool changesText(const QKeyEvent &event)
    {
        return event.key() == Qt::Key_Backspace || event.key() == Qt::Key_Delete ||
               event.matches(QKeySequence::Cut) || event.matches(QKeySequence::Paste) ||
               event.matches(QKeySequence::Undo) || event.matches(QKeySequence::Redo);
    }

    void passToLine(QKeyEvent *event)
    {
        setTyping(true);
        this->lineEdit()->event(event);
        event->accept();
    }

    bool walk(const QKeyEvent &event)
    {
        if ((event.modifiers() & Qt::ShiftModifier) != 0)
            return false;
        switch (event.key()) {
        case Qt::Key_Left:
        case Qt::Key_Right:
            m_sections.walk((event.key() == Qt::Key_Right) != this->isRightToLeft());
            return true;
        case Qt::Key_Home:
            m_sections.select(0);
            return true;
        case Qt::Key_End:
            m_sections.select(size_t(this->sectionCount()));
            return true;
        default:
            return false;
        }
    }

    // Enter goes on to the dialog, whose OK asks for what is typed and says what is wrong with it.
    void finish(QKeyEvent *event)
    {
        const bool taken = take();
        selectForTyping();
        event->setAccepted(!taken && tellRefused);
        if (event->isAccepted())
            tellRefused();
    }

    const Session &m_session;
    SectionTyping m_sections;
    bool m_isTyping = false;
    bool m_wasEntered = false;
};

} // namespace

QDateEdit *makeDatePicker(const Session &session, const QString &name, QWidget *parent)
{
    const LocaleText &text = session.text();
    auto *picker = new Picker<QDateEdit>(session, name, text.dateInputFormat(), parent);
    picker->setCalendarPopup(true);
    picker->calendarWidget()->setLocale(text.locale());
    return picker;
}

QTimeEdit *makeTimePicker(const Session &session, const QString &name, QWidget *parent)
{
    return new Picker<QTimeEdit>(session, name, session.qtPickerTimeFormat(), parent);
}

bool takeTyped(QDateTimeEdit &picker)
{
    return entryOf(picker).take();
}

void selectForTyping(QDateTimeEdit &picker)
{
    entryOf(picker).selectForTyping();
}

void whenRefused(QDateTimeEdit &picker, std::function<void()> tell)
{
    entryOf(picker).tellRefused = std::move(tell);
}
