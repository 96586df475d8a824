// SPDX-License-Identifier: GPL-3.0-or-later
#include "bases/base_number.h"

#include "numbers/failure.h"
#include "numbers/number_format.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>

namespace tallyforge {

namespace {

constexpr std::string_view kDigits = "0123456789ABCDEF";
constexpr std::size_t kWordBits = 64;

std::string_view withoutLeadingZeros(std::string_view digits) {
    const auto first = digits.find_first_not_of('0');
    return first == digits.npos ? std::string_view{} : digits.substr(first);
}

/// A double's whole value, exactly.
std::uint64_t wholeOfDouble(double value) {
    constexpr double kBeyond = 18446744073709551616.0;
    if (value >= kBeyond) {
        throw Failure{FailureNumber::Overflow};
    }
    return value <= 0.0 ? 0 : static_cast<std::uint64_t>(value);
}

/// Half to even on a double that has a fraction.
double roundedHalfEven(double value) {
    const double below = std::floor(value);
    const double rest = value - below;
    const bool up = rest > 0.5 || (rest == 0.5 && std::fmod(below, 2.0) != 0.0);
    return up ? below + 1.0 : below;
}

/// Digits of a decimal text and how many of them stand before the point.
struct DecimalText {
    std::string digits;
    int whole = 0;
};

DecimalText takeApart(std::string_view number, char decimal) {
    DecimalText parts;
    const auto mark = std::min(number.find_first_of("eE"), number.size());
    bool behindPoint = false;
    for (const char character : number.substr(0, mark)) {
        behindPoint = behindPoint || character == decimal;
        if (character >= '0' && character <= '9') {
            parts.digits += character;
            parts.whole += behindPoint ? 0 : 1;
        }
    }
    std::string_view power = number.substr(std::min(mark + 1, number.size()));
    power.remove_prefix(power.starts_with('+') ? 1 : 0);
    int exponent = 0;
    std::from_chars(power.data(), power.data() + power.size(), exponent);
    parts.whole += exponent;
    return parts;
}

/// The whole value of a decimal text above 0, by its digits: more may have been typed than a double
/// holds. Half to even, half up where `halfUp`.
std::uint64_t wholeOfText(const DecimalText& number, bool halfUp) {
    if (number.whole < 0) {
        return 0;
    }
    const auto whole = static_cast<std::size_t>(number.whole);
    std::string digits = "0" + number.digits.substr(0, whole);
    digits.resize(whole + 1, '0');
    const std::uint64_t value = readDigits(digits, kDecimal);
    if (whole >= number.digits.size() || number.digits[whole] < '5') {
        return value;
    }
    const bool tie =
        number.digits[whole] == '5' && number.digits.find_first_not_of('0', whole + 1) == std::string::npos;
    if (tie && !halfUp && value % 2 == 0) {
        return value;
    }
    if (value == std::numeric_limits<std::uint64_t>::max()) {
        throw Failure{FailureNumber::Overflow};
    }
    return value + 1;
}

std::uint64_t wholeOfPlain(const ValueCell& value, char decimal) {
    constexpr std::size_t kRoundedUpLength = 16;
    const double number = value.number(decimal);
    const std::string shown = value.text(decimal);
    const bool halfUp = shown.size() == kRoundedUpLength && shown.find(decimal) != std::string::npos;
    if (number <= 0.0) {
        return 0;
    }
    if (value.isText()) {
        return wholeOfText(takeApart(shown, decimal), halfUp);
    }
    return wholeOfDouble(halfUp ? std::floor(number + 0.5) : roundedHalfEven(number));
}

}  // namespace

unsigned radixOf(char letter) {
    switch (letter) {
        case kBinary:
            return 2;
        case kDecimal:
            return 10;
        case kHexadecimal:
            return 16;
        case kOctal:
            return 8;
        default:
            return 0;
    }
}

std::uint64_t readDigits(std::string_view digits, char letter) {
    const unsigned radix = radixOf(letter);
    if (digits.empty() || radix == 0) {
        throw Failure{FailureNumber::TypeMismatch};
    }
    if (letter == kBinary && withoutLeadingZeros(digits).size() > kWordBits) {
        throw Failure{FailureNumber::BaseRange};
    }
    std::uint64_t value = 0;
    for (const char digit : digits) {
        const auto place = kDigits.substr(0, radix).find(digit);
        if (place == std::string_view::npos) {
            throw Failure{FailureNumber::TypeMismatch};
        }
        if (value > (std::numeric_limits<std::uint64_t>::max() - place) / radix) {
            throw Failure{FailureNumber::Overflow};
        }
        value = value * radix + place;
    }
    return value;
}

std::string writeDigits(std::uint64_t value, char letter) {
    const unsigned radix = radixOf(letter);
    if (radix == 0) {
        throw Failure{FailureNumber::TypeMismatch};
    }
    std::string reversed;
    do {
        reversed += kDigits[value % radix];
        value /= radix;
    } while (value != 0);
    return {reversed.rbegin(), reversed.rend()};
}

std::string Dec2Hex(std::uint64_t whole) {
    return writeDigits(whole, kHexadecimal);
}
std::uint64_t Hex2Dec(std::string_view hex) {
    return readDigits(hex, kHexadecimal);
}
std::string Hex2Bin(std::string_view hex) {
    return writeDigits(readDigits(hex, kHexadecimal), kBinary);
}
std::string Bin2Hex(std::string_view bits) {
    return writeDigits(readDigits(bits, kBinary), kHexadecimal);
}
std::string Bin2Dec(std::string_view bits) {
    return writeDigits(readDigits(bits, kBinary), kDecimal);
}
std::string Oct2Bin(std::string_view octal) {
    return writeDigits(readDigits(octal, kOctal), kBinary);
}
std::string Dec2Oct(std::string_view decimal) {
    return writeDigits(readDigits(decimal, kDecimal), kOctal);
}

std::string ConvertBin(std::string_view taggedText) {
    if (taggedText.size() < 2) {
        throw Failure{FailureNumber::TypeMismatch};
    }
    return writeDigits(readDigits(taggedText.substr(1, taggedText.size() - 2), taggedText.back()), kDecimal);
}

bool ExceedsWord(std::string_view decimalText) {
    if (decimalText.starts_with('#')) {
        return false;
    }
    constexpr std::string_view kLargest = "18446744073709551615";
    const std::string_view digits = withoutLeadingZeros(decimalText);
    return digits.size() > kLargest.size() || (digits.size() == kLargest.size() && digits > kLargest);
}

std::string Real2Bin(const ValueCell& value, char letter, char decimal) {
    return writeDigits(wholeOfPlain(value, decimal), letter);
}

std::string tagged(std::uint64_t value, char letter) {
    return "#" + writeDigits(value, letter) + letter;
}

char letterOf(const ValueCell& value) {
    return value.isTagged() ? value.textView().back() : '\0';
}

std::uint64_t wholeOf(const ValueCell& value, char decimal) {
    if (!value.isTagged()) {
        return wholeOfPlain(value, decimal);
    }
    const std::string_view text = value.textView();
    return readDigits(text.substr(1, text.size() < 2 ? 0 : text.size() - 2), text.back());
}

std::string cutToWord(std::string_view digits, char letter, int wordSize) {
    const unsigned radix = radixOf(letter);
    const auto leading = digits.find_first_not_of('0');
    if (radix == 0 || digits.find_first_not_of(kDigits.substr(0, radix)) != digits.npos) {
        return std::string(digits);
    }
    if (wordSize >= static_cast<int>(kWordBits)) {
        return leading == digits.npos ? "0" : std::string(digits.substr(leading));
    }
    // What runs over the top of 64 bits lies above the word, too.
    std::uint64_t value = 0;
    for (const char digit : digits) {
        value = value * radix + kDigits.find(digit);
    }
    return writeDigits(value & ((std::uint64_t{1} << wordSize) - 1), letter);
}

}  // namespace tallyforge
