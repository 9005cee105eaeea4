#include "guitest.h"
#include "help/helpcontents.h"
#include "help/helpkey.h"
#include "help/helpstyle.h"
#include "help/helptext.h"
#include "help/helpviewer.h"
#include "help/placebeside.h"
#include "plot/colors.h"
#include "ui/helpbutton.h"

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryFile>
#include <QWindow>

using namespace Qt::StringLiterals;

class tst_help : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void unusableFileIsTold();
    void f1OpensThePageOfItsWindow();
    void staysUsableBesideModalWindows();
    void hidesLeastOfTheWindowThatAsked();
    void goesThroughPages();
    void findsInAllPages();
    void languageAndPictures();
    void colorsAreLegible();

private:
    HelpViewer &askFrom(QWidget &window);

    std::unique_ptr<HelpKeyFilter> m_filter;
    QString m_helpFile = QStringLiteral(CORVANA_HELP);
};

void tst_help::unusableFileIsTold()
{
    const auto told = [this](const QString &path) {
        QString text;
        QTimer::singleShot(0, this, [&] {
            QWidget *box = QApplication::activeModalWidget();
            if (auto *message = qobject_cast<QMessageBox *>(box))
                text = message->text();
            if (box)
                box->close();
        });
        showHelp(nullptr, path, {});
        return text;
    };
    QVERIFY(told(QStringLiteral("/nowhere/Corvana.hlp")).contains("present"));
    QFile whole(m_helpFile);
    QVERIFY(whole.open(QIODevice::ReadOnly));
    const QByteArray bytes = whole.readAll();
    QByteArray flipped = bytes;
    flipped[bytes.size() / 2] = char(flipped[bytes.size() / 2] ^ 1);
    for (const QByteArray &damaged : {QByteArray(), bytes.chopped(1), flipped}) {
        QTemporaryFile file;
        QVERIFY(file.open() && file.write(damaged) == damaged.size() && file.flush());
        QVERIFY(told(file.fileName()).contains("damaged"));
    }
}

namespace {

HelpViewer *openViewer()
{
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (auto *viewer = qobject_cast<HelpViewer *>(window); viewer && viewer->isVisible())
            return viewer;
    }
    return nullptr;
}

QString shownIn(const HelpViewer &viewer)
{
    return control<HelpText>(viewer, "helpText").page();
}

// As from the window system, which gives nothing to a window that is blocked.
void pressIn(QWidget &window, Qt::Key key, Qt::KeyboardModifiers modifiers = {})
{
    QTest::keyClick(window.windowHandle(), key, modifiers);
    QCoreApplication::processEvents();
}

std::unique_ptr<QDialog> openModal(QWidget &parent, const char *name)
{
    auto dialog = std::make_unique<QDialog>(&parent);
    dialog->setObjectName(name);
    new QLineEdit(dialog.get());
    dialog->setModal(true);
    dialog->show();
    activate(*dialog);
    QCoreApplication::processEvents();
    return dialog;
}

} // namespace

HelpViewer &tst_help::askFrom(QWidget &window)
{
    if (!m_filter) {
        m_filter = std::make_unique<HelpKeyFilter>(m_helpFile);
        qApp->installEventFilter(m_filter.get());
    }
    sendHelpKey(&window);
    HelpViewer *viewer = openViewer();
    if (!viewer)
        qFatal("no help has opened");
    activate(*viewer);
    return *viewer;
}

void tst_help::f1OpensThePageOfItsWindow()
{
    QWidget window;
    window.show();
    // A window without a page of its own gets the contents.
    for (const auto &[name, page] :
         {std::pair("frmCommon", "frmCommon"), {"frmNobody", "contents"}}) {
        window.setObjectName(name);
        activate(window);
        QMenu menu(&window); // open or not
        menu.addAction(u"entry"_s);
        if (name == "frmCommon"_L1)
            menu.popup({});
        QCOMPARE(shownIn(askFrom(menu.isVisible() ? static_cast<QWidget &>(menu) : window)), page);
    }
    // A message has the page of the window that shows it.
    window.setObjectName("frmMeal");
    QMessageBox message(&window);
    message.open();
    QCOMPARE(shownIn(askFrom(message)), u"frmMeal"_s);
}

void tst_help::staysUsableBesideModalWindows()
{
    QWidget window;
    window.setObjectName("frmMain");
    window.show();
    activate(window);
    HelpViewer &viewer = askFrom(window);
    QVERIFY(!viewer.isModal());
    auto &text = control<HelpText>(viewer, "helpText");
    auto &field = control<QLineEdit>(viewer, "txtFind");
    const auto isUsable = [&] {
        field.clear();
        activate(viewer);
        field.setFocus();
        pressIn(viewer, Qt::Key_X);
        return field.text() == u"x"_s;
    };
    QVERIFY(isUsable());
    // It was open before the modal window, and goes to that one's page, in the same window.
    auto list = openModal(window, "frmMeals");
    QVERIFY(isUsable());
    auto editor = openModal(*list, "frmMeal");
    QCOMPARE(&askFrom(*editor), &viewer);
    QCOMPARE(text.page(), u"frmMeal"_s);
    QVERIFY(isUsable());
    auto &input = *editor->findChild<QLineEdit *>();
    activate(*editor);
    input.setFocus();
    pressIn(*editor, Qt::Key_7);
    QCOMPARE(input.text(), u"7"_s);
    editor.reset(); // without a word
    QCoreApplication::processEvents();
    QVERIFY(isUsable());
    // It gives the focus back, and opens once more.
    pressIn(viewer, Qt::Key_Escape);
    QVERIFY(!openViewer());
    QTRY_COMPARE(QApplication::activeWindow(), list.get());
    HelpViewer &again = askFrom(*list);
    QCOMPARE(shownIn(again), u"frmMeals"_s);
    list->reject();
    QCoreApplication::processEvents();
    QVERIFY(again.isVisible());
    activate(again);
    pressIn(again, Qt::Key_F1); // of no use here
    QCOMPARE(shownIn(again), u"frmMeals"_s);
    // It is no reason for the program to go on.
    QTimer::singleShot(0, &window, &QWidget::close);
    QTimer::singleShot(5000, &window, [] { QApplication::exit(1); });
    QCOMPARE(QApplication::exec(), 0);
    QTRY_VERIFY(!openViewer());
    // Nor does it outlive the window that it belongs to.
    window.show();
    askFrom(window);
    window.hide();
    QTRY_VERIFY(!openViewer());
}

void tst_help::hidesLeastOfTheWindowThatAsked()
{
    const QRect screen(0, 0, 1000, 600);
    const QSize size(300, 400);
    const auto place = [&](const QRect &other, QPoint now) {
        return placeBeside(other, QRect(now, size), screen);
    };
    const QRect left(100, 50, 400, 300);
    QCOMPARE(place(left, {600, 150}), QPoint(600, 150)); // hides nothing there
    QCOMPARE(place(left, {200, 150}), QPoint(500, 50));
    QCOMPARE(place({500, 250, 400, 300}, {400, 0}), QPoint(200, 200));
    QCOMPARE(place({200, 350, 600, 200}, {300, 150}), QPoint(200, 0)); // neither side has room
    QCOMPARE(place({200, 50, 600, 500}, {300, 150}), QPoint(700, 50)); // the least that can be
    QCOMPARE(place(screen, {100, 150}), QPoint(100, 150));
    QCOMPARE(placeBeside(left, {0, 0, 2000, 900}, screen), QPoint(0, 0));
}

void tst_help::goesThroughPages()
{
    QWidget window;
    window.setObjectName("frmMeal");
    window.show();
    HelpViewer &viewer = askFrom(window);
    auto &tree = control<HelpContents>(viewer, "helpContents");
    QVERIFY(tree.currentItem() && tree.currentItem()->parent());
    QVERIFY(tree.topLevelItemCount() >= 5);
    viewer.findChild<QLineEdit *>()->setFocus();
    // As with the arrow keys or a click.
    tree.setCurrentItem(tree.topLevelItem(1)->child(0));
    const QString second = shownIn(viewer);
    QVERIFY(second != u"frmMeal"_s);
    pressIn(viewer, Qt::Key_Left, Qt::AltModifier);
    QCOMPARE(shownIn(viewer), u"frmMeal"_s);
    pressIn(viewer, Qt::Key_Right, Qt::AltModifier);
    QCOMPARE(shownIn(viewer), second);
    QWidget *page = control<HelpText>(viewer, "helpText").viewport();
    QTest::mouseClick(page, Qt::BackButton);
    QCOMPARE(shownIn(viewer), u"frmMeal"_s);
    QTest::mouseClick(page, Qt::ForwardButton);
    QCOMPARE(shownIn(viewer), second);
    pressIn(viewer, Qt::Key_T, Qt::AltModifier);
    QTRY_COMPARE(shownIn(viewer), u"contents"_s);
    QVERIFY(!tree.currentItem());
}

void tst_help::findsInAllPages()
{
    QWidget window;
    window.setObjectName("frmGoals");
    window.show();
    HelpViewer &viewer = askFrom(window);
    pressIn(viewer, Qt::Key_F, Qt::ControlModifier);
    auto &field = control<QLineEdit>(viewer, "txtFind");
    QVERIFY(field.hasFocus());
    const auto &label = control<QLabel>(viewer, "lblFound");
    auto &list = control<QListWidget>(viewer, "lstFound");
    auto &text = control<HelpText>(viewer, "helpText");
    // In any order, case and accents apart.
    field.setText(u"weight ADJUSTM\u00C9NT"_s);
    QVERIFY(list.isVisible() && list.count() > 1);
    QCOMPARE(shownIn(viewer), u"frmGoals"_s); // until asked for
    QVERIFY(label.text().contains(QString::number(list.count())));
    pressIn(viewer, Qt::Key_Return);
    QCOMPARE(shownIn(viewer), u"frmWeightAdjustment"_s); // has both in its title
    QCOMPARE(list.currentRow(), 0);
    // Through all hits of all pages, and round; each is one of the words.
    QStringList rounds[2];
    int marks = 0;
    for (QStringList &round : rounds) {
        do {
            const auto marked = text.extraSelections()[text.currentHit()].cursor.selectedText();
            QVERIFY2(QStringList({"weight", "adjustment"}).contains(marked.toLower()),
                     qPrintable(marked));
            round << shownIn(viewer) + QString::number(text.currentHit());
            marks += text.currentHit() == 0 ? int(text.extraSelections().size()) : 0;
            pressIn(viewer, Qt::Key_F3);
        } while (list.currentRow() > 0 || text.currentHit() > 0);
    }
    QCOMPARE(rounds[0], rounds[1]);
    QCOMPARE(marks, 2 * rounds[0].size());
    pressIn(viewer, Qt::Key_F3, Qt::ShiftModifier);
    QCOMPARE(shownIn(viewer) + QString::number(text.currentHit()), rounds[0].last());
    list.setCurrentRow(0);
    QCOMPARE(text.currentHit(), 0);

    field.setText(u"xyzzy weight"_s);
    QCOMPARE(label.text(), u"No page holds \"xyzzy weight\"."_s);
    QVERIFY(!list.isVisible());
    pressIn(viewer, Qt::Key_F3); // to nowhere
    field.clear();
    QVERIFY(control<HelpContents>(viewer, "helpContents").isVisible());
    QVERIFY(text.extraSelections().isEmpty());
}

// With a contents page in a language that nobody speaks, and a picture of its own.
void tst_help::languageAndPictures()
{
    QVERIFY(HelpViewer::hasPage(u"contents"_s));
    QCOMPARE(HelpPages({u"en-GB"_s, u"xx"_s}).title(u"contents"_s), u"Corvana Help"_s);
    HelpViewer viewer(u"contents"_s, nullptr, {u"yy-YY"_s, u"xx-YY"_s});
    viewer.show();
    auto &text = control<HelpText>(viewer, "helpText");
    QCOMPARE(text.documentTitle(), u"Sample"_s);
    QVERIFY(text.accessibleDescription().contains(u"a wide line"_s));
    const auto &tree = control<HelpContents>(viewer, "helpContents");
    QCOMPARE(tree.topLevelItemCount(), 1);
    const auto picture = [&] {
        return qvariant_cast<QImage>(
            text.document()->resource(QTextDocument::ImageResource, QUrl(u"pictures/wide.png"_s)));
    };
    for (const int width : {600, 640}) {
        viewer.resize(width, 400);
        QVERIFY(picture().width() < text.viewport()->width());
        QVERIFY(picture().width() > text.viewport()->width() * 8 / 10);
    }
    for (const QColor &ground : {QColor(Qt::black), QColor(Qt::white)}) {
        QPalette palette = text.palette();
        palette.setColor(QPalette::Base, ground);
        text.setPalette(palette);
        QCOMPARE(picture().pixelColor(0, 0), ground);
    }
    // Where there is no such page in the language, the English one.
    text.setSource(QUrl(u"frmMain.html"_s));
    QCOMPARE(shownIn(viewer), u"frmMain"_s);
    QVERIFY(text.document()->characterCount() > 100);
}

void tst_help::colorsAreLegible()
{
    for (const auto &[ground, ink] :
         {std::pair(0x1E1E1EU, 0xE6E6E6U), {0x000000U, 0xFFFF00U}, {0xFFFFFFU, 0U}}) {
        QPalette palette;
        palette.setColor(QPalette::Base, QColor(ground));
        palette.setColor(QPalette::Text, QColor(ink));
        for (const QColor &color : {QColor(Qt::blue), QColor(0x308CC6), QColor(0x66AAFF)}) {
            palette.setColor(QPalette::Link, color);
            palette.setColor(QPalette::Highlight, color);
            const HelpStyle style(palette, QFontMetrics(QFont()));
            QVERIFY(plot::contrast(style.link, QColor(ground)) >= 4.5);
            QVERIFY(plot::contrast(style.onMark, style.mark) >= 4.5);
        }
    }
}

QTEST_MAIN(tst_help)
#include "tst_help.moc"
