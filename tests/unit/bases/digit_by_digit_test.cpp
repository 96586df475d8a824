// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the calculator counts in machine integers, compared with the digits on paper over millions
// of numbers, in all bases and word sizes.
#include "bases/base_number.h"
#include "bases/binary_keys.h"
#include "digit_text.h"
#include "engine/engine.h"
#include "support/test_platform.h"

#include <gtest/gtest.h>

#include <array>
#include <bitset>
#include <cstdint>
#include <random>
#include <string>
#include <string_view>
#include <utility>

namespace tallyforge {
namespace {

constexpr std::string_view kLetters = "bdho";
constexpr char kPlain = ' ';
constexpr std::size_t kWord = 64;

std::string taggedText(const std::string& bits, char letter) {
    return "#" + digit_text::fromBits(bits, letter) + letter;
}

std::string failureText(FailureNumber number) {
    return "failure " + std::to_string(static_cast<int>(number));
}

/// An operand: a number of a base, or a plain whole number that was typed.
struct Operand {
    Operand(std::string itsBits, char itsLetter)
        : bits(std::move(itsBits)),
          letter(itsLetter),
          text(letter == kPlain ? digit_text::bitsToDecimal(bits) : taggedText(bits, letter)) {}
    std::string bits;
    char letter;
    std::string text;
};

/// The same draws in every run.
class Draw {
public:
    /// Bits of every length up to `longest`, among them the largest number and its neighbours.
    std::string bits(std::size_t longest = kWord) {
        static const std::array<std::string, 9> kEdges{"0",
                                                       "1",
                                                       "10",
                                                       std::string(kWord, '1'),
                                                       std::string(kWord - 1, '1') + "0",
                                                       std::string(kWord - 2, '1') + "01",
                                                       std::string(kWord - 1, '1'),
                                                       "1" + std::string(kWord - 1, '0'),
                                                       "1" + std::string(kWord - 2, '0') + "1"};
        if (upTo(16) == 0) {
            return kEdges.at(upTo(kEdges.size()));
        }
        std::string drawn(1 + upTo(longest), '0');
        for (std::size_t at = 0; at < drawn.size(); at += kWord) {
            const std::string word = std::bitset<kWord>(random_()).to_string();
            drawn.replace(at, std::min(kWord, drawn.size() - at), word, 0, std::min(kWord, drawn.size() - at));
        }
        return digit_text::trimmed(drawn);
    }
    char letter() { return kLetters[upTo(kLetters.size())]; }
    Operand tagged() { return {bits(), letter()}; }
    /// One in five is plain.
    Operand operand() { return upTo(5) == 0 ? Operand{bits(), kPlain} : tagged(); }
    int wordSize() { return static_cast<int>(4 + upTo(61)); }
    std::size_t upTo(std::size_t count) { return random_() % count; }

private:
    std::mt19937_64 random_{20261121};
};

/// What `action` gives, or the number of its failure.
template <typename Action>
std::string outcome(Action action) {
    try {
        return std::string{action()};
    } catch (const Failure& failure) {
        return failureText(failure.number());
    }
}

TEST(DigitByDigit, ConversionsAgreeInAllBasesBothWays) {
    Draw draw;
    for (int i = 0; i < 200000; ++i) {
        const std::string bits = draw.bits();
        const std::uint64_t value = std::bitset<kWord>(bits).to_ullong();
        for (const char letter : kLetters) {
            const std::string digits = digit_text::fromBits(bits, letter);
            ASSERT_EQ(writeDigits(value, letter), digits);
            ASSERT_EQ(std::bitset<kWord>(readDigits(digits, letter)), std::bitset<kWord>(bits)) << digits << letter;
            ASSERT_EQ(digit_text::toBits(digits, letter), bits) << "the digits on paper, there and back";
        }
        const char letter = draw.letter();
        const std::string decimal = digit_text::bitsToDecimal(bits);
        ASSERT_EQ(ConvertBin(taggedText(bits, letter)), decimal);
        ASSERT_EQ(Real2Bin(decimal, letter, '.'), digit_text::fromBits(bits, letter));
    }
}

TEST(DigitByDigit, NumbersBeyondTheWordAreRefusedInAllBases) {
    Draw draw;
    for (int i = 0; i < 5000; ++i) {
        const std::string bits =
            "1" + std::string(draw.upTo(2) * draw.upTo(40), '0') + digit_text::padded(draw.bits(), kWord);
        for (const char letter : kLetters) {
            const FailureNumber expected = letter == kBinary ? FailureNumber::BaseRange : FailureNumber::Overflow;
            ASSERT_EQ(outcome([&] { return ConvertBin(taggedText(bits, letter)); }), failureText(expected));
        }
        ASSERT_TRUE(ExceedsWord(digit_text::bitsToDecimal(bits)));
        ASSERT_FALSE(ExceedsWord(digit_text::bitsToDecimal(bits.substr(bits.size() - kWord))));
    }
}

TEST(DigitByDigit, TheCutToAWordIsTheRightEndOfTheBits) {
    Draw draw;
    for (int i = 0; i < 250000; ++i) {
        const std::string bits = draw.bits(100);
        const char letter = draw.letter();
        const int word = draw.wordSize();
        const std::string typed = std::string(draw.upTo(3), '0') + digit_text::fromBits(bits, letter);
        const bool whole = word == static_cast<int>(kWord);
        const std::string kept = whole ? bits : digit_text::rightmost(bits, static_cast<std::size_t>(word));
        ASSERT_EQ(cutToWord(typed, letter, word), digit_text::fromBits(kept, letter))
            << typed << letter << " word " << word;
    }
}

class DigitByDigitKeys : public ::testing::Test {
protected:
    std::string answer(int key, const Operand& left, const Operand& right) {
        calc.s.stack.Xreg = right.text;
        return outcome([&] { return keys.compute(key, left.text, right.text).text('.'); });
    }
    TestPlatform platform;
    Engine calc{platform};
    BinaryKeys keys{calc};
};

TEST_F(DigitByDigitKeys, TheFourOperationsAgreeInAllBases) {
    constexpr int kDivide = 0;
    constexpr int kMultiply = 1;
    constexpr int kSubtract = 2;
    constexpr int kAdd = 3;
    Draw draw;
    for (int i = 0; i < 150000; ++i) {
        const Operand left = draw.operand();
        const Operand right = left.letter == kPlain ? draw.tagged() : draw.operand();
        const char letter = right.letter == kPlain ? left.letter : right.letter;
        const auto bounded = [letter](const std::string& bits) {
            return bits.size() > kWord ? failureText(FailureNumber::Overflow) : taggedText(bits, letter);
        };
        SCOPED_TRACE(left.text + " and " + right.text);
        ASSERT_EQ(answer(kAdd, left, right), bounded(digit_text::add(left.bits, right.bits)));
        ASSERT_EQ(answer(kMultiply, left, right), bounded(digit_text::multiply(left.bits, right.bits)));
        ASSERT_EQ(answer(kSubtract, left, right),
                  digit_text::compare(left.bits, right.bits) < 0
                      ? failureText(FailureNumber::SubtrahendGreater)
                      : taggedText(digit_text::subtract(left.bits, right.bits), letter));
        if (right.bits == "0") {
            ASSERT_EQ(answer(kDivide, left, right), failureText(FailureNumber::DivisionByZero));
            continue;
        }
        std::string rest;
        const std::string quotient = digit_text::divide(left.bits, right.bits, rest);
        ASSERT_EQ(answer(kDivide, left, right), taggedText(quotient, letter));
        ASSERT_EQ(calc.s.format.BaseRemainder, rest == "0" ? "" : taggedText(rest, letter));
    }
}

TEST_F(DigitByDigitKeys, LogicAgreesInAllBasesAtEveryWordSize) {
    Draw draw;
    for (int i = 0; i < 60000; ++i) {
        calc.s.format.WordSize = draw.wordSize();
        const Operand y = draw.operand();
        const Operand x = draw.operand();
        const auto named = [](char letter) { return letter != kPlain && letter != kHexadecimal; };
        const char ofX = named(x.letter) ? x.letter : kHexadecimal;
        const char ofBoth = named(y.letter) ? y.letter : ofX;
        const auto hex = [](const Operand& operand) { return digit_text::fromBits(operand.bits, kHexadecimal); };
        const auto expected = [](const std::string& digits, char letter) {
            return taggedText(digit_text::toBits(digits, kHexadecimal), letter);
        };
        const auto logic = [&](const char* name) {
            calc.s.stack.Xreg = x.text;
            calc.s.stack.Yreg = y.text;
            keys.LogicOp(name);
            return std::string{calc.s.stack.Xreg.textView()};
        };
        SCOPED_TRACE(y.text + " and " + x.text + " word " + std::to_string(calc.s.format.WordSize));
        ASSERT_EQ(logic("AND"),
                  expected(digit_text::logic(hex(y), hex(x), [](auto a, auto b) { return a & b; }), ofBoth));
        ASSERT_EQ(logic("OR"),
                  expected(digit_text::logic(hex(y), hex(x), [](auto a, auto b) { return a | b; }), ofBoth));
        ASSERT_EQ(logic("XOR"),
                  expected(digit_text::logic(hex(y), hex(x), [](auto a, auto b) { return a ^ b; }), ofBoth));
        const std::string zeros(static_cast<std::size_t>(calc.s.format.WordSize / 4), '0');
        ASSERT_EQ(logic("NOT"), expected(digit_text::logic(hex(x), zeros, [](auto a, auto) { return 15 - a; }), ofX));
    }
}

/// A turn of a run of bits by `step`.
struct Turn {
    const char* code;
    std::size_t step;
    std::string (*turned)(const std::string& bits, std::size_t step);
};

std::string rotatedLeft(const std::string& bits, std::size_t step) {
    return bits.substr(step) + bits.substr(0, step);
}
std::string rotatedRight(const std::string& bits, std::size_t step) {
    return rotatedLeft(bits, bits.size() - step);
}
std::string shiftedLeft(const std::string& bits, std::size_t step) {
    return bits.substr(step) + std::string(step, '0');
}
std::string shiftedRight(const std::string& bits, std::size_t step) {
    return bits.substr(0, bits.size() - step);
}
std::string shiftedWithSign(const std::string& bits, std::size_t step) {
    return std::string(step, bits.front()) + shiftedRight(bits, step);
}

constexpr std::array<Turn, 9> kTurns{{{"rL", 1, rotatedLeft},
                                      {"rR", 1, rotatedRight},
                                      {"sL", 1, shiftedLeft},
                                      {"sR", 1, shiftedRight},
                                      {"AsR", 1, shiftedWithSign},
                                      {"rLB", 8, rotatedLeft},
                                      {"rRB", 8, rotatedRight},
                                      {"sLB", 8, shiftedLeft},
                                      {"sRB", 8, shiftedRight}}};

TEST_F(DigitByDigitKeys, EveryTurnAgreesInAllBasesAtEveryWordSize) {
    constexpr std::size_t kSmallestByteWord = 9;
    Draw draw;
    for (int i = 0; i < 10000; ++i) {
        calc.s.format.WordSize = draw.wordSize();
        const auto word = static_cast<std::size_t>(calc.s.format.WordSize);
        const Operand x = draw.tagged();
        SCOPED_TRACE(x.text + " word " + std::to_string(word));
        for (const Turn& turn : kTurns) {
            calc.s.stack.Xreg = x.text;
            keys.RotateShift(turn.code);
            if (turn.step > 1 && word < kSmallestByteWord) {
                ASSERT_EQ(calc.s.stack.Xreg.textView(), kNothingDone);
                continue;
            }
            const std::string turned = turn.turned(digit_text::padded(x.bits, word), turn.step);
            ASSERT_EQ(calc.s.stack.Xreg.textView(), taggedText(digit_text::rightmost(turned, word), x.letter))
                << turn.code;
        }
    }
}

}  // namespace
}  // namespace tallyforge
