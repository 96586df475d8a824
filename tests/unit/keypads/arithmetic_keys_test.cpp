// SPDX-License-Identifier: GPL-3.0-or-later
#include "unit/keypads/keypads_fixture.h"

#include <limits>

namespace tallyforge {
namespace {

constexpr std::size_t kDivide = 0;
constexpr std::size_t kMultiply = 1;
constexpr std::size_t kSubtract = 2;
constexpr std::size_t kAdd = 3;

class ArithmeticKeysTest : public KeypadsTest {
protected:
    void push(std::string_view text) {
        type(text);
        enter();
    }
    void setRegister(std::size_t number, double value) { calc.s.memory.Registers.at(number) = value; }
    void clickUnder(std::uint8_t mask, std::size_t key) {
        latch(static_cast<std::size_t>(mask) - 1);
        clickMath(key);
    }
    void expectRangeMessage() {
        ASSERT_EQ(platform.boxes.size(), 1U);
        EXPECT_EQ(platform.boxes[0].text, "Number outside of range: ± 1.8e308, & ± 4.9e-324"_t);
        EXPECT_EQ(platform.boxes[0].title, "cmdMath Error!");
        EXPECT_EQ(platform.boxes[0].kind, BoxKind::Stop);
    }
};

TEST_F(ArithmeticKeysTest, EachKeyComputesYOperatorX) {
    const struct {
        std::size_t key;
        const char* result;
        std::string_view label;
    } rows[] = {{kDivide, "2", "ö"_t}, {kMultiply, "18", "X"}, {kSubtract, "3", "-"}, {kAdd, "9", "+"}};
    for (const auto& row : rows) {
        push("6");
        const int depth = calc.s.stack.depth();
        type("3");
        clickMath(row.key);
        EXPECT_EQ(x(), row.result);
        EXPECT_EQ(lastx(), "3");
        EXPECT_EQ(calc.s.stack.depth(), depth);
        EXPECT_TRUE(lastLine().starts_with(std::string(row.label) + " ")) << lastLine();
    }
}

TEST_F(ArithmeticKeysTest, SixDividedByThreeLeavesOneElementFewer) {
    push("6");
    push("3");
    ASSERT_EQ(calc.s.stack.depth(), 2);
    type("/");
    EXPECT_EQ(x(), "2");
    EXPECT_EQ(calc.s.stack.depth(), 1);
    EXPECT_EQ(lastLine(), "\xF6                  2.00");
}

TEST_F(ArithmeticKeysTest, KeepsDivisionByZeroQuietAndCommitsTheDivisor) {
    push("6");
    type("0/");
    EXPECT_TRUE(platform.boxes.empty());
    EXPECT_EQ(x(), "0");
    EXPECT_EQ(y(), "0");
    EXPECT_EQ(lastx(), "0");
    EXPECT_EQ(calc.s.stack.depth(), 1);
    EXPECT_EQ(lastLine(), "\xF6                  0.00");
}

TEST_F(ArithmeticKeysTest, AnOverflowIsToldAndXStays) {
    push("1e308");
    type("1e300*");
    expectRangeMessage();
    EXPECT_EQ(calc.xNumber(), 1e300);
    EXPECT_EQ(calc.s.stack.depth(), 1);
}

TEST_F(ArithmeticKeysTest, OperatorsOfTheKeyboardReachTheKeys) {
    push("7");
    type("2-");
    EXPECT_EQ(x(), "5");
    type("3a");
    EXPECT_EQ(x(), "8");
    type("2m");
    EXPECT_EQ(x(), "16");
    type("4d");
    EXPECT_EQ(x(), "4");
}

TEST_F(ArithmeticKeysTest, PlusOnAnEmptyLineAddsTheTwoTopElements) {
    push("1");
    push("2");
    push("3");
    type("+");
    EXPECT_EQ(x(), "5");
    EXPECT_EQ(y(), "1");
    EXPECT_EQ(calc.s.stack.depth(), 2);
}

TEST_F(ArithmeticKeysTest, ASingleNumberMeetsZeroAndLandsUnderTheStack) {
    type("5+");
    EXPECT_EQ(x(), "5");
    EXPECT_EQ(calc.s.stack.depth(), 0);
    type("2+");
    EXPECT_EQ(x(), "7");
}

TEST_F(ArithmeticKeysTest, OnAnEmptyMachineItGivesZero) {
    clickMath(kAdd);
    EXPECT_EQ(x(), "0");
    EXPECT_GE(calc.s.stack.StackPtr, 1);
    EXPECT_TRUE(platform.boxes.empty());
}

TEST_F(ArithmeticKeysTest, CtrlWorksOnRegisterOneAndLeavesXTheStackAndTheTape) {
    setRegister(1, 10.0);
    push("8");
    push("3");
    const std::size_t lines = calc.tape.lines();
    clickUnder(kCtrl, kSubtract);
    EXPECT_EQ(reg(1), "7");
    EXPECT_EQ(calc.form.txtReg_m[0].text, "7.0e+00");
    EXPECT_EQ(x(), "3");
    EXPECT_EQ(element(1), "8");
    EXPECT_EQ(element(2), "3");
    EXPECT_EQ(calc.s.stack.depth(), 2);
    EXPECT_EQ(calc.tape.lines(), lines);
    EXPECT_TRUE(calc.s.memory.RegistersUsed);
    EXPECT_FALSE(calc.s.modifiers.ModifierLatched);
    type("4");
    enter();
    EXPECT_EQ(x(), "4");
}

TEST_F(ArithmeticKeysTest, CtrlTakesTheRegisterAsTheLeftSideOfAllFour) {
    const struct {
        std::size_t key;
        const char* result;
    } rows[] = {{kDivide, "5"}, {kMultiply, "20"}, {kSubtract, "8"}, {kAdd, "12"}};
    push("2");
    for (const auto& row : rows) {
        setRegister(1, 10.0);
        clickUnder(kCtrl, row.key);
        EXPECT_EQ(reg(1), row.result);
        EXPECT_EQ(x(), "2");
    }
}

TEST_F(ArithmeticKeysTest, CtrlGivesLastXTheElementUnderX) {
    setRegister(1, 10.0);
    push("8");
    push("3");
    clickUnder(kCtrl, kAdd);
    EXPECT_EQ(lastx(), "8");
    EXPECT_EQ(calc.form.txtLastx.text, "8.000e+00");
}

TEST_F(ArithmeticKeysTest, CtrlCommitsATypedNumberFirst) {
    setRegister(1, 10.0);
    type("3");
    clickUnder(kCtrl, kSubtract);
    EXPECT_EQ(reg(1), "7");
    EXPECT_EQ(x(), "3");
    EXPECT_EQ(calc.s.stack.depth(), 1);
    EXPECT_EQ(calc.tape.lines(), 1U) << "the typed number's own line";
    EXPECT_EQ(calc.entryText(), "");
}

TEST_F(ArithmeticKeysTest, AnEmptyRegisterCountsAsZero) {
    push("3");
    clickUnder(kCtrl, kSubtract);
    EXPECT_EQ(reg(1), "-3");
    clickUnder(kAlt, kAdd);
    EXPECT_EQ(x(), "3");
}

TEST_F(ArithmeticKeysTest, WhatCannotBeComputedLeavesRegisterOneAlone) {
    setRegister(1, 10.0);
    push("0");
    clickUnder(kCtrl, kDivide);
    EXPECT_EQ(reg(1), "10");
    EXPECT_TRUE(platform.boxes.empty());
    setRegister(1, std::numeric_limits<double>::max());
    push("10");
    clickUnder(kCtrl, kMultiply);
    expectRangeMessage();
    EXPECT_EQ(calc.number(calc.s.memory.Registers[1]), std::numeric_limits<double>::max());
    EXPECT_EQ(x(), "10");
}

TEST_F(ArithmeticKeysTest, AltUsesRegisterTwoAsAConstantOnX) {
    const struct {
        std::size_t key;
        const char* result;
        std::string_view label;
    } rows[] = {{kDivide, "4", "mö"_t}, {kMultiply, "16", "mX"}, {kSubtract, "6", "m-"}, {kAdd, "10", "m+"}};
    for (const auto& row : rows) {
        setRegister(2, 2.0);
        push("1");
        push("8");
        const int depth = calc.s.stack.depth();
        clickUnder(kAlt, row.key);
        EXPECT_EQ(x(), row.result);
        EXPECT_EQ(y(), "1");
        EXPECT_EQ(lastx(), "8");
        EXPECT_EQ(calc.s.stack.depth(), depth);
        EXPECT_EQ(reg(2), "2");
        EXPECT_TRUE(lastLine().starts_with(std::string(row.label) + " ")) << lastLine();
    }
}

TEST_F(ArithmeticKeysTest, OtherModifiersSilentlyDoNothingAndTakeTheLatchBack) {
    push("8");
    push("3");
    const std::size_t lines = calc.tape.lines();
    for (const std::uint8_t mask : std::initializer_list<std::uint8_t>{1, 3, 5, 6, 7}) {
        clickUnder(mask, kAdd);
        EXPECT_EQ(x(), "3");
        EXPECT_EQ(lastx(), "8");
        EXPECT_EQ(calc.s.stack.depth(), 2);
        EXPECT_EQ(element(2), "3");
        EXPECT_EQ(calc.tape.lines(), lines);
        EXPECT_EQ(calc.s.modifiers.ModifierMask, 0);
        EXPECT_FALSE(calc.s.modifiers.ModifierLatched);
    }
    EXPECT_TRUE(platform.boxes.empty());
    type("+");
    EXPECT_EQ(x(), "11");
}

TEST_F(ArithmeticKeysTest, AModifierHeldOnTheKeyboardCountsForAClick) {
    setRegister(1, 10.0);
    push("3");
    hold(kCtrl);
    clickMath(kSubtract);
    letGo();
    EXPECT_EQ(reg(1), "7");
    EXPECT_EQ(x(), "3");
}

class TaggedOperands : public ArithmeticKeysTest {
protected:
    void pushTagged(std::string_view text) {
        calc.commit.BeginEntry();
        calc.setEntry(text);
        calc.commit.cmdEnter_Click();
    }
};

TEST_F(TaggedOperands, GiveANumberInTheBaseOfX) {
    pushTagged("#101b");
    pushTagged("#3d");
    clickMath(kAdd);
    EXPECT_EQ(x(), "#8d");
    EXPECT_EQ(calc.s.stack.depth(), 1);
}

TEST_F(TaggedOperands, ASubtrahendTooGreatIsToldAndTheOperandsStay) {
    pushTagged("#1b");
    pushTagged("#11b");
    clickMath(kSubtract);
    ASSERT_EQ(platform.boxes.size(), 1U);
    EXPECT_EQ(platform.boxes[0].text, "Subtrahend is greater than the minuend!");
    EXPECT_EQ(platform.boxes[0].title, "cmdMath Error!");
    EXPECT_EQ(x(), "");
    EXPECT_EQ(calc.s.stack.depth(), 2);
    EXPECT_EQ(calc.text(calc.s.stack.slot(2)), "#11b");
}

TEST_F(TaggedOperands, AResultBeyondSixtyFourBitsIsToldAndTheOperandsStay) {
    pushTagged("#18446744073709551615d");
    pushTagged("#1d");
    clickMath(kAdd);
    ASSERT_EQ(platform.boxes.size(), 1U);
    EXPECT_EQ(platform.boxes[0].text, eightBit("Number outside of range: ± 1.8e308, & ± 4.9e-324"));
    EXPECT_EQ(x(), "#1d");
    EXPECT_EQ(calc.s.stack.depth(), 2);
}

TEST_F(TaggedOperands, WithoutABaseRoutineNothingIsLost) {
    keypads.arithmetic.bases = nullptr;
    push("6");
    pushTagged("#11b");
    const std::size_t lines = calc.tape.lines();
    clickMath(kAdd);
    EXPECT_EQ(x(), "#11b");
    EXPECT_EQ(y(), "6");
    EXPECT_EQ(calc.s.stack.depth(), 2);
    EXPECT_EQ(calc.tape.lines(), lines);
    EXPECT_TRUE(platform.boxes.empty());
}

}  // namespace
}  // namespace tallyforge
