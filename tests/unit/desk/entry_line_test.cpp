// SPDX-License-Identifier: GPL-3.0-or-later
#include "unit/engine/engine_fixture.h"

namespace tallyforge {
namespace {

using Pressed = std::vector<std::string>;

class Entry : public EngineTest {
protected:
    /// What one character does above the engine, with an empty line and X = 3 on the stack.
    std::string effect(char character) {
        keypads.pressed.clear();
        type(std::string_view{&character, 1});
        const std::string result = keypads.pressed.empty() ? "" : keypads.pressed.front();
        EXPECT_EQ(calc.entryText(), "") << character;
        EXPECT_FALSE(calc.s.entry.EntryOpen) << character;
        return result;
    }
};

TEST_F(Entry, TakesDigitsAndOneDecimalCharacter) {
    type("12.5.6");
    EXPECT_EQ(calc.entryText(), "12.56");
    EXPECT_TRUE(calc.s.entry.EntryOpen);
    EXPECT_TRUE(calc.s.entry.DigitTyped);
    EXPECT_TRUE(calc.s.entry.EntryTouched);
}

TEST_F(Entry, ADecimalCharacterInTheExponentIsDroppedTheSameWay) {
    type("1.5e2.1");
    EXPECT_EQ(calc.entryText(), "1.5e21");
}

TEST_F(Entry, TheOtherLocalesDecimalCharacterIsDropped) {
    type("1,5");
    EXPECT_EQ(calc.entryText(), "15");
    entry.cmdEsc_Click();
    calc.s.format.DecimalChar = ',';
    type("1.2,5");
    EXPECT_EQ(calc.entryText(), "12,5");
}

TEST_F(Entry, ExponentOnAnEmptyLineGivesOneE) {
    type("e");
    EXPECT_EQ(calc.entryText(), "1e");
    EXPECT_EQ(calc.form.txtXreg.caret, 2U);
    type("4");
    enter();
    EXPECT_EQ(x(), "1e4");
}

TEST_F(Entry, ASecondExponentIsDropped) {
    type("2e3e4`E");
    EXPECT_EQ(calc.entryText(), "2e34");
}

TEST_F(Entry, CapitalEAndTheBackTickAreTheExponentToo) {
    type("2E3");
    EXPECT_EQ(calc.entryText(), "2e3");
    entry.cmdEsc_Click();
    type("2`3");
    EXPECT_EQ(calc.entryText(), "2e3");
}

TEST_F(Entry, BackspaceOverTheExponentLetsItBeTypedAgain) {
    type("2e");
    press(kKeyBackspace, 8);
    EXPECT_EQ(calc.entryText(), "2");
    EXPECT_FALSE(calc.s.entry.EexActive);
    type("e5");
    EXPECT_EQ(calc.entryText(), "2e5");
}

TEST_F(Entry, BackspaceDownToNothingLeavesNoOpenEntry) {
    commitText("7");
    type("12");
    press(kKeyBackspace, 8);
    press(kKeyBackspace, 8);
    EXPECT_EQ(calc.entryText(), "");
    EXPECT_FALSE(calc.s.entry.EntryOpen);
    enter();
    EXPECT_EQ(x(), "7");
    EXPECT_EQ(calc.s.stack.depth(), 2);
}

TEST_F(Entry, ADroppedCharacterLeavesNoOpenEntry) {
    commitText("7");
    type("q~$");
    EXPECT_FALSE(calc.s.entry.EntryOpen);
    enter();
    EXPECT_EQ(x(), "7");
    EXPECT_EQ(y(), "7");
    EXPECT_EQ(calc.s.stack.depth(), 2);
}

TEST_F(Entry, AfterEnterTheNextDigitStartsANumberThatPushes) {
    type("4");
    enter();
    EXPECT_EQ(calc.entryText(), "");
    type("5");
    EXPECT_EQ(calc.entryText(), "5");
    enter();
    EXPECT_EQ(calc.s.stack.depth(), 2);
}

TEST_F(Entry, EscEmptiesTheLine) {
    commitText("7");
    type("12e");
    press(kKeyEscape, 27);
    EXPECT_EQ(calc.entryText(), "");
    EXPECT_FALSE(calc.s.entry.EntryOpen);
    EXPECT_FALSE(calc.s.entry.EexActive);
    enter();
    EXPECT_EQ(x(), "7");
}

TEST_F(Entry, HoldsTwentyTwoCharactersAtMost) {
    type("123456789012345678901234567890");
    EXPECT_EQ(calc.entryText(), "1234567890123456789012");
    entry.cmdNumPad_Click(5);
    EXPECT_EQ(calc.entryText().size(), 22U);
}

TEST_F(Entry, FunctionCharactersWorkOnXWhenNothingIsTyped) {
    commitText("3");
    const std::vector<std::pair<char, const char*>> table{
        {'+', "math 3 keypad 0 mask 0"},
        {'a', "math 3 keypad 0 mask 0"},
        {'A', "math 3 keypad 0 mask 0"},
        {'-', "math 2 keypad 0 mask 0"},
        {'*', "math 1 keypad 0 mask 0"},
        {'m', "math 1 keypad 0 mask 0"},
        {'M', "math 1 keypad 0 mask 0"},
        {'/', "math 0 keypad 0 mask 0"},
        {'d', "math 0 keypad 0 mask 0"},
        {'D', "math 0 keypad 0 mask 0"},
        {'x', "fn 0 keypad 0 mask 0"},
        {'X', "fn 1 keypad 0 mask 0"},
        {'p', "fn 3 keypad 0 mask 0"},
        {'P', "fn 3 keypad 0 mask 0"},
        {'^', "fn 5 keypad 0 mask 0"},
        {'!', "fn 23 keypad 0 mask 0"},
        {'%', "fn 4 keypad 5 mask 0"},
        {'B', ""},
        {'C', ""},
        {'F', ""},
        {'#', ""},
        {'H', ""},
        {'h', ""},
        {'b', ""},
        {'o', ""},
        {' ', ""},
        {'z', ""},
    };
    for (const auto& [character, what] : table) {
        EXPECT_EQ(effect(character), what) << character;
    }
    EXPECT_EQ(calc.s.modes.ActiveKeypad, Keypad::Standard);
}

TEST_F(Entry, ATypedNumberStaysOpenForTheOperatorToCommit) {
    type("8+");
    EXPECT_EQ(keypads.pressed, (Pressed{"math 3 keypad 0 mask 0 open"}));
    EXPECT_EQ(calc.entryText(), "8");
}

TEST_F(Entry, ShortCutsBorrowTheStandardKeypadAndGiveItBack) {
    calc.s.modes.ActiveKeypad = Keypad::Magnetics;
    type("^!%p");
    EXPECT_EQ(keypads.pressed, (Pressed{"fn 5 keypad 0 mask 0", "fn 23 keypad 0 mask 0", "fn 4 keypad 5 mask 0",
                                        "fn 3 keypad 0 mask 0"}));
    EXPECT_EQ(calc.s.modes.ActiveKeypad, Keypad::Magnetics);
}

TEST_F(Entry, ControlKeysReachTheirFunctions) {
    commitText("3");
    press('C', 3, kCtrl);
    press('V', 22, kCtrl);
    press('P', 16, kCtrl);
    press('X', 24, kCtrl);
    press('6', 0, kCtrl);
    press('5', 0, kCtrl);
    press('5', 0, kShift | kCtrl);
    press('X', 24, kShift | kCtrl);
    press('P', 16, kShift | kCtrl);
    Pressed functions;
    for (const std::string& entryLine : keypads.pressed) {
        if (!entryLine.starts_with("paint")) {
            functions.push_back(entryLine);
        }
    }
    EXPECT_EQ(functions, (Pressed{"copy", "paste", "fn 3 keypad 0 mask 2", "fn 2 keypad 0 mask 2",
                                  "fn 5 keypad 0 mask 2", "fn 4 keypad 5 mask 2", "fn 4 keypad 5 mask 1",
                                  "fn 1 keypad 0 mask 3", "fn 3 keypad 0 mask 6"}));
    EXPECT_EQ(calc.entryText(), "");
}

TEST_F(Entry, TheQuizDropsTheOperators) {
    commitText("3");
    calc.s.modes.QuizMode = true;
    type("+-*/");
    EXPECT_TRUE(keypads.pressed.empty());
}

TEST_F(Entry, BaseModeDropsThePowersAndLiftsItselfForPi) {
    commitText("3");
    calc.s.modes.BaseMode = true;
    type("^!%");
    EXPECT_TRUE(keypads.pressed.empty());
    type("p");
    EXPECT_EQ(keypads.pressed, (Pressed{"fn 3 keypad 0 mask 0"}));
    EXPECT_TRUE(calc.s.modes.BaseMode);
}

TEST_F(Entry, DoublesAndHalvesX) {
    commitText("9");
    commitText("5");
    type("<");
    EXPECT_EQ(x(), "10");
    EXPECT_EQ(lastLine(), "X                 10.00");
    EXPECT_EQ(calc.s.stack.depth(), 2);
    EXPECT_EQ(y(), "9");
    type(">>");
    EXPECT_EQ(x(), "2.5");
    EXPECT_EQ(lastLine(), "\xF6                  2.50");
    EXPECT_EQ(calc.s.stack.depth(), 2);
    EXPECT_EQ(lastx(), "5");
}

TEST_F(Entry, HalvingOnADepthOfOneLeavesTheStackAlone) {
    commitText("5");
    type(">");
    EXPECT_EQ(x(), "2.5");
    EXPECT_EQ(calc.s.stack.depth(), 1);
    EXPECT_EQ(element(1), "2.5");
}

TEST_F(Entry, DoublingATypedNumberCommitsItFirst) {
    type("8<");
    EXPECT_EQ(x(), "16");
    EXPECT_EQ(calc.s.stack.depth(), 1);
    EXPECT_EQ(calc.tape.lines(), 2U);
}

TEST_F(Entry, DoublingBeyondTheRangeIsReportedAndKeepsX) {
    commitText("1e308");
    type("<");
    ASSERT_EQ(platform.boxes.size(), 1U);
    EXPECT_EQ(platform.boxes[0].text, "Error number 6!");
    EXPECT_EQ(element(1), "1e308");
    EXPECT_EQ(calc.s.stack.depth(), 1);
}

TEST_F(Entry, ShiftsABaseNumberThroughItsKeys) {
    commitText("#101b");
    type("<");
    type(">");
    EXPECT_EQ(keypads.pressed, (Pressed{"fn 7 keypad 10 mask 0 base", "fn 10 keypad 10 mask 0 base"}));
    EXPECT_FALSE(calc.s.modes.BaseMode) << "lent for the one key";
    EXPECT_EQ(calc.s.modes.ActiveKeypad, Keypad::Standard);
}

TEST_F(Entry, TheBackslashChangesTheSign) {
    commitText("4");
    type("\\");
    EXPECT_EQ(x(), "-4");
    EXPECT_EQ(calc.s.stack.depth(), 1);
    type("6\\");
    EXPECT_EQ(calc.entryText(), "-6");
    EXPECT_TRUE(calc.s.entry.EntryOpen);
}

TEST_F(Entry, ABaseNumberIsTypedWithItsTagDigitsAndLetter) {
    calc.s.modes.BaseMode = true;
    type("#1AFh");
    EXPECT_EQ(calc.entryText(), "#1AFh");
    EXPECT_TRUE(calc.s.entry.BaseNumberDone);
    EXPECT_FALSE(calc.s.entry.BaseTagDue);
    type("12e.#");
    EXPECT_EQ(calc.entryText(), "#1AFh") << "a finished number takes no more characters";
    press(kKeyBackspace, 8);
    EXPECT_EQ(calc.entryText(), "#1AF");
    EXPECT_TRUE(calc.s.entry.BaseTagDue);
    EXPECT_FALSE(calc.s.entry.BaseNumberDone);
}

TEST_F(Entry, ABaseNumberWithWrongDigitsEmptiesTheLine) {
    calc.s.modes.BaseMode = true;
    keypads.baseDigitsFit = false;
    type("#129o");
    EXPECT_EQ(calc.entryText(), "");
    EXPECT_FALSE(calc.s.entry.EntryOpen);
    EXPECT_EQ(calc.s.entry.BaseLetter, "o");
}

TEST_F(Entry, ASecondTagIsDropped) {
    calc.s.modes.BaseMode = true;
    type("#1#");
    EXPECT_EQ(calc.entryText(), "#1");
}

TEST_F(Entry, SpecialKeysReachTheirActions) {
    const std::vector<std::pair<int, const char*>> table{
        {kKeyF10, "convert"}, {kKeyF9, "show 20"},    {kKeyF11, "program"}, {kKeyF12, "memory"},
        {kKeyLeft, "back"},   {kKeyRight, "forward"}, {kKeyUp, "prev"},     {kKeyDown, "next"},
    };
    for (const auto& [keyCode, what] : table) {
        keypads.pressed.clear();
        press(keyCode);
        EXPECT_EQ(keypads.pressed, (Pressed{what}));
    }
    calc.s.modes.ProgramMode = true;
    keypads.pressed.clear();
    press(kKeyUp);
    EXPECT_TRUE(keypads.pressed.empty()) << "a program keypad is not left by the arrows";
}

TEST_F(Entry, StackKeysFromTheKeyboardAskWhetherTheyAreEnabled) {
    press(kKeyDelete);
    press(kKeyEnd);
    press(kKeyInsert);
    EXPECT_EQ(calc.tape.lines(), 0U);
    commitText("1");
    commitText("2");
    press(kKeyEnd);
    EXPECT_EQ(x(), "1");
    press(kKeyDelete);
    EXPECT_EQ(x(), "2");
    press(kKeyInsert);
    EXPECT_EQ(x(), "1");
}

TEST_F(Entry, AHeldModifierLightsItsLampAndPaintsTheBank) {
    holdModifiers(calc.form, kShift);
    EXPECT_TRUE(calc.form.shaShift.visible);
    EXPECT_EQ(calc.s.modifiers.ModifierMask, kShift);
    EXPECT_EQ(keypads.pressed, (Pressed{"paint 1"}));
    releaseModifiers(calc.form);
    EXPECT_FALSE(calc.form.shaShift.visible);
    EXPECT_EQ(calc.s.modifiers.ModifierMask, 0);
    EXPECT_EQ(keypads.repaints, 1);
}

TEST_F(Entry, WithoutKeyPaintingTheBankStaysAndTheMaskHolds) {
    calc.s.modifiers.NoKeyPaint = true;
    holdModifiers(calc.form, kAlt);
    EXPECT_TRUE(keypads.pressed.empty());
    EXPECT_EQ(calc.s.modifiers.ModifierMask, kAlt);
}

TEST_F(Entry, ALatchedModifierDropsKeysUntilEscEndsIt) {
    commitText("3");
    calc.s.modifiers.ModifierLatched = true;
    calc.s.modifiers.ModifierMask = kCtrl;
    type("5+");
    EXPECT_EQ(calc.entryText(), "");
    EXPECT_TRUE(keypads.pressed.empty());
    EXPECT_EQ(calc.s.modifiers.ModifierMask, kCtrl) << "a key-up leaves a latched modifier alone";
    press(kKeyEscape, 27);
    EXPECT_FALSE(calc.s.modifiers.ModifierLatched);
    EXPECT_EQ(calc.s.modifiers.ModifierMask, 0);
    type("5");
    EXPECT_EQ(calc.entryText(), "5");
}

TEST_F(Entry, OnScreenDigitsTypeLikeTheKeyboard) {
    entry.cmdNumPad_Click(1);
    entry.cmdNumPad_Click(10);
    entry.cmdNumPad_Click(5);
    entry.cmdNumPad_Click(10);
    EXPECT_EQ(calc.entryText(), "1.5");
    entry.cmdEex_Click();
    entry.cmdEex_Click();
    entry.cmdNumPad_Click(2);
    EXPECT_EQ(calc.entryText(), "1.5e2");
    entry.cmdBackSpace_Click();
    entry.cmdBackSpace_Click();
    EXPECT_EQ(calc.entryText(), "1.5");
    EXPECT_FALSE(calc.s.entry.EexActive);
    entry.cmdEsc_Click();
    EXPECT_EQ(calc.entryText(), "");
    entry.cmdEex_Click();
    EXPECT_EQ(calc.entryText(), "1e");
    EXPECT_EQ(calc.form.focus, &calc.form.txtXreg);
}

TEST_F(Entry, ModeKeysRespectModifiers) {
    calc.s.modifiers.ModifierMask = kCtrl;
    entry.cmdF11_Click();
    entry.cmdF12_Click();
    EXPECT_TRUE(keypads.pressed.empty());
    calc.s.modifiers.ModifierMask = kShift;
    entry.cmdF12_Click();
    EXPECT_EQ(keypads.pressed, (Pressed{"convert"}));
    entry.cmdF11_Click();
    entry.cmdF12_Click();
    EXPECT_EQ(keypads.pressed, (Pressed{"convert", "program", "memory"}));
}

TEST_F(Entry, ProgramModeSendsLettersToTheProgramKeys) {
    calc.s.modes.ProgramMode = true;
    type("aZ1[^_]");
    EXPECT_EQ(keypads.pressed, (Pressed{"letter 1", "letter 26"}));
    EXPECT_EQ(calc.entryText(), "1");
    type("\\`");
    EXPECT_EQ(calc.entryText(), "-1e");
}

}  // namespace
}  // namespace tallyforge
