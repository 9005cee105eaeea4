// What the daily chart consists of.
#pragma once

#include "data/nutrients.h"

namespace daychart {

enum class Lane
{
    Meals,
    Activities
};

/// What has a name and a colour of its own; from Part::Nutrients on, a part for each nutrient.
enum class Part
{
    Activity,
    Background,
    Balance,
    Nutrients
};
constexpr Part partOf(Nutrient nutrient)
{
    return static_cast<Part>(static_cast<int>(Part::Nutrients) + static_cast<int>(nutrient));
}
/// Of a part from Part::Nutrients on.
constexpr Nutrient nutrientOf(Part part)
{
    return static_cast<Nutrient>(static_cast<int>(part) - static_cast<int>(Part::Nutrients));
}

} // namespace daychart
