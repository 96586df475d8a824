// SPDX-License-Identifier: GPL-3.0-or-later
//
// Widths of the tape list, in twips.
#pragma once

namespace tallyforge {

/// While filler lines are left.
inline constexpr int kNarrowTape = 2845;
/// With a scroll bar beside the lines.
inline constexpr int kWideTape = 3100;

}  // namespace tallyforge
