// Importing as a person does it.
#include "app/frmMain.h"
#include "dayjournal.h"
#include "exchange/frmImport.h"

#include <QAction>
#include <QClipboard>
#include <QComboBox>
#include <QFileDialog>
#include <QLabel>
#include <QProgressDialog>
#include <QSignalSpy>
#include <QTableWidget>

using namespace Qt::Literals;

class tst_importwindow : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_journal = std::make_unique<DayJournal>(QLocale(u"de_DE"_qs)); }
    void importsAndTakesItBack();
    void columnsAreMatchedByHand();
    void saysWhatCantBeRead();
    void cancels();

private:
    QString file(const char *name, const QByteArray &bytes) const
    {
        QString path = m_journal->folder.filePath(QLatin1String(name));
        setFileBytes(path, bytes);
        return path;
    }
    /// Opens the window from the menu, with these files.
    void inImport(const QStringList &paths, const std::function<void(frmImport &)> &steps)
    {
        frmMain window(*m_journal->session, m_journal->messages);
        window.show();
        const auto open = [&] { control<QAction>(window, "mnuImport").trigger(); };
        inDialog("frmImport", open, [&](QWidget &dialog) {
            auto &import = static_cast<frmImport &>(dialog);
            if (!paths.isEmpty())
                import.read(paths);
            steps(import);
        });
    }
    static QString counts(const QWidget &window)
    {
        return control<QLabel>(window, "lblCounts").text();
    }
    static bool isReady(const QWidget &window)
    {
        return control<QWidget>(window, "btnOK").isEnabled();
    }
    /// The rows of the preview, columns joined by "|".
    static QStringList preview(const QWidget &window)
    {
        const auto &table = control<QTableWidget>(window, "tblPreview");
        QStringList rows;
        for (int row = 0; row < table.rowCount(); ++row) {
            QStringList cells;
            for (int column = 0; column < table.columnCount(); ++column)
                cells += table.item(row, column)->text();
            rows += cells.join(u'|');
        }
        return rows;
    }
    static void pick(const QWidget &window, const char *name, const QString &entry)
    {
        auto &chooser = control<QComboBox>(window, name);
        const int index = chooser.findText(entry);
        QVERIFY2(index >= 0, qPrintable(entry));
        chooser.setCurrentIndex(index);
        Q_EMIT chooser.activated(index);
    }

    std::unique_ptr<DayJournal> m_journal;
};

void tst_importwindow::importsAndTakesItBack()
{
    file("eaten.csv", "Datum;Zeit;Lebensmittel;Menge\n22.07.2026;8:05;Kiwi;1,5\n"
                      "22.07.2026;8:05;Nichts;1\n");
    file("foods.csv", "Lebensmittel;Einheit;kcal;Fett\nKiwi;St\u00FCck;45;0,4\nApple;x;1;1\n");
    file("picture.csv", QByteArray("\x89PNG\0\0", 6));
    QSignalSpy told(m_journal->session.get(), &Session::recordsChanged);
    inImport({}, [this](frmImport &window) {
        QVERIFY(!isReady(window) && counts(window).startsWith("Choose files"));
        press(window, "btnFolder", "dlgImportFolder", [this](QWidget &dialog) {
            control<QLineEdit>(dialog, "fileNameEdit").setText(m_journal->folder.path());
            static_cast<QFileDialog &>(dialog).QDialog::accept();
        });
        const auto &said = m_journal->messages.said.back();
        QCOMPARE(said.text, u"What can't be read is left out."_qs);
        QVERIFY(said.cause.startsWith("picture.csv: It is no text in"));
        QCOMPARE(shown(window, "lvwFiles"), QStringList({u"eaten.csv|Meals consumed|1|0|0|1"_qs,
                                                         u"foods.csv|Meals|1|0|1|0"_qs}));
        QCOMPARE(preview(window), QStringList{u"Kiwi|22. Juli 2026|08:05|1,5"_qs});
        QCOMPARE(shown(window, "lvwFaults"),
                 QStringList{u"3|There is no meal of this name: Nichts."_qs});
        press(window, "btnCopy");
        QCOMPARE(QGuiApplication::clipboard()->text(),
                 u"3\tThere is no meal of this name: Nichts.\n"_qs);
        selectRow(window, 1, "lvwFiles");
        QCOMPARE(preview(window), QStringList{u"Imported|Kiwi|St\u00FCck|||45|0,4|0|0|45|0|0"_qs});
        QVERIFY2(counts(window).startsWith("New: 2. Updated: 0. There already: 1."),
                 qPrintable(counts(window)));
        QCOMPARE(m_journal->row("select count(*) from MealConsume"), u"0"_qs); // only seen so far
        pick(window, "cboExisting", u"are updated by the file"_qs);
        QVERIFY(counts(window).startsWith("New: 2. Updated: 1."));
        press(window, "btnOK");
        QVERIFY(!window.isVisible());
        QVERIFY(m_journal->messages.takeText().contains(u"New: 2. Updated: 1."_qs));
    });
    QCOMPARE(told.size(), 1);
    const char *const eaten = "select Name, Unit, Qty from MealConsume join Meal using (MealID)";
    QCOMPARE(m_journal->row(eaten), u"Kiwi|St\u00FCck|1.5"_qs);
    QCOMPARE(m_journal->row("select Unit, Protein from Meal where Name = 'Apple'"), u"x|1"_qs);
    frmMain window(*m_journal->session, m_journal->messages);
    auto &undo = control<QAction>(window, "mnuUndo");
    QVERIFY2(undo.text().contains(u"Importing 2 Files"_qs), qPrintable(undo.text()));
    undo.trigger();
    QCOMPARE(m_journal->row(eaten), QString());
    QCOMPARE(m_journal->row("select Unit from Meal where Name = 'Apple'"), u"piece"_qs);
}

void tst_importwindow::columnsAreMatchedByHand()
{
    const QString path =
        file("table.txt", "A\tB\tC\nKiwi\t188,28\t1.234\nFig\t\t2\nLime\t418.4\t3\n");
    inImport({path}, [](frmImport &window) {
        QVERIFY(!isReady(window)); // nobody can know what it is
        pick(window, "cboHolds", u"Meals"_qs);
        QVERIFY(counts(window).contains(u"table.txt: choose a column for Name"_qs));
        pick(window, "cboColumnName", u"A"_qs);
        pick(window, "cboColumnCalories", u"B"_qs);
        pick(window, "cboUnitCalories", u"kJ"_qs);
        pick(window, "cboFormCalories", u"1,5"_qs);
        pick(window, "cboColumnFat", u"C"_qs);
        type(window, "txtEmptyUnit", u"100 g"_qs);
        type(window, "txtEmptyMealCategory", u"Fruit"_qs);
        QTRY_VERIFY(isReady(window));
        QCOMPARE(preview(window), QStringList{u"Fruit|Kiwi|100 g|||45|1,234|0|0|45|0|0"_qs});
        QCOMPARE(shown(window, "lvwFaults"),
                 QStringList({u"3|Calories is empty."_qs, u"4|Calories is no number: 418.4."_qs}));
        type(window, "txtEmptyCalories", u"7,5"_qs);
        QTRY_COMPARE(preview(window).size(), 2);
        QCOMPARE(preview(window)[1], u"Fruit|Fig|100 g|||7,5|2|0|0|7,5|0|0"_qs);
        QCOMPARE(textOf(window, "txtEmptyUnit"), u"100 g"_qs); // what was typed stays
        // Without the other file columns the rest would be an import, too.
        pick(window, "cboHolds", u"(not imported)"_qs);
        QVERIFY(!isReady(window));
    });
    QCOMPARE(m_journal->row("select count(*) from Meal"), u"3"_qs);
}

void tst_importwindow::saysWhatCantBeRead()
{
    const QString good = file("good.csv", "Date,Note\n2026-07-01,a\n");
    inImport({good}, [this](frmImport &window) {
        window.read({file("empty.csv", "\r\n"), m_journal->folder.filePath(u"none.csv"_qs)});
        const QString cause = m_journal->messages.said.back().cause;
        QVERIFY(cause.startsWith("empty.csv: It is empty.\nnone.csv: "));
        QCOMPARE(shown(window, "lvwFiles"), QStringList{u"good.csv|Notes|1|0|0|0"_qs});
        QVERIFY(isReady(window));
        // Another program is in between.
        deData(m_journal->path())
            .Con.exec("insert into UserNote values (9, 46204, 46204, 'Of the other')");
        press(window, "btnOK");
        QVERIFY(window.isVisible());
        QCOMPARE(m_journal->messages.said.back().text, u"The files can't be imported"_qs);
        QCOMPARE(shown(window, "lvwFiles"), QStringList{u"good.csv|Notes|0|0|0|1"_qs});
        QVERIFY(!isReady(window));
        m_journal->messages.said.clear();
    });
}

void tst_importwindow::cancels()
{
    // So many that it takes longer than a moment.
    QByteArray lines = "Name,Unit,kcal\n";
    for (int i = 0; i < 12000; ++i)
        lines += "Food " + QByteArray::number(i) + ",g,1\n";
    inImport({file("many.csv", lines)}, [this](frmImport &window) {
        QTimer cancel;
        connect(&cancel, &QTimer::timeout, &window, [&window] {
            if (auto *progress = window.findChild<QProgressDialog *>(u"dlgImportProgress"_qs))
                progress->cancel();
        });
        cancel.start(1);
        press(window, "btnOK");
        QVERIFY(window.isVisible());
        QVERIFY(m_journal->messages.takeText().startsWith("The import was cancelled"));
        QVERIFY(isReady(window));
        QCOMPARE(m_journal->row("select count(*) from Meal"), u"3"_qs);
    });
}

QTEST_MAIN(tst_importwindow)
#include "tst_importwindow.moc"
