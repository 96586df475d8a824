// SPDX-License-Identifier: GPL-3.0-or-later
//
// A program word does what its key does: the same press, the same tape line, the same messages.
#pragma once

#include "program/program_mode.h"
#include "program/program_words.h"

namespace tallyforge {

class KeyWords {
public:
    KeyWords(ProgramParts programParts, ProgramState& programState, ProgramMode& programMode)
        : parts(programParts), calc(programParts.calc), state(programState), mode(programMode) {}

    /// Presses the key of `word`. `registerNumber` is the register of "sto" and "rcl", and 1 for a
    /// "reset" that leaves Program mode.
    void DoProgramWord(const FunctionWord& word, int registerNumber);
    /// Presses Drop.
    void drop() { parts.stackKeys.cmdDown_Click(); }
    /// A key of a keypad that is not on display, with the mask that the caller has set.
    void PressProgramKey(Keypad keypad, int index);

private:
    void pressDirect(DirectKey key, int registerNumber);
    void pressReset(std::uint8_t mask, bool modeComesBack);
    void pressRegister(std::uint8_t mask, int registerNumber);

    ProgramParts parts;
    Engine& calc;
    ProgramState& state;
    ProgramMode& mode;
};

}  // namespace tallyforge
