#include "quickadd/recipe.h"

Ingredient ingredientOf(const Recordable &meal, Currency quantity)
{
    const auto times = [q = quantity.toDouble()](double perUnit) { return q * perUnit; };
    return {meal.name, meal.unit, quantity, {times(meal.calories), meal.grams.map(times)}};
}

RecipeFigures figuresOf(const std::vector<Ingredient> &ingredients, double portions)
{
    RecipeFigures sum;
    for (const Ingredient &ingredient : ingredients) {
        sum.calories += ingredient.figures.calories / portions;
        for (const Nutrient n : allNutrients)
            sum.grams[n] += ingredient.figures.grams[n] / portions;
    }
    return sum;
}
