// SPDX-License-Identifier: GPL-3.0-or-later
//
// The pure functions against published values: M. Abramowitz, I. A. Stegun (ed.), Handbook of
// Mathematical Functions, tables 4.6 (circular functions of x), 4.10 (of degrees), 4.14 (inverse
// circular), 4.15 (hyperbolic) and 4.17 (inverse hyperbolic), to the digits that they print and,
// beyond, to those of the closed forms.
#include "functions/math_functions.h"
#include "numbers/failure.h"
#include "unit/functions/long_values.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <string>

namespace tallyforge {
namespace {

using namespace MathFunctions;

struct Published {
    const char* name;
    double (*function)(double);
    double argument;
    double value;
};

constexpr Published kPublished[] = {
    {"sec", Sec, 1.0, 1.850815717680926},         {"csc", Csc, 1.0, 1.188395105778121},
    {"cot", Cot, 1.0, 0.642092615934331},         {"sec", Sec, 0.5, 1.139493927324549},
    {"csc", Csc, 0.5, 2.085829642933488},         {"cot", Cot, 0.5, 1.830487721712452},
    {"arcsin", arcSinOf, 0.5, 0.523598775598299}, {"arcsin", arcSinOf, -0.25, -0.252680255142079},
    {"arccos", arcCosOf, 0.5, 1.047197551196598}, {"arccos", arcCosOf, -0.25, 1.823476581936975},
    {"arcsec", ArcSec, 2.0, 1.047197551196598},   {"arccsc", ArcCsc, 2.0, 0.523598775598299},
    {"arccsc", ArcCsc, -2.0, -0.523598775598299}, {"arccot", ArcCot, 0.5, 1.107148717794090},
    {"arccot", ArcCot, -1.0, 2.356194490192345},  {"sinh", Sinh, 1.0, 1.175201193643801},
    {"cosh", Cosh, 1.0, 1.543080634815244},       {"tanh", Tanh, 1.0, 0.761594155955765},
    {"sinh", Sinh, 0.5, 0.521095305493747},       {"cosh", Cosh, 0.5, 1.127625965206381},
    {"tanh", Tanh, 0.5, 0.462117157260010},       {"sech", Sech, 1.0, 0.648054273663885},
    {"csch", Csch, 1.0, 0.850918128239322},       {"coth", Coth, 1.0, 1.313035285499331},
    {"arcsinh", ArcSinh, 1.0, 0.881373587019543}, {"arccosh", ArcCosh, 2.0, 1.316957896924817},
    {"arctanh", ArcTanh, 0.5, 0.549306144334055}, {"arcsech", ArcSech, 0.5, 1.316957896924817},
    {"arccsch", ArcCsch, 1.0, 0.881373587019543}, {"arccoth", ArcCoth, 2.0, 0.549306144334055},
    {"log10", Log10, 2.0, 0.301029995663981},     {"log10", Log10, 1000.0, 3.0},
};

TEST(MathFunctionsTest, AgreeWithThePublishedTables) {
    for (const Published& row : kPublished) {
        EXPECT_NEAR(row.function(row.argument), row.value, 1e-14 * std::abs(row.value))
            << row.name << "(" << row.argument << ")";
    }
}

TEST(MathFunctionsTest, KeepFifteenDigitsWhereverTheResultIsInRange) {
    for (const LongValue& row : kLongValues) {
        const long double exact = std::strtold(row.value, nullptr);
        const long double unit = std::pow(10.0L, std::floor(std::log10(std::abs(exact))) - 14.0L);
        EXPECT_LE(std::abs(static_cast<long double>(row.function(row.argument)) - exact), unit)
            << row.name << "(" << row.argument << ") is " << row.value;
    }
}

TEST(MathFunctionsTest, PolarKeepsItsDigitsFromTheWholeRange) {
    for (const double size : {3e-307, 3e-200, 3e-10, 3.0, 3e10, 3e200, 3e307}) {
        const auto polar = RectToPolar(size, size / 3.0 * 4.0, AngleMode::Radians);
        EXPECT_NEAR(polar.r / (size / 3.0 * 5.0), 1.0, 1e-15) << size;
        EXPECT_NEAR(polar.theta, 0.92729521800161223243, 1e-15) << size;
        const auto back = PolarToRect(polar.r, polar.theta, AngleMode::Radians);
        EXPECT_NEAR(back.x / size, 1.0, 1e-15) << size;
    }
    EXPECT_THROW((void)RectToPolar(1.7e308, 1.7e308, AngleMode::Radians), Failure);
}

TEST(MathFunctionsTest, KeepsTheSignlessArcSineAndArcCosineAtMinusOne) {
    EXPECT_EQ(arcSinOf(-1.0), kPi / 2.0);
    EXPECT_EQ(arcSinOf(1.0), kPi / 2.0);
    EXPECT_EQ(fromRadians(arcSinOf(1.0), AngleMode::Degrees), 90.0);
    EXPECT_EQ(fromRadians(arcSinOf(-1.0), AngleMode::Grads), 100.0);
    EXPECT_EQ(arcCosOf(-1.0), 0.0);
    EXPECT_EQ(arcCosOf(1.0), 0.0);
}

TEST(MathFunctionsTest, ArcSineAndArcCosineRefuseWhatLiesBeyondOne) {
    for (const double x : {1.0000000000000002, -1.0000000000000002, 2.0, -1e300}) {
        EXPECT_FALSE(ArcSin(x).has_value());
        EXPECT_FALSE(ArcCos(x).has_value());
    }
}

FailureNumber failureOf(double (*function)(double), double x) {
    try {
        const double value = function(x);
        ADD_FAILURE() << "gave " << value;
    } catch (const Failure& failure) {
        return failure.number();
    }
    return {};
}

TEST(MathFunctionsTest, DomainFaultsCarryTheirNumbers) {
    EXPECT_EQ(failureOf(ArcSec, 1.0), FailureNumber::DivisionByZero);
    EXPECT_EQ(failureOf(ArcCsc, -1.0), FailureNumber::DivisionByZero);
    EXPECT_EQ(failureOf(ArcSec, 0.5), FailureNumber::InvalidArgument);
    EXPECT_EQ(failureOf(ArcCosh, 0.5), FailureNumber::InvalidArgument);
    EXPECT_EQ(failureOf(ArcTanh, 1.0), FailureNumber::DivisionByZero);
    EXPECT_EQ(failureOf(ArcTanh, -1.0), FailureNumber::InvalidArgument);
    EXPECT_EQ(failureOf(ArcTanh, 2.0), FailureNumber::InvalidArgument);
    EXPECT_EQ(failureOf(ArcSech, 0.0), FailureNumber::DivisionByZero);
    EXPECT_EQ(failureOf(ArcSech, 2.0), FailureNumber::InvalidArgument);
    EXPECT_EQ(failureOf(ArcCsch, 0.0), FailureNumber::DivisionByZero);
    EXPECT_EQ(failureOf(ArcCoth, 1.0), FailureNumber::DivisionByZero);
    EXPECT_EQ(failureOf(Csc, 0.0), FailureNumber::DivisionByZero);
    EXPECT_EQ(failureOf(Csch, 0.0), FailureNumber::DivisionByZero);
    EXPECT_EQ(failureOf(Cosh, 1000.0), FailureNumber::Overflow);
    EXPECT_EQ(failureOf(Log10, 0.0), FailureNumber::InvalidArgument);
}

TEST(MathFunctionsTest, KeepsTheFifteenDigitsOfPi) {
    EXPECT_EQ(DegToRad(180.0), 3.14159265358979);
    EXPECT_EQ(RadToDeg(3.14159265358979), 180.0);
    EXPECT_NE(std::sin(DegToRad(180.0)), 0.0);
}

TEST(MathFunctionsTest, AnglesGoThroughEveryUnitAndBack) {
    EXPECT_EQ(degreesToGrads(90.0), 100.0);
    EXPECT_EQ(gradsToDegrees(100.0), 90.0);
    for (const AngleMode mode : {AngleMode::Degrees, AngleMode::Radians, AngleMode::Grads}) {
        EXPECT_NEAR(fromRadians(toRadians(33.0, mode), mode), 33.0, 1e-12);
    }
}

TEST(MathFunctionsTest, KeepsTheRadiusByItsAbsoluteValue) {
    const auto point = PolarToRect(-2.0, 30.0, AngleMode::Degrees);
    EXPECT_NEAR(point.jy, 1.0, 1e-13);
    EXPECT_NEAR(point.x, std::sqrt(3.0), 1e-13);
}

TEST(MathFunctionsTest, KeepsThePolarAngleWithinAQuarterTurn) {
    EXPECT_NEAR(RectToPolar(-1.0, 1.0, AngleMode::Degrees).theta, -45.0, 1e-12);
    EXPECT_NEAR(RectToPolar(-1.0, -1.0, AngleMode::Grads).theta, 50.0, 1e-12);
    EXPECT_NEAR(RectToPolar(0.0, -3.0, AngleMode::Degrees).theta, -90.0, 1e-12);
    EXPECT_NEAR(RectToPolar(0.0, 3.0, AngleMode::Grads).theta, 100.0, 1e-12);
    EXPECT_NEAR(RectToPolar(0.0, 3.0, AngleMode::Radians).theta, 1.570796326794895, 1e-15);
    EXPECT_NEAR(RectToPolar(3.0, -4.0, AngleMode::Degrees).r, 5.0, 1e-15);
}

}  // namespace
}  // namespace tallyforge
