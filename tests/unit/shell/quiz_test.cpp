// SPDX-License-Identifier: GPL-3.0-or-later
//
// The arithmetic quiz in the hand of its user, with dice that are loaded.
#include "platform/text.h"
#include "support/bank_fixture.h"

namespace tallyforge {
namespace {

constexpr std::size_t kQuizKey = 7;
constexpr std::size_t kProductKey = 10;

class QuizKeys : public BankAtHand {
protected:
    /// The problems to come, as fractions of the maximum: with 20, 0.55 is 12 and 0.3 is 7.
    void dice(std::initializer_list<double> values) { platform.randoms.assign(values); }
    void answer(const char* number) {
        type(number);
        bank(kQuizKey);
    }
    void startWith20(std::size_t key = kQuizKey, std::uint8_t mask = 0) {
        dice({0.55, 0.3, 0.2, 0.45});
        bank(key, mask);
        answer("20");
    }
    /// Everything about the form that the quiz may change.
    std::vector<std::string> looks() {
        std::vector<std::string> all{form().lblName.text, form().lblBank.text, form().cmdDigits.text};
        const auto add = [&](const Control& control) {
            all.push_back(control.name + " " + control.text + " " + control.tip + (control.visible ? " v" : " -") +
                          (control.enabled ? "e" : "-"));
        };
        for (const Control& key : form().cmdFunctions) {
            add(key);
        }
        for (Control* control :
             {&form().cmdF11, &form().cmdF12, &form().cmdDown, &form().cmdXchgY, &form().cmdLastx, &form().cmdChs,
              &form().cmdSTO, &form().cmdDigits, &form().cmdEex, &form().cmdNumPad[10], &form().mnuSave,
              &form().mnuTape, &form().mnuStd, &form().mnuEngBinary, &form().mnuProgram, &form().mnuSkins,
              &form().optFix[0], &form().cmdMath[0], &form().cmdMath[3]}) {
            add(*control);
        }
        return all;
    }
};

TEST_F(QuizKeys, AsksForAMaximumAndCommitsNothingBefore) {
    put({"5"});
    const auto lines = tape();
    bank(kQuizKey);
    EXPECT_EQ(tape(), lines);
    EXPECT_TRUE(s().modes.QuizMode);
    EXPECT_EQ(form().lblName.text, "Addition (+)");
    EXPECT_EQ(form().cmdFunctions[kQuizKey].text, "max");
    EXPECT_EQ(form().cmdFunctions[kQuizKey].tip, "Enter Max. number used [Click]");
    EXPECT_EQ(x(), "5");
    EXPECT_EQ(s().stack.depth(), 1);
    for (const char* wrong : {"100", "0"}) {
        answer(wrong);
        EXPECT_EQ(lastBox(), "Number must be between 1 and 99!");
        EXPECT_EQ(lastTitle(), "Error!");
        EXPECT_EQ(platform.boxes.back().kind, BoxKind::Plain);
        EXPECT_EQ(tape(), lines);
        EXPECT_EQ(s().stack.depth(), 1);
    }
    dice({0.0, 0.0});
    answer("9");
    EXPECT_EQ(line(1), "Maximum number used   9");
    EXPECT_EQ(line(), "+ 1                 1.1");
}

TEST_F(QuizKeys, PosesAProblemAndJudgesTheAnswer) {
    startWith20();
    EXPECT_EQ(form().cmdFunctions[kQuizKey].text, "?");
    EXPECT_EQ(form().cmdFunctions[kQuizKey].tip, " Input Answer! ");
    EXPECT_EQ(line(), "+ 7                12.7");
    EXPECT_EQ(x(), "12.7");
    answer("18");
    EXPECT_EQ(line(1), "Try again            18");
    EXPECT_EQ(line(), "+ 7                12.7") << "the same problem";
    answer("19");
    EXPECT_EQ(line(1), "You are right!       19");
    EXPECT_EQ(line(), "+ 10                5.1");
}

TEST_F(QuizKeys, TheLargerNumberOfASubtractionComesFirst) {
    dice({0.3, 0.55});
    bank(kQuizKey, kShift);
    EXPECT_EQ(form().lblName.text, "Subtraction (-)");
    answer("20");
    EXPECT_EQ(line(), "- 7                12.7");
    answer("5");
    EXPECT_EQ(label(1), "You are right!");
}

TEST_F(QuizKeys, ProductsAndQuotientsAreWhole) {
    startWith20(kProductKey);
    EXPECT_EQ(line(), "x 7                12.7");
    answer("84");
    EXPECT_EQ(label(1), "You are right!");
    choose(form().cmdReset);
    bank(kProductKey, kShift);
    EXPECT_EQ(form().cmdFunctions[kQuizKey].tip, "Enter Max. answer [Click]");
    EXPECT_EQ(form().lblName.text, "Division (\xF6)");
    dice({0.55, 0.3});
    answer("20");
    EXPECT_EQ(line(), "\xF6 7                84.7");
    answer("12");
    EXPECT_EQ(label(1), "You are right!");
}

TEST_F(QuizKeys, TellsTheScoreAfterTenQuestions) {
    bank(kQuizKey);
    answer("1");
    for (int i = 0; i < 9; ++i) {
        answer(i == 4 ? "3" : "2");
    }
    const auto before = tape().size();
    answer("2");
    const auto lines = tape();
    ASSERT_EQ(lines.size(), before + 4);
    EXPECT_EQ(lines[before], "You are right!        2");
    EXPECT_EQ(lines[before + 1], "Correct Answers!      9");
    EXPECT_EQ(lines[before + 2], "Number(s) wrong :(    1");
    EXPECT_EQ(lines[before + 3], "+ 1                 1.1");
    for (int i = 0; i < 10; ++i) {
        answer("2");
    }
    EXPECT_EQ(line(2), "Correct Answers!     19") << "counted until the end";
}

TEST_F(QuizKeys, NoneRightIsANoughtWithoutDecimals) {
    bank(kQuizKey);
    answer("1");
    const auto before = tape().size();
    for (int i = 0; i < 10; ++i) {
        answer("3");
    }
    const auto lines = tape();
    EXPECT_GT(lines.size(), before);
    EXPECT_EQ(line(2), "Correct Answers!      0");
    EXPECT_EQ(line(1), "Number(s) wrong :(   10");
}

TEST_F(QuizKeys, EnterAnswersAndAPressWithoutANumberDoesNothing) {
    startWith20();
    const auto lines = tape().size();
    bank(kQuizKey);
    press(kKeyEnter, 13);
    EXPECT_EQ(tape().size(), lines);
    EXPECT_EQ(x(), "12.7");
    enter("19");
    EXPECT_EQ(label(1), "You are right!");
    bank(kQuizKey);
    EXPECT_EQ(tape().size(), lines + 2);
}

TEST_F(QuizKeys, OnlyTheQuizKeyIsLeftAndTheOthersDoNothing) {
    put({"3", "4"});
    startWith20();
    for (std::size_t i = 0; i < kBankKeys; ++i) {
        EXPECT_EQ(form().cmdFunctions[i].visible, i == kQuizKey) << i;
    }
    const auto lines = tape();
    const int depth = s().stack.depth();
    for (const int key :
         {kKeyDelete, kKeyEnd, kKeyInsert, kKeyUp, kKeyDown, kKeyLeft, kKeyRight, kKeyF9, kKeyF10, kKeyF11, kKeyF12}) {
        press(key);
    }
    type("+-*/x^!%p\\<>eh");
    for (Control* control : {&form().cmdDown, &form().cmdXchgY, &form().cmdLastx, &form().cmdChs, &form().cmdMath[3],
                             &form().cmdF11, &form().cmdF12, &form().cmdSTO, &form().cmdNumPad[10], &form().mnuTrig}) {
        choose(*control);
    }
    for (int i = 0; i < kBankKeys; ++i) {
        if (i != static_cast<int>(kQuizKey)) {
            calc().keypads().cmdFunctions_Click(i);
        }
    }
    EXPECT_EQ(tape(), lines);
    EXPECT_EQ(s().stack.depth(), depth);
    EXPECT_EQ(form().txtXreg.text, "");
    EXPECT_EQ(s().modes.ActiveKeypad, Keypad::Standard);
    EXPECT_TRUE(platform.boxes.empty());
    for (std::size_t i = 0; i < kBankKeys; ++i) {
        EXPECT_EQ(form().cmdFunctions[i].visible, i == kQuizKey) << i;
    }
    type("1.5");
    EXPECT_EQ(form().txtXreg.text, "15") << "answers are whole";
    press(kKeyBackspace);
    EXPECT_EQ(form().txtXreg.text, "1");
    press(kKeyEscape, 27);
    EXPECT_EQ(form().txtXreg.text, "");
}

TEST_F(QuizKeys, CtrlAltWithItsKeyEndsItAndEverythingComesBack) {
    put({"3", "4"});
    choose(form().optFix[1]);
    type("4");
    choose(form().cmdDigits);
    const auto before = looks();
    startWith20();
    answer("19");
    clickWith(kCtrl | kAlt, form().cmdFunctions[kQuizKey]);
    EXPECT_FALSE(s().modes.QuizMode);
    EXPECT_EQ(label(), "Correct!");
    EXPECT_EQ(x(), "1");
    EXPECT_EQ(looks(), before);
    EXPECT_EQ(s().format.DisplayDigits, 4);
    EXPECT_EQ(s().format.Mode, DisplayMode::Scientific);
    EXPECT_FALSE(s().modifiers.NoKeyPaint);
    holdModifiers(form(), kShift);
    EXPECT_EQ(form().cmdFunctions[14].text, "e^x") << "keys are painted again";
    releaseModifiers(form());
}

TEST_F(QuizKeys, EndedBeforeItsFirstProblemItCommitsNothing) {
    put({"3"});
    const auto before = looks();
    const auto lines = tape();
    bank(kQuizKey);
    clickWith(kCtrl | kAlt, form().cmdFunctions[kQuizKey]);
    EXPECT_EQ(looks(), before);
    EXPECT_EQ(tape(), lines);
    EXPECT_EQ(x(), "3");
}

TEST_F(QuizKeys, ResetEndsIt) {
    choose(form().cmdReset);
    const auto before = looks();
    startWith20();
    choose(form().cmdReset);
    EXPECT_FALSE(s().modes.QuizMode);
    EXPECT_EQ(looks(), before);
    EXPECT_EQ(s().format.DisplayDigits, 2);
    EXPECT_EQ(s().stack.depth(), 0);
    startWith20();
    EXPECT_EQ(line(), "+ 7                12.7") << "and it can be started anew";
}

TEST_F(QuizKeys, ClosingEndsItWithoutATraceInTheSettings) {
    const auto before = looks();
    startWith20();
    form().close();
    start();
    EXPECT_FALSE(s().modes.QuizMode);
    EXPECT_EQ(looks(), before);
    EXPECT_EQ(s().format.DisplayDigits, 2);
}

TEST_F(QuizKeys, AKeyPaintingThatTheUserHasSwitchedOffStaysOff) {
    choose(form().mnuSkins);
    startWith20();
    clickWith(kCtrl | kAlt, form().cmdFunctions[kQuizKey]);
    EXPECT_TRUE(s().modifiers.NoKeyPaint);
}

TEST_F(QuizKeys, ModifiersWithoutAMeaningSaySo) {
    expectNoMeaning(kQuizKey, {2, 3, 4, 5, 6, 7});
    expectNoMeaning(kProductKey, {2, 3, 4, 5, 6, 7});
}

}  // namespace
}  // namespace tallyforge
