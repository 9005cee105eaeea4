// The progress windows: the questions asked before the chart, the chart's day and notes, the
// table, and the picture files.
#include "guitest.h"
#include "progress/ProgressChart.h"
#include "progress/frmGeneralProgress.h"
#include "progress/frmGeneralProgressSettings.h"
#include "progresssamples.h"

#include <QClipboard>
#include <QDateEdit>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPrinterInfo>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>

namespace {

const QDate firstDay(2026, 6, 22); // a month before today

void click(QWidget &window, const char *button)
{
    QTest::mouseClick(&control<QPushButton>(window, button), Qt::LeftButton);
}

void fillMonth(ProgressJournal &journal)
{
    for (int day = 0; day <= 30; ++day) {
        journal.addMeal(firstDay.addDays(day), 59 * 24 - 300);
        if (day % 7 == 0)
            journal.addMeasurement(firstDay.addDays(day), 80 - day / 10.0, 100, 90, 104);
    }
}

} // namespace

class TestGeneralProgress : public QObject
{
    Q_OBJECT

private slots:
    void opensWithThreeMonths();
    void enoughDataAskNothing();
    void notEnoughDataAreAsked();
    void brokenDataAreAsked();
    void noDataAtAll();
    void keyboardMovesTheDay();
    void pointerTellsTheDay();
    void notesAndSpansGoTogether();
    void tableIsCopied();
    void pictureIsSaved_data();
    void pictureIsSaved();
    void pictureThatCantBeSaved();
    void printingWithoutPrinter();
    void faultsAreTold();

private:
    ProgressJournal m_empty; // kept for tests that only look
    RecordedMessages m_messages;
};

void TestGeneralProgress::opensWithThreeMonths()
{
    const frmGeneralProgressSettings dialog(*m_empty.session, m_messages);
    QVERIFY(control<QRadioButton>(dialog, "opt3Month").isChecked());
    QCOMPARE(control<QDateEdit>(dialog, "dtpDate").date(), firstDay);
    QVERIFY(!dialog.OkPressed());
}

void TestGeneralProgress::enoughDataAskNothing()
{
    ProgressJournal journal;
    fillMonth(journal);
    RecordedMessages messages;
    frmGeneralProgressSettings dialog(*journal.session, messages);
    dialog.show();
    control<QRadioButton>(dialog, "opt1Month").click();
    click(dialog, "btnOK");
    QVERIFY(dialog.OkPressed() && !dialog.isVisible());
    QVERIFY(messages.said.empty());
    QCOMPARE(dialog.period().dateFrom, firstDay);
    QCOMPARE(dialog.period().dateTo, QDate(2026, 7, 22));
}

void TestGeneralProgress::notEnoughDataAreAsked()
{
    ProgressJournal journal;
    fillMonth(journal);
    RecordedMessages messages;
    frmGeneralProgressSettings dialog(*journal.session, messages);
    dialog.show();
    control<QRadioButton>(dialog, "opt6Month").click(); // 30 days of 183
    click(dialog, "btnOK");
    QVERIFY(dialog.isVisible() && !dialog.OkPressed());
    QCOMPARE(messages.said.size(), size_t(1)); // the answer No asks nothing more
    QVERIFY(messages.said[0].isQuestion);
    QCOMPARE(messages.said[0].title, QStringLiteral("Not enough data"));
    QCOMPARE(messages.takeText(),
             QStringLiteral("Present data cover less then 30% of selected time period. The Chart "
                            "will be too small. Build the Chart anyway?"));
    messages.answers = {true};
    click(dialog, "btnOK");
    QVERIFY(dialog.OkPressed());
    QCOMPARE(messages.said.size(), size_t(1)); // what there is has no gap
}

void TestGeneralProgress::brokenDataAreAsked()
{
    ProgressJournal journal;
    fillMonth(journal);
    journal.exec("delete from MealConsume where MealConsumeID = 20");
    RecordedMessages messages;
    frmGeneralProgressSettings dialog(*journal.session, messages);
    dialog.show();
    click(dialog, "btnOK");
    QVERIFY(dialog.isVisible() && !dialog.OkPressed());
    QCOMPARE(messages.takeText(),
             QStringLiteral("Data selected to be shown on Chart are not contiguous. Either "
                            "Calories data (meal/activity) are not present for every day or Body "
                            "measurement is not present for each 3 days period. The Chart will be "
                            "ripped. Build the Chart anyway?"));
    messages.answers = {true};
    click(dialog, "btnOK");
    QVERIFY(dialog.OkPressed());
}

void TestGeneralProgress::noDataAtAll()
{
    RecordedMessages messages;
    frmGeneralProgressSettings dialog(*m_empty.session, messages);
    dialog.show();
    messages.answers = {true, false};
    click(dialog, "btnOK");
    QVERIFY(dialog.isVisible() && !dialog.OkPressed());
    messages.answers = {true, true};
    click(dialog, "btnOK");
    QVERIFY(dialog.OkPressed());
    QCOMPARE(messages.said.size(), size_t(4));

    messages.said.clear();
    inDialog(
        "frmGeneralProgress",
        [&] { showGeneralProgress(*m_empty.session, messages, dialog.period(), nullptr); },
        [](QWidget &window) {
            QVERIFY(
                control<QLabel>(window, "lblDay").text().contains(QStringLiteral("not measured")));
            QVERIFY(control<QTableWidget>(window, "lvwNotes").isHidden());
        });
    QVERIFY(messages.said.empty());
}

void TestGeneralProgress::keyboardMovesTheDay()
{
    ProgressJournal journal;
    fillMonth(journal);
    frmGeneralProgress window(*journal.session, m_messages, {firstDay, firstDay.addDays(91)});
    window.show();
    auto &chart = control<ProgressChart>(window, "chart");
    auto &told = control<QLabel>(window, "lblDay");
    QCOMPARE(chart.day(), qint16(31)); // the last one with data
    const auto dayAfter = [&](Qt::Key key) {
        QTest::keyClick(&chart, key);
        return chart.day();
    };
    QCOMPARE(dayAfter(Qt::Key_Left), qint16(30));
    QCOMPARE(dayAfter(Qt::Key_PageUp), qint16(23));
    QCOMPARE(dayAfter(Qt::Key_End), qint16(92));
    QCOMPARE(dayAfter(Qt::Key_Right), qint16(92));
    QCOMPARE(dayAfter(Qt::Key_Home), qint16(1));
    QVERIFY(told.text().contains(QStringLiteral("Monday, 22 June 2026")));
    QVERIFY(told.text().contains(QStringLiteral("Weight: 80 kg")));
    QVERIFY(told.text().contains(QStringLiteral("Balance: -300 kcal")));
    QCOMPARE(chart.accessibleDescription().section(u'\n', 1, 1), QStringLiteral("Weight: 80 kg"));
}

void TestGeneralProgress::pointerTellsTheDay()
{
    ProgressJournal journal;
    fillMonth(journal);
    frmGeneralProgress window(*journal.session, m_messages, {firstDay, firstDay.addDays(30)});
    window.show();
    auto &chart = control<ProgressChart>(window, "chart");
    auto &told = control<QLabel>(window, "lblDay");
    const QString before = told.text();
    QTest::mouseMove(&chart, chart.rect().center());
    const QString pointed = told.text();
    QVERIFY(pointed != before);
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&chart, &leave);
    QCOMPARE(told.text(), before);
    QTest::mouseClick(&chart, Qt::LeftButton, {}, chart.rect().center());
    QApplication::sendEvent(&chart, &leave);
    QCOMPARE(told.text(), pointed);
}

void TestGeneralProgress::notesAndSpansGoTogether()
{
    ProgressJournal journal;
    fillMonth(journal);
    journal.addNote(firstDay.addDays(5), firstDay.addDays(9), QStringLiteral("Rome"));
    journal.addNote(firstDay.addDays(10), firstDay.addDays(25), QStringLiteral("<b>Running</b>"));
    frmGeneralProgress window(*journal.session, m_messages, {firstDay, firstDay.addDays(30)});
    window.show();
    auto &chart = control<ProgressChart>(window, "chart");
    auto &notes = control<QTableWidget>(window, "lvwNotes");
    QCOMPARE(notes.item(1, 0)->text(), QStringLiteral("B"));
    QCOMPARE(notes.item(1, 1)->text(), QStringLiteral("2 Jul 2026 – 17 Jul 2026\n<b>Running</b>"));

    const QImage before = chart.grab().toImage();
    notes.setCurrentCell(0, 0);
    QVERIFY(chart.grab().toImage() != before); // its span stands out

    // Down the middle of the second span until its bar is met.
    const int x = chart.width() * 55 / 100;
    for (int y = 0; y < chart.height() && notes.currentRow() != 1; y += 4)
        QTest::mouseClick(&chart, Qt::LeftButton, {}, {x, y});
    QCOMPARE(notes.currentRow(), 1);
}

void TestGeneralProgress::tableIsCopied()
{
    ProgressJournal journal(QLocale(QLocale::German, QLocale::Germany));
    journal.addMeasurement(firstDay, 80.5, 100, 90, 104);
    frmGeneralProgress window(*journal.session, m_messages, {firstDay, firstDay.addDays(1)});
    window.show();
    click(window, "btnCopy");
    const QStringList lines = QApplication::clipboard()->text().split(u'\n');
    QCOMPARE(lines.size(), 4);
    QCOMPARE(lines[1], QStringLiteral("22.06.26\t80,5\t100\t90\t104\tmeasured\t\t"));
}

void TestGeneralProgress::pictureIsSaved_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("begin");
    QTest::newRow("PNG") << "p.png" << QByteArray("\x89PNG");
    QTest::newRow("PDF") << "p.PDF" << QByteArray("%PDF");
    QTest::newRow("no suffix") << "p" << QByteArray("\x89PNG");
}

void TestGeneralProgress::pictureIsSaved()
{
    QFETCH(QString, name);
    ProgressJournal journal;
    fillMonth(journal);
    journal.addNote(firstDay, firstDay, QStringLiteral("A text ").repeated(900));
    RecordedMessages messages;
    frmGeneralProgress window(*journal.session, messages, {firstDay, firstDay.addDays(30)});
    window.show();
    inDialog(
        "dlgSavePicture", [&] { click(window, "btnSave"); },
        [&](QWidget &dialog) {
            control<QLineEdit>(dialog, "fileNameEdit").setText(journal.folder.filePath(name));
            QTest::keyClick(&dialog, Qt::Key_Return);
        });
    QVERIFY2(messages.said.empty(), qPrintable(messages.takeText()));
    if (!name.contains(u'.'))
        name += QStringLiteral(".png");
    QFile file(journal.folder.filePath(name));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray content = file.readAll();
    QFETCH(QByteArray, begin);
    QVERIFY(content.startsWith(begin));
    if (begin == "%PDF")
        QVERIFY(content.count("/Type /Page\n") > 1); // the note goes on
    else
        QVERIFY(QImage::fromData(content).width() > window.width());
}

void TestGeneralProgress::pictureThatCantBeSaved()
{
    RecordedMessages messages;
    frmGeneralProgress window(*m_empty.session, messages, {firstDay, firstDay.addDays(30)});
    window.show();
    const auto saveAs = [&](const QString &name) {
        inDialog(
            "dlgSavePicture", [&] { click(window, "btnSave"); },
            [&](QWidget &dialog) {
                control<QLineEdit>(dialog, "fileNameEdit").setText(m_empty.folder.filePath(name));
                QTest::keyClick(&dialog, Qt::Key_Return);
            });
    };
    saveAs(QStringLiteral("p.jpg"));
    QVERIFY(messages.takeText().startsWith(QStringLiteral("The picture can be saved as PNG")));
    QVERIFY(!QFile::exists(m_empty.folder.filePath(QStringLiteral("p.jpg"))));
    saveAs(QStringLiteral("missing/p.png"));
    QVERIFY(messages.takeText().startsWith(QStringLiteral("Can't save the picture: ")));
}

void TestGeneralProgress::printingWithoutPrinter()
{
    if (!QPrinterInfo::defaultPrinter().isNull())
        QSKIP("There is a default printer here");
    RecordedMessages messages;
    frmGeneralProgress window(*m_empty.session, messages, {firstDay, firstDay.addDays(30)});
    window.show();
    click(window, "btnPrint");
    QCOMPARE(messages.takeText(), QStringLiteral("Can't print. Please check whether your default "
                                                 "printer is accessible"));
}

void TestGeneralProgress::faultsAreTold()
{
    ProgressJournal journal;
    journal.addMeal(firstDay, 100000);
    RecordedMessages messages;
    showGeneralProgress(*journal.session, messages, {firstDay, firstDay.addDays(30)}, nullptr);
    QVERIFY(messages.takeText().contains(QStringLiteral("too large")));
    journal.exec("delete from MealConsume");
    journal.addMeasurement(firstDay, 1e30, 90, 80, 95); // held, but beyond what a scale can show
    showGeneralProgress(*journal.session, messages, {firstDay, firstDay.addDays(30)}, nullptr);
    QVERIFY(messages.takeText().contains(QStringLiteral("too large")));
    showGeneralProgress(*journal.session, messages, {firstDay, firstDay.addDays(400)}, nullptr);
    QVERIFY(messages.takeText().contains(QStringLiteral("too many days")));
}

QTEST_MAIN(TestGeneralProgress)
#include "tst_generalprogress.moc"
