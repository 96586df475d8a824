// SPDX-License-Identifier: GPL-3.0-or-later
//
// Program mode: the program's keys laid over the bank, and the three keys that are no sections: the
// two explorers and the trace.
#pragma once

#include "desk/stack_keys.h"
#include "keypads/keypads.h"
#include "program/program_state.h"

#include <string>
#include <string_view>

namespace tallyforge {

class MemoryRegisters;
class ResetKey;
class SettingsFile;

/// What programs are given of the calculator.
struct ProgramParts {
    Engine& calc;
    Keypads& keypads;
    StackKeys& stackKeys;
    MemoryRegisters& registers;
    ResetKey& resetKey;
    SettingsFile& settings;
};

/// The letter of a program key that is not renamed, "A" to "X".
[[nodiscard]] std::string_view programKeyLetter(int index);
/// The key that letter 1 (A) to 24 (X) stands for; -1 for another letter.
[[nodiscard]] int keyOfProgramLetter(int letter);

class ProgramMode {
public:
    ProgramMode(ProgramParts programParts, ProgramState& programState)
        : parts(programParts), calc(programParts.calc), state(programState) {}

    /// Enters Program mode or leaves it. Rests in memory array mode, whose keys the bank holds.
    void ToggleProgramMode();
    /// Tool tips of the program keys and the colour of the trace key.
    void RefreshProgramKeyTips();
    /// Takes the bold mark off the keys `first` to `last`.
    void ClearKeyBold(int first, int last);
    void setBold(int index, bool bold);
    /// Gives the first key with caption `letter` the name `caption`.
    void rename(std::string_view letter, const std::string& caption);
    /// The first key with that caption; -1 for none.
    [[nodiscard]] int keyWithCaption(std::string_view caption) const;
    /// Caption of a program key in small letters: its label.
    [[nodiscard]] std::string label(int index) const;

    /// Runs a key that is no section. Returns whether `label` is one.
    bool specialKey(std::string_view label);
    /// Puts the variable on the tape under its name, where it is not 0.
    void listVariable(int index);
    /// Switches the trace; its key is painted in `colour` while it is on.
    void toggleTrace(KeyColour colour);

private:
    void enter();
    void leave();
    void paintKeys();
    void openFolder(const std::filesystem::path& folder);
    void traceKey();
    void listVariables();
    void askForTraceName();
    [[nodiscard]] Control& key(int index) const { return calc.form.cmdFunctions.at(static_cast<std::size_t>(index)); }

    ProgramParts parts;
    Engine& calc;
    ProgramState& state;
    Keypad keypadBefore_ = Keypad::Standard;
    std::string nameBefore_;
};

}  // namespace tallyforge
