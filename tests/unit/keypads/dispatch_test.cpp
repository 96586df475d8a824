// SPDX-License-Identifier: GPL-3.0-or-later
#include "unit/keypads/keypads_fixture.h"

#include <cmath>

namespace tallyforge {
namespace {

using DispatchTest = KeypadsTest;

TEST_F(DispatchTest, AFunctionTakesTheTypedNumberAndReplacesIt) {
    type("7");
    enter();
    type("4");
    clickBank(0);
    EXPECT_EQ(x(), "0.25");
    EXPECT_EQ(y(), "7");
    EXPECT_EQ(lastx(), "4");
    EXPECT_EQ(calc.s.stack.depth(), 2);
    EXPECT_EQ(lastLine(), "1/X                0.25");
    EXPECT_EQ(calc.entryText(), "");
}

TEST_F(DispatchTest, AFunctionOnAnEmptyLineWorksOnTheTopOfTheStack) {
    type("4");
    enter();
    clickBank(1);
    EXPECT_EQ(x(), "16");
    EXPECT_EQ(calc.s.stack.depth(), 1);
    EXPECT_EQ(lastx(), "4");
}

TEST_F(DispatchTest, AResultKeepsAllItsDigits) {
    type("3");
    clickBank(0);
    EXPECT_EQ(calc.xNumber(), 1.0 / 3.0);
    EXPECT_EQ(calc.number(calc.s.stack.slot(1)), 1.0 / 3.0);
}

TEST_F(DispatchTest, OnAnEmptyStackTheResultKeepsItsDigitsAndLastXTheOperand) {
    pressRow([](Keys& k) {
        k.calc.s.stack.Xreg = 1.0 / 3.0;
        k.calc.s.delivery.FnLabel = "third";
    });
    EXPECT_EQ(calc.xNumber(), 1.0 / 3.0);
    EXPECT_EQ(lastx(), "0");
    EXPECT_EQ(calc.s.stack.depth(), 0);
    EXPECT_EQ(y(), "0");
}

TEST_F(DispatchTest, XIsTheTypedNumberWhenTheFunctionRuns) {
    static double seen = 0.0;
    type("2.5");
    pressRow([](Keys& k) { seen = k.calc.xNumber(); });
    EXPECT_EQ(seen, 2.5);
}

TEST_F(DispatchTest, SilentOperandIsPushedWithoutALineOfItsOwn) {
    const std::size_t before = calc.tape.lines();
    type("9");
    pressRow(
        [](Keys& k) {
            k.calc.s.stack.Xreg = std::sqrt(k.calc.xNumber());
            k.calc.s.delivery.FnLabel = "own";
        },
        7, true);
    EXPECT_EQ(calc.tape.lines(), before + 1);
    EXPECT_EQ(x(), "3");
    EXPECT_EQ(calc.s.stack.depth(), 1);
}

TEST_F(DispatchTest, SilentOperandTableIsTheOneOfTheKeypads) {
    struct Row {
        Keypad keypad;
        std::vector<int> keys;
    };
    const Row rows[] = {{Keypad::Standard, {7, 10, 17, 19}},
                        {Keypad::Engineering, {5, 9, 13, 14, 15, 19, 20, 22, 23}},
                        {Keypad::Trigonometry, {5, 11, 12, 13, 14, 15, 23}},
                        {Keypad::Magnetics, {4, 8, 9, 11, 12, 13, 17, 18, 21, 23}},
                        {Keypad::Binary, {}},
                        {Keypad::Convert, {}},
                        {Keypad::Tables, {}}};
    for (const Row& row : rows) {
        std::vector<int> silent;
        for (const KeyRow& key : keypadTable(row.keypad).rows) {
            if (key.silentOperand) {
                silent.push_back(key.key);
            }
        }
        EXPECT_EQ(silent, row.keys) << keypadTable(row.keypad).name;
    }
}

TEST_F(DispatchTest, NothingDoneClearsTheLineAndCommitsNothing) {
    type("6");
    enter();
    type("5");
    const std::size_t before = calc.tape.lines();
    pressRow([](Keys& k) { k.calc.s.stack.Xreg = kNothingDone; });
    EXPECT_TRUE(platform.boxes.empty());
    EXPECT_EQ(calc.entryText(), "");
    EXPECT_EQ(calc.tape.lines(), before + 1) << "the typed operand only";
    EXPECT_EQ(element(2), "5");
    enter();
    EXPECT_EQ(x(), "5");
    EXPECT_EQ(calc.s.stack.depth(), 3);
}

TEST_F(DispatchTest, NoMeaningShowsFailure85AndCommitsNothing) {
    type("5");
    enter();
    const std::size_t before = calc.tape.lines();
    latch(0);
    pressRow([](Keys& k) { k.calc.s.stack.Xreg = kNoMeaning; });
    expectBox("cmdFunctions Error!",
              "That Extended key (or keys) not valid for that function,\nsee Help file or tooltip for applicable "
              "Extended keys");
    EXPECT_EQ(calc.tape.lines(), before);
    EXPECT_EQ(element(1), "5");
    EXPECT_EQ(calc.s.stack.depth(), 1);
    EXPECT_EQ(calc.s.modifiers.ModifierMask, 0);
    clickBank(1);
    EXPECT_EQ(x(), "25");
    EXPECT_EQ(lastLine(), "X\xFD                25.00") << "no label is left over";
}

TEST_F(DispatchTest, AThrownFailure85ActsAsTheSentinel) {
    type("5");
    enter();
    pressRow([](Keys&) { throw Failure{FailureNumber::ModifierNotValid}; });
    EXPECT_EQ(platform.boxes.size(), 1U);
    EXPECT_EQ(element(1), "5");
    EXPECT_EQ(calc.s.stack.depth(), 1);
}

TEST_F(DispatchTest, AFailureGivesZeroUnderNoDataAndLastXKeepsTheOldX) {
    type("8");
    enter();
    type("4\\");
    clickBank(2);
    ASSERT_EQ(platform.boxes.size(), 1U);
    EXPECT_EQ(platform.boxes[0].text, "Illegal operation (square root of negitive number)!");
    EXPECT_EQ(x(), "0");
    EXPECT_EQ(y(), "8");
    EXPECT_EQ(lastx(), "-4");
    EXPECT_EQ(calc.s.stack.depth(), 2);
    EXPECT_EQ(lastLine(), "No Data!           0.00");
}

TEST_F(DispatchTest, TheTitleIsTheProcedureThatStoredItsNameLast) {
    type("0");
    enter();
    clickBank(0);
    expectBox("cmdFunctions Error!", "Division by zero - be sure all variables are defined!");
    platform.boxes.clear();
    type("0");
    clickBank(0);
    expectBox("cmdEnter Error!", "Division by zero - be sure all variables are defined!");
}

TEST_F(DispatchTest, InAProgramRunTheTitleHasTwoBlanks) {
    keypads.dispatch.programRuns = [] { return true; };
    type("0");
    clickBank(0);
    expectBox("Program  Error!", "Division by zero - be sure all variables are defined!");
}

TEST_F(DispatchTest, AnOverflowIsReportedWithItsRange) {
    type("1e200");
    enter();
    clickBank(1);
    expectBox("cmdFunctions Error!", "Number outside of range: ± 1.8e308, & ± 4.9e-324"_t);
    EXPECT_EQ(x(), "0");
    EXPECT_EQ(lastx(), "1e200");
}

TEST_F(DispatchTest, AFailureEndsTheFunctionAndClearsTheLamps) {
    type("3");
    latch(1);
    pressRow([](Keys& k) {
        k.calc.s.delivery.FnLabel = "half";
        throw Failure{FailureNumber::BaseNumberRequired};
    });
    EXPECT_EQ(platform.boxes.at(0).text, "Binary number required in x-register!");
    EXPECT_FALSE(calc.form.shaCtrl.visible);
    EXPECT_EQ(lastLine(), "No Data!           0.00");
}

TEST_F(DispatchTest, AnotherTypeMismatchIsReportedByItsNumber) {
    type("3");
    enter();
    pressRow([](Keys&) { throw Failure{FailureNumber::TypeMismatch}; });
    expectBox("cmdFunctions Error!", "Error number 13");
}

TEST_F(DispatchTest, AFunctionOfPlainNumbersLeavesANumberOfABaseOnTheStackAndSaysNothing) {
    calc.commit.BeginEntry();
    calc.setEntry("#101b");
    calc.commit.cmdEnter_Click();
    const std::size_t before = calc.tape.lines();
    clickBank(0);
    EXPECT_TRUE(platform.boxes.empty());
    EXPECT_EQ(element(1), "#101b");
    EXPECT_EQ(calc.s.stack.depth(), 1);
    EXPECT_EQ(calc.tape.lines(), before);
}

TEST_F(DispatchTest, AfterAKeyTheEntryLineHasTheKeyboard) {
    type("4");
    clickBank(1);
    EXPECT_EQ(calc.form.focus, &calc.form.txtXreg);
    EXPECT_FALSE(calc.s.entry.EntryTouched);
}

TEST_F(DispatchTest, TheFormatOfAFunctionIsTakenBackAfterItsCommit) {
    calc.s.format.DisplayDigits = 5;
    type("4");
    pressRow([](Keys& k) {
        k.calc.display.SaveDisplay(1);
        k.calc.s.delivery.FnLabel = "one";
    });
    EXPECT_EQ(lastLine(), "one                 4.0");
    EXPECT_EQ(calc.s.format.DisplayDigits, 5);
}

TEST_F(DispatchTest, ShortCutsReachTheFirstKeysOnEveryKeypad) {
    type("4x");
    EXPECT_EQ(x(), "0.25");
    keypads.ShowKeypad(Keypad::Magnetics);
    type("5X");
    EXPECT_EQ(x(), "25");
    EXPECT_EQ(calc.form.lblBank.text, "Magnetics");
}

TEST_F(DispatchTest, BaseDigitsThatDoNotFitAreRefusedWithTheirMessage) {
    struct Row {
        const char* letter;
        const char* typed;
        const char* text;
    };
    const Row rows[] = {{"b", "#102", "'b' is binary number\nOnes (1) and Zeros (0) Only!"},
                        {"d", "#1A", "'d' is decimal number\n(0 to 9) Only!"},
                        {"o", "#18", "'o' is octal number\n0 to 7 Only!"}};
    for (const Row& row : rows) {
        platform.boxes.clear();
        calc.s.entry.BaseLetter = row.letter;
        calc.setEntry(row.typed);
        EXPECT_FALSE(keypads.CheckBaseDigits());
        expectBox("Syntax Error", row.text);
    }
    calc.s.entry.BaseLetter = "h";
    calc.setEntry("#1FA");
    EXPECT_TRUE(keypads.CheckBaseDigits());
}

}  // namespace
}  // namespace tallyforge
