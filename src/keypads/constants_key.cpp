// SPDX-License-Identifier: GPL-3.0-or-later
#include "keypads/constants_key.h"

#include "engine/results.h"
#include "keypads/keys.h"
#include "reference/material_lists.h"
#include "reference/physical_constants.h"

#include <utility>

namespace tallyforge {

namespace {

constexpr int kDensityKey = 5;
constexpr int kConstantsKey = 16;

/// The mask under which the key was pressed; what is picked next is picked without it.
std::uint8_t takeMask(Engine& calc) {
    const std::uint8_t mask = std::exchange(calc.s.modifiers.ModifierMask, std::uint8_t{0});
    calc.LightModifiers(0);
    calc.keypads().RepaintKeypad();
    return mask;
}

bool opensList(std::uint8_t mask) {
    return mask == 0 || mask == kShift || mask == kAlt;
}

}  // namespace

void constantsKey(Keys& keys) {
    Engine& calc = keys.calc;
    const std::uint8_t mask = calc.s.modifiers.ModifierMask;
    ConversionMemory& memory = keys.conversions.memory;
    if (mask == kCtrl) {
        takeMask(calc);
        return keys.lists.prefix();
    }
    if (!opensList(mask) || (mask == 0 && memory.ConversionFactors.at(kConstantsKey) != 0.0)) {
        static_cast<void>(keys.conversions.ConversionKeyGate(kConstantsKey));
        return;
    }
    takeMask(calc);
    const auto taken = keys.lists.constant();
    if (!taken) {
        return;
    }
    const ListRow& row = kConstantsList.rows[taken->row];
    const std::string_view symbol = constantSymbol(row.name);
    memory.keep(kConstantsKey, calc.number(ValueCell{taken->value}), row.unit, symbol.empty() ? "K" : symbol);
    using Gate = ConversionKeys::Gate;
    keys.conversions.showFactor(kConstantsKey, mask == kAlt ? Gate::DialogForAlt : Gate::Dialog);
    calc.keypads().RepaintKeypad();
}

void constantsTableKey(Keys& keys) {
    Engine& calc = keys.calc;
    const std::uint8_t mask = calc.s.modifiers.ModifierMask;
    if (!opensList(mask) && mask != kCtrl) {
        return refuseModifiers(calc);
    }
    takeMask(calc);
    if (mask == kCtrl) {
        keys.lists.prefix();
    } else if (const auto taken = keys.lists.constant(); taken && mask == kAlt) {
        keys.lists.keep(calc.number(ValueCell{taken->value}));
    }
}

void densityKey(Keys& keys) {
    if (keys.calc.s.modifiers.ModifierMask == kCtrl) {
        takeMask(keys.calc);
        keys.lists.specificGravity();
    } else {
        keys.conversions.press(kDensityKey);
    }
}

void pickResistivity(Keys& keys) {
    if (const auto taken = keys.lists.resistivity(); taken && keys.calc.commit.FetchX()) {
        pushAtOnce(keys.calc, {ValueCell{taken->value}, kRhoUnit}, true);
    }
    keys.calc.focusEntry();
}

}  // namespace tallyforge
