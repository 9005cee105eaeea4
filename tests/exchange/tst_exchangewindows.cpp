// Exporting and checking as a person does it.
#include "app/frmMain.h"
#include "dayjournal.h"
#include "exchange/frmCheckJournal.h"
#include "exchange/frmExport.h"

#include <QAction>
#include <QClipboard>
#include <QDateEdit>
#include <QDir>
#include <QLabel>
#include <QProgressBar>
#include <QRadioButton>

using namespace Qt::Literals;

class tst_exchangewindows : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void exportsAPeriod();
    void refusesWhatCantBe();
    void cancels();
    void listsAndCopiesFindings();
    void damagedFileIsListed();

private:
    void openExport(const std::function<void(QWidget &)> &steps)
    {
        open("frmExport", "mnuExport", steps);
    }
    void openCheck(const std::function<void(QWidget &)> &steps)
    {
        open("frmCheckJournal", "mnuCheckJournal", [&](QWidget &check) {
            QTRY_VERIFY(!control<QProgressBar>(check, "prgCheck").isVisible());
            steps(check);
        });
    }
    void open(const char *dialog, const char *entry, const std::function<void(QWidget &)> &steps)
    {
        frmMain window(*m_journal->session, m_journal->messages);
        window.show();
        m_journal->messages.said.clear();
        inDialog(
            dialog, [&] { control<QAction>(window, entry).trigger(); }, steps);
    }
    QStringList outNames() const
    {
        return QDir(m_out->path())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    std::unique_ptr<DayJournal> m_journal;
    std::unique_ptr<QTemporaryDir> m_out;
};

void tst_exchangewindows::init()
{
    m_journal = std::make_unique<DayJournal>(QLocale(u"de_DE"_qs));
    m_out = std::make_unique<QTemporaryDir>();
    m_journal->exec("insert into UserNote values (1, 46222, 46222, 'before'),"
                    " (-1, 46223, 46223, 'within'), (-2, 46226, 46226, 'behind')");
}

void tst_exchangewindows::exportsAPeriod()
{
    openExport([this](QWidget &window) {
        QVERIFY(!control<QWidget>(window, "dtpDateFrom").isEnabled());
        for (const char *usual : {"optWhole", "optPlain"})
            QVERIFY2(control<QRadioButton>(window, usual).isChecked(), usual);
        control<QRadioButton>(window, "optPeriod").click();
        typeInto(control<QDateEdit>(window, "dtpDateFrom"), u"20.7.26"_qs);
        typeInto(control<QDateEdit>(window, "dtpDateTo"), u"22.7.26"_qs);
        control<QRadioButton>(window, "optSpreadsheet").click();
        type(window, "txtFolder", m_out->path());
        press(window, "btnOK");
        QVERIFY(!window.isVisible());
    });
    const QString name = u"Corvana Export 2026-07-22 12-30-45"_qs;
    QCOMPARE(outNames(), QStringList{name});
    QVERIFY(m_journal->messages.takeText().endsWith(name));
    QCOMPARE(fileBytes(m_out->filePath(name + u"/UserNote.csv"_qs)),
             QByteArray("\xEF\xBB\xBFUserNoteID;DateFrom;DateTo;NoteText\r\n"
                        "-1;20.07.2026;20.07.2026;within\r\n"));
}

void tst_exchangewindows::refusesWhatCantBe()
{
    openExport([this](QWidget &window) {
        type(window, "txtFolder", u" "_qs);
        m_journal->refuses(window, "txtFolder", "The Folder should be specified",
                           m_out->filePath(u"none"_qs));
        m_journal->refuses(window, "txtFolder", "There is no such folder", m_out->path());
        control<QRadioButton>(window, "optPeriod").click();
        auto &from = control<QDateEdit>(window, "dtpDateFrom");
        typeInto(from, u"23.7.2026"_qs);
        press(window, "btnOK");
        QCOMPARE(m_journal->messages.takeText(), u"The Date To is less than Date From"_qs);
        QCOMPARE(from.date(), QDate(2026, 7, 23));
        QVERIFY(control<QWidget>(window, "dtpDateTo").hasFocus());
        typeInto(from, u"31.2.2026"_qs);
        press(window, "btnOK");
        QCOMPARE(m_journal->messages.takeText(), u"The Date From field contains illegal data"_qs);
        QCOMPARE(from.text(), u"31.2.2026"_qs);
        QCOMPARE(outNames(), QStringList());
        // What isn't asked for isn't checked.
        control<QRadioButton>(window, "optWhole").click();
        press(window, "btnOK");
        QVERIFY(!window.isVisible());
    });
    QCOMPARE(outNames().size(), 1);
}

// By Escape, while it is written.
void tst_exchangewindows::cancels()
{
    m_journal->exec("with recursive n(i) as (select 1 union all select i + 1 from n where i < 4000)"
                    " insert into MealConsume select i, 1, 46000 + i % 200, 0.5, 1 from n");
    openExport([this](QWidget &window) {
        type(window, "txtFolder", m_out->path());
        bool isCancelled = false;
        auto &bar = control<QProgressBar>(window, "prgExport");
        connect(&bar, &QProgressBar::valueChanged, &window, [&](int percent) {
            if (percent < 20 || std::exchange(isCancelled, true))
                return;
            QVERIFY(bar.isVisible() && !control<QWidget>(window, "btnOK").isEnabled());
            QCOMPARE(outNames().size(), 1); // under way
            QTest::keyClick(&window, Qt::Key_Escape);
        });
        press(window, "btnOK");
        QVERIFY(isCancelled && window.isVisible() && !bar.isVisible());
        QVERIFY(control<QWidget>(window, "btnOK").isEnabled());
        QVERIFY(m_journal->messages.takeText().startsWith("The export was cancelled"));
    });
    QCOMPARE(outNames(), QStringList());
}

void tst_exchangewindows::listsAndCopiesFindings()
{
    openCheck([this](QWidget &window) {
        press(window, "btnCopy");
        QVERIFY(QGuiApplication::clipboard()->text().startsWith("The journal is sound"));
        QVERIFY(m_journal->messages.said.empty());
    });
    m_journal->exec("insert into MealConsume values (-1, 1, 46225, 1.5, 'viel');"
                    "update UserNote set DateTo = 46230 where UserNoteID = 1");
    openCheck([](QWidget &window) {
        QVERIFY(control<QLabel>(window, "lblResult").text().startsWith("Findings: 4."));
        const QStringList rows = shown(window);
        QCOMPARE(rows.size(), 4);
        QVERIFY(rows[0].startsWith("22.07.26|Meals consumed: "));
        QVERIFY(rows[0].endsWith("|The time is outside the day: 1,5 of a day."));
        QVERIFY(control<QWidget>(window, "lvwList").hasFocus());
        pressKey(Qt::Key_C, Qt::ControlModifier);
        const QString copied = QGuiApplication::clipboard()->text();
        QVERIFY(copied.endsWith("\t" + rows[3].section(u'|', 2) + u'\n'));
        QCOMPARE(copied.count(u'\t'), 8);
    });
    QCOMPARE(m_journal->row("select DateTo from UserNote where UserNoteID = 1"), u"46230"_qs);
}

void tst_exchangewindows::damagedFileIsListed()
{
    m_journal->exec("insert into Body values (-1, 46225, 70, 90, 80, 95, 'M')");
    m_journal->damagePageOf("Body");
    openCheck([this](QWidget &window) {
        QVERIFY(!shown(window).filter(u"damaged"_qs).isEmpty());
        QVERIFY(m_journal->messages.said.empty());
    });
    openExport([this](QWidget &window) {
        type(window, "txtFolder", m_out->path());
        press(window, "btnOK");
        QVERIFY(window.isVisible());
        QCOMPARE(m_journal->messages.said.back().text, u"The journal can't be exported"_qs);
        QVERIFY(m_journal->messages.said.back().cause.startsWith("The database file is damaged"));
    });
    QCOMPARE(outNames(), QStringList());
}

QTEST_MAIN(tst_exchangewindows)
#include "tst_exchangewindows.moc"
