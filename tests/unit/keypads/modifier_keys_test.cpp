// SPDX-License-Identifier: GPL-3.0-or-later
#include "unit/keypads/keypads_fixture.h"

#include <array>

namespace tallyforge {
namespace {

class ModifierKeysTest : public KeypadsTest {
protected:
    void expectLamps(std::uint8_t mask) {
        EXPECT_EQ(calc.form.shaShift.visible, (mask & kShift) != 0);
        EXPECT_EQ(calc.form.shaCtrl.visible, (mask & kCtrl) != 0);
        EXPECT_EQ(calc.form.shaAlt.visible, (mask & kAlt) != 0);
    }
    std::size_t latchedOption() const {
        std::size_t found = calc.form.optKey.size();
        for (std::size_t i = 0; i < calc.form.optKey.size(); ++i) {
            if (calc.form.optKey.at(i).checked) {
                EXPECT_EQ(found, calc.form.optKey.size()) << "two options are selected";
                found = i;
            }
        }
        return found;
    }
};

TEST_F(ModifierKeysTest, OptionKeysCarryTheirCombinationAndTheLastIsNotShown) {
    const std::array<const char*, 8> captions{"Shift",     "Ctrl",     "Shift+Ctrl",     "Alt",
                                              "Shift+Alt", "Ctrl+Alt", "Shift+Ctrl+Alt", ""};
    for (std::size_t i = 0; i < captions.size(); ++i) {
        EXPECT_EQ(calc.form.optKey.at(i).text, captions.at(i));
    }
    EXPECT_FALSE(calc.form.optKey[7].visible);
    EXPECT_EQ(calc.form.fraKeyboard.text, "Keyboard Key(s)");
}

TEST_F(ModifierKeysTest, AnOptionKeyLatchesTheMaskOfItsIndexPlusOneAndPaintsTheBank) {
    for (std::size_t i = 0; i < 7; ++i) {
        latch(i);
        const auto mask = static_cast<std::uint8_t>(i + 1);
        EXPECT_EQ(calc.s.modifiers.ModifierMask, mask);
        EXPECT_TRUE(calc.s.modifiers.ModifierLatched);
        EXPECT_EQ(latchedOption(), i);
        EXPECT_EQ(calc.form.focus, &calc.form.txtXreg);
        expectLamps(mask);
        for (std::size_t key = 0; key < kBankKeys; ++key) {
            const KeyRow& row = keypadTable(Keypad::Standard).rows.at(key);
            EXPECT_EQ(bank(key).visible, row.common || !row.under.at(mask).text.empty()) << key;
        }
    }
}

TEST_F(ModifierKeysTest, TheSameOptionTwiceStaysLatchedAndAnotherReplacesItWithoutAdding) {
    latch(0);
    latch(0);
    EXPECT_EQ(calc.s.modifiers.ModifierMask, kShift);
    EXPECT_TRUE(calc.s.modifiers.ModifierLatched);
    latch(1);
    EXPECT_EQ(calc.s.modifiers.ModifierMask, kCtrl);
    EXPECT_EQ(bank(5).text, "2^x");
    EXPECT_EQ(latchedOption(), 1U);
}

TEST_F(ModifierKeysTest, TheHiddenOptionTakesTheLatchBack) {
    latch(2);
    keypads.optKey_Click(7);
    EXPECT_EQ(calc.s.modifiers.ModifierMask, 0);
    EXPECT_FALSE(calc.s.modifiers.ModifierLatched);
    EXPECT_EQ(latchedOption(), 7U);
    EXPECT_EQ(bank(5).text, "y^x");
    EXPECT_TRUE(bank(5).visible);
    expectLamps(0);
}

TEST_F(ModifierKeysTest, WhileLatchedTheKeyboardLeavesTheMaskAloneAndKeysAreDropped) {
    latch(1);
    hold(kShift);
    EXPECT_EQ(calc.s.modifiers.ModifierMask, kCtrl);
    letGo();
    EXPECT_EQ(calc.s.modifiers.ModifierMask, kCtrl);
    expectLamps(kCtrl);
    type("5");
    EXPECT_EQ(calc.entryText(), "");
}

TEST_F(ModifierKeysTest, TheLatchLivesUntilAKeyWhetherOrNotItUsedIt) {
    type("4");
    enter();
    latch(0);
    clickBank(1);
    EXPECT_EQ(x(), "16");
    EXPECT_EQ(calc.s.modifiers.ModifierMask, 0);
    EXPECT_FALSE(calc.s.modifiers.ModifierLatched);
    EXPECT_EQ(latchedOption(), 7U);
    EXPECT_EQ(bank(5).text, "y^x");
    expectLamps(0);
}

TEST_F(ModifierKeysTest, AHeldModifierPaintsOnKeyDownAndIsTakenBackOnKeyUp) {
    hold(kShift | kAlt);
    EXPECT_EQ(calc.s.modifiers.ModifierMask, kShift | kAlt);
    expectLamps(kShift | kAlt);
    EXPECT_EQ(bank(11).text, "Ceil");
    EXPECT_FALSE(bank(4).visible);
    letGo();
    EXPECT_EQ(calc.s.modifiers.ModifierMask, 0);
    expectLamps(0);
    EXPECT_EQ(bank(11).text, "Rnd");
    EXPECT_TRUE(bank(4).visible);
}

TEST_F(ModifierKeysTest, EveryMaskOfTheKeyboardPaintsItsOwnCaptions) {
    for (std::uint8_t mask = 1; mask <= 7; ++mask) {
        hold(mask);
        for (std::size_t key = 0; key < kBankKeys; ++key) {
            const KeyRow& row = keypadTable(Keypad::Standard).rows.at(key);
            const KeyCaption& caption = row.common ? row.caption : row.under.at(mask);
            EXPECT_EQ(bank(key).visible, !caption.text.empty()) << key << " under " << int{mask};
            if (bank(key).visible) {
                EXPECT_EQ(bank(key).text, caption.text) << key << " under " << int{mask};
                EXPECT_EQ(bank(key).font.face, caption.face) << key << " under " << int{mask};
            }
        }
        letGo();
    }
}

TEST_F(ModifierKeysTest, APaintedKeyKeepsItsToolTipAndItsColour) {
    const Control before = bank(18);
    hold(kShift);
    EXPECT_EQ(bank(18).text, "Amt");
    EXPECT_EQ(bank(18).tip, before.tip);
    EXPECT_EQ(bank(18).colour, KeyColour::Yellow);
}

}  // namespace
}  // namespace tallyforge
