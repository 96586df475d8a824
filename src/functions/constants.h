// SPDX-License-Identifier: GPL-3.0-or-later
//
// The mathematical constants that keys put on the stack. Those of the circle come from fifteen
// digits of pi.
#pragma once

#include <cstdint>

namespace tallyforge {

class Engine;

enum class Constant : std::uint8_t {
    Pi,
    OneOverPi,
    PiSquared,
    OneOverPiSquared,
    CubeRootOfPi,
    OneOverCubeRootOfPi,
    TwoPi,
    OneOverTwoPi,
    E,
    OneOverE,
    ESquared,
    OneOverESquared,
    RootOfE,
    OneOverRootOfE,
    RootOf2,
    OneOverRootOf2,
    RootOf3,
    OneOverRootOf3,
    RootOf10,
    OneOverRootOf10,
    RootOfPi,
    OneOverRootOfPi,
    RootOfTwoPi,
    OneOverRootOfTwoPi,
    RootOfHalfPi,
    OneOverRootOfHalfPi,
};

/// Pushes the constant under its label.
void constant(Engine& calc, Constant which);

}  // namespace tallyforge
