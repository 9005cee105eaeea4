#include "help/helpviewer.h"

#include "help/companion.h"
#include "help/helpcontents.h"
#include "help/helpfile.h"
#include "help/helpresults.h"
#include "help/helptext.h"
#include "ui/telling.h"

#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QShortcut>
#include <QSplitter>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

// In average characters.
constexpr int sideWidth = 36;
constexpr int textWidth = 72;

} // namespace

HelpViewer::HelpViewer(const QString &page, QWidget *parent, const QStringList &languages)
    : QDialog(parent)
    , m_pages(languages)
    , m_text(new HelpText(m_pages))
    , m_contents(new HelpContents(m_pages.contents()))
    , m_found(new HelpResults)
    , lblFound(new QLabel)
    , txtFind(new QLineEdit)
    , m_side(makeSide())
    , m_companion(new Companion(*this))
{
    setObjectName(u"helpViewer"_s);
    setWindowTitle(tr("Corvana Help"));
    auto *splitter = new QSplitter;
    splitter->addWidget(m_side);
    splitter->addWidget(m_text);
    splitter->setStretchFactor(1, 1);
    const int character = fontMetrics().averageCharWidth();
    splitter->setSizes({sideWidth * character, textWidth * character});

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(makeFindRow());
    layout->addWidget(splitter, 1);
    layout->addLayout(makeButtons());
    const auto buttons = findChildren<QPushButton *>();
    for (auto *button : buttons)
        button->setAutoDefault(false); // Enter in the field finds
    resize((sideWidth + textWidth) * character, fontMetrics().lineSpacing() * 34);

    addKeys();
    connect(m_text, &HelpText::pageShown, this, &HelpViewer::follow);
    showPage(page);
    m_text->setFocus();
}

QWidget *HelpViewer::makeFindRow()
{
    auto *row = new QWidget;
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins({});
    auto *label = new QLabel(tr("F&ind:"));
    label->setBuddy(txtFind);
    txtFind->setObjectName(u"txtFind"_s);
    txtFind->setAccessibleName(tr("Find"));
    txtFind->setAccessibleDescription(tr("Words to find in all pages of the help"));
    txtFind->setClearButtonEnabled(true);
    connect(txtFind, &QLineEdit::textChanged, this, &HelpViewer::find);
    connect(txtFind, &QLineEdit::returnPressed, this, [this] { goToHit(1); });
    layout->addWidget(label);
    layout->addWidget(txtFind, 1);
    for (const auto &[name, text, step] : {std::tuple(u"btnPreviousHit"_s, tr("&Previous Hit"), -1),
                                           std::tuple(u"btnNextHit"_s, tr("&Next Hit"), 1)}) {
        auto *button = new QPushButton(text);
        button->setObjectName(name);
        connect(button, &QPushButton::clicked, this, [this, by = step] { goToHit(by); });
        layout->addWidget(button);
    }
    return row;
}

// The contents, and in their place what was found.
QWidget *HelpViewer::makeSide()
{
    connect(m_contents, &HelpContents::pageChosen, this, &HelpViewer::showPage);
    connect(m_contents, &QTreeWidget::itemActivated, m_text, qOverload<>(&QWidget::setFocus));

    lblFound->setObjectName(u"lblFound"_s);
    lblFound->setWordWrap(true);
    lblFound->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    lblFound->setTextFormat(Qt::PlainText);
    connect(m_found, &HelpResults::pageChosen, this, [this](const QString &page) {
        m_text->showPage(page);
        showHit(0);
    });
    connect(m_found, &QListWidget::itemActivated, m_text, qOverload<>(&QWidget::setFocus));

    m_results = new QWidget;
    auto *results = new QVBoxLayout(m_results);
    results->setContentsMargins({});
    results->addWidget(lblFound);
    results->addWidget(m_found, 1);
    m_results->hide();

    auto *side = new QWidget;
    auto *layout = new QVBoxLayout(side);
    layout->setContentsMargins({});
    layout->addWidget(m_contents);
    layout->addWidget(m_results);
    return side;
}

QLayout *HelpViewer::makeButtons()
{
    auto *row = new QHBoxLayout;
    row->addStretch();
    const auto add = [row](const QString &caption) {
        auto *button = new QPushButton(caption);
        row->addWidget(button);
        return button;
    };
    auto *contents = add(tr("Con&tents"));
    auto *back = add(tr("&Back"));
    auto *forward = add(tr("&Forward"));
    back->setEnabled(false);
    forward->setEnabled(false);
    connect(contents, &QPushButton::clicked, this, [this] { showPage(HelpPages::contentsPage()); });
    connect(back, &QPushButton::clicked, m_text, &QTextBrowser::backward);
    connect(forward, &QPushButton::clicked, m_text, &QTextBrowser::forward);
    connect(m_text, &QTextBrowser::backwardAvailable, back, &QPushButton::setEnabled);
    connect(m_text, &QTextBrowser::forwardAvailable, forward, &QPushButton::setEnabled);
    connect(add(tr("Close")), &QPushButton::clicked, this, &QDialog::reject);
    return row;
}

void HelpViewer::addKeys()
{
    const auto add = [this](const QKeySequence &keys, const auto &act) {
        connect(new QShortcut(keys, this), &QShortcut::activated, this, act);
    };
    add(Qt::ALT | Qt::Key_Left, [this] { m_text->backward(); });
    add(Qt::ALT | Qt::Key_Right, [this] { m_text->forward(); });
    add(Qt::Key_F3, [this] { goToHit(1); });
    add(Qt::SHIFT | Qt::Key_F3, [this] { goToHit(-1); });
    add(Qt::CTRL | Qt::Key_F, [this] {
        txtFind->setFocus(Qt::ShortcutFocusReason);
        txtFind->selectAll();
    });
    auto *down = new QShortcut(Qt::Key_Down, txtFind);
    down->setContext(Qt::WidgetShortcut);
    connect(down, &QShortcut::activated, m_found, qOverload<>(&QWidget::setFocus));
}

bool HelpViewer::hasPage(const QString &page)
{
    return HelpPages(QLocale::system().uiLanguages()).has(page);
}

void HelpViewer::showPage(const QString &page)
{
    m_text->showPage(m_pages.has(page) ? page : HelpPages::contentsPage());
}

// Shows where the page stands, without going there.
void HelpViewer::follow(const QString &page)
{
    m_contents->follow(page);
    m_found->follow(page);
}

void HelpViewer::find(const QString &typed)
{
    if (!m_index)
        m_index.emplace(m_pages);
    const QStringList words = searchedWords(typed);
    m_found->setPages(m_index->find(words));
    m_text->mark(words);
    follow(m_text->page());
    if (words.isEmpty())
        lblFound->clear();
    else if (m_found->isEmpty())
        say(tr("No page holds \"%1\".").arg(typed.simplified()));
    else
        say(tr("Pages found: %1").arg(m_found->count()));
    arrange();
}

void HelpViewer::showHit(int hit)
{
    m_text->goToHit(hit);
    say(tr("Hit %1 of %2 on this page").arg(hit + 1).arg(m_text->hitCount()));
}

// On this page, then on the next one found, and from the last to the first; before a hit was gone
// to, on the page that fits best.
void HelpViewer::goToHit(int step)
{
    if (m_found->isEmpty()) {
        txtFind->setFocus();
        return;
    }
    const int here = m_text->currentHit();
    const int next = here + step;
    if (here >= 0 && next >= 0 && next < m_text->hitCount()) {
        showHit(next);
        return;
    }
    if (here < 0)
        m_found->follow({});
    m_text->showPage(m_found->pageAt(step));
    showHit(step > 0 ? 0 : m_text->hitCount() - 1);
}

void HelpViewer::say(const QString &text)
{
    tell(*lblFound, text);
}

// A narrow window has room for the text alone, unless something is looked for.
void HelpViewer::arrange()
{
    const bool isFinding = !searchedWords(txtFind->text()).isEmpty();
    const bool isWide = width() >= textWidth * fontMetrics().averageCharWidth();
    m_contents->setVisible(!isFinding);
    m_results->setVisible(isFinding);
    m_side->setVisible(isFinding || isWide);
}

void HelpViewer::resizeEvent(QResizeEvent *event)
{
    QDialog::resizeEvent(event);
    arrange();
}

namespace {

// A message has no page of its own, but the window that shows it may have one.
QString pageFor(const QWidget *window, QString page)
{
    while (!HelpViewer::hasPage(page) && window->parentWidget()) {
        window = window->parentWidget()->window();
        page = window->objectName();
    }
    return page;
}

QWidget *outermost(QWidget *window)
{
    while (window->parentWidget())
        window = window->parentWidget()->window();
    return window;
}

} // namespace

void showHelp(QWidget *parent, const QString &helpFile, const QString &page)
{
    if (!HelpViewer::hasPage(HelpPages::contentsPage())) {
        const QString problem = openHelpFile(helpFile);
        if (!problem.isEmpty()) {
            QMessageBox::warning(parent, HelpViewer::tr("Error"), problem);
            return;
        }
    }
    static QPointer<HelpViewer> shown;
    HelpViewer *viewer = shown;
    QWidget *owner = outermost(parent);
    if (viewer && viewer->isVisible() && viewer->parentWidget() == owner) {
        viewer->showPage(pageFor(parent, page));
    } else {
        if (viewer)
            viewer->close();
        viewer = new HelpViewer(pageFor(parent, page), owner);
        viewer->setAttribute(Qt::WA_DeleteOnClose);
        shown = viewer;
    }
    viewer->companion().openBeside(*parent);
}
