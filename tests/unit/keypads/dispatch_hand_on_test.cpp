// SPDX-License-Identifier: GPL-3.0-or-later
//
// Where the dispatch hands a key on: to a mode that has the bank, to help, to a dialog.
#include "unit/keypads/keypads_fixture.h"

namespace tallyforge {
namespace {

class DispatchHandOn : public KeypadsTest {};

TEST_F(DispatchHandOn, OnTheLetterDrillOverlayAKeyOnlyGivesTheKeyboardBack) {
    type("4");
    calc.s.modes.ActiveKeypad = Keypad::LetterDrill;
    calc.form.focus = nullptr;
    clickBank(1);
    EXPECT_EQ(calc.entryText(), "4");
    EXPECT_EQ(calc.form.focus, &calc.form.txtXreg);
}

TEST_F(DispatchHandOn, KeypadFiveHasKeyFourAlone) {
    type("4");
    calc.s.modes.ActiveKeypad = Keypad::Percent;
    keypads.cmdFunctions_Click(1);
    EXPECT_EQ(calc.entryText(), "4");
}

TEST_F(DispatchHandOn, KeysThatTypeGoOnWithTheNumberThatIsTyped) {
    std::string typed;
    keypads.dispatch.typeCharacter = [&](char character) { typed += character; };
    keypads.ShowKeypad(Keypad::Binary);
    type("1");
    for (const std::size_t key : {2U, 1U, 0U, 19U, 16U, 17U}) {
        clickBank(key);
        EXPECT_EQ(calc.entryText(), "1");
        EXPECT_TRUE(calc.s.entry.EntryOpen);
    }
    EXPECT_EQ(typed, "ABCDEF");
    for (const std::size_t key : {0U, 1U, 2U, 16U, 19U}) {
        latch(0);
        clickBank(key);
    }
    EXPECT_EQ(typed, "ABCDEFohd#b");
    EXPECT_TRUE(platform.boxes.empty());
    keypads.optKey_Click(1);
    keypads.cmdFunctions_Click(0);
    ASSERT_EQ(platform.boxes.size(), 1U) << "a modifier without a meaning is told, and the number stays";
    EXPECT_EQ(calc.entryText(), "1");
}

TEST_F(DispatchHandOn, ProgramModeTakesTheKeyAndARunningProgramLetsItThrough) {
    int recorded = -1;
    bool takes = true;
    keypads.dispatch.programKey = [&](int index) {
        recorded = index;
        return takes;
    };
    type("4");
    calc.s.modes.ProgramMode = true;
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
    calc.s.modes.MemoryArrayMode = true;
    calc.s.modes.ActiveKeypad = Keypad::MemoryArray;
    clickBank(1);
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(calc.entryText(), "4");
    calc.s.modes.ActiveKeypad = Keypad::Standard;
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
    calc.s.modes.ProgramMode = true;
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
        EXPECT_EQ(calc.s.modifiers.ModifierMask, 0);
        EXPECT_TRUE(calc.dialogOpen);
        calc.s.stack.Xreg = 99.0;
        calc.s.delivery.FnLabel = "P";
    };
    pressRow([](Keys& k) { k.dialog.show(dialog); });
    EXPECT_EQ(id, kAlt);
    EXPECT_EQ(value, "12");
    EXPECT_EQ(x(), "99");
    EXPECT_EQ(calc.s.stack.depth(), 1);
    EXPECT_FALSE(calc.dialogOpen);
}

TEST_F(DispatchHandOn, ADialogThatWasCancelledCommitsNothing) {
    static Form dialog("frmTest", "Test");
    type("12");
    enter();
    const std::size_t before = calc.tape.lines();
    platform.inDialog = [&](Form&) { calc.s.stack.Xreg = 99.0; };
    pressRow([](Keys& k) { k.dialog.show(dialog); });
    EXPECT_EQ(element(1), "12");
    EXPECT_EQ(calc.tape.lines(), before);
    EXPECT_TRUE(platform.boxes.empty());
}

}  // namespace
}  // namespace tallyforge
