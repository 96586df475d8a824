// SPDX-License-Identifier: GPL-3.0-or-later
#include "program/program_words.h"

#include "keypads/keypad_table.h"
#include "support/program_fixture.h"

#include <set>

namespace tallyforge {
namespace {

class Words : public ProgramAtHand {
protected:
    /// What keys leave: X, stack and tape.
    std::vector<std::string> left() const {
        std::vector<std::string> all = tape();
        all.push_back(x());
        for (int i = 1; i <= s().stack.depth(); ++i) {
            all.push_back(calc().text(s().stack.slot(i)));
        }
        return all;
    }
    void startAnew() {
        start();
        platform.boxes.clear();
    }
};

TEST_F(Words, EachStandsInTheTableOnce) {
    std::set<std::string_view> seen;
    for (const FunctionWord& row : functionWords()) {
        EXPECT_TRUE(seen.insert(row.word).second) << row.word;
        EXPECT_EQ(findFunction(row.word), &row);
    }
    EXPECT_EQ(seen.size(), 21U + 17U + 33U);
    EXPECT_EQ(findFunction("foo"), nullptr);
    EXPECT_EQ(findFunction(""), nullptr);
}

TEST_F(Words, EveryKeyWordPointsAtAKeyThatDoesSomething) {
    for (const FunctionWord& row : functionWords()) {
        if (row.direct == DirectKey::None) {
            EXPECT_TRUE(keypadTable(row.keypad).rows.at(static_cast<std::size_t>(row.key)).built()) << row.word;
        }
    }
}

// Operands that all functions take; the keypad on show is another one than the word's.
TEST_F(Words, EveryKeyWordDoesWhatItsKeyDoes) {
    for (const FunctionWord& row : functionWords()) {
        if (row.direct != DirectKey::None) {
            continue;
        }
        for (const std::string operand : {"2", "0.5"}) {
            SCOPED_TRACE(std::string(row.word) + " of " + operand);
            startAnew();
            enter("3");
            enter(operand);
            calc().keypads().ShowKeypad(row.keypad);
            s().modifiers.ModifierMask = static_cast<std::uint8_t>(std::max(row.mask, 0));
            s().modes.QuizMode = true;
            calc().keypads().cmdFunctions_Click(row.key);
            s().modes.QuizMode = false;
            const auto byHand = left();
            const auto boxes = platform.boxes.size();

            startAnew();
            writeProgram("#\nlbl a\n" + std::string(row.word) + "\nend\n");
            loadFile();
            choose(form().cmdF11);
            calc().keypads().ShowKeypad(Keypad::Magnetics);
            choose(form().cmdF11);
            enter("3");
            enter(operand);
            forget();
            run();
            EXPECT_EQ(left(), byHand);
            EXPECT_EQ(platform.boxes.size(), boxes);
            EXPECT_EQ(s().modes.ActiveKeypad, Keypad::Program);
            EXPECT_TRUE(s().modes.ProgramMode);
            EXPECT_FALSE(s().modes.QuizMode);
        }
    }
}

TEST_F(Words, ArithmeticWordsAreTheFourKeys) {
    runSection("aa = 7 2 /\nbb = 7 2 *\ncc = 7 2 -\n7 sto1\naa\n2\n+");
    EXPECT_EQ(variable("aa"), 3.5);
    EXPECT_EQ(variable("bb"), 14.0);
    EXPECT_EQ(variable("cc"), 5.0);
}

TEST_F(Words, StackWordsAreTheStackKeys) {
    runSection("3\n4\ndrop");
    EXPECT_EQ(tape().back(), "Drop               3.00");
    EXPECT_EQ(s().stack.depth(), 1);
    startAnew();
    runSection("8\n2\nx~y");
    EXPECT_EQ(x(), "8");
    EXPECT_EQ(element(1), "2");
    startAnew();
    runSection("3\nchs");
    EXPECT_EQ(x(), "-3");
    EXPECT_EQ(tape().back(), "CHS               -3.00");
    startAnew();
    runSection("3\n4\n+\nlstx");
    EXPECT_EQ(x(), "4");
    startAnew();
    runSection("3\nenter\n+");
    EXPECT_EQ(x(), "6");
}

TEST_F(Words, CopiesOfXAndYAreOfFifteenDigits) {
    runSection("1\n3\n/\n4\ny");
    EXPECT_EQ(s().stack.slot(3).number('.'), 0.333333333333333);
    EXPECT_EQ(s().stack.slot(1).number('.'), 1.0 / 3.0);
    startAnew();
    runSection("3\nx\n+");
    EXPECT_EQ(x(), "6");
}

TEST_F(Words, RegistersAreStoredAndRecalled) {
    runSection("42\nsto 24\ncset\n7\nsto 1\nrcl 24\nrcl 1");
    EXPECT_EQ(element(1), "0");
    EXPECT_EQ(x(), "7");
    EXPECT_EQ(tape().back(), "rcl                7.00");
}

TEST_F(Words, ARegisterThatThereIsNotIsRefusedByItsKey) {
    runSection("5\nsto 25\nrcl 99");
    EXPECT_EQ(said(), (Said{"Out of Range!: Tne registers are 1 to 24 only!",
                            "Out of Range!: Tne registers are 1 to 24 only!"}));
    EXPECT_EQ(s().stack.depth(), 1);
}

TEST_F(Words, SeedIsTheSecondsSinceMidnight) {
    runSection("seed");
    EXPECT_EQ(x(), "52200");
}

TEST_F(Words, AngleWordsSelectTheAngle) {
    runSection("rad");
    EXPECT_EQ(s().format.Angle, AngleMode::Radians);
    EXPECT_TRUE(form().optRad.checked);
    runSection("grad\n100\nsin");
    EXPECT_EQ(s().format.Angle, AngleMode::Grads);
    EXPECT_EQ(x(), "1");
    runSection("deg");
    EXPECT_EQ(s().format.Angle, AngleMode::Degrees);
}

TEST_F(Words, FormatAndDigitsComeBackAtTheEndOfTheRun) {
    runSection("sci\ndsp 4\n12\neng\ndsp 1\nfix");
    EXPECT_EQ(tape().back(), "1.2000e+01");
    EXPECT_EQ(s().format.Mode, DisplayMode::Fixed);
    EXPECT_EQ(s().format.DisplayDigits, 2);
    runSection("dsp 13");
    EXPECT_EQ(said(), Said{"Out of Range!: 0 to 12 only for this function"});
}

TEST_F(Words, EachFormatShowsItsNumbersOnTheTape) {
    runSection("fix\n12345.678\n0.00012\nsci\n12345.678\n0.00012\neng\n12345.678\n0.00012\ndsp 1\n12345.678");
    EXPECT_EQ(tape(), (std::vector<std::string>{"12,345.68", "1.20e-04", "1.23e+04", "1.20e-04", "12.35e+03",
                                                "120.00e-06", "12.3e+03"}));
}

TEST_F(Words, KillLeavesProgramMode) {
    runSection("5\nkill");
    EXPECT_FALSE(s().modes.ProgramMode);
    EXPECT_EQ(s().modes.ActiveKeypad, Keypad::Standard);
    EXPECT_EQ(caption(0), "1/x");
    EXPECT_EQ(x(), "5");
}

TEST_F(Words, ResetClearsStackAndVariablesAndStaysInTheMode) {
    runSection("aa = 4\n5\nsto 3\nreset\n8");
    EXPECT_TRUE(s().modes.ProgramMode);
    EXPECT_EQ(variable("aa"), 0.0);
    EXPECT_EQ(s().stack.depth(), 1);
    EXPECT_EQ(x(), "8");
    EXPECT_EQ(reg(3), "5");
    EXPECT_EQ(tape().size(), 1U);
}

TEST_F(Words, ResetOneRunsInitAndLeavesTheMode) {
    loadProgram("# aa\nlbl init\naa = 3\nend\nlbl a\naa = 4\nreset 1\nend\n");
    run();
    EXPECT_FALSE(s().modes.ProgramMode);
    EXPECT_EQ(variable("aa"), 3.0);
}

TEST_F(Words, WhatAProgramLeavesOnTheStackCanBeDropped) {
    runSection("pi\npi");
    EXPECT_TRUE(form().cmdDown.enabled);
    EXPECT_TRUE(form().cmdXchgY.enabled);
    EXPECT_TRUE(form().cmdLastx.enabled);
    choose(form().cmdDown);
    EXPECT_EQ(s().stack.depth(), 1);
}

TEST_F(Words, EveryOtherModifierOfResetResetsInTheMode) {
    for (const std::uint8_t mask : std::initializer_list<std::uint8_t>{1, 3, 5, 6}) {
        SCOPED_TRACE(int{mask});
        startAnew();
        loadProgram("# aa\nlbl init\naa = 3\nend\nlbl a\naa = 4\n5\n6\nend\n");
        run();
        clickWith(mask, form().cmdReset);
        EXPECT_FALSE(s().modes.ProgramMode);
        EXPECT_EQ(variable("aa"), 3.0);
    }
}

TEST_F(Words, AFormatComesBackWhenTheRunEndsOnTheBinaryKeypad) {
    for (const std::string word : {"kill", "reset 1"}) {
        SCOPED_TRACE(word);
        startAnew();
        type("8");
        choose(form().cmdDigits);
        choose(form().mnuEngBinary);
        loadProgram("# aa\nlbl init\nend\nlbl a\ndsp 4\nsci\n5\n" + word + "\nend\n");
        run();
        EXPECT_EQ(s().format.WordSize, 64);
        choose(form().mnuStd);
        EXPECT_EQ(s().format.Mode, DisplayMode::Fixed);
        EXPECT_EQ(s().format.DisplayDigits, 8);
        EXPECT_TRUE(platform.boxes.empty());
    }
}

TEST_F(Words, ResetInsideInitRunsOnce) {
    for (const std::string word : {"reset", "reset 1", "aset"}) {
        SCOPED_TRACE(word);
        startAnew();
        loadProgram("# aa bb\nlbl init\nbb = 1\n" + word + "\naa = aa 1 +\nend\n");
        EXPECT_EQ(s().modes.ProgramMode, word != "reset 1");
        EXPECT_EQ(variable("aa"), word == "reset 1" ? 2.0 : 1.0);
    }
}

TEST_F(Words, AsetClearsTheRegistersToo) {
    runSection("5\nsto 3\naset\n8");
    EXPECT_TRUE(s().modes.ProgramMode);
    EXPECT_EQ(reg(3), "0");
    EXPECT_EQ(x(), "8");
}

TEST_F(Words, TheResetKeyRunsInitAndLeavesTheMode) {
    loadProgram("# aa\nlbl init\naa = 3\nend\nlbl a\naa = 4\nend\n");
    run();
    choose(form().cmdReset);
    EXPECT_FALSE(s().modes.ProgramMode);
    EXPECT_EQ(variable("aa"), 3.0);
}

TEST(Operators, AreToldByTheirFirstCharacters) {
    EXPECT_EQ(ClassifyOperator("<=").text, "<");
    EXPECT_EQ(ClassifyOperator(">=").text, ">");
    EXPECT_EQ(ClassifyOperator("<>").text, "<>");
    EXPECT_EQ(ClassifyOperator(">>").text, ">>");
    EXPECT_EQ(ClassifyOperator("==").text, "=");
    EXPECT_EQ(ClassifyOperator("then").kind, OperatorClass::Then);
    EXPECT_EQ(ClassifyOperator("tan").kind, OperatorClass::None);
    EXPECT_EQ(ClassifyOperator("-3").kind, OperatorClass::Math);
    EXPECT_EQ(ClassifyOperator("").kind, OperatorClass::None);
}

TEST(Statements, AreTestedInTheirOrder) {
    EXPECT_EQ(statementOf("stop"), Statement::Stop);
    EXPECT_EQ(statementOf("sto 5"), Statement::Sto);
    EXPECT_EQ(statementOf("reset1"), Statement::Reset);
    EXPECT_EQ(statementOf("resetx"), Statement::Reset);
    EXPECT_EQ(statementOf("endif"), Statement::EndIf);
    EXPECT_EQ(statementOf("ending"), Statement::None);
    EXPECT_EQ(statementOf("iffy"), Statement::If);
    EXPECT_EQ(statementOf("xx"), Statement::None);
    EXPECT_EQ(statementOf("fixed"), Statement::None);
    EXPECT_EQ(statementOf("pauses"), Statement::Pause);
    EXPECT_EQ(statementRows().size(), 27U);
}

}  // namespace
}  // namespace tallyforge
