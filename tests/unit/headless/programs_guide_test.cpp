// SPDX-License-Identifier: GPL-3.0-or-later
//
// The guide to programs says that its examples are run: here they are. A program is a block
// ```rec, what is done to it the block ```keys behind it, and what is shown the block ```out; in
// the table of words each row has lines of a program in its third column, and X in its last.
#include "script_fixture.h"

#include <cmath>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>

namespace tallyforge {
namespace {

std::string readFile(const std::filesystem::path& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

Lines linesOf(const std::string& text) {
    Lines lines;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);) {
        lines.push_back(line);
    }
    return lines;
}

struct Block {
    std::string kind;
    std::string text;
};

std::vector<Block> blocksOf(const std::string& guide) {
    std::vector<Block> blocks;
    bool inside = false;
    for (const std::string& line : linesOf(guide)) {
        if (line.starts_with("```")) {
            inside = !inside;
            if (inside) {
                blocks.push_back({.kind = line.substr(3), .text = {}});
            }
        } else if (inside) {
            blocks.back().text += line + "\n";
        }
    }
    return blocks;
}

class ProgramsGuide : public ScriptTest {
protected:
    const std::string guide = readFile(std::filesystem::path(TALLYFORGE_SOURCE_ROOT) / "docs/programs.md");

    ProgramsGuide() { options.home = installed.path; }

    TemporaryFolder installed;

    /// What `actions` show on a calculator that has loaded `program`.
    Lines shownBy(const std::string& program, const std::string& actions) {
        const auto programs = installed.path / "programs";
        std::filesystem::create_directories(programs);
        std::ofstream(programs / "example.rec", std::ios::binary) << program;
        out.clear();
        std::vector<HookedLines::Line> steps{{.text = "answer text example", .before = {}},
                                             {.text = "menu mnuProgram", .before = {}}};
        bool first = true;
        for (const std::string& action : linesOf(actions)) {
            steps.push_back({.text = action, .before = {}});
            if (std::exchange(first, false)) {
                steps.back().before = [this] { out.clear(); };
            }
        }
        EXPECT_EQ(runHooked(std::move(steps)), ScriptEnd::Done);
        EXPECT_EQ(complaints, Lines{});
        return out;
    }
};

TEST_F(ProgramsGuide, ItsProgramsShowWhatItSays) {
    const auto blocks = blocksOf(guide);
    int examples = 0;
    for (std::size_t i = 0; i + 2 < blocks.size(); ++i) {
        if (blocks[i].kind == "rec") {
            SCOPED_TRACE(blocks[i].text);
            ASSERT_EQ(blocks[i + 1].kind, "keys");
            ASSERT_EQ(blocks[i + 2].kind, "out");
            EXPECT_EQ(shownBy(blocks[i].text, blocks[i + 1].text), linesOf(blocks[i + 2].text));
            ++examples;
        }
    }
    EXPECT_GE(examples, 7);
}

TEST_F(ProgramsGuide, EveryWordDoesWhatItsRowSays) {
    const std::regex row{R"(\| (.*) \| (.*) \| ((?:`[^`]+` ?)+) \| (\S+) \|)"};
    const std::regex code{"`([^`]+)`"};
    int rows = 0;
    for (const std::string& line : linesOf(guide)) {
        std::smatch parts;
        if (!std::regex_match(line, parts, row)) {
            continue;
        }
        SCOPED_TRACE(line);
        const std::string example = parts[3];
        std::string program = "#\nlbl init\nend\nlbl a\n";
        for (auto word = std::sregex_iterator(example.begin(), example.end(), code); word != std::sregex_iterator();
             ++word) {
            program += (*word)[1].str() + "\n";
        }
        const Lines shown = shownBy(program + "end\n", "click cmdFunctions(15)\nshow x\n");
        ASSERT_EQ(shown.size(), 1U) << (shown.empty() ? "" : shown.front());
        const double expected = std::stod(parts[4]);
        EXPECT_NEAR(std::stod(shown.front().substr(2)), expected, 1e-11 * std::max(1.0, std::abs(expected)));
        ++rows;
    }
    EXPECT_GE(rows, 70);
}

}  // namespace
}  // namespace tallyforge
