// SPDX-License-Identifier: GPL-3.0-or-later
//
// Numbers of a base digit by digit on texts, as on paper: conversions, the four operations, logic
// and shifts. What the calculator counts in machine integers must give the same digits.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

namespace tallyforge::digit_text {

inline std::string trimmed(std::string digits) {
    digits.erase(0, std::min(digits.find_first_not_of('0'), digits.size()));
    return digits.empty() ? "0" : digits;
}

/// Halves a decimal text; returns the remainder.
inline int halve(std::string& decimal) {
    int rest = 0;
    for (char& digit : decimal) {
        const int value = rest * 10 + (digit - '0');
        digit = static_cast<char>('0' + value / 2);
        rest = value % 2;
    }
    decimal.erase(0, std::min(decimal.find_first_not_of('0'), decimal.size()));
    return rest;
}

inline std::string decimalToBits(std::string decimal) {
    std::string reversed;
    while (!decimal.empty()) {
        reversed += static_cast<char>('0' + halve(decimal));
    }
    return trimmed({reversed.rbegin(), reversed.rend()});
}

/// Doubles the decimal text, bit after bit.
inline std::string bitsToDecimal(const std::string& bits) {
    std::string reversed = "0";
    for (const char bit : bits) {
        int carry = bit - '0';
        for (char& digit : reversed) {
            const int value = (digit - '0') * 2 + carry;
            digit = static_cast<char>('0' + value % 10);
            carry = value / 10;
        }
        if (carry != 0) {
            reversed += '1';
        }
    }
    return trimmed({reversed.rbegin(), reversed.rend()});
}

inline constexpr std::string_view kDigits = "0123456789ABCDEF";

/// Each `group` bits from the right as one digit.
inline std::string bitsInGroups(std::string bits, std::size_t group) {
    bits.insert(0, (group - bits.size() % group) % group, '0');
    std::string digits;
    for (std::size_t at = 0; at < bits.size(); at += group) {
        std::size_t value = 0;
        for (std::size_t bit = 0; bit < group; ++bit) {
            value = value * 2 + static_cast<std::size_t>(bits[at + bit] - '0');
        }
        digits += kDigits[value];
    }
    return trimmed(digits);
}

/// Each digit as `group` bits.
inline std::string groupsInBits(std::string_view digits, std::size_t group) {
    std::string bits;
    for (const char digit : digits) {
        for (std::size_t bit = group; bit-- > 0;) {
            bits += (kDigits.find(digit) >> bit & 1U) != 0 ? '1' : '0';
        }
    }
    return trimmed(bits);
}

/// The digits of `bits` in the base of `letter`.
inline std::string fromBits(const std::string& bits, char letter) {
    switch (letter) {
        case 'h':
            return bitsInGroups(bits, 4);
        case 'o':
            return bitsInGroups(bits, 3);
        case 'd':
            return bitsToDecimal(bits);
        default:
            return trimmed(bits);
    }
}

/// The bits of `digits` in the base of `letter`.
inline std::string toBits(const std::string& digits, char letter) {
    switch (letter) {
        case 'h':
            return groupsInBits(digits, 4);
        case 'o':
            return groupsInBits(digits, 3);
        case 'd':
            return decimalToBits(digits);
        default:
            return trimmed(digits);
    }
}

/// `bits` with leading zeros up to `width`.
inline std::string padded(std::string bits, std::size_t width) {
    bits.insert(0, bits.size() < width ? width - bits.size() : 0, '0');
    return bits;
}

/// The right end of `bits`.
inline std::string rightmost(const std::string& bits, std::size_t width) {
    return bits.size() > width ? bits.substr(bits.size() - width) : bits;
}

inline std::string add(const std::string& left, const std::string& right) {
    const std::size_t width = std::max(left.size(), right.size()) + 1;
    std::string sum = padded(left, width);
    const std::string addend = padded(right, width);
    int carry = 0;
    for (std::size_t place = width; place-- > 0;) {
        const int total = (sum[place] - '0') + (addend[place] - '0') + carry;
        sum[place] = static_cast<char>('0' + total % 2);
        carry = total / 2;
    }
    return trimmed(sum);
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

/// Each pair of bits into the sum of its column, then the carries from column to column.
inline std::string multiply(const std::string& left, const std::string& right) {
    std::vector<int> columns(left.size() + right.size(), 0);
    for (std::size_t i = 0; i < left.size(); ++i) {
        for (std::size_t j = 0; j < right.size(); ++j) {
            columns[i + j + 1] += (left[i] - '0') * (right[j] - '0');
        }
    }
    std::string product(columns.size(), '0');
    int carry = 0;
    for (std::size_t column = columns.size(); column-- > 0;) {
        const int total = columns[column] + carry;
        product[column] = static_cast<char>('0' + total % 2);
        carry = total / 2;
    }
    return trimmed(product);
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
std::string logic(const std::string& left, const std::string& right, Combine combine) {
    const std::size_t width = std::max(left.size(), right.size());
    const std::string one = padded(left, width);
    const std::string other = padded(right, width);
    std::string result;
    for (std::size_t i = 0; i < width; ++i) {
        result += kDigits[combine(kDigits.find(one[i]), kDigits.find(other[i]))];
    }
    return trimmed(result);
}

}  // namespace tallyforge::digit_text
