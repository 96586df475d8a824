// SPDX-License-Identifier: GPL-3.0-or-later
//
// Numbers of a base: the text "#", digits and one letter, b, d, h or o, never negative, exact up
// to 2^64 - 1. The conversions take and give digit texts; inside they count in 64-bit integers,
// which gives the same digits.
#pragma once

#include "numbers/value_cell.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace tallyforge {

/// Base letters.
inline constexpr char kBinary = 'b';
inline constexpr char kDecimal = 'd';
inline constexpr char kHexadecimal = 'h';
inline constexpr char kOctal = 'o';

/// 2, 10, 16 or 8; 0 for no base letter.
[[nodiscard]] unsigned radixOf(char letter);

/// The value of `digits` in the base of `letter`. Hexadecimal digits are capitals. Raises 13 for
/// no digits or a wrong one, 6 beyond 2^64 - 1, 86 for more than 64 binary digits.
[[nodiscard]] std::uint64_t readDigits(std::string_view digits, char letter);
/// Digits of `value`, "0" for zero, no leading zeros.
[[nodiscard]] std::string writeDigits(std::uint64_t value, char letter);

// The conversions by their names; all raise as readDigits().
[[nodiscard]] std::string Dec2Hex(std::uint64_t whole);
[[nodiscard]] std::uint64_t Hex2Dec(std::string_view hex);
[[nodiscard]] std::string Hex2Bin(std::string_view hex);
[[nodiscard]] std::string Bin2Hex(std::string_view bits);
[[nodiscard]] std::string Bin2Dec(std::string_view bits);
[[nodiscard]] std::string Oct2Bin(std::string_view octal);
[[nodiscard]] std::string Dec2Oct(std::string_view decimal);
/// Decimal digits of a tagged value.
[[nodiscard]] std::string ConvertBin(std::string_view tagged);

/// True for a whole number of more than 2^64 - 1, as decimal text; False for a tagged one.
[[nodiscard]] bool ExceedsWord(std::string_view decimalText);

/// Digits in the base of `letter` of a plain number: its whole value, a fraction rounded half to
/// even (half up where the text has 16 characters), 0 for a negative one. Raises 6 beyond
/// 2^64 - 1, 13 for what is no number.
[[nodiscard]] std::string Real2Bin(const ValueCell& value, char letter, char decimal);

/// "#", digits, letter.
[[nodiscard]] std::string tagged(std::uint64_t value, char letter);
/// Last character of a tagged value.
[[nodiscard]] char letterOf(const ValueCell& value);
/// The whole number that a tagged or a plain value stands for. Raises 6, 13, 86.
[[nodiscard]] std::uint64_t wholeOf(const ValueCell& value, char decimal);

/// The rightmost `wordSize` bits (4 to 64) of `digits`, in the same base and without leading
/// zeros. Digits that do not fit the base come back as they are.
[[nodiscard]] std::string cutToWord(std::string_view digits, char letter, int wordSize);

}  // namespace tallyforge
