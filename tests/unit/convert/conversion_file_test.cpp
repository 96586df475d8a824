// SPDX-License-Identifier: GPL-3.0-or-later
#include "convert/conversion_file.h"

#include "convert/conversion_tables.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>

namespace tallyforge {
namespace {

/// Every second key with a table holds its first conversion, the others remember a pair alone.
ConversionMemory busyMemory() {
    ConversionMemory memory;
    bool held = false;
    for (int key = 0; key < kBankKeys; ++key) {
        const ConversionTable* const table = conversionTableOf(key);
        if (table == nullptr) {
            continue;
        }
        const auto at = static_cast<std::size_t>(key);
        const int group = static_cast<int>(table->groups.size()) - 1;
        const UnitPair pair{group, 1, 0};
        const Sizes sizes = key % 3 == 0 ? Sizes::Exact : Sizes::Table;
        held = !held;
        if (held) {
            memory.keep(*table, pair, sizes, convert(table->group(group), 1, 0, 12.0, sizes), '.');
        }
        memory.former.at(at) = pair;
        memory.sizes.at(at) = sizes;
    }
    return memory;
}

TEST(ConversionFile, WhatIsWrittenIsReadAgainKeyByKey) {
    const ConversionMemory memory = busyMemory();
    ASSERT_TRUE(memory.marked);
    const std::string text = conversionFileText(memory);
    const auto read = readConversionFile(text, '.');
    ASSERT_TRUE(read);
    EXPECT_EQ(read->ConversionFactors, memory.ConversionFactors);
    EXPECT_EQ(read->ConversionLabels, memory.ConversionLabels);
    EXPECT_EQ(read->ConversionCaptions, memory.ConversionCaptions);
    EXPECT_EQ(read->warnings, memory.warnings);
    EXPECT_EQ(read->divides, memory.divides);
    EXPECT_EQ(read->sizes, memory.sizes);
    EXPECT_EQ(read->ConversionMask, memory.ConversionMask);
    EXPECT_EQ(read->TemperatureHeld, memory.TemperatureHeld);
    EXPECT_EQ(read->marked, memory.marked);
    EXPECT_EQ(conversionFileText(*read), text);
}

TEST(ConversionFile, OneOfAnEmptyMemoryIsItsTwoFrames) {
    EXPECT_EQ(conversionFileText({}), "tallyforge conversions 1\nend 0\n");
    EXPECT_TRUE(readConversionFile("tallyforge conversions 1\nend 0\n", '.'));
}

TEST(ConversionFile, ACutOneIsRefused) {
    const std::string text = conversionFileText(busyMemory());
    for (std::size_t length = 0; length < text.size(); ++length) {
        EXPECT_FALSE(readConversionFile(text.substr(0, length), '.')) << length;
    }
}

TEST(ConversionFile, ALineThatNamesWhatThereIsNotIsRefused) {
    const auto reads = [](std::initializer_list<const char*> lines) {
        std::string text = "tallyforge conversions 1\n";
        for (const std::string line : lines) {
            text += line + "\n";
        }
        return readConversionFile(text + "end " + std::to_string(lines.size()) + "\n", '.').has_value();
    };
    EXPECT_TRUE(reads({"15 0 1 0 table held marked"}));
    EXPECT_TRUE(reads({"15 0 0 1 exact free plain"}));
    for (const char* line : {"", "15 0 1 0 table held", "15 0 1 0 table held marked more", "99 0 1 0 table held plain",
                             "-1 0 1 0 table held plain", "15 99 1 0 table held plain", "15 0 999 0 table held plain",
                             "15 0 1 999 table held plain", "15 0 -1 0 table held plain", "15 0 1 1 table held plain",
                             "15x 0 1 0 table held plain", "15 0 1 0 Table held plain", "15 0 1 0 table hold plain",
                             "15 0 1 0 table held mark", "15 0 1 0 table free marked"}) {
        EXPECT_FALSE(reads({line})) << line;
    }
    EXPECT_FALSE(reads({"15 0 1 0 table held plain", "15 0 0 1 table held plain"})) << "a key has one line";
    EXPECT_FALSE(reads({"15 0 1 0 table held marked", "14 0 1 0 table held marked"})) << "one key is marked";
    EXPECT_FALSE(readConversionFile("tallyforge conversions 1\n15 0 1 0 table held plain\nend 2\n", '.'));
    EXPECT_FALSE(readConversionFile("tallyforge conversions 2\nend 0\n", '.'));
    EXPECT_FALSE(readConversionFile("", '.'));
}

}  // namespace
}  // namespace tallyforge
