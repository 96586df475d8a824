// SPDX-License-Identifier: GPL-3.0-or-later
//
// A calculator with a folder of programs: a test writes one, loads it and presses its keys.
#pragma once

#include "support/calculator_fixture.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace tallyforge {

class ProgramAtHand : public ::testing::Test, protected CalculatorAtHand {
protected:
    static constexpr std::size_t kKeyA = 15;
    static constexpr std::size_t kKeyB = 14;
    static constexpr std::size_t kInit = 19;

    void writeProgram(std::string_view text, const std::string& name = "test.rec") const {
        std::filesystem::create_directories(platform.folder / "programs");
        writeFile("programs/" + name, text);
    }
    /// Chooses Load Program, answers `name`, and yes to all questions.
    void loadFile(const std::string& name = "test.rec") {
        platform.texts.push_back(name);
        platform.answers = {Answer::Yes, Answer::Yes, Answer::Yes};
        choose(form().mnuProgram);
        platform.answers.clear();
        forget();
    }
    void loadProgram(std::string_view text) {
        writeProgram(text);
        loadFile();
    }
    /// Loads a program with one section on key A, the variables aa, bb and cc, and presses it.
    void runSection(std::string_view lines) {
        loadProgram("# aa bb cc\nlbl init\nend\nlbl a\n" + std::string(lines) + "\nend\n");
        run();
    }
    void run(std::size_t key = kKeyA) { choose(form().cmdFunctions.at(key)); }
    void forget() {
        platform.boxes.clear();
        platform.inputs.clear();
    }

    [[nodiscard]] double variable(const std::string& name) {
        return calculator->programs().state.variables.GetProgramVariable(name);
    }
    [[nodiscard]] ProgramState& programState() { return calculator->programs().state; }
    [[nodiscard]] std::string element(int below) const {
        return calc().text(s().stack.slot(s().stack.StackPtr - 1 - below));
    }
    /// "TITLE: TEXT" of every box since the load.
    [[nodiscard]] std::vector<std::string> said() const {
        std::vector<std::string> all;
        for (const MessageBox& box : platform.boxes) {
            all.push_back(box.title + ": " + box.text);
        }
        return all;
    }
    [[nodiscard]] std::string caption(std::size_t key) const { return form().cmdFunctions.at(key).text; }
    [[nodiscard]] bool bold(std::size_t key) const { return form().cmdFunctions.at(key).font.bold; }
    using Said = std::vector<std::string>;
};

}  // namespace tallyforge
