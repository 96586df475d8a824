// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the keys of the Convert keypad remember: the conversion that a plain click applies, and the
// pair of units that the key's dialog shows next time.
#pragma once

#include "dialogs/conversion.h"
#include "engine/engine_state.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

namespace tallyforge {

struct ConversionMemory {
    template <typename Value>
    using PerKey = std::array<Value, kBankKeys>;

    PerKey<double> ConversionFactors{};        ///< 0 means no stored factor
    PerKey<std::string> ConversionLabels;      ///< tape label of the stored conversion
    PerKey<std::string> ConversionCaptions;    ///< what the key reads while one is stored
    PerKey<std::string> warnings;              ///< for the key's tip: a factor that is off
    PerKey<bool> divides{};                    ///< the factor is divided by X
    PerKey<Sizes> sizes{};                     ///< "Table" or "Exact", as last chosen in the dialog
    PerKey<std::optional<UnitPair>> former{};  ///< the pair that was converted last
    std::uint32_t ConversionMask = 0;          ///< bit k: key k holds a conversion
    bool TemperatureHeld = false;              ///< a temperature has no factor, so it has a flag
    std::optional<int> marked;                 ///< the key of the last conversion, for F10

    [[nodiscard]] bool holds(int key) const { return (ConversionMask >> key & 1U) != 0; }
    /// Stores a conversion with the key and marks the key. Keys 0 to 2 are never marked.
    void keep(int key, double factor, std::string_view label, std::string_view caption);
    /// The same for a pair of units of `table`; `decimal` is the locale's, for warnings.
    void keep(const ConversionTable& table, const UnitPair& pair, Sizes chosen, const Conversion& result, char decimal);
    /// Sets the marker on the key, takes it from all others, and sets the key's bit.
    void MarkConversionKey(int key);
    /// Forgets what is in force; former pairs and "Exact" stay with the dialogs.
    void clear();
};

}  // namespace tallyforge
