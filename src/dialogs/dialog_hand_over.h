// SPDX-License-Identifier: GPL-3.0-or-later
//
// What a key and its calculator dialog pass to each other: X and the modifiers go in, so that the
// dialog knows which quantity was asked for; a result comes back in X with a label in FnLabel.
#pragma once

#include "numbers/value_cell.h"

#include <array>
#include <cstdint>

namespace tallyforge {

class Engine;
class Form;

class DialogHandOver {
public:
    explicit DialogHandOver(Engine& calculator) : calc(calculator) {}

    /// X becomes DialogValue and the mask DialogCalcId; the mask and the label are cleared.
    void EnterDialog();
    /// A dialog that wants its X committed has set FnLabel; without one X becomes "ZZZ".
    void LeaveDialog();
    /// Both steps with `dialog` shown between them; returns when the user has closed it.
    void show(Form& dialog);
    /// Empties all that was passed.
    void ClearHandOver();

    ValueCell DialogValue;
    ValueCell DialogValue2;
    std::array<ValueCell, 7> DialogValues;
    std::uint8_t DialogCalcId = 0;

private:
    Engine& calc;
};

}  // namespace tallyforge
