// SPDX-License-Identifier: GPL-3.0-or-later
//
// Limits of the word in which numbers of a base are kept.
#pragma once

namespace tallyforge {

/// Least word size, in bits, that byte shifts and rotations make sense for.
inline constexpr int kSmallestByteWord = 9;

}  // namespace tallyforge
