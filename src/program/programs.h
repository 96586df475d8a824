// SPDX-License-Identifier: GPL-3.0-or-later
//
// Programs as the calculator knows them: loading one, running a section by its key, Program mode.
#pragma once

#include "program/key_words.h"
#include "program/program_mode.h"
#include "program/program_run.h"
#include "program/program_state.h"

#include <filesystem>
#include <memory>
#include <string>

namespace tallyforge {

class Programs {
public:
    explicit Programs(ProgramParts programParts)
        : parts(programParts), calc(programParts.calc), mode(programParts, state), keys(programParts, state, mode) {}

    /// Runs the section of program key `index`, 0 to 23, or the special key that it is.
    void RunProgramKey(int index);
    /// A letter key of Program mode, 1 for A to 26 for Z.
    void pressLetter(int letter);
    /// The command Load Program: asks for a file, loads it and runs its "init" section. Takes the
    /// default program without asking where the start of the calculator wants it.
    void mnuProgram_Click();
    /// Loads the program of that file, with the questions of Load Program but the one for its name.
    void openFile(const std::filesystem::path& file);
    /// Loads a program that belongs to a key, without asking; the default program stays.
    void loadBuiltIn(const std::string& name);
    /// Reset in Program mode: "init" runs, then the mode is left.
    void resetProgram();
    void ToggleProgramMode() { mode.ToggleProgramMode(); }

    [[nodiscard]] bool running() const { return control_.running > 0; }

    ProgramState state;

private:
    ProgramParts parts;
    Engine& calc;

public:
    ProgramMode mode;

private:
    [[nodiscard]] bool agreed(const std::string& name);
    void rememberDefault(const std::string& name);
    void load(const std::filesystem::path& folder, const std::string& name);
    void readDeclarations(const ProgramText& text);
    void declare(std::string_view line);
    [[nodiscard]] std::shared_ptr<ProgramText> readProgram();
    bool mayStart(int index, const std::string& label);
    void begin(int index, const std::string& label);
    [[nodiscard]] bool countsFit(const ProgramText& text);
    void runSection(int index, const std::string& label);
    void report(int index, int number, const std::string& own, int line);
    void fail(const std::string& text, const std::string& title = "Program Error!");

    KeyWords keys;
    RunControl control_;
    std::string bytes_;                  ///< the file as it was read last
    std::shared_ptr<ProgramText> text_;  ///< and taken apart; empty after a load
    bool loadingAtStart_ = false;
};

}  // namespace tallyforge
