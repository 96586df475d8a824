// SPDX-License-Identifier: GPL-3.0-or-later
//
// Numbers of the keys as the form's key-down handlers know them. A letter or digit key has the
// code of its capital letter or digit; the digits of the number pad are 96 to 105.
#pragma once

namespace tallyforge {

inline constexpr int kKeyBackspace = 8;
inline constexpr int kKeyTab = 9;
inline constexpr int kKeyEnter = 13;
inline constexpr int kKeyShift = 16;
inline constexpr int kKeyCtrl = 17;
inline constexpr int kKeyAlt = 18;
inline constexpr int kKeyEscape = 27;
inline constexpr int kKeySpace = 32;
inline constexpr int kKeyPageUp = 33;
inline constexpr int kKeyPageDown = 34;
inline constexpr int kKeyEnd = 35;
inline constexpr int kKeyHome = 36;
inline constexpr int kKeyLeft = 37;
inline constexpr int kKeyUp = 38;
inline constexpr int kKeyRight = 39;
inline constexpr int kKeyDown = 40;
inline constexpr int kKeyInsert = 45;
inline constexpr int kKeyDelete = 46;
inline constexpr int kKeyDigit5 = 53;
inline constexpr int kKeyDigit6 = 54;
inline constexpr int kKeyPad5 = 101;
inline constexpr int kKeyPad6 = 102;
/// Keys of punctuation have codes above the function keys; none of them is looked at by name.
inline constexpr int kKeyPunctuation = 190;
inline constexpr int kKeyF1 = 112;
inline constexpr int kKeyF8 = 119;
inline constexpr int kKeyF9 = 120;
inline constexpr int kKeyF10 = 121;
inline constexpr int kKeyF11 = 122;
inline constexpr int kKeyF12 = 123;

/// Code of the key that types `character` (a byte; 8, 9, 13, 27 and blank are keys of their own).
[[nodiscard]] constexpr int keyCodeOf(int character) {
    if (character >= 'a' && character <= 'z') {
        return character - 'a' + 'A';
    }
    const bool named =
        (character >= '0' && character <= '9') || (character >= 'A' && character <= 'Z') || character <= kKeySpace;
    return named ? character : kKeyPunctuation;
}

}  // namespace tallyforge
