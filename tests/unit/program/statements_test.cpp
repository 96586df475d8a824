// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/program_fixture.h"

#include "program/program_faults.h"

#include <chrono>

namespace tallyforge {
namespace {

using ProgramStatements = ProgramAtHand;

TEST_F(ProgramStatements, StopSaysWhereAndEndsTheRun) {
    runSection("5\nstop\n6");
    EXPECT_EQ(said(), Said{"Attention!: Stop Statement encountered at Line 6"});
    EXPECT_EQ(platform.boxes.front().kind, BoxKind::Info);
    EXPECT_EQ(x(), "5");
}

TEST_F(ProgramStatements, AMessageShowsItsText) {
    runSection("umsg\n\\One Line\\and Another");
    EXPECT_EQ(said(), Said{"Attention!: One Line\nand Another"});
    EXPECT_EQ(platform.boxes.front().kind, BoxKind::Info);
}

TEST_F(ProgramStatements, AMessageGoesOnInTheNextLine) {
    runSection("umsg\n\\Area is large#_\n   \\Next key#_\n please");
    EXPECT_EQ(said(), Said{"Attention!: Area is large\nNext keyplease"});
}

TEST_F(ProgramStatements, AMessageShowsXAndEveryY) {
    runSection("7\n1234.567\numsg\n\\\\} X { \\Y } and }");
    EXPECT_EQ(said(), Said{"Attention!: } X 1,234.57\nY 7.00 and 7.00"});
}

TEST_F(ProgramStatements, KeepsShowingOnlyTheLastLineOfALongTextWithoutANumber) {
    runSection("umsg\n\\\\First#_\n second } \\end");
    EXPECT_EQ(said(), Said{"Attention!: econd } \nend"});
    runSection("umsg\n\\\\Alone");
    EXPECT_EQ(said(), Said{"Attention!: \nAlone"});
}

TEST_F(ProgramStatements, AMessageMustBeginWithABackslash) {
    runSection("umsg\nHello\n6");
    EXPECT_EQ(said(), Said{"Program Error!: Error 30; First character not \"\\\"! In program near line 6"});
    EXPECT_EQ(s().stack.depth(), 0);
}

TEST_F(ProgramStatements, FlagsAreSetClearedAndTested) {
    runSection("aa = 1\nsf-3\ntf-3\naa = 2\ncf-3\ntf-3\naa = 3\nbb = 4");
    EXPECT_EQ(variable("aa"), 2.0);
    EXPECT_EQ(variable("bb"), 4.0);
    EXPECT_FALSE(programState().ProgramFlags.at(3));
}

TEST_F(ProgramStatements, ATestOfAFlagFromElevenOnClearsIt) {
    runSection("sf-10\nsf-11\ntf-10\ntf-11\naa = 2");
    EXPECT_TRUE(programState().ProgramFlags.at(10));
    EXPECT_FALSE(programState().ProgramFlags.at(11));
    EXPECT_EQ(variable("aa"), 2.0);
}

TEST_F(ProgramStatements, AFlagBeyondNineteenCountsAsSetAndIsNotStored) {
    runSection("sf-20\ncf-20\ntf-20\naa = 2");
    EXPECT_EQ(said(), Said{});
    EXPECT_EQ(variable("aa"), 2.0);
}

TEST_F(ProgramStatements, ATestOfAClearFlagSkipsACommentIfThatComesNext) {
    runSection("tf-5\n' skipped\naa = 2");
    EXPECT_EQ(variable("aa"), 2.0);
}

TEST_F(ProgramStatements, FlagNineteenTellsThatDigitsWereKeyed) {
    loadProgram("# aa\nlbl a\naa = 1\ndrop\ntf-19\naa = x\nend\n");
    run();
    EXPECT_EQ(variable("aa"), 1.0);
    choose(form().cmdNumPad.at(9));
    run();
    EXPECT_EQ(variable("aa"), 9.0);
    run();
    EXPECT_EQ(variable("aa"), 1.0) << "the test has cleared it";
}

TEST_F(ProgramStatements, AFlagThatIsNoNumberIsAnError) {
    runSection("sf-a");
    EXPECT_EQ(said(), Said{"Program Error!: Error 13 (Type mismatch) in program near line 5"});
}

TEST_F(ProgramStatements, PauseOnAClockThatStandsReturnsAtOnce) {
    const auto before = std::chrono::steady_clock::now();
    runSection("5\npause 3.5\npause 1e9\n6");
    EXPECT_LT(std::chrono::steady_clock::now() - before, std::chrono::seconds(3));
    EXPECT_EQ(x(), "6");
    runSection("pause long");
    EXPECT_EQ(said(), Said{"Program Error!: Error 13 (Type mismatch) in program near line 5"});
}

TEST_F(ProgramStatements, NamesGoOnKeysAndAreLabels) {
    loadProgram("#\nlbl init\nname b double it\nname a Half\nend\nlbl half\n2\n/\nend\nlbl double it\n2\n*\nend\n");
    EXPECT_EQ(caption(kKeyA), "half");
    EXPECT_EQ(caption(kKeyB), "double it");
    enter("8");
    run(kKeyA);
    EXPECT_EQ(x(), "4");
    run(kKeyB);
    EXPECT_EQ(x(), "8");
}

TEST_F(ProgramStatements, ANameOfOneSmallLetterIsRefused) {
    runSection("name b z");
    EXPECT_EQ(said(), Said{"Program Error!: Error 4; PKP button names beginning with a letter must be greater than 1 "
                           "character long! \n\n\"name b z\" near line 5"});
    runSection("name b 7");
    EXPECT_EQ(said(), Said{});
    EXPECT_EQ(caption(kKeyB), "7");
}

TEST_F(ProgramStatements, ANameWithoutACaptionIsRefused) {
    for (const std::string line : {"name b", "name"}) {
        SCOPED_TRACE(line);
        runSection("5\n" + line + "\n6");
        EXPECT_EQ(said(), Said{"Program Error!: Error 5 (Invalid argument) in program near line 6"});
        EXPECT_EQ(caption(kKeyB), "B");
        EXPECT_EQ(x(), "5") << "the run is over";
    }
}

TEST_F(ProgramStatements, BoldMarksAreSetAndCleared) {
    loadProgram(
        "#\nlbl init\nname b second\nend\nlbl a\nbold second\ncbld a\nend\nlbl c\nbold b\ncbld second\nbold d\n"
        "end\n");
    run();
    EXPECT_TRUE(bold(kKeyB));
    EXPECT_FALSE(bold(kKeyA)) << "cbld finds the letter in capitals";
    run(13);
    EXPECT_FALSE(bold(kKeyB));
    EXPECT_FALSE(bold(12)) << "bold reaches renamed keys only";
}

TEST_F(ProgramStatements, TracOneListsTheVariables) {
    runSection("aa = 5\ncc = 7\ndrop\ndrop\ntrac 1");
    EXPECT_EQ(tape().at(tape().size() - 2), " aa-               5.00");
    EXPECT_EQ(tape().back(), " cc-               7.00");
}

TEST_F(ProgramStatements, KeepsTheNumberOfTheLineDisturbedBehindTracOne) {
    runSection("trac 1\n3abc");
    EXPECT_EQ(said(), Said{"Program Error!: Error 13 (Type mismatch) in program near line 5"});
    runSection("5\n6\n7\n8\ntrac 1\n3abc");
    EXPECT_EQ(said(), Said{"Program Error!: Error 13 (Type mismatch) in program near line 5"})
        << "four names are counted, and then a line";
}

TEST_F(ProgramStatements, TracWithAnotherOperandIsAnError) {
    runSection("trac 2");
    EXPECT_EQ(said(), Said{"Program Error!: Error 33 illegal character near line 5"});
}

TEST(FaultTexts, AreWhatTheBoxSays) {
    EXPECT_EQ(faultText(6, "", 12), "Error 6 (Overflow) in program near line 12");
    EXPECT_EQ(faultText(11, "", 12), "Error 11");
    EXPECT_EQ(faultText(29, "", 12), "Error 29; Numeric expression requires an '=' as the second object in the line!");
    EXPECT_EQ(faultText(32, "; Label A not assigned!", 12), "Error 32; Label A not assigned!");
    EXPECT_EQ(faultText(76, "", 12), "Error 76 - No program found!");
    EXPECT_EQ(loadFaultText(76), "Error 76 (Path not found)");
    EXPECT_EQ(faultText(13, "", 12), "Error 13 (Type mismatch) in program near line 12");
    EXPECT_EQ(loadFaultText(15),
              "Error 15: It appears there is an illegal statement near\n the start of the program, check for "
              "misspelling!");
    EXPECT_EQ(loadFaultText(62), "Error 62 (Input past end of file)");
    EXPECT_EQ(loadFaultText(75), "Error 75 (Path or file access error)");
}

}  // namespace
}  // namespace tallyforge
