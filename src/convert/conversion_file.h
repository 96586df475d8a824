// SPDX-License-Identifier: GPL-3.0-or-later
//
// The memory of the conversion keys as a file of the calculator's own: a line a key, by its units,
// so that labels and factors come from the tables of the program that reads it.
//
//     tallyforge conversions 1
//     15 0 16 12 table held marked
//     end 1
#pragma once

#include "convert/conversion_memory.h"

#include <optional>
#include <string>
#include <string_view>

namespace tallyforge {

/// The file's bytes. What keys hold that is no conversion between two units stays out.
[[nodiscard]] std::string conversionFileText(const ConversionMemory& memory);

/// The memory that `text` describes; empty where it is cut short, or names what there is not.
/// `decimal` is the locale's, for the warnings of the keys.
[[nodiscard]] std::optional<ConversionMemory> readConversionFile(std::string_view text, char decimal);

}  // namespace tallyforge
