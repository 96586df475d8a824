// SPDX-License-Identifier: GPL-3.0-or-later
//
// Where the dispatch hands a key on: to a mode that has the bank, to help, to a dialog.
#include "unit/keypads/keypads_fixture.h"

namespace tallyforge {
namespace {

class DispatchHandOn : public KeypadsTest {};

TEST_F(DispatchHandOn, OnTheLetterDrillOverlayAKeyOnlyGivesTheKeyboardBack) {
    type("4");
    calc.s.ActiveKeypad = Keypad::LetterDrill;
    calc.form.focus = nullptr;
    clickBank(1);
    EXPECT_EQ(calc.entryText(), "4");
    EXPECT_EQ(calc.form.focus, &calc.form.txtXreg);
}

TEST_F(DispatchHandOn, KeypadFiveHasKeyFourAlone) {
    type("4");
    calc.s.ActiveKeypad = Keypad::Percent;
    keypads.cmdFunctions_Click(1);
    EXPECT_EQ(calc.entryText(), "4");
}

TEST_F(DispatchHandOn, KeysThatMayBeHexDigitsLeaveTheTypedNumberOpen) {
    keypads.ShowKeypad(Keypad::Binary);
    for (const int key : {0, 1, 2, 16, 17, 19}) {
        type("1");
        const int depth = calc.s.depth();
        static std::string typed;
        static bool open = false;
        pressRow(
            [](Keys& k) {
                typed = k.calc.entryText();
                open = k.calc.s.EntryOpen;
                k.calc.s.Xreg = kNothingDone;
            },
            key);
        EXPECT_EQ(typed, "1") << key;
        EXPECT_TRUE(open) << key;
        EXPECT_EQ(calc.s.depth(), depth) << key;
    }
}

TEST_F(DispatchHandOn, ProgramModeTakesTheKeyAndARunningProgramLetsItThrough) {
    int recorded = -1;
    bool takes = true;
    keypads.dispatch.programKey = [&](int index) {
        recorded = index;
        return takes;
    };
    type("4");
    calc.s.ProgramMode = true;
    clickBank(1);
    EXPECT_EQ(recorded, 1);
    EXPECT_EQ(calc.entryText(), "4");
    takes = false;
    clickBank(1);
    EXPECT_EQ(x(), "16");
}

TEST_F(DispatchHandOn, MemoryArrayModeMakesTheBankRegisterKeysButNotTheShortCuts) {
    int asked = -1;
    keypads.dispatch.registerKey = [&](int index) { asked = index; };
    type("4");
    calc.s.MemoryArrayMode = true;
    calc.s.ActiveKeypad = Keypad::MemoryArray;
    clickBank(1);
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(calc.entryText(), "4");
    calc.s.ActiveKeypad = Keypad::Standard;
    asked = -1;
    keypads.cmdFunctions_Click(1);
    EXPECT_EQ(asked, -1);
    EXPECT_EQ(x(), "16");
}

TEST_F(DispatchHandOn, TheRightButtonOpensTheTopicOfTheKey) {
    type("4");
    rightClickBank(14);
    EXPECT_EQ(platform.helpTopics, std::vector<int>{keypadTable(Keypad::Standard).rows[14].helpTopic});
    EXPECT_EQ(calc.entryText(), "4");
    platform.helpTopics.clear();
    for (const std::uint8_t mask : {kShift, kAlt}) {
        rightClickBank(14, mask);
    }
    EXPECT_TRUE(platform.helpTopics.empty());
}

TEST_F(DispatchHandOn, WhileAModeHasTheBankTheRightButtonGivesHelpUnderAnyModifier) {
    calc.s.ProgramMode = true;
    rightClickBank(3, kShift);
    EXPECT_EQ(platform.helpTopics.size(), 1U);
}

TEST_F(DispatchHandOn, CtrlWithTheRightButtonChoosesOnlyOnALightBlueKey) {
    for (const KeypadTable* table : keypadTables()) {
        for (const KeyRow& row : table->rows) {
            EXPECT_TRUE(row.choose == nullptr || row.colour == KeyColour::Blue) << table->name << row.key;
        }
    }
    keypads.ShowKeypad(Keypad::Standard);
    rightClickBank(18, kCtrl);
    EXPECT_TRUE(platform.helpTopics.empty());
    EXPECT_TRUE(platform.dialogs.empty());
}

TEST_F(DispatchHandOn, DialogGetsXAndTheMaskAndItsLabelledResultIsCommitted) {
    static Form dialog("frmTest", "Test");
    static std::uint8_t id = 0;
    static std::string value;
    type("12");
    latch(3);
    platform.inDialog = [&](Form&) {
        id = keypads.keys.dialog.DialogCalcId;
        value = calc.text(keypads.keys.dialog.DialogValue);
        EXPECT_EQ(calc.s.ModifierMask, 0);
        EXPECT_TRUE(calc.dialogOpen);
        calc.s.Xreg = 99.0;
        calc.s.FnLabel = "P";
    };
    pressRow([](Keys& k) { k.dialog.show(dialog); });
    EXPECT_EQ(id, kAlt);
    EXPECT_EQ(value, "12");
    EXPECT_EQ(x(), "99");
    EXPECT_EQ(calc.s.depth(), 1);
    EXPECT_FALSE(calc.dialogOpen);
}

TEST_F(DispatchHandOn, ADialogThatWasCancelledCommitsNothing) {
    static Form dialog("frmTest", "Test");
    type("12");
    enter();
    const std::size_t before = calc.tape.lines();
    platform.inDialog = [&](Form&) { calc.s.Xreg = 99.0; };
    pressRow([](Keys& k) { k.dialog.show(dialog); });
    EXPECT_EQ(element(1), "12");
    EXPECT_EQ(calc.tape.lines(), before);
    EXPECT_TRUE(platform.boxes.empty());
}

}  // namespace
}  // namespace tallyforge
