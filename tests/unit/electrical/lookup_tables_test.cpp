// SPDX-License-Identifier: GPL-3.0-or-later
#include "electrical/lookup_tables.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <string>
#include <vector>

namespace tallyforge {
namespace {

std::vector<std::string> linesOf(const std::string& text) {
    std::istringstream in(text);
    std::vector<std::string> lines;
    for (std::string line; std::getline(in, line);) {
        lines.push_back(line);
    }
    return lines;
}

TEST(LookupTables, EveryListedTableIsPrintedWithTitleHeadingsAndSource) {
    const auto list = linesOf(listOfTables());
    EXPECT_EQ(list.size(), 19U);
    EXPECT_TRUE(std::is_sorted(list.begin(), list.end()));
    for (const std::string& entry : list) {
        SCOPED_TRACE(entry);
        const std::string name = entry.substr(0, entry.find(' '));
        const std::string title = entry.substr(entry.find_first_not_of(' ', name.size()));
        const auto table = printedTable(name);
        ASSERT_TRUE(table.has_value());
        const auto lines = linesOf(*table);
        ASSERT_GE(lines.size(), 3U + 11U);
        EXPECT_EQ(lines.front(), title);
        EXPECT_TRUE(lines.back().starts_with("source: "));
        EXPECT_GT(lines.back().size(), 20U);
    }
    EXPECT_FALSE(printedTable("wire").has_value());
    EXPECT_FALSE(printedTable("").has_value());
}

TEST(LookupTables, SizesStandAsTheyAreKeyed) {
    const auto has = [](std::string_view name, const std::string& line) {
        const auto lines = linesOf(printedTable(name).value_or(""));
        return std::find(lines.begin(), lines.end(), line) != lines.end();
    };
    EXPECT_TRUE(has("wire-heavy", "0000      0.4726"));
    EXPECT_TRUE(has("wire-heavy", "60        0.000402"));
    EXPECT_TRUE(has("half-size-ohms", "4.5       0.000278"));
    EXPECT_TRUE(has("screw-taps", "8.33      29"));
    EXPECT_TRUE(has("letter-drills", "Z         0.413"));
    EXPECT_TRUE(has("stainless-steel", "-5        0.4687"));
    EXPECT_TRUE(has("bundle-factor", "1000      36.5"));
    EXPECT_TRUE(has("wire-bare", "36        0.005"));
    EXPECT_EQ(linesOf(printedTable("wire-ohms").value_or("")).size(), 64U + 3U);
}

}  // namespace
}  // namespace tallyforge
