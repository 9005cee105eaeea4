#include "ui/telling.h"

#include <QAccessible>
#include <QLabel>
#include <QPointer>

namespace {

/// The text told last, as a notification of its own: the accessibility bus of Linux hands on no
/// alerts, and a label that changes elsewhere than at the focus is not read there.
class Notice : public QAccessibleInterface
{
public:
    explicit Notice(QLabel *label) { setLabel(label); }
    void setLabel(QLabel *label) { m_label = label; }

    bool isValid() const override { return m_label != nullptr; }
    QObject *object() const override { return nullptr; }
    QAccessibleInterface *parent() const override
    {
        return m_label ? QAccessible::queryAccessibleInterface(m_label) : nullptr;
    }
    QWindow *window() const override
    {
        const QAccessibleInterface *shown = parent();
        return shown ? shown->window() : nullptr;
    }
    QAccessibleInterface *child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    QRect rect() const override
    {
        const QAccessibleInterface *shown = parent();
        return shown ? shown->rect() : QRect();
    }
    QAccessible::Role role() const override { return QAccessible::Notification; }
    QAccessible::State state() const override { return {}; }
    void setText(QAccessible::Text, const QString &) override {}
    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name && m_label ? m_label->text() : QString();
    }

private:
    QPointer<QLabel> m_label;
};

Notice &noticeOf(QLabel &label)
{
    static const QAccessible::Id id = QAccessible::registerAccessibleInterface(new Notice(&label));
    auto &notice = static_cast<Notice &>(*QAccessible::accessibleInterface(id));
    notice.setLabel(&label);
    return notice;
}

} // namespace

void tell(QLabel &label, const QString &text)
{
    label.setText(text);
    announce(label);
}

void announce(QLabel &label)
{
    if (label.text().isEmpty() || !QAccessible::isActive())
        return;
    QAccessibleEvent alert(&label, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
    for (const QAccessible::Event what : {QAccessible::NameChanged, QAccessible::ObjectShow}) {
        QAccessibleEvent event(&noticeOf(label), what);
        QAccessible::updateAccessibility(&event);
    }
}
