// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine_fixture.h"

namespace tallyforge {
namespace {

class Display : public EngineTest {
protected:
    std::string shown(double value, int digits, DisplayMode mode = DisplayMode::Fixed) {
        calc.s.format.DisplayDigits = digits;
        calc.s.format.Mode = mode;
        return calc.display.numDisplay(value);
    }
};

struct Shown {
    double value;
    int digits;
    DisplayMode mode;
    char decimal;
    const char* text;
};

constexpr Shown kShown[] = {
    {3.14159, 2, DisplayMode::Fixed, '.', "3.14"},
    {-0.5, 2, DisplayMode::Fixed, '.', "-0.50"},
    {-0.5, 1, DisplayMode::Fixed, '.', "-0.5"},
    {1234567.891, 2, DisplayMode::Fixed, '.', "1,234,567.89"},
    {1234567.891, 2, DisplayMode::Fixed, ',', "1 234 567,89"},
    {-1234567.891, 2, DisplayMode::Fixed, ',', "-1 234 567,89"},
    {99999999999999.0, 0, DisplayMode::Fixed, ',', "99999 999 999 999"},
    {0.004, 2, DisplayMode::Fixed, '.', "4.00e-03"},
    {0.01, 2, DisplayMode::Fixed, '.', "0.01"},
    {1e15, 2, DisplayMode::Fixed, '.', "1.00e+15"},
    {1e14, 2, DisplayMode::Fixed, '.', "100,000,000,000,000.00"},
    {0.5, 6, DisplayMode::Fixed, '.', "0.500 000"},
    {2.5, 0, DisplayMode::Fixed, '.', "2"},
    {3.5, 0, DisplayMode::Fixed, '.', "4"},
    {9.995, 2, DisplayMode::Fixed, '.', "10.00"},
    {-999999.995, 2, DisplayMode::Fixed, '.', "-1,000,000.00"},
    {2.665, 2, DisplayMode::Fixed, '.', "2.66"},
    {2.675, 2, DisplayMode::Fixed, '.', "2.68"},
    {3.00001, 5, DisplayMode::Fixed, '.', "3.000 01"},
    {1.5, 3, DisplayMode::Fixed, '.', "1.500"},
    {4.0, 1, DisplayMode::Fixed, '.', "4.0"},
    {4.0, 1, DisplayMode::Fixed, ',', "4,0"},
    {0.123456789012, 12, DisplayMode::Fixed, '.', "0.123 456 789 012"},
    {0.0, 2, DisplayMode::Fixed, '.', "0.00"},
    {12345.0, 3, DisplayMode::Engineering, '.', "12.345e+03"},
    {0.00012, 3, DisplayMode::Engineering, '.', "120.000e-06"},
    {0.0, 3, DisplayMode::Engineering, '.', "0.000e+00"},
    {-1e12, 1, DisplayMode::Engineering, '.', "-1.0e+12"},
    {12345.0, 3, DisplayMode::Scientific, '.', "1.234e+04"},
    {12345.0, 3, DisplayMode::Scientific, ',', "1,234e+04"},
    {1e-100, 2, DisplayMode::Scientific, '.', "1.00e-100"},
};

TEST_F(Display, NumbersReadAsTheModeAndDigitsSay) {
    for (const Shown& row : kShown) {
        calc.s.format.DecimalChar = row.decimal;
        EXPECT_EQ(shown(row.value, row.digits, row.mode), row.text) << row.value << " at " << row.digits;
        EXPECT_EQ(calc.s.format.Mode, row.mode) << "the mode key does not move";
    }
}

TEST_F(Display, MakesRoomForALabelInTheLongFormats) {
    calc.s.delivery.FnLabel = "a longer label";
    EXPECT_EQ(shown(1.0, 12, DisplayMode::Scientific), "1.00e+00");
    EXPECT_EQ(shown(1.0, 9, DisplayMode::Engineering), "1.e+00") << "a count of zeros is never below 0";
    calc.s.delivery.FnLabel = "sin";
    EXPECT_EQ(shown(1.0, 12, DisplayMode::Scientific), "1.0000000000e+00");
    EXPECT_EQ(shown(1.0, 12, DisplayMode::Engineering), "1.00000000e+00");
}

TEST_F(Display, ShowsThePlainTextOnce) {
    calc.s.delivery.writtenAs = WrittenAs::Text;
    EXPECT_EQ(calc.display.numDisplay("2.500"), "2.500");
    EXPECT_EQ(calc.display.numDisplay("2.500"), "2.50");
}

TEST_F(Display, LaysAFractionOutAsMinutesAndSecondsOnce) {
    calc.s.format.DisplayDigits = 5;
    calc.s.delivery.writtenAs = WrittenAs::MinutesAndSeconds;
    EXPECT_EQ(calc.display.numDisplay(12.3045), "12:30 45.0");
    EXPECT_EQ(calc.s.delivery.writtenAs, WrittenAs::Number);
    calc.s.delivery.writtenAs = WrittenAs::MinutesAndSeconds;
    EXPECT_EQ(calc.display.numDisplay(-0.3045), "-0:30 45.0");
}

TEST_F(Display, ALabelStandsLeftAndTheValueEndsInColumn23) {
    replaceTop(5.0, "+");
    EXPECT_EQ(lastLine(), "+                  5.00");
    EXPECT_EQ(lastLine().size(), kTapeWidth);
}

TEST_F(Display, ALongValueWithALabelTakesTwoLines) {
    calc.s.format.DisplayDigits = 12;
    replaceTop(123456.123456789, "product");
    ASSERT_EQ(calc.tape.lines(), 2U);
    EXPECT_EQ(tapeLine(1), "123,456.123 456 789 000");
    EXPECT_EQ(tapeLine(2), "product                ");
    EXPECT_EQ(calc.tape.fillers(), 5);
}

TEST_F(Display, ALongValueWithAOneCharacterLabelKeepsOneLine) {
    calc.s.format.DisplayDigits = 12;
    replaceTop(123456.123456789, "+");
    ASSERT_EQ(calc.tape.lines(), 1U);
    EXPECT_EQ(tapeLine(1), "+123,456.123 456 789 000");
}

TEST_F(Display, BaseNumbersAreGroupedFromTheRight) {
    commitText("#1011011101b");
    EXPECT_EQ(lastLine(), "#10 11011101b");
    commitText("#1234567d");
    EXPECT_EQ(lastLine(), "#12 34567d");
    commitText("#12FFFFh");
    EXPECT_EQ(lastLine(), "#12 FFFFh");
    commitText("#1234567o");
    EXPECT_EQ(lastLine(), "#1 234 567o");
    EXPECT_EQ(x(), "#1234567o");
}

TEST_F(Display, ALongBaseNumberWrapsAndItsLabelStandsOnTheLastLine) {
    commitText("1");
    calc.tape.clear(7);
    replaceTop("#111111110000000011111111b", "AND");
    ASSERT_EQ(calc.tape.lines(), 2U);
    EXPECT_EQ(tapeLine(1), "#11111111 00000000 ");
    EXPECT_EQ(tapeLine(2), "AND           11111111b");
    EXPECT_EQ(element(1), "#111111110000000011111111b");
}

TEST_F(Display, ALabelAndAValueThatFillTheLineExactlyShareIt) {
    calc.s.format.DisplayDigits = 9;
    replaceTop(123456.123456789, "prod");
    ASSERT_EQ(calc.tape.lines(), 1U);
    EXPECT_EQ(tapeLine(1), "prod123,456.123 456 789");
    calc.s.format.DisplayDigits = 8;
    replaceTop(1234567.12345678, "pr");
    ASSERT_EQ(calc.tape.lines(), 3U) << "a value of twenty characters stands alone";
    EXPECT_EQ(tapeLine(2), "1,234,567.123 456 78");
    EXPECT_EQ(tapeLine(3), "pr                     ");
}

TEST_F(Display, ABaseNumberThatFillsTheLineExactlyDoesNotWrap) {
    commitText("#1111111111111111111b");
    ASSERT_EQ(calc.tape.lines(), 1U);
    EXPECT_EQ(tapeLine(1), "#111 11111111 11111111b");
    commitText("#11111111111111111111b");
    ASSERT_EQ(calc.tape.lines(), 3U);
    EXPECT_EQ(tapeLine(2), "#1111 11111111 ");
    EXPECT_EQ(tapeLine(3), "11111111b");
    replaceTop("#1111111111111111b", "AND");
    ASSERT_EQ(calc.tape.lines(), 4U);
    EXPECT_EQ(tapeLine(4), "AND #11111111 11111111b");
    replaceTop("#1111111111111111b", "NAND");
    ASSERT_EQ(calc.tape.lines(), 5U) << "no group ends where a line may";
    EXPECT_EQ(tapeLine(5), "NAND#11111111 11111111b");
}

TEST_F(Display, SaveAndRestoreBringTheFormatBack) {
    calc.s.format.DisplayDigits = 4;
    calc.display.optFix_Click(DisplayMode::Engineering);
    calc.display.SaveDisplay(0);
    EXPECT_EQ(calc.s.format.Mode, DisplayMode::Fixed);
    EXPECT_EQ(calc.s.format.DisplayDigits, 0);
    calc.display.RestoreDisplay();
    EXPECT_EQ(calc.s.format.Mode, DisplayMode::Engineering);
    EXPECT_EQ(calc.s.format.DisplayDigits, 4);
    EXPECT_TRUE(calc.form.optFix[2].checked);
    EXPECT_EQ(calc.form.cmdDigits.text, "Display(4)");
    calc.s.format.DisplayDigits = 7;
    calc.display.RestoreDisplay();
    EXPECT_EQ(calc.s.format.DisplayDigits, 7) << "without a saved format nothing is restored";
}

TEST_F(Display, DigitsKeyTakesTheEntryLine) {
    type("5");
    calc.display.cmdDigits_Click();
    EXPECT_EQ(calc.s.format.DisplayDigits, 5);
    EXPECT_EQ(calc.form.cmdDigits.text, "Display(5)");
    EXPECT_EQ(calc.entryText(), "");
    EXPECT_FALSE(calc.s.entry.EntryOpen);
    EXPECT_EQ(calc.s.stack.depth(), 0);
}

TEST_F(Display, DigitsKeyTakesXWhereNothingIsTyped) {
    commitText("8");
    commitText("3");
    calc.display.cmdDigits_Click();
    EXPECT_EQ(calc.s.format.DisplayDigits, 3);
    EXPECT_EQ(calc.s.stack.depth(), 1);
    EXPECT_EQ(x(), "8");
}

TEST_F(Display, ThirteenDigitsAreRefusedAndNothingChanges) {
    commitText("13");
    calc.display.cmdDigits_Click();
    ASSERT_EQ(platform.boxes.size(), 1U);
    EXPECT_EQ(platform.boxes[0].text, "0 to 12 only for this function");
    EXPECT_EQ(platform.boxes[0].title, "Out of Range!");
    EXPECT_EQ(calc.s.format.DisplayDigits, 2);
    EXPECT_EQ(x(), "13");
    EXPECT_EQ(calc.s.stack.depth(), 1) << "the number is not lost";
    type("13");
    calc.display.cmdDigits_Click();
    EXPECT_EQ(calc.s.format.DisplayDigits, 2);
}

TEST_F(Display, DigitsKeyWithoutANumberSaysSo) {
    calc.display.cmdDigits_Click();
    ASSERT_EQ(platform.boxes.size(), 1U);
    EXPECT_EQ(platform.boxes[0].text, "Please enter a number.");
    EXPECT_EQ(platform.boxes[0].title, "Nothing to do!");
    EXPECT_EQ(platform.boxes[0].kind, BoxKind::Stop);
}

TEST_F(Display, DigitsKeyReportsATextThatIsNoNumber) {
    calc.setEntry("1e");
    calc.display.cmdDigits_Click();
    ASSERT_EQ(platform.boxes.size(), 1U);
    EXPECT_EQ(platform.boxes[0].text, "Error 13 (Type mismatch) in procedure cmdDigits_Click of Form frm_Tallyforge");
}

TEST_F(Display, DigitsKeyWithAModifierOnlyClearsIt) {
    type("5");
    calc.s.modifiers.ModifierMask = kAlt;
    calc.display.cmdDigits_Click();
    EXPECT_EQ(calc.s.modifiers.ModifierMask, 0);
    EXPECT_EQ(calc.s.format.DisplayDigits, 2);
}

TEST_F(Display, OnTheBinaryKeypadTheDigitsKeySetsTheWordSize) {
    calc.s.modes.BaseMode = true;
    calc.setEntry("8");
    calc.display.cmdDigits_Click();
    EXPECT_EQ(calc.s.format.WordSize, 8);
    EXPECT_EQ(calc.form.cmdDigits.text, "wrdsze(8)");
    EXPECT_FALSE(calc.form.cmdFunctions[20].enabled);
    calc.setEntry("65");
    calc.display.cmdDigits_Click();
    ASSERT_EQ(platform.boxes.size(), 1U);
    EXPECT_EQ(platform.boxes[0].text, "4 to 64 only for this function");
    EXPECT_EQ(platform.boxes[0].title, "Out of Range!");
    EXPECT_EQ(calc.s.format.WordSize, 8);
}

TEST_F(Display, TheEighthLineWidensTheTape) {
    calc.form.lstDisplayReg.place.width = 2845;
    for (int line = 1; line <= 7; ++line) {
        commitText("1");
        EXPECT_EQ(calc.tape.count(), 7U);
    }
    EXPECT_EQ(calc.form.lstDisplayReg.place.width, 2845);
    commitText("1");
    EXPECT_EQ(calc.tape.count(), 8U);
    EXPECT_EQ(calc.form.lstDisplayReg.place.width, 3100);
}

}  // namespace
}  // namespace tallyforge
