// SPDX-License-Identifier: GPL-3.0-or-later
//
// The idiom on a small key: two resistors in parallel and their total, any two of which give the
// third.
#include "engine/multi_input.h"

#include "unit/engine/engine_fixture.h"

namespace tallyforge {
namespace {

constexpr std::uint32_t kResetBit = static_cast<std::uint32_t>(ResetBit::ParallelResistors);

constexpr KeyInput kInputs[] = {{.mask = 0, .bit = 1, .label = "RT"},
                                {.mask = kCtrl, .bit = 2, .label = "R1"},
                                {.mask = kAlt, .bit = 4, .label = "R2"}};

double parallel(double a, double b) {
    if (a == 0.0 || b == 0.0) {
        throw Failure{FailureNumber::DivisionByZero};
    }
    return 1.0 / (1.0 / a + 1.0 / b);
}

double other(double total, double one) {
    return 1.0 / (1.0 / total - 1.0 / one);
}

constexpr KeySolution kSolutions[] = {
    {.bits = 3, .label = "R2", .solve = [](const InputValues& v) { return other(v[0], v[1]); }},
    {.bits = 5, .label = "R1", .solve = [](const InputValues& v) { return other(v[0], v[2]); }},
    {.bits = 6, .label = "RT", .solve = [](const InputValues& v) { return parallel(v[1], v[2]); }},
};

class MultiInputTest : public EngineTest {
protected:
    /// A press as the dispatch makes it, the number in X typed before.
    MultiInput::Outcome pressKeyOf(MultiInput& input, std::uint8_t mask, std::string_view typed = {}) {
        type(typed);
        calc.s.modifiers.ModifierMask = mask;
        EXPECT_TRUE(calc.commit.FetchX(true));
        calc.s.stack.LastX = calc.s.stack.Xreg;
        const MultiInput::Outcome outcome = input.press();
        calc.s.modifiers.ModifierMask = 0;
        calc.s.entry.EntryTouched = false;
        if (outcome == MultiInput::Outcome::NoMeaning) {
            calc.s.stack.Xreg = "";
            calc.setEntry({});
            return outcome;
        }
        calc.commit.deliverX();
        calc.display.RestoreDisplay();
        return outcome;
    }
    MultiInput::Outcome press(std::uint8_t mask, std::string_view typed = {}) { return pressKeyOf(key, mask, typed); }
    std::string line(std::size_t backwards) const { return calc.tape.row(calc.tape.count() - backwards); }

    MultiInput key{calc,
                   {.resetLabel = "Reset RT",
                    .resetBit = ResetBit::ParallelResistors,
                    .inputs = kInputs,
                    .solutions = kSolutions}};
    using Outcome = MultiInput::Outcome;
};

TEST_F(MultiInputTest, TwoInputsGiveTheThird) {
    EXPECT_EQ(press(kCtrl, "100"), Outcome::Stored);
    EXPECT_EQ(press(kAlt, "25"), Outcome::Solved);
    EXPECT_EQ(x(), "20");
    EXPECT_EQ(line(3), "R1               100.00");
    EXPECT_EQ(line(2), "R2                25.00");
    EXPECT_EQ(line(1), "RT                20.00");
    EXPECT_EQ(lastx(), "25");
}

TEST_F(MultiInputTest, AnyPairInAnyOrderDetermines) {
    press(kAlt, "25");
    EXPECT_EQ(press(0, "20"), Outcome::Solved);
    EXPECT_DOUBLE_EQ(calc.xNumber(), 100.0);
    press(0, "20");
    EXPECT_EQ(press(kCtrl, "100"), Outcome::Solved);
    EXPECT_DOUBLE_EQ(calc.xNumber(), 25.0);
}

TEST_F(MultiInputTest, InputsAndResultTakeOnePlaceOnTheStack) {
    commitText("7");
    press(kCtrl, "100");
    EXPECT_EQ(calc.s.stack.depth(), 2);
    press(kAlt, "25");
    EXPECT_EQ(calc.s.stack.depth(), 2);
    EXPECT_EQ(element(1), "7");
    EXPECT_EQ(element(2), "20");
    EXPECT_EQ(y(), "7");
}

TEST_F(MultiInputTest, AnInputMayBeComputedOnTheStack) {
    commitText("7");
    press(kCtrl, "100");
    commitText("20");
    commitText("5");
    calc.commit.lowerStack(2);
    calc.s.stack.Xreg = 25.0;
    calc.commit.deliverX();
    EXPECT_EQ(press(kAlt), Outcome::Solved);
    EXPECT_EQ(x(), "20");
    EXPECT_EQ(calc.s.stack.depth(), 2);
    EXPECT_EQ(element(1), "7");
}

TEST_F(MultiInputTest, NumbersPutBetweenTwoInputsStayUntilTheSetIsComplete) {
    commitText("7");
    press(kCtrl, "50");
    commitText("8");
    commitText("9");
    press(kCtrl, "100");
    EXPECT_EQ(calc.s.stack.depth(), 5);
    const char* const expected[] = {"7", "50", "8", "9", "100"};
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(element(i + 1), expected[i]);
    }
    commitText("4");
    EXPECT_EQ(press(kAlt, "25"), Outcome::Solved);
    EXPECT_EQ(calc.s.stack.depth(), 2);
    EXPECT_EQ(element(1), "7");
    EXPECT_EQ(element(2), "20");
}

TEST_F(MultiInputTest, ANumberThatHasTakenThePlaceOfAnInputStays) {
    commitText("7");
    press(kCtrl, "50");
    stackKeys.cmdDown_Click();
    commitText("8");
    press(kCtrl, "100");
    EXPECT_EQ(element(2), "8");
    EXPECT_EQ(element(3), "100");
    EXPECT_EQ(press(kAlt, "25"), Outcome::Solved);
    EXPECT_EQ(calc.s.stack.depth(), 3);
    EXPECT_EQ(element(2), "8");
    EXPECT_EQ(element(3), "20");
}

TEST_F(MultiInputTest, AnInputThatStandsOnTheStackAlreadyIsReplacedInItsPlace) {
    commitText("7");
    commitText("100");
    press(kCtrl);
    EXPECT_EQ(calc.s.stack.depth(), 2);
    press(kAlt, "25");
    EXPECT_EQ(calc.s.stack.depth(), 2);
    EXPECT_EQ(element(1), "7");
}

TEST_F(MultiInputTest, AnInputGivenTwiceReplacesItsFormerValue) {
    press(kCtrl, "50");
    EXPECT_EQ(press(kCtrl, "100"), Outcome::Stored);
    EXPECT_EQ(key.received(), 2);
    press(kAlt, "25");
    EXPECT_EQ(x(), "20");
    EXPECT_EQ(calc.s.stack.depth(), 1);
}

TEST_F(MultiInputTest, ShiftComputesAgainFromTheStoredOthersAndShowsThem) {
    press(kCtrl, "100");
    press(kAlt, "25");
    EXPECT_EQ(press(kAlt | kShift, "100"), Outcome::Solved);
    EXPECT_EQ(x(), "50");
    EXPECT_EQ(line(3), "R1               100.00");
    EXPECT_EQ(line(2), "R2               100.00");
    EXPECT_EQ(line(1), "RT                50.00");
    EXPECT_EQ(press(kCtrl | kShift, "300"), Outcome::Solved);
    EXPECT_EQ(x(), "75");
}

TEST_F(MultiInputTest, ShiftNamesTheSameInput) {
    EXPECT_EQ(press(kShift, "20"), Outcome::Stored);
    EXPECT_EQ(key.received(), 1);
    EXPECT_EQ(press(kShift | kCtrl, "100"), Outcome::Solved);
    EXPECT_DOUBLE_EQ(calc.xNumber(), 25.0);
}

TEST_F(MultiInputTest, TheQuantitySolvedForStartsANewSetEvenWithShift) {
    press(kCtrl, "100");
    press(kAlt, "25");
    EXPECT_EQ(press(kShift, "10"), Outcome::Stored);
    EXPECT_EQ(key.received(), 1);
}

TEST_F(MultiInputTest, WithoutShiftAnotherPressStartsANewSet) {
    press(kCtrl, "100");
    press(kAlt, "25");
    EXPECT_EQ(press(kAlt, "50"), Outcome::Stored);
    EXPECT_EQ(key.received(), 4);
}

TEST_F(MultiInputTest, NothingEnteredClearsTheStoredInputs) {
    press(kCtrl, "100");
    EXPECT_EQ(press(0, "0"), Outcome::Reset);
    EXPECT_EQ(lastLine(), "Reset RT           0.00");
    EXPECT_EQ(key.received(), 0);
    EXPECT_EQ(press(kAlt, "25"), Outcome::Stored);
}

TEST_F(MultiInputTest, OnAnEmptyStackThePressIsAReset) {
    EXPECT_EQ(press(0), Outcome::Reset);
    EXPECT_EQ(x(), "0");
    EXPECT_EQ(calc.s.stack.depth(), 0);
}

TEST_F(MultiInputTest, AKeyMayTakeZeroAsAnInput) {
    MultiInput zeroes{calc, {.inputs = kInputs, .solutions = kSolutions, .zeroResets = false}};
    EXPECT_EQ(pressKeyOf(zeroes, kCtrl, "0"), Outcome::Stored);
}

TEST_F(MultiInputTest, TheResetBitClearsTheStateOnceAtTheNextPress) {
    press(kCtrl, "100");
    EXPECT_EQ(calc.s.functions.FunctionResetMask & kResetBit, 0U) << "the first press has taken it";
    calc.s.functions.FunctionResetMask = 0x7FFFFFFF;
    EXPECT_EQ(press(kAlt, "25"), Outcome::Stored);
    EXPECT_EQ(calc.s.functions.FunctionResetMask, 0x7FFFFFFFU - kResetBit);
    EXPECT_EQ(key.received(), 4);
}

TEST_F(MultiInputTest, AfterAResetShiftHasNothingToComputeFrom) {
    press(kCtrl, "100");
    press(kAlt, "25");
    calc.s.functions.FunctionResetMask |= kResetBit;
    EXPECT_EQ(press(kAlt | kShift, "50"), Outcome::Stored);
}

TEST_F(MultiInputTest, ModifiersThatNameNoInputHaveNoMeaning) {
    commitText("5");
    const std::size_t lines = calc.tape.lines();
    for (const auto mask : {kCtrl | kAlt, kShift | kCtrl | kAlt}) {
        EXPECT_EQ(press(static_cast<std::uint8_t>(mask)), Outcome::NoMeaning);
    }
    EXPECT_EQ(key.received(), 0);
    EXPECT_EQ(calc.tape.lines(), lines);
}

TEST_F(MultiInputTest, AFailedSolutionLeavesTheStackAndTheOtherInputs) {
    commitText("7");
    press(0, "100");
    type("100");
    calc.s.modifiers.ModifierMask = kCtrl;
    EXPECT_TRUE(calc.commit.FetchX());
    const int pointer = calc.s.stack.StackPtr;
    EXPECT_THROW(key.press(), Failure) << "both alike: the other one is infinite";
    EXPECT_EQ(calc.s.stack.StackPtr, pointer);
    EXPECT_EQ(key.received(), 1);
    calc.commit.deliverX();
    EXPECT_EQ(press(kCtrl, "200"), Outcome::Solved);
    EXPECT_DOUBLE_EQ(calc.xNumber(), 200.0);
    EXPECT_EQ(element(1), "7");
}

TEST_F(MultiInputTest, ADropBetweenTheInputsDoesNotRaiseTheStack) {
    commitText("7");
    press(kCtrl, "100");
    stackKeys.cmdDown_Click();
    stackKeys.cmdDown_Click();
    ASSERT_EQ(calc.s.stack.depth(), 0);
    EXPECT_EQ(press(kAlt, "25"), Outcome::Solved);
    EXPECT_EQ(calc.s.stack.depth(), 1);
    EXPECT_EQ(element(1), "20");
}

TEST_F(MultiInputTest, TheUsersFormatReturnsAfterTheResult) {
    calc.s.format.DisplayDigits = 5;
    press(kCtrl, "1e6");
    press(kAlt, "1e6");
    EXPECT_EQ(lastLine(), "RT          500.000e+03");
    EXPECT_EQ(calc.s.format.DisplayDigits, 5);
    EXPECT_EQ(calc.s.format.Mode, DisplayMode::Fixed);
}

// A key of the newer kinds: results of its owner, refusals, inputs echoed in the key's order.
constexpr KeyInput kParts[] = {{.mask = 0, .bit = 1, .label = "a", .echoLook = LineLook{.digits = 0}},
                               {.mask = kCtrl, .bit = 2, .label = "b", .echoLabel = "b again"}};
constexpr KeySolution kBoth[] = {{.bits = 3}};

class OwnedKey : public MultiInputTest {
protected:
    MultiInput owned{calc,
                     {.resetLabel = "Reset ab", .inputs = kParts, .solutions = kBoth, .undoneLabel = "Undone"},
                     {.label = [](const KeyInput& input) { return std::string(input.label) + "(m)"; },
                      .refuse =
                          [](const KeyInput&, double& value) {
                              value = value == 99.0 ? 100.0 : value;
                              return value > 1000.0 ? std::optional(InputRefusal{"too much", false}) : std::nullopt;
                          },
                      .refuseSet =
                          [](const InputValues& v) {
                              return v[0] == v[1] ? std::optional(InputRefusal{.label = "equal", .takesBack = 2})
                                                  : std::nullopt;
                          },
                      .solve =
                          [](std::uint8_t, const InputValues& v) {
                              return v[0] > v[1] ? std::vector<KeyResult>{}
                                                 : std::vector<KeyResult>{{v[0] + v[1], "sum"}, {v[0] - v[1], "less"}};
                          }}};
    Outcome give(std::uint8_t mask, std::string_view typed) { return pressKeyOf(owned, mask, typed); }
};

TEST_F(OwnedKey, LeavesItsResultsFromThePlaceOfTheFirstInputUp) {
    commitText("7");
    give(0, "3");
    EXPECT_EQ(line(1), "a(m)               3.00");
    EXPECT_EQ(give(kCtrl, "5"), Outcome::Solved);
    EXPECT_EQ(line(3), "b(m)               5.00");
    EXPECT_EQ(line(2), "sum                8.00");
    EXPECT_EQ(line(1), "less              -2.00");
    EXPECT_EQ(calc.s.stack.depth(), 3);
    EXPECT_EQ(element(1), "7");
    EXPECT_EQ(y(), "8");
}

TEST_F(OwnedKey, EchoesItsInputsInItsOwnOrderUnderShift) {
    give(0, "3");
    give(kCtrl, "5");
    EXPECT_EQ(give(kShift, "4"), Outcome::Solved);
    EXPECT_EQ(line(4), "a(m)                  4");
    EXPECT_EQ(line(3), "b again            5.00");
    EXPECT_EQ(line(2), "sum                9.00");
    EXPECT_EQ(calc.s.format.DisplayDigits, 2);
    EXPECT_EQ(calc.s.format.Mode, DisplayMode::Fixed);
}

TEST_F(OwnedKey, ARefusedInputCostsNothingAndGivesItsPlaceToTheNext) {
    give(0, "3");
    EXPECT_EQ(give(kCtrl, "2000"), Outcome::Refused);
    EXPECT_EQ(line(1), "too much           0.00");
    EXPECT_EQ(owned.received(), 1);
    EXPECT_EQ(calc.s.stack.depth(), 1);
    EXPECT_EQ(give(kCtrl, "5"), Outcome::Solved);
    EXPECT_EQ(element(1), "8");
    EXPECT_EQ(calc.s.stack.depth(), 2);
}

TEST_F(OwnedKey, AnOwnerMayTakeAnotherValueThanTheOneGiven) {
    give(kCtrl, "99");
    EXPECT_EQ(x(), "100");
    EXPECT_EQ(owned.values()[1], 100.0);
}

TEST_F(OwnedKey, ASetThatCannotBeSolvedGivesBackWhatItsOwnerNames) {
    give(0, "3");
    EXPECT_EQ(give(kCtrl, "3"), Outcome::Refused);
    EXPECT_EQ(line(1), "equal              3.00");
    EXPECT_EQ(owned.received(), 1);
    EXPECT_EQ(give(kCtrl, "4"), Outcome::Solved);
}

TEST_F(OwnedKey, WithoutResultsItBeginsAnewUnderALabelOfItsOwn) {
    give(0, "6");
    EXPECT_EQ(give(kCtrl, "5"), Outcome::Reset);
    EXPECT_EQ(line(2), "b(m)               5.00");
    EXPECT_EQ(line(1), "Undone             0.00");
    EXPECT_EQ(owned.received(), 0);
    EXPECT_FALSE(owned.hasSolved());
    EXPECT_EQ(give(0, "0"), Outcome::Reset);
    EXPECT_EQ(line(1), "Reset ab           0.00");
}

}  // namespace
}  // namespace tallyforge
