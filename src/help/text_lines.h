// SPDX-License-Identifier: GPL-3.0-or-later
//
// The lines of a text one after the other, for the readers of help pages.
#pragma once

#include <algorithm>
#include <string_view>

namespace tallyforge {

/// `text` without blanks, tabs and carriage returns at its ends.
[[nodiscard]] constexpr std::string_view trimmed(std::string_view text) {
    constexpr std::string_view kBlank = " \t\r";
    const auto first = text.find_first_not_of(kBlank);
    if (first == text.npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(kBlank) + 1 - first);
}

class TextLines {
public:
    explicit TextLines(std::string_view text) : rest_(text) {}
    [[nodiscard]] bool atEnd() const { return rest_.empty(); }
    /// The next line without its end.
    [[nodiscard]] std::string_view peek() const {
        std::string_view line = rest_.substr(0, lengthOfLine());
        if (line.ends_with('\r')) {
            line.remove_suffix(1);
        }
        return line;
    }
    std::string_view take() {
        const std::string_view line = peek();
        rest_.remove_prefix(std::min(lengthOfLine() + 1, rest_.size()));
        ++number_;
        return line;
    }
    /// Lines that were taken.
    [[nodiscard]] int number() const { return number_; }

private:
    [[nodiscard]] std::size_t lengthOfLine() const { return std::min(rest_.find('\n'), rest_.size()); }

    std::string_view rest_;
    int number_ = 0;
};

}  // namespace tallyforge
