// SPDX-License-Identifier: GPL-3.0-or-later
//
// What every key and dialog says of a number beyond the range of a double, and of a division by 0.
#pragma once

#include "platform/text.h"

#include <string_view>

namespace tallyforge {

inline constexpr std::string_view kOutOfRange = "Number outside of range: ± 1.8e308, & ± 4.9e-324"_t;
inline constexpr std::string_view kDividedByZero = "Division by zero - be sure all variables are defined!";

}  // namespace tallyforge
