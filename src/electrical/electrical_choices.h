// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the user has chosen for the electrical keys beside units: it lasts until the program ends.
// The dialogs write it, the keys read it.
#pragma once

#include "electrical/wire_build.h"

#include <cstddef>
#include <optional>

namespace tallyforge {

struct ElectricalChoices {
    std::optional<std::size_t> ferrite{};           ///< one of kFerriteMaterials
    std::optional<std::size_t> coilPermeability{};  ///< one of kCoilPermeabilities
    double distributedPicofarads = 0.0;             ///< of the coil whose Q is asked
    WireBuild build = WireBuild::Single;
};

}  // namespace tallyforge
