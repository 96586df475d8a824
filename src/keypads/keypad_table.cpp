// SPDX-License-Identifier: GPL-3.0-or-later
#include "keypads/keypad_table.h"

#include <algorithm>

namespace tallyforge {

namespace {

/// In the order of the cycle that the Down arrow walks.
constexpr std::array<const KeypadTable*, 7> kTables{&kStandardKeypad,     &kTablesKeypad,    &kConvertKeypad,
                                                    &kTrigonometryKeypad, &kMagneticsKeypad, &kBinaryKeypad,
                                                    &kEngineeringKeypad};

}  // namespace

const KeypadTable& keypadTable(Keypad keypad) {
    const Keypad lender = keypad == Keypad::LetterDrill ? Keypad::Tables : keypad;
    const auto* const found = std::find_if(kTables.begin(), kTables.end(),
                                           [lender](const KeypadTable* table) { return table->id == lender; });
    return found == kTables.end() ? kStandardKeypad : **found;
}

std::span<const KeypadTable* const> keypadTables() {
    return kTables;
}

}  // namespace tallyforge
