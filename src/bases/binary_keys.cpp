// SPDX-License-Identifier: GPL-3.0-or-later
#include "bases/binary_keys.h"

#include "bases/base_number.h"
#include "engine/engine.h"
#include "numbers/out_of_range.h"
#include "numbers/word_size.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>

namespace tallyforge {

namespace {

constexpr std::size_t kByte = 8;
constexpr int kBitsOfDigit = 4;

bool needsBytes(std::string_view code) {
    return code.ends_with('B');
}

/// The letter that a logic operation gives its result: h, unless an operand has another one.
void rememberLetter(char& letter, const ValueCell& operand) {
    const char own = letterOf(operand);
    if (own != '\0' && own != kHexadecimal) {
        letter = own;
    }
}

std::uint64_t invertDigits(std::uint64_t value, int wordSize) {
    const auto own = static_cast<int>(Dec2Hex(value).size());
    const int digits = std::max(own, wordSize / kBitsOfDigit);
    const int bits = digits * kBitsOfDigit;
    const std::uint64_t all = bits >= 64 ? std::numeric_limits<std::uint64_t>::max() : (std::uint64_t{1} << bits) - 1;
    return ~value & all;
}

std::uint64_t divide(Engine& calc, std::uint64_t left, std::uint64_t right, char letter) {
    if (right == 0) {
        throw Failure{FailureNumber::DivisionByZero};
    }
    const std::uint64_t rest = left % right;
    calc.s.format.BaseRemainder = rest == 0 ? std::string{} : tagged(rest, letter);
    return left / right;
}

std::uint64_t multiply(std::uint64_t left, std::uint64_t right) {
    if (right != 0 && left > std::numeric_limits<std::uint64_t>::max() / right) {
        throw Failure{FailureNumber::Overflow};
    }
    return left * right;
}

std::uint64_t subtract(std::uint64_t left, std::uint64_t right) {
    if (left < right) {
        throw Failure{FailureNumber::SubtrahendGreater};
    }
    return left - right;
}

std::uint64_t add(std::uint64_t left, std::uint64_t right) {
    if (left > std::numeric_limits<std::uint64_t>::max() - right) {
        throw Failure{FailureNumber::Overflow};
    }
    return left + right;
}

}  // namespace

BinaryKeys::BinaryKeys(Engine& calculator) : calc(calculator) {
    calc.cutToWord = cutToWord;
}

void BinaryKeys::show(char letter) {
    calc.s.entry.BaseLetter = letter;
    calc.s.stack.Xreg = tagged(wholeOf(calc.s.stack.Xreg, calc.s.format.DecimalChar), letter);
}

void BinaryKeys::toBase(char letter) {
    EngineState& s = calc.s;
    if (s.stack.Xreg.isTagged()) {
        throw Failure{FailureNumber::Overflow};
    }
    s.entry.BaseLetter = letter;
    s.stack.Xreg = "#" + Real2Bin(s.stack.Xreg, letter, s.format.DecimalChar) + letter;
    s.delivery.FnLabel = std::string("(") + letter + ")";
}

void BinaryKeys::toBinaryOrReal() {
    EngineState& s = calc.s;
    if (!s.stack.Xreg.isTagged()) {
        return toBase(kBinary);
    }
    s.stack.Xreg = ConvertBin(s.stack.Xreg.textView());
    s.delivery.FnLabel = "real";
}

void BinaryKeys::LogicOp(std::string_view name) {
    EngineState& s = calc.s;
    char letter = kHexadecimal;
    rememberLetter(letter, s.stack.Xreg);
    const std::uint64_t x = wholeOf(s.stack.Xreg, s.format.DecimalChar);
    if (name == "NOT") {
        s.stack.Xreg = tagged(invertDigits(x, s.format.WordSize), letter);
        s.delivery.FnLabel = name;
        return;
    }
    rememberLetter(letter, s.stack.Yreg);
    const std::uint64_t y = wholeOf(s.stack.Yreg, s.format.DecimalChar);
    const std::uint64_t result = name == "AND" ? (x & y) : name == "OR" ? (x | y) : (x ^ y);
    s.stack.Xreg = tagged(result, letter);
    s.delivery.FnLabel = name;
    calc.commit.lowerStack(2);
}

void BinaryKeys::RotateShift(std::string_view code) {
    EngineState& s = calc.s;
    if (!s.stack.Xreg.isTagged() || (needsBytes(code) && s.format.WordSize < kSmallestByteWord)) {
        if (!s.stack.Xreg.isTagged()) {
            calc.errorBox(BoxKind::Stop, kOutOfRange);
        }
        s.stack.KeepX = s.stack.Xreg;
        s.stack.Xreg = kNothingDone;
        return;
    }
    const char letter = letterOf(s.stack.Xreg);
    const std::string bits =
        rotateShiftBits(writeDigits(wholeOf(s.stack.Xreg, s.format.DecimalChar), kBinary), code, s.format.WordSize);
    s.stack.Xreg = tagged(readDigits(bits, kBinary), letter);
    s.delivery.FnLabel = code;
}

ValueCell BinaryKeys::compute(int index, const ValueCell& left, const ValueCell& right) {
    EngineState& s = calc.s;
    char letter = letterOf(s.stack.Xreg);
    if (letter == '\0') {
        letter = left.isTagged() ? letterOf(left) : letterOf(right);
    }
    const std::uint64_t one = wholeOf(left, s.format.DecimalChar);
    const std::uint64_t other = wholeOf(right, s.format.DecimalChar);
    switch (index) {
        case 0:
            return tagged(divide(calc, one, other, letter), letter);
        case 1:
            return tagged(multiply(one, other), letter);
        case 2:
            return tagged(subtract(one, other), letter);
        default:
            return tagged(add(one, other), letter);
    }
}

std::string rotateShiftBits(std::string bits, std::string_view code, int wordSize) {
    const auto word = static_cast<std::size_t>(wordSize);
    if (bits.size() < word) {
        bits.insert(0, word - bits.size(), '0');
    }
    const std::size_t count = needsBytes(code) ? kByte : 1;
    const std::size_t size = bits.size();
    if (code.starts_with("rL")) {
        std::rotate(bits.begin(), bits.begin() + static_cast<std::ptrdiff_t>(count), bits.end());
    } else if (code.starts_with("rR")) {
        std::rotate(bits.begin(), bits.end() - static_cast<std::ptrdiff_t>(count), bits.end());
    } else if (code.starts_with("sL")) {
        bits = bits.substr(count) + std::string(count, '0');
    } else if (code.starts_with("sR")) {
        bits = bits.substr(0, size - count);
    } else if (code == "AsR") {
        bits = bits.front() + bits.substr(0, size - 1);
    }
    return bits.size() > word ? bits.substr(bits.size() - word) : bits;
}

}  // namespace tallyforge
