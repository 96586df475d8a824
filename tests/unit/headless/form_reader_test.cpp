// SPDX-License-Identifier: GPL-3.0-or-later
//
// Every word of `show`.
#include "script_fixture.h"

#include <algorithm>

namespace tallyforge {
namespace {

class ShowTest : public ScriptTest {
protected:
    /// Whether `line` stands in the transcript of `text`.
    [[nodiscard]] bool shows(const std::string& text, const std::string& line) {
        const Lines lines = shown(text);
        return std::find(lines.begin(), lines.end(), line) != lines.end();
    }
};

const std::string kTwoAndThree = "type 2\nkey Enter\ntype 3\nkey Enter\n";

TEST_F(ShowTest, EverythingIsEmptyAtTheStart) {
    EXPECT_EQ(shown("show x y lastx entry depth stack tape tapevalues bank regs clipboard lamps dialog"),
              (Lines{"x", "y 0", "lastx", "entry", "depth 0", "clipboard", "lamps", "dialog none"}));
}

TEST_F(ShowTest, ATypedNumberIsShownAsItsText) {
    EXPECT_EQ(shown("type 2.50\nkey Enter\nshow x stack"), (Lines{"x 2.50", "stack 1 2.50"}));
}

TEST_F(ShowTest, ANumberHasFifteenDigits) {
    EXPECT_EQ(shown("type 2\nkey Enter\ntype 3/\nshow x\ntype 1e10\nkey Enter\ntype *\nshow x"),
              (Lines{"x 0.666666666666667", "x 6666666666.66667"}));
    EXPECT_EQ(shown("type 1e10\nkey Enter\ntype 1e10*\nshow x\ntype 15e26/\nshow x"),
              (Lines{"x 1E+20", "x 6.66666666666667E-08"}));
    EXPECT_EQ(shown("type 2\nkey Enter\ntype 5-\nshow x\ntype 2/\nshow x"), (Lines{"x -3", "x -1.5"}));
}

TEST_F(ShowTest, TheStackIsShownFromElementOneUp) {
    EXPECT_EQ(shown(kTwoAndThree + "show stack depth y lastx"),
              (Lines{"stack 1 2", "stack 2 3", "depth 2", "y 2", "lastx 2"}));
}

TEST_F(ShowTest, TheTapeIsShownWithoutFillersAndWithItsBlanks) {
    EXPECT_EQ(shown("type 6\nkey Enter\ntype 3/\nshow tape"),
              (Lines{"tape 1 6.00", "tape 2 3.00", "tape 3 ÷                  2.00"}));
}

TEST_F(ShowTest, TheValuesBehindTheTapeAreShownAsX) {
    EXPECT_EQ(shown("type 6\nkey Enter\ntype 4/\nshow tapevalues"),
              (Lines{"tapevalue 1 6", "tapevalue 2 4", "tapevalue 3 1.5"}));
}

TEST_F(ShowTest, TheBankMarksTheRowsOfXAndY) {
    EXPECT_EQ(shown("type 2\nkey Enter\nshow bank\ntype 3\nkey Enter\nshow bank\ntype 4\nkey Enter\nshow bank"),
              (Lines{"bank 1 1   2.00e+00 X", "bank 1 1   2.00e+00 Y", "bank 2 2   3.00e+00 X", "bank 1 1   2.00e+00",
                     "bank 2 2   3.00e+00 Y", "bank 3 3   4.00e+00 X"}));
}

TEST_F(ShowTest, TheBankShowsTheLastElementsOfALongStack) {
    std::string keys;
    for (int i = 1; i <= 11; ++i) {
        keys += "type " + std::to_string(i) + "\nkey Enter\n";
    }
    const Lines lines = shown(keys + "show bank");
    ASSERT_GE(lines.size(), 2U);
    EXPECT_EQ(lines.back(), "bank " + std::to_string(lines.size()) + " 11  1.10e+01 X");
    EXPECT_EQ(lines[lines.size() - 2], "bank " + std::to_string(lines.size() - 1) + " 10  1.00e+01 Y");
}

TEST_F(ShowTest, TheBankIsMarkedInTheCompactLayoutToo) {
    options.dotsPerInch = 120;
    EXPECT_EQ(shown(kTwoAndThree + "show bank"), (Lines{"bank 1 1   2.00e+00 Y", "bank 2 2   3.00e+00 X"}));
}

TEST_F(ShowTest, ARegisterIsShownWithItsNameValueAndField) {
    EXPECT_EQ(shown("type 14.25\nkey Enter\ntype 3\nclick Shift+cmdSTO\nshow regs"),
              (Lines{"sound", "reg 3 3 14.25 [1.4e+01]"}));
}

TEST_F(ShowTest, EachVisibleKeyIsShownWithCaptionAndColour) {
    const Lines lines = shown("show keys");
    EXPECT_EQ(lines.size(), 24U);
    EXPECT_EQ(lines[1], "key 1 \"x²\" plain");
    EXPECT_EQ(lines[2], "key 2 \"√x\" plain");
    EXPECT_TRUE(
        std::any_of(lines.begin(), lines.end(), [](const std::string& line) { return line.ends_with(" yellow"); }));
}

TEST_F(ShowTest, EachVisibleKeyIsShownWithItsTip) {
    const Lines lines = shown("show tips");
    ASSERT_EQ(lines.size(), 24U);
    for (std::size_t i = 0; i < lines.size(); ++i) {
        EXPECT_TRUE(lines[i].starts_with("tip " + std::to_string(i) + " \"")) << lines[i];
    }
}

TEST_F(ShowTest, AKeyThatVanishesUnderAModifierIsNotShown) {
    const std::size_t all = shown("show keys").size();
    const std::size_t under = shown("hold Shift+Ctrl+Alt\nshow keys").size();
    EXPECT_LT(under, all);
}

TEST_F(ShowTest, TheKeypadIsShownByIdAndName) {
    EXPECT_EQ(shown("show keypad\nmenu mnuTrig\nshow keypad"),
              (Lines{R"(keypad 0 "Standard")", R"(keypad 2 "Trigonometry")"}));
}

TEST_F(ShowTest, TheLampsStandInOneOrder) {
    EXPECT_EQ(shown("hold Alt+Ctrl+Shift\nshow lamps\nrelease\nhold Alt\nshow lamps"),
              (Lines{"lamps Shift Ctrl Alt", "lamps Alt"}));
}

TEST_F(ShowTest, TheFormatIsShownByModeDigitsAndWordSize) {
    EXPECT_EQ(shown("show format\nclick optFix(1)\ntype 4\nclick cmdDigits\nshow format\nclick optFix(2)\nshow format"),
              (Lines{"format fixed 2 word 64", "format sci 4 word 64", "format eng 4 word 64"}));
}

TEST_F(ShowTest, TheAngleModeFollowsItsOptions) {
    EXPECT_EQ(shown("show angle\nclick optRad\nshow angle\nclick optGrad\nshow angle\nclick optDeg\nshow angle"),
              (Lines{"angle deg", "angle rad", "angle grad", "angle deg"}));
}

TEST_F(ShowTest, TheMenuIsShownWithTicks) {
    EXPECT_TRUE(shows("show menu", R"(menu mnuStd "&Std" ticked)"));
    EXPECT_TRUE(shows("menu mnuTrig\nshow menu", R"(menu mnuTrig "&Trig" ticked)"));
    EXPECT_TRUE(shows("menu mnuTrig\nshow menu", R"(menu mnuStd "&Std")"));
}

TEST_F(ShowTest, ADisabledMenuEntryIsMarked) {
    EXPECT_EQ(runHooked({{"show menu", [this] { form().mnuSkins.enabled = false; }}}), ScriptEnd::Done);
    EXPECT_EQ(std::count(out.begin(), out.end(), R"(menu mnuSkins "View Skins" ticked disabled)"), 1);
}

TEST_F(ShowTest, AControlIsShownWithTextAndState) {
    EXPECT_EQ(shown("show cmdDigits cmdDown optFix(0) optFix(1) txtReg_m(0) txtXreg"),
              (Lines{R"#(cmdDigits "Display(2)" enabled visible)#", R"(cmdDown "&Drop" disabled visible)",
                     R"(optFix(0) "F&IX" enabled visible checked)", R"(optFix(1) "S&CI" enabled visible)",
                     R"(txtReg_m(0) "" enabled hidden)", R"(txtXreg "" enabled visible focus)"}));
}

TEST_F(ShowTest, TheFormIsAllItsControls) {
    const Lines lines = shown("show form");
    for (const char* one : {R"#(cmdDigits "Display(2)" enabled visible)#", R"(cmdDown "&Drop" disabled visible)",
                            R"(txtXreg "" enabled visible focus)"}) {
        EXPECT_EQ(std::count(lines.begin(), lines.end(), one), 1) << one;
    }
    EXPECT_GT(lines.size(), 100U);
}

TEST_F(ShowTest, NumbersHaveTheDecimalCharacterOfTheLocale) {
    options.decimal = ',';
    EXPECT_EQ(shown("type 2,5\nkey Enter\ntype 2*\nshow x tape\ntype 4/\nshow x bank"),
              (Lines{"x 5", "tape 1 2,50", "tape 2 2,00", "tape 3 X                  5,00", "x 1,25",
                     "bank 1 1   1,25e+00 X"}));
}

}  // namespace
}  // namespace tallyforge
