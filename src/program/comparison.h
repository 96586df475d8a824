// SPDX-License-Identifier: GPL-3.0-or-later
//
// How an "if" compares two numbers: with a tolerance of their last digits.
#pragma once

#include <string_view>

namespace tallyforge {

/// Whether `left op right` holds; `op` is "=", "<>", "<" or ">". Raises 6 for any other operator and
/// where a product leaves the range of a double.
[[nodiscard]] bool comparisonHolds(double left, std::string_view op, double right);

}  // namespace tallyforge
