// SPDX-License-Identifier: GPL-3.0-or-later
//
// The units that the user has chosen for the keys and dialogs of engineering and magnetics: five
// words with one bit a choice. The ranges of bits and what each stands for: dialogs/unit_tables.h;
// where the words are kept between two runs: records/settings_file.h.
#pragma once

#include <cstdint>

namespace tallyforge {

struct UnitWords {
    std::uint32_t UnitsWordMag = 0;   ///< magnetic field and flux
    std::uint32_t UnitsWordLmu = 0;   ///< permeability, temperature rise, mean turn
    std::uint32_t UnitsWordLc = 0;    ///< resonance and circuits
    std::uint32_t UnitsWordOhm = 0;   ///< Ohm's law, resistivity, supply capacitor
    std::uint32_t UnitsWordCore = 0;  ///< cores, inductance and Q

    friend bool operator==(const UnitWords&, const UnitWords&) = default;
};

/// One of the five.
using UnitsWord = std::uint32_t UnitWords::*;

}  // namespace tallyforge
