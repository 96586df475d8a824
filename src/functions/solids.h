// SPDX-License-Identifier: GPL-3.0-or-later
//
// Volumes and areas of simple solids from diameters and heights.
#pragma once

#include <cstdint>

namespace tallyforge {

class Engine;

enum class Solid : std::uint8_t {
    CylinderVolume,
    FrustumVolume,
    ConeVolume,
    ConeArea,
    SphereVolume,
    SphereArea,
    CircleArea,
    CirclePerimeter,
};

/// The volume, area or length. X is the height, Y a diameter; for the frustum Y is the
/// bottom diameter and the element under it the top one. The sphere and the circle take X as
/// their diameter. Lengths in any one unit. Raises 6, 13.
void solid(Engine& calc, Solid which);

}  // namespace tallyforge
