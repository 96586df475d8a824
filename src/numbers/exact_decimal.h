// SPDX-License-Identifier: GPL-3.0-or-later
//
// Sums and products of decimal numbers without any rounding, for results in which the leading
// digits cancel (deviations). A number goes in by its shortest text, so that 0.1 is a tenth; it is
// rounded once, when it comes out.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace tallyforge {

class ExactDecimal {
public:
    ExactDecimal() = default;
    /// The shortest decimal number that reads back as `value`, which must be finite.
    explicit ExactDecimal(double value);

    ExactDecimal& operator+=(const ExactDecimal& other);
    friend ExactDecimal operator*(const ExactDecimal& left, const ExactDecimal& right);
    friend ExactDecimal operator-(ExactDecimal number);
    friend ExactDecimal operator-(ExactDecimal left, const ExactDecimal& right) { return left += -right; }

    /// Decimal exponent of the first digit, give or take nine; 0 for zero.
    [[nodiscard]] int exponent() const;
    /// The double nearest to the number times 10^`shift`; 0 below the range. Raises 6.
    [[nodiscard]] double value(int shift = 0) const;

private:
    void normalize();

    /// Limb i counts 10^(9 (lowest_ + i)). All but the last lie between 0 and 10^9, and the last,
    /// which is not 0, has the number's sign.
    std::vector<std::int64_t> limbs_;
    int lowest_ = 0;
};

}  // namespace tallyforge
