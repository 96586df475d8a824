// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the engine sets off above it: the keyboard handler presses function keys, the commit puts
// the keypad's captions back, Reset leaves Program mode. The rooms above answer this.
#pragma once

#include "engine/engine_state.h"

#include <cstdint>

namespace tallyforge {

class KeypadPort {
public:
    virtual ~KeypadPort() = default;

    /// A function key of the bank, by index 0 to 23, under the present keypad and ModifierMask.
    virtual void cmdFunctions_Click(int index) = 0;
    /// An arithmetic key: 0 divide, 1 multiply, 2 subtract, 3 add.
    virtual void cmdMath_Click(int index) = 0;

    /// Paints the captions that the bank has under `mask` (0: the plain keypad).
    virtual void PaintModifiers(std::uint8_t mask) = 0;
    /// Puts the plain captions of the present keypad back.
    virtual void RepaintKeypad() = 0;
    /// Lays `keypad` over the bank, as its menu entry does.
    virtual void ShowKeypad(Keypad keypad) = 0;
    virtual void NextKeypad() = 0;
    virtual void PrevKeypad() = 0;
    virtual void KeypadHistoryBack() = 0;
    virtual void KeypadHistoryForward() = 0;
    virtual void PerformConvertFn() = 0;
    /// Finds a unit among all and converts X with it, on any keypad.
    virtual void FindUnit() = 0;

    virtual void ToggleProgramMode() = 0;
    /// A letter key of Program mode, 1 for A to 26 for Z.
    virtual void ProgramLetter(int letter) = 0;
    /// Memory array mode on or off.
    virtual void MemoryArray() = 0;

    virtual void mnuCopy_Click() = 0;
    virtual void mnuPaste_Click() = 0;
    /// The "retrieve program" command, for the program that is loaded at start.
    virtual void mnuProgram_Click() = 0;
    /// The tip of the day, shown modally; returns whether tips stay on.
    virtual bool ShowTips() = 0;
    /// Checks the digits of a base number in the entry line against BaseLetter; shows the message
    /// where they do not fit.
    virtual bool CheckBaseDigits() = 0;
    /// Ends the quiz where one runs.
    virtual void EndQuiz() = 0;
    /// Clears the partial states of the keys that take several inputs, and the conversion memories.
    virtual void ClearPartialStates() = 0;
    /// Reset inside Program mode: the run state is reset and the mode left.
    virtual void ResetProgram() = 0;
};

}  // namespace tallyforge
