// SPDX-License-Identifier: GPL-3.0-or-later
//
// Keys that a key script names, with what they type.
#pragma once

#include "platform/key_codes.h"

#include <array>
#include <string_view>

namespace tallyforge {

struct NamedKey {
    std::string_view name;
    int keyCode;
    int character;
};
inline constexpr std::array<NamedKey, 25> kNamedKeys{{
    {"Enter", kKeyEnter, 13},  {"Esc", kKeyEscape, 27},   {"Backspace", kKeyBackspace, 8},
    {"Delete", kKeyDelete, 0}, {"Insert", kKeyInsert, 0}, {"Home", kKeyHome, 0},
    {"End", kKeyEnd, 0},       {"Left", kKeyLeft, 0},     {"Right", kKeyRight, 0},
    {"Up", kKeyUp, 0},         {"Down", kKeyDown, 0},     {"Tab", kKeyTab, 9},
    {"Space", kKeySpace, ' '}, {"F1", kKeyF1, 0},         {"F2", kKeyF1 + 1, 0},
    {"F3", kKeyF1 + 2, 0},     {"F4", kKeyF1 + 3, 0},     {"F5", kKeyF1 + 4, 0},
    {"F6", kKeyF1 + 5, 0},     {"F7", kKeyF1 + 6, 0},     {"F8", kKeyF1 + 7, 0},
    {"F9", kKeyF9, 0},         {"F10", kKeyF10, 0},       {"F11", kKeyF11, 0},
    {"F12", kKeyF12, 0},
}};

}  // namespace tallyforge
