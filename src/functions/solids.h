// SPDX-License-Identifier: GPL-3.0-or-later
//
// Volumes and areas of simple solids from diameters and heights.
#pragma once

namespace tallyforge {

class Engine;

/// The quantity that ModifierMask names. X is the height, Y a diameter; for the frustum Y is the
/// bottom diameter and the element under it the top one. The sphere and the circle take X as
/// their diameter. Lengths in any one unit. Raises 6, 13.
void solid(Engine& calc);

}  // namespace tallyforge
