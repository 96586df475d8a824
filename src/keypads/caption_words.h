// SPDX-License-Identifier: GPL-3.0-or-later
//
// What a caption of the bank means, in words, for the name line and for a listener.
#pragma once

#include "engine/engine_state.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace tallyforge {

/// The words for key `key` of `keypad` under `mask`, where it reads `caption` (UTF-8); empty where the
/// key has no meaning.
[[nodiscard]] std::string keyWords(Keypad keypad, int key, std::uint8_t mask, std::string_view caption);

}  // namespace tallyforge
