// SPDX-License-Identifier: GPL-3.0-or-later
#include "electrical/wire_tables.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace tallyforge {
namespace {

/// ASTM B258: 0.005 in at 36, 0.46 in at 0000, 39 steps of one ratio.
double exactDiameter(double awg) {
    return 0.005 * std::pow(92.0, (36.0 - awg) / 39.0);
}

/// Sizes go up by one, and each value is beyond the one before.
template <typename Beyond>
void expectOrder(const LookupTable& table, int first, int last, Beyond beyond) {
    SCOPED_TRACE(table.name);
    EXPECT_EQ(table.first(), first);
    EXPECT_EQ(table.last(), last);
    ASSERT_EQ(table.rows.size(), static_cast<std::size_t>(last - first + 1));
    for (std::size_t i = 1; i < table.rows.size(); ++i) {
        EXPECT_EQ(table.rows[i].size, table.rows[i - 1].size + 1);
        EXPECT_TRUE(beyond(table.rows[i].value, table.rows[i - 1].value)) << table.rows[i].size;
    }
}

double valueOf(const LookupTable& table, double size) {
    const auto value = table.at(size);
    EXPECT_TRUE(value.has_value()) << table.name << " " << size;
    return value.value_or(0.0);
}

const LookupTable& film(WireBuild build) {
    return filmDiameters(build);
}

TEST(WireTables, HaveTheirCountsTheirOrderAndTheirEnds) {
    expectOrder(film(WireBuild::Single), -3, 60, std::less<>());
    expectOrder(film(WireBuild::Heavy), -3, 60, std::less<>());
    expectOrder(film(WireBuild::Triple), 4, 53, std::less<>());
    expectOrder(film(WireBuild::Quad), 4, 53, std::less<>());
    expectOrder(kCopperWeight, -3, 60, std::less<>());
    expectOrder(kHalfSizeOhms, 4, 50, std::greater<>());
    expectOrder(kHalfSizeHeavy, 4, 50, std::less<>());
    expectOrder(kHalfSizeSingle, 14, 50, std::less<>());
    expectOrder(kAluminumOhms, 8, 44, std::greater<>());
}

TEST(WireTables, HeavyWireStandsDigitForDigit) {
    const std::vector<double> rows{
        0.4726,  0.4217,  0.3764,  0.3361,  0.3002,  0.2682,   0.2397,   0.2098,   0.1872,  0.1671, 0.1491,
        0.1332,  0.1189,  0.1061,  0.0948,  0.0847,  0.0757,   0.0682,   0.0609,   0.0545,  0.0488, 0.0437,
        0.0391,  0.0351,  0.0314,  0.0281,  0.0253,  0.0227,   0.0203,   0.0182,   0.0164,  0.0147, 0.0133,
        0.0119,  0.0108,  0.0098,  0.0088,  0.0078,  0.007,    0.0063,   0.0057,   0.0051,  0.0045, 0.004,
        0.0036,  0.0032,  0.0029,  0.0027,  0.0023,  0.0021,   0.0019,   0.0017,   0.0015,  0.0014, 0.00129,
        0.00115, 0.00103, 0.00095, 0.00087, 0.00081, 0.000557, 0.000507, 0.000442, 0.000402};
    ASSERT_EQ(rows.size(), 64U);
    for (std::size_t i = 0; i < rows.size(); ++i) {
        EXPECT_EQ(valueOf(film(WireBuild::Heavy), static_cast<double>(i) - 3.0), rows[i]);
    }
}

TEST(WireTables, SingleWireStandsDigitForDigitAtItsThickEnd) {
    const std::vector<double> rows{0.4726, 0.4217, 0.3764, 0.3361, 0.3002, 0.2682, 0.2397, 0.2093, 0.1867, 0.1665,
                                   0.1485, 0.1324, 0.1181, 0.1054, 0.0941, 0.084,  0.075,  0.0666, 0.0594, 0.0531};
    for (std::size_t i = 0; i < rows.size(); ++i) {
        EXPECT_EQ(valueOf(film(WireBuild::Single), static_cast<double>(i) - 3.0), rows[i]);
    }
}

TEST(WireTables, WeightStandsDigitForDigitAtItsEnds) {
    const std::vector<double> rows{640.5, 507.8, 402.8, 319.5, 253.3, 200.9, 159.3, 126.3, 100.2, 79.44, 63.03};
    for (std::size_t i = 0; i < rows.size(); ++i) {
        EXPECT_EQ(valueOf(kCopperWeight, static_cast<double>(i) - 3.0), rows[i]);
    }
    EXPECT_EQ(valueOf(kCopperWeight, 60), 0.00028968);
}

TEST(WireTables, FilmIsThickerWithEveryBuildAndLeavesRoomForTheWire) {
    for (int awg = -3; awg <= 60; ++awg) {
        SCOPED_TRACE(awg);
        const double single = valueOf(film(WireBuild::Single), awg);
        const double heavy = valueOf(film(WireBuild::Heavy), awg);
        EXPECT_GT(single, exactDiameter(awg));
        // Kept: the columns are one where heavy wire is not made.
        EXPECT_EQ(heavy == single, awg <= 3 || awg >= 57);
        EXPECT_GE(heavy, single);
        if (awg >= 4 && awg <= 44) {
            EXPECT_LT(heavy, valueOf(film(WireBuild::Triple), awg));
            EXPECT_LT(valueOf(film(WireBuild::Triple), awg), valueOf(film(WireBuild::Quad), awg));
        }
    }
}

TEST(WireTables, DiametersMeetTheHalfGaugesOfThePublishedRanges) {
    const auto split = [](WireBuild build, int awg) {
        return valueOf(film(build), awg) * valueOf(film(build), awg + 1) * 1e6;
    };
    const std::map<int, double> single{{12, 6300}, {28, 176.4}, {37, 24.44}, {44, 4.92}, {48, 1.95}, {56, 0.36205}};
    for (const auto& [awg, area] : single) {
        EXPECT_NEAR(split(WireBuild::Single, awg) / area, 1.0, 1e-9) << awg;
    }
    const std::map<int, double> heavy{{29, 157.7}, {43, 7.83}, {46, 4}, {50, 1.8}};
    for (const auto& [awg, area] : heavy) {
        EXPECT_NEAR(split(WireBuild::Heavy, awg) / area, 1.0, 0.004) << awg;
    }
}

TEST(WireTables, WeightFollowsTheGaugeFormula) {
    for (int awg = -3; awg <= 60; ++awg) {
        const double mils = 1000.0 * exactDiameter(awg);
        EXPECT_NEAR(valueOf(kCopperWeight, awg) / (0.00302697 * mils * mils), 1.0, 0.035) << awg;
    }
    // Copper of 8.89 g/cm3: pounds in 1000 feet of a mil.
    const double pounds = 8.89 * 12000.0 * 2.54 * 2.54 * 2.54 * 3.14159265358979 / 4.0 * 1e-6 / 453.59237;
    EXPECT_NEAR(pounds, 0.00302697, 3e-7);
}

TEST(WireTables, HalfSizesLieBetweenTheWholeOnes) {
    EXPECT_EQ(valueOf(kHalfSizeOhms, 4), 0.000278);
    EXPECT_EQ(valueOf(kHalfSizeOhms, 5), 0.000351);
    EXPECT_EQ(valueOf(kHalfSizeOhms, 6), 0.000442);
    EXPECT_EQ(valueOf(kHalfSizeOhms, 49), 9.407);
    EXPECT_EQ(valueOf(kHalfSizeOhms, 50), 11.99);
    for (int base = 4; base <= 50; ++base) {
        SCOPED_TRACE(base);
        // Nominal diameters are rounded to a tenth of a mil, above 44 to a hundredth.
        const double parts = base <= 44 ? 10.0 : 100.0;
        const double mils = std::round(1000.0 * parts * exactDiameter(base + 0.5)) / parts;
        EXPECT_NEAR(valueOf(kHalfSizeOhms, base) * mils * mils / 10.371, 1.0, 0.005);
        const double heavy = valueOf(kHalfSizeHeavy, base);
        const double thicker = valueOf(film(WireBuild::Heavy), base);
        const double thinner = valueOf(film(WireBuild::Heavy), base + 1);
        EXPECT_TRUE(thicker > heavy && heavy > thinner);
        EXPECT_NEAR(heavy / std::sqrt(thicker * thinner), 1.0, 0.02);
        if (base >= 14) {
            const double single = valueOf(kHalfSizeSingle, base);
            EXPECT_TRUE(exactDiameter(base + 0.5) < single && single < heavy);
        }
    }
}

TEST(WireTables, AluminumFollowsTheGaugeFormula) {
    const std::vector<double> rows{0.001611, 0.00203, 0.00256, 0.00323, 0.00407, 0.00513,
                                   0.00648,  0.00815, 0.0103,  0.013,   0.0163};
    for (std::size_t i = 0; i < rows.size(); ++i) {
        EXPECT_EQ(valueOf(kAluminumOhms, 10.0 + static_cast<double>(i)), rows[i]);
    }
    EXPECT_EQ(valueOf(kAluminumOhms, 44), 4.182);
    for (int awg = 8; awg <= 44; ++awg) {
        // 62 percent of the conductivity of copper; nominal diameters are rounded to 0.0001 in.
        const double mils = 1000.0 * exactDiameter(awg);
        EXPECT_NEAR(valueOf(kAluminumOhms, awg) * 0.62 * mils * mils / 10.371, 1.0, 0.035) << awg;
        const double nominal = std::round(10000.0 * exactDiameter(awg)) / 10.0;
        EXPECT_NEAR(valueOf(kAluminumOhms, awg) * nominal * nominal / 16.7274, 1.0, awg == 22 ? 0.01 : 0.004) << awg;
    }
}

TEST(WireTables, HoldNothingBetweenTheirRowsOrBeyondThem) {
    for (const double size : {-4.0, 61.0, 20.5, -0.5, 1e300, -1e300}) {
        EXPECT_FALSE(film(WireBuild::Single).at(size).has_value()) << size;
    }
    EXPECT_FALSE(film(WireBuild::Quad).at(3).has_value());
    EXPECT_FALSE(kAluminumOhms.at(7).has_value());
    EXPECT_FALSE(kAluminumOhms.at(45).has_value());
}

TEST(WireTables, WriteTheirSizesAsWireIsSold) {
    EXPECT_EQ(gaugeSize(-3), "0000");
    EXPECT_EQ(gaugeSize(-1), "00");
    EXPECT_EQ(gaugeSize(0), "0");
    EXPECT_EQ(gaugeSize(44), "44");
    EXPECT_EQ(gaugeName(-2, '.'), "000");
    EXPECT_EQ(gaugeName(-4, '.'), "-4");
    EXPECT_EQ(gaugeName(20.5, ','), "20,5");
    EXPECT_EQ(gaugeName(1e300, '.'), "1E+300");
    EXPECT_EQ(kHalfSizeOhms.sizeText(4), "4.5");
}

}  // namespace
}  // namespace tallyforge
