// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/loose_number.h"

#include "platform/form_input.h"
#include "platform/text.h"
#include "support/calculator_fixture.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tallyforge {
namespace {

using Readings = std::vector<std::string>;

Readings readPoint(const char* utf8) {
    return looseReadings(fromUnicode(utf8), '.');
}

TEST(LooseNumber, GroupMarksFallAway) {
    EXPECT_EQ(readPoint("1,234.5"), (Readings{"1234.5"}));
    EXPECT_EQ(readPoint("1.234.567,8"), (Readings{"1234567.8"}));
    EXPECT_EQ(readPoint("1 234 567"), (Readings{"1234567"}));
    EXPECT_EQ(readPoint("1'234'567.25"), (Readings{"1234567.25"}));
    EXPECT_EQ(readPoint("1_000"), (Readings{"1000"}));
    EXPECT_EQ(readPoint("12\u2009345"), (Readings{"12345"}));
    EXPECT_EQ(readPoint("1,234,567"), (Readings{"1234567"}));
}

TEST(LooseNumber, AMarkWithTwoMeaningsHasTwoReadings) {
    EXPECT_EQ(readPoint("1,234"), (Readings{"1234", "1.234"}));
    EXPECT_EQ(looseReadings("1.234", ','), (Readings{"1234", "1,234"}));
    EXPECT_EQ(readPoint("5 m"), (Readings{"5e-3", "5"}));
}

TEST(LooseNumber, TheOtherDecimalCharacterIsRead) {
    EXPECT_EQ(readPoint("3,14"), (Readings{"3.14"}));
    EXPECT_EQ(readPoint("0,125"), (Readings{"0.125"}));
    EXPECT_EQ(looseReadings("3.14", ','), (Readings{"3,14"}));
}

TEST(LooseNumber, AMinusSignOfItsOwnIsAMinus) {
    EXPECT_EQ(readPoint("\u22125"), (Readings{"-5"}));
    EXPECT_EQ(readPoint("+5"), (Readings{"5"}));
    EXPECT_EQ(readPoint("-1.5e-7"), (Readings{"-1.5e-7"}));
}

TEST(LooseNumber, UnitsFallAwayAndPrefixesScale) {
    EXPECT_EQ(readPoint("3.3 kHz"), (Readings{"3.3e3"}));
    EXPECT_EQ(readPoint("47k"), (Readings{"47e3"}));
    EXPECT_EQ(readPoint("100 µF"), (Readings{"100e-6"}));
    EXPECT_EQ(readPoint("230 V"), (Readings{"230"}));
    EXPECT_EQ(readPoint("12 apples"), (Readings{"12"}));
    EXPECT_EQ(readPoint("2e3 kHz"), Readings{}) << "an exponent and a prefix";
}

TEST(LooseNumber, OnlyTheFirstLineCounts) {
    EXPECT_EQ(readPoint("7.5\n8.5"), (Readings{"7.5"}));
    EXPECT_EQ(readPoint("\n 3,5 \r\n"), (Readings{"3.5"}));
}

TEST(LooseNumber, WhatIsNoNumberHasNoReading) {
    for (const char* text : {"", " ", "abc", ".", ",", "-", "1,23,4", "1.2.3", "12:30:15", "e5", "1..2"}) {
        EXPECT_EQ(readPoint(text), Readings{}) << text;
    }
}

class LoosePaste : public testing::Test, protected CalculatorAtHand {
protected:
    void paste(const char* utf8, std::uint8_t shift) {
        platform.clipboard = fromUnicode(utf8);
        press('V', shift == kCtrl ? 22 : 0, shift);
    }
};

TEST_F(LoosePaste, ARefusedTextIsNamedAndReadOnRequest) {
    enter("2");
    paste("3,14", kCtrl);
    EXPECT_EQ(s().stack.depth(), 1);
    EXPECT_EQ(form().lineFor(nullptr), "\"3,14\" is no number; Shift+Ctrl+V reads 3.14");
    paste("3,14", kCtrl | kShift);
    EXPECT_EQ(s().stack.depth(), 2);
    EXPECT_EQ(x(), "3.14");
    EXPECT_EQ(form().lineFor(nullptr), "Standard");
}

TEST_F(LoosePaste, TwoReadingsAreAskedFor) {
    platform.answers = {Answer::No};
    paste("1,234", kCtrl | kShift);
    ASSERT_EQ(platform.boxes.size(), 1U);
    EXPECT_EQ(platform.boxes.front().text, "Read \"1,234\" as 1234?\n\"No\" reads 1.234.");
    EXPECT_EQ(x(), "1.234");
}

TEST_F(LoosePaste, WhatHasNoReadingStaysRefused) {
    enter("2");
    paste("abc", kCtrl | kShift);
    EXPECT_EQ(s().stack.depth(), 1);
    EXPECT_EQ(form().lineFor(nullptr), "\"abc\" is no number");
}

}  // namespace
}  // namespace tallyforge
