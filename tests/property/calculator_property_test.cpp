// SPDX-License-Identifier: GPL-3.0-or-later
//
// What must hold for every sequence of keys, not only for those that someone thought of.
#include "engine/number_format.h"
#include "support/calculator_fixture.h"

#include <rapidcheck.h>

#include <gtest/gtest.h>

#include <array>
#include <cmath>

namespace tallyforge {
namespace {

struct HandKey {
    const char* name;
    int keyCode;
    int character;
};

constexpr std::array<HandKey, 34> kHandKeys{{
    {"0", '0', '0'},
    {"1", '1', '1'},
    {"2", '2', '2'},
    {"5", '5', '5'},
    {"9", '9', '9'},
    {".", kKeyPunctuation, '.'},
    {"e", 'E', 'e'},
    {"+", kKeyPunctuation, '+'},
    {"-", kKeyPunctuation, '-'},
    {"*", kKeyPunctuation, '*'},
    {"/", kKeyPunctuation, '/'},
    {"\\", kKeyPunctuation, '\\'},
    {"<", kKeyPunctuation, '<'},
    {">", kKeyPunctuation, '>'},
    {"x", 'X', 'x'},
    {"X", 'X', 'X'},
    {"a", 'A', 'a'},
    {"q", 'Q', 'q'},
    {"#", kKeyPunctuation, '#'},
    {"h", 'H', 'h'},
    {"b", 'B', 'b'},
    {"Enter", kKeyEnter, 13},
    {"Enter", kKeyEnter, 13},
    {"Backspace", kKeyBackspace, 8},
    {"Esc", kKeyEscape, 27},
    {"Delete", kKeyDelete, 0},
    {"End", kKeyEnd, 0},
    {"Insert", kKeyInsert, 0},
    {"Up", kKeyUp, 0},
    {"Down", kKeyDown, 0},
    {"Left", kKeyLeft, 0},
    {"F9", kKeyF9, 0},
    {"F12", kKeyF12, 0},
    {"F12", kKeyF12, 0},
}};

std::vector<int> someKeys() {
    return *rc::gen::container<std::vector<int>>(rc::gen::inRange(0, static_cast<int>(kHandKeys.size())));
}

void play(const CalculatorAtHand& hand, int key) {
    const HandKey& pressed = kHandKeys.at(static_cast<std::size_t>(key));
    hand.press(pressed.keyCode, pressed.character);
}

/// A cell's number, or its text where it has none, for comparison.
std::string asRead(const Engine& calc, const ValueCell& cell) {
    return cell.isEmpty() ? "0" : calc.text(cell);
}

TEST(Properties, TheFourInvariantsHoldAfterEveryCommit) {
    EXPECT_TRUE(rc::check("after each key that committed a number", [] {
        CalculatorAtHand hand;
        const Engine& calc = hand.calc();
        bool wroteBelowTheStack = false;
        // A last x that there never was is an empty cell, and is brought back as that.
        bool pushedNothing = false;
        for (const int key : someKeys()) {
            const std::size_t lines = calc.tape.lines();
            const std::size_t boxes = hand.platform.boxes.size();
            const int depth = hand.s().depth();
            pushedNothing |=
                kHandKeys.at(static_cast<std::size_t>(key)).keyCode == kKeyInsert && hand.s().LastX.isEmpty();
            play(hand, key);
            const EngineState& s = hand.s();
            RC_ASSERT(s.depth() >= 0);
            RC_ASSERT(s.Stack.size() >= static_cast<std::size_t>(s.StackPtr) + 1);
            RC_ASSERT(!s.EntryOpen || !calc.form.txtXreg.text.empty());
            RC_ASSERT(calc.form.txtXreg.text.size() <= 22U);
            wroteBelowTheStack |= s.depth() == 0 && depth <= 1;
            const bool committed = calc.tape.lines() > lines && hand.platform.boxes.size() == boxes;
            if (!committed || s.depth() == 0 || s.Xreg.isEmptyText()) {
                continue;
            }
            RC_ASSERT(asRead(calc, s.slot(s.StackPtr - 1)) == asRead(calc, s.Xreg));
            RC_ASSERT(asRead(calc, s.Yreg) == asRead(calc, s.slot(s.StackPtr - 2)));
            RC_ASSERT(calc.form.txtXreg.text.empty() == !s.EntryOpen);
            RC_ASSERT(wroteBelowTheStack || s.slot(0).isEmpty());
            for (int element = 1; element < s.StackPtr; ++element) {
                RC_ASSERT(pushedNothing || !s.slot(element).isEmpty());
            }
        }
    }));
}

TEST(Properties, ResetAndUndoBringBackWhatWasThere) {
    EXPECT_TRUE(rc::check("stack, tape, values, registers and names", [] {
        CalculatorAtHand hand;
        for (const int key : someKeys()) {
            play(hand, key);
        }
        hand.press(kKeyEscape, 27);
        for (const int number : *rc::gen::container<std::vector<int>>(rc::gen::inRange(1, 25))) {
            hand.type(std::to_string(number));
            hand.clickWith(kShift, hand.form().cmdSTO);
        }
        const auto before = hand.everything();
        hand.clickWith(kAlt, hand.form().cmdReset);
        RC_ASSERT(hand.calc().tape.lines() == 0U);
        hand.clickWith(kShift | kCtrl | kAlt, hand.form().cmdReset);
        RC_ASSERT(hand.everything() == before);
    }));
}

TEST(Properties, ANumbersTextReadsBackToItsDigits) {
    EXPECT_TRUE(rc::check("fifteen digits there and back, in both locales", [] {
        const auto mantissa = *rc::gen::inRange<std::int64_t>(-999999999999999, 1000000000000000);
        const auto exponent = *rc::gen::inRange(-290, 290);
        const char decimal = *rc::gen::element('.', ',');
        const double value = readNumber(std::to_string(mantissa) + "e" + std::to_string(exponent), '.');
        const std::string text = plainText(value, decimal);
        RC_ASSERT(plainText(readNumber(text, decimal), decimal) == text);
        RC_ASSERT(readNumber(text, decimal) == value);
    }));
}

TEST(Properties, AFixedTextIsTheNearestOfItsPlaces) {
    EXPECT_TRUE(rc::check("never further away than half a place", [] {
        const auto mantissa = *rc::gen::inRange<std::int64_t>(-999999999, 1000000000);
        const int places = *rc::gen::inRange(0, 10);
        const double value = static_cast<double>(mantissa) / 1e6;
        const double shown = readNumber(fixedText(value, places), '.');
        // A value may lie half way between two texts but for its own last bit, and the text read back is rounded again.
        const double lastBit = std::nextafter(std::abs(value), HUGE_VAL) - std::abs(value);
        RC_ASSERT(std::abs(shown - value) <= 0.5 * std::pow(10.0, -places) + lastBit);
    }));
}

}  // namespace
}  // namespace tallyforge
