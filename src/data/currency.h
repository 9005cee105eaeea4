// Fixed-point decimals for quantities, nutrients and calories.
#pragma once

#include "data/numbers.h"

#include <QString>

#include <compare>
#include <optional>

/// A decimal with exactly four places after the point, kept as a signed 64-bit count of
/// ten-thousandths: about ±922 trillion. Addition and subtraction are exact; everything that must
/// round does so half to even. A result out of range throws OverflowError, it never wraps.
class Currency
{
public:
    static constexpr qint64 unitsPerOne = 10000;

    constexpr Currency() = default;
    /// The exact value of a whole number.
    static Currency fromInteger(qint64 value);
    /// Rounded half to even at the fourth place; NaN and infinities throw OverflowError.
    static Currency fromDouble(double value);
    static constexpr Currency fromTenThousandths(qint64 units) { return Currency(units); }
    /// Reads an optional sign, digits and an optional point with digits, digit by digit, rounding
    /// half to even past the fourth place. Anything else is no number: std::nullopt. A number out
    /// of range throws OverflowError.
    static std::optional<Currency> fromText(QStringView text);

    constexpr qint64 tenThousandths() const { return m_units; }
    /// The nearest double; what the store keeps and what products are taken from.
    double toDouble() const;
    /// Shortest plain decimal text with a point: no trailing zeros, no exponent, no grouping.
    QString toText() const;

    Currency operator-() const;
    Currency operator+(Currency other) const;
    Currency operator-(Currency other) const;
    /// Exact multiplication by a whole number.
    Currency operator*(qint64 factor) const;

    constexpr auto operator<=>(const Currency &) const = default; // NOLINT(modernize-use-nullptr)

private:
    constexpr explicit Currency(qint64 units)
        : m_units(units)
    {
    }

    qint64 m_units = 0;
};
