// SPDX-License-Identifier: GPL-3.0-or-later
//
// Captions and tool tips beside the bank, and the prompts of the registers, letter for letter.
#include "platform/text.h"
#include "support/calculator_fixture.h"

#include <gtest/gtest.h>

namespace tallyforge {
namespace {

class FormTexts : public ::testing::Test, protected CalculatorAtHand {
protected:
    struct Wanted {
        const Control& control;
        std::string_view caption;
        std::string_view tip;
    };
    static void expectTexts(std::initializer_list<Wanted> all) {
        for (const Wanted& wanted : all) {
            EXPECT_EQ(toUnicode(wanted.control.text, Face::Arial), wanted.caption) << wanted.control.fullName();
            EXPECT_EQ(wanted.control.tip, wanted.tip) << wanted.control.fullName();
        }
    }
    /// REG with `number` in the entry line; returns the question that it asks.
    InputBox asked(std::string_view number, std::uint8_t mask) {
        platform.inputs.clear();
        type(number);
        clickWith(mask, form().cmdSTO);
        EXPECT_EQ(platform.inputs.size(), 1U);
        return platform.inputs.empty() ? InputBox{} : platform.inputs.front();
    }
    static constexpr std::string_view kArithmeticTip =
        " Use Ctrl+Click to perform register arithmetic with the contents of Register 1, "
        "and Alt+Click to use the contents of Register 2 as a constant! ";
    static constexpr std::string_view kMemoryTip = "Enter Memory Array | Shift + perform Convert Fn (F10)";
};

TEST_F(FormTexts, TheKeysBesideTheBankSayWhatTheyDo) {
    const MainForm& f = form();
    expectTexts({
        {f.cmdDown, "&Drop", " Drop x - use Del key "},
        {f.cmdXchgY, "&x<>y", " Exchange x & y - use End key "},
        {f.cmdChs, "C&HS", " Chg Sign - use \\ key "},
        {f.cmdLastx, "&Last x", "Retrieve Last x value - use Ins key "},
        {f.cmdView, "&View", " Click: Toggle the Extended View | Alt+Click: Toggle Y-Reg | Ctrl+ Toggle Lastx "},
        {f.cmdSTO, "REG", " Input a (Register) number: Click - retrieves; Shift+Click - saves; Ctrl+Click - names "},
        {f.cmdReset, "Reset",
         " Click: Initialize calculator | Ctrl+: Clear memory regs | Alt+: Both | Shift+Ctrl+Alt+: Undo last Reset"},
        {f.cmdDigits, "Display(2)", " Click: Change Display Digits | Rt. Click: Toggle Ht "},
        {f.cmdF11, "F11", "Enter Program Mode"},
        {f.cmdF12, "F12", kMemoryTip},
        {f.cmdMath[0], "÷", kArithmeticTip},
        {f.cmdMath[1], "×", kArithmeticTip},
        {f.cmdMath[2], "-", kArithmeticTip},
        {f.cmdMath[3], "+", kArithmeticTip},
    });
    EXPECT_EQ(f.txtXreg.tip, " Entry Register ");
    EXPECT_EQ(f.lstDisplayReg.tip, " Running Tape Display ");
}

TEST_F(FormTexts, NumbersEndAtTheRightOfTheirFieldsAndTheTapeGrowsFromBelow) {
    for (const Control* field : {&form().txtXreg, &form().txty_Reg, &form().txtLastx}) {
        EXPECT_TRUE(field->rightAligned) << field->name;
    }
    for (const Control& field : form().txtReg_m) {
        EXPECT_TRUE(field.rightAligned) << field.fullName();
    }
    EXPECT_EQ(form().txtXreg.maxLength, 22);
    EXPECT_TRUE(form().lstDisplayReg.fromBottom);
    EXPECT_FALSE(form().lstStack.fromBottom);
}

TEST_F(FormTexts, OnlyTheStackKeysThatHaveNothingToWorkOnStartDisabled) {
    const MainForm& f = form();
    for (const Control* key : {&f.cmdDown, &f.cmdXchgY, &f.cmdLastx}) {
        EXPECT_FALSE(key->enabled) << key->name;
    }
    for (const Control* key : {&f.cmdChs, &f.cmdView, &f.cmdSTO, &f.cmdReset, &f.cmdDigits, &f.cmdF11, &f.cmdF12}) {
        EXPECT_TRUE(key->enabled) << key->name;
    }
}

TEST_F(FormTexts, TheKeyOfTheDigitsAndTheKeyOfTheSignServeTheBinaryKeypadToo) {
    choose(form().mnuEngBinary);
    const MainForm& f = form();
    expectTexts(
        {{f.cmdDigits, "wrdsze(64)", " Change Word Size (4 - 64) "}, {f.cmdChs, "Mod", " Recall last Remainder "}});
    enter("16");
    choose(form().cmdDigits);
    EXPECT_EQ(f.cmdDigits.text, "wrdsze(16)");
    choose(form().mnuTrig);
    expectTexts({{f.cmdDigits, "Display(2)", " Click: Change Display Digits | Rt. Click: Toggle Ht "},
                 {f.cmdChs, "C&HS", " Chg Sign - use \\ key "}});
}

TEST_F(FormTexts, TheKeysOfTheModesSayHowTheModeIsLeft) {
    const MainForm& f = form();
    choose(form().cmdF12);
    expectTexts({{f.cmdF11, "F11", "Enter Program Mode"}, {f.cmdF12, "F12", "Leave Memory Array"}});
    EXPECT_FALSE(f.cmdF11.enabled);
    EXPECT_EQ(f.lblName.text, "Memory Array");
    for (const Control& key : f.cmdFunctions) {
        EXPECT_EQ(key.tip, " Click: recall | Shift+: save | Ctrl+: name ");
    }
    choose(form().cmdF12);
    expectTexts({{f.cmdF11, "F11", "Enter Program Mode"}, {f.cmdF12, "F12", kMemoryTip}});
    EXPECT_TRUE(f.cmdF11.enabled);
    EXPECT_EQ(f.lblName.text, "");

    choose(form().cmdF11);
    expectTexts({{f.cmdF11, "F11", "Leave Program Mode"}, {f.cmdF12, "F12", "Enter Memory Array"}});
    EXPECT_FALSE(f.cmdF12.enabled);
    EXPECT_EQ(f.lblName.text, "Program Mode");
    choose(form().cmdF11);
    EXPECT_EQ(f.cmdF11.tip, "Enter Program Mode");
    EXPECT_TRUE(f.cmdF12.enabled);
    EXPECT_EQ(f.lblName.text, "");
}

TEST_F(FormTexts, TheRegisterFieldsCarryTheirNumberAndTheirUse) {
    const MainForm& f = form();
    EXPECT_EQ(f.txtReg_m[0].tip, "Register 1 - Register arithmetic");
    EXPECT_EQ(f.txtReg_m[1].tip, "Register 2 - math constant");
    for (std::size_t i = 0; i < kRegisters; ++i) {
        const std::string number = std::to_string(i + 1);
        EXPECT_EQ(f.lblErg_m[i].text, number);
        if (i >= 2) {
            EXPECT_EQ(f.txtReg_m[i].tip, "Register " + number);
        }
    }
    enter("14.25");
    type("24");
    clickWith(kShift, form().cmdSTO);
    EXPECT_EQ(f.txtReg_m[23].text, "1.4e+01");
}

TEST_F(FormTexts, TheRegisterKeyAsksForANameInTheWordsOfEachUse) {
    constexpr std::string_view kPrompt = "Enter the name, only the first 4 characters will be used!";
    const InputBox recall = asked("0", 0);
    EXPECT_EQ(recall.title, "Recall Named Register");
    EXPECT_EQ(recall.prompt, kPrompt);
    const InputBox save = asked("0", kShift);
    EXPECT_EQ(save.title, "Save to Named Register");
    EXPECT_EQ(save.prompt, kPrompt);
    const InputBox name = asked("17", kCtrl);
    EXPECT_EQ(name.title, "Name Register 17");
    EXPECT_EQ(name.prompt, "Enter a name, only the first 4 characters will be used!");
}

TEST_F(FormTexts, EachQuizNamesItsSubject) {
    struct Quiz {
        std::size_t key;
        std::uint8_t mask;
        std::string_view name;
        std::string_view tip;
    };
    constexpr std::string_view kMaximum = "Enter Max. number used [Click]";
    for (const Quiz& quiz :
         {Quiz{7, 0, "Addition (+)", kMaximum}, Quiz{7, kShift, "Subtraction (-)", kMaximum},
          Quiz{10, 0, "Mutiplication (x)", kMaximum}, Quiz{10, kShift, "Division (÷)", "Enter Max. answer [Click]"}}) {
        clickWith(quiz.mask, form().cmdFunctions[quiz.key]);
        EXPECT_EQ(toUnicode(form().lblName.text, Face::Terminal), quiz.name);
        expectTexts({{form().cmdFunctions[7], "max", quiz.tip}});
        EXPECT_EQ(form().cmdFunctions[7].font, (Font{.face = Face::SmallFonts, .points = 7.0F}));
        choose(form().cmdReset);
    }
}

}  // namespace
}  // namespace tallyforge
