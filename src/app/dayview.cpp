#include "app/dayview.h"

#include "app/dayviewlayout.h"
#include "chart/TrellumGraph.h"
#include "ui/elidedlabel.h"
#include "ui/telling.h"

#include <QEvent>
#include <QFontMetrics>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace {

constexpr int twipsPerInch = 1440;
// Height of a line of text that the distances between the parts were chosen for, in twips.
constexpr double lineTwips = 240;

} // namespace

DayView::DayView(QWidget *parent)
    : QWidget(parent)
    , Label1(new QLabel(tr("Daily Chart"), this))
    , graph(new TrellumGraph(this))
    , btnPrev(new QPushButton(tr("&Previous"), this))
    , btnNext(new QPushButton(tr("&Next"), this))
    , txtDate(new QLineEdit(this))
    , lblWeekday(new QLabel(this))
    , lblBackup(new ElidedLabel(this))
    , btnHelp(new QPushButton(tr("H&elp"), this))
    , lblTold(new ElidedLabel(this))
    , m_sampleNotice(makeSampleNotice())
    , m_besideHeading(makeBesideHeading())
{
    Label1->setObjectName(QStringLiteral("Label1"));
    graph->setObjectName(QStringLiteral("graph"));
    btnPrev->setObjectName(QStringLiteral("btnPrev"));
    btnNext->setObjectName(QStringLiteral("btnNext"));
    txtDate->setObjectName(QStringLiteral("txtDate"));
    lblWeekday->setObjectName(QStringLiteral("lblWeekday"));
    lblWeekday->setTextFormat(Qt::PlainText);
    lblBackup->setObjectName(QStringLiteral("lblBackup"));
    lblBackup->setAlignment(Qt::AlignTrailing | Qt::AlignVCenter);
    btnHelp->setObjectName(QStringLiteral("btnHelp"));
    txtDate->setAccessibleName(tr("Current date"));
    txtDate->setReadOnly(true);
    txtDate->installEventFilter(this);
    txtDate->setAlignment(Qt::AlignCenter);
    QFont heading = Label1->font();
    heading.setBold(true);
    Label1->setFont(heading);
    txtDate->setFont(heading);
    setMinimumHeight(qRound(4000 * pixelsPerTwip()));
}

// Quiet, and yet in sight wherever the day's figures are: nobody takes them for their own.
QWidget *DayView::makeSampleNotice()
{
    auto *notice = new QWidget(this);
    auto *text = new ElidedLabel(notice);
    text->setObjectName(QStringLiteral("lblSample"));
    text->setText(tr("The journal contains sample data"));
    btnDeleteSample = new QPushButton(tr("De&lete It"), notice);
    btnDeleteSample->setObjectName(QStringLiteral("btnDeleteSample"));
    btnDeleteSample->setAccessibleName(tr("Delete sample data"));
    btnDeleteSample->setFlat(true);
    QFont link = btnDeleteSample->font();
    link.setUnderline(true);
    btnDeleteSample->setFont(link);
    auto *layout = new QHBoxLayout(notice);
    layout->setContentsMargins({});
    layout->addWidget(text);
    layout->addWidget(btnDeleteSample);
    notice->hide();
    return notice;
}

QWidget *DayView::makeBesideHeading()
{
    auto *beside = new QWidget(this);
    lblTold->setObjectName(QStringLiteral("lblTold"));
    auto *layout = new QHBoxLayout(beside);
    layout->setContentsMargins({});
    layout->addSpacing(2 * fontMetrics().averageCharWidth());
    layout->addWidget(lblTold, 1);
    layout->addWidget(m_sampleNotice);
    return beside;
}

void DayView::tell(const QString &text)
{
    ::tell(*lblTold, text);
}

void DayView::setSampleNoticeVisible(bool visible)
{
    m_sampleNotice->setVisible(visible);
}

void DayView::setNavigationVisible(bool visible)
{
    for (QWidget *part : {static_cast<QWidget *>(btnPrev), static_cast<QWidget *>(btnNext),
                          static_cast<QWidget *>(txtDate), static_cast<QWidget *>(btnHelp)})
        part->setVisible(visible);
    placeWeekday();
    m_sampleNotice->setEnabled(visible);
}

void DayView::setWeekday(const QString &name, const QString &abbreviation)
{
    m_weekday = name;
    m_weekdayAbbreviation = abbreviation;
    lblWeekday->setAccessibleName(name);
    placeWeekday();
}

void DayView::placeWeekday()
{
    const int gap = btnNext->x() - btnPrev->geometry().right() - 1;
    QRect place = txtDate->geometry();
    place.setLeft(place.right() + 1 + gap);
    place.setRight(btnHelp->x() - 1 - gap);
    lblWeekday->setText(m_weekday);
    if (lblWeekday->sizeHint().width() > place.width())
        lblWeekday->setText(m_weekdayAbbreviation);
    const int width = lblWeekday->sizeHint().width();
    lblWeekday->setGeometry(place.left(), place.top(), width, place.height());
    lblWeekday->setVisible(!txtDate->isHidden() && width <= place.width());
    placeBackupNotice();
}

void DayView::setBackupNotice(const QString &text)
{
    lblBackup->setText(text);
    placeBackupNotice();
}

// Set off from the weekday, since it is about something else.
void DayView::placeBackupNotice()
{
    const int gap = btnNext->x() - btnPrev->geometry().right() - 1;
    QRect place = txtDate->geometry();
    place.setLeft(lblWeekday->geometry().right() + 1 + 3 * gap);
    place.setRight(btnHelp->x() - 1 - gap);
    lblBackup->setGeometry(place);
    lblBackup->setVisible(!lblWeekday->isHidden() && !lblBackup->text().isEmpty() &&
                          place.width() >= lblBackup->minimumSizeHint().width());
}

double DayView::pixelsPerTwip() const
{
    // A font larger than usual for the screen's resolution takes its distances along.
    const double byResolution = double(logicalDpiY()) / twipsPerInch;
    const double byFont = QFontMetrics(font()).height() / lineTwips;
    return qMax(byResolution, byFont);
}

// Of the date, which takes keys to walk through its text that go through the days here.
bool DayView::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == txtDate && event->type() == QEvent::MouseButtonDblClick) {
        Q_EMIT dateDoubleClicked();
        return true;
    }
    if (watched == txtDate && event->type() == QEvent::ShortcutOverride)
        return true;
    return QWidget::eventFilter(watched, event);
}

void DayView::resizeEvent(QResizeEvent *)
{
    layOut();
}

void DayView::layOut()
{
    const double scale = pixelsPerTwip();
    DayViewLayout layout;
    if (!layOutDayView(size(), scale, layout))
        return;
    Label1->setGeometry(layout.heading);
    QRect beside = layout.heading;
    beside.setLeft(beside.left() + Label1->sizeHint().width());
    beside.setRight(layout.graph.right());
    m_besideHeading->setGeometry(beside);
    graph->setGeometry(layout.graph);

    const int gap = qRound(90 * scale);
    int left = layout.graph.left();
    const auto place = [&](QWidget *part, int width, int top) {
        part->setGeometry(left, top, width, layout.bottom - top);
        left += width + gap;
    };
    const int buttonWidth = qMax(btnPrev->sizeHint().width(), btnNext->sizeHint().width());
    place(btnPrev, buttonWidth, layout.buttonTop);
    place(btnNext, buttonWidth, layout.buttonTop);
    place(txtDate, txtDate->fontMetrics().averageCharWidth() * 22, layout.dateTop);
    left = layout.graph.right() + 1 - buttonWidth;
    place(btnHelp, buttonWidth, layout.buttonTop);
    placeWeekday();
    graph->repaintChart();
}
