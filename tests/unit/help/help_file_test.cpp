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

/// A file of these contents with the head and the checksum that belong to them.
std::string sealed(const std::string& contents) {
    const std::string empty = writeHelpFile({});
    std::uint64_t sum = 0xCBF29CE484222325U;
    for (const char c : contents) {
        sum = (sum ^ static_cast<unsigned char>(c)) * 0x100000001B3U;
    }
    std::string file = empty.substr(0, empty.size() - 8);
    for (int i = 0; i < 8; ++i) {
        file += static_cast<char>((sum >> (8 * i)) & 0xFFU);
    }
    return file + contents;
}

TEST(HelpFile, LengthsAndCountsAreNotTrustedThoughTheChecksumHolds) {
    EXPECT_TRUE(readHelpFile(sealed("")).has_value());
    EXPECT_FALSE(readHelpFile(sealed("\xFF\xFF\xFF\xFF")).has_value());
    EXPECT_FALSE(readHelpFile(sealed(std::string(12, '\0') + "\xFF\xFF\xFF\x7F")).has_value());
    EXPECT_FALSE(readHelpFile(sealed(std::string("\x01\0\0\0\xFF", 5) + std::string(40, '\0'))).has_value());
    // A topic far beyond any.
    EXPECT_FALSE(readHelpFile(sealed(std::string(12, '\0') + std::string("\x01\0\0\0\xFF\xFF\xFF\xFF", 8) +
                                     std::string(20, '\0')))
                     .has_value());
}

}  // namespace
}  // namespace tallyforge
