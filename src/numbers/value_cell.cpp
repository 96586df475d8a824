// SPDX-License-Identifier: GPL-3.0-or-later
#include "numbers/value_cell.h"

#include "numbers/number_format.h"

#include <array>
#include <charconv>

namespace tallyforge {

namespace {

/// Significant digits of a single.
constexpr int kSingleDigits = 7;

std::string singleText(float value, char decimal) {
    std::array<char, 32> text{};
    const auto result =
        std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::general, kSingleDigits);
    // Seven digits of a single are a number that a double's text shows in full.
    double shown = 0.0;
    std::from_chars(text.data(), result.ptr, shown);
    return plainText(shown, decimal);
}

}  // namespace

double ValueCell::number(char decimal) const {
    if (const auto* value = std::get_if<double>(&held_)) {
        return *value;
    }
    if (const auto* value = std::get_if<std::string>(&held_)) {
        return readNumber(*value, decimal);
    }
    return tryNumber(decimal).value_or(0.0);
}

std::optional<double> ValueCell::readAny(char decimal) const {
    struct Reader {
        char decimal;
        std::optional<double> operator()(std::monostate /*empty*/) const { return 0.0; }
        std::optional<double> operator()(std::int16_t value) const { return value; }
        std::optional<double> operator()(float value) const { return value; }
        std::optional<double> operator()(double value) const { return value; }
        std::optional<double> operator()(bool value) const { return value ? -1.0 : 0.0; }
        std::optional<double> operator()(const std::string& value) const { return tryReadNumber(value, decimal); }
    };
    return std::visit(Reader{decimal}, held_);
}

std::string ValueCell::text(char decimal) const {
    struct Printer {
        char decimal;
        std::string operator()(std::monostate /*empty*/) const { return {}; }
        std::string operator()(std::int16_t value) const { return std::to_string(value); }
        std::string operator()(float value) const { return singleText(value, decimal); }
        std::string operator()(double value) const { return plainText(value, decimal); }
        std::string operator()(bool value) const { return value ? "True" : "False"; }
        std::string operator()(const std::string& value) const { return value; }
    };
    return std::visit(Printer{decimal}, held_);
}

}  // namespace tallyforge
