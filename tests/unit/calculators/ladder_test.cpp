// SPDX-License-Identifier: GPL-3.0-or-later
#include "calculators/ladder.h"

#include "calculator_fixture.h"
#include "calculators/ladder_dialog.h"

#include <cmath>
#include <complex>

namespace tallyforge {
namespace {

using Complex = std::complex<double>;
constexpr double kTwoPiOfTheKeys = 6.28318530717958;

TEST(Ladder, AgreesWithComplexArithmetic) {
    const double w = kTwoPiOfTheKeys * 1000.0;
    Ladder ladder = CalcLNW({}, LadderElement::Frequency, 1000.0);
    Complex z;
    const auto expect = [&](LadderElement element, double value, const Complex& wanted) {
        ladder = CalcLNW(ladder, element, value);
        z = wanted;
        EXPECT_NEAR(std::abs(inputImpedance(ladder) - wanted) / std::abs(wanted), 0.0, 1e-13);
    };
    const auto beside = [&](const Complex& other) { return z * other / (z + other); };
    expect(LadderElement::Rp, 50.0, 50.0);
    expect(LadderElement::Ls, 5e-3, z + Complex(0, w * 5e-3));
    expect(LadderElement::Cp, 2e-6, beside(Complex(0, -1.0 / (w * 2e-6))));
    expect(LadderElement::rs, 10.0, z + 10.0);
    expect(LadderElement::Cs, 3e-6, z - Complex(0, 1.0 / (w * 3e-6)));
    expect(LadderElement::Lp, 8e-3, beside(Complex(0, w * 8e-3)));
}

TEST(Ladder, RefusesASeriesElementFirstAndAReactanceWithoutFrequency) {
    EXPECT_THROW(static_cast<void>(CalcLNW({}, LadderElement::rs, 5.0)), Refusal);
    EXPECT_THROW(static_cast<void>(CalcLNW({}, LadderElement::Lp, 5.0)), Refusal);
    const Ladder ready = CalcLNW({}, LadderElement::Frequency, 50.0);
    EXPECT_THROW(static_cast<void>(CalcLNW(ready, LadderElement::Ls, 5.0)), Refusal);
    EXPECT_NO_THROW(static_cast<void>(CalcLNW({}, LadderElement::Rp, 5.0)));
}

class LadderTest : public CalculatorTest {
protected:
    void openLadder(const std::function<void(DialogAtHand)>& hand) {
        LadderDialog dialog(calc, handOver, services);
        platform.inDialog = [&](Form& form) { hand(DialogAtHand(form)); };
        platform.showDialog(dialog);
        platform.inDialog = nullptr;
    }
};

TEST_F(LadderTest, ElementsAreListedMeasuredAndPosted) {
    calc.s.format.Angle = AngleMode::Degrees;
    openLadder([&](DialogAtHand hand) {
        hand.enter("1e3");
        EXPECT_EQ(hand.focus(), "txtVal(1)");
        EXPECT_EQ(hand.field(0), "") << "emptied when the keyboard left it";
        hand.enter("50");
        EXPECT_EQ(hand.field(7), "50.000 0");
        EXPECT_EQ(hand.focus(), "cmdXreg");
        hand.clickOn("txtVal", 2);
        EXPECT_EQ(hand.field(1), "");
        hand.enter("25");
        EXPECT_EQ(hand.field(7), "75.000 0");
        EXPECT_EQ(hand.field(8), "0.000 0");
        const ListRows& rows = *hand.at("lstComponets").rows;
        ASSERT_EQ(rows.count(), 3U);
        EXPECT_EQ(rows.row(0), "Fr 1.00e+03");
        EXPECT_EQ(rows.row(1), "Rp 5.00e+01");
        EXPECT_EQ(rows.row(2), "rs 2.50e+01");
        EXPECT_EQ(hand.at("lblUnits", 8).text, "Deg");
        hand.enter();
        EXPECT_EQ(hand.focus(), "cmdCalc");
        hand.enter();
        EXPECT_FALSE(hand.form.open);
    });
    EXPECT_EQ(posted(), (std::vector<double>{1000, 50, 0, 50, 25, 0, 75}));
    EXPECT_EQ(line(2), "rs                25.00");
    EXPECT_EQ(calc.s.stack.depth(), 1);
}

TEST_F(LadderTest, ARefusedElementIsNotListedAndTheFrequencyStays) {
    openLadder([&](DialogAtHand hand) {
        hand.clickOn("txtVal", 5);
        hand.enter("1e-6");
        expectBox("Redo!", "Enter the frequency first!");
        hand.clickOn("txtVal", 0);
        hand.enter("1e3");
        hand.clickOn("txtVal", 2);
        hand.enter("25");
        EXPECT_EQ(platform.boxes.at(0).kind, BoxKind::Stop);
        expectBox("Redo!", "First element must be parallel!");
        EXPECT_EQ(hand.at("lstComponets").rows->count(), 1U);
        hand.clickOn("txtVal", 3);
        hand.enter("1e-3");
        EXPECT_EQ(hand.field(7), "6.283 2") << "at the frequency that was given";
    });
}

TEST_F(LadderTest, AnotherFrequencyStartsTheNetworkAnew) {
    openLadder([&](DialogAtHand hand) {
        hand.enter("1e3");
        hand.enter("50");
        hand.clickOn("txtVal", 0);
        hand.enter("2e3");
        EXPECT_EQ(hand.at("lstComponets").rows->count(), 1U);
        hand.clickOn("txtVal", 2);
        hand.enter("25");
        expectBox("Redo!", "First element must be parallel!");
    });
}

TEST_F(LadderTest, TheFrequencyComesInUnderShift) {
    calc.s.stack.Xreg = 2000.0;
    calc.s.entry.EntryOpen = true;
    calc.commit.deliverX();
    calc.s.modifiers.ModifierMask = kShift;
    handOver.EnterDialog();
    openLadder([&](DialogAtHand hand) {
        EXPECT_EQ(hand.at("lstComponets").rows->count(), 1U);
        EXPECT_EQ(hand.focus(), "txtVal(1)");
    });
}

TEST_F(LadderTest, AnotherRowClearsTheNetwork) {
    openLadder([&](DialogAtHand hand) {
        hand.enter("1e3");
        hand.enter("50");
        hand.clickOn("OptFreq", 1);
        EXPECT_EQ(hand.at("lstComponets").rows->count(), 0U);
        EXPECT_EQ(hand.at("lblUnits", 0).text, "KHz");
    });
}

}  // namespace
}  // namespace tallyforge
