// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/dialog_hand_over.h"

#include "unit/engine/engine_fixture.h"

namespace tallyforge {
namespace {

class DialogHandOverTest : public EngineTest {
protected:
    DialogHandOver handOver{calc};
};

TEST_F(DialogHandOverTest, EnteringPassesXAndTheMaskAndClearsTheMask) {
    calc.s.stack.Xreg = 4.5;
    calc.s.modifiers.ModifierMask = kCtrl | kAlt;
    handOver.EnterDialog();
    EXPECT_EQ(calc.text(handOver.DialogValue), "4.5");
    EXPECT_EQ(handOver.DialogCalcId, kCtrl | kAlt);
    EXPECT_EQ(calc.s.modifiers.ModifierMask, 0);
    EXPECT_TRUE(calc.dialogOpen);
}

TEST_F(DialogHandOverTest, LeavingWithoutALabelMeansNothingDone) {
    handOver.EnterDialog();
    calc.s.stack.Xreg = 7.0;
    handOver.LeaveDialog();
    EXPECT_EQ(x(), "ZZZ");
    EXPECT_FALSE(calc.dialogOpen);
}

TEST_F(DialogHandOverTest, ALabelledResultStays) {
    handOver.EnterDialog();
    calc.s.stack.Xreg = 7.0;
    calc.s.delivery.FnLabel = "Fr(Hz)";
    handOver.LeaveDialog();
    EXPECT_EQ(x(), "7");
}

TEST_F(DialogHandOverTest, ClearingEmptiesAllThatWasPassed) {
    calc.s.modifiers.ModifierMask = kShift;
    calc.s.stack.Xreg = 7.0;
    handOver.EnterDialog();
    handOver.DialogValue2 = 3.0;
    handOver.DialogValues[6] = 5.0;
    handOver.ClearHandOver();
    EXPECT_TRUE(handOver.DialogValue.isEmptyText());
    EXPECT_TRUE(handOver.DialogValue2.isEmptyText());
    for (const ValueCell& value : handOver.DialogValues) {
        EXPECT_TRUE(value.isEmptyText());
    }
    EXPECT_EQ(handOver.DialogCalcId, 0);
}

}  // namespace
}  // namespace tallyforge
