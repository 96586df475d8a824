// SPDX-License-Identifier: GPL-3.0-or-later
//
// The sample programs, run against known answers. Together they show the whole language, and they
// are the ones that the guide names.
#include "program/program_words.h"
#include "program_files.h"
#include "script_fixture.h"

#include <cmath>
#include <filesystem>
#include <map>
#include <set>

namespace tallyforge {
namespace {

class SamplePrograms : public ScriptTest {
protected:
    SamplePrograms() {
        options.home = kSourceRoot / "data";
        options.now = LocalTime{.year = 2026, .month = 11, .day = 20, .hour = 14, .minute = 30};
    }

    /// Loads `program` and does `actions`: "KEY" presses the key of that letter, anything else is a
    /// number that is typed first: "5 A" types 5 and presses A.
    Lines shownBy(const std::string& program, const std::vector<std::string>& actions, const std::string& show) {
        static const std::map<char, int> kKeys{{'A', 15}, {'B', 14}, {'C', 13}, {'D', 12}, {'E', 11},
                                               {'F', 23}, {'G', 5},  {'H', 4},  {'I', 22}, {'J', 21}};
        std::vector<HookedLines::Line> steps{{.text = "answer text " + program, .before = {}},
                                             {.text = "menu mnuProgram", .before = {}}};
        const auto add = [&](const std::string& text) { steps.push_back({.text = text, .before = {}}); };
        for (const std::string& action : actions) {
            const auto blank = action.find(' ');
            if (blank != action.npos) {
                std::string number = action.substr(0, blank);
                const bool negative = number.front() == '-';
                add("type " + number.substr(negative ? 1 : 0));
                if (negative) {
                    add("click cmdChs");
                }
            }
            add("click cmdFunctions(" + std::to_string(kKeys.at(action.back())) + ")");
        }
        add("show " + show);
        steps[2].before = [this] { out.clear(); };
        EXPECT_EQ(runHooked(std::move(steps)), ScriptEnd::Done) << program;
        EXPECT_EQ(complaints, Lines{});
        return out;
    }
    static void expectStack(const Lines& shown, const std::vector<double>& wanted) {
        ASSERT_EQ(shown.size(), wanted.size());
        for (std::size_t i = 0; i < wanted.size(); ++i) {
            EXPECT_NEAR(last({shown[i].substr(shown[i].find(' ') + 1)}), wanted[i], 1e-11) << shown[i];
        }
    }
    /// The number that `show` has printed as its last line.
    static double last(const Lines& lines) {
        return lines.empty() ? std::nan("") : std::stod(lines.back().substr(lines.back().find(' ') + 1));
    }
    static std::string box(const std::string& text) { return "box info \"Attention!\" \"" + text + "\" -> ok"; }
};

TEST_F(SamplePrograms, BoardFeet) {
    const auto lines = shownBy("Board feet", {"1 A", "6 B", "8 C"}, "x");
    EXPECT_EQ(lines, (Lines{box("Board feet: 4.00"), "x 4"}));
    EXPECT_EQ(last(shownBy("Board feet", {"96 D", "6 B", "1 A"}, "x")), 4.0);
    const auto sum = shownBy("Board feet", {"1 A", "6 B", "8 C", "3 E", "2 A", "6 B", "8 C", "F"}, "x");
    EXPECT_EQ(last(sum), 20.0) << "three of 4 and one of 8";
    EXPECT_EQ(last(shownBy("Board feet", {"1 A", "6 B", "8 C", "G", "F"}, "x")), 0.0);
}

TEST_F(SamplePrograms, Circle) {
    const auto lines = shownBy("Circle", {"5 A"}, "x");
    EXPECT_EQ(lines, (Lines{box("Area 78.54"), "x 78.5398163397447"}));
    EXPECT_NEAR(last(shownBy("Circle", {"5 B"}, "x")), 31.4159265358979, 1e-12);
    EXPECT_NEAR(last(shownBy("Circle", {"100 D"}, "x")), 5.64189583547756, 1e-13);
    EXPECT_EQ(last(shownBy("Circle", {"5 B", "C"}, "x")), 5.0);
}

TEST_F(SamplePrograms, Quadratic) {
    EXPECT_EQ(shownBy("Quadratic", {"1 A", "-3 B", "2 C", "F"}, "x y"),
              (Lines{box("Roots 1.00\\nand 2.00"), "x 1", "y 2"}));
    EXPECT_EQ(shownBy("Quadratic", {"1 A", "2 B", "1 C", "F"}, "x y"),
              (Lines{box("Roots -1.00\\nand -1.00"), "x -1", "y -1"}));
    EXPECT_EQ(shownBy("Quadratic", {"1 A", "0 B", "1 C", "F"}, "x"),
              (Lines{box("No real root:\\nthe discriminant is -4.00"), "x -4"}));
}

// Payments and interest of 10,000 at 6 percent over a year, computed month by month in cents.
TEST_F(SamplePrograms, Loan) {
    EXPECT_EQ(last(shownBy("Loan", {"10000 A", "6 B", "12 C", "D"}, "x")), 860.66);
    const auto table = shownBy("Loan", {"10000 A", "6 B", "12 C", "E"}, "x");
    EXPECT_EQ(table, (Lines{box("The interest comes to 327.96"), "x 327.96"}));
    EXPECT_EQ(last(shownBy("Loan", {"1200 A", "0 B", "12 C", "D"}, "x")), 100.0);
}

TEST_F(SamplePrograms, Prime) {
    EXPECT_EQ(shownBy("Prime", {"97 A"}, "x"), (Lines{box("97.00 is a prime."), "x 97"}));
    for (const char* prime : {"2", "3", "5", "104729"}) {
        EXPECT_TRUE(shownBy("Prime", {std::string(prime) + " A"}, "x").front().find("is a prime") != std::string::npos)
            << prime;
    }
    EXPECT_EQ(shownBy("Prime", {"91 A"}, "x y"), (Lines{box("Not a prime: its least divisor is 7.00"), "x 7", "y 13"}));
    EXPECT_EQ(shownBy("Prime", {"91 A", "B"}, "x").at(1), box("13.00 is a prime."));
    EXPECT_EQ(last(shownBy("Prime", {"1022117 A"}, "x")), 1009.0) << "1009 times 1013";
    const auto refused = shownBy("Prime", {"1 A"}, "x");
    EXPECT_EQ(refused.front(), box("Key a whole number from 2 up."));
    EXPECT_TRUE(refused.at(1).find("Stop Statement encountered") != std::string::npos);
}

TEST_F(SamplePrograms, Divider) {
    EXPECT_NEAR(last(shownBy("Divider", {"12 A", "5 B", "1000 C", "D"}, "x")), 5000.0 / 7.0, 1e-10);
    EXPECT_EQ(shownBy("Divider", {"12 A", "5 B", "1000 C", "E"}, "x y"),
              (Lines{box("Take 680.00 ohms:\\n4.86 volts come out."), "x 680", "y 4.85714285714286"}));
    EXPECT_EQ(last(shownBy("Divider", {"12 A", "6 B", "1000 C", "E"}, "x")), 1000.0);
    EXPECT_EQ(last(shownBy("Divider", {"10 A", "9 B", "1085 C", "E"}, "x")), 10000.0) << "9765 ohms";
    EXPECT_TRUE(shownBy("Divider", {"12 A", "13 B", "1000 C", "E"}, "x").at(1).find("Stop") != std::string::npos);
}

TEST_F(SamplePrograms, Simpson) {
    EXPECT_NEAR(last(shownBy("Simpson", {"0 A", "1 B", "100 C", "D"}, "x")), 3.14159265358979, 1e-12);
    EXPECT_EQ(shownBy("Simpson", {"0 A", "1 B", "5 C", "D"}, "x").front(), box("The number of steps must be even."));
}

TEST_F(SamplePrograms, Days) {
    EXPECT_EQ(last(shownBy("Days", {"7.041776 A", "7.042026 B"}, "x")), 91310.0);
    EXPECT_EQ(last(shownBy("Days", {"1.012000 A", "12.251999 B"}, "x")), -7.0);
    EXPECT_EQ(last(shownBy("Days", {"7.042026 C"}, "x")), 6.0) << "a Saturday";
    EXPECT_TRUE(shownBy("Days", {"13.012026 C"}, "x").at(1).find("Stop") != std::string::npos);
}

// 3 to the east and 4 to the north, in each unit of angles.
TEST_F(SamplePrograms, Vectors) {
    struct Unit {
        std::string key;
        std::string north;
        double direction;
    };
    for (const Unit& unit : {Unit{"E", "90", 53.130102354156}, Unit{"F", "1.5707963267949", 0.927295218001612},
                             Unit{"G", "100", 59.0334470601733}}) {
        SCOPED_TRACE(unit.key);
        const auto lines = shownBy("Vectors", {unit.key, "3 A", "0 B", "4 A", unit.north + " B", "C"}, "y x");
        EXPECT_NEAR(last(lines), 5.0, 1e-12);
        EXPECT_NEAR(last({lines.begin(), lines.begin() + 1}), unit.direction, 1e-11);
    }
    EXPECT_EQ(last(shownBy("Vectors", {"3 A", "0 B", "D", "7 A", "0 B", "C"}, "x")), 7.0);
}

TEST_F(SamplePrograms, VectorsMarksTheUnitInForce) {
    const auto bold = [&](const std::vector<std::string>& actions) {
        Lines keys;
        for (const std::string& line : shownBy("Vectors", actions, "keys")) {
            if (line.ends_with(" bold")) {
                keys.push_back(line);
            }
        }
        return keys;
    };
    EXPECT_EQ(bold({}), Lines{"key 11 \"deg\" plain bold"});
    EXPECT_EQ(bold({"F"}), Lines{"key 23 \"rad\" plain bold"});
    EXPECT_EQ(bold({"G"}), Lines{"key 5 \"grad\" plain bold"});
    EXPECT_EQ(bold({"G", "E"}), Lines{"key 11 \"deg\" plain bold"});
}

TEST_F(SamplePrograms, Angles) {
    EXPECT_EQ(shownBy("Angles", {"90 A"}, "x"), (Lines{box("100.000 000 grads,\\n1.570 796 radians"), "x 100"}));
    const auto radian = shownBy("Angles", {"1 B"}, "x");
    EXPECT_EQ(radian.front(), box("57.295 780 degrees,\\n63.661 977 grads"));
    EXPECT_NEAR(last(radian), 57.2957795130823, 1e-12);
    EXPECT_EQ(shownBy("Angles", {"100 C"}, "x"), (Lines{box("90.000 000 degrees,\\n1.570 796 radians"), "x 90"}));
    const double three = std::sqrt(3.0);
    expectStack(shownBy("Angles", {"30 D"}, "stack"), {30, 0.5, three / 2, 1 / three, 2 / three, 2, three});
    expectStack(shownBy("Angles", {"0.5 E"}, "stack"), {0.5, 26.565051177078, 63.434948822922, 30, 60});
    expectStack(shownBy("Angles", {"2 E"}, "stack"), {2, 63.434948822922, 26.565051177078, 60, 30});
}

TEST_F(SamplePrograms, Pairs) {
    const auto lines = shownBy("Pairs", {"0.5 A"}, "x");
    EXPECT_EQ(lines.front(), box("23.00 pairs have been given 0.50."));
    EXPECT_NEAR(last(lines), 0.0, 1e-12);
    EXPECT_NEAR(last(shownBy("Pairs", {"0.123456789 A"}, "x")), 0.0, 1e-12);
    EXPECT_GT(last(shownBy("Pairs", {"2 A"}, "x")), 0.1) << "2 is no sine of any angle";
}

// The rolls were computed by hand of the formula in the program.
TEST_F(SamplePrograms, Dice) {
    EXPECT_EQ(last(shownBy("Dice", {"7 C", "A"}, "x")), 1.0);
    EXPECT_EQ(last(shownBy("Dice", {"7 C", "A", "A"}, "x")), 1.0);
    EXPECT_EQ(last(shownBy("Dice", {"7 C", "B"}, "x")), 2.0);
    EXPECT_EQ(last(shownBy("Dice", {"A"}, "x")), 5.0) << "at 52,200 seconds since midnight";
    std::vector<std::string> rolls{"7 C"};
    double total = 0.0;
    Lines faces;
    for (int roll = 0; roll < 60; ++roll) {
        rolls.emplace_back("A");
    }
    for (const std::string& line : shownBy("Dice", rolls, "stack")) {
        faces.push_back(line.substr(line.rfind(' ') + 1));
    }
    ASSERT_EQ(faces.size(), 61U);
    faces.erase(faces.begin());
    for (const std::string& face : faces) {
        EXPECT_TRUE(std::set<std::string>({"1", "2", "3", "4", "5", "6"}).contains(face)) << face;
        total += std::stod(face);
    }
    EXPECT_NEAR(total / 60.0, 3.5, 0.75);
}

TEST_F(SamplePrograms, Hours) {
    EXPECT_EQ(last(shownBy("Hours", {"8.15 A", "12.05 B"}, "x")), 3.5);
    EXPECT_EQ(last(shownBy("Hours", {"22.30 A", "6.15 B"}, "x")), 7.45) << "past midnight";
    EXPECT_EQ(last(shownBy("Hours", {"8.15 A", "8.15 B"}, "x")), 0.0);
    const std::vector<std::string> week{"E", "8.15 A", "12.05 B", "22.30 A", "6.15 B"};
    const auto then = [&](const std::string& action) {
        std::vector<std::string> actions = week;
        actions.push_back(action);
        return actions;
    };
    EXPECT_EQ(shownBy("Hours", then("C"), "x"), (Lines{box("11.35 hours and minutes"), "x 11.35"}));
    EXPECT_EQ(last(shownBy("Hours", then("20 D"), "x")), 231.67);
}

// By the formulas of compound interest.
TEST_F(SamplePrograms, Growth) {
    const auto of = [&](const std::string& key) {
        return last(shownBy("Growth", {"1000 A", "5 B", "10 C", key}, "x"));
    };
    EXPECT_NEAR(of("D"), 1000.0 * std::pow(1.05, 10), 1e-9);
    EXPECT_NEAR(of("E"), 1000.0 * std::exp(0.5), 1e-9);
    EXPECT_NEAR(of("F"), std::log(2.0) / std::log(1.05), 1e-11);
    EXPECT_NEAR(of("G"), 1.0 / std::log10(1.05), 1e-11);
    EXPECT_NEAR(of("2000 H"), 100.0 * (std::pow(2.0, 0.1) - 1.0), 1e-11);
}

TEST_F(SamplePrograms, Counts) {
    EXPECT_EQ(last(shownBy("Counts", {"52 A", "5 B", "C"}, "x")), 311875200.0);
    EXPECT_EQ(last(shownBy("Counts", {"49 A", "6 B", "D"}, "x")), 13983816.0);
    EXPECT_EQ(last(shownBy("Counts", {"5 E"}, "x")), 120.0);
    // The key's gamma has seven digits where the number is not whole.
    EXPECT_NEAR(last(shownBy("Counts", {"0.5 E"}, "x")), std::sqrt(std::acos(-1.0)) / 2.0, 1e-7);
    const auto refused = shownBy("Counts", {"3 A", "6 B", "C"}, "x");
    EXPECT_EQ(refused.front(), box("There are no 6.00 things to take."));
    EXPECT_TRUE(refused.at(1).find("Stop Statement encountered") != std::string::npos);
}

TEST_F(SamplePrograms, TourOfFormatsMessagesAndTheStack) {
    EXPECT_EQ(shownBy("Tour", {"A"}, "tape format"),
              (Lines{"tape 1 12,345.68", "tape 2 Drop               0.00", "tape 3 12,345.7", "tape 4 1.235e+04",
                     "tape 5 12.346e+03", "format fixed 2 word 64"}));
    EXPECT_EQ(shownBy("Tour", {"B"}, "x y"), (Lines{box("One line,\\nand a second one"),
                                                    box("A long text is written in more than one line of the file."),
                                                    box("X is 5.00,\\nY is 7.00."), "x 5", "y 7"}));
    EXPECT_EQ(shownBy("Tour", {"C"}, "stack"), Lines{"stack 1 3"});
    EXPECT_EQ(shownBy("Tour", {"F"}, "depth"), (Lines{box("That was half a second."), "depth 0"}));
}

TEST_F(SamplePrograms, TourOfTraceMarksAndResets) {
    const auto traced = shownBy("Tour", {"D"}, "tape cmdFunctions(0)");
    EXPECT_EQ(traced.at(traced.size() - 2), "tape 8  mm-               6.00");
    EXPECT_TRUE(traced.back().starts_with("cmdFunctions(0) \"trac\""));
    const std::string trace = readFile(options.data / "Traces/Traced.txt");
    for (const char* line : {" trac", " 2", " 3", " *"}) {
        EXPECT_NE(trace.find(line), std::string::npos) << line << " in\n" << trace;
    }
    const auto marked = shownBy("Tour", {"E"}, "keys");
    EXPECT_EQ(marked.at(15), "key 15 \"format\" plain bold");
    EXPECT_EQ(marked.at(11), "key 11 \"marks\" plain") << "it has taken its own mark off";
    EXPECT_EQ(shownBy("Tour", {"C", "G"}, "depth keypad"), (Lines{"depth 0", "keypad 11 \"Tour.rec\""}));
    EXPECT_EQ(shownBy("Tour", {"C", "I"}, "depth keypad"), (Lines{"depth 0", "keypad 11 \"Tour.rec\""}));
    EXPECT_EQ(shownBy("Tour", {"J"}, "keypad"), Lines{"keypad 0 \"Standard\""});
}

// The total of the time sheet is the register that the tour empties.
TEST_F(SamplePrograms, RegistersLastUntilTheyAreCleared) {
    const auto total = [&](const std::string& key) {
        Lines lines;
        std::vector<HookedLines::Line> steps;
        for (const std::string action : {"answer text Hours", "menu mnuProgram", "type 8.15", "click cmdFunctions(15)",
                                         "type 12.05", "click cmdFunctions(14)", "answer yes", "answer text Tour",
                                         "menu mnuProgram", key.c_str(), "show regs"}) {
            steps.push_back({.text = action, .before = {}});
        }
        steps.back().before = [this] { out.clear(); };
        EXPECT_EQ(runHooked(std::move(steps)), ScriptEnd::Done);
        return out;
    };
    EXPECT_EQ(total("click cmdFunctions(5)").size(), 1U) << "empty leaves them";
    EXPECT_EQ(total("click cmdFunctions(4)"), Lines{});
    EXPECT_EQ(total("click cmdFunctions(22)"), Lines{});
}

/// The programs themselves.
std::vector<std::filesystem::path> samples() {
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(kSourceRoot / "data/programs")) {
        files.push_back(entry.path());
    }
    return files;
}

TEST_F(SamplePrograms, TogetherUseEveryStatementAndWord) {
    std::set<std::string, std::less<>> used;
    std::set<Statement> statements;
    for (const auto& file : samples()) {
        for (const std::string& line : codeOf(readFile(file))) {
            for (const std::string& word : wordsOf(line)) {
                used.insert(word);
                statements.insert(statementOf(word));
            }
        }
    }
    for (const FunctionWord& row : functionWords()) {
        EXPECT_TRUE(used.contains(row.word)) << row.word;
    }
    for (const StatementRow& row : statementRows()) {
        if (row.whole) {
            EXPECT_TRUE(used.contains(row.word)) << row.word;
        } else {
            EXPECT_TRUE(statements.contains(row.statement)) << row.word;
        }
    }
}

TEST_F(SamplePrograms, BeginWithACommentAndAreNamedInTheGuide) {
    const std::string guide = readFile(kSourceRoot / "docs/programs.md");
    std::size_t count = 0;
    for (const auto& file : samples()) {
        SCOPED_TRACE(file);
        const std::string name = file.stem().string();
        EXPECT_TRUE(readFile(file).starts_with("' " + name + ".rec - "));
        EXPECT_NE(guide.find("| " + name + " | "), std::string::npos);
        ++count;
    }
    EXPECT_EQ(count, 16U);
}

}  // namespace
}  // namespace tallyforge
