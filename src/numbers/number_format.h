// SPDX-License-Identifier: GPL-3.0-or-later
//
// Numbers to text and back, by the locale's decimal character. Printing starts from the value's
// fifteen-digit decimal text, and every rounding is half to even on that text, so that 2.675
// shows as "2.68" and 2.665 as "2.66" whatever their binary neighbours are.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace tallyforge {

/// Significant digits of a number's plain text.
inline constexpr int kTextDigits = 15;

/// The number that `text` reads as: blanks around it are dropped; sign, digits with at most one
/// `decimal`, and an exponent of "e" or "E" with sign and digits.
/// Failures: 13 where it is no number, 6 where it is beyond the range of a double, too small too.
[[nodiscard]] double readNumber(std::string_view text, char decimal);

/// readNumber without the failures: empty where it would raise one.
[[nodiscard]] std::optional<double> tryReadNumber(std::string_view text, char decimal);

/// Up to 15 significant digits: "1.5", "-3", "1E+20", "1.5E-07"; never "-0".
[[nodiscard]] std::string plainText(double value, char decimal);

/// `value` to its plain text and back: the double nearest to its fifteen-digit decimal. The few
/// numbers at the end of the range whose text would read as too large stay as they are.
[[nodiscard]] double fifteenDigits(double value);

/// The value whose fifteen-digit text is rounded half to even at `places` decimal places (0 to
/// 22). Negative zero becomes zero.
[[nodiscard]] double roundHalfEven(double value, int places);

/// The fixed decimal text of `value` rounded half to even at `places` places: all digits, "."
/// always as the point and only if places > 0, "-" in front of a negative number that does not
/// round to 0. "12.50", "-0.05".
[[nodiscard]] std::string fixedText(double value, int places);

/// `value` by a number pattern. "0" is a digit that always stands, "#" one that stands where the
/// number has it, the first "." the decimal character (there even without digits behind it). ","
/// between the digits of the whole part groups by three. An "e+00" tail makes it scientific with at
/// least two exponent digits. Every other character (a blank, a second ".") stands for itself.
/// Digits that have no place go in front of the first digit place. A blank group mark in the whole
/// part is left out where no digit stands left of it; blanks in front of the first digit place
/// always stand. A minus stands directly before the first digit.
///   "0.000e+00"        12345    "1.234e+04" (half to even)
///   "#,##0"            1234567  "1,234,567"
///   "### ### ### ##0"  1234567  "1 234 567"
///   "   0.00e+00"      5        "   5.00e+00"
///   "00000"            42       "00042"
///   "0.00 00.0"        0.3045   "0.30 45.0"
[[nodiscard]] std::string formatPattern(double value, std::string_view pattern, char decimal);

/// formatPattern with "0." + `digits` zeros + "e+00".
[[nodiscard]] std::string formatScientific(double value, int digits, char decimal);

}  // namespace tallyforge
