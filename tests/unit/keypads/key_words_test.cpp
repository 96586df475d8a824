// SPDX-License-Identifier: GPL-3.0-or-later
//
// Every key says in words what it does.
#include "keypads/caption_words.h"
#include "keypads/keypad_table.h"
#include "platform/text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>

namespace tallyforge {
namespace {

std::string read(const KeyCaption& caption) {
    std::string text = toUnicode(caption.text, caption.face);
    std::replace(text.begin(), text.end(), '\n', ' ');
    return text;
}

TEST(KeyWords, NoKeyOfAnyKeypadIsWithoutWordsUnderAnyMask) {
    int meanings = 0;
    for (const KeypadTable* table : keypadTables()) {
        for (const KeyRow& row : table->rows) {
            for (std::uint8_t mask = 0; mask < 8; ++mask) {
                const KeyCaption& caption = mask == 0 || row.common ? row.caption : row.under.at(mask);
                if (caption.text.empty()) {
                    continue;
                }
                ++meanings;
                EXPECT_FALSE(keyWords(table->id, row.key, mask, read(caption)).empty())
                    << table->name << " key " << row.key << " mask " << int{mask} << " '" << read(caption) << "'";
            }
        }
    }
    EXPECT_GT(meanings, 500);
}

TEST(KeyWords, MasksOfOneKeyAreToldApart) {
    for (const KeypadTable* table : keypadTables()) {
        if (table->id != Keypad::Engineering && table->id != Keypad::Magnetics) {
            continue;
        }
        for (const KeyRow& row : table->rows) {
            if (row.common || row.key == 3) {
                continue;
            }
            std::set<std::string> told;
            for (std::uint8_t mask = 0; mask < 8; ++mask) {
                if (mask == 0 || !row.under.at(mask).text.empty()) {
                    const std::string words = keyWords(table->id, row.key, mask, "");
                    EXPECT_TRUE(told.insert(words).second) << table->name << " " << row.key << " " << words;
                }
            }
        }
    }
}

TEST(KeyWords, AQuantityIsNamedWithItsKey) {
    EXPECT_EQ(keyWords(Keypad::Engineering, 5, 0, "Ri"), "Parallel resistors, total");
    EXPECT_EQ(keyWords(Keypad::Engineering, 5, 3, "R1"), "Parallel resistors, R1, anew");
    EXPECT_EQ(keyWords(Keypad::Engineering, 7, 0, "Ω"), "Ohm's law calculator");
    EXPECT_EQ(keyWords(Keypad::Engineering, 7, 4, "E"), "Ohm's law, x is voltage");
    EXPECT_EQ(keyWords(Keypad::Magnetics, 12, 1, "dia"), "Mean length of a turn, outer size, anew");
    EXPECT_EQ(keyWords(Keypad::Tables, 21, 1, "Bits"), "Drill by letter");
    EXPECT_EQ(keyWords(Keypad::Tables, 5, 2, "Stl Wire"), "") << "refused there";
    EXPECT_EQ(keyWords(Keypad::Standard, 14, 1, "e^x"), "e to the power of x");
}

}  // namespace
}  // namespace tallyforge
