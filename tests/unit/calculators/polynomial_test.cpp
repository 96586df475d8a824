// SPDX-License-Identifier: GPL-3.0-or-later
#include "calculators/polynomial.h"

#include "calculator_fixture.h"
#include "calculators/exact_integer.h"
#include "calculators/polynomial_dialog.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <complex>
#include <vector>

namespace tallyforge {
namespace {

using Texts = std::vector<std::string>;

Roots rootsOf(const Texts& coefficients) {
    return SolvePoly(coefficients, '.');
}

TEST(Polynomial, TheWorkedQuadratics) {
    const Roots real = rootsOf({"2", "-3", "1"});
    EXPECT_EQ(real.first, 2.0);
    EXPECT_EQ(real.second, 1.0);
    EXPECT_EQ(real.imaginary, 0.0);
    const Roots complex = rootsOf({"1", "0", "1"});
    EXPECT_EQ(complex.imaginary, 1.0);
    EXPECT_EQ(complex.first, 0.0);
    const Roots zero = rootsOf({"0", "0", "1"});
    EXPECT_EQ(zero.first, 0.0);
    EXPECT_EQ(zero.second, 0.0);
    EXPECT_EQ(zero.imaginary, 0.0);
}

TEST(Polynomial, TheCubeRootsOfOne) {
    const Roots roots = rootsOf({"-1", "0", "0", "1"});
    EXPECT_DOUBLE_EQ(roots.third, 1.0);
    EXPECT_DOUBLE_EQ(roots.first, -0.5);
    EXPECT_DOUBLE_EQ(roots.imaginary, std::sqrt(3.0) / 2.0);
}

TEST(Polynomial, ATripleRootOfDecimalsIsTripleAndReal) {
    const Roots roots = rootsOf({"-1.331", "3.63", "-3.3", "1"});
    EXPECT_EQ(roots.imaginary, 0.0);
    for (const double root : {roots.first, roots.second, roots.third}) {
        EXPECT_EQ(root, 1.1);
    }
}

TEST(Polynomial, ADoubleRootOfDecimalsIsDoubleAndReal) {
    // (x - 0.1)² (x - 0.7)
    const Roots roots = rootsOf({"-0.007", "0.15", "-0.9", "1"});
    EXPECT_EQ(roots.imaginary, 0.0);
    EXPECT_DOUBLE_EQ(roots.third, 0.7);
    EXPECT_DOUBLE_EQ(roots.first, 0.1);
    EXPECT_DOUBLE_EQ(roots.second, 0.1);
    const Roots square = rootsOf({"0.01", "-0.2", "1"});
    EXPECT_EQ(square.imaginary, 0.0);
    EXPECT_DOUBLE_EQ(square.first, 0.1);
    EXPECT_DOUBLE_EQ(square.second, 0.1);
}

TEST(Polynomial, RootsFarApartKeepTheirLastDigits) {
    const Roots roots = rootsOf({"1", "-1e8", "1"});
    EXPECT_DOUBLE_EQ(roots.first, 99999999.99999999);
    EXPECT_DOUBLE_EQ(roots.second, 1.0000000000000001e-8);
}

TEST(Polynomial, CoefficientsAtTheEndsOfTheRange) {
    const Roots roots = rootsOf({"2e300", "-3e300", "1e300"});
    EXPECT_EQ(roots.first, 2.0);
    EXPECT_EQ(roots.second, 1.0);
    const Roots cubic = rootsOf({"-6e-300", "11e-300", "-6e-300", "1e-300"});
    EXPECT_DOUBLE_EQ(cubic.third, 3.0);
}

TEST(Polynomial, EveryCubicOfSmallRootsIsFoundAgain) {
    // Multiplied out by hand: x³ - (p+q+r) x² + (pq+qr+rp) x - pqr.
    for (int p = -4; p <= 4; ++p) {
        for (int q = p; q <= 4; ++q) {
            for (int r = q; r <= 4; ++r) {
                const Roots roots = rootsOf({std::to_string(-p * q * r), std::to_string(p * q + q * r + r * p),
                                             std::to_string(-(p + q + r)), "1"});
                std::array<double, 3> found{roots.first, roots.second, roots.third};
                std::sort(found.begin(), found.end());
                EXPECT_EQ(roots.imaginary, 0.0) << p << " " << q << " " << r;
                EXPECT_NEAR(found[0], p, 1e-14);
                EXPECT_NEAR(found[1], q, 1e-14);
                EXPECT_NEAR(found[2], r, 1e-14);
                EXPECT_GE(std::abs(roots.first), std::abs(roots.second) - 1e-14) << "the larger first";
            }
        }
    }
}

TEST(Polynomial, EveryComplexPairIsFoundAgain) {
    // (x - r) (x² - 2 a x + a² + b²)
    for (int r = -3; r <= 3; ++r) {
        for (int a = -3; a <= 3; ++a) {
            for (int b = 1; b <= 3; ++b) {
                const int square = a * a + b * b;
                const Roots roots = rootsOf({std::to_string(-2 * r * square), std::to_string(2 * (square + 2 * a * r)),
                                             std::to_string(-2 * (2 * a + r)), "2"});
                EXPECT_NEAR(roots.third, r, 1e-14) << r << " " << a << " " << b;
                EXPECT_NEAR(roots.first, a, 1e-14);
                EXPECT_NEAR(roots.imaginary, b, 1e-14);
            }
        }
    }
}

TEST(Polynomial, ALeadingCoefficientOfZeroIsADivisionByZero) {
    for (const Texts& texts : {Texts{"1", "0"}, {"1", "2", "0"}, {"1", "2", "3", "0.00"}}) {
        try {
            static_cast<void>(rootsOf(texts));
            ADD_FAILURE();
        } catch (const Failure& failure) {
            EXPECT_EQ(failure.number(), FailureNumber::DivisionByZero);
        }
    }
}

TEST(Polynomial, ValuesAndEquationTexts) {
    EXPECT_EQ(CalcPoly(std::vector<double>{2, -3, 1}, 4.0), 6.0);
    EXPECT_EQ(CalcPoly(std::vector<double>{1, 2, 3, 4}, -2.0), -23.0);
    EXPECT_EQ(equationText(std::vector<double>{2, -3, 1}, '.'), "(x² -3x +2)"_t);
    EXPECT_EQ(equationText(std::vector<double>{-1, 1}, '.'), "(x -1)");
    EXPECT_EQ(equationText(std::vector<double>{1, -1, 0, -1}, '.'), "(-x³ +0x² -x +1)"_t);
    EXPECT_EQ(equationText(std::vector<double>{0.5, 2.5}, ','), "(2,5x +0,5)");
}

TEST(ExactIntegers, AddAndMultiplyBeyondAWord) {
    const ExactInteger a = ExactInteger::fromDigits("123456789012345678901234567890");
    const ExactInteger b(-987654321);
    EXPECT_EQ((a * b - b * a).sign(), 0);
    EXPECT_EQ(((a + b) * (a + b) - (a * a + ExactInteger(2) * a * b + b * b)).sign(), 0);
    EXPECT_EQ((a - a).sign(), 0);
    EXPECT_EQ((b - a).sign(), -1);
    EXPECT_EQ(ExactInteger(7).timesTen(25).value(), 7e25L);
    EXPECT_EQ((ExactInteger(1).timesTen(40) - ExactInteger::fromDigits("1" + std::string(40, '0'))).sign(), 0);
    EXPECT_EQ(ExactInteger(INT64_MIN).value(), -9223372036854775808.0L);
}

class PolynomialTest : public CalculatorTest {
protected:
    void openPolynomial(const std::function<void(DialogAtHand)>& hand) {
        PolynomialDialog dialog(calc);
        platform.inDialog = [&](Form& form) { hand(DialogAtHand(form)); };
        platform.showDialog(dialog);
    }
};

TEST_F(PolynomialTest, TheQuadraticExample) {
    openPolynomial([&](DialogAtHand hand) {
        hand.clickOn("OptX", 1);
        EXPECT_EQ(hand.at("lblEq1").text, "a2x² + a1x + a0 = 0"_t);
        EXPECT_FALSE(hand.at("txtVal", 3).visible);
        hand.enter("2");
        hand.enter("3\\");
        hand.enter("1");
        EXPECT_EQ(hand.at("lblEq").text, "(x² -3x +2)"_t);
        EXPECT_EQ(hand.field(4), "0");
        EXPECT_EQ(hand.field(5), "2.000 0");
        EXPECT_EQ(hand.field(6), "0");
        EXPECT_EQ(hand.field(7), "1.000 0");
        EXPECT_EQ(hand.at("lblUnits", 4).text, "j1");
        EXPECT_EQ(hand.at("lblUnits", 5).text, "R1");
        EXPECT_EQ(hand.at("lblRoots").text, "Roots");
        EXPECT_EQ(hand.at("cmdXreg").text, "&Add to Xreg");
        EXPECT_EQ(hand.at("cmdCalc").tip, " Quit the Polynomial Calculator ");
        hand.clickOn("OptX", 2);
        EXPECT_TRUE(hand.at("OptX", 1).checked) << "a result holds its degree";
        hand.clickOn("cmdXreg");
    });
    EXPECT_EQ(posted(), (std::vector<double>{2, -3, 1, 0, 2, 0, 1}));
    EXPECT_EQ(calc.s.stack.depth(), 1);
}

TEST_F(PolynomialTest, AnEmptyCoefficientIsRequired) {
    openPolynomial([&](DialogAtHand hand) {
        hand.enter();
        EXPECT_EQ(platform.boxes.at(0).kind, BoxKind::Notice);
        expectBox("Missing Parameter!", "a0 is required!\nEven if zero (0)!");
        EXPECT_EQ(hand.focus(), "txtVal(0)");
        hand.enter("0");
        hand.enter();
        expectBox("Missing Parameter!", "a1 is required!\nEven if zero (0)!");
        EXPECT_EQ(hand.focus(), "txtVal(1)");
    });
}

TEST_F(PolynomialTest, ALeadingZeroShowsItsBoxAndStaysUntilClear) {
    openPolynomial([&](DialogAtHand hand) {
        hand.enter("1");
        hand.enter("2");
        hand.enter("0");
        expectBox("SolvePoly Error!", "Division by zero - be sure all variables are defined!");
        EXPECT_EQ(hand.field(0), "1");
        EXPECT_FALSE(hand.at("txtVal", 4).visible);
        EXPECT_EQ(hand.at("cmdXreg").text, "&Exit");
        hand.clickOn("cmdClear");
        EXPECT_EQ(hand.field(0), "");
        EXPECT_EQ(hand.at("lblEq").text, "");
    });
}

TEST_F(PolynomialTest, DegreesOneAndThreeAndComplexRoots) {
    openPolynomial([&](DialogAtHand hand) {
        hand.clickOn("OptX", 0);
        hand.enter("3");
        hand.enter("2");
        EXPECT_EQ(hand.field(4), "-1.500 0");
        EXPECT_EQ(hand.at("lblUnits", 4).text, "R1");
        EXPECT_FALSE(hand.at("txtVal", 5).visible);
        hand.clickOn("cmdClear");
        hand.clickOn("OptX", 2);
        for (const char* value : {"1\\", "0", "0", "1"}) {
            hand.enter(value);
        }
        EXPECT_EQ(hand.field(4), "0.866 0");
        EXPECT_EQ(hand.field(6), "-0.866 0");
        EXPECT_EQ(hand.field(5), "-0.500 0");
        EXPECT_EQ(hand.field(8), "1.000 0");
    });
}

TEST_F(PolynomialTest, EvaluateAsksForXAtOnce) {
    openPolynomial([&](DialogAtHand hand) {
        hand.enter("2");
        hand.enter("3\\");
        hand.enter("1");
        hand.clickOn("optSolve", 0);
        EXPECT_EQ(hand.at("lblRoots").text, "Evaluation");
        EXPECT_EQ(hand.focus(), "txtVal(4)");
        EXPECT_EQ(hand.at("lblUnits", 4).text, "x");
        EXPECT_EQ(hand.at("lblUnits", 5).text, "f(x)");
        hand.enter("4");
        EXPECT_EQ(hand.field(5), "6.000 0");
        hand.enter();
    });
    EXPECT_EQ(posted(), (std::vector<double>{2, -3, 1, 4, 6}));
}

}  // namespace
}  // namespace tallyforge
