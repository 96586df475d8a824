// SPDX-License-Identifier: GPL-3.0-or-later
//
// The soft click that says a register was stored: the bytes of data/sound/click.wav.
#pragma once

#include <cstdint>
#include <span>

namespace tallyforge {

/// A WAVE file in memory.
[[nodiscard]] std::span<const std::uint8_t> clickSound();

}  // namespace tallyforge
