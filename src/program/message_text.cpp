// SPDX-License-Identifier: GPL-3.0-or-later
#include "program/message_text.h"

#include <algorithm>

namespace tallyforge {

namespace {

std::string withLineBreaks(std::string_view text) {
    std::string out{text};
    std::replace(out.begin(), out.end(), '\\', '\n');
    return out;
}

/// Each backslash becomes a line break and takes the character before it along.
std::string withBreaksForPairs(std::string_view text) {
    std::string out;
    for (const char character : text) {
        if (character != '\\') {
            out += character;
            continue;
        }
        if (!out.empty() && out.back() != '\n') {
            out.pop_back();
        }
        out += '\n';
    }
    return out;
}

void replaceAll(std::string& text, std::size_t from, char mark, const std::string& by) {
    for (std::size_t at = text.find(mark, from); at != std::string::npos; at = text.find(mark, at + by.size())) {
        text.replace(at, 1, by);
    }
}

}  // namespace

std::string messageText(std::string_view whole, std::string_view lastLine, const std::function<std::string()>& showX,
                        const std::function<std::string()>& showY) {
    constexpr std::string_view kWithNumbers = "\\\\";
    if (!whole.starts_with(kWithNumbers)) {
        return withLineBreaks(whole.substr(1));
    }
    std::string text{whole.substr(kWithNumbers.size())};
    const std::size_t mark = text.find('{');
    if (mark == std::string::npos) {
        // Kept as it always was: without a number only the last line of a text that goes on is shown,
        // and a text of one line opens with a line break.
        return withLineBreaks(lastLine.substr(std::min<std::size_t>(1, lastLine.size())));
    }
    const std::string x = showX();
    text.replace(mark, 1, x);
    if (text.find('}', mark + x.size()) != std::string::npos) {
        replaceAll(text, mark + x.size(), '}', showY());
    }
    return withBreaksForPairs(text);
}

}  // namespace tallyforge
