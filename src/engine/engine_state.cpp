// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/engine_state.h"

#include <algorithm>

namespace tallyforge {

namespace {

/// Register of each key, in key order; also the line order of tape and register files.
constexpr std::array<int, kBankKeys> kRegisterOfKey{23, 22, 21, 12, 8,  7,  17, 13, 16, 15, 14, 5,
                                                    4,  3,  2,  1,  20, 19, 18, 24, 11, 10, 9,  6};

}  // namespace

MemoryState::MemoryState() {
    for (int key = 0; key < kBankKeys; ++key) {
        RegisterNames.at(static_cast<std::size_t>(key)) = defaultRegisterName(key);
    }
}

const ValueCell& StackState::noCell() {
    static const ValueCell kNothing;
    return kNothing;
}

ValueCell StackState::operand(int slotNumber) const {
    const ValueCell& held = slot(slotNumber);
    return held.isEmpty() ? ValueCell::zero() : held;
}

void StackState::expectText(std::size_t size) {
    const std::size_t bytes = ValueCell::bytesOfText(size);
    if (bytes > untilCount_) {
        countTexts();
    }
    untilCount_ -= std::min(bytes, untilCount_);
}

// Rarely, as it walks the stack: many bytes may come before the next count.
void StackState::countTexts() {
    constexpr std::size_t kLeastBetweenCounts = kMostTextBytes / 8;
    const auto top = static_cast<std::size_t>(StackPtr);
    // What lies above the stack is left over from what stood there.
    std::fill(Stack.begin() + static_cast<std::ptrdiff_t>(std::min(top + 1, Stack.size())), Stack.end(), ValueCell{});
    std::size_t all = 0;
    for (const ValueCell& cell : Stack) {
        all += cell.textShare();
    }
    if (all > kMostTextBytes) {
        throw std::bad_alloc{};
    }
    untilCount_ = std::max(kMostTextBytes - all, kLeastBetweenCounts);
}

int registerOfKey(int keyIndex) {
    return kRegisterOfKey.at(static_cast<std::size_t>(keyIndex));
}

int keyOfRegister(int registerNumber) {
    for (int key = 0; key < kBankKeys; ++key) {
        if (registerOfKey(key) == registerNumber) {
            return key;
        }
    }
    return 0;
}

std::string defaultRegisterName(int keyIndex) {
    constexpr std::size_t kNameWidth = 4;
    std::string name = std::to_string(registerOfKey(keyIndex));
    name.resize(kNameWidth, ' ');
    return name;
}

}  // namespace tallyforge
