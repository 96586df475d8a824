// SPDX-License-Identifier: GPL-3.0-or-later
//
// Diameter of a bundle of equal strands.
#pragma once

#include "electrical/lookup_table.h"
#include "electrical/wire_build.h"

#include <cstdint>
#include <optional>

namespace tallyforge {

class Engine;

/// Bundle diameter over strand diameter, by count; between the rows of the larger counts it runs
/// straight.
extern const LookupTable kBundleFactors;
/// Largest diameters of PTFE insulated hook-up wire, inches, even AWG 8 to 28.
extern const LookupTable kPtfeDiameters;

/// Bundle diameter of `count` strands over that of one; empty but for whole counts of 1 to 1000.
[[nodiscard]] std::optional<double> bundleFactor(double count);

/// What X says of a strand: its diameter, its gauge as magnet wire, that of PTFE insulated wire, its
/// size as a machine screw.
enum class Strand : std::uint8_t { Diameter, MagnetGauge, InsulatedGauge, ScrewSize };
/// Y is the count of strands, X a strand; `build` is that of the magnet wire.
void bundleDiameter(Engine& calc, WireBuild build, Strand strand);

}  // namespace tallyforge
