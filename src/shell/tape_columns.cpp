// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/tape_columns.h"

#include <algorithm>

namespace tallyforge {

namespace {

bool isDigit(char character) {
    return character >= '0' && character <= '9';
}

std::string_view withoutBlanksBehind(std::string_view text) {
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

/// Whether `rest`, behind a blank, goes on with a group of exactly three digits.
bool goesOnWithAGroup(std::string_view rest) {
    constexpr std::size_t kGroup = 3;
    const auto end = std::find_if_not(rest.begin(), rest.end(), isDigit);
    return end - rest.begin() == static_cast<std::ptrdiff_t>(kGroup) && rest.find('.') == rest.npos;
}

/// Whether `head` ends with what a grouped number may begin with or go on with.
bool endsWithAGroup(std::string_view head) {
    const std::size_t blank = head.rfind(' ');
    std::string_view last = blank == head.npos ? head : head.substr(blank + 1);
    if (last.starts_with('-')) {
        last.remove_prefix(1);
    }
    constexpr std::size_t kLongest = 3;
    return !last.empty() && last.size() <= kLongest && std::all_of(last.begin(), last.end(), isDigit);
}

}  // namespace

TapeColumns columnsOf(std::string_view tapeLine) {
    const std::string_view line = withoutBlanksBehind(tapeLine);
    std::size_t blank = line.rfind(' ');
    while (blank != line.npos && goesOnWithAGroup(line.substr(blank + 1)) && endsWithAGroup(line.substr(0, blank))) {
        blank = line.substr(0, blank).rfind(' ');
    }
    return blank == line.npos
               ? TapeColumns{.label = {}, .value = line}
               : TapeColumns{.label = withoutBlanksBehind(line.substr(0, blank)), .value = line.substr(blank + 1)};
}

}  // namespace tallyforge
