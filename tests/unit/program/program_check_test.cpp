// SPDX-License-Identifier: GPL-3.0-or-later
//
// Mistakes of program writers, found without a run.
#include "program/program_check.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tallyforge {
namespace {

/// The findings, a text each: the line, a blank, what it says.
std::vector<std::string> found(std::string_view program) {
    std::vector<std::string> all;
    for (const ProgramFinding& finding : checkProgram(program)) {
        all.push_back(std::to_string(finding.line) + " " + finding.text);
    }
    return all;
}

using Findings = std::vector<std::string>;

/// A program whose section "a" is `body`.
Findings foundIn(const std::string& body) {
    return found("# nn mm\nlbl init\nend\nlbl a\n" + body + "\nend\n");
}

TEST(ProgramCheck, AProgramInOrderHasNoFindings) {
    EXPECT_EQ(found("free text\n# nn mm\n\nlbl init\nname a area\nend\n' a comment\nlbl area\nnn = x\ndrop\n"
                    "mm = nn sqr pi *\nif nn sqr > 10 then\numsg\n\\\\one { \\two } #_\n lbl nowhere\nendif\n"
                    "gsb help\nrcl 5\nsto5\nmm\nmm nn +\nend\nlbl help\nglb help\nend\n"),
              Findings{});
}

TEST(ProgramCheck, UnknownWordsPushZero) {
    EXPECT_EQ(foundIn("squr"), Findings{"5 unknown word \"squr\": it pushes 0"});
    EXPECT_EQ(foundIn("nn = 5 squr"), Findings{"5 unknown word \"squr\": it pushes 0"});
    EXPECT_EQ(foundIn("nn sqr"), Findings{"5 unknown word \"nn sqr\": it pushes 0"}) << "a line of two words";
    EXPECT_EQ(foundIn("nn=3"), Findings{"5 unknown word \"nn=3\": it pushes 0"});
    EXPECT_EQ(foundIn("if qq = 3 then\nendif"), Findings{"5 unknown word \"qq\": it pushes 0"});
    EXPECT_EQ(foundIn("3abc"), Findings{"5 \"3abc\" is no number"});
    EXPECT_EQ(foundIn("sf-x"), Findings{"5 \"sf-x\" is no number"});
}

TEST(ProgramCheck, WhatIsNotDeclared) {
    EXPECT_EQ(foundIn("qq = 3"), Findings{"5 variable \"qq\" is not declared"});
    EXPECT_EQ(foundIn("3 nn +"), Findings{"5 \"3\" is no variable: a line of three words or more begins with one"});
    EXPECT_EQ(found("lbl a\nend\nlbl b\nend\n"),
              Findings{"1 no declaration: a line that begins with \"#\" stands before the first label"});
    EXPECT_EQ(found("# nn\n1\n2\n"), Findings{"3 no label: a program has sections, each from \"lbl\" to \"end\""});
    EXPECT_EQ(found(""), Findings{"1 no label: a program has sections, each from \"lbl\" to \"end\""});
}

TEST(ProgramCheck, NamesThatAreWords) {
    EXPECT_EQ(
        found("# stock sin xx iffy x b 5a 0a then _q\nlbl a\nend\n \n"),
        (Findings{"1 name \"stock\" is taken for the word \"sto\"", "1 name \"sin\" is taken for the word of that name",
                  "1 name \"iffy\" is taken for the word \"if\"", "1 name \"x\" is taken for the word \"x\"",
                  "1 name \"b\" is too short: two characters at least", "1 name \"5a\" is taken for a number",
                  "1 name \"then\" is taken for the word of that name", "1 name \"_q\" does not begin with a letter"}));
}

TEST(ProgramCheck, LabelsNeverCalledOrMissing) {
    EXPECT_EQ(foundIn("gsb nowhere"), Findings{"5 label \"nowhere\" is missing"});
    EXPECT_EQ(foundIn("glb"), Findings{"5 label \"\" is missing"});
    EXPECT_EQ(found("#\nlbl init\nend\nlbl far\nend\n\n"), Findings{"4 label \"far\" is never called"});
    EXPECT_EQ(found("#\nlbl init\nname b area\nend\nlbl b\nend\nlbl area\nend\n"),
              Findings{"5 label \"b\" is never called"})
        << "its key has another name";
    EXPECT_EQ(found("#\nlbl a\nend\nlbl u\nend\nlbl a\nend\n"),
              (Findings{"4 label \"u\" is never called", "6 label \"a\" is there already, in line 2"}));
    EXPECT_EQ(found("#\nlbl a\nend\nlbl b"),
              (Findings{"4 label \"b\" stands on the last line and is not found", "4 section without an \"end\""}));
}

TEST(ProgramCheck, AMissingEndBehindAnEndif) {
    EXPECT_EQ(found("# nn\nlbl init\nend\nlbl a\nif nn = 1 then\n5\nendif\nlbl b\nend\n"),
              Findings{"4 section without an \"end\"; an \"endif\" is none"});
    EXPECT_EQ(found("# nn\nlbl init\nend\nlbl a\n5\n\n"), Findings{"4 section without an \"end\""});
    EXPECT_EQ(foundIn("if nn = 1 then\n5"), Findings{"5 \"if\" without an \"endif\""});
}

TEST(ProgramCheck, ComparisonsThatMeanSomethingElse) {
    const auto compared = [](const std::string& test) { return foundIn("if nn " + test + " then\nendif"); };
    for (const char* const right : {"= mm", "<> 0", "< 5", "> mm 1 +", "= 0"}) {
        EXPECT_EQ(compared(right), Findings{}) << right;
    }
    EXPECT_EQ(compared("<= 5"), Findings{"5 \"<=\" means \"<\""});
    EXPECT_EQ(compared(">= 5"), Findings{"5 \">=\" means \">\""});
    EXPECT_EQ(compared("== 5"), Findings{"5 \"==\" means \"=\""});
    EXPECT_EQ(compared("=> 5"), Findings{"5 \"=>\" means \"=\""});
    EXPECT_EQ(compared(">> 5"), Findings{"5 \">>\" is no comparison"});
    EXPECT_EQ(compared(""), Findings{"5 \"if\" without a comparison"});
    EXPECT_EQ(compared("> 0"), Findings{"5 \">\" holds of 0 and 0, too: ask for \"<> 0\" first"});
    EXPECT_EQ(foundIn("if nn <> 0 then\nif nn > 0 then\nendif\nif mm < 0 then\nendif\nendif"),
              Findings{"8 \"<\" holds of 0 and 0, too: ask for \"<> 0\" first"});
    EXPECT_EQ(foundIn("if nn <> 0 then\nendif\nif nn > 0 then\nendif"),
              Findings{"7 \">\" holds of 0 and 0, too: ask for \"<> 0\" first"});
}

TEST(ProgramCheck, AMessageWithoutItsText) {
    EXPECT_EQ(foundIn("umsg\n5"), Findings{"5 no text: a line that begins with \"\\\" stands behind \"umsg\""});
    EXPECT_EQ(foundIn("name a"), Findings{"5 \"name\" wants a key and a caption"});
}

}  // namespace
}  // namespace tallyforge
