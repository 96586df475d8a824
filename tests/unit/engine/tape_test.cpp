// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/tape.h"

#include <gtest/gtest.h>

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

TEST(Tape, AnotherValueBehindALineLeavesItsText) {
    Tape tape;
    tape.clear(0);
    tape.addNumber({}, "CHS", -2.5);
    tape.add("text", ValueCell{"#FFh"});
    tape.setValue(0, 7.0);
    tape.setValue(1, 8.0);
    tape.setValue(2, 9.0);
    EXPECT_EQ(tape.row(0), "CHS               -2.50");
    EXPECT_EQ(tape.value(0), ValueCell{7.0});
    EXPECT_EQ(tape.row(1), "text");
    EXPECT_EQ(tape.value(1), ValueCell{8.0});
    EXPECT_EQ(tape.count(), 2U);
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

}  // namespace
}  // namespace tallyforge
