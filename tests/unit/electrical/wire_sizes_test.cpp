// SPDX-License-Identifier: GPL-3.0-or-later
#include "electrical/wire_sizes.h"

#include "electrical/wire_tables.h"
#include "gauge_ladder.h"
#include "numbers/failure.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <iterator>
#include <utility>
#include <vector>

namespace tallyforge {
namespace {

constexpr std::array kBuilds{WireBuild::Single, WireBuild::Heavy, WireBuild::Triple, WireBuild::Quad};

double exactDiameter(double awg) {
    return 0.005 * std::pow(92.0, (36.0 - awg) / 39.0);
}

TEST(WireSizes, BareWireFollowsTheGaugeFormulaAtAnyGauge) {
    for (double awg = -6.0; awg <= 70.0; awg += 0.25) {
        EXPECT_NEAR(bareDiameter(awg) / exactDiameter(awg), 1.0, 1e-6) << awg;
    }
    EXPECT_EQ(bareDiameter(36), 0.005);
    EXPECT_THROW(static_cast<void>(bareDiameter(-1e6)), Failure);
    EXPECT_EQ(circularMils(0.005), 25.0);
    EXPECT_THROW(static_cast<void>(circularMils(1e200)), Failure);
}

TEST(WireSizes, ResistanceAgreesWithTheGaugeFormula) {
    for (int awg = -3; awg <= 60; ++awg) {
        const double mils = 1000.0 * exactDiameter(awg);
        EXPECT_NEAR(ohmsPerFoot(awg) * mils * mils / 10.371, 1.0, 0.006) << awg;
    }
    EXPECT_NEAR(ohmsPerFoot(20), 10.37 / std::pow(325.0 * std::exp(-2.32), 2), 1e-15);
    EXPECT_THROW(static_cast<void>(ohmsPerFoot(1e5)), Failure);
}

TEST(WireSizes, EveryRowOfTheLadderHoldsItsDiametersAndNoOther) {
    ASSERT_EQ(std::size(kGaugeLadder), 64U + 53U + 50U + 50U);
    for (const LadderRow& row : kGaugeLadder) {
        SCOPED_TRACE(std::to_string(static_cast<int>(row.build)) + " AWG " + std::to_string(row.awg));
        EXPECT_EQ(gaugeOfDiameter(row.build, row.low), row.awg);
        EXPECT_EQ(gaugeOfDiameter(row.build, row.high), row.awg);
        EXPECT_EQ(gaugeOfDiameter(row.build, (row.low + row.high) / 2.0), row.awg);
        // Just above a row's own diameter the next thicker wire begins, just below the next thinner.
        EXPECT_NE(gaugeOfDiameter(row.build, row.high + 0.000001), row.awg);
        EXPECT_NE(gaugeOfDiameter(row.build, row.low - 0.000001), row.awg);
        // Rounded to six places.
        EXPECT_EQ(gaugeOfDiameter(row.build, row.high + 0.0000004), row.awg);
    }
}

TEST(WireSizes, NoDiameterBeyondTheEndsHasAGauge) {
    for (const WireBuild build : kBuilds) {
        for (const double inches : {-1.0, 0.0, 0.0001, 0.5, 1e300}) {
            EXPECT_FALSE(gaugeOfDiameter(build, inches).has_value()) << inches;
        }
    }
}

TEST(WireSizes, EverySizeComesBackFromItsDiameterInEveryBuild) {
    int sizes = 0;
    for (const WireBuild build : kBuilds) {
        for (int awg = -3; awg <= 60; ++awg) {
            if (const auto inches = filmDiameter(build, awg)) {
                ++sizes;
                EXPECT_EQ(gaugeOfDiameter(build, *inches), awg);
                // By way of millimetres, as the key takes it.
                EXPECT_EQ(gaugeOfDiameter(build, *inches * 25.4 / 25.4), awg);
            }
        }
    }
    EXPECT_EQ(sizes, 64 + 53 + 41 + 41);
}

TEST(WireSizes, EverySizeComesBackFromItsCircularMilsInEveryBuild) {
    for (const WireBuild build : kBuilds) {
        for (int awg = -3; awg <= 60; ++awg) {
            const auto inches = filmDiameter(build, awg);
            if (!inches) {
                continue;
            }
            const double area = circularMils(*inches);
            const AreaRange range = areaRange(build);
            ASSERT_TRUE(area >= range.least && area <= range.most) << awg;
            EXPECT_EQ(std::lround(gaugeOfArea(build, area)), awg) << static_cast<int>(build);
        }
    }
}

TEST(WireSizes, BuildsAreMadeInTheirSizesOnly) {
    EXPECT_EQ(filmDiameter(WireBuild::Single, -3), 0.4726);
    EXPECT_FALSE(filmDiameter(WireBuild::Single, 61).has_value());
    EXPECT_FALSE(filmDiameter(WireBuild::Heavy, 3).has_value());
    EXPECT_FALSE(filmDiameter(WireBuild::Heavy, 57).has_value());
    EXPECT_FALSE(filmDiameter(WireBuild::Triple, 45).has_value());
    EXPECT_FALSE(filmDiameter(WireBuild::Quad, 45).has_value());
    EXPECT_FALSE(filmDiameter(WireBuild::Quad, 20.5).has_value());
    // Circular mils of heavy wire go on beyond the sizes that it is made in.
    EXPECT_EQ(filmArea(WireBuild::Heavy, 60), circularMils(0.000402));
    EXPECT_EQ(filmArea(WireBuild::Heavy, -3), circularMils(0.4726));
    EXPECT_FALSE(filmArea(WireBuild::Triple, 3).has_value());
}

using Pairs = std::vector<std::pair<double, double>>;

void expectGauges(WireBuild build, const Pairs& pairs) {
    for (const auto& [area, awg] : pairs) {
        EXPECT_NEAR(gaugeOfArea(build, area), awg, 0.0006) << area;
    }
}

TEST(WireSizes, GaugesOfAreasComeOutAsComputedByHand) {
    expectGauges(WireBuild::Single, {{250000, -3.495},
                                     {223350.76, -3},
                                     {100000, 0.540},
                                     {6300, 12.5},
                                     {5000, 13.496},
                                     {1000, 20.619},
                                     {176.4, 28.5},
                                     {100, 31},
                                     {4.92, 44.5},
                                     {4, 45.241},
                                     {1.95, 48.5},
                                     {1, 52},
                                     {0.36205, 56.5},
                                     {0.161604, 60},
                                     {0.145, 60.571}});
    expectGauges(WireBuild::Single, {{5.76, 43.973}, {10, 41.474}, {15, 39.491}, {20, 38.679}});
    expectGauges(
        WireBuild::Heavy,
        {{49500, 3.485}, {44016.04, 4}, {10000, 10.526}, {1000, 20.937}, {100, 31.792}, {10, 42.120}, {6, 44.607}});
    expectGauges(WireBuild::Heavy, {{3, 47.774}, {2, 49.805}, {1.5, 51.341}, {1, 53.468}, {0.8, 54.676}});
}

// The published polynomial falls to 35 where the table says 37.5.
TEST(WireSizes, TheTableTakesOverWhereTheCurveOfSingleWireRunsAway) {
    double last = gaugeOfArea(WireBuild::Single, 22.09);
    EXPECT_NEAR(last, 38.0, 1e-9);
    for (double area = 22.1; area <= 24.44; area += 0.02) {
        const double awg = gaugeOfArea(WireBuild::Single, area);
        EXPECT_LT(awg, last) << area;
        last = awg;
    }
    EXPECT_NEAR(gaugeOfArea(WireBuild::Single, 24.44), 37.5, 1e-6);
}

TEST(WireSizes, ThickerWireNeverHasAHigherGaugeByMoreThanTheCurvesAreOff) {
    for (const WireBuild build : kBuilds) {
        const AreaRange range = areaRange(build);
        double lowest = 100.0;
        for (double area = range.least; area <= range.most; area *= 1.003) {
            const double awg = gaugeOfArea(build, area);
            EXPECT_LT(awg, lowest + 0.56) << static_cast<int>(build) << " " << area;
            lowest = std::min(lowest, awg);
        }
    }
}

TEST(WireSizes, ThickBuildsEndHalfAGaugeBeyondTheirTables) {
    const AreaRange triple = areaRange(WireBuild::Triple);
    EXPECT_NEAR(triple.most, 212.5 * 212.5 * 2125 / 1898, 1e-6);
    EXPECT_NEAR(triple.least, 2.9 * 2.9 * 29 / 32, 1e-9);
    EXPECT_NEAR(gaugeOfArea(WireBuild::Triple, triple.most), 3.5, 1e-9);
    EXPECT_NEAR(gaugeOfArea(WireBuild::Quad, areaRange(WireBuild::Quad).least), 44.5, 1e-9);
}

}  // namespace
}  // namespace tallyforge
