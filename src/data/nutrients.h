// The nutrients that a meal's calories come from, and a value for each of them.
#pragma once

#include <array>
#include <cstddef>
#include <type_traits>
#include <utility>

/// In the order of the tables, the lists and the editors.
enum class Nutrient
{
    Fat,
    Carbohydrate,
    Protein
};

inline constexpr std::array allNutrients = {Nutrient::Fat, Nutrient::Carbohydrate,
                                            Nutrient::Protein};

/// In the order in which they are stacked in a picture, and therefore told of it.
inline constexpr std::array stackedNutrients = {Nutrient::Carbohydrate, Nutrient::Fat,
                                                Nutrient::Protein};
static_assert(stackedNutrients.size() == allNutrients.size());

/// A value for each nutrient. It is made from as many values as there are nutrients, so that one
/// more does not compile until each place has said what it means there.
template<typename T>
class Nutrients
{
public:
    constexpr Nutrients() = default;
    template<std::convertible_to<T>... Values>
    requires(sizeof...(Values) == allNutrients.size()) constexpr Nutrients(Values &&...values)
        : m_values{std::forward<Values>(values)...}
    {
    }

    constexpr T &operator[](Nutrient nutrient)
    {
        return m_values[static_cast<std::size_t>(nutrient)];
    }
    constexpr const T &operator[](Nutrient nutrient) const
    {
        return m_values[static_cast<std::size_t>(nutrient)];
    }

    /// In the order of allNutrients.
    constexpr const auto &values() const { return m_values; }
    constexpr auto begin() const { return m_values.begin(); }
    constexpr auto end() const { return m_values.end(); }

    /// Added up in a type of its own, which has to hold the sum.
    template<typename Sum = T>
    constexpr Sum sum() const
    {
        Sum sum{};
        for (const T &value : m_values)
            sum += value;
        return sum;
    }

    /// What a function makes of each value.
    template<typename Function>
    constexpr auto map(Function function) const
    {
        Nutrients<decltype(function(m_values[0]))> results;
        for (const Nutrient nutrient : allNutrients)
            results[nutrient] = function((*this)[nutrient]);
        return results;
    }

    constexpr bool operator==(const Nutrients &other) const { return m_values == other.m_values; }

private:
    std::array<T, allNutrients.size()> m_values{};
};

/// What a function makes of each nutrient.
template<typename Function>
constexpr auto perNutrient(Function function)
{
    Nutrients<decltype(function(Nutrient{}))> results;
    for (const Nutrient nutrient : allNutrients)
        results[nutrient] = function(nutrient);
    return results;
}
