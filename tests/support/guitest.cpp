#include "guitest.h"

#include <QApplication>
#include <QTimer>
#include <QWheelEvent>

#include <algorithm>

RecordedMessages::RecordedMessages() = default;
RecordedMessages::~RecordedMessages() = default;

void RecordedMessages::show(QWidget *, Icon icon, const QString &title, const QString &text,
                            const QString &cause)
{
    said.push_back({icon, title, text, cause});
}

bool RecordedMessages::ask(QWidget *, const QString &title, const QString &text)
{
    said.push_back({Icon::Information, title, text, {}, true});
    return !answers.isEmpty() && answers.takeFirst();
}

QString RecordedMessages::takeText()
{
    QString text = said.empty() ? QString() : said.back().text;
    said.clear();
    return text;
}

double share(const QImage &picture, const QRectF &rect, const QColor &color)
{
    const QRect dots = rect.toAlignedRect() & picture.rect();
    int found = 0;
    for (int i = 0; i < dots.width() * dots.height(); ++i)
        found += picture.pixel(dots.left() + i % dots.width(), dots.top() + i / dots.width()) ==
                 color.rgb();
    return double(found) / std::max(1, dots.width() * dots.height());
}

void setTestFont(QWidget &widget)
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(12);
    widget.setFont(font);
}

void typeInto(QWidget &field, const QString &text)
{
    field.setFocus();
    QTest::keyClick(&field, Qt::Key_A, Qt::ControlModifier);
    if (text.isEmpty())
        QTest::keyClick(&field, Qt::Key_Delete);
    else
        QTest::keyClicks(&field, text);
}

void activate(QWidget &window)
{
    window.activateWindow();
    if (!QTest::qWaitForWindowActive(&window))
        qFatal("%s does not get the focus", qPrintable(window.objectName()));
}

void typeKeys(const QString &text)
{
    for (const QChar c : text) {
        if (c == u'<')
            pressKey(Qt::Key_Backspace);
        else if (c == u'>')
            pressKey(Qt::Key_Right);
        else if (c == u'^')
            pressKey(Qt::Key_A, Qt::ControlModifier);
        else
            pressKey(Qt::Key(c.toUpper().unicode()), Qt::NoModifier, c);
    }
}

void turnWheelOver(QWidget &field)
{
    QWheelEvent wheel({}, {}, {}, QPoint(0, 120), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                      false);
    QApplication::sendEvent(&field, &wheel);
}

void inDialog(const char *name, const std::function<void()> &open,
              const std::function<void(QWidget &)> &steps)
{
    bool appeared = false;
    int waited = 0;
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, [&] {
        QWidget *dialog = QApplication::activeModalWidget();
        if (!dialog || !dialog->isVisible() || dialog->objectName() != QLatin1String(name)) {
            if (++waited > 1000 && dialog) {
                poll.stop();
                dialog->close(); // another one: let `open` return and the check below fail
            }
            return;
        }
        poll.stop();
        appeared = true;
        // What is still on its way could take the focus away again, or begin the text anew.
        do {
            activate(*dialog);
            QCoreApplication::processEvents();
        } while (dialog->isVisible() && QApplication::activeWindow() != dialog);
        steps(*dialog);
        if (dialog->isVisible())
            dialog->close();
    });
    poll.start(5);
    open();
    QVERIFY2(appeared, name);
    if (QWidget *opener = QApplication::activeModalWidget())
        activate(*opener);
}
