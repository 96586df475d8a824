// SPDX-License-Identifier: GPL-3.0-or-later
//
// From a value to lines of the tape: three modes of a plain number, numbers of a base in groups,
// and the label that a line carries.
#pragma once

#include "engine/engine_state.h"
#include "engine/tape.h"
#include "numbers/value_cell.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace tallyforge {

class Engine;

class NumberDisplay {
public:
    explicit NumberDisplay(Engine& calculator) : calc(calculator) {}

    /// Writes `value` to the tape. A number of a base without its letter gets "h" where it has a
    /// hex digit; without one a message comes, and nothing is written: returns false. Raises 13 and 6
    /// for a text that is no number.
    [[nodiscard]] bool DspFmat(const ValueCell& value);

    /// `value` in the user's format (mode, digits, room for FnLabel). Raises 13 and 6.
    [[nodiscard]] std::string numDisplay(const ValueCell& value);

    /// `number` as `look` has it, with room for a label of `labelSize` characters.
    [[nodiscard]] static std::string shownNumber(double number, const NumberLook& look, std::size_t labelSize);
    /// A line of the tape: `label` on the left, `text` at the right edge.
    [[nodiscard]] static std::string labelled(std::string_view label, std::string_view text);

    /// Size from which on a number in a packed look is too long for a line that it shares with a
    /// label.
    [[nodiscard]] static double oneLineBelow(std::uint8_t look);

    /// Engineering notation with `digits` digits behind the point: "12.345e+03".
    [[nodiscard]] static std::string EngFormat(double value, int digits, char decimal);

    /// Joins `text` with FnLabel and writes the line or lines.
    void SetUpDisplay(const std::string& text);

    /// Appends one line and redraws the stack list. Empties FnLabel.
    void Add2Display(std::string_view text);
    /// Makes room for a line: one filler less, or a wider list when none is left.
    void DisplayChg();

    /// Remembers the format and switches to fixed with `digits` digits.
    void SaveDisplay(int digits);
    /// Returns to the remembered format.
    void RestoreDisplay();
    /// The user's format from now on.
    void useFormat(DisplayMode mode, int digits);

    void cmdDigits_Click();
    void optFix_Click(DisplayMode mode);

    /// The keys that move whole bytes need a word of more than one.
    void enableByteKeys(bool enabled);
    /// Caption and tool tip of the digits key for the present format.
    void writeDigitsCaption();

private:
    [[nodiscard]] bool writeUnformatted(const ValueCell& value);
    void lineWritten();
    [[nodiscard]] bool tagWithHex(const ValueCell& value);
    void setUpBaseNumber(std::string_view text);
    bool setWordSize(double bits);
    bool setDigits(double digits);

    Engine& calc;
};

}  // namespace tallyforge
