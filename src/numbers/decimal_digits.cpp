// SPDX-License-Identifier: GPL-3.0-or-later
#include "numbers/decimal_digits.h"

#include <charconv>
#include <cmath>
#include <limits>

namespace tallyforge {

DecimalDigits::DecimalDigits(double value) : negative_(std::signbit(value)) {
    if (value == 0.0) {
        return;
    }
    // "d.dddddddddddddde+XXX"
    std::array<char, 32> text{};
    const auto result = std::to_chars(text.data(), text.data() + text.size(), std::abs(value),
                                      std::chars_format::scientific, kMost - 1);
    const char* at = text.data();
    for (; at != result.ptr && *at != 'e'; ++at) {
        if (*at != '.') {
            digits_.at(static_cast<std::size_t>(count_++)) = *at;
        }
    }
    const char* exponentText = at + 1;
    if (*exponentText == '+') {
        ++exponentText;
    }
    std::from_chars(exponentText, result.ptr, exponent_);
    trim();
}

void DecimalDigits::trim() {
    while (count_ > 0 && digits_[static_cast<std::size_t>(count_) - 1] == '0') {
        --count_;
    }
    if (count_ == 0) {
        exponent_ = 0;
    }
}

bool DecimalDigits::roundTo(int places) {
    return keep(exponent_ + 1 + places);
}

bool DecimalDigits::keep(int digits) {
    if (digits >= count_) {
        return false;
    }
    if (digits < 0) {
        count_ = 0;
        trim();
        return true;
    }
    const auto first = static_cast<std::size_t>(digits);
    const char next = digits_[first];
    const bool tie = next == '5' && digits + 1 == count_;
    const bool odd = digits > 0 && ((digits_[first - 1] - '0') % 2) != 0;
    const bool up = tie ? odd : next >= '5';
    count_ = digits;
    if (up) {
        int index = digits - 1;
        for (; index >= 0 && digits_[static_cast<std::size_t>(index)] == '9'; --index) {
            digits_[static_cast<std::size_t>(index)] = '0';
        }
        if (index >= 0) {
            ++digits_[static_cast<std::size_t>(index)];
        } else {
            digits_[0] = '1';
            count_ = 1;
            ++exponent_;
        }
    }
    trim();
    return true;
}

double DecimalDigits::value() const {
    if (count_ == 0) {
        return 0.0;
    }
    std::array<char, 32> text{};
    char* at = text.data();
    if (negative_) {
        *at++ = '-';
    }
    for (const char digit : digits()) {
        *at++ = digit;
    }
    *at++ = 'e';
    at = std::to_chars(at, text.data() + text.size(), exponent_ - count_ + 1).ptr;
    double value = 0.0;
    const auto result = std::from_chars(text.data(), at, value);
    // The largest doubles, rounded to fifteen digits, lie beyond the range.
    if (result.ec == std::errc::result_out_of_range && exponent_ > 0) {
        value = negative_ ? std::numeric_limits<double>::lowest() : std::numeric_limits<double>::max();
    }
    return value;
}

}  // namespace tallyforge
