// SPDX-License-Identifier: GPL-3.0-or-later
#include "numbers/number_format.h"

#include "numbers/decimal_digits.h"
#include "numbers/failure.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <limits>

namespace tallyforge {

namespace {

enum class Reading { Number, NoNumber, OutOfRange };

bool isDigit(char character) {
    return character >= '0' && character <= '9';
}

std::string_view withoutBlanks(std::string_view text) {
    const auto first = text.find_first_not_of(' ');
    return first == text.npos ? std::string_view{} : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

/// Length of the run of digits at the head of `text`.
std::size_t digitRun(std::string_view text) {
    return static_cast<std::size_t>(std::find_if_not(text.begin(), text.end(), isDigit) - text.begin());
}

/// True where `text` is an exponent as a whole: "e", sign, digits. An empty text is one, too.
bool isExponent(std::string_view text) {
    if (text.empty()) {
        return true;
    }
    if (text.front() != 'e' && text.front() != 'E') {
        return false;
    }
    text.remove_prefix(1);
    if (!text.empty() && (text.front() == '+' || text.front() == '-')) {
        text.remove_prefix(1);
    }
    return !text.empty() && digitRun(text) == text.size();
}

Reading scan(std::string_view text, char decimal, double& value) {
    text = withoutBlanks(text);
    if (text.starts_with('+')) {
        text.remove_prefix(1);
        if (text.starts_with('-')) {
            return Reading::NoNumber;
        }
    }
    std::string_view rest = text.starts_with('-') ? text.substr(1) : text;
    const std::size_t whole = digitRun(rest);
    rest.remove_prefix(whole);
    std::size_t fraction = 0;
    const bool hasPoint = rest.starts_with(decimal);
    if (hasPoint) {
        rest.remove_prefix(1);
        fraction = digitRun(rest);
        rest.remove_prefix(fraction);
    }
    if (whole + fraction == 0 || !isExponent(rest)) {
        return Reading::NoNumber;
    }
    std::string plain;
    if (hasPoint && decimal != '.') {
        plain = text;
        std::replace(plain.begin(), plain.end(), decimal, '.');
        text = plain;
    }
    const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
    return result.ec == std::errc::result_out_of_range ? Reading::OutOfRange : Reading::Number;
}

void appendExponent(std::string& out, int exponent) {
    out += exponent < 0 ? "e-" : "e+";
    const int size = std::abs(exponent);
    if (size < 10) {
        out += '0';
    }
    out += std::to_string(size);
}

/// Powers of ten that a double holds exactly.
constexpr int kExactPowers = 22;
constexpr std::array<double, kExactPowers + 1> kPowersOfTen{1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                                            1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                                                            1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

constexpr double kLeastFifteen = 1e14;
constexpr double kLeastSixteen = 1e15;

/// The integer nearest to `value`, which lies within 2^51; a half goes to the even one.
double nearestWhole(double value) {
    // The sum has no places left for a fraction.
    constexpr double kNoFraction = 4503599627370496.0;  // 2^52
    return value + kNoFraction - kNoFraction;
}

double powerOfTen(int exponent) {
    return kPowersOfTen[static_cast<std::size_t>(exponent)];
}

/// `size` times ten to the power of `scale`, -22 to 22.
double scaled(double size, int scale) {
    return scale >= 0 ? size * powerOfTen(scale) : size / powerOfTen(-scale);
}

/// What the rounded `product`, a result of scaled(), lacks.
double lackOf(double product, double size, int scale) {
    // The remainder of a division is exact; its quotient is far below what a tie could turn on.
    return scale >= 0 ? std::fma(size, powerOfTen(scale), -product)
                      : std::fma(-product, powerOfTen(-scale), size) / powerOfTen(-scale);
}

/// `size` as a whole number of fifteen digits that stand `scale` places behind the point; the
/// integer nearest to it, or 0 where only the decimal text can tell.
double nearestFifteen(double size, int scale) {
    const double product = scaled(size, scale);
    const double whole = nearestWhole(product);
    const double fraction = product - whole;
    // A product below 10^15 is rounded by a sixteenth at most.
    constexpr double kSurelyNearest = 0.43;
    if (std::abs(fraction) < kSurelyNearest) {
        return whole;
    }
    const double beyond = fraction + lackOf(product, size, scale);
    constexpr double kHalf = 0.5;
    // Where the halves meet the text decides: ties are rare, and it knows them exactly.
    constexpr double kTooCloseToTell = 0.001;
    if (std::abs(std::abs(beyond) - kHalf) < kTooCloseToTell) {
        return 0.0;
    }
    return beyond > kHalf ? whole + 1.0 : beyond < -kHalf ? whole - 1.0 : whole;
}

/// The decimal exponent of the power of two just below `size`; of `size` itself, or one less.
int exponentBelow(double size) {
    constexpr int kMantissaBits = 52;
    constexpr int kBias = 1023;
    // 1233 / 4096 is the logarithm of 2, near enough for the exponents that are asked for.
    constexpr int kLogOfTwo = 1233;
    constexpr int kLogShift = 12;
    const int binary = static_cast<int>(std::bit_cast<std::uint64_t>(size) >> kMantissaBits) - kBias;
    return binary * kLogOfTwo >> kLogShift;
}

double throughText(double value) {
    std::array<char, 40> text{};
    const auto printed =
        std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::general, kTextDigits);
    double back = value;
    const auto read = std::from_chars(text.data(), printed.ptr, back);
    return read.ec == std::errc{} ? back : value;
}

/// A number pattern taken apart at its point.
struct Pattern {
    std::string_view whole;
    std::string_view fraction;
    bool hasPoint = false;
    bool scientific = false;
};

Pattern takeApart(std::string_view pattern) {
    Pattern parts;
    constexpr std::string_view kExponent = "e+00";
    if (pattern.ends_with(kExponent)) {
        parts.scientific = true;
        pattern.remove_suffix(kExponent.size());
    }
    const auto point = pattern.find('.');
    parts.whole = pattern.substr(0, point);
    parts.hasPoint = point != pattern.npos;
    if (parts.hasPoint) {
        parts.fraction = pattern.substr(point + 1);
    }
    return parts;
}

int placesIn(std::string_view text) {
    return static_cast<int>(std::count_if(text.begin(), text.end(), [](char c) { return c == '0' || c == '#'; }));
}

/// The whole part, written from its last digit leftwards.
std::string wholePart(const DecimalDigits& number, std::string_view pattern) {
    const bool grouped = pattern.find(',') != pattern.npos;
    const auto firstPlace = pattern.find_first_of("0#");
    std::string reversed;
    int place = 0;
    const int top = number.zero() ? -1 : number.exponent();
    const auto put = [&] {
        if (grouped && place > 0 && place % 3 == 0) {
            reversed += ',';
        }
        reversed += number.digitAt(place++);
    };
    for (std::size_t at = pattern.size(); at-- > 0;) {
        const char mark = pattern[at];
        if (mark == '0' || (mark == '#' && place <= top)) {
            put();
        } else if (mark != '#' && mark != ',' && (at < firstPlace || place <= top)) {
            if (at < firstPlace) {
                break;
            }
            reversed += mark;
        }
    }
    while (place <= top) {
        put();
    }
    if (number.negative()) {
        reversed += '-';
    }
    std::string text{pattern.substr(0, std::min(firstPlace, pattern.size()))};
    return text.append(reversed.rbegin(), reversed.rend());
}

std::string fractionPart(const DecimalDigits& number, std::string_view pattern) {
    std::string text;
    int place = -1;
    const int last = number.exponent() - static_cast<int>(number.digits().size()) + 1;
    for (const char mark : pattern) {
        if (mark == '0' || (mark == '#' && !number.zero() && place >= last)) {
            text += number.digitAt(place--);
        } else if (mark != '#') {
            text += mark;
        }
    }
    return text;
}

}  // namespace

double readNumber(std::string_view text, char decimal) {
    double value = 0.0;
    switch (scan(text, decimal, value)) {
        case Reading::NoNumber:
            throw Failure{FailureNumber::TypeMismatch};
        case Reading::OutOfRange:
            throw Failure{FailureNumber::Overflow};
        case Reading::Number:
            break;
    }
    return value;
}

std::optional<double> tryReadNumber(std::string_view text, char decimal) {
    double value = 0.0;
    return scan(text, decimal, value) == Reading::Number ? std::optional{value} : std::nullopt;
}

std::string plainText(double value, char decimal) {
    if (value == 0.0) {
        return "0";
    }
    std::array<char, 40> text{};
    const auto result =
        std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::general, kTextDigits);
    std::string out(text.data(), result.ptr);
    for (char& character : out) {
        if (character == '.') {
            character = decimal;
        } else if (character == 'e') {
            character = 'E';
        }
    }
    return out;
}

double fifteenDigits(double value) {
    const double size = std::abs(value);
    if (size < kLeastSixteen && size == static_cast<double>(static_cast<std::int64_t>(size))) {
        return value;
    }
    constexpr double kLeast = 1e-7;
    constexpr double kMost = 1e36;
    if (!(size >= kLeast && size < kMost)) {
        return throughText(value);
    }
    int scale = kTextDigits - 1 - exponentBelow(size);
    if (scale > kExactPowers) {
        return throughText(value);
    }
    if (scaled(size, scale) >= kLeastSixteen) {
        // The power of two lies below a power of ten, the number above it.
        --scale;
    }
    const double whole = nearestFifteen(size, scale);
    if (whole <= kLeastFifteen || whole >= kLeastSixteen) {
        return throughText(value);
    }
    // Both are exact, so this is the double nearest to the decimal number.
    return std::copysign(scale >= 0 ? whole / powerOfTen(scale) : whole * powerOfTen(-scale), value);
}

double roundHalfEven(double value, int places) {
    DecimalDigits digits{value};
    // A number that has no more places than asked for keeps its exact value.
    return digits.roundTo(places) || digits.zero() ? digits.value() : value;
}

std::string fixedText(double value, int places) {
    DecimalDigits digits{value};
    digits.roundTo(places);
    std::string text;
    if (digits.negative()) {
        text += '-';
    }
    for (int place = std::max(digits.zero() ? 0 : digits.exponent(), 0); place >= 0; --place) {
        text += digits.digitAt(place);
    }
    if (places > 0) {
        text += '.';
        for (int place = -1; place >= -places; --place) {
            text += digits.digitAt(place);
        }
    }
    return text;
}

std::string formatPattern(double value, std::string_view pattern, char decimal) {
    const Pattern parts = takeApart(pattern);
    DecimalDigits digits{value};
    int exponent = 0;
    const int places = placesIn(parts.fraction);
    if (parts.scientific) {
        digits.roundToDigits(1 + places);
        exponent = digits.exponent();
        digits.scaleToUnits();
    } else {
        digits.roundTo(places);
    }
    std::string text = wholePart(digits, parts.whole);
    if (parts.hasPoint) {
        text += decimal;
        text += fractionPart(digits, parts.fraction);
    }
    if (parts.scientific) {
        appendExponent(text, exponent);
    }
    return text;
}

std::string formatScientific(double value, int digits, char decimal) {
    DecimalDigits number{value};
    number.roundToDigits(1 + digits);
    std::string text;
    text.reserve(static_cast<std::size_t>(digits) + 8);
    if (number.negative()) {
        text += '-';
    }
    text += number.digitAt(number.exponent());
    text += decimal;
    for (int place = 1; place <= digits; ++place) {
        text += number.digitAt(number.exponent() - place);
    }
    appendExponent(text, number.exponent());
    return text;
}

}  // namespace tallyforge
