// SPDX-License-Identifier: GPL-3.0-or-later
//
// The Trigonometry keypad in the hand of its user: each key under each modifier, in the three
// angle modes where they matter.
#include "platform/text.h"
#include "support/bank_fixture.h"

#include <cmath>

namespace tallyforge {
namespace {

class TrigonometryKeypad : public BankAtHand {
protected:
    TrigonometryKeypad() { choose(form().mnuTrig); }
    void unit(AngleMode mode) {
        choose(mode == AngleMode::Degrees   ? form().optDeg
               : mode == AngleMode::Radians ? form().optRad
                                            : form().optGrad);
    }
};

struct Row {
    std::size_t key;
    std::uint8_t mask;
    AngleMode mode;
    const char* x;
    double value;
    std::string_view label;
};

constexpr AngleMode kDeg = AngleMode::Degrees;
constexpr AngleMode kRad = AngleMode::Radians;
constexpr AngleMode kGrad = AngleMode::Grads;

// Labels in the tape's code page: 0xF8 is the degree sign.
constexpr Row kRows[] = {
    {22, 0, kDeg, "30", 0.5, "sin(x)"},
    {22, 0, kRad, "1", 0.841470984807897, "sin(x)"},
    {22, 0, kGrad, "50", 0.707106781186547, "sin(x)"},
    {22, 1, kDeg, "0.5", 30.0, "ASin(\xF8)"},
    {22, 1, kRad, "0.5", 0.523598775598299, "ASin(R)"},
    {22, 1, kGrad, "0.5", 33.3333333333333, "Asin(G)"},
    {21, 0, kDeg, "60", 0.5, "cos(x)"},
    {21, 0, kRad, "1", 0.540302305868140, "cos(x)"},
    {21, 0, kGrad, "50", 0.707106781186547, "cos(x)"},
    {21, 1, kDeg, "0.5", 60.0, "ACos(\xF8)"},
    {21, 1, kRad, "0.5", 1.04719755119660, "ACos(R)"},
    {21, 1, kGrad, "0.5", 66.6666666666667, "Acos(G)"},
    {20, 0, kDeg, "45", 1.0, "tan(x)"},
    {20, 0, kRad, "1", 1.55740772465490, "tan(x)"},
    {20, 0, kGrad, "50", 1.0, "tan(x)"},
    {20, 1, kDeg, "1", 45.0, "ATan(\xF8)"},
    {20, 1, kRad, "1", 0.785398163397448, "ATan(R)"},
    {20, 1, kGrad, "1", 50.0, "Atan(Grad)"},
    {7, 0, kDeg, "60", 2.0, "Sec(\xF8)"},
    {7, 0, kRad, "1", 1.85081571768093, "Sec(rad)"},
    {7, 0, kGrad, "50", 1.41421356237309, "Sec(Grad)"},
    {7, 1, kDeg, "2", 60.0, "\xF8"},
    {7, 1, kRad, "2", 1.04719755119660, "rad"},
    {7, 1, kGrad, "2", 66.6666666666667, "Grad"},
    {9, 0, kDeg, "45", 1.0, "Cot(\xF8)"},
    {9, 0, kRad, "1", 0.642092615934331, "Cot(rad)"},
    {9, 0, kGrad, "50", 1.0, "Cot(Grads)"},
    {9, 1, kDeg, "1", 45.0, "\xF8"},
    {9, 1, kRad, "1", 0.785398163397448, "rad"},
    {9, 1, kGrad, "1", 50.0, "Grads"},
    {10, 0, kDeg, "30", 2.0, "Csc(\xF8)"},
    {10, 0, kRad, "1", 1.18839510577812, "Csc(rad)"},
    {10, 0, kGrad, "50", 1.41421356237310, "Csc(Grad)"},
    {10, 1, kDeg, "2", 30.0, "\xF8"},
    {10, 1, kRad, "2", 0.523598775598299, "rad"},
    {10, 1, kGrad, "2", 33.3333333333333, "Grad"},
    {6, 0, kDeg, "1", 1.17520119364380, "Sinh"},
    {6, 1, kDeg, "1", 0.881373587019543, "arcSinh"},
    {6, 2, kDeg, "1", 0.648054273663885, "Sech"},
    {6, 3, kDeg, "0.5", 1.31695789692482, "arcSech"},
    {17, 0, kDeg, "1", 0.761594155955765, "Tanh"},
    {17, 1, kDeg, "0.5", 0.549306144334055, "arcTanh"},
    {17, 2, kDeg, "1", 1.31303528549933, "Coth"},
    {17, 3, kDeg, "2", 0.549306144334055, "ArcCoth"},
    {18, 0, kDeg, "1", 1.54308063481524, "Cosh"},
    {18, 1, kDeg, "2", 1.31695789692482, "ArcCosh"},
    {18, 2, kDeg, "1", 0.850918128239322, "Csch"},
    {18, 3, kDeg, "1", 0.881373587019543, "ArcCsch"},
    {16, 0, kGrad, "3.14159265358979", 180.0, "Deg"},
    {16, 1, kGrad, "180", 3.14159265358979, "Rad"},
    {16, 2, kDeg, "90", 100.0, "Grad"},
    {16, 3, kDeg, "100", 90.0, "Deg"},
    {16, 4, kDeg, "3.14159265358979", 200.0, "Grad"},
    {16, 5, kDeg, "200", 3.14159265358979, "Rad"},
    {19, 4, kDeg, "2", 4.18879020478639, "V_Sphr"},
    {19, 5, kDeg, "2", 12.5663706143592, "A_Sphr"},
    {19, 6, kDeg, "2", 3.14159265358979, "A_Cir"},
    {19, 7, kDeg, "2", 6.28318530717958, "P_Cir"},
    {3, 0, kDeg, "9", 3.14159265358979, "\xE3"},
    {3, 1, kDeg, "9", 0.318309886183791, "1/\xE3"},
    {3, 2, kDeg, "9", 9.86960440108934, "\xE3\xFD"},
    {3, 3, kDeg, "9", 0.101321183642338, "1/\xE3\xFD"},
    {3, 4, kDeg, "9", 1.46459188756152, "cubeRt\xE3"},
    {3, 5, kDeg, "9", 0.682784063255296, "1/CR\xE3"},
    {3, 6, kDeg, "9", 6.28318530717958, "2\xE3"},
    {3, 7, kDeg, "9", 0.159154943091896, "1/2\xE3"},
};

TEST_F(TrigonometryKeypad, EachKeyGivesItsValueUnderItsLabel) {
    for (const Row& row : kRows) {
        SCOPED_TRACE(std::string(row.label) + " of " + row.x);
        unit(row.mode);
        on({row.x}, row.key, row.mask);
        EXPECT_NEAR(value(), row.value, 2e-14 * std::abs(row.value));
        EXPECT_EQ(label(), row.label);
        EXPECT_TRUE(platform.boxes.empty());
    }
}

TEST_F(TrigonometryKeypad, AFunctionTakesTheNumberItWorksOnAndAConstantIsPushed) {
    on({"7", "30"}, 22);
    EXPECT_EQ(s().stack.depth(), 2);
    EXPECT_EQ(element(1), "7");
    EXPECT_EQ(calc().text(s().stack.LastX), "30");
    bank(3);
    EXPECT_EQ(s().stack.depth(), 3);
}

TEST_F(TrigonometryKeypad, ModifiersWithoutAMeaningSaySo) {
    enter("0.5");
    for (const std::size_t key : {20U, 21U, 22U, 7U, 9U, 10U}) {
        expectNoMeaning(key, {2, 3, 4, 5, 6, 7});
    }
    for (const std::size_t key : {6U, 17U, 18U}) {
        expectNoMeaning(key, {4, 5, 6, 7});
    }
    expectNoMeaning(16, {6, 7});
    expectNoMeaning(12, {2, 3, 4, 5, 6, 7});
}

TEST_F(TrigonometryKeypad, SineOfAHalfTurnIsNotQuiteZeroForPiHasFifteenDigits) {
    on({"180"}, 22);
    EXPECT_EQ(x(), "3.23108914886517E-15");
}

TEST_F(TrigonometryKeypad, KeepsArcSineAndArcCosineOfMinusOne) {
    on({"-1"}, 22, kShift);
    EXPECT_NEAR(value(), 90.0, 1e-12);
    on({"-1"}, 21, kShift);
    EXPECT_EQ(value(), 0.0);
    EXPECT_TRUE(platform.boxes.empty());
}

TEST_F(TrigonometryKeypad, ArcSineBeyondOneIsRefused) {
    on({"2"}, 22, kShift);
    EXPECT_EQ(lastBox(), "Number outside of range: ± 1"_t);
    EXPECT_EQ(lastTitle(), "ArcSin Error!");
    EXPECT_EQ(x(), "0");
    EXPECT_EQ(label(), "Error");
    on({"-1.5"}, 21, kShift);
    EXPECT_EQ(lastBox(), "Number outside of range: ± 1"_t);
    EXPECT_EQ(lastTitle(), "Error!");
    EXPECT_EQ(label(), "Error");
}

TEST_F(TrigonometryKeypad, PolarBecomesRectangularAndBack) {
    on({"9", "30", "2"}, 12);
    EXPECT_NEAR(value(), std::sqrt(3.0), 1e-13);
    EXPECT_EQ(label(), "P>R(x)");
    EXPECT_EQ(label(1), "P>R(jy)");
    EXPECT_NEAR(std::strtod(element(1).c_str(), nullptr), 1.0, 1e-13);
    EXPECT_EQ(element(2), "9");
    EXPECT_EQ(s().stack.depth(), 3);
    bank(12, kShift);
    EXPECT_NEAR(value(), 2.0, 1e-13);
    EXPECT_EQ(label(), "R>P(r)");
    EXPECT_EQ(label(1), "R>P(\xE9)");
    EXPECT_NEAR(std::strtod(element(1).c_str(), nullptr), 30.0, 1e-12);
    EXPECT_EQ(s().stack.depth(), 3);
}

TEST_F(TrigonometryKeypad, ThePolarAngleIsLabelledByItsUnit) {
    unit(kRad);
    on({"1", "1"}, 12, kShift);
    EXPECT_EQ(label(1), "R>P(Rad)");
    unit(kGrad);
    on({"1", "1"}, 12, kShift);
    EXPECT_EQ(label(1), "R>P(Grad)");
    EXPECT_NEAR(std::strtod(element(1).c_str(), nullptr), 50.0, 1e-12);
}

TEST_F(TrigonometryKeypad, KeepsTheRadiusPositiveAndTheAngleWithinAQuarterTurn) {
    on({"30", "-2"}, 12);
    EXPECT_NEAR(value(), std::sqrt(3.0), 1e-13);
    on({"1", "-1"}, 12, kShift);
    EXPECT_NEAR(std::strtod(element(1).c_str(), nullptr), -45.0, 1e-12);
}

TEST_F(TrigonometryKeypad, SolidsTakeTheirSizesFromTheStack) {
    struct Solid {
        std::uint8_t mask;
        double value;
        const char* label;
        int left;
    };
    // Diameters 4 and 2, height 3; the number below stays.
    const Solid kSolids[] = {{0, 3.14159265358979 * 3.0, "V_Cyl", 3},
                             {1, 3.14159265358979 * 3.0 * (4.0 + 2.0 + 1.0) / 3.0, "V_Fr", 2},
                             {2, 3.14159265358979, "V_Cone", 3},
                             {3, 3.14159265358979 * (1.0 + std::sqrt(10.0)), "A_Cone", 3}};
    for (const Solid& solid : kSolids) {
        SCOPED_TRACE(solid.label);
        s().stack.StackPtr = 1;
        on({"8", "4", "2", "3"}, 19, solid.mask);
        EXPECT_NEAR(value(), solid.value, 1e-13 * solid.value);
        EXPECT_EQ(label(), solid.label);
        EXPECT_EQ(s().stack.depth(), solid.left);
    }
}

TEST_F(TrigonometryKeypad, FailuresShowTheirMessageAndNoData) {
    on({"1"}, 7, kShift);
    EXPECT_EQ(lastBox(), "Division by zero - be sure all variables are defined!");
    EXPECT_EQ(lastTitle(), "cmdFunctions Error!");
    EXPECT_EQ(x(), "0");
    EXPECT_EQ(label(), "No Data!");
    on({"0.5"}, 18, kShift);
    EXPECT_EQ(lastBox(), "Error number 5");
    on({"1000"}, 6);
    EXPECT_EQ(lastBox(), "Number outside of range: ± 1.8e308, & ± 4.9e-324"_t);
    EXPECT_EQ(x(), "0");
}

TEST_F(TrigonometryKeypad, AnEmptyStackCountsAsZero) {
    bank(21);
    EXPECT_EQ(x(), "1");
    EXPECT_TRUE(platform.boxes.empty());
}

}  // namespace
}  // namespace tallyforge
