// SPDX-License-Identifier: GPL-3.0-or-later
//
// The pages about programs show files that a page's example cannot carry. Here each program of a
// page is loaded, and what the page says of it is compared with what it does: the tape that it
// prints below, the rows of words with their X, the findings of the check, the printed page.
#include "desktops/headless/key_script.h"
#include "help/help_book.h"
#include "help/inline_text.h"
#include "help_sources.h"
#include "platform/file_store.h"
#include "platform/text.h"
#include "program/program_check.h"

#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

namespace tallyforge {
namespace {

using Lines = std::vector<std::string>;

Lines linesOf(const std::string& text) {
    std::istringstream stream(text);
    Lines lines;
    for (std::string line; std::getline(stream, line);) {
        lines.push_back(line);
    }
    return lines;
}

const HelpPage& page(std::string_view name) {
    const auto& pages = helpSources();
    const auto found = std::find_if(pages.begin(), pages.end(), [&](const HelpPage& one) { return one.name == name; });
    EXPECT_NE(found, pages.end()) << name;
    return *found;
}

/// The blocks of a page that are shown as they stand, without the blanks in front of their lines.
std::vector<std::string> verbatimOf(std::string_view name) {
    std::vector<std::string> texts;
    for (const HelpBlock& block : helpBlocks(page(name).body)) {
        if (block.kind == HelpBlock::Kind::Verbatim) {
            texts.push_back(block.text);
        }
    }
    return texts;
}

bool isProgram(const std::string& text) {
    return text.find("lbl init") != text.npos;
}

/// The programs of a page, as files: its lines stand two blanks in.
std::vector<std::string> programsOf(std::string_view name) {
    std::vector<std::string> programs;
    for (const std::string& text : verbatimOf(name)) {
        if (isProgram(text)) {
            std::string file;
            for (const std::string& line : linesOf(text)) {
                file += line.substr(std::min(line.size(), std::size_t{2})) + "\n";
            }
            programs.push_back(file);
        }
    }
    return programs;
}

/// What the keys show on a calculator that has loaded `program`; none is loaded where it is empty.
Lines shownBy(const std::string& program, const std::string& keys) {
    const TemporaryFolder folder;
    HeadlessOptions options{.data = folder.path / "data",
                            .home = TALLYFORGE_PROGRAMS_FOLDER,
                            .now = LocalTime{.year = 2026, .month = 11, .day = 20, .hour = 9}};
    std::string load;
    if (!program.empty()) {
        const auto programs = options.data / "programs";
        std::filesystem::create_directories(programs);
        writeWhole(programs / "example.rec", program);
        load = "answer text example\nmenu mnuProgram\n";
    }
    Lines shown;
    KeyScript script(
        options, [&](std::string_view line) { shown.emplace_back(line); },
        [](std::string_view line) { ADD_FAILURE() << line; });
    std::istringstream lines(load + "show dialog\n" + keys);
    EXPECT_EQ(script.run(lines), ScriptEnd::Done);
    shown.erase(shown.begin(), std::next(std::find(shown.begin(), shown.end(), "dialog none")));
    return shown;
}

/// The tape's lines without their numbers.
Lines tapeOf(const Lines& shown) {
    Lines tape;
    for (const std::string& line : shown) {
        if (line.starts_with("tape ")) {
            tape.push_back(line.substr(line.find(' ', 5) + 1));
        }
    }
    return tape;
}

constexpr const char* kKeyA = "click cmdFunctions(15)\n";
constexpr const char* kKeyB = "click cmdFunctions(14)\n";
constexpr const char* kKeyC = "click cmdFunctions(13)\n";

std::string pressed(std::initializer_list<const char*> keys) {
    std::string all;
    for (const char* key : keys) {
        all += key;
    }
    return all;
}

TEST(HelpPrograms, TheTapeBelowAProgramIsTheOneThatItMakes) {
    struct Told {
        const char* page;
        std::size_t program;
        std::string keys;
    };
    const Told all[] = {
        {"programs", 0, pressed({"type 5\n", kKeyA})},
        {"program-variables", 0, pressed({kKeyA, "click Shift+cmdFunctions(0)\n"})},
        {"program-statements", 0, pressed({"type 3\n", kKeyA})},
        {"program-statements", 1, kKeyA},
        {"program-trace", 0, kKeyA},
    };
    for (const Told& told : all) {
        SCOPED_TRACE(told.page);
        std::vector<std::string> tapes = verbatimOf(told.page);
        std::erase_if(tapes, isProgram);
        const auto programs = programsOf(told.page);
        ASSERT_GT(programs.size(), told.program);
        ASSERT_EQ(tapes.size(), programs.size());
        EXPECT_EQ(tapeOf(shownBy(programs[told.program], told.keys + "show tape\n")), linesOf(tapes[told.program]));
    }
}

TEST(HelpPrograms, WhatIsSaidOfAProgramIsWhatItDoes) {
    struct Told {
        const char* page;
        std::size_t program;
        std::string keys;
        Lines shown;
    };
    const std::string above = "box info \"Attention!\" \"More than a hundred\" -> ok";
    const Told all[] = {
        {"programs",
         0,
         pressed({"type 5\n", kKeyA}),
         {"box info \"Attention!\" \"Area is 78.54\\nwith the radius 5.00\" -> ok"}},
        {"program-variables",
         0,
         pressed({kKeyA, "show x\n", kKeyB, "show x\n", kKeyC, "show x\n"}),
         {"x 16", "x 2", "x 0"}},
        {"program-tests",
         0,
         pressed({"type 0\n", kKeyA, "type 5\n", kKeyA, "type 5\\\n", kKeyA}),
         {"box info \"Attention!\" \"Above zero\" -> ok", "box info \"Attention!\" \"Below zero\" -> ok"}},
        {"program-tests",
         1,
         pressed({"type 7\n", kKeyA, "type 700\n", kKeyA, "type 7000\n", kKeyA}),
         {above, above, "box info \"Attention!\" \"and more than a thousand\" -> ok"}},
        {"program-jumps", 0, pressed({"type 100\n", kKeyA, "show x\n"}), {"x 5050"}},
        {"program-flags",
         0,
         pressed({kKeyA, "show x\n", "click cmdNumPad(9)\n", kKeyA, kKeyA, "show x\n"}),
         {"x 12", "x 9"}},
        {"program-flags",
         1,
         pressed({kKeyA, "show x\n", kKeyA, "show x\n", kKeyA, "show x\n", kKeyA, "show x\n"}),
         {"x 1", "x 2", "x 1", "x 2"}},
        {"program-umsg", 0, kKeyA, {"box info \"Attention!\" \"One line\\nand another, which is long\" -> ok"}},
        {"program-stack-words", 0, pressed({kKeyA, "show x depth\n"}), {"x 7", "depth 1"}},
        {"program-stack-words", 0, pressed({kKeyB, "show x keypad\n"}), {"x 0", "keypad 0 \"Standard\""}},
        {"program-stack-words", 0, pressed({kKeyC, "show x keypad\n"}), {"x 8", "keypad 0 \"Standard\""}},
        {"program-trace", 0, kKeyA, {"box info \"Attention!\" \"Stop Statement encountered at Line 4\" -> ok"}},
    };
    for (const Told& told : all) {
        SCOPED_TRACE(told.page);
        const auto programs = programsOf(told.page);
        ASSERT_GT(programs.size(), told.program);
        EXPECT_EQ(shownBy(programs[told.program], told.keys), told.shown);
    }
}

TEST(HelpPrograms, EachOfThemIsTold) {
    std::size_t programs = 0;
    for (const HelpPage& one : helpSources()) {
        programs += programsOf(one.name).size();
    }
    // The twelve that are loaded above, and the one that the check is shown.
    EXPECT_EQ(programs, 13U) << "a program without a line in the tables above";
}

TEST(HelpPrograms, EveryRowOfWordsGivesItsX) {
    std::size_t rows = 0;
    for (const HelpPage& one : helpSources()) {
        for (const HelpBlock& block : helpBlocks(one.body)) {
            if (block.kind != HelpBlock::Kind::Table || block.rows.front() != Lines{"Word", "Does", "Example", "X"}) {
                continue;
            }
            for (auto row = std::next(block.rows.begin()); row != block.rows.end(); ++row) {
                SCOPED_TRACE(row->at(0));
                std::string code;
                for (const InlineSpan& span : inlineSpans(row->at(2))) {
                    code += span.code ? span.text + "\n" : "";
                }
                const Lines shown = shownBy("# aa\nlbl init\nend\nlbl a\naa = 0\ndrop\n" + code + "end\n\n",
                                            pressed({kKeyA, "show x\n"}));
                ASSERT_EQ(shown.size(), 1U);
                const double told = std::stod(row->at(3));
                EXPECT_NEAR(std::stod(shown.front().substr(2)), told, 1e-13 * std::max(1.0, std::fabs(told)));
                ++rows;
            }
        }
    }
    EXPECT_GT(rows, 60U);
}

TEST(HelpPrograms, EveryTestIsTrueWhereItsRowSaysSo) {
    std::size_t rows = 0;
    for (const HelpBlock& block : helpBlocks(page("program-tests").body)) {
        if (block.kind != HelpBlock::Kind::Table) {
            continue;
        }
        for (auto row = std::next(block.rows.begin()); row != block.rows.end(); ++row) {
            for (const InlineSpan& span : inlineSpans(row->at(0))) {
                if (span.code) {
                    const std::string program =
                        "# aa\nlbl init\nend\nlbl a\naa = 7\nif " + span.text + " then\n8\nendif\nend\n\n";
                    EXPECT_EQ(shownBy(program, pressed({kKeyA, "show x\n"})),
                              Lines{row->at(1) == "yes" ? "x 8" : "x 7"})
                        << span.text;
                    ++rows;
                }
            }
        }
    }
    EXPECT_EQ(rows, 14U);
}

TEST(HelpPrograms, TheCheckFindsWhatItIsSaidToFind) {
    const auto programs = programsOf("program-check");
    ASSERT_EQ(programs.size(), 1U);
    Lines found;
    for (const ProgramFinding& finding : checkProgram(programs.front())) {
        found.push_back("slips.rec:" + std::to_string(finding.line) + ": " + toUnicode(finding.text, Face::Arial));
    }
    EXPECT_EQ(found, linesOf(verbatimOf("program-check").back()));
}

TEST(HelpPrograms, ThePrintedPageStandsAsItIsShown) {
    const Lines told = linesOf(verbatimOf("printing").front());
    const Lines shown = shownBy("", "type 12.5\nkey Enter\ntype 3+\nmenu mnuPrint\n");
    ASSERT_EQ(shown.size(), told.size() + 11) << "twelve lines of registers";
    for (std::size_t at = 0; at < told.size(); ++at) {
        EXPECT_EQ(shown[at], "page " + told[at]);
    }
}

}  // namespace
}  // namespace tallyforge
