// SPDX-License-Identifier: GPL-3.0-or-later
//
// The circle constants that the calculator computes with: fifteen digits, no more. sin(180
// degrees) is not quite 0 for that reason.
#pragma once

namespace tallyforge {

inline constexpr double kPi = 3.14159265358979;
inline constexpr double kTwoPi = 6.28318530717958;
inline constexpr double kFourPi = 12.56637061435916;

}  // namespace tallyforge
