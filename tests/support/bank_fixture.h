// SPDX-License-Identifier: GPL-3.0-or-later
//
// A calculator with one keypad up, for tests of what the bank's keys do.
#pragma once

#include "support/calculator_fixture.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <initializer_list>
#include <string>
#include <string_view>

namespace tallyforge {

class BankAtHand : public ::testing::Test, protected CalculatorAtHand {
protected:
    void bank(std::size_t key, std::uint8_t mask = 0) { clickWith(mask, form().cmdFunctions.at(key)); }
    /// The press of a key under modifiers that hide it from the mouse.
    void unseen(std::size_t key, std::uint8_t mask) {
        s().modifiers.ModifierMask = mask;
        calc().keypads().cmdFunctions_Click(static_cast<int>(key));
    }
    /// Enters the numbers, those with a minus by the key of the sign.
    void put(std::initializer_list<const char*> numbers) {
        for (const std::string_view number : numbers) {
            const bool negative = number.front() == '-';
            type(number.substr(negative ? 1 : 0));
            if (negative) {
                choose(form().cmdChs);
            }
            press(kKeyEnter, 13);
        }
    }
    /// Enters the numbers, the last one into X, and presses the key.
    void on(std::initializer_list<const char*> operands, std::size_t key, std::uint8_t mask = 0) {
        put(operands);
        bank(key, mask);
    }
    /// X as it reads to a user, as a number.
    double value() { return std::strtod(x().c_str(), nullptr); }
    std::string element(int below) { return calc().text(s().stack.slot(s().stack.StackPtr - 1 - below)); }
    std::string line(std::size_t fromEnd = 0) {
        const auto lines = tape();
        return fromEnd < lines.size() ? lines.at(lines.size() - 1 - fromEnd) : "";
    }
    /// Label of a tape line: what stands before two blanks, or before the value's column.
    std::string label(std::size_t fromEnd = 0) {
        const std::string text = line(fromEnd);
        return text.substr(0, text.find("  "));
    }
    std::string lastBox() { return platform.boxes.empty() ? "" : platform.boxes.back().text; }
    std::string lastTitle() { return platform.boxes.empty() ? "" : platform.boxes.back().title; }
    /// The key says that the modifiers have no meaning for it; tape and stack stay.
    void expectNoMeaning(std::size_t key, std::uint8_t mask) {
        SCOPED_TRACE("key " + std::to_string(key) + " under mask " + std::to_string(mask));
        platform.boxes.clear();
        const auto lines = tape();
        const int depth = s().stack.depth();
        unseen(key, mask);
        ASSERT_EQ(platform.boxes.size(), 1U);
        EXPECT_EQ(lastBox(),
                  "That Extended key (or keys) not valid for that function,\n"
                  "see Help file or tooltip for applicable Extended keys");
        EXPECT_EQ(tape(), lines);
        EXPECT_EQ(s().stack.depth(), depth);
        EXPECT_EQ(x(), "");
    }
    void expectNoMeaning(std::size_t key, std::initializer_list<int> masks) {
        for (const int mask : masks) {
            expectNoMeaning(key, static_cast<std::uint8_t>(mask));
        }
    }
};

}  // namespace tallyforge
