// The progress windows: the questions asked before the chart, the chart's day and notes, and the
// picture files.
#include "dayjournal.h"
#include "progress/frmGeneralProgress.h"
#include "progress/frmGeneralProgressSettings.h"
#include "progress/progresschart.h"
#include "progress/progresscolors.h"
#include "progress/progresslayout.h"
#include "progress/progresspages.h"
#include "progresssamples.h"

#include <QClipboard>
#include <QLabel>
#include <QTableWidget>

namespace {

const QDate firstDay(2026, 6, 22); // a month before today
const progress::Period month = {firstDay, firstDay.addDays(30)};

} // namespace

class tst_generalprogress : public QObject
{
    Q_OBJECT

    std::unique_ptr<ProgressJournal> m_journal;
    RecordedMessages m_messages;

private slots:
    /// A month with calories on every day and a measurement each week.
    void init()
    {
        m_messages = {};
        m_journal = std::make_unique<ProgressJournal>();
        for (int day = 0; day <= 30; ++day)
            m_journal->addMeal(firstDay.addDays(day), 59 * 24 - 300);
        for (int day = 0; day <= 30; day += 7)
            m_journal->addMeasurement(firstDay.addDays(day), 80 - day / 10.0);
    }
    void questionsBeforeTheChart()
    {
        const QStringList questions = {
            QStringLiteral("Present data cover less then 30% of selected time period. The Chart "
                           "will be too small. Build the Chart anyway?"),
            QStringLiteral("Data selected to be shown on Chart are not contiguous. Either Calories "
                           "data (meal/activity) are not present for every day or Body measurement "
                           "is not present for each 3 days period. The Chart will be ripped. Build "
                           "the Chart anyway?")};
        const auto ask = [&](const QList<bool> &answers) {
            frmGeneralProgressSettings dialog(*m_journal->session, m_messages);
            dialog.show();
            m_messages = {};
            m_messages.answers = answers;
            press(dialog, "btnOK");
            QCOMPARE(m_messages.said.size(), size_t(answers.size()));
            for (const RecordedMessages::Said &said : m_messages.said) {
                QCOMPARE(said.title, QStringLiteral("Not enough data"));
                QCOMPARE(said.text, questions[int(&said - m_messages.said.data())]);
            }
            const bool isBuilt = !answers.contains(false);
            QVERIFY(dialog.OkPressed() == isBuilt && dialog.isVisible() != isBuilt);
        };
        ask({});
        m_journal->exec("delete from MealConsume; delete from Body");
        ask({false});
        ask({true, false});
        ask({true, true});
    }
    void keyboardPointerTableAndNotesTellTheDay()
    {
        m_journal->exec("update Body set Breast = 0; update Common set Measurement = 'I'");
        m_journal->data->rsCommon.close();
        m_journal->session->readCommonParameters();
        m_journal->addMeasurement(firstDay.addDays(2), 79, 0);
        m_journal->addNote(firstDay, firstDay.addDays(1), QStringLiteral("Holiday"));
        m_journal->addNote(firstDay.addDays(30), firstDay.addDays(70),
                           QStringLiteral("<b>Run</b>"));
        frmGeneralProgress window(*m_journal->session, m_messages,
                                  {firstDay, firstDay.addDays(91)});
        window.show();
        auto &chart = control<ProgressChart>(window, "chart");
        auto &told = control<QLabel>(window, "lblDay");
        QCOMPARE(chart.day(), qint16(31)); // the last one with data
        for (const auto &[key, day] :
             {std::pair(Qt::Key_PageUp, 24), {Qt::Key_End, 92}, {Qt::Key_Home, 1}}) {
            QTest::keyClick(&chart, key);
            QCOMPARE(chart.day(), qint16(day));
        }
        const QString before = told.text();
        QTest::keyClick(&chart, Qt::Key_Right);
        QCOMPARE(chart.accessibleDescription(),
                 QStringLiteral("Tuesday, 23 June 2026\nWeight: 119 lb (filled in)\n"
                                "Breast: not measured\nWaist: 120 inch (filled in)\n"
                                "Hips: 142.5 inch (filled in)\n"
                                "Balance: -300 kcal, less eaten than burnt\nNote: A"));
        const QModelIndex row = control<QTreeView>(window, "lvwDays").model()->index(1, 1);
        QCOMPARE(row.data().toString(), QStringLiteral("(119)"));
        QVERIFY(row.data(Qt::FontRole).value<QFont>().italic());
        QVERIFY(chart.accessibleName().endsWith(
            QStringLiteral("Hips: 0.0 inch a week over the four weeks to 20 Jul 2026 (5 days)")));
        QTest::keyClick(&chart, Qt::Key_Left);

        QTest::mouseMove(&chart, chart.rect().center());
        QVERIFY(told.text() != before);
        QEvent leave(QEvent::Leave);
        QApplication::sendEvent(&chart, &leave);
        QCOMPARE(told.text(), before);
        QTest::mouseClick(&chart, Qt::LeftButton, {}, chart.rect().center());
        QApplication::sendEvent(&chart, &leave);
        QVERIFY(told.text() != before);

        // Down the middle of the second note's span until its bar is met.
        auto &notes = control<QTableWidget>(window, "lvwNotes");
        QCOMPARE(notes.item(1, 1)->text(), QStringLiteral("22 Jul 2026 – 31 Aug 2026\n<b>Run</b>"));
        for (int y = 0; y < chart.height() && notes.currentRow() != 1; y += 4)
            QTest::mouseClick(&chart, Qt::LeftButton, {}, {chart.width() * 6 / 10, y});
        QCOMPARE(notes.currentRow(), 1);
    }
    void stepsThroughThePeriods()
    {
        m_journal->addNote(firstDay, firstDay.addDays(1), QStringLiteral("Holiday"));
        m_journal->addMeasurement(firstDay.addDays(-40), 80);
        frmGeneralProgress window(*m_journal->session, m_messages, month);
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        auto &chart = control<ProgressChart>(window, "chart");
        auto &notes = control<QTableWidget>(window, "lvwNotes");
        auto &next = control<QPushButton>(window, "btnNext");
        auto &previous = control<QPushButton>(window, "btnPrevious");
        const auto shownNow = [&] {
            const auto cell = [&](const char *list) {
                return control<QTreeView>(window, list).model()->index(0, 0).data().toString();
            };
            return QStringList{control<QLabel>(window, "lblPeriod").text(),
                               chart.accessibleName(),
                               cell("lvwDays"),
                               cell("lvwWeeks"),
                               QString::number(notes.rowCount()),
                               control<QLabel>(window, "lblDay").text()};
        };
        const QStringList first = shownNow();
        QCOMPARE(first[0], QStringLiteral("22 Jun 2026 – 22 Jul 2026"));
        QVERIFY(!next.isEnabled()); // it would begin with the last day of this one
        notes.setFocus();
        notes.setCurrentCell(0, 0);
        QTest::keyClick(&notes, Qt::Key_Left, Qt::AltModifier);
        QCOMPARE(shownNow()[0], QStringLiteral("22 May 2026 – 22 Jun 2026"));
        QCOMPARE(shownNow()[2] + shownNow()[3], QStringLiteral("22/05/2026").repeated(2));
        QCOMPARE(notes.rowCount(), 1); // it begins on the last day of this one, too
        QVERIFY(notes.hasFocus() && notes.currentRow() == -1);

        const QStringList second = shownNow();
        QTest::keyClick(&notes, Qt::Key_Left, Qt::AltModifier);
        QVERIFY(chart.hasFocus() && !notes.isVisible());
        for (int i = 0; i < 2; ++i)
            QTest::keyClick(&chart, Qt::Key_Left, Qt::AltModifier);
        QCOMPARE(chart.day(), qint16(1));
        for (const char *label : {"lblFilledIn", "lblWeeks"})
            QVERIFY(
                control<QLabel>(window, label).text().startsWith(QStringLiteral("There are no")));
        for (int i = 0; i < 3; ++i)
            QTest::keyClick(&chart, Qt::Key_Right, Qt::AltModifier);
        QCOMPARE(shownNow(), second);
        next.setFocus();
        press(window, "btnNext");
        QCOMPARE(shownNow(), first);
        QVERIFY(previous.hasFocus() && m_messages.said.empty());

        // A figure that can't be shown leaves everything as it is.
        m_journal->addMeal(firstDay.addDays(-1), 1e5);
        press(window, "btnPrevious");
        QVERIFY(m_messages.takeText().contains(
            m_journal->session->text().mediumDate(firstDay.addDays(-1))));
        QCOMPARE(shownNow(), first);
        m_journal->exec("delete from MealConsume where Qty = 1e5");
        m_journal->addMeasurement(firstDay.addDays(-2), 1e30);
        press(window, "btnPrevious");
        QVERIFY(m_messages.takeText().contains(QStringLiteral("too large")));
        QCOMPARE(shownNow(), first);
        QVERIFY(!next.isEnabled());
    }
    void eachPageIsCopied()
    {
        frmGeneralProgress window(*m_journal->session, m_messages, month);
        window.show();
        auto &pages = control<QTabWidget>(window, "tabPages");
        const auto copied = [&] { return QApplication::clipboard()->text().section(u'\t', 0, 1); };
        for (const auto &[page, expected] :
             {std::pair(0, "Date\tWeight (kg)"), {2, "Week of\tDays"}, {1, "Date\tWeight (kg)"}}) {
            pages.setCurrentIndex(page);
            press(window, "btnCopy");
            QCOMPARE(copied(), QLatin1String(expected));
        }
        QVERIFY(QTest::qWaitForWindowActive(&window));
        pages.setCurrentIndex(2);
        auto &weeks = control<QTreeView>(window, "lvwWeeks");
        weeks.setFocus();
        QTest::keyClick(&weeks, Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(copied(), QStringLiteral("Week of\tDays"));
    }
    void paintsWhatIsLaidOut()
    {
        for (const int day : {9, 10})
            m_journal->addMeasurement(firstDay.addDays(day), 78);
        m_journal->addMeal(firstDay.addDays(3), 900);
        m_journal->exec("delete from MealConsume where MealConsumeID in (11, 12)");
        m_journal->addNote(firstDay.addDays(20), firstDay.addDays(26), QStringLiteral("Note"));
        const progress::DaySeries series = progress::loadSeries(
            *m_journal->data, month, m_journal->session->parameters().metabolicRate);
        const progress::ProgressTexts texts(m_journal->session->text(), true);
        ProgressChart chart(series, texts);
        chart.resize(1000, 640);
        setTestFont(chart);
        for (const QColor paper : {Qt::white, Qt::black}) {
            QPalette palette = chart.palette();
            palette.setColor(QPalette::Base, paper);
            palette.setColor(QPalette::Text, QColor(paper.rgb() ^ 0xffffff));
            chart.setPalette(palette);
            const QImage image = chart.grab().toImage();
            const plot::Fonts fonts(chart.font(), chart.logicalDpiY(), &chart);
            const progress::ProgressGeometry g = progress::progressGeometry(
                series, chart.rect(), plot::metricsOf(fonts, &chart), texts);
            const progress::ProgressColors c(palette);
            const auto has = [&](const QRectF &rect, const QColor &color, double least) {
                return share(image, rect, color) > least;
            };
            const auto around = [](const QPointF &at) {
                return QRectF(at.x() - 2, at.y() - 2, 4, 4);
            };
            for (const progress::BalanceColumn &column : g.columns)
                QVERIFY(has(column.rect.adjusted(2, 2, -2, -2),
                            column.isSurplus ? c.surplus : c.deficit, 0.4));
            QCOMPARE(g.notRecorded.size(), size_t(1));
            QVERIFY(has(g.notRecorded[0], c.ground, 0.1) && !has(g.notRecorded[0], c.ground, 0.9));
            for (const progress::SeriesLine &line : g.lines) {
                for (const progress::Mark &mark : line.marks)
                    QVERIFY(has(around(mark.at),
                                mark.kind == progress::Mark::Kind::Measured ? c.line(line.series)
                                                                            : c.ground,
                                0.1));
                for (const QLineF &bridge : line.bridges)
                    QVERIFY(!has(around(bridge.pointAt(0.17)), c.ground, 0.9));
            }
            const progress::NoteSpan &note = g.notes.front();
            QVERIFY(!has(note.bar, c.ground, 0.05) && has(note.bar, c.ink, 0.001));
            QVERIFY(!has(note.reach & g.girths.area, c.ground, 0.05) && has(g.plot, c.ground, 0.3));
            for (const double x : g.monthLines)
                QVERIFY(
                    !has({x - 1, g.girths.area.top(), 2, g.girths.area.height()}, c.ground, 0.8));
            for (const double y : g.girths.grid)
                QVERIFY(has({g.plot.left(), y - 1, g.plot.width(), 2}, c.grid, 0.1));
            QVERIFY(has({g.plot.left(), g.averageY - 2, g.plot.width(), 3}, c.ink, 0.05));
            QCOMPARE(g.trend.size(), size_t(1)); // of four days, with the dashes of a line
            const QRectF trend(g.trend[0].front(), g.trend[0].back());
            QVERIFY(has(trend.normalized().adjusted(0, -2, 0, 2), c.trend, 0.02));
            QCOMPARE(g.legend.size(), size_t(10));
            for (const progress::LegendEntry &entry : g.legend) {
                using Kind = progress::LegendKind;
                QVERIFY(!has(entry.sample, c.ground, 0.98));
                QVERIFY(entry.kind != Kind::Surplus || has(entry.sample, c.surplus, 0.6));
                QVERIFY(entry.kind != Kind::Deficit || has(entry.sample, c.deficit, 0.6));
            }
            // What is pointed at.
            const auto lit = [&](const QRectF &rect) {
                return share(chart.grab().toImage(), rect, c.highlight);
            };
            QVERIFY(lit(note.bar) == 0);
            chart.showNote(0);
            QVERIFY(lit(note.bar) > 0.3);
            chart.showNote(std::nullopt);
            const QPointF tenth(g.days.center(10), g.girths.area.center().y());
            QMouseEvent move(QEvent::MouseMove, tenth, tenth, Qt::NoButton, {}, {});
            QApplication::sendEvent(&chart, &move);
            const QRectF line(tenth.x() - 1.5, g.lanesTop, 3, g.plot.bottom() - g.lanesTop);
            const QImage pointed = chart.grab().toImage();
            const auto changed = [&](const QRectF &rect) {
                return pointed.copy(rect.toRect()) != image.copy(rect.toRect());
            };
            int same = 0; // where a mark stands on its day already
            for (int y = qRound(line.top()) + 2; y < line.bottom() - 9; y += 9)
                same += !changed({line.left(), double(y), line.width(), 3});
            QVERIFY(same < 4);
            QVERIFY(!changed(line.translated(14, 0)) && !changed(line.translated(-14, 0)));
            QEvent leave(QEvent::Leave);
            QApplication::sendEvent(&chart, &leave);
        }
    }
    void notesStandBelowThePicture()
    {
        for (qint64 day = 0; day < 18; day += 3)
            m_journal->addNote(firstDay.addDays(day), firstDay.addDays(day + 1), QString(40, u'W'));
        const progress::DaySeries series = progress::loadSeries(*m_journal->data, month, 59);
        const progress::ProgressTexts texts(m_journal->session->text(), true);
        const QImage image = progress::pictureOf(
            {series, texts, QStringLiteral("Heading"), QApplication::font()}, {900, 500}, 96);
        const double edge = 0.5 * QFontMetricsF(QApplication::font()).height();
        const auto ink = [&](double left, double top, double right, double bottom) {
            return 1 - share(image, QRectF(QPointF(left, top), QPointF(right, bottom)), Qt::white);
        };
        const double width = image.width(), height = image.height(),
                     notes = height - 500 - 5 * edge;
        QVERIFY(notes > 4 * edge && notes < 30 * edge && width < 900 + 5 * edge);
        const double foot = height - notes + 2 * edge;
        QVERIFY(ink(0, 0, width, edge) + ink(0, height - edge, width, height) == 0);
        QVERIFY(ink(0, 0, edge, height) + ink(width - edge, 0, width, height) == 0);
        QVERIFY(ink(0, foot, width / 3, height) > 0.01 &&
                ink(width * 2 / 3, foot, width, height) > 0.01);
    }
    void pictureIsSaved()
    {
        // One word of a megabyte, which takes no minutes.
        m_journal->addNote(firstDay, firstDay.addDays(9), QString(1000000, u'x'));
        frmGeneralProgress window(*m_journal->session, m_messages, month);
        window.show();
        const auto saved = [&](const char *name) {
            QFile file(m_journal->folder.filePath(QLatin1String(name)));
            return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
        };
        // Types a name; the one that the dialog has if it comes back.
        const auto saveAs = [&](QString name) {
            QString kept;
            QTimer poll;
            connect(&poll, &QTimer::timeout, this, [&] {
                QWidget *dialog = QApplication::activeModalWidget();
                if (!dialog || !dialog->isVisible())
                    return;
                auto &edit = control<QLineEdit>(*dialog, "fileNameEdit");
                if (name.isEmpty()) {
                    kept = edit.text();
                    dialog->close();
                    return;
                }
                edit.setText(m_journal->folder.filePath(std::exchange(name, {})));
                QTest::keyClick(dialog, Qt::Key_Return);
            });
            poll.start(5);
            press(window, "btnSave");
            return kept;
        };
        QCOMPARE(saveAs(QStringLiteral("p.PDF")), QString());
        QVERIFY(saved("p.PDF").count("/Type /Page\n") > 1); // the note goes on
        QCOMPARE(saveAs(QStringLiteral("22.06.2026")), QString());
        QVERIFY(QImage::fromData(saved("22.06.2026.png"), "PNG").width() > window.width());
        QVERIFY(m_messages.said.empty());

        QVERIFY(saveAs(QStringLiteral("22.06.2026")).endsWith(QStringLiteral("22.06.2026")));
        QVERIFY(m_messages.takeText().contains(QStringLiteral("Do you want to replace it?")));
        QVERIFY(saveAs(QStringLiteral("missing/p")).endsWith(QStringLiteral("missing/p")));
        QVERIFY(m_messages.takeText().startsWith(QStringLiteral("Can't save")));
    }
    void faultsAreTold()
    {
        const auto told = [&] {
            showGeneralProgress(*m_journal->session, m_messages, month, nullptr);
            return m_messages.takeText();
        };
        m_journal->exec("update Body set Weight = 1e30"); // held, but beyond what a scale can show
        QVERIFY(told().contains(QStringLiteral("too large")));
        m_journal->exec("update Body set Weight = 1e300");
        QVERIFY(told().contains(m_journal->session->text().mediumDate(firstDay)));
    }
};

QTEST_MAIN(tst_generalprogress)
#include "tst_generalprogress.moc"
