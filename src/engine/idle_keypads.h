// SPDX-License-Identifier: GPL-3.0-or-later
//
// A keypad port on which nothing happens, for an engine that runs without keypads.
#pragma once

#include "engine/keypad_port.h"

namespace tallyforge {

class IdleKeypads final : public KeypadPort {
public:
    void cmdFunctions_Click(int /*index*/) override {}
    void cmdMath_Click(int /*index*/) override {}
    void PaintModifiers(std::uint8_t /*mask*/) override {}
    void RepaintKeypad() override {}
    void ShowKeypad(Keypad /*keypad*/) override {}
    void NextKeypad() override {}
    void PrevKeypad() override {}
    void KeypadHistoryBack() override {}
    void KeypadHistoryForward() override {}
    void PerformConvertFn() override {}
    void FindUnit() override {}
    void ToggleProgramMode() override {}
    void ProgramLetter(int /*letter*/) override {}
    void MemoryArray() override {}
    void mnuCopy_Click() override {}
    void mnuPaste_Click() override {}
    void mnuProgram_Click() override {}
    bool ShowTips() override { return false; }
    bool CheckBaseDigits() override { return true; }
    void EndQuiz() override {}
    void ClearPartialStates() override {}
    void ResetProgram() override {}
};

}  // namespace tallyforge
