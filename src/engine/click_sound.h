// SPDX-License-Identifier: GPL-3.0-or-later
//
// The soft click that says a register was stored.
#pragma once

#include <cstdint>
#include <span>

namespace tallyforge {

/// A WAVE file in memory: 8 bits, mono, 11025 Hz, 60 ms of a decaying tone.
[[nodiscard]] std::span<const std::uint8_t> clickSound();

}  // namespace tallyforge
