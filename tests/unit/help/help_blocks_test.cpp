// SPDX-License-Identifier: GPL-3.0-or-later
#include "help/help_page.h"

#include <gtest/gtest.h>

namespace tallyforge {
namespace {

using Kind = HelpBlock::Kind;

TEST(HelpBlocks, AParagraphIsWhatStandsBetweenEmptyLines) {
    const auto blocks = helpBlocks("One line\nand another.\n\nA second.\n");
    ASSERT_EQ(blocks.size(), 2U);
    EXPECT_EQ(blocks[0].text, "One line and another.");
    EXPECT_EQ(blocks[1].text, "A second.");
}

TEST(HelpBlocks, FactsStandEachOnALineOfItsOwnAndProseGoesOnBehindThem) {
    const auto blocks = helpBlocks("Stack: `x` → `sin x`\nRange: all x\nNote: this is prose.\n");
    ASSERT_EQ(blocks.size(), 2U);
    ASSERT_EQ(blocks[0].kind, Kind::Facts);
    ASSERT_EQ(blocks[0].facts.size(), 2U);
    EXPECT_EQ(blocks[0].facts[0].label, "Stack");
    EXPECT_EQ(blocks[0].facts[0].text, "`x` → `sin x`");
    EXPECT_EQ(blocks[0].facts[1].text, "all x");
    EXPECT_EQ(blocks[1].text, "Note: this is prose.");
}

TEST(HelpBlocks, AListItemTakesTheLinesThatGoOnWithIt) {
    const auto blocks = helpBlocks("Before:\n- first\n  goes on\n- second\n");
    ASSERT_EQ(blocks.size(), 2U);
    EXPECT_EQ(blocks[1].items, (std::vector<std::string>{"first goes on", "second"}));
}

TEST(HelpBlocks, ATableHasRowsOfCellsWithoutTheRuleBelowItsHeads) {
    const auto blocks = helpBlocks("| Unit | Size |\n|------|-----:|\n| `a|b` | 1\\|2 |\n");
    ASSERT_EQ(blocks.size(), 1U);
    ASSERT_EQ(blocks[0].rows.size(), 2U);
    EXPECT_EQ(blocks[0].rows[0], (std::vector<std::string>{"Unit", "Size"}));
    EXPECT_EQ(blocks[0].rows[1], (std::vector<std::string>{"`a|b`", "1|2"}));
}

TEST(HelpBlocks, AnExampleIsAScriptAndItsOutput) {
    const auto blocks = helpBlocks("```keys\ntype 2\n## no heading\n```\n\n```out\nx 2\n```\n```text\nas it is\n```\n");
    ASSERT_EQ(blocks.size(), 2U);
    EXPECT_EQ(blocks[0].kind, Kind::Example);
    EXPECT_EQ(blocks[0].example.keys, "type 2\n## no heading\n");
    EXPECT_EQ(blocks[0].example.out, "x 2\n");
    EXPECT_EQ(blocks[1].kind, Kind::Verbatim);
    EXPECT_EQ(blocks[1].text, "as it is\n");
}

TEST(HelpBlocks, ABlockThatNothingClosesEndsWithTheText) {
    const auto blocks = helpBlocks("## Example\n```keys\ntype 2");
    ASSERT_EQ(blocks.size(), 2U);
    EXPECT_EQ(blocks[0].level, 2);
    EXPECT_EQ(blocks[1].example.keys, "type 2\n");
}

TEST(HelpBlocks, AHeadingSaysWhichModifiersItIsAbout) {
    EXPECT_EQ(maskHeading("Key: Sine")->mask, 0);
    EXPECT_EQ(maskHeading("Shift: Arc sine")->mask, 1);
    EXPECT_EQ(maskHeading("Ctrl: Hyperbolic sine")->text, "Hyperbolic sine");
    EXPECT_EQ(maskHeading("Shift+Ctrl: Its inverse")->mask, 3);
    EXPECT_EQ(maskHeading("Alt: a")->mask, 4);
    EXPECT_EQ(maskHeading("Shift+Alt: a")->mask, 5);
    EXPECT_EQ(maskHeading("Ctrl+Alt: a")->mask, 6);
    EXPECT_EQ(maskHeading("Shift+Ctrl+Alt: a")->mask, 7);
    EXPECT_FALSE(maskHeading("Example").has_value());
    EXPECT_FALSE(maskHeading("Note: a").has_value());
}

}  // namespace
}  // namespace tallyforge
