#include "quickadd/frmComposeMeal.h"

#include "catalogue/frmMeal.h"
#include "quickadd/quickaddtexts.h"
#include "quickadd/recordfinder.h"
#include "session/excerpt.h"
#include "session/session.h"
#include "ui/elidedlabel.h"
#include "ui/icons.h"
#include "ui/listmodel.h"
#include "ui/reportview.h"
#include "ui/telling.h"

#include <QAction>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

// A meal is read with two decimals at most; the figures of its ingredients are no more exact.
Currency rounded(double figure)
{
    return Currency::fromDouble(roundHalfEven(figure, 2));
}

} // namespace

frmComposeMeal::frmComposeMeal(Session &session, Messages &messages, QWidget *parent)
    : FormDialog(session, messages, u"frmComposeMeal"_s, tr("Compose a Meal"), parent)
    , m_model(new ListModel({{.header = tr("Ingredient"), .isLongText = true},
                             {.header = tr("Quantity")},
                             {tr("Calories"), tr("Calories of the quantity"), true},
                             {tr("Fat"), tr("Grams of fat"), true},
                             {tr("Carboh."), tr("Grams of carbohydrate"), true},
                             {tr("Protein"), tr("Grams of protein"), true}},
                            this))
{
    makeControls();
    setForm(makeForm());
    btnOK->setText(tr("Create &Meal…"));
    addCheck(m_finder->box(), tr("Add an ingredient first"),
             [this] { return !m_ingredients.empty(); });
    addCheck(txtPortions, tr("The Portions value should be a number above 0"),
             [this] { return portions().has_value(); });

    connect(m_finder, &RecordFinder::changed, this, &frmComposeMeal::showEntry);
    connect(m_finder, &RecordFinder::taken, this, &frmComposeMeal::addIngredient);
    connect(btnAdd, &QPushButton::clicked, this, &frmComposeMeal::addIngredient);
    connect(btnChange, &QPushButton::clicked, this, &frmComposeMeal::changeIngredient);
    connect(btnRemove, &QPushButton::clicked, this, &frmComposeMeal::removeIngredient);
    connect(lvwIngredients, &QTreeView::doubleClicked, this, &frmComposeMeal::changeIngredient);
    connect(txtPortions, &QLineEdit::textChanged, this, &frmComposeMeal::showFigures);
    showEntry();
    showIngredients(-1);
    focusFirstField();
    resize(sizeHint().width(), minimumSizeHint().height() + 6 * fontMetrics().lineSpacing());
}

void frmComposeMeal::makeControls()
{
    const auto button = [this](const QString &name, const QString &caption) {
        auto *made = new QPushButton(caption, this);
        made->setObjectName(name);
        made->setAutoDefault(false);
        return made;
    };
    m_finder = new RecordFinder(session(), Recordables::Among::Meals, tr("&Ingredient"),
                                tr("150 g rice"), this);
    m_finder->box()->setAccessibleName(tr("Ingredient"));
    m_finder->box()->installEventFilter(this);
    lblEntry = new ElidedLabel(this);
    lblEntry->setObjectName(u"lblEntry"_s);
    btnAdd = button(u"btnAdd"_s, tr("&Add"));
    lvwIngredients = new ReportView(*m_model, this);
    lvwIngredients->setObjectName(u"lvwIngredients"_s);
    lvwIngredients->setAccessibleName(tr("Ingredients of the meal"));
    lvwIngredients->setMinimumHeight(6 * fontMetrics().height());
    makeListKeys();
    btnChange = button(u"btnChange"_s, tr("Chan&ge"));
    btnRemove = button(u"btnRemove"_s, tr("&Remove"));
    txtPortions = makeBox(u"txtPortions"_s, tr("Portions"));
    txtPortions->setText(session().text().toText(1));
    txtPortions->setMaximumWidth(10 * fontMetrics().averageCharWidth());
}

void frmComposeMeal::makeListKeys()
{
    const auto press = [this](const QList<QKeySequence> &keys, const QString &caption,
                              void (frmComposeMeal::*method)()) {
        auto *entry = new QAction(caption, lvwIngredients);
        entry->setShortcuts(keys);
        entry->setShortcutContext(Qt::WidgetShortcut);
        connect(entry, &QAction::triggered, this, method);
        lvwIngredients->addAction(entry);
    };
    press({Qt::Key_Return, Qt::Key_Enter}, tr("Chan&ge"), &frmComposeMeal::changeIngredient);
    press({Qt::Key_Delete}, tr("&Remove"), &frmComposeMeal::removeIngredient);
    lvwIngredients->setContextMenuPolicy(Qt::ActionsContextMenu);
}

QLayout *frmComposeMeal::makeForm()
{
    auto *entry = new QHBoxLayout;
    entry->addWidget(lblEntry, 1);
    entry->addWidget(btnAdd);
    auto *form = new QVBoxLayout;
    form->addWidget(m_finder, 3);
    form->addLayout(entry);
    form->addWidget(lvwIngredients, 2);
    form->addLayout(makeListButtons());
    form->addLayout(makeFigures());
    return form;
}

QLayout *frmComposeMeal::makeListButtons()
{
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(makeLabel(tr("&Portions"), txtPortions));
    buttons->addWidget(txtPortions);
    buttons->addStretch();
    buttons->addWidget(btnChange);
    buttons->addWidget(btnRemove);
    return buttons;
}

QLayout *frmComposeMeal::makeFigures()
{
    auto *grid = new QGridLayout;
    int column = 0;
    for (const QString &caption :
         {tr("Calories"), tr("Fat (g)"), tr("Carbohydrate (g)"), tr("Protein (g)")}) {
        grid->addWidget(new QLabel(caption, this), 0, ++column, Qt::AlignRight);
        grid->setColumnStretch(column, 1);
    }
    m_whole = addFigures(*grid, tr("Whole"), u"lblWhole"_s);
    m_portion = addFigures(*grid, tr("Per portion"), u"lblPortion"_s);
    return grid;
}

frmComposeMeal::FigureLabels frmComposeMeal::addFigures(QGridLayout &grid, const QString &caption,
                                                        const QString &name)
{
    const int row = grid.rowCount();
    grid.addWidget(new QLabel(caption, this), row, 0);
    const auto label = [&](const QString &figure, const QString &accessible, int column) {
        auto *made = new QLabel(this);
        made->setObjectName(name + figure);
        made->setAccessibleDescription(caption + u", "_s + accessible);
        QFont bold = made->font();
        bold.setBold(true);
        made->setFont(bold);
        grid.addWidget(made, row, column, Qt::AlignRight);
        return made;
    };
    return {label(u"Calories"_s, tr("Calories"), 1),
            {label(u"Fat"_s, tr("Fat (g)"), 2), label(u"CarboHydrate"_s, tr("Carbohydrate (g)"), 3),
             label(u"Protein"_s, tr("Protein (g)"), 4)}};
}

// Enter in the line adds; elsewhere it presses the default button.
bool frmComposeMeal::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_finder->box() && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            addIngredient();
            return true;
        }
    }
    return FormDialog::eventFilter(watched, event);
}

// Why the line can't be added, empty where it can.
QString frmComposeMeal::problem() const
{
    if (m_finder->line().time)
        return tr("An ingredient takes a quantity or a weight, and no time");
    return m_finder->entry().problem;
}

void frmComposeMeal::showEntry()
{
    QString shown = problem();
    const Recordable *meal = m_finder->record();
    if (shown.isEmpty() && meal)
        shown = quantityText(*meal, m_finder->entry(), session().text());
    lblEntry->setText(shown);
    m_finder->box()->setAccessibleDescription(m_finder->understood() + u". "_s + shown);
}

void frmComposeMeal::addIngredient()
{
    m_finder->setFocus();
    const Recordable *meal = m_finder->record();
    if (!meal || !problem().isEmpty()) {
        tell(*lblEntry, lblEntry->text());
        return;
    }
    m_ingredients.push_back(ingredientOf(*meal, m_finder->entry().quantity));
    showIngredients(int(m_ingredients.size()) - 1);
    m_finder->setLine({});
}

int frmComposeMeal::selectedIngredient() const
{
    return m_ingredients.empty() ? -1 : lvwIngredients->currentIndex().row();
}

// Back into the line, whole, so that it finds the same meal.
void frmComposeMeal::changeIngredient()
{
    const int row = selectedIngredient();
    if (row < 0)
        return;
    const Ingredient ingredient = m_ingredients[size_t(row)];
    removeIngredient();
    m_finder->setLine(session().text().toText(ingredient.quantity) + u' ' + ingredient.name);
    m_finder->setFocus();
}

void frmComposeMeal::removeIngredient()
{
    const int row = selectedIngredient();
    if (row < 0)
        return;
    m_ingredients.erase(m_ingredients.begin() + row);
    showIngredients(qMin(row, int(m_ingredients.size()) - 1));
}

QString frmComposeMeal::text(double figure) const
{
    try {
        return session().text().toText(rounded(figure));
    } catch (const OverflowError &) {
        return u"\u2026"_s; // no person's meal
    }
}

void frmComposeMeal::showIngredients(int selected)
{
    std::vector<ListRow> rows;
    rows.reserve(m_ingredients.size());
    for (const Ingredient &ingredient : m_ingredients) {
        ListRow row{0,
                    {ingredient.name,
                     session().text().toText(ingredient.quantity) + u" \u00D7 "_s + ingredient.unit,
                     text(ingredient.figures.calories)}};
        for (const double grams : ingredient.figures.grams)
            row.texts << text(grams);
        rows.push_back(std::move(row));
    }
    m_model->setRows(std::move(rows));
    lvwIngredients->sizeColumns();
    lvwIngredients->setCurrentIndex(m_model->index(selected, 0));
    btnChange->setEnabled(!m_ingredients.empty());
    btnRemove->setEnabled(!m_ingredients.empty());
    showFigures();
}

std::optional<double> frmComposeMeal::portions() const
{
    const std::optional<double> number = session().text().toDouble(txtPortions->text());
    return number && *number > 0 ? number : std::nullopt;
}

void frmComposeMeal::show(const FigureLabels &labels, const RecipeFigures &figures)
{
    labels.calories->setText(text(figures.calories));
    for (const Nutrient n : allNutrients)
        labels.grams[n]->setText(text(figures.grams[n]));
}

void frmComposeMeal::showFigures()
{
    show(m_whole, figuresOf(m_ingredients, 1));
    if (const std::optional<double> number = portions()) {
        show(m_portion, figuresOf(m_ingredients, *number));
        return;
    }
    m_portion.calories->clear();
    for (QLabel *label : m_portion.grams)
        label->clear();
}

void frmComposeMeal::accept()
{
    if (!Validate())
        return;
    const RecipeFigures figures = figuresOf(m_ingredients, *portions());
    try {
        frmMeal editor(session(), messages(), this);
        editor.propose({tr("portion"), rounded(figures.calories), figures.grams.map(&rounded)});
        if (editor.run(0))
            FormDialog::accept();
    } catch (const OverflowError &) {
        refuse(txtPortions, tr("The figures of a portion are too large"));
    }
}
