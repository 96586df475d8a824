// SPDX-License-Identifier: GPL-3.0-or-later
//
// What a line of a key script is made of: words, modifiers in front of a name, characters.
#pragma once

#include <cstdint>
#include <string_view>

namespace tallyforge {

/// Takes "Shift+", "Ctrl+" and "Alt+" from the head of `text`.
[[nodiscard]] std::uint8_t takeModifiers(std::string_view& text);

/// Takes the next word from the head of `rest`; empty where there is none.
[[nodiscard]] std::string_view takeWord(std::string_view& rest);

/// What a key with modifiers types: Ctrl with a letter its control character, Alt nothing (0).
[[nodiscard]] int characterUnder(int character, std::uint8_t shift);

}  // namespace tallyforge
