// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktops/headless/script_words.h"

#include "platform/form.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <utility>

namespace tallyforge {

std::uint8_t takeModifiers(std::string_view& text) {
    constexpr std::array<std::pair<std::string_view, std::uint8_t>, 3> kNames{
        {{"Shift", kShift}, {"Ctrl", kCtrl}, {"Alt", kAlt}}};
    std::uint8_t mask = 0;
    for (bool found = true; found;) {
        found = false;
        for (const auto& [name, bit] : kNames) {
            if (text.starts_with(name) && text.size() > name.size() && text[name.size()] == '+') {
                mask = static_cast<std::uint8_t>(mask | bit);
                text.remove_prefix(name.size() + 1);
                found = true;
            }
        }
    }
    return mask;
}

std::string_view takeWord(std::string_view& rest) {
    const auto first = rest.find_first_not_of(' ');
    rest.remove_prefix(first == rest.npos ? rest.size() : first);
    const auto end = std::min(rest.find(' '), rest.size());
    const std::string_view word = rest.substr(0, end);
    rest.remove_prefix(end);
    return word;
}

int characterUnder(int character, std::uint8_t shift) {
    if ((shift & kAlt) != 0) {
        return 0;
    }
    if ((shift & kCtrl) != 0) {
        const int letter = std::toupper(character);
        return letter >= 'A' && letter <= 'Z' ? letter - 'A' + 1 : 0;
    }
    return character;
}

}  // namespace tallyforge
