// SPDX-License-Identifier: GPL-3.0-or-later
//
// Numbers on which the trip through fifteen digits is tried: any bit pattern, numbers of the usual
// size, numbers that have just made the trip with their neighbours, and ties.
#pragma once

#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>

namespace tallyforge {

/// The trip as it is meant: print fifteen digits, read them.
[[nodiscard]] inline double printedAndRead(double value) {
    constexpr int kDigits = 15;
    std::array<char, 40> text{};
    const auto printed =
        std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::general, kDigits);
    double back = value;
    const auto read = std::from_chars(text.data(), printed.ptr, back);
    return read.ec == std::errc{} ? back : value;
}

class FifteenDigitSamples {
public:
    explicit FifteenDigitSamples(std::uint64_t seed) : bits_(seed) {}

    /// Never infinite and always a number.
    [[nodiscard]] double next() {
        switch (turn_++ % 4) {
            case 0:
                return anyPattern();
            case 1:
                return usualSize();
            case 2:
                return besideAShortNumber();
            default:
                return tie();
        }
    }

private:
    double anyPattern() {
        for (;;) {
            if (const auto value = std::bit_cast<double>(bits_()); std::isfinite(value)) {
                return value;
            }
        }
    }
    /// From 2^-40 to 2^130.
    double usualSize() {
        const double mantissa = 1.0 + static_cast<double>(bits_() >> 12U) * 0x1p-52;
        return std::ldexp(mantissa, static_cast<int>(bits_() % 170) - 40);
    }
    double besideAShortNumber() {
        const double shortNumber = printedAndRead(usualSize());
        const double towards = (bits_() & 1U) != 0 ? std::numeric_limits<double>::max() : 0.0;
        return std::nextafter(shortNumber, towards);
    }
    /// n + 1/2 in the fifteenth digit, exactly: an odd multiple of 5^k over 2 * 10^k.
    double tie() {
        constexpr double kLeast = 2e14;
        constexpr double kRange = 18e14;
        const auto k = static_cast<int>(bits_() % 21);
        const double fives = std::pow(5.0, k);
        const double wanted = (kLeast + static_cast<double>(bits_() >> 11U) * 0x1p-53 * kRange) / fives;
        const double odd = 2.0 * std::floor(wanted / 2.0) + 1.0;
        return std::ldexp((bits_() & 1U) != 0 ? odd : -odd, -k - 1);
    }

    std::mt19937_64 bits_;
    unsigned turn_ = 0;
};

}  // namespace tallyforge
