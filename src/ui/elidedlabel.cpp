#include "ui/elidedlabel.h"

#include "ui/tooltips.h"

#include <QHelpEvent>
#include <QPainter>
#include <QRegularExpression>
#include <QStyle>
#include <QStyleOption>
#include <QToolTip>

namespace {

// In average characters: what a text may ask for, and what is left of it in the narrowest window.
constexpr int widest = 40;
constexpr int narrowest = 24;

} // namespace

ElidedLabel::ElidedLabel(QWidget *parent, Qt::TextElideMode mode)
    : QLabel(parent)
    , m_mode(mode)
{
    setTextFormat(Qt::PlainText);
}

QSize ElidedLabel::sizeHint() const
{
    return {qMin(QLabel::sizeHint().width(), widest * fontMetrics().averageCharWidth()),
            fontMetrics().height() + 2 * margin()};
}

QSize ElidedLabel::minimumSizeHint() const
{
    const QSize hint = sizeHint();
    return {qMin(hint.width(), narrowest * fontMetrics().averageCharWidth()), hint.height()};
}

int ElidedLabel::textFlags() const
{
    const int mnemonic = buddy() ? Qt::TextShowMnemonic : 0;
    return int(QStyle::visualAlignment(layoutDirection(), alignment())) | Qt::TextSingleLine |
           mnemonic;
}

QString ElidedLabel::elidedText() const
{
    return fontMetrics().elidedText(text(), m_mode, contentsRect().width(), textFlags());
}

bool ElidedLabel::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip || elidedText() == text())
        return QLabel::event(event);
    QString whole = text();
    if (buddy())
        whole.remove(QRegularExpression(QStringLiteral("&(?!&)")));
    QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), toolTipOf(whole), this);
    return true;
}

void ElidedLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    QStyleOption option;
    option.initFrom(this);
    style()->drawItemText(&painter, contentsRect(), textFlags(), option.palette, isEnabled(),
                          elidedText(), foregroundRole());
}
