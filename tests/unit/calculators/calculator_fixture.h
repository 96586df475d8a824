// SPDX-License-Identifier: GPL-3.0-or-later
//
// A calculator dialog without its key: opened, typed into and clicked as by a hand.
#pragma once

#include "dialogs/calculator_dialog.h"
#include "dialogs/dialog_hand_over.h"
#include "dialogs/unit_choice.h"
#include "engine/engine.h"
#include "platform/form_input.h"
#include "platform/key_codes.h"
#include "records/settings_file.h"
#include "support/test_platform.h"
#include "support/typing.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace tallyforge {

/// The open dialog under the hand.
class DialogAtHand {
public:
    explicit DialogAtHand(Form& dialog) : form(dialog) {}

    void type(std::string_view text) const { strikeAll(form, text); }
    void press(int keyCode, int character = 0, std::uint8_t shift = 0) const {
        strike(form, keyCode, character, shift);
    }
    void enter(std::string_view text = {}) const {
        type(text);
        press(kKeyEnter, 13);
    }
    void clickOn(std::string_view name, int index = kNoIndex) const {
        Control* control = form.find(name, index);
        ASSERT_NE(control, nullptr) << name;
        EXPECT_TRUE(click(form, *control)) << name << " " << index;
    }
    [[nodiscard]] const Control& at(std::string_view name, int index = kNoIndex) const {
        const Control* control = form.find(name, index);
        EXPECT_NE(control, nullptr) << name;
        static const Control kNone;
        return control == nullptr ? kNone : *control;
    }
    [[nodiscard]] std::string field(int index) const { return at("txtVal", index).text; }
    [[nodiscard]] std::string focus() const { return form.focus == nullptr ? "" : form.focus->fullName(); }

    Form& form;
};

class CalculatorTest : public ::testing::Test {
protected:
    CalculatorTest() { calc.units = SettingsFile::freshUnits(); }

    /// Opens the dialog of `table`, has `hand` at it, and closes it.
    void open(const CalculatorTable& table, const std::function<void(DialogAtHand)>& hand) {
        CalculatorDialog dialog(calc, handOver, services, table);
        platform.inDialog = [&](Form& form) { hand(DialogAtHand(form)); };
        platform.showDialog(dialog);
        platform.inDialog = nullptr;
    }
    /// The same by a key under `modifiers`, with `x` on the stack.
    void openWith(const CalculatorTable& table, std::uint8_t modifiers, const ValueCell& x,
                  const std::function<void(DialogAtHand)>& hand) {
        calc.s.stack.Xreg = x;
        calc.s.entry.EntryOpen = true;
        calc.commit.deliverX();
        calc.s.modifiers.ModifierMask = modifiers;
        handOver.EnterDialog();
        open(table, hand);
        handOver.LeaveDialog();
    }
    /// Values of the tape's lines from `first` on.
    [[nodiscard]] std::vector<double> posted(std::size_t first = 0) const {
        std::vector<double> values;
        for (std::size_t row = static_cast<std::size_t>(calc.tape.fillers()) + first; row < calc.tape.count(); ++row) {
            values.push_back(calc.number(calc.tape.value(row)));
        }
        return values;
    }
    [[nodiscard]] std::string line(std::size_t fromEnd = 0) const {
        return toUnicode(calc.tape.row(calc.tape.count() - 1 - fromEnd), Face::Terminal);
    }
    void expectBox(std::string_view title, std::string_view text) {
        ASSERT_EQ(platform.boxes.size(), 1U);
        EXPECT_EQ(platform.boxes[0].title, title);
        EXPECT_EQ(platform.boxes[0].text, text);
        platform.boxes.clear();
    }

    TestPlatform platform;
    Engine calc{platform};
    DialogHandOver handOver{calc};
    CalculatorServices services;
};

}  // namespace tallyforge
