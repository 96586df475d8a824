// SPDX-License-Identifier: GPL-3.0-or-later
//
// Series and parallel resonant circuits, against complex arithmetic.
#include "calculator_fixture.h"
#include "calculators/calculators.h"
#include "numbers/number_format.h"

#include <cmath>
#include <complex>
#include <map>

namespace tallyforge {
namespace {

using Complex = std::complex<double>;
constexpr double kTwoPiOfTheKeys = 6.28318530717958;

struct Circuit {
    double r;
    double c;
    double l;
    double load;
};

Complex seriesCircuit(const Circuit& of, double f) {
    const double w = kTwoPiOfTheKeys * f;
    const Complex branch{of.r, w * of.l - 1.0 / (w * of.c)};
    return branch * of.load / (branch + of.load);
}

Complex parallelCircuit(const Circuit& of, double f) {
    const double w = kTwoPiOfTheKeys * f;
    return 1.0 / (Complex{0.0, w * of.c} + 1.0 / Complex{of.r, w * of.l});
}

class ResonantCircuits : public CalculatorTest {
protected:
    ResonantCircuits() { calc.s.format.Angle = AngleMode::Radians; }
};

TEST_F(ResonantCircuits, SeriesImpedanceIsThatOfComplexArithmetic) {
    for (const double load : {1.0, 470.0, 1e6}) {
        const Circuit of{10.0, 25e-9, 1e-3, load};
        const double fr = 1.0 / (kTwoPiOfTheKeys * std::sqrt(of.c * of.l));
        for (const double part : {0.01, 0.5, 0.999, 1.001, 2.0, 100.0}) {
            Values values{of.r, of.c, of.l, of.load, fr * part};
            ASSERT_NE(solveFor(kSeriesResonance, 31, values), nullptr);
            const Complex wanted = seriesCircuit(of, fr * part);
            EXPECT_NEAR(values[kFirstAnswer + 1] / std::abs(wanted), 1.0, 1e-11) << load << " " << part;
            EXPECT_NEAR(values[kFirstAnswer], std::arg(wanted), 1e-11) << load << " " << part;
        }
    }
}

TEST_F(ResonantCircuits, ParallelImpedanceIsThatOfComplexArithmetic) {
    for (const double r : {0.1, 10.0, 150.0, 250.0}) {
        const Circuit of{r, 25e-9, 1e-3, 0.0};
        for (const double f : {10.0, 1e4, 3.1e4, 3.2e4, 1e6}) {
            Values values{of.r, of.c, of.l, f};
            ASSERT_NE(solveFor(kParallelResonance, 15, values), nullptr);
            const Complex wanted = parallelCircuit(of, f);
            EXPECT_NEAR(values[kFirstAnswer + 1] / std::abs(wanted), 1.0, 1e-11) << r << " " << f;
            EXPECT_NEAR(values[kFirstAnswer], std::arg(wanted), 1e-11) << r << " " << f;
        }
    }
}

TEST_F(ResonantCircuits, ParallelResonanceIsWhereTheAngleVanishes) {
    Values values{10.0, 25e-9, 1e-3};
    ASSERT_NE(solveFor(kParallelResonance, 7, values), nullptr);
    const double fn = 1.0 / (kTwoPiOfTheKeys * 5e-6);
    EXPECT_NEAR(values[kFirstAnswer] / fn, 1.0, 1e-14);
    EXPECT_NEAR(values[kFirstAnswer + 2], 20.0, 1e-12) << "200 ohms of reactance over 10";
    const double fr = values[kFirstAnswer + 1];
    EXPECT_NEAR(fr / (fn * std::sqrt(1.0 - 1.0 / 400.0)), 1.0, 1e-14);
    EXPECT_NEAR(std::arg(parallelCircuit({10.0, 25e-9, 1e-3, 0.0}, fr)), 0.0, 1e-12);
    EXPECT_NEAR(values[kFirstAnswer + 3] / 4000.0, 1.0, 1e-12) << "L / (R C)";
}

TEST_F(ResonantCircuits, AQualityBelowOneHasNoResonance) {
    Values values{250.0, 25e-9, 1e-3};
    ASSERT_NE(solveFor(kParallelResonance, 7, values), nullptr);
    EXPECT_NEAR(values[kFirstAnswer + 2], 0.8, 1e-14);
    EXPECT_EQ(values[kFirstAnswer + 1], 0.0);
    const double wanted = std::abs(parallelCircuit({250.0, 25e-9, 1e-3, 0.0}, values[kFirstAnswer]));
    EXPECT_NEAR(values[kFirstAnswer + 3] / wanted, 1.0, 1e-12);
}

TEST_F(ResonantCircuits, AnExactResonanceAndAnAngularFrequencyOfOneAreGuarded) {
    Values values{2.0, 1.0, 1.0, 1e100, 1.0 / kTwoPiOfTheKeys};
    ASSERT_NE(solveFor(kSeriesResonance, 31, values), nullptr);
    EXPECT_NEAR(values[kFirstAnswer + 1], 2.0, 1e-11);
    values = {10.0, 0.25, 4.0, 1e100, 1.0 / kTwoPiOfTheKeys};
    ASSERT_NE(solveFor(kSeriesResonance, 31, values), nullptr);
    EXPECT_TRUE(std::isfinite(values[kFirstAnswer]));
    EXPECT_NEAR(values[kFirstAnswer + 1], 10.0, 1e-10);
}

TEST_F(ResonantCircuits, SeriesFirstStandsAtItsResonanceThenAtTheFrequencyGiven) {
    open(kSeriesResonance, [&](DialogAtHand hand) {
        EXPECT_EQ(hand.field(3), "1.24E100");
        EXPECT_FALSE(hand.at("txtVal", 4).visible);
        EXPECT_EQ(hand.at("lblUse").text, "Clear/ Use");
        hand.enter("10");
        hand.enter("25e-9");
        hand.enter("1e-3");
        EXPECT_EQ(hand.at("lblAns", 0).text, "Qo");
        EXPECT_EQ(hand.at("txtAns", 0).text, "20.000 0");
        EXPECT_EQ(hand.at("lblAns", 1).text, "Zin");
        EXPECT_EQ(hand.at("txtAns", 1).text, "10.000 0");
        EXPECT_EQ(hand.field(4), "31,830.988 6");
        EXPECT_TRUE(hand.at("txtVal", 4).enabled);
        for (int i = 0; i < 5; ++i) {
            EXPECT_TRUE(hand.at("optCalc", i).visible) << i;
        }
        hand.clickOn("txtVal", 4);
        EXPECT_EQ(hand.field(4), "") << "a key replaces the shown frequency";
        EXPECT_FALSE(hand.at("txtAns", 0).visible);
        hand.enter("1e4");
        EXPECT_EQ(hand.at("lblAns", 0).text, "Angle");
        EXPECT_EQ(hand.at("lblAns", 1).text, "Zf");
        EXPECT_EQ(hand.at("lblAns", 2).text, "rad");
        EXPECT_TRUE(hand.at("optCalc", 4).visible);
        EXPECT_FALSE(hand.at("optCalc", 0).visible);
        hand.enter();
    });
    const Complex wanted = seriesCircuit({10.0, 25e-9, 1e-3, 1.2368475014133e100}, 1e4);
    ASSERT_EQ(posted().size(), 6U) << "Rs, C, L, F, angle and impedance";
    EXPECT_NEAR(posted()[4], std::arg(wanted), 1e-12);
    EXPECT_NEAR(posted()[5] / std::abs(wanted), 1.0, 1e-12);
}

TEST_F(ResonantCircuits, AnyOrderSolvesAndTheLoadComesBeforeAfterOrNever) {
    const std::map<int, const char*> values{{0, "10"}, {1, "25e-9"}, {2, "1e-3"}, {3, "40"}};
    for (const std::vector<int>& order : {std::vector{0, 1, 2}, {2, 0, 1}, {3, 0, 1, 2}, {1, 3, 2, 0}, {2, 1, 3, 0}}) {
        open(kSeriesResonance, [&](DialogAtHand hand) {
            for (const int field : order) {
                EXPECT_EQ(hand.at("cmdXreg").text, "&Exit");
                hand.clickOn("txtVal", field);
                hand.enter(values.at(field));
            }
            EXPECT_EQ(hand.field(4), "31,830.988 6");
            EXPECT_EQ(hand.at("txtAns", 1).text, order.size() == 4 ? "8.000 0" : "10.000 0");
            if (order.size() == 3) {
                hand.clickOn("optCalc", 3);
                hand.enter("40");
                EXPECT_EQ(hand.at("txtAns", 1).text, "8.000 0") << "10 beside 40";
            }
        });
    }
}

TEST_F(ResonantCircuits, AValueGivenAnewSolvesWithTheOthersKept) {
    open(kSeriesResonance, [&](DialogAtHand hand) {
        hand.enter("10");
        hand.enter("25e-9");
        hand.enter("1e-3");
        hand.clickOn("optCalc", 0);
        EXPECT_EQ(hand.field(0), "");
        EXPECT_EQ(hand.focus(), "txtVal(0)");
        EXPECT_EQ(hand.field(1), "25e-9");
        EXPECT_EQ(hand.field(4), "");
        hand.enter("20");
        EXPECT_EQ(hand.at("txtAns", 0).text, "10.000 0");
        hand.clickOn("optCalc", 4);
        EXPECT_FALSE(hand.at("optCalc", 0).visible);
        hand.enter();
        EXPECT_EQ(hand.field(4), "31,830.988 6") << "Enter on an empty frequency brings the resonance back";
    });
    open(kParallelResonance, [&](DialogAtHand hand) {
        hand.enter("10");
        hand.enter("25e-9");
        hand.enter("1e-3");
        EXPECT_EQ(hand.at("lblAns", 0).text, "Fn");
        EXPECT_EQ(hand.at("lblAns", 1).text, "Fr");
        EXPECT_EQ(hand.at("txtAns", 2).text, "20.000 0");
        EXPECT_EQ(hand.at("txtAns", 3).text, "4,000.000 0");
        hand.clickOn("optCalc", 0);
        hand.enter("20");
        EXPECT_EQ(hand.at("txtAns", 2).text, "10.000 0");
        hand.clickOn("txtVal", 3);
        hand.enter("1e4");
        EXPECT_EQ(hand.at("lblAns", 0).text, "Angle");
        EXPECT_EQ(hand.at("lblAns", 1).text, "Zin");
        EXPECT_FALSE(hand.at("txtAns", 2).visible);
    });
}

TEST_F(ResonantCircuits, TheAngleIsInTheModeOfTheKeys) {
    const double radians = std::arg(seriesCircuit({10.0, 25e-9, 1e-3, 1.2368475014133e100}, 1e4));
    const std::map<AngleMode, std::pair<double, std::string>> modes{
        {AngleMode::Degrees, {radians * 180.0 / std::acos(-1.0), "Deg"}},
        {AngleMode::Grads, {radians * 200.0 / std::acos(-1.0), "Grad"}},
        {AngleMode::Radians, {radians, "rad"}}};
    for (const auto& [mode, wanted] : modes) {
        calc.s.format.Angle = mode;
        const std::size_t before = calc.tape.lines();
        open(kSeriesResonance, [&, name = wanted.second](DialogAtHand hand) {
            hand.enter("10");
            hand.enter("25e-9");
            hand.enter("1e-3");
            hand.clickOn("txtVal", 4);
            hand.enter("1e4");
            EXPECT_EQ(hand.at("lblAns", 2).text, name);
            hand.enter();
        });
        EXPECT_NEAR(posted(before)[4] / wanted.first, 1.0, 1e-12);
    }
}

TEST_F(ResonantCircuits, XComesInByItsModifier) {
    openWith(kSeriesResonance, kShift, "40", [&](DialogAtHand hand) {
        EXPECT_EQ(hand.field(3), "40");
        hand.enter("10");
        hand.enter("25e-9");
        hand.enter("1e-3");
        EXPECT_EQ(hand.at("txtAns", 1).text, "8.000 0");
    });
    openWith(kSeriesResonance, kCtrl | kAlt, "10", [&](DialogAtHand hand) { EXPECT_EQ(hand.field(0), "10"); });
}

}  // namespace
}  // namespace tallyforge
