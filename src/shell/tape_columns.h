// SPDX-License-Identifier: GPL-3.0-or-later
//
// A line of the tape, taken apart for paper and for other programs.
#pragma once

#include <string_view>

namespace tallyforge {

/// A tape line cut at the last blank in front of its value: label, without blanks behind it, and
/// value. A blank that groups a number's digits by three ("1 234,50") is part of the value.
struct TapeColumns {
    std::string_view label;
    std::string_view value;
};

[[nodiscard]] TapeColumns columnsOf(std::string_view tapeLine);

}  // namespace tallyforge
