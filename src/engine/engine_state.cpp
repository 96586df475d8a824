// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/engine_state.h"

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
