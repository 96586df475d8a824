// SPDX-License-Identifier: GPL-3.0-or-later
//
// Conversions and addition digit by digit on texts, as on paper. What the calculator counts in
// machine integers must give the same digits.
#pragma once

#include <algorithm>
#include <string>

namespace tallyforge::digit_text {

/// Halves a decimal text; returns the remainder.
inline int halve(std::string& decimal) {
    int rest = 0;
    for (char& digit : decimal) {
        const int value = rest * 10 + (digit - '0');
        digit = static_cast<char>('0' + value / 2);
        rest = value % 2;
    }
    const auto first = decimal.find_first_not_of('0');
    decimal.erase(0, std::min(first, decimal.size()));
    return rest;
}

inline std::string decimalToBits(std::string decimal) {
    std::string bits;
    decimal.erase(0, std::min(decimal.find_first_not_of('0'), decimal.size()));
    while (!decimal.empty()) {
        bits.insert(bits.begin(), static_cast<char>('0' + halve(decimal)));
    }
    return bits.empty() ? "0" : bits;
}

inline std::string bitsInGroups(std::string bits, std::size_t group) {
    bits.insert(0, (group - bits.size() % group) % group, '0');
    std::string digits;
    for (std::size_t at = 0; at < bits.size(); at += group) {
        int value = 0;
        for (std::size_t bit = 0; bit < group; ++bit) {
            value = value * 2 + (bits[at + bit] - '0');
        }
        digits += "0123456789ABCDEF"[value];
    }
    const auto first = digits.find_first_not_of('0');
    return first == std::string::npos ? "0" : digits.substr(first);
}

inline std::string bitsToHex(const std::string& bits) {
    return bitsInGroups(bits, 4);
}
inline std::string bitsToOctal(const std::string& bits) {
    return bitsInGroups(bits, 3);
}

inline std::string add(const std::string& left, const std::string& right) {
    std::string sum;
    int carry = 0;
    for (std::size_t place = 0; place < std::max(left.size(), right.size()) || carry != 0; ++place) {
        const auto bit = [place](const std::string& bits) {
            return place < bits.size() ? bits[bits.size() - 1 - place] - '0' : 0;
        };
        const int total = bit(left) + bit(right) + carry;
        sum.insert(sum.begin(), static_cast<char>('0' + total % 2));
        carry = total / 2;
    }
    const auto first = sum.find_first_not_of('0');
    return first == std::string::npos ? "0" : sum.substr(first);
}

inline std::string trimmed(const std::string& bits) {
    const auto first = bits.find_first_not_of('0');
    return first == std::string::npos ? "0" : bits.substr(first);
}

/// -1, 0 or 1 as left is smaller, equal or greater; neither has leading zeros.
inline int compare(const std::string& left, const std::string& right) {
    if (left.size() != right.size()) {
        return left.size() < right.size() ? -1 : 1;
    }
    return left.compare(right) < 0 ? -1 : left == right ? 0 : 1;
}

/// left less right, by the ones' complement of right and an end-around carry; left is not smaller.
inline std::string subtract(const std::string& left, const std::string& right) {
    if (left == right) {
        return "0";
    }
    std::string inverted(left.size() - right.size(), '1');
    for (const char bit : right) {
        inverted += bit == '0' ? '1' : '0';
    }
    std::string sum = add(left, inverted);
    if (sum.size() > left.size()) {
        sum = add(trimmed(sum.substr(1)), "1");
    }
    return trimmed(sum);
}

inline std::string multiply(const std::string& left, const std::string& right) {
    std::string product = "0";
    for (const char bit : right) {
        product = trimmed(product + '0');
        if (bit == '1') {
            product = add(product, left);
        }
    }
    return product;
}

/// Quotient; `rest` becomes the remainder. The divisor is not 0.
inline std::string divide(const std::string& dividend, const std::string& divisor, std::string& rest) {
    std::string quotient;
    rest = "0";
    for (const char bit : dividend) {
        rest = trimmed(rest + bit);
        const bool goes = compare(rest, divisor) >= 0;
        quotient += goes ? '1' : '0';
        if (goes) {
            rest = subtract(rest, divisor);
        }
    }
    return trimmed(quotient);
}

/// Digit by digit on hexadecimal texts; `combine` takes and gives a digit's value.
template <typename Combine>
std::string logic(std::string left, std::string right, Combine combine) {
    const std::string digits = "0123456789ABCDEF";
    const std::size_t width = std::max(left.size(), right.size());
    left.insert(0, width - left.size(), '0');
    right.insert(0, width - right.size(), '0');
    std::string result;
    for (std::size_t i = 0; i < width; ++i) {
        result += digits[combine(digits.find(left[i]), digits.find(right[i]))];
    }
    return trimmed(result);
}

}  // namespace tallyforge::digit_text
