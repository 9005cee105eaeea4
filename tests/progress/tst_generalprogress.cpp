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
        const auto ask = [&](const QList<bool> &answers) {
            frmGeneralProgressSettings dialog(*m_journal->session, m_messages);
            dialog.show();
            m_messages = {};
            m_messages.answers = answers;
            press(dialog, "btnOK");
            QStringList said;
            if (dialog.OkPressed() == dialog.isVisible() ||
                dialog.isVisible() != answers.contains(false))
                said += "built against the answers";
            for (const RecordedMessages::Said &question : m_messages.said)
                said += question.text.contains("30%") ? "short" : question.text.section(' ', 0, 1);
            return said.join('|');
        };
        QCOMPARE(ask({}), QString());
        m_journal->exec("delete from MealConsume; delete from Body");
        QCOMPARE(ask({false}), "short");
        QCOMPARE(ask({true, false}), "short|Data selected");
        QCOMPARE(ask({true, true}), "short|Data selected");
    }
    void keyboardPointerTableAndNotesTellTheDay()
    {
        m_journal->exec("update Body set Breast = 0; update Common set Measurement = 'I'");
        m_journal->data->rsCommon.close();
        m_journal->session->readCommonParameters();
        m_journal->addMeasurement(firstDay.addDays(2), 79, 0);
        m_journal->addNote(firstDay, firstDay.addDays(1), "Holiday");
        m_journal->addNote(firstDay.addDays(30), firstDay.addDays(70), "<b>Run</b>");
        frmGeneralProgress window(*m_journal->session, m_messages,
                                  {firstDay, firstDay.addDays(91)});
        window.show();
        auto &chart = control<ProgressChart>(window, "chart");
        auto &told = control<QLabel>(window, "lblDay");
        QCOMPARE(chart.day(), qint16(31)); // the last one with data
        for (const auto &[key, day] : {std::pair(Qt::Key_PageUp, 24),
                                       {Qt::Key_End, 92},
                                       {Qt::Key_Home, 1},
                                       {Qt::Key_Left, 1},
                                       {Qt::Key_Right, 2}}) {
            QTest::keyClick(&chart, key);
            QCOMPARE(chart.day(), qint16(day));
        }
        QCOMPARE(chart.accessibleDescription(),
                 "Tuesday, 23 June 2026\nWeight: 119 lb (filled in)\nBreast: not measured\n"
                 "Waist: 120 inch (filled in)\nHips: 142.5 inch (filled in)\n"
                 "Balance: -300 kcal, less eaten than burnt\nNote: A");
        const QModelIndex row = control<QTreeView>(window, "lvwDays").model()->index(1, 1);
        QCOMPARE(row.data().toString(), "(119)");
        QVERIFY(row.data(Qt::FontRole).value<QFont>().italic());
        QVERIFY(chart.accessibleName().endsWith(
            "Hips: 0.0 inch a week over the four weeks to 20 Jul 2026 (5 days)"));

        const QString before = told.text();
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
        QCOMPARE(notes.item(1, 1)->text(), "22 Jul 2026 – 31 Aug 2026\n<b>Run</b>");
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
        const auto shownNow = [&] {
            const auto cell = [&](const char *list) {
                return control<QTreeView>(window, list).model()->index(0, 0).data().toString();
            };
            return QStringList{control<QLabel>(window, "lblPeriod").text(),
                               cell("lvwDays"),
                               cell("lvwWeeks"),
                               QString::number(notes.rowCount()),
                               chart.accessibleName(),
                               control<QLabel>(window, "lblDay").text()};
        };
        const auto step = [&](Qt::Key key) {
            QTest::keyClick(window.focusWidget(), key, Qt::AltModifier);
        };
        const QStringList first = shownNow();
        QCOMPARE(first[0], QStringLiteral("22 Jun 2026 – 22 Jul 2026"));
        QVERIFY(!next.isEnabled()); // it would begin with the last day of this one
        notes.setFocus();
        notes.setCurrentCell(0, 0);
        step(Qt::Key_Left);
        const QStringList second = shownNow();
        QCOMPARE(second.mid(0, 4).join('|'), // the note begins on the last day of this one, too
                 QStringLiteral("22 May 2026 – 22 Jun 2026|22/05/2026|22/05/2026|1"));
        QVERIFY(notes.hasFocus() && notes.currentRow() == -1);
        step(Qt::Key_Left);
        QVERIFY(chart.hasFocus() && !notes.isVisible());
        for (int i = 0; i < 2; ++i)
            step(Qt::Key_Left);
        QCOMPARE(chart.day(), qint16(1));
        QVERIFY(control<QLabel>(window, "lblWeeks").text().startsWith("There are no"));
        for (int i = 0; i < 3; ++i)
            step(Qt::Key_Right);
        QCOMPARE(shownNow(), second);
        next.setFocus();
        press(window, "btnNext");
        QCOMPARE(shownNow(), first);
        QVERIFY(control<QWidget>(window, "btnPrevious").hasFocus() && m_messages.said.empty());

        // A figure that can't be shown leaves everything as it is.
        m_journal->addMeal(firstDay.addDays(-1), 1e5);
        press(window, "btnPrevious");
        QVERIFY(m_messages.takeText().contains("21 Jun 2026"));
        QCOMPARE(shownNow(), first);
        m_journal->exec("delete from MealConsume where Qty = 1e5");
        m_journal->addMeasurement(firstDay.addDays(-2), 1e30);
        press(window, "btnPrevious");
        QVERIFY(m_messages.takeText().contains(QStringLiteral("too large")));
        QCOMPARE(shownNow(), first);
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
    }
    void paintsWhatIsLaidOut()
    {
        for (const int day : {9, 10})
            m_journal->addMeasurement(firstDay.addDays(day), 78);
        m_journal->addMeal(firstDay.addDays(3), 900);
        m_journal->exec("delete from MealConsume where MealConsumeID in (11, 12)");
        m_journal->addNote(firstDay.addDays(20), firstDay.addDays(26), "Note");
        const progress::DaySeries series = progress::loadSeries(
            *m_journal->data, month, m_journal->session->parameters().metabolicRate);
        const progress::ProgressTexts texts(m_journal->session->text(), true);
        ProgressChart chart(series, texts);
        chart.resize(1000, 640);
        setTestFont(chart);
        QPalette dark = chart.palette();
        dark.setColor(QPalette::Base, Qt::black);
        dark.setColor(QPalette::Text, Qt::white);
        for (const QPalette &palette : {chart.palette(), dark}) {
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
            QVERIFY(has(g.notRecorded.at(0), c.ground, 0.1) &&
                    !has(g.notRecorded[0], c.ground, 0.9));
            for (const progress::SeriesLine &line : g.lines) {
                for (const progress::Mark &mark : line.marks) {
                    const bool isMeasured = mark.kind == progress::Mark::Kind::Measured;
                    QVERIFY(has(around(mark.at), isMeasured ? c.line(line.series) : c.ground, 0.1));
                }
                for (const QLineF &bridge : line.bridges)
                    QVERIFY(!has(around(bridge.pointAt(0.17)), c.ground, 0.9));
            }
            const progress::NoteSpan &note = g.notes.front();
            QVERIFY(!has(note.bar, c.ground, 0.05) && has(note.bar, c.ink, 0.001));
            const QRectF &lane = g.girths.area;
            QVERIFY(!has(note.reach & lane, c.ground, 0.05) && has(g.plot, c.ground, 0.3));
            for (const double x : g.monthLines)
                QVERIFY(!has({x - 1, lane.top(), 2, lane.height()}, c.ground, 0.8));
            for (const double y : g.girths.grid)
                QVERIFY(has({lane.left(), y - 1, lane.width(), 2}, c.grid, 0.1));
            QVERIFY(has({g.plot.left(), g.averageY - 2, g.plot.width(), 3}, c.ink, 0.05));
            const QRectF trend(g.trend.at(0).front(), g.trend[0].back()); // of four days
            QVERIFY(has(trend.normalized().adjusted(0, -2, 0, 2), c.trend, 0.02));
            for (const progress::LegendEntry &entry : g.legend)
                QVERIFY(!has(entry.sample, c.ground, 0.98));
            // What is pointed at.
            chart.showNote(0);
            QVERIFY(share(chart.grab().toImage(), note.bar, c.highlight) > 0.3);
            chart.showNote(std::nullopt);
            QCOMPARE(chart.grab().toImage(), image);
            const QPointF tenth(g.days.center(10), lane.center().y());
            QMouseEvent move(QEvent::MouseMove, tenth, tenth, Qt::NoButton, {}, {});
            QApplication::sendEvent(&chart, &move);
            const QImage pointed = chart.grab().toImage();
            const auto isChanged = [&](double x) {
                const QRect line(qRound(x - 1.5), qRound(lane.top()), 3, qRound(lane.height()));
                return pointed.copy(line) != image.copy(line);
            };
            QVERIFY(isChanged(tenth.x()) && !isChanged(tenth.x() + 14));
            QEvent leave(QEvent::Leave);
            QApplication::sendEvent(&chart, &leave);
        }
    }
    void pictureIsSaved()
    {
        for (qint64 day = 0; day < 18; day += 3)
            m_journal->addNote(firstDay.addDays(day), firstDay.addDays(day + 1), QString(40, u'W'));
        // One word of a megabyte, which takes no minutes.
        m_journal->addNote(firstDay, firstDay.addDays(9), QString(1000000, u'x'));
        frmGeneralProgress window(*m_journal->session, m_messages, month);
        window.show();
        const auto saved = [&](const char *name) {
            return fileBytes(m_journal->folder.filePath(QLatin1String(name)));
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
        QCOMPARE(saveAs("p.PDF"), QString());
        QVERIFY(saved("p.PDF").count("/Type /Page\n") > 1); // the note goes on
        QCOMPARE(saveAs("22.06.2026"), QString());
        QVERIFY(QImage::fromData(saved("22.06.2026.png"), "PNG").width() > window.width());
        QVERIFY(m_messages.said.empty());
        QVERIFY(saveAs("22.06.2026").endsWith("22.06.2026"));
        QVERIFY(m_messages.takeText().contains("Do you want to replace it?"));
        QVERIFY(saveAs("missing/p").endsWith("missing/p"));
        QVERIFY(m_messages.takeText().startsWith("Can't save"));
    }
};

QTEST_MAIN(tst_generalprogress)
#include "tst_generalprogress.moc"
