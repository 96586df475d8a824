// SPDX-License-Identifier: GPL-3.0-or-later
#include "electrical/value_codes.h"

#include "electrical/key_answers.h"
#include "engine/engine.h"
#include "numbers/checked_math.h"
#include "numbers/decimal_digits.h"
#include "numbers/number_format.h"
#include "platform/text.h"

#include <array>
#include <cmath>
#include <string>

namespace tallyforge {

namespace {

struct ComponentCode {
    std::string_view unit{};       ///< of a decoded value
    int exponent = 0;              ///< power of ten of what the code counts
    std::string_view codeLabel{};  ///< of an encoded value
    double keyed = 1.0;            ///< what the code counts in the unit that values are keyed in
    std::string_view tooSmall{};
    std::string_view tooLarge{};
};

/// By component: ohms; picofarads, keyed as microfarads; nanohenries, keyed as millihenries.
constexpr std::array<ComponentCode, 3> kCodes{{{.unit = "ê"_t,
                                                .exponent = 0,
                                                .codeLabel = "R Code",
                                                .keyed = 1.0,
                                                .tooSmall = "< 100ê"_t,
                                                .tooLarge = "Resistor value => 100 GigaOhms"},
                                               {.unit = "Fd",
                                                .exponent = -12,
                                                .codeLabel = "C Code",
                                                .keyed = 1e6,
                                                .tooSmall = "< 100pF",
                                                .tooLarge = "Capacitor value => 100 milliFarads"},
                                               {.unit = "Hy",
                                                .exponent = -9,
                                                .codeLabel = "L Code",
                                                .keyed = 1e6,
                                                .tooSmall = "< 100nH",
                                                .tooLarge = "Inductor value => 100 Henries"}}};

const ComponentCode& codeOf(Component component) {
    return kCodes.at(static_cast<std::size_t>(component));
}

double tenTo(int exponent) {
    return std::pow(10.0, exponent);
}

/// digits * 10^exponent, rounded once where the digits and the power are exact.
double scaled(double digits, int exponent) {
    return exponent < 0 ? digits / tenTo(-exponent) : digits * tenTo(exponent);
}

/// digits * 10^exponent with a prefix. By whole powers, so that no digit is lost on the way.
Prefixed withPrefix(double digits, int exponent) {
    constexpr std::array<std::string_view, 10> kPrefixes{"p", "n", "æ"_t, "m", "", "k", "M", "G", "T", "P"};
    constexpr int kPerStep = 3;
    constexpr double kStep = 1000.0;
    constexpr int kSmallest = -12;
    int step = 0;
    while (step + 1 < static_cast<int>(kPrefixes.size()) &&
           scaled(digits, exponent - kSmallest - step * kPerStep) >= kStep) {
        ++step;
    }
    return {.number = scaled(digits, exponent - kSmallest - step * kPerStep),
            .prefix = kPrefixes.at(static_cast<std::size_t>(step))};
}

void codeToValue(Engine& calc, Component component) {
    const auto value = decoded(component, calc.xNumber());
    if (!value) {
        refuse(calc, {.text = "Not Enough Digits!", .label = "Error"});
        return;
    }
    replaceX(calc, {value->number, std::string(value->prefix) + std::string(codeOf(component).unit)});
}

void valueToCode(Engine& calc, Component component) {
    const ComponentCode& part = codeOf(component);
    // Through the decimal digits, as it was keyed: 0.0047 microfarads are 4700 picofarads.
    const double value = fifteenDigits(checked(calc.xNumber() * part.keyed));
    if (value < kLeastCoded) {
        replaceX(calc, {calc.s.stack.Xreg, part.tooSmall});
    } else if (const auto code = encoded(value)) {
        constexpr int kCodeDigits = 0;
        answerWithDigits(calc, {*code, part.codeLabel}, kCodeDigits);
    } else {
        refuse(calc, {.text = part.tooLarge, .label = "Error"});
    }
}

}  // namespace

std::optional<Prefixed> decoded(Component component, double code) {
    const double digits = roundHalfEven(code, 0);
    if (digits < kLeastCoded) {
        return std::nullopt;
    }
    constexpr double kTen = 10.0;
    // As the number is written: what lies behind its fifteen digits are zeros.
    const int zeros = DecimalDigits(digits).digitAt(0) - '0';
    return withPrefix((digits - zeros) / kTen, zeros + codeOf(component).exponent);
}

std::optional<double> encoded(double value) {
    constexpr int kMostSignificant = 3;
    constexpr double kTen = 10.0;
    DecimalDigits kept(value);
    kept.roundToDigits(kMostSignificant);
    if (kept.value() >= kBeyondCodes) {
        return std::nullopt;
    }
    int significant = kMostSignificant - 1;
    if (kept.digitAt(kept.exponent() - significant) != '0') {
        ++significant;
    }
    const int zeros = kept.exponent() + 1 - significant;
    return scaled(kept.value(), -zeros) * kTen + zeros;
}

void FindValue(Engine& calc, Component component, Sought sought) {
    sought == Sought::Code ? valueToCode(calc, component) : codeToValue(calc, component);
}

}  // namespace tallyforge
