// SPDX-License-Identifier: GPL-3.0-or-later
#include "calculators/exact_integer.h"

#include <algorithm>
#include <cmath>

namespace tallyforge {

namespace {

constexpr int kLimbBits = 32;

}  // namespace

ExactInteger::ExactInteger(std::int64_t value) : negative_(value < 0) {
    auto rest = value < 0 ? 0 - static_cast<std::uint64_t>(value) : static_cast<std::uint64_t>(value);
    for (; rest != 0; rest >>= kLimbBits) {
        limbs_.push_back(static_cast<std::uint32_t>(rest));
    }
}

ExactInteger ExactInteger::fromDigits(std::string_view digits) {
    constexpr std::int64_t kTen = 10;
    ExactInteger number;
    for (const char digit : digits) {
        number = number * ExactInteger(kTen) + ExactInteger(digit - '0');
    }
    return number;
}

long double ExactInteger::value() const {
    long double value = 0.0L;
    // The four topmost limbs hold more bits than a long double.
    constexpr std::size_t kTop = 4;
    const std::size_t count = std::min(limbs_.size(), kTop);
    for (std::size_t i = 0; i < count; ++i) {
        value = std::ldexp(value, kLimbBits) + static_cast<long double>(limbs_[limbs_.size() - 1 - i]);
    }
    value = std::ldexp(value, static_cast<int>(limbs_.size() - count) * kLimbBits);
    return negative_ ? -value : value;
}

ExactInteger ExactInteger::timesTen(int exponent) const {
    constexpr std::int64_t kTen = 10;
    ExactInteger result = *this;
    for (ExactInteger power(kTen); exponent > 0; exponent /= 2) {
        if (exponent % 2 != 0) {
            result = result * power;
        }
        power = power * power;
    }
    return result;
}

ExactInteger ExactInteger::operator-() const {
    ExactInteger result = *this;
    result.negative_ = !negative_ && !limbs_.empty();
    return result;
}

ExactInteger ExactInteger::operator+(const ExactInteger& other) const {
    ExactInteger result;
    if (negative_ == other.negative_) {
        result.limbs_ = sum(limbs_, other.limbs_);
        result.negative_ = negative_;
    } else {
        const bool less = smaller(limbs_, other.limbs_);
        result.limbs_ = less ? difference(other.limbs_, limbs_) : difference(limbs_, other.limbs_);
        result.negative_ = less ? other.negative_ : negative_;
    }
    result.negative_ = result.negative_ && !result.limbs_.empty();
    return result;
}

ExactInteger ExactInteger::operator*(const ExactInteger& other) const {
    ExactInteger result;
    result.limbs_.assign(limbs_.size() + other.limbs_.size(), 0);
    for (std::size_t i = 0; i < limbs_.size(); ++i) {
        std::uint64_t carry = 0;
        for (std::size_t j = 0; j < other.limbs_.size() || carry != 0; ++j) {
            const std::uint64_t right = j < other.limbs_.size() ? other.limbs_[j] : 0;
            carry += result.limbs_[i + j] + std::uint64_t{limbs_[i]} * right;
            result.limbs_[i + j] = static_cast<std::uint32_t>(carry);
            carry >>= kLimbBits;
        }
    }
    trim(result.limbs_);
    result.negative_ = negative_ != other.negative_ && !result.limbs_.empty();
    return result;
}

bool ExactInteger::smaller(const Limbs& left, const Limbs& right) {
    if (left.size() != right.size()) {
        return left.size() < right.size();
    }
    return std::lexicographical_compare(left.rbegin(), left.rend(), right.rbegin(), right.rend());
}

ExactInteger::Limbs ExactInteger::sum(const Limbs& left, const Limbs& right) {
    Limbs limbs;
    std::uint64_t carry = 0;
    for (std::size_t i = 0; i < std::max(left.size(), right.size()) || carry != 0; ++i) {
        carry += (i < left.size() ? left[i] : 0ULL) + (i < right.size() ? right[i] : 0ULL);
        limbs.push_back(static_cast<std::uint32_t>(carry));
        carry >>= kLimbBits;
    }
    return limbs;
}

ExactInteger::Limbs ExactInteger::difference(const Limbs& larger, const Limbs& other) {
    Limbs limbs = larger;
    std::uint64_t borrow = 0;
    for (std::size_t i = 0; i < limbs.size(); ++i) {
        const std::uint64_t taken = borrow + (i < other.size() ? other[i] : 0ULL);
        borrow = limbs[i] < taken ? 1 : 0;
        limbs[i] = static_cast<std::uint32_t>(limbs[i] - taken);
    }
    trim(limbs);
    return limbs;
}

void ExactInteger::trim(Limbs& limbs) {
    while (!limbs.empty() && limbs.back() == 0) {
        limbs.pop_back();
    }
}

}  // namespace tallyforge
