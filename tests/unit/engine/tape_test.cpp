// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/tape.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace tallyforge {
namespace {

TEST(TapeLines, KeepTheirValuesWhileFillersGo) {
    Tape tape;
    tape.clear(2);
    EXPECT_EQ(tape.count(), 2U);
    EXPECT_EQ(tape.lines(), 0U);
    tape.add("one", ValueCell{1.0});
    EXPECT_TRUE(tape.dropFiller());
    tape.add("a line that is longer than the tape is wide", ValueCell{2.0});
    EXPECT_TRUE(tape.dropFiller());
    EXPECT_FALSE(tape.dropFiller());
    EXPECT_EQ(tape.row(0), "one");
    EXPECT_EQ(tape.row(1), "a line that is longer than the tape is wide");
    EXPECT_EQ(tape.value(1), ValueCell{2.0});
    EXPECT_EQ(tape.selected(), 1U);
    EXPECT_TRUE(tape.row(9).empty());
    EXPECT_TRUE(tape.value(9).isEmpty());
}

TEST(TapeLines, ATextOfTheTapesWidthOrOneMoreReadsAsItIs) {
    Tape tape;
    tape.clear(0);
    const std::string text = "abcdefghijklmnopqrstuvwxyz";
    for (const std::size_t size : {kTapeWidth - 1, kTapeWidth, kTapeWidth + 1}) {
        tape.add(text.substr(0, size), ValueCell{});
        EXPECT_EQ(tape.row(tape.count() - 1), text.substr(0, size));
    }
    EXPECT_EQ(tape.row(0), text.substr(0, kTapeWidth - 1));
}

TEST(Tape, ALineReadsAsItWasWrittenWhateverTheFormatIsLater) {
    Tape tape;
    tape.clear(0);
    tape.addNumber({.mode = DisplayMode::Fixed, .digits = 2, .decimal = '.'}, "+", 1234.5);
    tape.addNumber({.mode = DisplayMode::Scientific, .digits = 4, .decimal = ','}, "", -1234.5);
    tape.addNumber({.mode = DisplayMode::Engineering, .digits = 3, .decimal = '.'}, "Lastx", 12345.0);
    EXPECT_EQ(tape.row(0), "+              1,234.50");
    EXPECT_EQ(tape.row(1), "-1,2345e+03");
    EXPECT_EQ(tape.row(2), "Lastx        12.345e+03");
}

TEST(Tape, FillersGoOneByOneAndLinesKeepTheirPlaces) {
    Tape tape;
    tape.clear(2);
    tape.add(std::string(40, 'w'), ValueCell{1.0});
    tape.addNumber({}, "", 2.0);
    EXPECT_TRUE(tape.dropFiller());
    EXPECT_EQ(tape.row(1), std::string(40, 'w'));
    EXPECT_EQ(tape.row(2), "2.00");
    EXPECT_TRUE(tape.dropFiller());
    EXPECT_FALSE(tape.dropFiller());
    EXPECT_EQ(tape.row(0), std::string(40, 'w'));
    EXPECT_EQ(tape.value(1), ValueCell{2.0});
    EXPECT_EQ(tape.value(2), ValueCell{});
    EXPECT_EQ(tape.row(2), "");
    EXPECT_EQ(tape.selected(), 1U);
}

TEST(Tape, BlocksJoinWithoutASeam) {
    Tape tape;
    tape.clear(3);
    for (int i = 0; i < 10000; ++i) {
        tape.addNumber({}, "", i);
    }
    tape.dropFiller();
    for (std::size_t i = 0; i < 10000; i += 1021) {
        EXPECT_EQ(tape.value(i + 2), ValueCell{static_cast<double>(i)});
    }
    EXPECT_EQ(tape.lines(), 10000U);
}

TEST(Tape, KeepsTheLastTenMillionLinesAndTellsHowManyWereBefore) {
    constexpr std::size_t kLines = 10'100'000;
    Tape tape;
    tape.clear(7);
    for (int filler = 0; filler < 7; ++filler) {
        EXPECT_TRUE(tape.dropFiller());
    }
    tape.add(std::string(40, 'w'), ValueCell{"typed"});
    const LineStyle plus = Tape::style(packed({}), *tape.idOf(ShortLabel{"+"}));
    for (std::size_t i = 1; i < kLines; ++i) {
        tape.addNumber(plus, static_cast<double>(i));
    }
    EXPECT_GT(tape.gone(), 0U);
    EXPECT_EQ(tape.gone() + tape.count(), kLines);
    EXPECT_GE(tape.count(), 10'000'000U + 1U);
    EXPECT_LT(tape.count(), 10'010'000U);
    EXPECT_EQ(tape.row(0), std::to_string(tape.gone() + 1) + " older lines");
    EXPECT_TRUE(tape.value(0).isEmpty());
    EXPECT_EQ(tape.value(1), ValueCell{static_cast<double>(tape.gone() + 1)});
    EXPECT_EQ(tape.row(tape.count() - 1), "+         10,099,999.00");
    EXPECT_EQ(tape.selected(), tape.count() - 1);
    tape.select(5);
    EXPECT_EQ(tape.selected(), 5U);
    tape.clear(0);
    EXPECT_EQ(tape.gone(), 0U);
    EXPECT_EQ(tape.count(), 0U);
}

TEST(Tape, LongTextsGiveWaySooner) {
    constexpr int kLines = 1'000'000;
    Tape tape;
    tape.clear(0);
    for (int i = 0; i < kLines; ++i) {
        tape.add("#1010b", ValueCell{std::string(100, '1')});
    }
    EXPECT_GT(tape.count(), 500'000U);
    EXPECT_LT(tape.count(), 750'000U);
    EXPECT_EQ(tape.gone() + tape.count(), static_cast<std::size_t>(kLines));
    EXPECT_EQ(tape.row(tape.count() - 1), "#1010b");
}

TEST(Tape, TextsBehindTenMillionPlainLinesStayWithinItsBytes) {
    constexpr std::size_t kPlain = 10'000'000;
    constexpr std::size_t kTexts = 900'000;
    Tape tape;
    tape.clear(0);
    const LineStyle plain = Tape::style(packed({}), LabelId::None);
    for (std::size_t i = 0; i < kPlain; ++i) {
        tape.addNumber(plain, 1.0);
    }
    EXPECT_EQ(tape.gone(), 0U);
    std::size_t most = 0;
    for (std::size_t i = 0; i < kTexts; ++i) {
        tape.add("#1010b", ValueCell{std::string(66, '1')});
        most = std::max(most, tape.bytes());
    }
    EXPECT_LE(most, Tape::kMostBytes);
    EXPECT_GT(most, Tape::kMostBytes - (std::size_t{1} << 20U)) << "no line goes before it must";
    EXPECT_EQ(tape.gone() + tape.count(), kPlain + kTexts);
    EXPECT_EQ(tape.row(0), std::to_string(tape.gone() + 1) + " older lines");
    EXPECT_EQ(tape.value(tape.count() - 1), ValueCell{std::string(66, '1')});
}

TEST(Tape, TheLongestTextsStayWithinItsBytesToo) {
    Tape tape;
    tape.clear(0);
    for (int i = 0; i < 40'000; ++i) {
        tape.add("text", ValueCell{std::string(8192, 'x')});
        ASSERT_LE(tape.bytes(), Tape::kMostBytes);
    }
    EXPECT_GT(tape.count(), 10'000U);
}

TEST(Tape, GivesWayOnRequestAndAsksForRoomBeforeItGrows) {
    Tape tape;
    std::size_t asked = 0;
    tape.beforeGrowing([&](std::size_t bytes) { asked = bytes; });
    tape.clear(0);
    for (int i = 0; i < 10'000; ++i) {
        tape.addNumber({}, {}, i);
    }
    EXPECT_EQ(asked, tape.bytes());
    const Tape copy = tape;
    tape.shrinkTo(0);
    EXPECT_EQ(tape.gone(), 8192U);
    EXPECT_EQ(tape.row(0), "8193 older lines");
    EXPECT_EQ(tape.value(tape.count() - 1), ValueCell{9999.0});
    EXPECT_EQ(copy.count(), 10'000U) << "a copy keeps what it shared";
    asked = 0;
    tape.take(copy);
    EXPECT_EQ(tape.count(), 10'000U);
    for (int i = 0; i < 4096; ++i) {
        tape.addNumber({}, {}, i);
    }
    EXPECT_EQ(asked, tape.bytes()) << "it goes on asking where it always did";
}

TEST(Tape, MoreLabelsThanItKnowsAreWrittenOut) {
    Tape tape;
    tape.clear(0);
    for (int i = 0; i < 2000; ++i) {
        tape.addNumber({}, "v" + std::to_string(i), i);
    }
    for (std::size_t i = 0; i < 2000; ++i) {
        const std::string line = tape.row(i);
        EXPECT_TRUE(line.starts_with("v" + std::to_string(i) + " ")) << line;
        EXPECT_EQ(line.size(), kTapeWidth);
    }
}

}  // namespace
}  // namespace tallyforge
