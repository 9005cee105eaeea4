// What the user aims at.
#pragma once

#include "session/installation.h"

#include <QDate>

#include <array>
#include <optional>

struct DailyBudget
{
    enum class Kind
    {
        Fixed,          ///< so many calories may be eaten
        BurnLessDeficit ///< what the day burns, less so many calories
    };

    Kind kind = Kind::Fixed;
    int calories = 0; ///< 1 to mostCalories

    static constexpr int mostCalories = 20000;

    bool operator==(const DailyBudget &) const = default;
};

/// Any of them may be missing. Weights and girths are in the unit system in which they were set.
struct Goals
{
    enum class Girth
    {
        Breast,
        Waist,
        Hips
    };
    static constexpr size_t girthCount = 3;

    static constexpr double mostWeight = 1000;
    static constexpr double mostGirth = 500;

    std::optional<double> weight;
    std::array<std::optional<double>, girthCount> girths;
    bool isMetric = true;
    QDate date; ///< by which the weight is to be reached; invalid: some day
    std::optional<DailyBudget> budget;

    bool operator==(const Goals &) const = default;
    bool isEmpty() const { return *this == Goals{{}, {}, isMetric, {}, {}}; }

    /// In the other unit system with one decimal, as far as they are in the other one.
    Goals in(bool metric) const;
};

/// As they are kept in Corvana.ini, where a backup takes them along; what makes no sense there
/// counts as missing.
Goals goalsOf(const Installation &installation);
/// False where they can't be written.
bool keepGoals(Installation &installation, const Goals &goals);
