// SPDX-License-Identifier: GPL-3.0-or-later
//
// A number's fifteen-digit decimal text, taken apart: the digits and where the point stands. All
// rounding for the eye happens here, half to even on those digits.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace tallyforge {

class DecimalDigits {
public:
    /// Digits of a number's plain text.
    static constexpr int kMost = 15;

    explicit DecimalDigits(double value);

    [[nodiscard]] bool negative() const { return negative_ && count_ > 0; }
    [[nodiscard]] bool zero() const { return count_ == 0; }
    /// Decimal exponent of the first digit: 12.5 has 1. 0 for zero.
    [[nodiscard]] int exponent() const { return exponent_; }
    /// Digits without zeros at either end; empty for zero.
    [[nodiscard]] std::string_view digits() const { return {digits_.data(), static_cast<std::size_t>(count_)}; }
    /// The digit that counts 10^`place`, '0' where the number has none.
    [[nodiscard]] char digitAt(int place) const {
        const int index = exponent_ - place;
        return index >= 0 && index < count_ ? digits_[static_cast<std::size_t>(index)] : '0';
    }

    /// Rounds half to even, so that 10^-`places` is the last place that counts. Returns whether
    /// that took a digit away.
    bool roundTo(int places);
    /// Rounds half to even to `digits` significant digits (1 or more).
    void roundToDigits(int digits) { keep(digits); }
    /// Moves the point behind the first digit: 1234 becomes 1.234.
    void scaleToUnits() { exponent_ = 0; }
    /// The number back as a double.
    [[nodiscard]] double value() const;

private:
    bool keep(int digits);
    void trim();

    std::array<char, kMost + 1> digits_{};
    int count_ = 0;
    int exponent_ = 0;
    bool negative_ = false;
};

}  // namespace tallyforge
