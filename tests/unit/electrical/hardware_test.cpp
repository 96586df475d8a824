// SPDX-License-Identifier: GPL-3.0-or-later
#include "electrical/drills.h"
#include "electrical/machine_screws.h"
#include "electrical/sheet_gauges.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <string>

namespace tallyforge {
namespace {

double valueOf(const LookupTable& table, double size) {
    const auto value = table.at(size);
    EXPECT_TRUE(value.has_value()) << table.name << " " << size;
    return value.value_or(0.0);
}

void expectFalling(const LookupTable& table, int first, int last) {
    SCOPED_TRACE(table.name);
    EXPECT_EQ(table.first(), first);
    EXPECT_EQ(table.last(), last);
    ASSERT_EQ(table.rows.size(), static_cast<std::size_t>(last - first + 1));
    for (std::size_t i = 1; i < table.rows.size(); ++i) {
        EXPECT_EQ(table.rows[i].size, table.rows[i - 1].size + 1);
        EXPECT_LT(table.rows[i].value, table.rows[i - 1].value) << table.rows[i].size;
    }
}

TEST(NumberDrills, FallFromOneToSeventyEight) {
    expectFalling(kNumberDrills, 1, 78);
    EXPECT_EQ(valueOf(kNumberDrills, 1), 0.228);
    EXPECT_EQ(valueOf(kNumberDrills, 29), 0.136);
    EXPECT_EQ(valueOf(kNumberDrills, 60), 0.04);
    EXPECT_EQ(valueOf(kNumberDrills, 78), 0.016);
    EXPECT_FALSE(kNumberDrills.at(0).has_value());
    EXPECT_FALSE(kNumberDrills.at(79).has_value());
}

// U, V and L are smaller than their neighbours.
TEST(LetterDrills, KeepsThreeThatAreTooSmallAmongThoseThatRise) {
    ASSERT_EQ(kLetterDrills.rows.size(), 26U);
    double last = 0.0;
    for (const TableRow& row : kLetterDrills.rows) {
        const char letter = static_cast<char>(row.size);
        if (letter == 'L' || letter == 'U' || letter == 'V') {
            EXPECT_LT(row.value, last) << letter;
            continue;
        }
        EXPECT_GT(row.value, last) << letter;
        last = row.value;
    }
    EXPECT_EQ(valueOf(kLetterDrills, 'V'), 0.157);
    EXPECT_EQ(valueOf(kLetterDrills, 'U'), 0.159);
    EXPECT_EQ(valueOf(kLetterDrills, 'L'), 0.189);
    EXPECT_EQ(valueOf(kLetterDrills, 'Z'), 0.413);
}

TEST(LetterDrills, LieOnTheBankWithTheirDiametersInTheTips) {
    const std::array<const char*, 24> diameters{"0.3860", "0.1570", "0.1590", "0.1890", "0.2660", "0.2610",
                                                "0.3320", "0.2950", "0.3230", "0.3160", "0.3020", "0.2500",
                                                "0.2460", "0.2420", "0.2380", "0.2340", "0.3580", "0.3480",
                                                "0.3390", "0.4040", "0.2810", "0.2770", "0.2720", "0.2570"};
    std::string letters;
    for (int key = 0; key < 24; ++key) {
        const std::string_view onKey = drillLetters(key);
        letters += onKey;
        const std::string start = std::string(" Letter ") + onKey.front() + " drill is " +
                                  diameters.at(static_cast<std::size_t>(key)) + " \xD8 ";
        EXPECT_TRUE(letterDrillTip(key).starts_with(start)) << key;
        EXPECT_EQ(letterDrillTip(key) == start, onKey.size() == 1) << key;
    }
    EXPECT_EQ(letters, "W/XVULHGQMPONEDCBATSRY/ZKJIF");
    EXPECT_EQ(letterDrillTip(0), " Letter W drill is 0.3860 \xD8 and Letter X drill is 0.3970 \xD8 ");
    EXPECT_EQ(letterDrillTip(19), " Letter Y drill is 0.4040 \xD8 and Letter Z drill is 0.4130 \xD8 ");
}

/// Ounces per square foot of the old and the new steel gauge, which share them; -5 is 6/0.
const std::map<int, double> kOunces{
    {-5, 300}, {-4, 280}, {-3, 260}, {-2, 240}, {-1, 220}, {0, 200},  {1, 180},   {2, 170}, {3, 160},
    {4, 150},  {5, 140},  {6, 130},  {7, 120},  {8, 110},  {9, 100},  {10, 90},   {11, 80}, {12, 70},
    {13, 60},  {14, 50},  {15, 45},  {16, 40},  {17, 36},  {18, 32},  {19, 28},   {20, 24}, {21, 22},
    {22, 20},  {23, 18},  {24, 16},  {25, 14},  {26, 12},  {27, 11},  {28, 10},   {29, 9},  {30, 8},
    {31, 7},   {32, 6.5}, {33, 6},   {34, 5.5}, {35, 5},   {36, 4.5}, {37, 4.25}, {38, 4}};

TEST(SheetGauges, AreTheWeightsThatGaugesWereMadeBy) {
    expectFalling(kSheetSteel, 3, 38);
    expectFalling(kStainlessSteel, -5, 38);
    expectFalling(kSheetAluminum, -5, 38);
    ASSERT_EQ(kOunces.size(), 44U);
    constexpr double kHalfOfLastPlace = 0.0000501;
    for (const auto& [gauge, ounces] : kOunces) {
        SCOPED_TRACE(gauge);
        EXPECT_NEAR(valueOf(kStainlessSteel, gauge), ounces / 640.0, kHalfOfLastPlace);
        EXPECT_NEAR(valueOf(kSheetAluminum, gauge), 0.005 * std::pow(92.0, (36.0 - gauge) / 39.0), 0.000101);
        if (gauge >= 3) {
            EXPECT_NEAR(valueOf(kSheetSteel, gauge), ounces / 16.0 / 41.82, kHalfOfLastPlace);
        }
    }
}

/// Screw and threads, number of the drill.
struct Tap {
    int screw;
    int threads;
    int drill;
};
constexpr std::array<Tap, 27> kTaps{{{1, 56, 54},  {1, 64, 53},  {1, 72, 53},  {2, 56, 50},  {2, 64, 50},  {3, 48, 47},
                                     {3, 56, 45},  {4, 36, 44},  {4, 40, 43},  {4, 48, 42},  {5, 40, 38},  {5, 44, 37},
                                     {6, 32, 36},  {6, 36, 34},  {6, 40, 33},  {8, 33, 29},  {8, 36, 29},  {8, 40, 28},
                                     {10, 24, 25}, {10, 30, 22}, {10, 32, 21}, {12, 24, 16}, {12, 28, 14}, {12, 32, 13},
                                     {14, 20, 10}, {14, 24, 7},  {0, 0, 55}}};

TEST(MachineScrews, AreTappedWithTheDrillsOfTheirTable) {
    for (const Tap& tap : kTaps) {
        EXPECT_EQ(kTapDrills.at(tap.screw * 100 + tap.threads), tap.drill) << tap.screw << "." << tap.threads;
    }
    EXPECT_EQ(kTapDrills.at(-100), 65);
    EXPECT_EQ(kTapDrills.at(-200), 71);
    ASSERT_EQ(kTapDrills.rows.size(), kTaps.size() + 2);
    EXPECT_TRUE(std::is_sorted(kTapDrills.rows.begin(), kTapDrills.rows.end(),
                               [](const TableRow& a, const TableRow& b) { return a.size < b.size; }));
}

TEST(MachineScrews, KeepsNumberEightUnderThirtyThreeThreads) {
    EXPECT_TRUE(kTapDrills.at(833).has_value());
    EXPECT_FALSE(kTapDrills.at(832).has_value());
}

// A sharp V thread of 60 degrees is 1.299 pitches deep across; a tap wants some 75 percent of it.
TEST(MachineScrews, DrillsLeaveAThreadToCut) {
    for (const Tap& tap : kTaps) {
        if (tap.screw == 0) {
            continue;
        }
        const double threads = tap.threads == 33 ? 32.0 : tap.threads;
        const double across = 0.060 + 0.013 * tap.screw;
        const double percent = 100.0 * (across - valueOf(kNumberDrills, tap.drill)) * threads / 1.299038;
        EXPECT_TRUE(percent > 55.0 && percent < 85.0) << tap.screw << "." << tap.threads << " " << percent;
    }
}

TEST(MachineScrews, SizesReadAsTheyAreKeyed) {
    EXPECT_EQ(kTapDrills.sizeText(833), "8.33");
    EXPECT_EQ(kTapDrills.sizeText(1030), "10.30");
    EXPECT_EQ(kTapDrills.sizeText(-200), "-2");
    EXPECT_EQ(kTapDrills.sizeText(0), "0");
}

}  // namespace
}  // namespace tallyforge
