// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the form says besides its captions: the entry line at rest, the name line, keys that rest.
#include "engine/key_names.h"
#include "keypads/keypad_table.h"
#include "support/calculator_fixture.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

namespace tallyforge {
namespace {

class FormWords : public ::testing::Test, protected CalculatorAtHand {
protected:
    [[nodiscard]] std::string line() const { return form().lineFor(nullptr); }
    [[nodiscard]] std::string words(std::size_t key) const { return form().cmdFunctions.at(key).words(); }
    /// The masks under which a key rests.
    std::set<int> idleMasks(const Control& key) const {
        std::set<int> masks;
        for (std::uint8_t mask = 0; mask < 8; ++mask) {
            s().modifiers.ModifierMask = mask;
            if (key.idle()) {
                masks.insert(mask);
            }
        }
        s().modifiers.ModifierMask = 0;
        return masks;
    }
};

TEST_F(FormWords, TheEntryLineAtRestShowsX) {
    EXPECT_EQ(form().txtXreg.resting(), "") << "nothing before the first number";
    enter("1234.5");
    EXPECT_EQ(form().txtXreg.resting(), "1,234.50");
    s().format.Mode = DisplayMode::Scientific;
    s().format.DisplayDigits = 3;
    EXPECT_EQ(form().txtXreg.resting(), "1.234e+03");
    s().stack.Xreg = ValueCell("#1Fh");
    EXPECT_EQ(form().txtXreg.resting(), "#1Fh");
    s().stack.Xreg = ValueCell("12 mm");
    EXPECT_EQ(form().txtXreg.resting(), "\"12 mm\"");
    s().stack.Xreg = ValueCell("");
    EXPECT_EQ(form().txtXreg.resting(), "");
}

TEST_F(FormWords, TheEmptyTapeShowsTheFirstSteps) {
    EXPECT_EQ(form().lstDisplayReg.resting(), "3 Enter 4 + gives 7\nF1 shows help\nUp and Down change the keypad");
    enter("3");
    EXPECT_EQ(form().lstDisplayReg.resting(), "");
}

TEST_F(FormWords, ARegisterKeySaysWhatItsRegisterHolds) {
    enter("6.5");
    type("3");
    clickWith(kShift, form().cmdSTO);
    choose(form().cmdF12);
    ASSERT_TRUE(s().modes.MemoryArrayMode);
    std::set<std::string> held;
    for (std::size_t key = 0; key < kBankKeys; ++key) {
        const std::string said = words(key);
        EXPECT_TRUE(said.starts_with(form().cmdFunctions.at(key).text + ": ")) << said;
        held.insert(said.substr(said.find(": ") + 2));
    }
    EXPECT_EQ(held, (std::set<std::string>{"6.5", "empty"}));
    EXPECT_EQ(words(static_cast<std::size_t>(keyOfRegister(3))),
              form().cmdFunctions.at(static_cast<std::size_t>(keyOfRegister(3))).text + ": 6.5");
    // The name line has the register's contents before the mode's own words.
    Control& third = form().cmdFunctions.at(static_cast<std::size_t>(keyOfRegister(3)));
    EXPECT_EQ(form().lineFor(&third), words(static_cast<std::size_t>(keyOfRegister(3))));
    EXPECT_EQ(form().lineFor(&form().cmdEnter), form().lblName.text);
}

TEST_F(FormWords, TheNameLineSaysWhyACharacterWasDropped) {
    EXPECT_EQ(line(), "Standard");
    type("1.5.");
    EXPECT_EQ(line(), "There is a \".\" already");
    type("2");
    EXPECT_EQ(line(), "Standard") << "what is taken ends it";
    type(",");
    EXPECT_EQ(line(), "The decimal character is \".\"");
    type("~");
    EXPECT_EQ(line(), "\"~\" has no meaning here");
    press(kKeyEscape, 27);
    type("1234567890123456789012");
    EXPECT_EQ(line(), "Standard");
    type("3");
    EXPECT_EQ(line(), "The entry line is full");
    platform.decimal = ',';
    start();
    type("1,5,");
    EXPECT_EQ(line(), "There is a \",\" already");
    press(kKeyEscape, 27);
    type(".");
    EXPECT_EQ(line(), "The decimal character is \",\"");
}

TEST_F(FormWords, TheNameLineTellsOfHeldModifiersAndBases) {
    holdModifiers(form(), kAlt);
    EXPECT_EQ(line(), "Alt: click Alt below, then the key");
    releaseModifiers(form());
    EXPECT_EQ(line(), "Standard");
    holdModifiers(form(), kShift);
    EXPECT_EQ(line(), "Standard");
    releaseModifiers(form());
    choose(form().optKey.at(3));
    EXPECT_EQ(line(), "Held for the next key");
    choose(form().cmdEsc);
    enter("5");
    choose(form().mnuEngBinary);
    EXPECT_EQ(line(), "Binary, 64 bits");
    type("16");
    choose(form().cmdDigits);
    EXPECT_EQ(line(), "Binary, 16 bits");
    choose(form().mnuStd);
    s().stack.Xreg = ValueCell("12 mm");
    EXPECT_EQ(line(), "\"12 mm\" is no number; Shift+Ctrl+V reads 12e-3") << "a prefix of its own";
    s().stack.Xreg = ValueCell("none");
    EXPECT_EQ(line(), "\"none\" is no number");
}

TEST_F(FormWords, KeysBesideTheBankRestUnderModifiersThatTheyDoNotKnow) {
    const std::set<int> anyMask{1, 2, 3, 4, 5, 6, 7};
    MainForm& f = form();
    for (const Control* key : {&f.cmdDown, &f.cmdXchgY, &f.cmdChs, &f.cmdLastx, &f.cmdEex, &f.cmdF11}) {
        EXPECT_EQ(idleMasks(*key), anyMask) << key->name;
    }
    EXPECT_EQ(idleMasks(f.cmdF12), (std::set<int>{2, 3, 4, 5, 6, 7}));
    s().modifiers.ModifierLatched = true;
    EXPECT_EQ(idleMasks(f.cmdF12), anyMask);
    s().modifiers.ModifierLatched = false;
    EXPECT_EQ(idleMasks(f.cmdDigits), (std::set<int>{1, 3, 4, 5, 6, 7}));
    EXPECT_EQ(idleMasks(f.cmdView), (std::set<int>{1, 3, 5, 6, 7}));
    s().window.ViewExtended = true;
    EXPECT_EQ(idleMasks(f.cmdView), anyMask);
    EXPECT_EQ(idleMasks(f.cmdReset), (std::set<int>{1, 3, 5, 6}));
    s().modes.ProgramMode = true;
    EXPECT_TRUE(idleMasks(f.cmdReset).empty());
    EXPECT_EQ(words(1), "") << "a program's keys have captions of their own";
    s().modes.ProgramMode = false;
    for (const Control& key : f.cmdMath) {
        EXPECT_EQ(idleMasks(key), (std::set<int>{1, 3, 5, 6, 7})) << key.fullName();
    }
}

TEST_F(FormWords, FunctionKeysChooseAngleFormatAndView) {
    MainForm& f = form();
    Control* const chosen[] = {&f.optDeg, &f.optRad, &f.optGrad, &f.optFix[0], &f.optFix[1], &f.optFix[2]};
    for (int key = 0; key < 6; ++key) {
        f.optRad.checked = f.optDeg.checked = false;
        press(kKeyF1 + 1 + key);
        EXPECT_TRUE(chosen[key]->checked) << key;
    }
    const bool extended = s().window.ViewExtended;
    press(kKeyF8);
    EXPECT_NE(s().window.ViewExtended, extended);
    press(kKeyF1 + 2, 0, kCtrl);
    EXPECT_TRUE(f.optFix[2].checked && !f.optRad.checked) << "not with a modifier";
}

TEST_F(FormWords, ARowOfTheTapeOrTheStackComesBackBehindWhatIsTyped) {
    enter("3");
    enter("4");
    type("5");
    clickRow(form(), form().lstStack, 0);
    EXPECT_EQ(x(), "3");
    EXPECT_EQ(s().stack.depth(), 4) << "what was typed went on the stack first";
    EXPECT_EQ(calc().text(s().stack.Yreg), "5");
    const auto fillers = static_cast<std::size_t>(calc().tape.fillers());
    type("6");
    doubleClickRow(form(), form().lstDisplayReg, fillers + 1);
    EXPECT_EQ(x(), "4");
    EXPECT_EQ(s().stack.depth(), 6);
    EXPECT_EQ(tape().back().substr(0, 4), "Rtrv");
    const auto before = everything();
    if (fillers > 0) {
        doubleClickRow(form(), form().lstDisplayReg, 0);
        EXPECT_EQ(everything(), before) << "a line that is filled up holds nothing";
    }
}

TEST_F(FormWords, ALineOfABaseComesBackWithoutTheBlanksBehindIt) {
    s().modes.BaseMode = true;
    calc().tape.clear(0);
    calc().tape.add("#1010 1010   ", ValueCell("#10101010b"));
    calc().tape.add("And            #1010b", ValueCell("#1010b"));
    doubleClickRow(form(), form().lstDisplayReg, 0);
    EXPECT_EQ(x(), "#10101010b");
    EXPECT_TRUE(tape().back().starts_with("Rtrv")) << tape().back();
    doubleClickRow(form(), form().lstDisplayReg, 1);
    EXPECT_EQ(x(), "#1010b");
    EXPECT_TRUE(tape().back().starts_with("  #1010b")) << "what stands behind two blanks is the label";
}

TEST_F(FormWords, TheRightButtonOpensTheTopicOfTheKeyOrOfTheMode) {
    const auto topic = [this](std::size_t key, std::uint8_t mask) {
        platform.helpTopics.clear();
        rightClick(form(), form().cmdFunctions.at(key), mask);
        return platform.helpTopics.empty() ? 0 : platform.helpTopics.front();
    };
    for (const KeypadTable* table : keypadTables()) {
        calc().keypads().ShowKeypad(table->id);
        for (std::size_t key = 0; key < kBankKeys; ++key) {
            EXPECT_EQ(topic(key, 0), table->rows.at(key).helpTopic) << table->name << key;
            EXPECT_EQ(topic(key, kShift), 0) << table->name << key;
        }
    }
    calc().keypads().ShowKeypad(Keypad::Standard);
    choose(form().cmdF12);
    EXPECT_EQ(topic(3, 0), 650);
    choose(form().cmdF12);
    choose(form().cmdF11);
    EXPECT_EQ(topic(3, kCtrl), 650);
}

}  // namespace
}  // namespace tallyforge
