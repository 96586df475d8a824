// SPDX-License-Identifier: GPL-3.0-or-later
//
// The exact sizes against GNU units (Debian package "units"), and some against qalc; skipped where
// they are not installed.
#include "convert/conversion_tables.h"
#include "dialogs/conversion.h"
#include "platform/text.h"
#include "support/temporary_folder.h"
#include "unit/convert/gnu_expressions.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <memory>
#include <string>
#include <utility>
#include <vector>

using namespace tallyforge;

namespace {

bool installed(const std::string& program) {
    return std::system(("command -v " + program + " >/dev/null 2>&1").c_str()) == 0;
}

std::vector<std::string> linesOf(const std::string& command) {
    std::vector<std::string> lines;
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> pipe(popen(command.c_str(), "r"), pclose);
    std::string line;
    for (int each = std::fgetc(pipe.get()); each != EOF; each = std::fgetc(pipe.get())) {
        if (each == '\n') {
            lines.push_back(std::exchange(line, {}));
        } else {
            line.push_back(static_cast<char>(each));
        }
    }
    return lines;
}

const UnitGroup& groupOf(const gnu::Group& group) {
    return conversionTableOf(group.key)->group(group.group);
}

/// What the other program's size of a unit would be as this calculator's exact value.
double asExact(const UnitGroup& group, double size) {
    return group.measure == Measure::Count ? 1.0 / size : size;
}

}  // namespace

TEST(GnuUnits, AgreesWithEveryExactSize) {
    if (!installed("units")) {
        GTEST_SKIP() << "units is not installed";
    }
    const TemporaryFolder folder;
    const std::string questions = (folder.path / "questions").string();
    {
        std::ofstream out(questions);
        for (const gnu::Group& group : gnu::kGroups) {
            for (const std::string_view expression : group.expressions) {
                out << expression << '\n' << group.base << '\n';
            }
        }
    }
    const auto answers = linesOf("units -q -1 -t -o %.15g <'" + questions + "'");
    std::size_t at = 0;
    for (const gnu::Group& group : gnu::kGroups) {
        const UnitGroup& ours = groupOf(group);
        ASSERT_EQ(group.expressions.size(), ours.units.size()) << ours.heading;
        for (const Unit& unit : ours.units) {
            ASSERT_LT(at, answers.size());
            const double theirs = asExact(ours, std::strtod(answers[at].c_str(), nullptr));
            // Rounded constants (lusec, sidereal times, Rydberg) differ in the seventh digit.
            EXPECT_NEAR(static_cast<double>(unit.exact) / theirs, 1.0, 2e-7)
                << toUnicode(unit.from, Face::Arial) << ": " << answers[at];
            ++at;
        }
    }
    EXPECT_EQ(at, answers.size());
}

TEST(Qalc, AgreesWithSomeExactSizes) {
    if (!installed("qalc")) {
        GTEST_SKIP() << "qalc is not installed";
    }
    struct Row {
        const ConversionTable& table;
        int group;
        int unit;
        const char* question;
    };
    const Row rows[] = {{kLengthTable, 0, 45, "1 mile to m"},       {kLengthTable, 0, 56, "1 lightyear to m"},
                        {kLengthTable, 0, 57, "1 parsec to m"},     {kMassTable, 0, 11, "1 oz_t to kg"},
                        {kVolumeTable, 0, 22, "1 gallon to m^3"},   {kPressureTable, 0, 15, "1 psi to Pa"},
                        {kEnergyTable, 0, 0, "1 electronvolt to J"}};
    for (const Row& row : rows) {
        const auto answer =
            linesOf(std::string("qalc -t -s 'precision 15' '") + row.question + "' 2>/dev/null </dev/null");
        ASSERT_FALSE(answer.empty()) << row.question;
        const double theirs = std::strtod(answer.back().c_str(), nullptr);
        const auto ours = static_cast<double>(row.table.group(row.group).at(row.unit).exact);
        EXPECT_NEAR(ours / theirs, 1.0, 1e-14) << row.question << ": " << answer.back();
    }
}
