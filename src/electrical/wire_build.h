// SPDX-License-Identifier: GPL-3.0-or-later
//
// The insulation of magnet wire that the wire keys go by: how many coats of film. The dialog of the
// wire key chooses it, the tables of the wire keys read it; it lasts until the program ends.
#pragma once

#include <cstdint>

namespace tallyforge {

enum class WireBuild : std::uint8_t { Single, Heavy, Triple, Quad };

}  // namespace tallyforge
