// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/file_check.h"

#include "numbers/failure.h"

#include <gtest/gtest.h>

namespace tallyforge {
namespace {

RegisterLine registerWith(const char* text) {
    return {.name = "5   ", .value = ValueCell{text}, .tip = "Register 5"};
}

TEST(FileCheck, ALineHoldsWhateverAUserTypes) {
    for (const char* text : {"12.50", "-3", "1e5", "#FFh", "0", "", "a text", "1,5"}) {
        EXPECT_TRUE(fileHolds(ValueCell{text}, '.')) << text;
    }
    for (const double number : {0.0, 1.0 / 3.0, -2.5e300, 5e-324, 1e15}) {
        EXPECT_TRUE(fileHolds(ValueCell{number}, '.')) << number;
        EXPECT_TRUE(fileHolds(ValueCell{number}, ',')) << number;
    }
}

TEST(FileCheck, ALineBreakHasNoPlaceInALine) {
    EXPECT_FALSE(fileHolds(ValueCell{"1\n2"}, '.'));
    EXPECT_FALSE(fileHolds(ValueCell{"12\r"}, '.'));
    EXPECT_FALSE(fileHolds(registerWith("1\n2"), '.'));
}

TEST(FileCheck, ACommaOrMoreThanItsLineHoldsHasNoPlaceInARegister) {
    EXPECT_FALSE(fileHolds(registerWith("1,234.56"), '.'));
    EXPECT_FALSE(fileHolds(registerWith(std::string(300, '7').c_str()), '.'));
    EXPECT_TRUE(fileHolds(registerWith(std::string(255, '7').c_str()), '.'));
    EXPECT_TRUE(fileHolds(registerWith("1,5"), ',')) << "the decimal comma stands as a point";
}

TEST(FileCheck, WhatIsLeftOutIsNamedAndTheRestStands) {
    TapeFileContent content;
    for (RegisterLine& line : content.registers) {
        line = {.name = "1   ", .value = ValueCell{2.5}, .tip = ""};
    }
    content.registers[13].value = ValueCell{"1,234.56"};
    content.Xreg = ValueCell{"a\nb"};
    content.StackPtr = 3;
    content.stack = {ValueCell{1.0}, ValueCell{"c\nd"}};
    content.tape.clear(0);
    content.tape.add("1.00", ValueCell{1.0});
    content.tape.add("ZAK", ValueCell{"e\rf"});
    EXPECT_EQ(leaveOutUnheld(content, '.'),
              (std::vector<std::string>{"Register 3", "X", "stack element 2", "the value of tape line 2"}));
    EXPECT_EQ(leaveOutUnheld(content, '.'), std::vector<std::string>{"the value of tape line 2"});
    const std::string text = formatTapeFile(content, '.');
    EXPECT_NO_THROW(checkReadsBack(content, TextBytes{text}, '.'));
    const TapeFileContent read = parseTapeFile(text, '.');
    EXPECT_EQ(read.tape.value(1).text('.'), "0");
    EXPECT_EQ(read.tape.count(), 2U) << "a line that looks like the end of its section is a line";
    EXPECT_EQ(read.registers[12].value.text('.'), "2.5");
    EXPECT_EQ(read.stack[0].text('.'), "1");
}

TEST(FileCheck, ATextThatIsNotTheContentIsRefused) {
    TapeFileContent content;
    content.kind = TapeFileKind::StackAndTape;
    content.StackPtr = 2;
    content.stack = {ValueCell{1.5}};
    const std::string text = formatTapeFile(content, '.');
    EXPECT_NO_THROW(checkReadsBack(content, TextBytes{text}, '.'));
    content.stack = {ValueCell{2.5}};
    EXPECT_THROW(checkReadsBack(content, TextBytes{text}, '.'), Failure);
    EXPECT_THROW(checkReadsBack(content, TextBytes{std::string_view{text}.substr(0, text.size() / 2)}, '.'), Failure);
}

}  // namespace
}  // namespace tallyforge
