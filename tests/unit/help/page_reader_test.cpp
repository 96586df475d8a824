// SPDX-License-Identifier: GPL-3.0-or-later
#include "help/page_reader.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace tallyforge {
namespace {

constexpr std::string_view kTwo =
    "# Sine and arc sine\n"
    "topics: 1506 1507\n"
    "name: sine\n"
    "index: sine, arc sine\n"
    "words: sin asin\n"
    "dialogs: frmOne frmTwo\n"
    "messages: \"Redo!\" | Entry Error!\n"
    "\n"
    "The sine.\n"
    "\n"
    "# Cosine\n"
    "name: cosine\n"
    "index: cosine\n"
    "The cosine.\n";

/// The reason that a text is refused for, with its line.
std::string refusal(std::string_view text) {
    try {
        static_cast<void>(readHelpPages(text, "file"));
    } catch (const HelpSourceError& error) {
        return std::to_string(error.line) + ": " + error.reason;
    }
    return "taken";
}

TEST(PageReader, ReadsHeadersAndBodies) {
    const auto pages = readHelpPages(kTwo, "trigonometry");
    ASSERT_EQ(pages.size(), 2U);
    EXPECT_EQ(pages[0].title, "Sine and arc sine");
    EXPECT_EQ(pages[0].name, "sine");
    EXPECT_EQ(pages[0].file, "trigonometry");
    EXPECT_EQ(pages[0].topics, (std::vector<int>{1506, 1507}));
    EXPECT_EQ(pages[0].index, (std::vector<std::string>{"sine", "arc sine"}));
    EXPECT_EQ(pages[0].words, (std::vector<std::string>{"sin", "asin"}));
    EXPECT_EQ(pages[0].dialogs, (std::vector<std::string>{"frmOne", "frmTwo"}));
    EXPECT_EQ(pages[0].messages, (std::vector<std::string>{"Redo!", "Entry Error!"}));
    EXPECT_EQ(pages[0].body, "\nThe sine.\n\n");
    EXPECT_EQ(pages[1].body, "The cosine.\n");
}

TEST(PageReader, AMarkOfATitleWithinABlockBeginsNoPage) {
    const auto pages = readHelpPages("# A\nname: a\nindex: a\n\n```text\n## x\n```\nend\n", "f");
    ASSERT_EQ(pages.size(), 1U);
    EXPECT_NE(pages[0].body.find("## x"), std::string::npos);
}

TEST(PageReader, TellsWhatIsWrongAndWhere) {
    EXPECT_EQ(refusal("text\n"), "1: text before the first page");
    EXPECT_EQ(refusal("# A\nindex: a\n"), "2: page 'A' has no name of small letters, digits and '-'");
    EXPECT_EQ(refusal("# A\nname: Big\nindex: a\n"), "3: page 'A' has no name of small letters, digits and '-'");
    EXPECT_EQ(refusal("# A\nname: a\n\n"), "2: page 'A' has no entry in the index");
    EXPECT_EQ(refusal("# A\nname: a\nindex: a\ntopics: 12x\n"), "3: no topic: 12x");
    EXPECT_EQ(refusal("# A\nname: a\nindex: a\ntopisc: 12\n"), "3: unknown line in a page's header: topisc: 12");
    EXPECT_EQ(refusal("# A\nname: a\nindex: a\n\n```keys\ntype 1\n"), "6: a block is not closed");
    EXPECT_EQ(refusal("# A\nname: a\nindex: a\n\n```keys\n```\n"), "6: an example without its output");
    EXPECT_EQ(refusal("# A\nname: a\nindex: a\n\n```out\n```\n"),
              "5: an example is a block of keys and then one of its output");
    EXPECT_EQ(refusal("# A\nname: a\nindex: a\n\n```c\n```\n"), "5: unknown block 'c'");
    EXPECT_EQ(refusal("# A\nname: a\nindex: \xFF\n"), "0: bytes that are not UTF-8");
}

TEST(PageReader, KnowsUtf8) {
    EXPECT_TRUE(isUtf8("a √ Γ °"));
    EXPECT_TRUE(isUtf8("\xF0\x9F\x98\x80"));
    EXPECT_FALSE(isUtf8("\xE2\x88"));
    EXPECT_FALSE(isUtf8("\x80"));
    EXPECT_FALSE(isUtf8("\xC0\x80"));
    EXPECT_FALSE(isUtf8("\xF8\x80\x80\x80\x80"));
}

}  // namespace
}  // namespace tallyforge
