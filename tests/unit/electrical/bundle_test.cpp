// SPDX-License-Identifier: GPL-3.0-or-later
#include "electrical/bundle.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

namespace tallyforge {
namespace {

double factor(double count) {
    const auto value = bundleFactor(count);
    EXPECT_TRUE(value.has_value()) << count;
    return value.value_or(0.0);
}

TEST(Bundle, SmallCountsStandDigitForDigit) {
    const std::vector<double> rows{1,    2,    2.15, 2.41, 2.7,  3,    3,    3.31, 3.61, 3.8,  3.92,
                                   4.05, 4.23, 4.41, 4.55, 4.7,  4.86, 5,    5,    5.13, 5.31, 5.49,
                                   5.61, 5.72, 5.81, 5.92, 6,    6.13, 6.23, 6.4,  6.44, 6.55, 6.7,
                                   6.76, 6.86, 7,    7,    7.08, 7.18, 7.31, 7.39, 7.43, 7.61};
    ASSERT_EQ(rows.size(), 43U);
    for (std::size_t i = 0; i < rows.size(); ++i) {
        EXPECT_EQ(factor(static_cast<double>(i) + 1.0), rows[i]) << i + 1;
    }
}

TEST(Bundle, RunsStraightBetweenItsAnchors) {
    for (int count = 80; count <= 85; ++count) {
        EXPECT_NEAR(factor(count), 10.2 + 0.26 / 5.0 * (count - 80), 1e-12);
    }
    for (int count = 85; count <= 90; ++count) {
        EXPECT_NEAR(factor(count), 10.46 + 0.27 / 5.0 * (count - 85), 1e-12);
    }
    EXPECT_EQ(kBundleFactors.rows.size(), 71U);
    EXPECT_EQ(kBundleFactors.last(), 1000);
}

TEST(Bundle, FullLayersAreAsWideAsTheirCircles) {
    for (int layers = 6; layers <= 17; ++layers) {
        EXPECT_EQ(factor(3 * layers * (layers + 1) + 1), 2 * layers + 1);
    }
}

// No bundle is denser than strands can lie in the plane, and none is loose.
TEST(Bundle, GrowsAsItsAreaDoes) {
    double last = 0.0;
    for (int count = 1; count <= 1000; ++count) {
        const double f = factor(count);
        EXPECT_GE(f, last) << count;
        if (count >= 2) {
            EXPECT_GE(f, 1.05 * std::sqrt(count)) << count;
        }
        if (count >= 4) {
            EXPECT_LT(f, 1.25 * std::sqrt(count)) << count;
        }
        last = f;
    }
    EXPECT_NEAR(last, std::sqrt(1.332 * 1000), 0.01);
}

TEST(Bundle, CountsAreWholeAndUpToAThousand) {
    for (const double count : {0.0, -1.0, 1.5, 1001.0, 1e300, -1e300, 999.5}) {
        EXPECT_FALSE(bundleFactor(count).has_value()) << count;
    }
}

TEST(Bundle, PtfeWireComesInEvenSizes) {
    const std::vector<double> rows{0.206, 0.143, 0.114, 0.092, 0.077, 0.070, 0.060, 0.051, 0.045, 0.040, 0.035};
    ASSERT_EQ(kPtfeDiameters.rows.size(), rows.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        EXPECT_EQ(kPtfeDiameters.at(8.0 + 2.0 * static_cast<double>(i)), rows[i]);
        EXPECT_FALSE(kPtfeDiameters.at(9.0 + 2.0 * static_cast<double>(i)).has_value());
    }
}

}  // namespace
}  // namespace tallyforge
