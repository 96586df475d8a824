// SPDX-License-Identifier: GPL-3.0-or-later
//
// The triangle keys in the hand of their user.
#include "support/bank_fixture.h"

namespace tallyforge {
namespace {

constexpr std::size_t kAngle = 13;
constexpr std::size_t kLegs = 14;
constexpr std::size_t kHypotenuseKey = 15;
constexpr std::size_t kS1 = 11;
constexpr std::size_t kS2 = 23;
constexpr std::size_t kS3 = 5;

class TriangleKeys : public BankAtHand {
protected:
    TriangleKeys() { choose(form().mnuTrig); }
    void input(const char* number, std::size_t key, std::uint8_t mask = 0) {
        type(number);
        bank(key, mask);
    }
    bool angleKeyShown() { return form().cmdFunctions[kAngle].visible; }
};

TEST_F(TriangleKeys, ARightTriangleIsSolvedFromTwoOfItsSides) {
    enter("7");
    input("5", kHypotenuseKey);
    EXPECT_EQ(line(), "H                  5.00");
    input("3", kLegs);
    const auto lines = tape();
    ASSERT_EQ(lines.size(), 7U);
    EXPECT_EQ(lines[1], "H                  5.00");
    EXPECT_EQ(lines[2], "X                  3.00");
    EXPECT_EQ(lines[3], "\xED                 36.87");
    EXPECT_EQ(lines[4], "Y                  4.00");
    EXPECT_EQ(lines[5], "\xE9                 53.13");
    EXPECT_EQ(lines[6], "Area               6.00");
    EXPECT_EQ(x(), "6");
    EXPECT_EQ(s().stack.depth(), 5) << "four results in the place of the inputs";
    EXPECT_EQ(element(4), "7");
    EXPECT_EQ(element(2), "4");
}

TEST_F(TriangleKeys, TheAngleKeyIsHiddenWhileAnAngleHasBeenGiven) {
    EXPECT_TRUE(angleKeyShown());
    input("30", kAngle);
    EXPECT_FALSE(angleKeyShown());
    holdModifiers(form(), kShift);
    EXPECT_FALSE(angleKeyShown());
    releaseModifiers(form());
    EXPECT_FALSE(angleKeyShown());
    choose(form().mnuStd);
    EXPECT_TRUE(angleKeyShown());
    choose(form().mnuTrig);
    EXPECT_FALSE(angleKeyShown());
    input("2", kHypotenuseKey);
    EXPECT_TRUE(angleKeyShown());
    EXPECT_EQ(label(4), "H");
    EXPECT_EQ(label(3), "X");
    EXPECT_EQ(line(2), "Y                  1.73");
    EXPECT_EQ(line(1), "\xE9                 60.00");
    EXPECT_EQ(label(), "Area");
}

TEST_F(TriangleKeys, TheOtherAngleAndGrads) {
    choose(form().optGrad);
    input("50", kAngle, kShift);
    input("1", kLegs, kShift);
    EXPECT_EQ(line(4), "Y                  1.00");
    EXPECT_EQ(line(3), "H                  1.41");
    EXPECT_EQ(line(2), "X                  1.00");
    EXPECT_EQ(line(1), "\xED                 50.00");
    EXPECT_EQ(line(), "Area               0.50");
}

TEST_F(TriangleKeys, NothingEnteredOrZeroBeginsAnew) {
    input("30", kAngle);
    input("0", kHypotenuseKey);
    EXPECT_EQ(label(), "Reset");
    EXPECT_TRUE(angleKeyShown());
    input("3", kLegs);
    input("4", kLegs, kShift);
    EXPECT_EQ(line(), "Area               6.00") << "the angle is forgotten";
}

TEST_F(TriangleKeys, ResetForgetsWhatWasGiven) {
    input("30", kAngle);
    choose(form().cmdReset);
    EXPECT_TRUE(angleKeyShown());
    input("3", kLegs);
    EXPECT_EQ(tape().size(), 1U);
    input("4", kLegs, kShift);
    EXPECT_EQ(line(), "Area               6.00");
}

TEST_F(TriangleKeys, AnInputGivenTwiceReplacesItsFormerValue) {
    input("9", kLegs);
    input("3", kLegs);
    EXPECT_EQ(s().stack.depth(), 1);
    input("5", kHypotenuseKey);
    EXPECT_EQ(line(), "Area               6.00");
}

TEST_F(TriangleKeys, AnImpossibleRightTriangleTakesTheLastInputBack) {
    input("3", kHypotenuseKey);
    input("5", kLegs);
    EXPECT_EQ(lastBox(), "Error number 5");
    EXPECT_EQ(label(), "No Data!");
    input("2", kLegs);
    EXPECT_EQ(line(1), "\xE9                 48.19");
    EXPECT_EQ(label(), "Area");
}

TEST_F(TriangleKeys, NumbersPutOnTheStackBetweenTwoInputsStayUntilTheSetIsComplete) {
    enter("7");
    input("5", kS1);
    enter("8");
    enter("9");
    input("6", kS2);
    ASSERT_EQ(s().stack.depth(), 5);
    const char* const expected[] = {"6", "9", "8", "5", "7"};
    for (int below = 0; below < 5; ++below) {
        EXPECT_EQ(element(below), expected[below]);
    }
    input("4", kHypotenuseKey);
    EXPECT_EQ(s().stack.depth(), 6) << "the other triangle has inputs of its own";
    input("7", kS3);
    EXPECT_EQ(s().stack.depth(), 8);
    EXPECT_EQ(element(7), "7");
    EXPECT_EQ(element(6), "5") << "seven results from the place of the first input on";
    EXPECT_EQ(label(), "Area");
}

TEST_F(TriangleKeys, WhatWasGivenStandsAsGivenInBothSolutions) {
    input("12.745", kS1);
    input("9.1", kS3);
    input("33.335", kS1, kShift);
    EXPECT_EQ(platform.boxes.size(), 1U);
    EXPECT_EQ(line(13), "S1                12.74");
    EXPECT_EQ(line(6), "S1*               12.74");
    EXPECT_EQ(line(4), "S3*                9.10");
    EXPECT_EQ(line(10), "A1                33.34");
    EXPECT_EQ(line(3), "A1*               33.34");
    EXPECT_EQ(element(6), "12.745");
    EXPECT_EQ(element(3), "33.335");
}

TEST_F(TriangleKeys, AnAngleGivenInAnotherModeStandsInTheModeOfTheResults) {
    input("3", kS1);
    input("90", kS1, kShift);
    choose(form().optRad);
    input("4", kS2);
    EXPECT_EQ(line(4), "S3                 5.00");
    EXPECT_EQ(line(3), "A1                 1.57");
}

TEST_F(TriangleKeys, TheInputThatIsOutOfRangeIsTheOneTakenBack) {
    input("200", kS1, kShift);
    input("5", kS1);
    input("6", kS2);
    EXPECT_EQ(label(), "No Data!");
    input("60", kS1, kShift);
    EXPECT_EQ(line(4), "S3                 5.57") << "both sides were still there";
    EXPECT_EQ(label(), "Area");
    choose(form().cmdReset);
    input("95", kAngle);
    input("5", kHypotenuseKey);
    EXPECT_EQ(label(), "No Data!");
    EXPECT_TRUE(angleKeyShown()) << "the angle is to be given anew";
    input("3", kLegs);
    EXPECT_EQ(line(), "Area               6.00");
    EXPECT_EQ(s().stack.depth(), 4);
}

TEST_F(TriangleKeys, ModifiersThatNameNoInputSaySo) {
    enter("3");
    for (const std::size_t key : {kS1, kS2, kS3, kAngle, kLegs}) {
        expectNoMeaning(key, {2, 3, 4, 5, 6, 7});
    }
    expectNoMeaning(kHypotenuseKey, {1, 2, 3, 4, 5, 6, 7});
}

TEST_F(TriangleKeys, ThreeSidesGiveTheAngles) {
    input("13", kS1);
    input("14", kS2);
    input("15", kS3);
    const auto lines = tape();
    const char* const expected[] = {"S3                15.00", "S1                13.00", "S2                14.00",
                                    "S3                15.00", "A1                67.38", "A2                53.13",
                                    "A3                59.49", "Area              84.00"};
    ASSERT_EQ(lines.size(), 10U);
    for (std::size_t i = 0; i < 8; ++i) {
        EXPECT_EQ(lines[i + 2], expected[i]);
    }
    EXPECT_EQ(s().stack.depth(), 7);
    EXPECT_TRUE(platform.boxes.empty());
}

TEST_F(TriangleKeys, TheAngleBehindASideLiesBetweenItAndTheNext) {
    input("3", kS1);
    input("4", kS2);
    input("90", kS1, kShift);
    EXPECT_EQ(line(4), "S3                 5.00");
    EXPECT_EQ(label(2), "A2");
    EXPECT_EQ(label(1), "A3");
    EXPECT_EQ(line(), "Area               6.00");
}

TEST_F(TriangleKeys, TheSecondSolutionIsMarkedWithAsterisks) {
    input("8", kS1);
    input("5", kS3);
    input("30", kS1, kShift);
    EXPECT_EQ(lastTitle(), "--- IMPORTANT MESSAGE ---");
    EXPECT_EQ(lastBox(), "There are two solutions, this is the first, the second is followed by asterisks.");
    const auto lines = tape();
    ASSERT_EQ(lines.size(), 17U);
    const char* const expected[] = {"A1                30.00", "S1                 8.00", "S2                 9.93",
                                    "S3                 5.00", "A1                30.00", "A2                53.13",
                                    "A3                96.87", "Area              19.86", "S1*                8.00",
                                    "S2*                3.93", "S3*                5.00", "A1*               30.00",
                                    "A2*              126.87", "A3*               23.13", "Area*              7.86"};
    for (std::size_t i = 0; i < 15; ++i) {
        EXPECT_EQ(lines[i + 2], expected[i]);
    }
}

TEST_F(TriangleKeys, TwoAnglesAndASide) {
    choose(form().optRad);
    input("1.0471975511966", kS1, kShift);
    input("1.0471975511966", kS2, kShift);
    input("2", kS2);
    EXPECT_EQ(line(6), "S1                 2.00");
    EXPECT_EQ(line(4), "S3                 2.00");
    EXPECT_EQ(line(1), "A3                 1.05");
    EXPECT_EQ(line(), "Area               1.73");
}

TEST_F(TriangleKeys, ThreeAnglesFixNoSizeAndASideMayStillCome) {
    input("60", kS1, kShift);
    input("60", kS2, kShift);
    input("60", kS3, kShift);
    EXPECT_EQ(lastBox(), "Illegal operation - check for negitive numbers!") << "the message of key 5";
    input("2", kS1);
    EXPECT_EQ(line(), "Area               1.73");
}

}  // namespace
}  // namespace tallyforge
