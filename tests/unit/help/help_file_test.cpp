// SPDX-License-Identifier: GPL-3.0-or-later
#include "help/help_file.h"

#include <gtest/gtest.h>

#include <string>

namespace tallyforge {
namespace {

std::vector<HelpPage> somePages() {
    HelpPage sine{.title = "Sine", .name = "sine", .file = "trig", .topics = {1506, 9999}, .index = {"sine", "√"}};
    sine.words = {"sin"};
    sine.dialogs = {"frmArc"};
    sine.messages = {"Redo!"};
    sine.body = "The sine.\n";
    return {sine, HelpPage{.title = "Cosine", .name = "cosine"}};
}

TEST(HelpFile, ComesBackAsItWasWritten) {
    const auto pages = readHelpFile(writeHelpFile(somePages()));
    ASSERT_TRUE(pages.has_value());
    EXPECT_EQ(*pages, somePages());
}

TEST(HelpFile, ABookWithoutAPageIsOne) {
    const auto pages = readHelpFile(writeHelpFile({}));
    ASSERT_TRUE(pages.has_value());
    EXPECT_TRUE(pages->empty());
}

TEST(HelpFile, IsRefusedWhereverAByteIsChangedOrItIsCut) {
    const std::string whole = writeHelpFile(somePages());
    for (std::size_t i = 0; i < whole.size(); ++i) {
        std::string changed = whole;
        changed[i] = static_cast<char>(changed[i] ^ 0x41);
        EXPECT_FALSE(readHelpFile(changed).has_value()) << i;
        EXPECT_FALSE(readHelpFile(whole.substr(0, i)).has_value() && i + 1 < whole.size() && i > 30) << i;
    }
    EXPECT_FALSE(readHelpFile("").has_value());
}

TEST(HelpFile, LengthsAndCountsAreNotTrustedThoughTheChecksumHolds) {
    EXPECT_TRUE(readHelpFileContents("").has_value());
    EXPECT_FALSE(readHelpFileContents("\xFF\xFF\xFF\xFF").has_value());
    EXPECT_FALSE(readHelpFileContents(std::string(12, '\0') + "\xFF\xFF\xFF\x7F").has_value());
    EXPECT_FALSE(readHelpFileContents(std::string("\x01\0\0\0\xFF", 5) + std::string(40, '\0')).has_value());
    // A topic far beyond any.
    EXPECT_FALSE(readHelpFileContents(std::string(12, '\0') + std::string("\x01\0\0\0\xFF\xFF\xFF\xFF", 8) +
                                      std::string(20, '\0'))
                     .has_value());
}

}  // namespace
}  // namespace tallyforge
