// SPDX-License-Identifier: GPL-3.0-or-later
//
// Diameter of a bundle of equal strands.
#pragma once

#include "electrical/lookup_table.h"
#include "electrical/wire_build.h"

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

/// Y is the count of strands; X a strand's diameter, with Shift its gauge as magnet wire of
/// `build`, with Ctrl that of PTFE insulated wire, with Alt its size as a machine screw.
void bundleDiameter(Engine& calc, WireBuild build);

}  // namespace tallyforge
