// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktops/headless/key_script.h"

#include "headless_test_forms.h"
#include "script_fixture.h"

namespace tallyforge {
namespace {

using KeyScriptTest = ScriptTest;

TEST_F(KeyScriptTest, AnEmptyScriptShowsNothing) {
    EXPECT_EQ(shown(""), Lines{});
}

TEST_F(KeyScriptTest, EmptyLinesBlankLinesAndCommentsAreSkipped) {
    EXPECT_EQ(shown("\n   \n; show x\n;\nshow depth"), (Lines{"depth 0"}));
}

TEST_F(KeyScriptTest, LinesMayEndAsOtherDesktopsEndThem) {
    EXPECT_EQ(shown("type 5\r\nshow entry\r\n"), (Lines{"entry 5"}));
}

TEST_F(KeyScriptTest, WordsAreSeparatedByAnyNumberOfBlanks) {
    EXPECT_EQ(shown("type 5\nkey   Enter  \nshow   x  depth "), (Lines{"x 5", "depth 1"}));
}

TEST_F(KeyScriptTest, TypedTextGoesToTheEntryLine) {
    EXPECT_EQ(shown("type 12.5\nshow entry\ntype 6\nshow entry"), (Lines{"entry 12.5", "entry 12.56"}));
}

TEST_F(KeyScriptTest, TheTextOfAnActionKeepsItsOwnBlanks) {
    EXPECT_EQ(shown("clipboard  two  blanks \nshow clipboard"), (Lines{"clipboard  two  blanks "}));
}

TEST_F(KeyScriptTest, TheClipboardIsUnicodeOutside) {
    EXPECT_EQ(shown("clipboard 5 µΩ°\nshow clipboard\nclipboard\nshow clipboard"),
              (Lines{"clipboard 5 µ?°", "clipboard"}));
}

TEST_F(KeyScriptTest, AClickIsGivenToAControlOfAnArray) {
    EXPECT_EQ(shown("click cmdNumPad(7)\nclick cmdNumPad(10)\nclick cmdNumPad(1)\nclick cmdEnter\nshow x"),
              (Lines{"x 7.1"}));
}

TEST_F(KeyScriptTest, ADisabledOrHiddenControlTakesNoClick) {
    EXPECT_EQ(shown("type 5\nclick cmdDown\nclick txtReg_m(3)\nshow entry depth"), (Lines{"entry 5", "depth 0"}));
}

TEST_F(KeyScriptTest, AStackRowIsNamedByItsElementNumber) {
    // Nine elements in a list of seven rows: element 3 stands in the first row that is left.
    std::string keys;
    for (int i = 1; i <= 9; ++i) {
        keys += "type " + std::to_string(i * 10) + "\nkey Enter\n";
    }
    EXPECT_EQ(shown(keys + "click lstStack(5)\nshow x depth"), (Lines{"x 50", "depth 10"}));
}

TEST_F(KeyScriptTest, ATapeLineIsCountedWithoutTheFillers) {
    EXPECT_EQ(shown("type 4\nkey Enter\ntype 6\nkey Enter\ndblclick lstDisplayReg(1)\nshow x depth"),
              (Lines{"x 4", "depth 3"}));
}

TEST_F(KeyScriptTest, AMenuEntryIsChosenByName) {
    EXPECT_EQ(shown("menu mnuTrig\nshow keypad"), (Lines{R"(keypad 2 "Trigonometry")"}));
}

TEST_F(KeyScriptTest, CloseEndsTheProgram) {
    EXPECT_EQ(shown("close"), (Lines{"end"}));
}

TEST_F(KeyScriptTest, AnEndedProgramIsStillRead) {
    EXPECT_EQ(shown("type 5\nkey Enter\nclose\nshow x\nexpect x 5"), (Lines{"end", "x 5"}));
}

TEST_F(KeyScriptTest, AnEndedProgramTakesNoKeys) {
    EXPECT_EQ(run("close\ntype 5\nshow entry"), ScriptEnd::WrongScript);
    EXPECT_EQ(out, (Lines{"end"}));
    EXPECT_EQ(complaints, (Lines{"line 2: the program has ended"}));
}

TEST_F(KeyScriptTest, ARestartEndsTheProgramAndStartsItOnTheSameFolder) {
    EXPECT_EQ(shown("menu mnuTrig\nanswer yes\nmenu mnuSave\ntype 5\nkey Enter\nrestart\nshow depth keypad"),
              (Lines{R"(box question "SAVE!" "Would you like to save your settings?" -> yes)", "end", "depth 0",
                     R"(keypad 2 "Trigonometry")"}));
}

TEST_F(KeyScriptTest, ARestartBringsAnEndedProgramBack) {
    EXPECT_EQ(shown("close\nrestart\ntype 5\nshow entry"), (Lines{"end", "entry 5"}));
}

TEST_F(KeyScriptTest, HeldModifiersComeUpWithARestart) {
    EXPECT_EQ(shown("hold Shift\nshow lamps\nrestart\nshow lamps"), (Lines{"lamps Shift", "end", "lamps"}));
}

TEST_F(KeyScriptTest, QueuedAnswersAndTheClipboardOutliveARestart) {
    EXPECT_EQ(shown("clipboard 12\nanswer text my.txt\nrestart\nshow clipboard\nmenu mnuSaveTape").size(), 4U);
    EXPECT_EQ(out[1], "clipboard 12");
    EXPECT_TRUE(out[2].ends_with("-> \"my.txt\"")) << out[2];
}

TEST_F(KeyScriptTest, AnEmptyTextAnswersAnInputBoxWithNothing) {
    shown("answer text\nanswer text my.txt\nmenu mnuSaveTape\nmenu mnuSaveTape");
    ASSERT_GE(out.size(), 2U);
    EXPECT_TRUE(out[0].ends_with("-> \"\"")) << out[0];
    EXPECT_TRUE(out[1].ends_with("-> \"my.txt\"")) << out[1];
}

TEST_F(KeyScriptTest, AnExpectationThatHoldsSaysNothing) {
    EXPECT_EQ(shown("type 5\nkey Enter\nshow x y depth\nexpect y 0\nexpect x 5"), (Lines{"x 5", "y 0", "depth 1"}));
}

TEST_F(KeyScriptTest, AnExpectationThatFailsLetsTheScriptGoOn) {
    EXPECT_EQ(run("show depth\nexpect depth 1\nshow x\nexpect x"), ScriptEnd::ExpectFailed);
    EXPECT_EQ(out, (Lines{"depth 0", "x"}));
    EXPECT_EQ(complaints, (Lines{"line 2: expected 'depth 1'"}));
}

TEST_F(KeyScriptTest, AnExpectationLooksAtTheLastShowOnly) {
    EXPECT_EQ(run("show depth\nshow x\nexpect depth 0"), ScriptEnd::ExpectFailed);
    EXPECT_EQ(run("expect depth 0"), ScriptEnd::ExpectFailed);
}

struct WrongLine {
    const char* line;
    const char* reason;
};

class WrongScripts : public ScriptTest, public testing::WithParamInterface<WrongLine> {};

TEST_P(WrongScripts, EndAtTheLineWithTheReason) {
    EXPECT_EQ(run("show depth\n\n" + std::string(GetParam().line) + "\nshow x\n"), ScriptEnd::WrongScript);
    EXPECT_EQ(out, (Lines{"depth 0"}));
    EXPECT_EQ(complaints, (Lines{"line 3: " + std::string(GetParam().reason)}));
}

INSTANTIATE_TEST_SUITE_P(
    Lines, WrongScripts,
    testing::Values(WrongLine{"clack cmdEnter", "unknown word 'clack'"}, WrongLine{"Show x", "unknown word 'Show'"},
                    WrongLine{" ; no comment", "unknown word ';'"}, WrongLine{"click", "no control ''"},
                    WrongLine{"click cmdNothing", "no control 'cmdNothing'"},
                    WrongLine{"click cmdMath", "no control 'cmdMath'"},
                    WrongLine{"click cmdMath(4)", "no control 'cmdMath(4)'"},
                    WrongLine{"click cmdMath(1", "no control 'cmdMath(1'"},
                    WrongLine{"click cmdMath(1)x", "no control 'cmdMath(1)x'"},
                    WrongLine{"click cmdMath(one)", "no control 'cmdMath(one)'"},
                    WrongLine{"click cmdMath()", "no control 'cmdMath()'"},
                    WrongLine{"click cmdMath(99999999999)", "no control 'cmdMath(99999999999)'"},
                    WrongLine{"click cmdEnter(0)", "no control 'cmdEnter(0)'"},
                    WrongLine{"click cmdEnter(-1)", "no control 'cmdEnter(-1)'"},
                    WrongLine{"click Meta+cmdEnter", "no control 'Meta+cmdEnter'"},
                    WrongLine{"rightclick cmdNothing", "no control 'cmdNothing'"},
                    WrongLine{"click lstStack(1)", "no such row: 1"}, WrongLine{"click lstStack(0)", "no such row: 0"},
                    WrongLine{"dblclick lstDisplayReg(1)", "no such row: 1"},
                    WrongLine{"dblclick lstDisplayReg", "dblclick needs the row of a list"},
                    WrongLine{"dblclick cmdEnter", "dblclick needs the row of a list"},
                    WrongLine{"key", "unknown key ''"}, WrongLine{"key Entr", "unknown key 'Entr'"},
                    WrongLine{"key F13", "unknown key 'F13'"}, WrongLine{"key Ctrl+", "unknown key ''"},
                    WrongLine{"key Return", "unknown key 'Return'"}, WrongLine{"hold", "no modifiers ''"},
                    WrongLine{"hold Meta", "no modifiers 'Meta'"}, WrongLine{"hold Shift+", "no modifiers 'Shift+'"},
                    WrongLine{"menu", "no menu entry ''"}, WrongLine{"menu cmdEnter", "no menu entry 'cmdEnter'"},
                    WrongLine{"menu mnuNothing", "no menu entry 'mnuNothing'"}, WrongLine{"answer", "no answer ''"},
                    WrongLine{"answer maybe", "no answer 'maybe'"}, WrongLine{"show nothing", "no control 'nothing'"}));

TEST_F(KeyScriptTest, WhatAShowReadsBeforeAWrongWordIsPrinted) {
    EXPECT_EQ(run("show depth nothing x"), ScriptEnd::WrongScript);
    EXPECT_EQ(out, (Lines{"depth 0"}));
}

// Dialogs.

TEST_F(KeyScriptTest, WhileADialogIsOpenKeysAndControlsAreItsOwn) {
    SmallDialog dialog;
    EXPECT_EQ(runHooked({{"click cmdEsc", [&] { form().cmdEsc.click = [&] { open(dialog); }; }},
                         {"show dialog txtValue form", {}},
                         {"type 42", {}},
                         {"show txtValue entry", {}},
                         {"key Enter", {}},
                         {"show dialog entry", {}},
                         {"type 7", {}},
                         {"show entry", {}}}),
              ScriptEnd::Done);
    EXPECT_EQ(out, (Lines{R"(dialog frmSmall "Small")", "dialog frmSmall", R"(txtValue "" enabled visible focus)",
                          R"(txtValue "" enabled visible focus)", R"(cmdDone "Done" enabled visible)",
                          R"(txtValue "42" enabled visible focus)", "entry", "dialog frmSmall closed", "dialog none",
                          "entry", "entry 7"}));
}

TEST_F(KeyScriptTest, CloseClosesTheDialogAndNotTheProgram) {
    SmallDialog dialog;
    EXPECT_EQ(runHooked({{"click cmdEsc", [&] { form().cmdEsc.click = [&] { open(dialog); }; }},
                         {"close", {}},
                         {"show dialog", {}}}),
              ScriptEnd::Done);
    EXPECT_EQ(out, (Lines{R"(dialog frmSmall "Small")", "dialog frmSmall closed", "dialog none"}));
}

TEST_F(KeyScriptTest, AScriptThatEndsWithADialogOpenClosesIt) {
    SmallDialog dialog;
    EXPECT_EQ(runHooked({{"click cmdEsc", [&] { form().cmdEsc.click = [&] { open(dialog); }; }}}), ScriptEnd::Done);
    EXPECT_EQ(out, (Lines{R"(dialog frmSmall "Small")", "dialog frmSmall closed"}));
}

TEST_F(KeyScriptTest, ADialogOverADialogHasTheKeyboard) {
    SmallDialog lower;
    SmallDialog upper;
    upper.name = "frmUpper";
    EXPECT_EQ(runHooked({{"click cmdEsc", [&] { form().cmdEsc.click = [&] { open(lower); }; }},
                         {"click cmdDone", [&] { lower.done.click = [&] { open(upper); }; }},
                         {"show dialog", {}},
                         {"close", {}},
                         {"show dialog", {}},
                         {"close", {}},
                         {"show dialog", {}}}),
              ScriptEnd::Done);
    EXPECT_EQ(out, (Lines{R"(dialog frmSmall "Small")", R"(dialog frmUpper "Small")", "dialog frmUpper",
                          "dialog frmUpper closed", "dialog frmSmall", "dialog frmSmall closed", "dialog none"}));
}

TEST_F(KeyScriptTest, ARestartLeavesTheOpenDialogsFirst) {
    SmallDialog lower;
    SmallDialog upper;
    upper.name = "frmUpper";
    EXPECT_EQ(runHooked({{"type 5", {}},
                         {"click cmdEsc", [&] { form().cmdEsc.click = [&] { open(lower); }; }},
                         {"click cmdDone", [&] { lower.done.click = [&] { open(upper); }; }},
                         {"restart", {}},
                         {"show dialog entry", {}}}),
              ScriptEnd::Done);
    EXPECT_EQ(out, (Lines{R"(dialog frmSmall "Small")", R"(dialog frmUpper "Small")", "dialog frmUpper closed",
                          "dialog frmSmall closed", "end", "dialog none", "entry"}));
}

TEST_F(KeyScriptTest, TheMenuOfTheMainFormIsOutOfReachBehindADialog) {
    SmallDialog dialog;
    EXPECT_EQ(runHooked({{"click cmdEsc", [&] { form().cmdEsc.click = [&] { open(dialog); }; }}, {"menu mnuTrig", {}}}),
              ScriptEnd::WrongScript);
    EXPECT_EQ(complaints, (Lines{"line 2: no menu entry 'mnuTrig'"}));
}

TEST_F(KeyScriptTest, AWrongLineInsideADialogEndsTheScript) {
    SmallDialog dialog;
    EXPECT_EQ(runHooked({{"click cmdEsc", [&] { form().cmdEsc.click = [&] { open(dialog); }; }},
                         {"click cmdEnter", {}},
                         {"show x", {}}}),
              ScriptEnd::WrongScript);
    EXPECT_EQ(out, (Lines{R"(dialog frmSmall "Small")"}));
    EXPECT_EQ(complaints, (Lines{"line 2: no control 'cmdEnter'"}));
}

TEST_F(KeyScriptTest, AScriptPlaysOnACalculatorThatStandsAlready) {
    const auto print = [this](std::string_view line) { out.emplace_back(line); };
    HeadlessPlatform desk(options, print);
    Calculator calculator(desk);
    calculator.start();
    const auto play = [&](const std::string& text) {
        std::istringstream lines(text);
        KeyScript guest(calculator, desk, print, [this](std::string_view line) { complaints.emplace_back(line); });
        return guest.run(lines);
    };
    EXPECT_EQ(play("type 5\nkey Enter\n"), ScriptEnd::Done);
    EXPECT_EQ(play("type 3\nclick cmdMath(3)\nmenu mnuAbout\nclick cmdOK\nshow x\n"), ScriptEnd::Done);
    EXPECT_EQ(calculator.engine().xNumber(), 8.0);
    EXPECT_EQ(out, (Lines{R"(dialog frmAbout "About Tallyforge")", "dialog frmAbout closed", "x 8"}));
    EXPECT_EQ(play("close\n"), ScriptEnd::WrongScript);
    EXPECT_EQ(play("restart\n"), ScriptEnd::WrongScript);
    EXPECT_TRUE(calculator.engine().form.open);
    EXPECT_EQ(calculator.engine().xNumber(), 8.0);
}

}  // namespace
}  // namespace tallyforge
