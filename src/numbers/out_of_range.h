// SPDX-License-Identifier: GPL-3.0-or-later
//
// What every key says of a number beyond the range of a double.
#pragma once

#include "platform/text.h"

#include <string_view>

namespace tallyforge {

inline constexpr std::string_view kOutOfRange = "Number outside of range: ± 1.8e308, & ± 4.9e-324"_t;

}  // namespace tallyforge
