// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/conversion.h"

#include "numbers/checked_math.h"
#include "platform/text.h"

#include <array>
#include <cfloat>
#include <cmath>
#include <utility>

namespace tallyforge {

namespace {

/// The result of a ratio; one that vanishes is as much out of range as one that is infinite.
double ranged(double result, double x) {
    if (result == 0.0 && x != 0.0) {
        throw Failure{FailureNumber::Overflow};
    }
    return checked(result);
}

// The product may leave the range though the result does not.
template <typename Real>
double scaled(double x, Real times, Real per) {
    const Real product = times * x;
    const bool inRange =
        std::isfinite(static_cast<double>(product)) && std::fabs(static_cast<double>(product)) >= DBL_MIN;
    return ranged(static_cast<double>(inRange ? product / per : times / per * x), x);
}

template <typename Real>
double inverted(double x, Real factor) {
    if (x == 0.0) {
        throw Failure{FailureNumber::DivisionByZero};
    }
    return ranged(static_cast<double>(factor / x), 1.0);
}

template <typename Real>
Conversion byRatio(const UnitGroup& group, int from, int to, double x, Real Unit::*size) {
    const Real a = group.at(to).*size;
    const Real b = group.at(from).*size;
    if (a == Real{0} || b == Real{0}) {
        // Kept: such a unit converts every number into itself.
        return {.value = x, .withoutRatio = true};
    }
    if (group.measure == Measure::Size) {
        return {.value = scaled(x, b, a), .ConversionFactor = static_cast<double>(b / a)};
    }
    if (group.measure == Measure::Count || distancePerVolume(group, from) == distancePerVolume(group, to)) {
        const bool counts = group.measure == Measure::Count || !distancePerVolume(group, from);
        const auto [times, per] = counts ? std::pair{a, b} : std::pair{b, a};
        return {.value = scaled(x, times, per), .ConversionFactor = static_cast<double>(times / per)};
    }
    const Real k = distancePerVolume(group, to) ? b / a : a / b;
    return {.value = inverted(x, k), .ConversionFactor = static_cast<double>(k), .divides = true};
}

enum Scale { kCelsius, kFahrenheit, kKelvin, kRankine };

double celsiusTo(int scale, double x) {
    switch (scale) {
        case kFahrenheit:
            return x * 9 / 5 + 32;
        case kKelvin:
            return x + 273.15;
        case kRankine:
            return (x + 273.15) * 9 / 5;
        default:
            return x / 1.25;
    }
}

double fahrenheitTo(int scale, double x) {
    switch (scale) {
        case kCelsius:
            return (x - 32) * (5.0 / 9);
        case kKelvin:
            return (x + 459.67) * 5 / 9;
        case kRankine:
            return x + 459.67;
        default:
            return (x - 32) / 2.25;
    }
}

double kelvinTo(int scale, double x) {
    switch (scale) {
        case kCelsius:
            return x - 273.15;
        case kFahrenheit:
            return x * (9.0 / 5) - 459.67;
        case kRankine:
            return x * 9 / 5;
        default:
            return (x - 273.15) / 1.25;
    }
}

double rankineTo(int scale, double x) {
    switch (scale) {
        case kCelsius:
            return x * (5.0 / 9) - 273.15;
        case kFahrenheit:
            return x - 459.67;
        case kKelvin:
            return x * 5 / 9;
        default:
            return (x - 491.67) / 2.25;
    }
}

double reaumurTo(int scale, double x) {
    switch (scale) {
        case kCelsius:
            return x * 1.25;
        case kFahrenheit:
            return x * 2.25 + 32;
        case kKelvin:
            return x * 1.25 + 273.15;
        default:
            return x * 2.25 + 32 + 459.67;
    }
}

double temperature(int from, int to, double x) {
    static constexpr std::array kFrom{&celsiusTo, &fahrenheitTo, &kelvinTo, &rankineTo, &reaumurTo};
    return from == to ? x : checked(kFrom.at(static_cast<std::size_t>(from))(to, x));
}

}  // namespace

Conversion convert(const UnitGroup& group, int from, int to, double x, Sizes sizes) {
    if (group.measure == Measure::Temperature) {
        return {.value = temperature(from, to, x), .keepsFactor = false};
    }
    return sizes == Sizes::Exact ? byRatio(group, from, to, x, &Unit::exact)
                                 : byRatio(group, from, to, x, &Unit::factor);
}

double applyFactor(double x, double factor, bool divides) {
    return divides ? inverted(x, factor) : ranged(x * factor, x);
}

bool distancePerVolume(const UnitGroup& group, int unit) {
    return group.measure == Measure::Consumption && !group.at(unit).to.ends_with("/100km");
}

double deviation(const Unit& unit) {
    return unit.factor == kNoFactor ? 0.0 : static_cast<double>((unit.factor - unit.exact) / unit.exact);
}

std::string_view fromLabel(const UnitGroup& group, int unit) {
    return group.labels.empty() ? group.at(unit).from : group.labels[static_cast<std::size_t>(unit)];
}

std::string_view toLabel(const UnitGroup& group, int unit) {
    return group.labels.empty() ? group.at(unit).to : group.labels[static_cast<std::size_t>(unit)];
}

std::string tapeText(std::string_view caption) {
    static constexpr std::array<std::pair<std::string_view, std::string_view>, 6> kGlyphs{
        {{"²"_t, "\xFD"}, {"³"_t, "^3"}, {"µ"_t, "\xE6"}, {"°"_t, "\xF8"}, {"·"_t, "\xFA"}, {"Å"_t, "\x8F"}}};
    std::string text;
    for (const char& character : caption) {
        std::string_view glyph{&character, 1};
        for (const auto& [latin, tape] : kGlyphs) {
            glyph = glyph == latin ? tape : glyph;
        }
        text += glyph;
    }
    return text;
}

std::string conversionLabel(const UnitGroup& group, int from, int to) {
    return " " + tapeText(fromLabel(group, from)) + " to " + tapeText(toLabel(group, to)) + " ";
}

}  // namespace tallyforge
