// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/program_fixture.h"

namespace tallyforge {
namespace {

using Interpreter = ProgramAtHand;

TEST_F(Interpreter, AnOpenEntryIsCommittedFirst) {
    loadProgram("#\nlbl a\nx\n*\nend\n");
    type("7");
    run();
    EXPECT_EQ(x(), "49");
}

TEST_F(Interpreter, ARunLeavesTheTapeOfTheKeys) {
    runSection("3\n4\n+");
    EXPECT_EQ(tape(), (std::vector<std::string>{"3.00", "4.00", "+                  7.00"}));
    EXPECT_EQ(x(), "7");
    EXPECT_EQ(s().stack.depth(), 1);
}

TEST_F(Interpreter, AnAssignmentStoresAfterEachWordAndLeavesItsResult) {
    runSection("aa = 3 4 +");
    EXPECT_EQ(variable("aa"), 7.0);
    EXPECT_EQ(x(), "7");
}

TEST_F(Interpreter, AnEqualSignMustStandAlone) {
    runSection("aa=3");
    EXPECT_EQ(variable("aa"), 0.0);
    EXPECT_EQ(x(), "0");
}

TEST_F(Interpreter, AnExpressionComputesAndStoresNothing) {
    runSection("bb = 2\naa = 5\naa bb +");
    EXPECT_EQ(x(), "7");
    EXPECT_EQ(variable("aa"), 5.0);
}

TEST_F(Interpreter, KeepsStoringAnExpressionFromALoadToTheFirstAssignment) {
    runSection("aa 3 4 5 +");
    EXPECT_EQ(variable("aa"), 9.0);
    EXPECT_EQ(x(), "9");
    EXPECT_EQ(s().stack.depth(), 1) << "the second word is not looked at";
    run();
    EXPECT_EQ(s().stack.depth(), 2) << "still so in the next run";
}

TEST_F(Interpreter, ANameGivesItsValueAndAnUnknownWordZero) {
    runSection("aa = 6\naa\nfoo");
    EXPECT_EQ(element(1), "6");
    EXPECT_EQ(x(), "0");
    EXPECT_EQ(said(), Said{});
}

TEST_F(Interpreter, RclTakesTheNextWordAndStoMustBeOneWord) {
    runSection("42\nsto 5\n17\nsto6\naa = rcl 5 rcl6 +\nbb = 8 sto7 chs");
    EXPECT_EQ(variable("aa"), 59.0);
    EXPECT_EQ(reg(5), "42");
    EXPECT_EQ(reg(6), "17");
    EXPECT_EQ(reg(7), "8");
    EXPECT_EQ(variable("bb"), -8.0);
    EXPECT_EQ(platform.sounds, 0) << "no click in Program mode";
}

TEST_F(Interpreter, StoInAnAssignmentIsNotJoinedWithItsNumber) {
    loadProgram("# aa\nlbl a\naa = 8 sto 3\nend\n");
    run();
    ASSERT_EQ(platform.inputs.size(), 1U) << "register 0 is a register by name";
    EXPECT_EQ(platform.inputs.front().title, "Save to Named Register");
    EXPECT_EQ(variable("aa"), 3.0);
}

TEST_F(Interpreter, AnIfRunsItsBlockOnlyWhereItHolds) {
    runSection("aa = 2\nif 3 > aa then\nbb = 1\nendif\ncc = 5\nif 3 < aa then\nbb = 9\nendif\ncc = cc 1 +");
    EXPECT_EQ(variable("bb"), 1.0);
    EXPECT_EQ(variable("cc"), 6.0);
    EXPECT_EQ(said(), Said{});
}

TEST_F(Interpreter, KeepsLessOrEqualAsLess) {
    const auto holds = [&](const std::string& test) {
        runSection("aa = 0\nif " + test + " then\naa = 1\nendif");
        EXPECT_EQ(said(), Said{});
        return variable("aa") == 1.0;
    };
    EXPECT_TRUE(holds("2 <= 3"));
    EXPECT_FALSE(holds("3 <= 3"));
    EXPECT_FALSE(holds("4 <= 3"));
    EXPECT_TRUE(holds("3 >= 2"));
    EXPECT_FALSE(holds("3 >= 3"));
    EXPECT_FALSE(holds("2 >= 3"));
}

TEST_F(Interpreter, BothSidesOfAnIfAreTakenOffTheStack) {
    runSection("7\nif 1 2 + = 3 then\nendif");
    EXPECT_EQ(x(), "7");
    EXPECT_EQ(s().stack.depth(), 1);
}

TEST_F(Interpreter, RclAndStoAreJoinedInAnIf) {
    runSection("42\nsto 5\naa = 1\nif rcl 5 = 42 then\naa = 2\nendif");
    EXPECT_EQ(variable("aa"), 2.0);
}

TEST_F(Interpreter, WhatStandsBehindThenIsIgnored) {
    runSection("aa = 1\nif 1 = 1 then 8 9 +\naa = 2\nendif");
    EXPECT_EQ(variable("aa"), 2.0);
    EXPECT_EQ(s().stack.depth(), 2);
}

TEST_F(Interpreter, ArithmeticDoesNotEndTheLeftSideOfAnIf) {
    runSection("aa = 1\nif 6 2 / 3 - 1 ^ -2 * = 0 then\naa = 2\nendif");
    EXPECT_EQ(variable("aa"), 2.0);
}

TEST_F(Interpreter, ANestedIfInAFalseBlockIsSkippedWithItsOwnEndif) {
    runSection("aa = 1\nif 1 > 2\nif 1 = 1\naa = 5\nendif\naa = 6\nendif\nbb = 3");
    EXPECT_EQ(variable("aa"), 1.0);
    EXPECT_EQ(variable("bb"), 3.0);
}

TEST_F(Interpreter, IfsNest) {
    runSection("aa = 1\nif 2 > 1\nif 3 > 2\nif 4 > 3\naa = 5\nendif\nbb = 6\nendif\nendif");
    EXPECT_EQ(variable("aa"), 5.0);
    EXPECT_EQ(variable("bb"), 6.0);
}

TEST_F(Interpreter, ACommentBehindAnIfIsPassedOver) {
    runSection("if 3 > 2\n' a comment\n\n8\nendif");
    EXPECT_EQ(x(), "8");
}

TEST_F(Interpreter, TheLineBehindAnIfThatBeginsWithANameMayBeAnExpression) {
    runSection("aa = 4\nif 3 > 2\naa sqr\nendif");
    EXPECT_EQ(x(), "16");
    EXPECT_EQ(variable("aa"), 4.0);
}

TEST_F(Interpreter, AfterATestOfTwoWordsALineWithANameIsLeftOut) {
    runSection("aa = 4\n3\n3\nif =\naa sqr\nendif");
    EXPECT_EQ(s().stack.depth(), 1);
    EXPECT_EQ(x(), "4");
}

TEST_F(Interpreter, WithoutVariablesTheLineBehindAnIfIsAWord) {
    loadProgram("junk\nlbl a\nif 3 > 2\nxreg\nendif\nend\n");
    choose(form().cmdFunctions.at(kKeyA));
    EXPECT_EQ(x(), "0");
    EXPECT_EQ(s().stack.depth(), 1);
}

TEST_F(Interpreter, ASkippedBlockKnowsTextsThatGoOn) {
    runSection("aa = 1\nif 1 > 2\numsg\n\\text#_\nif not an if\nendif\nbb = 3");
    EXPECT_EQ(variable("bb"), 3.0);
    EXPECT_EQ(said(), Said{});
}

TEST_F(Interpreter, AnUnknownOperatorIsAnOverflow) {
    for (const std::string test : {"if 3 >> 2", "if 3 then", "if 3 2"}) {
        SCOPED_TRACE(test);
        runSection("aa = 1\n" + test + "\nendif");
        EXPECT_EQ(said(), Said{"Program Error!: Error 6 (Overflow) in program near line 6"});
    }
}

TEST_F(Interpreter, GsbComesBackBehindItselfAndGlbDoesNot) {
    loadProgram(
        "# aa bb\nlbl a\naa = 1\ngsb sub\nbb = 1\nglb out\naa = 9\nend\nlbl sub\naa = aa 1 +\nend\nlbl out\n"
        "bb = bb 5 +\nend\n");
    run();
    EXPECT_EQ(variable("aa"), 2.0);
    EXPECT_EQ(variable("bb"), 6.0);
}

TEST_F(Interpreter, TheEndBehindAGlbIsTheEndOfTheSubroutine) {
    loadProgram(
        "# aa\nlbl a\naa = 1\ngsb sub\naa = aa 10 *\nend\nlbl sub\nglb deep\nend\nlbl deep\naa = aa 1 +\nend\n");
    run();
    EXPECT_EQ(variable("aa"), 20.0);
}

TEST_F(Interpreter, NineCallsNestAndTheTenthEndsTheRun) {
    std::string program = "# nn\nlbl a\nnn = 0\ngsb s1\nend\n";
    for (int i = 1; i <= 8; ++i) {
        program += "lbl s" + std::to_string(i) + "\nnn = nn 1 +\ngsb s" + std::to_string(i + 1) + "\nend\n";
    }
    loadProgram(program + "lbl s9\nnn = nn 1 +\nend\n");
    run();
    EXPECT_EQ(variable("nn"), 9.0);
    EXPECT_EQ(said(), Said{});
    loadProgram(program + "lbl s9\nnn = nn 1 +\ngsb s10\nend\nlbl s10\nnn = 99\nend\n");
    run();
    EXPECT_EQ(variable("nn"), 9.0);
    EXPECT_EQ(said(), Said{"Program Error!: Error 28 (Out of stack space) in program near line 40"});
}

TEST_F(Interpreter, TheFirstOfTwoSectionsWithOneLabelRuns) {
    loadProgram("#\nlbl a\n1\nend\nlbl a\n2\nend\n");
    run();
    EXPECT_EQ(x(), "1");
}

TEST_F(Interpreter, ALabelThatIsMissingIsNamedAndTheKeyIsNoLongerBold) {
    loadProgram("#\nlbl a\ngsb nowhere\nend\n");
    run();
    EXPECT_EQ(said(), Said{"Program Error!: Error 32; Label NOWHERE not assigned!"});
    EXPECT_FALSE(bold(kKeyA));
    forget();
    run(kKeyB);
    EXPECT_EQ(said(), Said{"Program Error!: Error 32; Label B not assigned!"});
    EXPECT_FALSE(bold(kKeyB));
}

TEST_F(Interpreter, KeepsALabelOnTheLastLineOfTheFileUnfound) {
    loadProgram("#\nlbl a\nend\n'end\nend\nlbl b");
    run(kKeyB);
    EXPECT_EQ(said(), Said{"Program Error!: Error 32; Label B not assigned!"});
}

TEST_F(Interpreter, AFlowIntoALabelPushesZero) {
    loadProgram("#\nlbl a\n5\nlbl b\n+\nend\nend\n");
    run();
    EXPECT_EQ(tape().size(), 3U);
    EXPECT_EQ(x(), "5");
}

TEST_F(Interpreter, ASectionThatRunsOffTheFileSaysSo) {
    loadProgram("#\n'endless\nend\nlbl a\n5\n");
    run();
    EXPECT_EQ(said(), Said{"Program Error!: Error 62 (Input past end of file) in program near line 5"});
    EXPECT_EQ(x(), "5") << "what was done stays";
}

TEST_F(Interpreter, CountsOfOpeningAndClosingWordsAreCheckedFirst) {
    runSection("8\nif 1 = 1");
    EXPECT_EQ(said(), Said{"If without endif: There is a missing endif statement!"});
    EXPECT_EQ(platform.boxes.front().kind, BoxKind::Stop);
    EXPECT_EQ(s().stack.depth(), 0);
    loadProgram("#\nlbl a\n8\nlbl b\nlbl c\nend\n");
    run();
    EXPECT_EQ(said(), Said{"lbl without end: There is more lbl statements then end statements!"});
    EXPECT_EQ(s().stack.depth(), 0);
}

TEST_F(Interpreter, AnEndifCountsAsAnEnd) {
    loadProgram("#\nlbl a\nif 1 = 1\n8\nendif\nlbl b\nend\n");
    run();
    EXPECT_EQ(said(), Said{});
    EXPECT_EQ(x(), "0") << "the flow runs into lbl b, which is a word";
}

TEST_F(Interpreter, ALineOfThreeWordsWithoutANameIsAnOverflow) {
    runSection("aa = 1\n3 4 +");
    EXPECT_EQ(said(), Said{"Program Error!: Error 6 (Overflow) in program near line 6"});
}

TEST_F(Interpreter, KeepsTakingTheFirstSuchLineOfAProgramForOneWord) {
    runSection("foo 4 +\nbar 4 +");
    EXPECT_EQ(tape(), (std::vector<std::string>{"0.00"}));
    EXPECT_EQ(said(), Said{"Program Error!: Error 6 (Overflow) in program near line 6"});
}

TEST_F(Interpreter, AnAssignmentToAnUndeclaredNameIsNamed) {
    runSection("dd = 4");
    EXPECT_EQ(said(), Said{"Program Error!: Error 21 Variable \"dd\" not declared near line 5"});
    EXPECT_TRUE(programState().variableMissing);
}

TEST_F(Interpreter, AWordThatOnlyBeginsAsANumberIsAnError) {
    runSection("3abc");
    EXPECT_EQ(said(), Said{"Program Error!: Error 13 (Type mismatch) in program near line 5"});
    runSection("0abc");
    EXPECT_EQ(said(), Said{});
    EXPECT_EQ(x(), "0");
    runSection("1e999");
    EXPECT_EQ(said(), Said{"Program Error!: Error 6 (Overflow) in program near line 5"});
}

TEST_F(Interpreter, NumbersHaveSignsPointsAndExponents) {
    runSection("-1.5\n+2\n.5\n1e3\n2.5e-3\n0\n0.00\n-0");
    std::vector<std::string> stack;
    for (int i = 1; i <= s().stack.depth(); ++i) {
        stack.push_back(calc().text(s().stack.slot(i)));
    }
    EXPECT_EQ(stack, (std::vector<std::string>{"-1.5", "2", "0.5", "1000", "0.0025", "0", "0", "0"}));
}

TEST_F(Interpreter, NumbersHaveAPointWhateverTheLocale) {
    platform.decimal = ',';
    start();
    runSection("1.5\n2\n*");
    EXPECT_EQ(x(), "3");
    runSection("1.5");
    EXPECT_EQ(x(), "1,5");
}

TEST_F(Interpreter, XCarriesFifteenDigitsAndTheStackAllOfThem) {
    runSection("aa = 1 3 /");
    EXPECT_EQ(variable("aa"), 0.333333333333333);
    EXPECT_EQ(s().stack.Xreg.number('.'), 0.333333333333333);
    EXPECT_EQ(s().stack.slot(1).number('.'), 1.0 / 3.0);
}

TEST_F(Interpreter, ACopyOfXAtTheStartKeepsAllItsDigits) {
    loadProgram("#\nlbl a\nx\nend\n");
    enter("3");
    choose(form().cmdF11);
    choose(form().cmdFunctions.at(0));
    choose(form().cmdF11);
    run();
    EXPECT_EQ(s().stack.slot(2).number('.'), 1.0 / 3.0);
}

TEST_F(Interpreter, AFunctionWorksOnTheElementOnTheStackWithAllItsDigits) {
    runSection("1\n3\n/\n3\n*");
    EXPECT_EQ(s().stack.slot(1).number('.'), 1.0);
}

TEST_F(Interpreter, AfterAKeyThatRefusedANumberOfABaseTheRunGoesOn) {
    s().memory.Registers.at(3) = "#FFh";
    runSection("rcl 3\nsin\ntf-1\nbb = 4\naa = 2");
    EXPECT_EQ(said(), Said{});
    EXPECT_EQ(variable("aa"), 2.0);
    EXPECT_EQ(element(1), "#FFh");
    runSection("rcl 3\nsin");
    EXPECT_EQ(x(), "#FFh") << "a number of a base stays as it is";
}

TEST_F(Interpreter, AFailingKeySaysWhatItSaysUnderTheProgramsTitle) {
    runSection("0\n1/x\n7");
    EXPECT_EQ(said(), Said{"Program  Error!: Division by zero - be sure all variables are defined!"});
    EXPECT_EQ(x(), "7");
}

TEST_F(Interpreter, AProgramThatCannotBeFoundIsSaidSo) {
    choose(form().cmdF11);
    run();
    EXPECT_EQ(said(), Said{"Program Error!: Error 76 - No program found!"});
}

TEST_F(Interpreter, AFileThatVanishesIsMissedAtTheNextKey) {
    runSection("5");
    std::filesystem::remove(platform.folder / "programs/test.rec");
    run();
    EXPECT_EQ(said(), Said{"Program Error!: Error 76 - No program found!"});
    EXPECT_EQ(s().stack.depth(), 1);
}

/// A desktop on which the program's file goes while a box is up.
class Vanishing : public TestPlatform {
public:
    Vanishing() {
        std::filesystem::create_directories(file.parent_path());
        std::ofstream(file) << "# aa\nlbl init\nend\nlbl a\naa = 1\numsg\n\\gone\ngsb sub\naa = aa 10 *\nend\n"
                               "lbl sub\naa = aa 2 +\nif aa < 9\nglb sub\nendif\nend\n";
        texts.push_back("test");
    }
    Answer messageBox(const MessageBox& box) override {
        if (box.title == moment) {
            std::filesystem::remove(file);
        }
        return TestPlatform::messageBox(box);
    }
    const std::filesystem::path file = folder / "programs/test.rec";
    std::string moment;
};

TEST(VanishingProgram, RunsToItsEndAndIsMissedAtTheNextKey) {
    Vanishing desktop;
    Calculator calculator(desktop);
    calculator.start();
    MainForm& form = calculator.engine().form;
    const auto aa = [&] { return calculator.programs().state.variables.GetProgramVariable("aa"); };
    click(form, form.mnuProgram);
    desktop.boxes.clear();
    desktop.moment = "Attention!";
    click(form, form.cmdFunctions.at(15));
    ASSERT_EQ(desktop.boxes.size(), 1U);
    EXPECT_EQ(desktop.boxes.front().text, "gone");
    EXPECT_FALSE(std::filesystem::exists(desktop.file));
    EXPECT_EQ(aa(), 90.0) << "calls, jumps and returns";
    click(form, form.cmdFunctions.at(15));
    ASSERT_EQ(desktop.boxes.size(), 2U);
    EXPECT_EQ(desktop.boxes.back().text, "Error 76 - No program found!");
    EXPECT_EQ(aa(), 90.0);
}

TEST(VanishingProgram, IsNotLoadedWhereItGoesWhileTheUserIsAsked) {
    Vanishing desktop;
    Calculator calculator(desktop);
    calculator.start();
    desktop.moment = "Replace file?";
    click(calculator.engine().form, calculator.engine().form.mnuProgram);
    ASSERT_EQ(desktop.boxes.size(), 2U);
    EXPECT_EQ(desktop.boxes.back().title, "Program Error!");
    EXPECT_EQ(desktop.boxes.back().text, "Error 76 (Path not found)");
    EXPECT_FALSE(calculator.engine().s.modes.ProgramMode);
}

TEST_F(Interpreter, AFileThatWasChangedCountsAtTheNextKey) {
    runSection("5");
    writeProgram("# aa\nlbl init\nend\nlbl a\n6\nend\n");
    run();
    EXPECT_EQ(x(), "6");
}

TEST_F(Interpreter, AKeyWithAModifierRunsNothing) {
    runSection("5");
    const int depth = s().stack.depth();
    clickWith(kShift, form().cmdFunctions.at(kKeyA));
    EXPECT_EQ(s().stack.depth(), depth);
    EXPECT_FALSE(form().shaShift.visible);
    EXPECT_EQ(form().focus, &form().txtXreg);
}

}  // namespace
}  // namespace tallyforge
