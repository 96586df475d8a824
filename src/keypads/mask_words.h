// SPDX-License-Identifier: GPL-3.0-or-later
//
// What keys mean in words, where that goes by key and mask: captions of the Engineering, Magnetics
// and Tables keypads are short names of quantities that many keys share ("n", "F", "Ae").
#pragma once

#include "engine/engine_state.h"

#include <cstdint>
#include <string>

namespace tallyforge {

/// The words for key `key` (0 to 23) of `keypad` under `mask` (0 to 7), UTF-8; empty for a keypad
/// without such rows, and where the key has no meaning under the mask.
[[nodiscard]] std::string maskWords(Keypad keypad, int key, std::uint8_t mask);

}  // namespace tallyforge
