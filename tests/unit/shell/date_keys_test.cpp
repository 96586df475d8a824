// SPDX-License-Identifier: GPL-3.0-or-later
//
// The date and time keys in the hand of their user, with a clock that stands.
#include "support/bank_fixture.h"

namespace tallyforge {
namespace {

constexpr std::size_t kDifference = 8;
constexpr std::size_t kNow = 9;
constexpr std::size_t kHours = 4;

class DateKeys : public BankAtHand {
protected:
    DateKeys() { platform.time = {.year = 2026, .month = 7, .day = 4, .hour = 14, .minute = 30}; }
};

TEST_F(DateKeys, TodayIsPushedAsADate) {
    put({"5"});
    bank(kNow);
    EXPECT_EQ(x(), "7.042026");
    EXPECT_EQ(line(), "7/04/2026     7.042 026");
    EXPECT_EQ(s().stack.depth(), 2);
}

TEST_F(DateKeys, TheDayOfTheWeekIsTheLabelOfTheDate) {
    on({"7.041776"}, kNow, kShift);
    EXPECT_EQ(line(), "Thursday      7.041 776");
    on({"7.04"}, kNow, kShift);
    EXPECT_EQ(label(), "Saturday") << "of the current year";
    on({"1.012000"}, kNow, kShift);
    EXPECT_EQ(label(), "Saturday");
    on({"13.011999"}, kNow, kShift);
    EXPECT_EQ(label(), "Saturday") << "January 2000";
    on({"13.45"}, kNow, kShift);
    EXPECT_EQ(label(), "Sunday") << "month 13 of 2026 and its day 45: 14 February 2027";
    EXPECT_TRUE(platform.boxes.empty());
}

TEST_F(DateKeys, DaysBetweenTwoDatesAndFromTheFirstToAThird) {
    on({"3", "12.251999", "1.012000"}, kDifference);
    EXPECT_EQ(line(), "days                  7");
    EXPECT_EQ(s().stack.depth(), 2);
    on({"12.251998"}, kDifference, kShift);
    EXPECT_EQ(x(), "-365");
    EXPECT_EQ(label(), "days");
    EXPECT_EQ(s().stack.depth(), 3);
    bank(kDifference, kShift | kCtrl);
    EXPECT_EQ(line(), "12/25/1999   12.251 999");
}

TEST_F(DateKeys, DaysAndWeeksAreAdded) {
    on({"12.251999", "7"}, kDifference, kCtrl);
    EXPECT_EQ(x(), "1.012000");
    EXPECT_EQ(label(), "1/01/2000 d+");
    EXPECT_EQ(s().stack.depth(), 1);
    on({"-2"}, kDifference, kAlt);
    EXPECT_EQ(x(), "12.181999");
    EXPECT_EQ(line(), "12/18/1999 w+12.181 999");
    bank(kDifference, kShift | kCtrl);
    EXPECT_EQ(x(), "12.181999") << "the sum is the first date of the next count";
}

TEST_F(DateKeys, DaysBecomeWeeks) {
    put({"10"});
    unseen(kNow, kCtrl);
    EXPECT_EQ(line(), "weeks.days          1.3");
    put({"14"});
    unseen(kNow, kCtrl);
    EXPECT_EQ(line(), "weeks               2.0");
    put({"-10"});
    unseen(kNow, kCtrl);
    EXPECT_EQ(x(), "-1.3");
}

TEST_F(DateKeys, WrongInputIsToldAndCommitsNothing) {
    struct Wrong {
        std::initializer_list<const char*> operands;
        std::size_t key;
        std::uint8_t mask;
        const char* message;
    };
    const Wrong wrong[] = {
        {{}, kDifference, kShift | kCtrl, "Date1 is empty"},
        {{"12.251999", "1.5"}, kDifference, kCtrl, "Days must be an integer"},
        {{"12.251999", "1.5"}, kDifference, kAlt, "Weeks must be an intger"},
        {{"1.5"}, kNow, kCtrl, "Days must be an integer"},
        {{"7"}, kNow, kShift, "Date1 is not formatted correctly (mm.ddyyyy)"},
        {{"7041776"}, kNow, kShift, "Date1 is not formatted correctly (mm.ddyyyy)"},
        {{"7.0417767"}, kNow, kShift, "Date1 is not formatted correctly (mm.ddyyyy)"},
        {{"7", "7.041776"}, kDifference, 0, "Date1 is not formatted correctly (mm.ddyyyy)"},
        {{"7.041776", "7"}, kDifference, 0, "Date2 is not formatted correctly (mm.ddyyyy)"},
        {{"7.041776", "7"}, kDifference, kShift, "Date2 is not formatted correctly (mm.ddyyyy)"},
        {{"12.251999", "1e9"}, kDifference, kCtrl, "Error 6 (Overflow) in procedure Calander of Form frm_Tallyforge"},
        {{"12.259999", "700"}, kDifference, kCtrl, "Error 6 (Overflow) in procedure DateS of Form frm_Tallyforge"},
    };
    for (const Wrong& row : wrong) {
        SCOPED_TRACE(row.message);
        choose(form().cmdReset);
        platform.boxes.clear();
        put(row.operands);
        const auto lines = tape();
        const int depth = s().stack.depth();
        unseen(row.key, row.mask);
        ASSERT_EQ(platform.boxes.size(), 1U);
        EXPECT_EQ(lastBox(), row.message);
        EXPECT_EQ(lastTitle(), "Date Arithmetic");
        EXPECT_EQ(tape(), lines);
        EXPECT_EQ(s().stack.depth(), depth);
    }
}

TEST_F(DateKeys, ResetForgetsTheFirstDate) {
    on({"12.251999", "1.012000"}, kDifference);
    choose(form().cmdReset);
    bank(kDifference, kShift | kCtrl);
    EXPECT_EQ(lastBox(), "Date1 is empty");
}

TEST_F(DateKeys, HoursGoToDecimalsAndBack) {
    choose(form().mnuTrig);
    on({"1.3030"}, kHours);
    EXPECT_NEAR(value(), 1.50833333333333, 1e-13);
    EXPECT_EQ(label(), "h.ddd");
    bank(kHours, kShift);
    EXPECT_EQ(x(), "1.303");
    EXPECT_EQ(label(), "h:mm ss.d");
    on({"1.45", "2.3030"}, kHours, kCtrl);
    EXPECT_EQ(x(), "4.153");
    EXPECT_EQ(label(), "h:mm ss.d+");
    EXPECT_EQ(s().stack.depth(), 2);
    expectNoMeaning(kHours, {3, 4, 5, 6, 7});
}

TEST_F(DateKeys, HoursReadAsHoursInEveryFormatAndTheFormatStays) {
    choose(form().mnuTrig);
    for (const DisplayMode mode : {DisplayMode::Scientific, DisplayMode::Engineering, DisplayMode::Fixed}) {
        choose(form().optFix.at(static_cast<std::size_t>(mode)));
        on({"1.5"}, kHours, kShift);
        EXPECT_EQ(line(), "h:mm ss.d     1:30 00.0");
        on({"1.1515", "2.1515"}, kHours, kCtrl);
        EXPECT_EQ(line(), "h:mm ss.d+    3:30 30.0");
        EXPECT_EQ(s().format.Mode, mode);
        EXPECT_EQ(s().format.DisplayDigits, 2);
    }
}

TEST_F(DateKeys, SeventyFiveMinutesAreAnHourAndAQuarter) {
    choose(form().mnuTrig);
    on({"1.75"}, kHours);
    EXPECT_EQ(x(), "2.25");
}

}  // namespace
}  // namespace tallyforge
