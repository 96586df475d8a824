// SPDX-License-Identifier: GPL-3.0-or-later
//
// Machine screws by number, -2 for 000 up to 14: diameters and tap drills.
#pragma once

#include "electrical/lookup_table.h"

#include <optional>

namespace tallyforge {

class Engine;

/// Number of the tap drill by screw and threads, the screw times 100 and its threads per inch:
/// 832 is number 8 with 32 threads. -200, -100 and 0 need no threads.
extern const LookupTable kTapDrills;

/// Diameter in inches of the machine screw `size`, 0.060 + 0.013 n of ASME B1.1: whole sizes from
/// -2 (000) to 14. Empty after the box that says so; X and the stack stay.
[[nodiscard]] std::optional<double> screwDiameter(Engine& calc, double size);

/// X is the screw's number; its diameter in inches.
void machineScrew(Engine& calc);

/// X is the screw's number and behind the point its threads per inch, 10.32; the diameter of the
/// tap drill in inches, with the drill's number in the label.
void machineScrewTap(Engine& calc);

}  // namespace tallyforge
