// Calories without a food: "350 kcal".
#pragma once

#include "data/deData.h"

/// The meal that plain calories are recorded as: its unit is one kcal.
namespace plaincalories {

inline const QString category = QStringLiteral("Plain Calories");
/// States the split over the nutrients, an assumption near what people eat on average.
inline const QString name = QStringLiteral("Calories (36% fat, 44% carbohydrate, 20% protein)");
inline const QString unit = QStringLiteral("kcal");
/// Grams in one kcal, which they make up exactly at 9, 4 and 4 kcal a gram.
inline constexpr Nutrients<double> grams{0.04, 0.11, 0.05};
inline constexpr Nutrients<double> shares{0.36, 0.44, 0.2};

/// Whether a meal of this unit, with so many calories in it, is the one, whatever it is called now.
bool isThis(const QString &mealUnit, double calories);

/// Adds it to the catalogue, with its category where that is missing, too; its identifier. Throws
/// StoreError.
qint32 addTo(deData &data);

} // namespace plaincalories
