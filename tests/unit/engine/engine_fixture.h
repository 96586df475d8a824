// SPDX-License-Identifier: GPL-3.0-or-later
//
// A calculator's engine with its entry line and stack keys, and arithmetic enough to see a number
// travel. Typing goes key by key, as from a keyboard.
#pragma once

#include "desk/entry_line.h"
#include "desk/stack_keys.h"
#include "engine/engine.h"
#include "engine/idle_keypads.h"
#include "platform/form_input.h"
#include "platform/key_codes.h"
#include "support/test_platform.h"
#include "support/typing.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace tallyforge {

/// Records which keys the keyboard pressed above the engine.
class RecordingKeypads final : public KeypadPort {
public:
    explicit RecordingKeypads(Engine& engine) : calc(engine) {}
    void cmdFunctions_Click(int index) override { note("fn", index); }
    void cmdMath_Click(int index) override { note("math", index); }
    void PaintModifiers(std::uint8_t mask) override { pressed.push_back("paint " + std::to_string(mask)); }
    void RepaintKeypad() override { ++repaints; }
    void ShowKeypad(Keypad keypad) override { pressed.push_back("show " + std::to_string(static_cast<int>(keypad))); }
    void NextKeypad() override { pressed.emplace_back("next"); }
    void PrevKeypad() override { pressed.emplace_back("prev"); }
    void KeypadHistoryBack() override { pressed.emplace_back("back"); }
    void KeypadHistoryForward() override { pressed.emplace_back("forward"); }
    void PerformConvertFn() override { pressed.emplace_back("convert"); }
    void FindUnit() override { pressed.emplace_back("find"); }
    void ToggleProgramMode() override { pressed.emplace_back("program"); }
    void ProgramLetter(int letter) override { pressed.push_back("letter " + std::to_string(letter)); }
    void MemoryArray() override { pressed.emplace_back("memory"); }
    void mnuCopy_Click() override { pressed.emplace_back("copy"); }
    void mnuPaste_Click() override { pressed.emplace_back("paste"); }
    void mnuProgram_Click() override { pressed.emplace_back("load"); }
    bool ShowTips() override { return false; }
    bool CheckBaseDigits() override { return baseDigitsFit; }
    void EndQuiz() override { pressed.emplace_back("end quiz"); }
    void ClearPartialStates() override {}
    void ResetProgram() override {}

    std::vector<std::string> pressed;
    int repaints = 0;
    bool baseDigitsFit = true;

private:
    void note(const std::string& kind, int index) {
        pressed.push_back(kind + " " + std::to_string(index) + " keypad " +
                          std::to_string(static_cast<int>(calc.s.modes.ActiveKeypad)) + " mask " +
                          std::to_string(calc.s.modifiers.ModifierMask) + (calc.s.entry.EntryOpen ? " open" : "") +
                          (calc.s.modes.BaseMode ? " base" : ""));
    }
    Engine& calc;
};

class EngineTest : public ::testing::Test {
protected:
    EngineTest() {
        calc.connect(keypads);
        hangKeyboard(calc, entry);
        calc.focusEntry();
    }

    void press(int keyCode, int character = 0, std::uint8_t shift = 0) { strike(calc.form, keyCode, character, shift); }
    void type(std::string_view text) { strikeAll(calc.form, text); }
    void enter() { press(kKeyEnter, 13); }
    void commitText(std::string_view text) {
        calc.commit.BeginEntry();
        calc.setEntry(text);
        calc.commit.cmdEnter_Click();
    }
    /// A function's result: replaces the top under `label`.
    void replaceTop(ValueCell value, std::string_view label) {
        EXPECT_TRUE(calc.commit.FetchX());
        calc.s.stack.LastX = calc.s.stack.Xreg;
        calc.s.stack.Xreg = std::move(value);
        calc.s.delivery.FnLabel = label;
        calc.commit.deliverX();
    }

    [[nodiscard]] std::string x() const { return calc.text(calc.s.stack.Xreg); }
    [[nodiscard]] std::string y() const { return calc.text(calc.s.stack.Yreg); }
    [[nodiscard]] std::string lastx() const { return calc.text(calc.s.stack.LastX); }
    [[nodiscard]] std::string element(int index) const { return calc.text(calc.s.stack.slot(index)); }
    /// Tape line `index` from 1, fillers not counted.
    [[nodiscard]] std::string tapeLine(std::size_t index) const {
        return calc.tape.row(static_cast<std::size_t>(calc.tape.fillers()) + index - 1);
    }
    [[nodiscard]] std::string lastLine() const { return calc.tape.row(calc.tape.count() - 1); }

    TestPlatform platform;
    Engine calc{platform};
    RecordingKeypads keypads{calc};
    StackKeys stackKeys{calc};
    EntryLine entry{calc, stackKeys};
};

}  // namespace tallyforge
