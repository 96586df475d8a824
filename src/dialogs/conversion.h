// SPDX-License-Identifier: GPL-3.0-or-later
//
// The arithmetic of conversions: one unit of a group into another, by the factors of its table or
// by the exact definitions.
#pragma once

#include "dialogs/conversion_table.h"

#include <string>

namespace tallyforge {

/// Which sizes a conversion goes by.
enum class Sizes : std::uint8_t { Table, Exact };

/// A converted number and what is kept of the conversion for the next one.
struct Conversion {
    double value = 0.0;
    double ConversionFactor = 1.0;
    bool divides = false;       ///< the factor is divided by the number
    bool keepsFactor = true;    ///< false for temperatures, which have none
    bool withoutRatio = false;  ///< a unit has no factor: the number is unchanged
};

/// Converts `x` from unit `from` of `group` into unit `to`. Raises 6 beyond the range of a double
/// and 11 for a zero that has no counterpart (no distance per volume).
[[nodiscard]] Conversion convert(const UnitGroup& group, int from, int to, double x, Sizes sizes = Sizes::Table);

/// Applies a kept factor to `x`. Raises 6 and 11.
[[nodiscard]] double applyFactor(double x, double factor, bool divides);

/// Whether unit `unit` of a group is a distance per volume ("mpg"), not a volume per distance.
[[nodiscard]] bool distancePerVolume(const UnitGroup& group, int unit);

/// By how much the stated factor is off, as a part of the exact one; 0 where there is no factor.
[[nodiscard]] double deviation(const Unit& unit);
/// Deviations beyond this are told to the user.
inline constexpr double kTellDeviation = 1e-6;

/// What the tape and the keys call a unit, eight-bit as captions are.
[[nodiscard]] std::string_view fromLabel(const UnitGroup& group, int unit);
[[nodiscard]] std::string_view toLabel(const UnitGroup& group, int unit);
/// The label of a conversion's tape line, in the tape's own character set: " inch to mm ".
[[nodiscard]] std::string conversionLabel(const UnitGroup& group, int from, int to);
/// `caption` in the tape's character set; a raised 3, which it does not have, becomes "^3".
[[nodiscard]] std::string tapeText(std::string_view caption);

}  // namespace tallyforge
