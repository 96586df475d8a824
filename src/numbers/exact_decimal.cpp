// SPDX-License-Identifier: GPL-3.0-or-later
#include "numbers/exact_decimal.h"

#include "numbers/failure.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <string>
#include <system_error>

namespace tallyforge {

namespace {

constexpr int kLimbDigits = 9;
constexpr std::int64_t kLimb = 1'000'000'000;

constexpr int floorOfQuotient(int dividend, int divisor) {
    return dividend >= 0 ? dividend / divisor : -((divisor - 1 - dividend) / divisor);
}

}  // namespace

ExactDecimal::ExactDecimal(double value) {
    // "d.ddde+XXX"
    std::array<char, 32> text{};
    const auto end =
        std::to_chars(text.data(), text.data() + text.size(), std::abs(value), std::chars_format::scientific).ptr;
    std::int64_t mantissa = 0;
    int exponent = 0;
    const char* at = text.data();
    for (bool behindPoint = false; *at != 'e'; ++at) {
        if (*at == '.') {
            behindPoint = true;
            continue;
        }
        mantissa = 10 * mantissa + (*at - '0');
        exponent -= behindPoint ? 1 : 0;
    }
    int tens = 0;
    std::from_chars(at[1] == '+' ? at + 2 : at + 1, end, tens);
    exponent += tens;
    lowest_ = floorOfQuotient(exponent, kLimbDigits);
    std::int64_t power = 1;
    for (int i = lowest_ * kLimbDigits; i < exponent; ++i) {
        power *= 10;
    }
    // Seventeen digits, moved up by at most eight: limb by limb, so that nothing overflows.
    const std::int64_t sign = std::signbit(value) ? -1 : 1;
    for (; mantissa != 0; mantissa /= kLimb) {
        limbs_.push_back(sign * (mantissa % kLimb) * power);
    }
    normalize();
}

void ExactDecimal::normalize() {
    for (std::size_t i = 0; i < limbs_.size(); ++i) {
        const bool last = i + 1 == limbs_.size();
        std::int64_t carry = limbs_[i] / kLimb;
        if (limbs_[i] % kLimb < 0 && !(last && carry == 0)) {
            --carry;
        }
        if (carry == 0) {
            continue;
        }
        limbs_[i] -= carry * kLimb;
        if (last) {
            limbs_.push_back(0);
        }
        limbs_[i + 1] += carry;
    }
    while (!limbs_.empty() && limbs_.back() == 0) {
        limbs_.pop_back();
    }
    const auto firstUsed = std::find_if(limbs_.begin(), limbs_.end(), [](std::int64_t limb) { return limb != 0; });
    lowest_ += static_cast<int>(firstUsed - limbs_.begin());
    limbs_.erase(limbs_.begin(), firstUsed);
}

ExactDecimal& ExactDecimal::operator+=(const ExactDecimal& other) {
    if (other.limbs_.empty()) {
        return *this;
    }
    if (limbs_.empty()) {
        return *this = other;
    }
    if (other.lowest_ < lowest_) {
        limbs_.insert(limbs_.begin(), static_cast<std::size_t>(lowest_ - other.lowest_), 0);
        lowest_ = other.lowest_;
    }
    const auto offset = static_cast<std::size_t>(other.lowest_ - lowest_);
    limbs_.resize(std::max(limbs_.size(), offset + other.limbs_.size()));
    for (std::size_t i = 0; i < other.limbs_.size(); ++i) {
        limbs_[offset + i] += other.limbs_[i];
    }
    normalize();
    return *this;
}

ExactDecimal operator*(const ExactDecimal& left, const ExactDecimal& right) {
    ExactDecimal sum;
    for (std::size_t i = 0; i < right.limbs_.size(); ++i) {
        ExactDecimal row = left;
        row.lowest_ += right.lowest_ + static_cast<int>(i);
        for (std::int64_t& limb : row.limbs_) {
            limb *= right.limbs_[i];
        }
        row.normalize();
        sum += row;
    }
    return sum;
}

ExactDecimal operator-(ExactDecimal number) {
    for (std::int64_t& limb : number.limbs_) {
        limb = -limb;
    }
    number.normalize();
    return number;
}

int ExactDecimal::exponent() const {
    return limbs_.empty() ? 0 : kLimbDigits * (lowest_ + static_cast<int>(limbs_.size()) - 1);
}

double ExactDecimal::value(int shift) const {
    if (limbs_.empty()) {
        return 0.0;
    }
    if (limbs_.back() < 0) {
        return -(-*this).value(shift);
    }
    std::string text;
    for (std::size_t i = limbs_.size(); i-- > 0;) {
        const std::string digits = std::to_string(limbs_[i]);
        text.append(kLimbDigits - std::min<std::size_t>(digits.size(), kLimbDigits), '0').append(digits);
    }
    text += "e" + std::to_string(kLimbDigits * lowest_ + shift);
    double result = 0.0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), result);
    if (read.ec == std::errc::result_out_of_range) {
        if (exponent() + shift > 0) {
            throw Failure{FailureNumber::Overflow};
        }
        return 0.0;
    }
    return result;
}

}  // namespace tallyforge
