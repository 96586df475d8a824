// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine_fixture.h"

namespace tallyforge {
namespace {

class Commit_ : public EngineTest {};

TEST_F(Commit_, EnterOnAnEmptyLineAndAnEmptyStackPushesZero) {
    enter();
    EXPECT_EQ(calc.s.stack.depth(), 1);
    EXPECT_EQ(x(), "0");
    EXPECT_EQ(y(), "0");
    EXPECT_EQ(lastLine(), "0.00");
}

TEST_F(Commit_, EnterOnAnEmptyLineDuplicatesX) {
    type("5");
    enter();
    enter();
    EXPECT_EQ(calc.s.stack.depth(), 2);
    EXPECT_EQ(x(), "5");
    EXPECT_EQ(y(), "5");
    EXPECT_EQ(lastx(), "5");
}

TEST_F(Commit_, ATypedNumberStaysTheTextThatWasTyped) {
    type("7.50");
    enter();
    EXPECT_EQ(x(), "7.50");
    EXPECT_EQ(y(), "0");
    type("8");
    enter();
    EXPECT_EQ(y(), "7.50");
    EXPECT_EQ(calc.s.stack.depth(), 2);
    EXPECT_EQ(lastx(), "7.50");
}

TEST_F(Commit_, AnExponentWithoutDigitsGetsAZeroAndNoMessage) {
    type("12e");
    enter();
    EXPECT_TRUE(platform.boxes.empty());
    EXPECT_EQ(x(), "12e0");
    EXPECT_EQ(element(1), "12e0");
    EXPECT_EQ(lastLine(), "12.00");
    EXPECT_EQ(calc.tape.lines(), 1U);
}

TEST_F(Commit_, ANumberBeyondTheRangeIsRefusedAndTheDepthStays) {
    type("4");
    enter();
    type("1e400");
    enter();
    ASSERT_EQ(platform.boxes.size(), 1U);
    EXPECT_EQ(platform.boxes[0].text, eightBit("Number outside of range: ± 1.8e308, & ± 4.9e-324"));
    EXPECT_EQ(platform.boxes[0].title, "numDisplay Error!");
    EXPECT_EQ(platform.boxes[0].kind, BoxKind::Stop);
    EXPECT_EQ(x(), "0");
    EXPECT_EQ(calc.s.stack.depth(), 1);
    EXPECT_EQ(element(1), "4");
    EXPECT_EQ(calc.tape.lines(), 1U);
    EXPECT_EQ(calc.tape.fillers(), 6) << "a failed display takes no filler line away";
}

TEST_F(Commit_, ATextThatIsNoNumberIsReportedByItsNumber) {
    commitText("12abc");
    ASSERT_EQ(platform.boxes.size(), 1U);
    EXPECT_EQ(platform.boxes[0].text, "Error number 13");
    EXPECT_EQ(platform.boxes[0].title, "numDisplay Error!");
    EXPECT_EQ(platform.boxes[0].kind, BoxKind::Stop);
    EXPECT_EQ(calc.tape.lines(), 0U);
    EXPECT_EQ(x(), "12abc");
}

TEST_F(Commit_, TheEntryLineIsEmptyAfterwardsUnlessItsTextIsKept) {
    type("3");
    enter();
    EXPECT_EQ(calc.entryText(), "");
    commitText("4");
    calc.setEntry("6");
    calc.commit.deliver({.value = 5.0, .label = "five", .place = OnStack::Pushes, .keepText = true});
    EXPECT_EQ(calc.entryText(), "6");
    EXPECT_EQ(lastLine(), "five               5.00");
    commitText("7");
    EXPECT_EQ(calc.entryText(), "");
}

TEST_F(Commit_, ABaseNumberWithoutLetterButWithAHexDigitGetsItsLetter) {
    commitText("#FF");
    EXPECT_EQ(x(), "#FFh");
    EXPECT_EQ(element(1), "#FFh");
    EXPECT_EQ(lastLine(), "#FFh");
}

TEST_F(Commit_, ABaseNumberWithoutLetterAndHexDigitIsTakenBack) {
    commitText("3");
    commitText("4");
    commitText("#12");
    ASSERT_EQ(platform.boxes.size(), 1U);
    EXPECT_EQ(platform.boxes[0].text, "Binary indicator (b, d, h, o) required");
    EXPECT_EQ(platform.boxes[0].title, "Error!");
    EXPECT_EQ(platform.boxes[0].kind, BoxKind::Stop);
    EXPECT_EQ(x(), "4");
    EXPECT_EQ(y(), "3");
    EXPECT_EQ(lastx(), "3");
    EXPECT_EQ(calc.s.stack.depth(), 2);
    EXPECT_EQ(calc.tape.lines(), 2U);
}

TEST_F(Commit_, AFunctionOnAnEmptyStackLeavesItEmpty) {
    EXPECT_TRUE(calc.commit.FetchX());
    EXPECT_EQ(x(), "0");
    EXPECT_EQ(calc.s.stack.StackPtr, 1);
    calc.s.stack.Xreg = 1.0;
    calc.setEntry("1");
    calc.commit.cmdEnter_Click();
    EXPECT_EQ(calc.s.stack.StackPtr, 1);
    EXPECT_EQ(y(), "0");
}

TEST_F(Commit_, PushResultAddsAnElementAndKeepsTheUsersFormat) {
    calc.s.stack.Xreg = 123456.0;
    calc.s.delivery.FnLabel = "big";
    calc.commit.PushResult();
    EXPECT_EQ(calc.s.stack.depth(), 1);
    EXPECT_EQ(lastLine(), "big         123.456e+03");
    EXPECT_EQ(calc.s.format.DisplayDigits, 2);
    EXPECT_EQ(calc.s.format.Mode, DisplayMode::Fixed);
    // The next number that is typed is the next one that is committed.
    commitText("7");
    EXPECT_EQ(x(), "7");
}

TEST_F(Commit_, PushResultLeavesDigitsThatTheCallerHasSet) {
    calc.s.stack.Xreg = 0.5;
    calc.commit.PushResult(true);
    EXPECT_EQ(lastLine(), "0.50");
}

TEST_F(Commit_, AutoDigitsChoosesTwoForZeroAndLeavesAMiddlingNumberAlone) {
    calc.s.format.DisplayDigits = 5;
    calc.s.stack.Xreg = 42.0;
    calc.commit.AutoDigits();
    EXPECT_EQ(calc.s.format.DisplayDigits, 5);
    calc.s.stack.Xreg = 0.0;
    calc.commit.AutoDigits();
    EXPECT_EQ(calc.s.format.DisplayDigits, 2);
    calc.s.stack.Xreg = kNothingDone;
    calc.commit.AutoDigits();
    EXPECT_EQ(calc.s.format.Mode, DisplayMode::Fixed);
}

TEST_F(Commit_, AnOperandThatIsTakenSilentlyIsStoredWithoutATapeLine) {
    type("9");
    EXPECT_TRUE(calc.commit.FetchX(true));
    EXPECT_EQ(element(1), "9");
    EXPECT_EQ(calc.tape.lines(), 0U);
    EXPECT_EQ(calc.entryText(), "9");
    EXPECT_TRUE(calc.commit.FetchX(true));
    EXPECT_EQ(calc.s.stack.depth(), 1);
}

TEST_F(Commit_, ALabelThatWasNotPrintedStandsOnNoLaterLine) {
    calc.s.delivery.FnLabel = "lost";
    commitText("1e999");
    commitText("2");
    EXPECT_EQ(lastLine(), "2.00");
}

TEST_F(Commit_, SmallRegistersShowLastXAndYInScientificForm) {
    commitText("1234.5");
    commitText("7");
    EXPECT_EQ(calc.form.txtLastx.text, "1.234e+03");
    EXPECT_EQ(calc.form.txty_Reg.text, "1.234e+03");
    commitText("#1Fh");
    commitText("1");
    EXPECT_EQ(calc.form.txty_Reg.text, "#1Fh");
}

TEST_F(Commit_, KeysOfTheStackComeAliveWithTheFirstNumber) {
    EXPECT_FALSE(calc.form.cmdDown.enabled);
    EXPECT_FALSE(calc.form.cmdXchgY.enabled);
    EXPECT_FALSE(calc.form.cmdLastx.enabled);
    commitText("1");
    EXPECT_TRUE(calc.form.cmdDown.enabled);
    EXPECT_TRUE(calc.form.cmdXchgY.enabled);
    EXPECT_TRUE(calc.form.cmdLastx.enabled);
}

TEST_F(Commit_, ARunningProgramKeepsTheExactValueBehindItsText) {
    replaceTop(1.0 / 3.0, "");
    calc.commit.enterStored(0.333333333333333);
    EXPECT_EQ(calc.xNumber(), 1.0 / 3.0);
    calc.commit.enterStored(0.25);
    EXPECT_EQ(x(), "0.25");
}

TEST_F(Commit_, TapeLineWritesTextAndLeavesZeroInX) {
    calc.commit.TapeLine("hello");
    EXPECT_EQ(lastLine(), "hello");
    EXPECT_EQ(x(), "0");
    EXPECT_EQ(calc.s.stack.depth(), 0);
}

TEST_F(Commit_, AModifierOnTheLampsIsShownBitByBit) {
    calc.LightModifiers(kShift | kAlt);
    EXPECT_TRUE(calc.form.shaShift.visible);
    EXPECT_FALSE(calc.form.shaCtrl.visible);
    EXPECT_TRUE(calc.form.shaAlt.visible);
}

}  // namespace
}  // namespace tallyforge
