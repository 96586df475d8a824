// SPDX-License-Identifier: GPL-3.0-or-later
#include "bases/base_number.h"

#include "bases/binary_keys.h"
#include "digit_text.h"
#include "engine/engine.h"
#include "support/test_platform.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <limits>
#include <random>
#include <string>

namespace tallyforge {
namespace {

constexpr std::uint64_t kLargest = std::numeric_limits<std::uint64_t>::max();

FailureNumber failureOf(const std::function<void()>& action) {
    try {
        action();
    } catch (const Failure& failure) {
        return failure.number();
    }
    return FailureNumber{0};
}

TEST(BaseNumber, ConvertsBetweenTheFourBases) {
    EXPECT_EQ(Dec2Hex(511), "1FF");
    EXPECT_EQ(Hex2Dec("1FF"), 511U);
    EXPECT_EQ(Hex2Bin("1FF"), "111111111");
    EXPECT_EQ(Bin2Hex("00011111"), "1F");
    EXPECT_EQ(Bin2Dec("101"), "5");
    EXPECT_EQ(Oct2Bin("17"), "1111");
    EXPECT_EQ(Dec2Oct("255"), "377");
    EXPECT_EQ(ConvertBin("#377o"), "255");
    EXPECT_EQ(tagged(0, 'h'), "#0h");
}

TEST(BaseNumber, TheLargestNumberConvertsAndItsNeighbourDoesNot) {
    EXPECT_EQ(Real2Bin("18446744073709551615", 'h', '.'), "FFFFFFFFFFFFFFFF");
    EXPECT_EQ(failureOf([] { (void)Real2Bin("18446744073709551616", 'h', '.'); }), FailureNumber::Overflow);
    EXPECT_TRUE(ExceedsWord("18446744073709551616"));
    EXPECT_FALSE(ExceedsWord("18446744073709551615"));
    EXPECT_TRUE(ExceedsWord("111111111111111111111"));
    EXPECT_FALSE(ExceedsWord("#99999999999999999999d"));
}

TEST(BaseNumber, WrongDigitsAndTooManyBitsAreRefused) {
    EXPECT_EQ(failureOf([] { (void)readDigits("129", 'o'); }), FailureNumber::TypeMismatch);
    EXPECT_EQ(failureOf([] { (void)readDigits("1G", 'h'); }), FailureNumber::TypeMismatch);
    EXPECT_EQ(failureOf([] { (void)readDigits("ff", 'h'); }), FailureNumber::TypeMismatch);
    EXPECT_EQ(failureOf([] { (void)readDigits("", 'b'); }), FailureNumber::TypeMismatch);
    EXPECT_EQ(failureOf([] { (void)readDigits(std::string(65, '1'), 'b'); }), FailureNumber::BaseRange);
    EXPECT_EQ(readDigits(std::string(64, '1'), 'b'), kLargest);
    EXPECT_EQ(failureOf([] { (void)readDigits("10000000000000000", 'h'); }), FailureNumber::Overflow);
}

TEST(BaseNumber, APlainNumberGoesByItsWholeValue) {
    EXPECT_EQ(Real2Bin(2.5, 'd', '.'), "2");
    EXPECT_EQ(Real2Bin(3.5, 'd', '.'), "4");
    EXPECT_EQ(Real2Bin(-7.0, 'd', '.'), "0");
    EXPECT_EQ(Real2Bin(1e18, 'd', '.'), "1000000000000000000");
    EXPECT_EQ(Real2Bin("1E+15", 'h', '.'), "38D7EA4C68000");
    EXPECT_EQ(Real2Bin("00012", 'd', '.'), "12");
    EXPECT_EQ(Real2Bin("1,5", 'd', ','), "2");
    EXPECT_EQ(Real2Bin("12345678901234.5", 'd', '.'), "12345678901235") << "sixteen characters round half up";
}

TEST(BaseNumber, AWordKeepsItsRightmostBitsInItsOwnBase) {
    EXPECT_EQ(cutToWord("1FF", 'h', 8), "FF");
    EXPECT_EQ(cutToWord("511", 'd', 8), "255");
    EXPECT_EQ(cutToWord("777", 'o', 8), "377");
    EXPECT_EQ(cutToWord("100000000", 'b', 8), "0");
    EXPECT_EQ(cutToWord("FFFFFFFFFFFFFFFF", 'h', 64), "FFFFFFFFFFFFFFFF");
    EXPECT_EQ(cutToWord("0007", 'o', 64), "7");
    EXPECT_EQ(cutToWord("1F", 'b', 8), "1F") << "digits that do not fit stand as they are";
}

/// Operands of every length, the largest number and its neighbours among them.
class Operands {
public:
    std::uint64_t next() {
        constexpr std::uint64_t kEdges[] = {
            0, 1, 2, kLargest, kLargest - 1, kLargest - 2, 1ULL << 63, (1ULL << 63) - 1};
        const std::uint64_t drawn = random_();
        return drawn % 16 == 0 ? kEdges[drawn / 16 % std::size(kEdges)] : drawn >> (random_() % 64);
    }

private:
    std::mt19937_64 random_{20261121};
};

TEST(BaseNumber, ConversionsAgreeWithTheDigitByDigitMethod) {
    Operands operands;
    for (int i = 0; i < 60000; ++i) {
        const std::uint64_t value = operands.next();
        const std::string bits = digit_text::decimalToBits(std::to_string(value));
        ASSERT_EQ(writeDigits(value, 'b'), bits);
        ASSERT_EQ(writeDigits(value, 'h'), digit_text::bitsToHex(bits));
        ASSERT_EQ(writeDigits(value, 'o'), digit_text::bitsToOctal(bits));
        ASSERT_EQ(readDigits(bits, 'b'), value);
    }
}

class BaseOperations : public ::testing::Test {
protected:
    /// What the calculator answers: digits of a tagged result in bits, or the number of a failure.
    std::string answer(int key, const std::string& left, const std::string& right) {
        calc.s.BaseRemainder.clear();
        try {
            const ValueCell result = keys.compute(key, "#" + left + "b", "#" + right + "b");
            const std::string text{result.textView()};
            return text.substr(1, text.size() - 2);
        } catch (const Failure& failure) {
            return "failure " + std::to_string(failure.code());
        }
    }
    TestPlatform platform;
    Engine calc{platform};
    BinaryKeys keys{calc};
};

TEST_F(BaseOperations, AgreeWithTheDigitByDigitMethod) {
    Operands operands;
    int compared = 0;
    for (int i = 0; i < 200000; ++i) {
        const std::string left = writeDigits(operands.next(), 'b');
        const std::string right = writeDigits(operands.next(), 'b');
        const auto bounded = [](const std::string& bits) { return bits.size() > 64 ? std::string("failure 6") : bits; };
        ASSERT_EQ(answer(3, left, right), bounded(digit_text::add(left, right)));
        ASSERT_EQ(answer(2, left, right),
                  digit_text::compare(left, right) < 0 ? "failure 4" : digit_text::subtract(left, right));
        ASSERT_EQ(answer(1, left, right), bounded(digit_text::multiply(left, right)));
        if (right != "0") {
            std::string rest;
            const std::string quotient = digit_text::divide(left, right, rest);
            ASSERT_EQ(answer(0, left, right), quotient);
            ASSERT_EQ(calc.s.BaseRemainder, rest == "0" ? "" : "#" + rest + "b");
        } else {
            ASSERT_EQ(answer(0, left, right), "failure 11");
        }
        compared += 5;
    }
    EXPECT_EQ(compared, 1000000);
}

TEST_F(BaseOperations, LogicAgreesWithTheDigitByDigitMethodAtEveryWordSize) {
    Operands operands;
    for (int i = 0; i < 120000; ++i) {
        calc.s.WordSize = 4 + i % 61;
        const std::string left = writeDigits(operands.next(), 'h');
        const std::string right = writeDigits(operands.next(), 'h');
        const auto logic = [&](const char* name) {
            calc.s.Xreg = "#" + left + "h";
            calc.s.Yreg = "#" + right + "h";
            keys.LogicOp(name);
            return std::string{calc.s.Xreg.textView()};
        };
        const auto tag = [](const std::string& digits) { return "#" + digits + "h"; };
        ASSERT_EQ(logic("AND"), tag(digit_text::logic(left, right, [](auto a, auto b) { return a & b; })));
        ASSERT_EQ(logic("OR"), tag(digit_text::logic(left, right, [](auto a, auto b) { return a | b; })));
        ASSERT_EQ(logic("XOR"), tag(digit_text::logic(left, right, [](auto a, auto b) { return a ^ b; })));
        const auto digits = static_cast<std::size_t>(calc.s.WordSize / 4);
        const std::string zeros(std::max(digits, left.size()), '0');
        ASSERT_EQ(logic("NOT"), tag(digit_text::logic(left, zeros, [](auto a, auto) { return 15 - a; })));
    }
}

TEST_F(BaseOperations, EveryTurnAgreesWithItsBitTextAtEveryWordSize) {
    Operands operands;
    for (int i = 0; i < 20000; ++i) {
        const int word = 4 + i % 61;
        calc.s.WordSize = word;
        const std::uint64_t value = operands.next();
        for (const char* code : {"rL", "rR", "rLB", "rRB", "sL", "sR", "sLB", "sRB", "AsR"}) {
            calc.s.Xreg = tagged(value, 'd');
            keys.RotateShift(code);
            if (std::string_view(code).ends_with('B') && word < 9) {
                ASSERT_EQ(calc.s.Xreg.textView(), kNothingDone);
                continue;
            }
            std::string bits = writeDigits(value, 'b');
            bits.insert(0,
                        bits.size() < static_cast<std::size_t>(word) ? static_cast<std::size_t>(word) - bits.size() : 0,
                        '0');
            const std::size_t step = std::string_view(code).ends_with('B') ? 8 : 1;
            std::string turned = bits;
            switch (code[0] == 'A'   ? 'A'
                    : code[0] == 'r' ? (code[1] == 'L' ? 'l' : 'r')
                                     : (code[1] == 'L' ? 'L' : 'R')) {
                case 'l':
                    turned = bits.substr(step) + bits.substr(0, step);
                    break;
                case 'r':
                    turned = bits.substr(bits.size() - step) + bits.substr(0, bits.size() - step);
                    break;
                case 'L':
                    turned = bits.substr(step) + std::string(step, '0');
                    break;
                case 'R':
                    turned = bits.substr(0, bits.size() - step);
                    break;
                default:
                    turned = bits.substr(0, 1) + bits.substr(0, bits.size() - 1);
                    break;
            }
            if (turned.size() > static_cast<std::size_t>(word)) {
                turned = turned.substr(turned.size() - static_cast<std::size_t>(word));
            }
            ASSERT_EQ(calc.s.Xreg.textView(), tagged(readDigits(turned, 'b'), 'd')) << code << " word " << word;
        }
    }
}

struct Turned {
    const char* code;
    int word;
    const char* bits;
    const char* result;
};

TEST(BaseNumber, BitsShiftAndRotateInTheWord) {
    constexpr Turned kTurned[] = {
        {"rL", 8, "10000001", "00000011"},
        {"rR", 8, "1", "10000000"},
        {"sL", 8, "10000001", "00000010"},
        {"sR", 8, "10000001", "1000000"},
        {"AsR", 8, "10000000", "11000000"},
        {"sR", 8, "10000000", "1000000"},
        {"rLB", 16, "1111111100000001", "0000000111111111"},
        {"rRB", 16, "11111111", "1111111100000000"},
        {"sLB", 16, "11111111", "1111111100000000"},
        {"sRB", 16, "1111111100000001", "11111111"},
    };
    for (const Turned& turned : kTurned) {
        EXPECT_EQ(rotateShiftBits(turned.bits, turned.code, turned.word), turned.result) << turned.code;
    }
}

}  // namespace
}  // namespace tallyforge
