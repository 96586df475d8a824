// SPDX-License-Identifier: GPL-3.0-or-later
//
// The tables stand here a second time, written down on their own.
#include "electrical/core_loss.h"

#include "unit/electrical/expect_failure.h"

#include <gtest/gtest.h>

#include <cmath>

namespace tallyforge {
namespace {

double curve(double a, double c, double d, double kilohertz, double gauss) {
    return a * std::exp(c * std::log(kilohertz) + d * std::log(gauss / 1000));
}

TEST(CoreLoss, PowderCoresGoByTheClassOfTheirPermeability) {
    struct Row {
        double least, most, a, c, d;
    };
    const Row rows[] = {{1, 20, 0.161, 1.331, 2.21},       {20.01, 43, 0.0638, 1.41, 2.18},
                        {43.01, 92.5, 0.0365, 1.41, 2.24}, {92.51, 142.5, 0.0656, 1.4, 2.31},
                        {142.51, 180, 0.0415, 1.5, 2.25},  {180.01, 250, 0.0534, 1.64, 2.27},
                        {250.01, 400, 0.0528, 1.64, 2.27}, {400.01, 650, 0.161, 1.59, 2.36}};
    for (const Row& row : rows) {
        for (const double permeability : {row.least, row.most}) {
            for (const double kilohertz : {0.5, 100.0, 500.0}) {
                for (const double gauss : {10.0, 2000.0, 4000.0}) {
                    const double expected = curve(row.a, row.c, row.d, kilohertz, gauss);
                    EXPECT_NEAR(powderCoreLoss(gauss, kilohertz, permeability) / expected, 1.0, 1e-12) << permeability;
                }
            }
        }
    }
    EXPECT_NEAR(powderCoreLoss(2000, 100, 60), 113.92, 5e-3);
}

TEST(CoreLoss, FerritesGoByMaterialAndFrequency) {
    struct Row {
        std::size_t material;
        double kilohertz, a, c, d;
    };
    const Row rows[] = {
        {0, 499.9, 0.053, 1.6, 3.15},        {0, 500, 0.00113, 2.19, 3.1},      {0, 999.9, 0.00113, 2.19, 3.1},
        {0, 1000, 0.0000000017, 4.13, 2.98}, {1, 99.9, 0.074, 1.43, 2.85},      {1, 100, 0.036, 1.64, 2.68},
        {1, 499.9, 0.036, 1.64, 2.68},       {1, 500, 0.014, 1.84, 2.28},       {2, 99.9, 0.158, 1.36, 2.86},
        {2, 100, 0.0434, 1.63, 2.62},        {2, 500, 0.000000736, 3.47, 2.54}, {3, 9.9, 0.79, 1.06, 2.85},
        {3, 10, 0.0717, 1.72, 2.66},         {3, 100, 0.0573, 1.66, 2.68},      {3, 500, 0.0126, 1.88, 2.29},
        {4, 20, 0.245, 1.39, 2.5},           {4, 20.01, 0.00458, 2.42, 2.5},    {5, 20, 0.3, 1.26, 2.6},
        {5, 20.01, 0.00382, 2.32, 2.62},     {6, 20, 0.148, 1.5, 2.25},         {6, 20.01, 0.135, 1.62, 2.15},
        {6, 1e5, 0.135, 1.62, 2.15},         {2, 499.9, 0.0434, 1.63, 2.62},    {3, 99.9, 0.0717, 1.72, 2.66},
        {3, 499.9, 0.0573, 1.66, 2.68}};
    for (const Row& row : rows) {
        const double expected = curve(row.a, row.c, row.d, row.kilohertz, 1500);
        EXPECT_NEAR(ferriteCoreLoss(row.material, row.kilohertz, 1500) / expected, 1.0, 1e-12)
            << row.material << " at " << row.kilohertz;
    }
    EXPECT_EQ(kFerriteMaterials.front(), "K Matl");
    EXPECT_EQ(kFerriteMaterials.back(), "H Matl");
}

TEST(CoreLoss, NegativeValuesAreRefused) {
    expectFailure(FailureNumber::InvalidArgument, [] { return powderCoreLoss(-1, 10, 60); });
    expectFailure(FailureNumber::InvalidArgument, [] { return powderCoreLoss(1, -10, 60); });
    expectFailure(FailureNumber::InvalidArgument, [] { return powderCoreLoss(1, 10, -60); });
    expectFailure(FailureNumber::InvalidArgument, [] { return ferriteCoreLoss(0, -10, 1); });
    expectFailure(FailureNumber::InvalidArgument, [] { return ferriteCoreLoss(0, 10, -1); });
    expectFailure(FailureNumber::Overflow, [] { return ferriteCoreLoss(0, 1e200, 1e200); });
}

}  // namespace
}  // namespace tallyforge
