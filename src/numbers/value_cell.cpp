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

ValueCell::SharedText* ValueCell::shared(std::string text) {
    return std::make_unique<SharedText>(SharedText{.cells = 1, .text = std::move(text)}).release();
}

void ValueCell::forget() {
    const std::unique_ptr<SharedText> last(held_.text);
}

bool ValueCell::equals(const ValueCell& other) const {
    if (kind_ != other.kind_) {
        return false;
    }
    switch (kind_) {
        case Kind::Empty:
            return true;
        case Kind::Integer:
            return held_.integer == other.held_.integer;
        case Kind::Single:
            return held_.single == other.held_.single;
        case Kind::Double:
            return held_.number == other.held_.number;
        case Kind::Truth:
            return held_.truth == other.held_.truth;
        case Kind::Text:
            return held_.text->text == other.held_.text->text;
    }
    return false;
}

double ValueCell::readNumber(char decimal) const {
    if (isText()) {
        return tallyforge::readNumber(held_.text->text, decimal);
    }
    return tryNumber(decimal).value_or(0.0);
}

std::optional<double> ValueCell::readAny(char decimal) const {
    switch (kind_) {
        case Kind::Empty:
            break;
        case Kind::Integer:
            return held_.integer;
        case Kind::Single:
            return held_.single;
        case Kind::Double:
            return held_.number;
        case Kind::Truth:
            return held_.truth ? -1.0 : 0.0;
        case Kind::Text:
            return tryReadNumber(held_.text->text, decimal);
    }
    return 0.0;
}

std::string ValueCell::text(char decimal) const {
    switch (kind_) {
        case Kind::Empty:
            break;
        case Kind::Integer:
            return std::to_string(held_.integer);
        case Kind::Single:
            return singleText(held_.single, decimal);
        case Kind::Double:
            return plainText(held_.number, decimal);
        case Kind::Truth:
            return held_.truth ? "True" : "False";
        case Kind::Text:
            return held_.text->text;
    }
    return {};
}

}  // namespace tallyforge
