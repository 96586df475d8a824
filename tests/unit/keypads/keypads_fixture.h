// SPDX-License-Identifier: GPL-3.0-or-later
//
// A calculator with its keypads, typed and clicked as by a hand.
#pragma once

#include "desk/entry_line.h"
#include "desk/stack_keys.h"
#include "engine/engine.h"
#include "keypads/keypads.h"
#include "platform/form_input.h"
#include "platform/key_codes.h"
#include "support/test_platform.h"
#include "support/typing.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <string_view>

namespace tallyforge {

class KeypadsTest : public ::testing::Test {
protected:
    KeypadsTest() {
        hangKeyboard(calc, entry);
        keypads.ShowKeypad(Keypad::Standard);
        calc.focusEntry();
    }

    void press(int keyCode, int character = 0, std::uint8_t shift = 0) { strike(calc.form, keyCode, character, shift); }
    void type(std::string_view text) { strikeAll(calc.form, text); }
    void enter() { press(kKeyEnter, 13); }
    void hold(std::uint8_t mask) { holdModifiers(calc.form, mask); }
    void letGo() { releaseModifiers(calc.form); }
    void clickBank(std::size_t index) { click(calc.form, calc.form.cmdFunctions.at(index)); }
    void clickMath(std::size_t index) { click(calc.form, calc.form.cmdMath.at(index)); }
    void latch(std::size_t index) { click(calc.form, calc.form.optKey.at(index)); }
    void rightClickBank(std::size_t index, std::uint8_t shift = 0) {
        rightClick(calc.form, calc.form.cmdFunctions.at(index), shift);
    }

    /// A key of the test's own that does `does`.
    void pressRow(void (*does)(Keys&), int key = 9, bool silent = false) {
        keypads.dispatch.press({.key = key, .silentOperand = silent, .does = does});
    }
    void expectBox(std::string_view title, std::string_view text) {
        ASSERT_EQ(platform.boxes.size(), 1U);
        EXPECT_EQ(platform.boxes[0].title, title);
        EXPECT_EQ(platform.boxes[0].text, text);
        EXPECT_EQ(platform.boxes[0].kind, BoxKind::Stop);
        EXPECT_EQ(platform.boxes[0].buttons, BoxButtons::Ok);
    }
    [[nodiscard]] const Control& bank(std::size_t index) const { return calc.form.cmdFunctions.at(index); }
    [[nodiscard]] std::string x() const { return calc.text(calc.s.stack.Xreg); }
    [[nodiscard]] std::string y() const { return calc.text(calc.s.stack.Yreg); }
    [[nodiscard]] std::string lastx() const { return calc.text(calc.s.stack.LastX); }
    [[nodiscard]] std::string element(int index) const { return calc.text(calc.s.stack.slot(index)); }
    [[nodiscard]] std::string lastLine() const { return calc.tape.row(calc.tape.count() - 1); }
    [[nodiscard]] std::string reg(std::size_t number) const { return calc.text(calc.s.memory.Registers.at(number)); }

    TestPlatform platform;
    Engine calc{platform};
    Keypads keypads{calc};
    StackKeys stackKeys{calc};
    EntryLine entry{calc, stackKeys};
};

}  // namespace tallyforge
