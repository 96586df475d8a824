// SPDX-License-Identifier: GPL-3.0-or-later
//
// The keys of the Binary keypad: showing a number in a base, the way from a real number and back,
// logic, shifts and rotations, and the arithmetic on numbers of a base.
#pragma once

#include "numbers/value_cell.h"

#include <string>
#include <string_view>

namespace tallyforge {

class Engine;

class BinaryKeys {
public:
    explicit BinaryKeys(Engine& calculator);

    /// The keys that show X in a base: X becomes that text.
    void DisplayBinary() { show('b'); }
    void DisplayDecimal() { show('d'); }
    void DisplatHex() { show('h'); }
    void DisplayOctal() { show('o'); }

    /// A real number to the base of `letter`. Raises 6 for a number of a base.
    void toBase(char letter);
    /// A number of a base to a real one, a real one to binary. Raises 6.
    void toBinaryOrReal();

    /// X becomes the result of "AND", "OR", "XOR" (with Y, which it replaces) or "NOT".
    void LogicOp(std::string_view name);

    /// X shifted or rotated: rL, rR, rLB, rRB, sL, sR, sLB, sRB or AsR. For a plain X a message,
    /// and nothing changes.
    void RotateShift(std::string_view code);

    /// `left` op `right` for the arithmetic key `index`, in the base of X or else of the other
    /// operand. A division leaves its remainder in BaseRemainder. Raises 4, 6, 11, 13, 86.
    [[nodiscard]] ValueCell compute(int index, const ValueCell& left, const ValueCell& right);

private:
    void show(char letter);

    Engine& calc;
};

/// A run of bits shifted or rotated by `code` in a word of `wordSize` bits, with leading zeros as
/// they fall; an unknown code gives the bits back.
[[nodiscard]] std::string rotateShiftBits(std::string bits, std::string_view code, int wordSize);

}  // namespace tallyforge
