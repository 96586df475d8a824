// SPDX-License-Identifier: GPL-3.0-or-later
//
// The statistics key in the hand of its user.
#include "support/bank_fixture.h"

#include <cmath>
#include <string>
#include <vector>

namespace tallyforge {
namespace {

constexpr std::size_t kSigma = 17;

class StatisticsKey : public BankAtHand {
protected:
    void entry(const char* number, std::uint8_t mask = 0) {
        type(number);
        bank(kSigma, mask);
    }
    void pair(const char* y, const char* x, std::uint8_t mask = 0) {
        enter(y);
        entry(x, mask);
    }
    /// The value under Y's label, the tape line before the last.
    double secondValue() { return std::strtod(element(1).c_str(), nullptr); }
};

// Labels in the tape's code page: 0xE4 is the sum sign.
TEST_F(StatisticsKey, CountsItsEntriesOnTheTape) {
    entry("2");
    EXPECT_EQ(line(), "\xE4+(1)              2.00");
    entry("4");
    EXPECT_EQ(line(), "\xE4+(2)              4.00");
    entry("4", kCtrl);
    EXPECT_EQ(line(), "\xE4-(1)              4.00");
}

TEST_F(StatisticsKey, TheStackDoesNotGrowWithTheEntries) {
    enter("99");
    bank(kSigma, 7);
    const int depth = s().stack.depth();
    for (const char* number : {"1", "2", "3", "4"}) {
        entry(number);
    }
    EXPECT_EQ(s().stack.depth(), depth);
    EXPECT_EQ(x(), "4");
}

TEST_F(StatisticsKey, MeansAndDeviationsOfOneVariable) {
    for (const char* number : {"2", "4", "4", "4", "5", "5", "7", "9"}) {
        entry(number);
    }
    bank(kSigma, kAlt);
    EXPECT_EQ(label(1), "my");
    EXPECT_EQ(label(), "mx");
    EXPECT_EQ(x(), "5");
    EXPECT_EQ(secondValue(), 0.0);
    bank(kSigma, kCtrl | kAlt);
    EXPECT_EQ(label(1), "Sy");
    EXPECT_EQ(label(), "Sx");
    EXPECT_NEAR(value(), std::sqrt(32.0 / 7.0), 1e-13);
    EXPECT_EQ(secondValue(), 0.0);
}

TEST_F(StatisticsKey, PairsCountTheirY) {
    pair("10", "1");
    pair("20", "2");
    pair("40", "3");
    EXPECT_EQ(s().stack.depth(), 1);
    bank(kSigma, kShift);
    EXPECT_EQ(label(1), "\xE4y");
    EXPECT_EQ(label(), "\xE4x");
    EXPECT_EQ(x(), "6");
    EXPECT_EQ(secondValue(), 70.0);
    bank(kSigma, kShift | kCtrl);
    EXPECT_EQ(label(1), "\xE4y\xFD");
    EXPECT_EQ(label(), "\xE4x\xFD");
    EXPECT_EQ(x(), "14");
    EXPECT_EQ(secondValue(), 2100.0);
    bank(kSigma, kShift | kAlt);
    EXPECT_EQ(label(), "\xE4xy");
    EXPECT_EQ(x(), "170");
    pair("40", "3", kCtrl);
    bank(kSigma, kShift);
    EXPECT_EQ(x(), "3");
    EXPECT_EQ(secondValue(), 30.0);
}

TEST_F(StatisticsKey, ASingleNumberHasAYOfZeroWhateverLiesBelow) {
    entry("1");
    entry("2");
    bank(kSigma, kShift);
    EXPECT_EQ(x(), "3");
    EXPECT_EQ(secondValue(), 0.0);
    entry("4");
    bank(kSigma, kShift);
    EXPECT_EQ(x(), "7");
    EXPECT_EQ(secondValue(), 0.0);
}

TEST_F(StatisticsKey, AllThreeModifiersClear) {
    entry("5");
    bank(kSigma, 7);
    EXPECT_EQ(label(), "Reset \xE4");
    EXPECT_EQ(x(), "0");
    entry("8");
    EXPECT_EQ(label(), "\xE4+(1)");
    bank(kSigma, kShift);
    EXPECT_EQ(x(), "8");
}

TEST_F(StatisticsKey, ResetClears) {
    entry("5");
    choose(form().cmdReset);
    entry("8");
    EXPECT_EQ(label(), "\xE4+(1)");
}

TEST_F(StatisticsKey, TooFewEntriesDivideByZero) {
    bank(kSigma, kAlt);
    EXPECT_EQ(lastBox(), "Division by zero - be sure all variables are defined!");
    choose(form().cmdReset);
    entry("5");
    bank(kSigma, kCtrl | kAlt);
    EXPECT_EQ(lastBox(), "Division by zero - be sure all variables are defined!");
    EXPECT_EQ(label(), "No Data!");
}

TEST_F(StatisticsKey, WhatWasNeverPutInCanBeTakenOut) {
    entry("5", kCtrl);
    EXPECT_EQ(label(), "\xE4-(-1)");
    bank(kSigma, kShift);
    EXPECT_EQ(x(), "-5");
    entry("5");
    bank(kSigma, kShift);
    EXPECT_EQ(x(), "0");
}

TEST_F(StatisticsKey, EqualEntriesHaveNoDeviation) {
    for (int i = 0; i < 3; ++i) {
        entry("0.1");
    }
    bank(kSigma, kCtrl | kAlt);
    EXPECT_EQ(x(), "0");
}

TEST_F(StatisticsKey, CloseNumbersKeepAllDigitsOfTheirDeviation) {
    struct Set {
        std::vector<const char*> entries;
        const char* deviation;
    };
    const Set sets[] = {{{"1000001", "1000003"}, "1.4142135623731"},
                        {{"299792.458", "299792.459", "299792.460"}, "0.001"},
                        {{"1e15", "1e15"}, "0"},
                        {{"0.1", "0.1", "0.1", "0.1", "0.1", "0.1", "0.1"}, "0"},
                        {{"1e\\170", "3e\\170"}, "1.4142135623731E-170"},
                        {{"123456789012345", "123456789012346", "123456789012347"}, "1"}};
    for (const Set& set : sets) {
        bank(kSigma, 7);
        for (const char* const number : set.entries) {
            entry(number);
        }
        bank(kSigma, kCtrl | kAlt);
        EXPECT_EQ(x(), set.deviation) << set.entries.front();
        EXPECT_EQ(secondValue(), 0.0);
    }
}

TEST_F(StatisticsKey, ALargeEntryThatWasTakenOutAgainLeavesNoTrace) {
    bank(kSigma, 7);
    entry("1e30");
    entry("0.1");
    entry("0.3");
    entry("1e30", kCtrl);
    bank(kSigma, kShift);
    EXPECT_EQ(x(), "0.4");
    bank(kSigma, kAlt);
    EXPECT_EQ(x(), "0.2");
    bank(kSigma, kCtrl | kAlt);
    EXPECT_EQ(x(), "0.14142135623731");
}

TEST_F(StatisticsKey, ASumThatWasShownIsNoEntry) {
    pair("5", "5");
    press(kKeyDelete);
    EXPECT_EQ(s().stack.depth(), 0);
    bank(kSigma, kShift | kAlt);
    EXPECT_EQ(x(), "25");
    entry("3");
    EXPECT_EQ(s().stack.depth(), 2);
    EXPECT_EQ(element(1), "25");
    EXPECT_EQ(x(), "3");
}

TEST_F(StatisticsKey, AnEntryThatWasWorkedOnKeepsItsPlace) {
    entry("5");
    choose(form().cmdChs);
    entry("7");
    EXPECT_EQ(s().stack.depth(), 2);
    EXPECT_EQ(element(1), "-5");
}

TEST_F(StatisticsKey, ASumBeyondTheRangeRefusesItsEntry) {
    bank(kSigma, 7);
    entry("3");
    entry("1e200");
    EXPECT_EQ(lastBox(), "Number outside of range: \xB1 1.8e308, & \xB1 4.9e-324");
    bank(kSigma, kShift);
    EXPECT_EQ(x(), "3");
}

}  // namespace
}  // namespace tallyforge
