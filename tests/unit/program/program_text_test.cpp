// SPDX-License-Identifier: GPL-3.0-or-later
//
// How a program file is read: its characters, lines, labels and numbers.
#include "program/program_text.h"

#include "numbers/failure.h"
#include "platform/text.h"

#include <gtest/gtest.h>

#include <regex>
#include <string>
#include <vector>

namespace tallyforge {
namespace {

std::string firstLine(std::string_view file) {
    const ProgramText text(file);
    return std::string(text.count() == 0 ? "" : text.line(1).asWritten);
}

TEST(ProgramText, CharactersOfAnyLengthBecomeOneByteEach) {
    EXPECT_EQ(firstLine("5 \xC2\xB5"), "5 \xB5");
    EXPECT_EQ(firstLine("\xC2\x80\xC3\xBF."), "\x80\xFF.");
    // What has no byte stays one character.
    for (const char* character : {"\xDF\xBF", "\xE0\xA0\x80", "\xEF\xBF\xBD", "\xF0\x90\x80\x80", "\xF4\x8F\xBF\xBF"}) {
        EXPECT_EQ(firstLine(std::string(character) + "z").size(), 2U) << character;
        EXPECT_EQ(firstLine(character).size(), 1U) << character;
    }
    EXPECT_EQ(firstLine("\xEF\xBB\xBFlbl a"), "lbl a") << "a mark is no character";
}

TEST(ProgramText, AFileThatIsNoUtf8HasItsBytesAsTheyAre) {
    for (const char* bytes : {"\xC1\xBFz", "\x80z", "\xBFz", "\xF5\x80\x80\x80z", "\xE9z", "z\xC3", "z\xE2\x82",
                              "\xF0\x90\x80z", "\xC3\x7Fz", "\xC3\xC0z", "\xE2\x82\x7Fz", "\xE9t\xE9"}) {
        EXPECT_EQ(firstLine(bytes), bytes);
    }
    EXPECT_EQ(firstLine("\xC2\xB5 \xE9"), "\xC2\xB5 \xE9") << "one wrong character is enough";
}

TEST(ProgramText, LettersOfTheWestHaveACase) {
    const std::string_view capital = "AZ\xC0\xD6\xD8\xDE";
    const std::string_view small = "az\xE0\xF6\xF8\xFE";
    EXPECT_EQ(smallLetters(capital), small);
    EXPECT_EQ(capitals(small), capital);
    // Neither a letter with another case nor changed by either.
    for (const std::string_view other : {"@[`{09", "\xBF\xD7\xDF\xF7\xFF\x80\xB5"}) {
        EXPECT_EQ(smallLetters(other), other);
        EXPECT_EQ(capitals(other), other);
    }
    // A letter's case comes back.
    for (int byte = 0; byte < 256; ++byte) {
        const std::string letter(1, static_cast<char>(byte));
        EXPECT_EQ(smallLetters(capitals(smallLetters(letter))), smallLetters(letter)) << byte;
        EXPECT_EQ(capitals(smallLetters(capitals(letter))), capitals(letter)) << byte;
    }
}

TEST(ProgramText, LinesEndInAnyOfThreeWays) {
    const auto lines = [](std::string_view file) {
        const ProgramText text(file);
        std::vector<std::string> all;
        for (int line = 1; line <= text.count(); ++line) {
            all.emplace_back(text.line(line).asWritten);
        }
        return all;
    };
    using All = std::vector<std::string>;
    EXPECT_EQ(lines("a\nb\nc"), (All{"a", "b", "c"}));
    EXPECT_EQ(lines("a\r\nb\rc\n"), (All{"a", "b", "c"}));
    EXPECT_EQ(lines("\n\r\n\r\n"), (All{"", "", ""}));
    EXPECT_EQ(lines("\n\ra"), (All{"", "", "a"}));
    EXPECT_EQ(lines(""), All{});
    EXPECT_EQ(lines("\tA b\t"), All{"A b"});
}

TEST(ProgramText, BlanksAreNoWords) {
    EXPECT_EQ(withoutBlanks("  a b  "), "a b");
    EXPECT_EQ(withoutBlanks("   "), "");
    EXPECT_EQ(splitAtBlanks("  a  bc d "), (std::vector<std::string_view>{"a", "bc", "d"}));
    EXPECT_TRUE(splitAtBlanks("   ").empty());
    EXPECT_TRUE(splitAtBlanks("").empty());
}

/// The word that a line of `text` is.
ProgramWord word(const std::string& text) {
    const Variables variables;
    ProgramText program(text);
    return program.prepared(1, variables).whole;
}

TEST(ProgramText, AWordThatBeginsLikeANumberIsOneOrAMistake) {
    // The same rule as an expression: sign, digits, point, digits, exponent.
    const std::regex number(R"(^[+-]?(\d+\.?\d*|\.\d+)(e[+-]?\d+)?)");
    for (const char* text :
         {"1",   "12",  "-3",  "+4",  "1.",    ".5",    "-.5",   "1.5",  "1e5",  "1e+5", "1e-5", "1.e2", ".5e1",  "1e",
          "2e+", "3e-", "4ex", "5x",  "6..",   "7.8.9", "9e1.5", "1e5e", "0x",   "0.0q", "00",   "-0",   ".",     "-",
          "+",   "+-1", "e5",  ".e5", "1e400", "5e999", "1/x",   "2/x",  "10^x", "-.",   "+.e1", "1e05", "1e+05x"}) {
        const ProgramWord found = word(text);
        std::smatch match;
        const std::string line = text;
        const bool begins = line != "1/x" && std::regex_search(line, match, number);
        const bool whole = begins && match.length() == static_cast<long>(line.size());
        double value = 0.0;
        bool inRange = true;
        if (begins) {
            value = std::strtod(match.str().c_str(), nullptr);
            inRange = value <= 1.7976931348623157e308;
        }
        if (!begins || (!whole && inRange && value == 0.0)) {
            EXPECT_NE(found.kind, ProgramWord::Kind::Number) << text;
            EXPECT_NE(found.kind, ProgramWord::Kind::NoNumber) << text;
        } else if (whole && inRange) {
            EXPECT_EQ(found.kind, ProgramWord::Kind::Number) << text;
            EXPECT_EQ(found.number, value) << text;
            EXPECT_EQ(found.failure, 0) << text;
        } else {
            EXPECT_EQ(found.kind, ProgramWord::Kind::NoNumber) << text;
            EXPECT_EQ(found.failure, static_cast<int>(inRange ? FailureNumber::TypeMismatch : FailureNumber::Overflow))
                << text;
        }
    }
}

TEST(ProgramText, StatementsTakeTheNumberBehindThem) {
    EXPECT_EQ(word("sto 5").number, 5.0);
    EXPECT_EQ(word("sto5").number, 5.0);
    EXPECT_EQ(word("rcl   12").number, 12.0);
    EXPECT_EQ(word("sf-2").number, 2.0);
    EXPECT_EQ(word("pause 7").number, 7.0);
    EXPECT_EQ(word("sto").failure, 0);
    EXPECT_EQ(word("pause").failure, 0);
    EXPECT_EQ(word("stox").failure, static_cast<int>(FailureNumber::TypeMismatch));
}

TEST(ProgramText, TheFirstOfTwoLabelsCountsAndTheLastLineHoldsNone) {
    const ProgramText text("lbl a\nend\nlbl b\nlbl a\nlbl c");
    EXPECT_EQ(text.label("a"), 1);
    EXPECT_EQ(text.label("b"), 3);
    EXPECT_EQ(text.label("c"), std::nullopt);
    EXPECT_EQ(text.label(""), std::nullopt);
    EXPECT_EQ(ProgramText("lbl a\n\n").label("a"), 1);
}

TEST(ProgramText, AnIfGoesToTheEndifOfItsOwn) {
    ProgramText text("if a\nif b\n5\nendif\nendif\nif c\nx\n");
    EXPECT_EQ(text.endifOf(1), 5);
    EXPECT_EQ(text.endifOf(2), 4);
    EXPECT_EQ(text.endifOf(1), 5) << "and again";
    EXPECT_EQ(text.endifOf(6), 0);
    ProgramText message("if a\n\\text #_\nif no line of the program\nendif\nendif\n");
    EXPECT_EQ(message.endifOf(1), 4);
    EXPECT_EQ(ProgramText("if a\nendif x\nendif").endifOf(1), 3);
    EXPECT_EQ(ProgramText("if a\nendif").endifOf(1), 2);
}

TEST(ProgramText, OpeningAndClosingWordsAreCounted) {
    const auto counts = [](std::string_view file) {
        const ProgramCounts found = ProgramText(file).counts();
        return std::vector<int>{found.ifs, found.endifs, found.labels, found.ends};
    };
    using All = std::vector<int>;
    EXPECT_EQ(counts("lbl a\nif x\nif y\nendif\nend\niffy\nending"), (All{2, 1, 1, 3}));
    EXPECT_EQ(counts("\\one #_\nif two #_\nend three\nend\nlbl b"), (All{0, 0, 1, 1})) << "a text that goes on";
    EXPECT_EQ(counts("\\one line\nend"), (All{0, 0, 0, 1}));
    EXPECT_EQ(counts("\\one #_\nend"), (All{0, 0, 0, 0})) << "the last line of a text";
    EXPECT_EQ(counts("\\one #_"), (All{0, 0, 0, 0}));
    EXPECT_EQ(counts("\\one #_\ntwo\n\\three #_\nfour\nend"), (All{0, 0, 0, 1}));
}

}  // namespace
}  // namespace tallyforge
