// SPDX-License-Identifier: GPL-3.0-or-later
//
// Whole numbers of any size, for differences that must not lose a digit: discriminants of polynomials
// whose coefficients count as the decimals that were typed.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace tallyforge {

class ExactInteger {
public:
    ExactInteger() = default;
    explicit ExactInteger(std::int64_t value);
    /// The number of a row of decimal digits.
    [[nodiscard]] static ExactInteger fromDigits(std::string_view digits);

    /// -1, 0 or 1.
    [[nodiscard]] int sign() const { return limbs_.empty() ? 0 : (negative_ ? -1 : 1); }
    /// Nearest value, with the range and digits of a long double.
    [[nodiscard]] long double value() const;
    /// This times ten to the `exponent`, 0 or more.
    [[nodiscard]] ExactInteger timesTen(int exponent) const;

    [[nodiscard]] ExactInteger operator-() const;
    [[nodiscard]] ExactInteger operator+(const ExactInteger& other) const;
    [[nodiscard]] ExactInteger operator-(const ExactInteger& other) const { return *this + -other; }
    [[nodiscard]] ExactInteger operator*(const ExactInteger& other) const;

private:
    using Limbs = std::vector<std::uint32_t>;  ///< lowest first, no zero on top
    [[nodiscard]] static bool smaller(const Limbs& left, const Limbs& right);
    [[nodiscard]] static Limbs sum(const Limbs& left, const Limbs& right);
    [[nodiscard]] static Limbs difference(const Limbs& larger, const Limbs& other);
    static void trim(Limbs& limbs);

    Limbs limbs_;
    bool negative_ = false;
};

}  // namespace tallyforge
