// The calories of a meal against its nutrients, so that a slip of a digit fails the build.
#pragma once

#include "tsv.h"

#include <map>

namespace delivered {

class NameIndex;
struct DeliveredMeal;

/// Fat counts 9 kcal a gram, carbohydrate and protein 4, alcohol 7. A row may be off by a tenth of
/// that sum and 3 kcal: so much is rounding and published factors that differ from food to food.
/// What lies further off has a row of its own in energy.tsv that says by how much, and why.
class EnergyCheck
{
public:
    /// Reads energy.tsv; throws SourceError.
    explicit EnergyCheck(const QString &path);

    /// Throws SourceError at the meal's row where its calories don't fit, and at its row in
    /// energy.tsv where they fit without that.
    void check(const TsvRow &row, const DeliveredMeal &meal) const;
    /// Throws SourceError at the first row for a meal that there isn't.
    void checkNames(const NameIndex &meals) const;

private:
    struct Exception
    {
        TsvRow row;
        double calories; ///< to add to those of the three nutrients
    };
    std::map<QString, Exception> m_exceptions;
};

} // namespace delivered
