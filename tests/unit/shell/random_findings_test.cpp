// SPDX-License-Identifier: GPL-3.0-or-later
//
// What random keys have found once, in the few keys that show it.
#include "support/bank_fixture.h"

namespace tallyforge {
namespace {

class RandomFindings : public BankAtHand {
protected:
    void store(std::string_view number) {
        type(number);
        clickWith(kShift, form().cmdSTO);
    }
    /// Alt with Reset clears everything, and all three modifiers take it back.
    void resetAndUndo() {
        platform.boxes.clear();
        clickWith(kAlt, form().cmdReset);
        EXPECT_EQ(reg(1), "0");
        clickWith(kShift | kCtrl | kAlt, form().cmdReset);
        EXPECT_TRUE(platform.boxes.empty());
    }
};

TEST_F(RandomFindings, ARegisterWithSixtyFourBitsDoesNotSpoilTheUndo) {
    choose(form().mnuEngBinary);
    const std::string ones = "#" + std::string(64, '1') + "b";
    put({"#FFFFFFFFFFFFFFFFh"});
    constexpr std::size_t kToBinary = 12;
    bank(kToBinary);
    ASSERT_EQ(x(), ones);
    store("1");
    resetAndUndo();
    EXPECT_EQ(reg(1), ones);
    EXPECT_EQ(x(), ones);
    EXPECT_EQ(form().txtReg_m[0].tip, "Register 1 - Register arithmetic");
}

TEST_F(RandomFindings, ALoneDecimalCommaInARegisterDoesNotEndItsLine) {
    platform.decimal = ',';
    start();
    put({","});
    EXPECT_EQ(lastBox(), "Error number 13") << "no number, but X has it";
    store("1");
    put({"2,5"});
    store("2");
    resetAndUndo();
    EXPECT_EQ(reg(1), ",");
    EXPECT_EQ(reg(2), "2,5");
    EXPECT_EQ(form().txtReg_m[0].tip, "Register 1 - Register arithmetic");
}

TEST_F(RandomFindings, ARightTriangleTooLargeForItsAreaIsRefused) {
    choose(form().mnuTrig);
    constexpr std::size_t kLegs = 14;
    on({"1e200"}, kLegs);
    on({"1e200"}, kLegs, kShift);
    EXPECT_EQ(lastBox(), "Number outside of range: ± 1.8e308, & ± 4.9e-324"_t);
    EXPECT_EQ(label(), "No Data!");
    EXPECT_EQ(x(), "0");
}

}  // namespace
}  // namespace tallyforge
