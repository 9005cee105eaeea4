// What a meal of several ingredients amounts to.
#pragma once

#include "quickadd/quickentry.h"

#include <vector>

/// Calories and grams of nutrients.
struct RecipeFigures
{
    double calories = 0;
    Nutrients<double> grams;
};

struct Ingredient
{
    QString name;
    QString unit;
    Currency quantity;
    RecipeFigures figures; ///< of the quantity
};

/// A quantity of a meal of the catalogue.
Ingredient ingredientOf(const Recordable &meal, Currency quantity);

/// The sum of all, divided by the number of portions, which is above 0.
RecipeFigures figuresOf(const std::vector<Ingredient> &ingredients, double portions);
