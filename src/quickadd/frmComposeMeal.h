// Makes a meal of the catalogue from ingredients.
#pragma once

#include "quickadd/recipe.h"
#include "ui/formdialog.h"

class ListModel;
class QGridLayout;
class RecordFinder;
class ReportView;

/// Compose a Meal: ingredients are found and weighed as in Quick Add and gathered in a list; the
/// figures of the whole and of a portion follow. OK opens the meal editor, filled in for a portion,
/// and the window closes once the meal is stored there.
class frmComposeMeal : public FormDialog
{
    Q_OBJECT

public:
    /// Throws StoreError where the catalogue can't be read.
    frmComposeMeal(Session &session, Messages &messages, QWidget *parent = nullptr);

protected:
    void accept() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    /// The labels of a row of figures.
    struct FigureLabels
    {
        QLabel *calories;
        Nutrients<QLabel *> grams;
    };

    void makeControls();
    void makeListKeys();
    QLayout *makeForm();
    QLayout *makeListButtons();
    QLayout *makeFigures();
    FigureLabels addFigures(QGridLayout &grid, const QString &caption, const QString &name);
    void addIngredient();
    void changeIngredient();
    void removeIngredient();
    void showEntry();
    void showIngredients(int selected);
    void showFigures();
    QString problem() const;
    QString text(double figure) const;
    void show(const FigureLabels &labels, const RecipeFigures &figures);
    std::optional<double> portions() const;
    int selectedIngredient() const;

    std::vector<Ingredient> m_ingredients;
    ListModel *m_model;
    RecordFinder *m_finder;
    QLabel *lblEntry;
    QPushButton *btnAdd;
    ReportView *lvwIngredients;
    QPushButton *btnChange;
    QPushButton *btnRemove;
    QLineEdit *txtPortions;
    FigureLabels m_whole;
    FigureLabels m_portion;
};
