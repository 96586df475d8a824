// SPDX-License-Identifier: GPL-3.0-or-later
//
// The sample programs, run against known answers.
#include "script_fixture.h"

#include <cmath>
#include <filesystem>
#include <map>

namespace tallyforge {
namespace {

class SamplePrograms : public ScriptTest {
protected:
    SamplePrograms() { options.home = std::filesystem::path(TALLYFORGE_SOURCE_ROOT) / "data"; }

    /// Loads `program` and does `actions`: "KEY" presses the key of that letter, anything else is a
    /// number that is typed first: "5 A" types 5 and presses A.
    Lines shownBy(const std::string& program, const std::vector<std::string>& actions, const std::string& show) {
        static const std::map<char, int> kKeys{{'A', 15}, {'B', 14}, {'C', 13}, {'D', 12},
                                               {'E', 11}, {'F', 23}, {'G', 5}};
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

}  // namespace
}  // namespace tallyforge
