// SPDX-License-Identifier: GPL-3.0-or-later
//
// The digit keys that mean a function with Ctrl, in the row of digits and on the number pad.
#include "unit/engine/engine_fixture.h"

namespace tallyforge {
namespace {

using Pressed = std::vector<std::string>;

class DigitShortCuts : public EngineTest {
protected:
    /// What the key with this code presses above the engine.
    Pressed functionsOf(int keyCode, std::uint8_t shift) {
        keypads.pressed.clear();
        press(keyCode, 0, shift);
        Pressed functions;
        for (const std::string& line : keypads.pressed) {
            if (line.starts_with("fn")) {
                functions.push_back(line);
            }
        }
        return functions;
    }
    static constexpr int kRowFive = 53;
    static constexpr int kRowSix = 54;
    static constexpr int kPadFive = 101;
    static constexpr int kPadSix = 102;
};

TEST_F(DigitShortCuts, FiveIsPercentAndSixIsThePowerInTheRowAndOnThePad) {
    commitText("3");
    calc.s.modes.ActiveKeypad = Keypad::Magnetics;
    for (const int five : {kRowFive, kPadFive}) {
        EXPECT_EQ(functionsOf(five, kCtrl), Pressed{"fn 4 keypad 5 mask 2"}) << five;
        EXPECT_EQ(functionsOf(five, kShift | kCtrl), Pressed{"fn 4 keypad 5 mask 1"}) << five;
    }
    for (const int six : {kRowSix, kPadSix}) {
        EXPECT_EQ(functionsOf(six, kCtrl), Pressed{"fn 5 keypad 0 mask 2"}) << six;
    }
    EXPECT_EQ(calc.s.modes.ActiveKeypad, Keypad::Magnetics);
}

TEST_F(DigitShortCuts, NeighbouringKeysAndOtherModifiersMeanNoFunction) {
    commitText("3");
    for (const int key : {52, 55, 100, 103}) {
        EXPECT_EQ(functionsOf(key, kCtrl), Pressed{}) << key;
        EXPECT_EQ(functionsOf(key, kShift | kCtrl), Pressed{}) << key;
    }
    for (const int key : {kRowFive, kPadFive, kRowSix, kPadSix}) {
        EXPECT_EQ(functionsOf(key, 0), Pressed{}) << key;
        EXPECT_EQ(functionsOf(key, kAlt), Pressed{}) << key;
    }
    EXPECT_EQ(functionsOf(kPadSix, kShift | kCtrl), Pressed{});
}

TEST_F(DigitShortCuts, PercentRestsWhileNumbersOfABaseAreInForceAndThePowerDoesNot) {
    commitText("3");
    calc.s.modes.BaseMode = true;
    for (const int five : {kRowFive, kPadFive}) {
        EXPECT_EQ(functionsOf(five, kCtrl), Pressed{}) << five;
        EXPECT_EQ(functionsOf(five, kShift | kCtrl), Pressed{}) << five;
    }
    for (const int six : {kRowSix, kPadSix}) {
        EXPECT_EQ(functionsOf(six, kCtrl), Pressed{"fn 5 keypad 0 mask 2 base"}) << six;
    }
    EXPECT_EQ(x(), "3");
    EXPECT_EQ(calc.tape.lines(), 1U);
}

TEST_F(DigitShortCuts, ATypedNumberStaysOpenForThem) {
    type("8");
    EXPECT_EQ(functionsOf(kPadFive, kCtrl), Pressed{"fn 4 keypad 5 mask 2 open"});
    EXPECT_EQ(functionsOf(kPadSix, kCtrl), Pressed{"fn 5 keypad 0 mask 2 open"});
    EXPECT_EQ(calc.entryText(), "8");
}

}  // namespace
}  // namespace tallyforge
