// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/loose_number.h"

#include "platform/text.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <optional>
#include <utility>

namespace tallyforge {

namespace {

bool isDigit(char character) {
    return character >= '0' && character <= '9';
}

/// A number cut into what it consists of.
struct Parts {
    std::string sign;
    std::string digits;    ///< with the points and commas that stand in it, without group marks
    std::string exponent;  ///< "e-3", or nothing
    std::string unit;
};

std::optional<Parts> parted(std::string_view text) {
    constexpr std::string_view kBlank = " \t\r\xA0";
    constexpr std::string_view kGroupMarks = " \xA0'_?";
    text = text.substr(
        0, text.find('\n', text.find_first_not_of(" \t\r\n") == text.npos ? 0 : text.find_first_not_of(" \t\r\n")));
    const auto first = text.find_first_not_of(" \t\r\n\xA0");
    if (first == text.npos) {
        return std::nullopt;
    }
    text.remove_prefix(first);
    Parts parts;
    if (text.front() == '-' || text.front() == '?' || text.front() == '+') {
        parts.sign = text.front() == '+' ? "" : "-";
        text.remove_prefix(1);
    }
    std::size_t at = 0;
    for (; at < text.size(); ++at) {
        const bool mark = kGroupMarks.find(text[at]) != kGroupMarks.npos;
        if (isDigit(text[at]) || text[at] == '.' || text[at] == ',') {
            parts.digits += text[at];
        } else if (!mark || at == 0 || !isDigit(text[at - 1]) || at + 1 >= text.size() || !isDigit(text[at + 1])) {
            break;
        }
    }
    std::string_view rest = text.substr(at);
    if (!rest.empty() && (rest.front() == 'e' || rest.front() == 'E')) {
        std::size_t end = 1 + (rest.size() > 1 && (rest[1] == '-' || rest[1] == '+') ? 1U : 0U);
        const std::size_t digitsFrom = end;
        while (end < rest.size() && isDigit(rest[end])) {
            ++end;
        }
        if (end > digitsFrom) {
            parts.exponent = rest.substr(0, end);
            parts.exponent.front() = 'e';
            rest.remove_prefix(end);
        }
    }
    const auto unit = rest.find_first_not_of(kBlank);
    parts.unit = unit == rest.npos ? "" : rest.substr(unit, rest.find_last_not_of(kBlank) - unit + 1);
    const bool unitOfLetters = std::none_of(parts.unit.begin(), parts.unit.end(), isDigit);
    const bool number = std::any_of(parts.digits.begin(), parts.digits.end(), isDigit);
    return number && unitOfLetters ? std::optional(std::move(parts)) : std::nullopt;
}

/// Digits with each `mark` taken out, where it stands before groups of three; nothing otherwise.
std::optional<std::string> ungrouped(std::string_view digits, char mark, std::size_t end) {
    std::string out;
    std::size_t group = 0;
    bool grouped = false;
    for (std::size_t i = 0; i < end; ++i) {
        if (digits[i] != mark) {
            out += digits[i];
            ++group;
            continue;
        }
        if (group == 0 || group > 3 || (grouped && group != 3)) {
            return std::nullopt;
        }
        grouped = true;
        group = 0;
    }
    return !grouped || group == 3 ? std::optional(out) : std::nullopt;
}

/// What the points and commas among the digits may mean.
std::vector<std::string> digitReadings(std::string_view digits, char decimal) {
    const auto count = [digits](char mark) { return std::count(digits.begin(), digits.end(), mark); };
    const auto withDecimal = [&](const std::string& whole, std::size_t at) {
        return whole + decimal + std::string(digits.substr(at + 1));
    };
    const auto points = count('.');
    const auto commas = count(',');
    if (points + commas == 0) {
        return {std::string(digits)};
    }
    const auto last = digits.find_last_of(".,");
    const char mark = digits[last];
    if (points != 0 && commas != 0) {
        const auto whole = ungrouped(digits, mark == '.' ? ',' : '.', last);
        return count(mark) == 1 && whole ? std::vector{withDecimal(*whole, last)} : std::vector<std::string>{};
    }
    const auto whole = ungrouped(digits, mark, digits.size());
    std::vector<std::string> readings;
    if (whole && (mark != decimal || points + commas > 1) && digits.front() != '0') {
        readings.push_back(*whole);
    }
    if (points + commas == 1) {
        readings.push_back(withDecimal(std::string(digits.substr(0, last)), last));
    }
    return readings;
}

struct Prefix {
    char letter;
    std::string_view exponent;
};
constexpr std::array<Prefix, 9> kPrefixes{{{'p', "e-12"},
                                           {'n', "e-9"},
                                           {'u', "e-6"},
                                           {'\xB5', "e-6"},
                                           {'m', "e-3"},
                                           {'k', "e3"},
                                           {'M', "e6"},
                                           {'G', "e9"},
                                           {'T', "e12"}}};
constexpr std::array<std::string_view, 19> kUnits{"Hz", "V", "A", "W", "F", "H", "Ohm", "ohm", "Ohms", "ohms",
                                                  "s",  "m", "g", "T", "J", "N", "Pa",  "S",   "?"};

bool isUnit(std::string_view text) {
    return std::find(kUnits.begin(), kUnits.end(), text) != kUnits.end();
}

/// Exponents that a unit may stand for: "" for a plain unit, "e3" for kHz, both for m.
std::vector<std::string_view> scales(std::string_view unit) {
    std::vector<std::string_view> found;
    const auto prefix = std::find_if(kPrefixes.begin(), kPrefixes.end(),
                                     [&](const Prefix& row) { return !unit.empty() && row.letter == unit.front(); });
    if (prefix != kPrefixes.end() && (unit.size() == 1 || isUnit(unit.substr(1)))) {
        found.push_back(prefix->exponent);
    }
    if (found.empty() || isUnit(unit)) {
        found.emplace_back("");
    }
    return found;
}

}  // namespace

std::vector<std::string> looseReadings(std::string_view text, char decimal) {
    const std::optional<Parts> parts = parted(text);
    if (!parts) {
        return {};
    }
    std::vector<std::string> readings;
    for (const std::string& digits : digitReadings(parts->digits, decimal)) {
        for (const std::string_view scale : scales(parts->unit)) {
            if (parts->exponent.empty() || scale.empty()) {
                readings.push_back(parts->sign + digits + parts->exponent + std::string(scale));
            }
        }
    }
    return readings;
}

}  // namespace tallyforge
