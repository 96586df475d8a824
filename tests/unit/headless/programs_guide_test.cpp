// SPDX-License-Identifier: GPL-3.0-or-later
//
// The guide to programs says that its examples are run: here they are. A program is a block
// ```rec, what is done to it the block ```keys behind it, and what is shown the block ```out; rows
// of tables have lines of a program in code marks. The guide's tables and those of the code must
// name the same words, statements and messages.
#include "program/program_faults.h"
#include "program/program_words.h"
#include "program_files.h"
#include "script_fixture.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <regex>
#include <set>

namespace tallyforge {
namespace {

struct Block {
    std::string kind;
    std::string text;
};

struct Example {
    std::string program;
    std::string actions;
    std::string shown;
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

/// All matches of the first group of `pattern` in `text`.
Lines matches(const std::string& text, const std::string& pattern) {
    const std::regex expression{pattern};
    Lines found;
    for (auto at = std::sregex_iterator(text.begin(), text.end(), expression); at != std::sregex_iterator(); ++at) {
        found.push_back((*at)[1]);
    }
    return found;
}

Lines codeMarks(const std::string& cell) {
    return matches(cell, "`([^`]+)`");
}

/// A line break is a blank in the guide's tables.
std::string onOneLine(const std::string& text) {
    return std::regex_replace(text, std::regex{R"( *(\\n|\n)+ *)"}, " ");
}

bool contains(const std::string& text, std::string_view part) {
    return text.find(part) != std::string::npos;
}

/// Texts of the code that no user comes to see, and why.
struct NeverShown {
    std::string_view text;
    std::string_view because;
};
constexpr std::array kNeverShown{
    NeverShown{"Error 4 (Subtrahend greater than minuend)", "4 has the text of its statement"},
    NeverShown{"Error 9 (Index out of range)", "nothing that a program does counts outside a table"},
    NeverShown{"Error 11", "the keys that divide say it themselves"},
    NeverShown{"Error 15", "a load looks at declarations only"},
    NeverShown{"Error 29", "a line with = in another place runs as an expression, or is error 6"},
    NeverShown{"; Numeric expression requires", "text of 29"},
    NeverShown{"Bad file name or number", "file names are taken by their last part"},
    NeverShown{"Error 52 (Bad file name", "file names are taken by their last part"},
    NeverShown{"Error 53 (File not found)", "a program that is not found has a message of its own"},
    NeverShown{"Error 85 (Modifier not valid", "a word sets the modifiers that its key knows"},
    NeverShown{"Error 86 (More than 64 bits)", "the keys of bases are no words"},
    NeverShown{"program fault", "name of an exception"},
    NeverShown{"%d/%d/%04d", "heading of a trace"},
    NeverShown{"Error 93 (Number of a base", "the keys of bases are no words"},
};

bool neverShown(const std::string& text) {
    return std::any_of(kNeverShown.begin(), kNeverShown.end(),
                       [&](const NeverShown& row) { return text.starts_with(row.text); });
}

/// The texts in the code of programs that are sentences, tips and captions apart.
Lines readTexts() {
    Lines texts;
    for (const auto& entry : std::filesystem::directory_iterator(kSourceRoot / "src/program")) {
        if (entry.path().stem() == "program_check") {
            // Findings are no messages of the calculator.
            continue;
        }
        std::string source = readFile(entry.path());
        source = std::regex_replace(source, std::regex{R"(//[^\n]*|[^\n]*(tip|text) = [^\n]*)"}, "");
        source = std::regex_replace(source, std::regex{"\"\\s*\n\\s*\""}, "");
        for (const std::string& literal : matches(source, R"re("((?:[^"\\\n]|\\.)*)")re")) {
            if (!std::regex_search(literal, std::regex{"[A-Za-z]+ .*[A-Za-z]"})) {
                continue;
            }
            std::string text = onOneLine(std::regex_replace(literal, std::regex{R"(\\(["\\]))"}, "$1"));
            text = std::regex_replace(text, std::regex{"^ +| +$"}, "");
            texts.push_back(text);
        }
    }
    return texts;
}

const Lines& textsOfTheCode() {
    static const Lines texts = readTexts();
    return texts;
}

/// The boxes of a fault with that number, line n.
Lines numberedTexts(int number) {
    constexpr int kLine = 7;
    std::string inRun = faultText(number, "", kLine);
    if (inRun.ends_with(" line " + std::to_string(kLine))) {
        inRun.back() = 'n';
    }
    return {onOneLine(inRun), onOneLine(loadFaultText(number))};
}

class ProgramsGuide : public ScriptTest {
protected:
    using Cells = std::vector<std::string>;
    const std::string guide = readFile(kSourceRoot / "docs/programs.md");

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
    /// What `actions` show behind a run of `code`, the section of key A.
    Lines shownBehind(const std::string& code, const std::string& actions) {
        return shownBy("# aa\nlbl init\nend\nlbl a\naa = 0\ndrop\n" + code + "end\n",
                       "click cmdFunctions(15)\n" + actions);
    }
    /// The lines of code in a cell.
    static std::string programOf(const std::string& cell) {
        std::string code;
        for (const std::string& line : codeMarks(cell)) {
            code += line + "\n";
        }
        return code;
    }

    /// The program blocks with what is done to them; each has all three parts.
    std::vector<Example> examples() const {
        const auto blocks = blocksOf(guide);
        std::vector<Example> all;
        EXPECT_EQ(blocks.size() % 3, 0U);
        for (std::size_t i = 0; i + 2 < blocks.size(); i += 3) {
            EXPECT_EQ(blocks[i].kind + blocks[i + 1].kind + blocks[i + 2].kind, "reckeysout") << blocks[i].text;
            all.push_back({blocks[i].text, blocks[i + 1].text, blocks[i + 2].text});
        }
        return all;
    }
    /// The cells of the rows of all tables whose heads begin with `head`; a row that does not match
    /// `row` is a failure.
    std::vector<Cells> tables(const std::string& head, const std::string& row) const {
        std::vector<Cells> cells;
        const std::regex expression{row};
        bool inside = false;
        for (const std::string& line : linesOf(guide)) {
            if (line.starts_with(head)) {
                inside = true;
            } else if (!line.starts_with("|")) {
                inside = false;
            } else if (std::smatch parts; inside && !line.starts_with("|--")) {
                EXPECT_TRUE(std::regex_match(line, parts, expression)) << line;
                cells.emplace_back(parts.begin(), parts.end());
            }
        }
        EXPECT_FALSE(cells.empty()) << head;
        return cells;
    }
    std::vector<Cells> wordRows() const {
        return tables("| word |", R"(\| (.+) \| (.+) \| ((?:`[^`]+` ?)+) \| (\S+) \|)");
    }
    std::vector<Cells> statementTable() const {
        return tables("| statement |", R"(\| ((?:`[^`]+`(?:, )?)+) \| (.+) \|)");
    }
    /// Rows of messages: title, text, what has happened, what to do.
    std::vector<Cells> messageRows() const {
        return tables("| box | says | what has", R"re(\| "([^|]+)" \| "([^|]+)" \| ([^|]{10,}) \| ([^|]{10,}) \|)re");
    }
    /// Rows of boxes of keys: title, text, lines that lead there, what to do.
    std::vector<Cells> keyBoxRows() const {
        return tables("| box | says | example",
                      R"re(\| "([^|]+)" \| "([^|]+)" \| ((?:`[^`]+` ?)+) \| ([^|]{10,}) \|)re");
    }
    std::set<std::string, std::less<>> wordsOfTheGuide() const {
        std::set<std::string, std::less<>> words;
        for (const Cells& row : wordRows()) {
            words.merge(std::set<std::string, std::less<>>{row.at(1)});
        }
        return words;
    }
    /// The line that a traced word is: the longest one that the word begins with (X is written
    /// behind it), as a list of variables disturbs the numbers; else the line of that number, which
    /// the word is a part of.
    static std::string tracedLine(const Lines& lines, std::size_t number, const std::string& word) {
        std::string longest;
        for (const std::string& line : lines) {
            if (line.size() > longest.size() && word.starts_with(line)) {
                longest = line;
            }
        }
        return longest.empty() ? lines.at(number - 1) : longest;
    }
    /// The lines of the example's program that have run, by its trace.
    Lines executedLines(const Example& example) {
        const auto trace = options.data / "Traces/Traced.txt";
        std::filesystem::remove(trace);
        // The trace goes on, and "init" runs once more under it.
        shownBy(example.program, "click cmdFunctions(0)\nclick cmdFunctions(19)\n" + example.actions);
        const Lines lines = linesOf(example.program);
        Lines executed;
        for (const std::string& word : matches(readFile(trace), R"(\n (\d+ [^\n]*))")) {
            executed.push_back(tracedLine(lines, std::stoul(word), word.substr(word.find(' ') + 1)));
        }
        return executed;
    }
};

TEST_F(ProgramsGuide, ItsProgramsShowWhatItSays) {
    const auto all = examples();
    EXPECT_GE(all.size(), 13U);
    for (const Example& example : all) {
        SCOPED_TRACE(example.program);
        EXPECT_EQ(shownBy(example.program, example.actions), linesOf(example.shown));
    }
}

TEST_F(ProgramsGuide, HasNoPieceOfAProgramThatIsNotRun) {
    for (const std::string& line : linesOf(guide)) {
        EXPECT_FALSE(line.starts_with("    ")) << line;
    }
}

TEST_F(ProgramsGuide, EveryWordDoesWhatItsRowSays) {
    for (const Cells& row : wordRows()) {
        SCOPED_TRACE(row.at(0));
        const Lines shown = shownBehind(programOf(row.at(3)), "show x\n");
        ASSERT_EQ(shown.size(), 1U) << (shown.empty() ? "" : shown.front());
        const double expected = std::stod(row.at(4));
        EXPECT_NEAR(std::stod(shown.front().substr(2)), expected, 1e-11 * std::max(1.0, std::abs(expected)));
    }
}

TEST_F(ProgramsGuide, EveryComparisonIsTrueWhereItsRowSaysSo) {
    for (const Cells& row : tables("| test |", R"(\| `([^`]+)` \| (yes|no) \| (.*)\|)")) {
        SCOPED_TRACE(row.at(0));
        const Lines shown = shownBehind("7\nif " + row.at(1) + " then\n8\nendif\n", "show x\n");
        EXPECT_EQ(shown, Lines{row.at(2) == "yes" ? "x 8" : "x 7"});
    }
}

TEST_F(ProgramsGuide, EveryWordOfTheCodeHasARowThatUsesIt) {
    std::set<std::string, std::less<>> statements;
    for (const Cells& row : statementTable()) {
        for (const std::string& form : codeMarks(row.at(1))) {
            statements.insert(wordsOf(form).front());
        }
    }
    const auto words = wordsOfTheGuide();
    for (const FunctionWord& row : functionWords()) {
        EXPECT_TRUE(words.contains("`" + std::string(row.word) + "`") || statements.contains(row.word)) << row.word;
    }
    for (const Cells& row : wordRows()) {
        const Lines word = codeMarks(row.at(1));
        if (word.empty()) {
            EXPECT_TRUE(row.at(1) == "a number" || row.at(1) == "any other word") << row.at(0);
            continue;
        }
        EXPECT_TRUE(findFunction(word.front()) != nullptr || statementOf(word.front()) != Statement::None)
            << row.at(0) << " is no word";
        EXPECT_TRUE(contains(row.at(3), "`" + word.front())) << row.at(0) << " does not use it";
    }
}

TEST_F(ProgramsGuide, EveryStatementHasARowAndIsExecutedInAnExample) {
    std::set<std::string, std::less<>> executed;
    std::set<Statement> statements;
    for (const Example& example : examples()) {
        for (const std::string& line : executedLines(example)) {
            executed.insert(line);
            statements.insert(statementOf(line));
        }
    }
    std::set<Statement> listed;
    for (const Cells& row : statementTable()) {
        for (const std::string& form : codeMarks(row.at(1))) {
            const Statement statement = statementOf(form);
            listed.insert(statement);
            EXPECT_TRUE(statement != Statement::None || form.starts_with("lbl ")) << form << " is no statement";
            EXPECT_TRUE(statement == Statement::None || statements.contains(statement)) << form << " is in no example";
            const bool literal = wordsOf(form).size() == 1 || form.ends_with(" 1");
            const bool prefix = form.starts_with("sf-") || form.starts_with("cf-") || form.starts_with("tf-");
            EXPECT_TRUE(!literal || prefix || executed.contains(form)) << form << " is in no example";
        }
    }
    const auto words = wordsOfTheGuide();
    for (const StatementRow& row : statementRows()) {
        EXPECT_TRUE(listed.contains(row.statement) || words.contains("`" + std::string(row.word) + "`")) << row.word;
    }
}

TEST_F(ProgramsGuide, EveryMessageOfTheCodeHasARow) {
    std::string all;
    for (const Cells& row : messageRows()) {
        all += row.at(1) + "\n" + row.at(2) + "\n";
    }
    for (const std::string& text : textsOfTheCode()) {
        EXPECT_TRUE(contains(all, text) || neverShown(text)) << text;
    }
    const std::string unknown = faultDescription(0);
    for (int number = 1; number < 100; ++number) {
        const Lines texts = numberedTexts(number);
        if (faultDescription(number) == unknown && contains(texts.front(), unknown)) {
            continue;
        }
        const bool shown = std::any_of(texts.begin(), texts.end(),
                                       [&](const std::string& text) { return contains(all, "\n" + text + "\n"); });
        EXPECT_NE(shown, neverShown(texts.front())) << texts.front();
    }
}

TEST_F(ProgramsGuide, EveryRowOfMessagesIsOneOfTheCode) {
    const Lines& texts = textsOfTheCode();
    for (const Cells& row : messageRows()) {
        const std::string& text = row.at(2);
        std::smatch parts;
        if (std::regex_match(text, parts, std::regex{R"(Error (\d+) [(-].*)"})) {
            const Lines known = numberedTexts(std::stoi(parts[1]));
            EXPECT_NE(std::find(known.begin(), known.end(), text), known.end()) << row.at(0);
        } else {
            EXPECT_TRUE(std::any_of(texts.begin(), texts.end(), [&](const std::string& known) {
                return contains(text, known);
            })) << row.at(0);
        }
    }
}

TEST_F(ProgramsGuide, EveryBoxOfAKeyIsShownByItsExample) {
    for (const Cells& row : keyBoxRows()) {
        SCOPED_TRACE(row.at(0));
        const Lines shown = shownBehind(programOf(row.at(3)), "show depth\n");
        ASSERT_GE(shown.size(), 2U);
        EXPECT_EQ(onOneLine(shown.front()), "box stop \"" + row.at(1) + "\" \"" + row.at(2) + "\" -> ok");
    }
}

// All words on operands that are large, small, negative, zero or no whole numbers.
TEST_F(ProgramsGuide, EveryBoxOfAWordHasARow) {
    std::set<std::string> rows;
    for (const Cells& row : keyBoxRows()) {
        rows.insert("\"" + row.at(1) + "\" \"" + row.at(2) + "\"");
    }
    std::string code;
    for (const FunctionWord& row : functionWords()) {
        const Statement statement = statementOf(row.word);
        if (row.direct == DirectKey::ClearRegisters || statement == Statement::Reset || statement == Statement::Aset ||
            statement == Statement::Kill || statement == Statement::Sto || statement == Statement::Rcl) {
            continue;
        }
        for (const char* operands : {"3\n0\n", "3\n-1\n", "-2\n0.5\n", "3\n1e200\n", "1e200\n1e200\n"}) {
            code += operands + std::string(row.word) + "\n";
        }
    }
    int boxes = 0;
    for (const std::string& line : shownBehind(code, "")) {
        std::smatch parts;
        const std::string shown = onOneLine(line);
        ASSERT_TRUE(std::regex_match(shown, parts, std::regex{"box [a-z]+ (\".*\") -> ok"})) << line;
        EXPECT_TRUE(rows.contains(parts[1])) << line;
        ++boxes;
    }
    EXPECT_GT(boxes, 50);
}

}  // namespace
}  // namespace tallyforge
