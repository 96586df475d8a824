// SPDX-License-Identifier: GPL-3.0-or-later
#include "key_look_expectations.h"
#include "keypad_expectations.h"
#include "keypads_fixture.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <set>

namespace tallyforge {
namespace {

class KeypadTables : public KeypadsTest {
protected:
    std::string shown() {
        std::string all;
        for (const Control& key : calc.form.cmdFunctions) {
            if (key.visible) {
                all += (all.empty() ? "" : "\t") + std::to_string(key.index) + "=" + toUnicode(key.text, key.font.face);
            }
        }
        return all;
    }
    /// The font of a key's caption under a mask.
    static Face faceUnder(const ShownKey& key, int mask) {
        // What stays under a modifier stays in its font; key 2 and the Tables keypad do.
        if (mask == 0 || key.keypad == static_cast<int>(Keypad::Tables) || key.key <= 2) {
            return key.face;
        }
        const auto* const glyphs = std::find_if(
            std::begin(kShownGlyphs), std::end(kShownGlyphs),
            [&](const ShownGlyphs& row) { return row.keypad == key.keypad && row.mask == mask && row.key == key.key; });
        return glyphs == std::end(kShownGlyphs) ? Face::Arial : glyphs->face;
    }
};

TEST_F(KeypadTables, EveryKeyOfEveryKeypadReadsRightUnderEveryMask) {
    int keys = 0;
    for (const ShownBank& bank : kShownBanks) {
        keypads.ShowKeypad(static_cast<Keypad>(bank.keypad));
        if (bank.mask != 0) {
            hold(static_cast<std::uint8_t>(bank.mask));
        }
        EXPECT_EQ(shown(), bank.keys) << "keypad " << bank.keypad << " mask " << bank.mask;
        letGo();
        keys += kBankKeys;
    }
    EXPECT_EQ(keys, 7 * 8 * kBankKeys);
}

TEST_F(KeypadTables, RowsStandInKeyOrderWithATipAndATopicOfTheirOwn) {
    std::set<int> topics;
    for (const KeypadTable* table : keypadTables()) {
        for (int key = 0; key < kBankKeys; ++key) {
            const KeyRow& row = table->rows.at(static_cast<std::size_t>(key));
            EXPECT_EQ(row.key, key) << table->name;
            EXPECT_FALSE(row.tip.empty()) << table->name << " " << key;
            EXPECT_FALSE(row.caption.text.empty()) << table->name << " " << key;
            EXPECT_TRUE(topics.insert(row.helpTopic).second) << row.helpTopic;
        }
    }
}

TEST_F(KeypadTables, EveryKeyHasItsTipItsFontAndItsColourUnderEveryMask) {
    ASSERT_EQ(std::size(kShownKeys), 7U * kBankKeys);
    for (const ShownKey& wanted : kShownKeys) {
        const Control& key = bank(static_cast<std::size_t>(wanted.key));
        for (int mask = 0; mask < 8; ++mask) {
            SCOPED_TRACE(std::to_string(wanted.keypad) + " key " + std::to_string(wanted.key) + " mask " +
                         std::to_string(mask));
            // Shown anew for each mask: a font that is left over from the one before would be seen.
            keypads.ShowKeypad(static_cast<Keypad>(wanted.keypad));
            keypads.PaintModifiers(static_cast<std::uint8_t>(mask));
            if (wanted.tip != kByUnit) {
                EXPECT_EQ(toUnicode(key.tip, Face::Arial), wanted.tip);
            }
            EXPECT_EQ(key.colour, wanted.colour);
            if (key.visible) {
                EXPECT_EQ(key.font, (Font{.face = faceUnder(wanted, mask), .points = 10.0F, .bold = false}));
            }
        }
    }
}

TEST_F(KeypadTables, KeysThatWriteTheTapeThemselvesTakeTheirOperandSilently) {
    using Keys = std::set<int>;
    const std::map<Keypad, Keys> wanted{
        {Keypad::Standard, {7, 10, 17, 19}},
        {Keypad::Engineering, {5, 9, 13, 14, 15, 19, 20, 22, 23}},
        {Keypad::Trigonometry, {5, 11, 12, 13, 14, 15, 23}},
        {Keypad::Magnetics, {4, 8, 9, 11, 12, 13, 17, 18, 21, 23}},
        {Keypad::Binary, {}},
        {Keypad::Convert, {}},
        {Keypad::Tables, {}},
    };
    for (const auto& [keypad, keys] : wanted) {
        Keys found;
        for (const KeyRow& row : keypadTable(keypad).rows) {
            if (row.silentOperand) {
                found.insert(row.key);
            }
        }
        EXPECT_EQ(found, keys) << static_cast<int>(keypad);
    }
}

TEST_F(KeypadTables, EveryCaptionOfAKeyWithAFunctionAMaskHasItsFunction) {
    constexpr std::uint8_t kLastMask = 7;
    int rows = 0;
    for (const KeypadTable* table : keypadTables()) {
        for (const KeyRow& row : table->rows) {
            for (std::uint8_t mask = 1; mask <= kLastMask; ++mask) {
                const KeyCaption& under = row.under.at(mask);
                EXPECT_TRUE(row.does == nullptr || row.plain == nullptr)
                    << table->name << " " << row.key << ": one way or the other";
                EXPECT_EQ(row.functionUnder(mask), under.does != nullptr ? under.does : row.does);
                EXPECT_TRUE(under.text.empty() || row.functionUnder(mask) != nullptr || row.types.shift != '\0')
                    << table->name << " " << row.key << " under " << static_cast<int>(mask);
            }
            rows += row.plain != nullptr ? 1 : 0;
        }
    }
    EXPECT_GT(rows, 70);
}

}  // namespace
}  // namespace tallyforge
