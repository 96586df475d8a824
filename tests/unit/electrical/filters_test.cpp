// SPDX-License-Identifier: GPL-3.0-or-later
#include "electrical/filters.h"

#include "numbers/circle.h"
#include "unit/electrical/expect_failure.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <complex>
#include <vector>

namespace tallyforge {
namespace {

using Complex = std::complex<double>;

TEST(Filters, ButterworthLosesThreeDecibelsAtTheCutOffForEveryDegree) {
    for (int n = 1; n <= 12; ++n) {
        EXPECT_NEAR(butterworthLoss(n, 1.0), 10 * std::log10(2.0), 1e-12);
    }
}

// |H|^2 from the poles of the textbooks, which lie on the unit circle's left half.
TEST(Filters, ButterworthIsTheProductOfItsPoles) {
    for (int n = 1; n <= 9; ++n) {
        for (const double ratio : {0.01, 0.3, 0.99, 1.7, 40.0}) {
            Complex product = 1.0;
            for (int k = 1; k <= n; ++k) {
                product *= Complex(0, ratio) - std::polar(1.0, kPi * (2.0 * k + n - 1) / (2.0 * n));
            }
            EXPECT_NEAR(butterworthLoss(n, ratio), 20 * std::log10(std::abs(product)), 1e-10);
        }
    }
}

TEST(Filters, ButterworthKeepsTheDigitsOfASmallLossAndRefusesTheRest) {
    EXPECT_NEAR(butterworthLoss(5, 0.01) / (10 * 1e-20 / std::log(10.0)), 1.0, 1e-12);
    expectFailure(FailureNumber::InvalidArgument, [] { return butterworthLoss(2.25, -1); });
    expectFailure(FailureNumber::Overflow, [] { return butterworthLoss(200, 1e10); });
}

// Powers of ten times the coefficients that the tables print for n from 2 to 10.
double polynomialTermByTerm(int n, double x) {
    static const std::array<std::vector<double>, 9> kCoefficients{{{2, 0, -1},
                                                                   {4, 0, -3, 0},
                                                                   {8, 0, -8, 0, 1},
                                                                   {16, 0, -20, 0, 5, 0},
                                                                   {32, 0, -48, 0, 18, 0, -1},
                                                                   {64, 0, -112, 0, 56, 0, -7, 0},
                                                                   {128, 0, -256, 0, 160, 0, -32, 0, 1},
                                                                   {256, 0, -576, 0, 432, 0, -120, 0, 9, 0},
                                                                   {512, 0, -1280, 0, 1120, 0, -400, 0, 50, 0, -1}}};
    const auto& row = kCoefficients.at(static_cast<std::size_t>(n - 2));
    double value = 0.0;
    for (std::size_t i = 0; i < row.size(); ++i) {
        value += row.at(i) * std::pow(x, static_cast<double>(row.size() - 1 - i));
    }
    return value;
}

TEST(Filters, ChebyshevIsThePolynomialOfTheTablesAndTheHyperbolicCosine) {
    for (int n = 2; n <= 10; ++n) {
        for (const double ripple : {0.01, 0.5, 1.0, 3.0}) {
            const double squared = std::pow(10.0, ripple / 10.0) - 1.0;
            for (const double x : {0.2, 0.7, 1.0, 1.3, 2.0, 11.0}) {
                const double loss = chebyshevLoss({.degree = n, .rippleInDb = ripple}, x).fromRippleEdge;
                const double t = polynomialTermByTerm(n, x);
                EXPECT_NEAR(loss, 10 * std::log10(1 + squared * t * t), 1e-9);
                const double angle = x > 1 ? std::cosh(n * std::acosh(x)) : std::cos(n * std::acos(x));
                EXPECT_NEAR(loss, 10 * std::log10(1 + squared * angle * angle), 1e-9);
            }
        }
    }
}

TEST(Filters, ChebyshevLosesItsRippleAtTheEdgeAndThreeDecibelsAtTheOther) {
    for (int n = 2; n <= 10; ++n) {
        for (const double ripple : {0.001, 0.5, 3.0}) {
            const ChebyshevLoss loss = chebyshevLoss({.degree = n, .rippleInDb = ripple}, 1.0);
            EXPECT_NEAR(loss.fromRippleEdge, ripple, 1e-12);
            EXPECT_NEAR(loss.fromHalfPower, 10 * std::log10(2.0), 1e-10);
        }
    }
    EXPECT_NEAR(chebyshevLoss({.degree = 3, .rippleInDb = 0.5}, 2).fromRippleEdge, 19.2161, 5e-5);
    EXPECT_NEAR(chebyshevLoss({.degree = 5, .rippleInDb = 1}, 2).fromHalfPower, 46.9648, 5e-5);
    EXPECT_NEAR(chebyshevLoss({.degree = 2, .rippleInDb = 3}, 2).fromHalfPower, 16.9810, 5e-5);
    expectFailure(FailureNumber::DivisionByZero,
                  [] { return chebyshevLoss({.degree = 2, .rippleInDb = 0}, 1).fromRippleEdge; });
    expectFailure(FailureNumber::Overflow,
                  [] { return chebyshevLoss({.degree = 10, .rippleInDb = 1}, 1e40).fromRippleEdge; });
}

/// The arms of a three-pole Butterworth prototype, 1, 2, 1, between two terminations.
class ScaledFilter {
public:
    ScaledFilter(FilterForm form, const FilterScale& to)
        : impedance(to.impedance),
          first(scaleElement(true, 1.0, form, to)),
          middle(scaleElement(false, 2.0, form, to)),
          turned(form == FilterForm::BandStop) {}

    /// Insertion loss, dB, by the chain matrix of the ladder.
    [[nodiscard]] double loss(double hertz) const {
        const double w = kTwoPi * hertz;
        const Complex series = arm(first, w, !turned);
        const Complex shunt = 1.0 / arm(middle, w, turned);
        const double r = impedance;
        const Complex a = 1.0 + series * shunt;
        const Complex b = series + series * a;
        const Complex d = 1.0 + shunt * series;
        return 20 * std::log10(std::abs(a * r + b + shunt * r * r + d * r) / (2 * r));
    }

private:
    // A pair stands in series where the arm lets the centre pass as a series arm does.
    static Complex arm(const ScaledElement& element, double w, bool pairInSeries) {
        const auto one = [w](bool inductor, double value) {
            return inductor ? Complex(0, w * value) : 1.0 / Complex(0, w * value);
        };
        const Complex z = one(element.inductor, element.value);
        if (!element.hasPartner) {
            return z;
        }
        const Complex partner = one(!element.inductor, element.partner);
        return pairInSeries ? z + partner : z * partner / (z + partner);
    }

    double impedance;
    ScaledElement first;
    ScaledElement middle;
    bool turned;
};

constexpr double kMega = 1e6 * kTwoPi;

TEST(Filters, AScaledFilterLosesWhatItsPrototypeDoes) {
    const FilterScale plain{.impedance = 50, .cutOff = kMega};
    const ScaledFilter low(FilterForm::LowPass, plain);
    const ScaledFilter high(FilterForm::HighPass, plain);
    for (const double f : {0.5e6, 1e6, 2e6, 7e6}) {
        EXPECT_NEAR(low.loss(f), butterworthLoss(3, f / 1e6), 1e-9);
        EXPECT_NEAR(high.loss(f), butterworthLoss(3, 1e6 / f), 1e-9);
    }
    const FilterScale band{.impedance = 50, .cutOff = kMega, .centre = 10 * kMega};
    const ScaledFilter pass(FilterForm::BandPass, band);
    const ScaledFilter stop(FilterForm::BandStop, band);
    for (const double f : {8e6, 9.512492e6, 10.512492e6, 12e6}) {
        const double ratio = std::abs(f / 10e6 - 10e6 / f) * 10;
        EXPECT_NEAR(pass.loss(f), butterworthLoss(3, ratio), 1e-6);
        EXPECT_NEAR(stop.loss(f), butterworthLoss(3, 1 / ratio), 1e-6);
    }
    EXPECT_NEAR(pass.loss(12e6), 33.858, 5e-4);
    EXPECT_NEAR(stop.loss(12e6), 0.0018, 5e-5);
}

TEST(Filters, TheWorkedArmComesOutInAllFormsAndKinds) {
    const FilterScale scale{.impedance = 50, .cutOff = kMega, .centre = 10 * kMega};
    const auto near = [](double value, double expected) { EXPECT_NEAR(value / expected, 1.0, 1e-6); };
    const double g = 1.414214;
    near(scaleElement(true, g, FilterForm::LowPass, scale).value, 11.25396e-6);
    near(scaleElement(false, g, FilterForm::LowPass, scale).value, 4.501583e-9);
    near(scaleElement(true, g, FilterForm::HighPass, scale).value, 2.250790e-9);
    near(scaleElement(false, g, FilterForm::HighPass, scale).value, 5.626975e-6);
    near(scaleElement(true, g, FilterForm::BandPass, scale).partner, 22.50790e-12);
    near(scaleElement(false, g, FilterForm::BandPass, scale).partner, 56.26975e-9);
    near(scaleElement(true, g, FilterForm::BandStop, scale).partner, 112.5396e-9);
    near(scaleElement(false, g, FilterForm::BandStop, scale).partner, 45.01583e-12);
    EXPECT_FALSE(scaleElement(true, g, FilterForm::HighPass, scale).inductor);
    EXPECT_TRUE(scaleElement(false, g, FilterForm::BandStop, scale).inductor);
}

TEST(Filters, AnElementWithoutImpedanceOrCutOffIsRefused) {
    for (const bool coil : {true, false}) {
        for (const FilterForm form : {FilterForm::LowPass, FilterForm::HighPass}) {
            expectFailure(FailureNumber::DivisionByZero,
                          [&] { return scaleElement(coil, 1, form, {.impedance = 50, .cutOff = 0}).value; });
        }
    }
    expectFailure(FailureNumber::DivisionByZero,
                  [] { return scaleElement(false, 1, FilterForm::LowPass, {.impedance = 0, .cutOff = 1}).value; });
}

}  // namespace
}  // namespace tallyforge
