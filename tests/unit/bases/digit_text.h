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

}  // namespace tallyforge::digit_text
