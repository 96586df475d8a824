// SPDX-License-Identifier: GPL-3.0-or-later
#include "keypad_expectations.h"
#include "keypads_fixture.h"

#include <map>
#include <set>
#include <sstream>

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

TEST_F(KeypadTables, YellowAndLightBlueKeysAreWhereTheyBelong) {
    using Keys = std::set<int>;
    const std::map<Keypad, std::pair<Keys, Keys>> wanted{
        {Keypad::Standard, {{18}, {}}},
        {Keypad::Engineering, {{6, 7, 10, 11, 16, 17, 18, 21}, {9, 20, 22}}},
        {Keypad::Trigonometry, {{8}, {}}},
        {Keypad::Convert, {{}, {19}}},
        {Keypad::Magnetics, {{5, 6, 7, 16, 22}, {11, 12, 13, 15, 23}}},
        {Keypad::Binary, {}},
        {Keypad::Tables, {}},
    };
    for (const auto& [keypad, colours] : wanted) {
        std::pair<Keys, Keys> found;
        for (const KeyRow& row : keypadTable(keypad).rows) {
            if (row.colour == KeyColour::Yellow) {
                found.first.insert(row.key);
            } else if (row.colour == KeyColour::Blue) {
                found.second.insert(row.key);
            }
        }
        EXPECT_EQ(found, colours) << static_cast<int>(keypad);
    }
}

TEST_F(KeypadTables, KeysThatWriteTheTapeThemselvesTakeTheirOperandSilently) {
    using Keys = std::set<int>;
    const std::map<Keypad, Keys> wanted{
        {Keypad::Standard, {7, 10, 17, 19}},
        {Keypad::Engineering, {5, 9, 13, 14, 15, 19, 20, 23}},
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

}  // namespace
}  // namespace tallyforge
