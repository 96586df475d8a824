// SPDX-License-Identifier: GPL-3.0-or-later
#include "keypads/constants_key.h"

#include "dialogs/parameter_dialog.h"
#include "electrical/parameter_tables.h"
#include "engine/results.h"
#include "keypads/keys.h"
#include "reference/material_lists.h"
#include "reference/physical_constants.h"

#include <optional>
#include <utility>

namespace tallyforge {

namespace {

// What is picked is picked without the modifiers of the key.
void dropModifiers(Engine& calc) {
    calc.s.modifiers.ModifierMask = 0;
    calc.LightModifiers(0);
    calc.keypads().RepaintKeypad();
}

bool opensList(std::uint8_t mask) {
    return mask == 0 || mask == kShift || mask == kAlt;
}

}  // namespace

void constantsKey(Keys& keys) {
    Engine& calc = keys.calc;
    const std::uint8_t mask = calc.s.modifiers.ModifierMask;
    ConversionMemory& memory = keys.conversions.memory;
    if (!opensList(mask) || (mask == 0 && memory.ConversionFactors.at(key::ConvertConstants) != 0.0)) {
        static_cast<void>(keys.conversions.ConversionKeyGate(key::ConvertConstants));
        return;
    }
    dropModifiers(calc);
    const auto taken = keys.lists.constant();
    if (!taken) {
        return;
    }
    const ListRow& row = kConstantsList.rows[taken->row];
    const std::string_view symbol = constantSymbol(row.name);
    memory.keep(key::ConvertConstants, calc.number(ValueCell{taken->value}), row.unit, symbol.empty() ? "K" : symbol);
    using Gate = ConversionKeys::Gate;
    keys.conversions.showFactor(key::ConvertConstants, mask == kAlt ? Gate::DialogForAlt : Gate::Dialog);
    calc.keypads().RepaintKeypad();
}

void pickConstant(Keys& keys) {
    dropModifiers(keys.calc);
    static_cast<void>(keys.lists.constant());
}

void pickAndKeepConstant(Keys& keys) {
    dropModifiers(keys.calc);
    if (const auto taken = keys.lists.constant()) {
        keys.lists.keep(keys.calc.number(ValueCell{taken->value}));
    }
}

void pickPrefix(Keys& keys) {
    dropModifiers(keys.calc);
    keys.lists.prefix();
}

void pickSpecificGravity(Keys& keys) {
    dropModifiers(keys.calc);
    keys.lists.specificGravity();
}

void chooseResistivity(Keys& keys) {
    std::optional<ListChoice> taken;
    const auto pick = [&] {
        if (auto chosen = keys.lists.resistivity()) {
            taken = std::move(chosen);
        }
    };
    ParameterDialog(keys.calc, kResistivityTable, {.saveUnits = keys.saveUnits, .showValues = pick}).ask();
    if (taken && keys.calc.commit.FetchX()) {
        pushAtOnce(keys.calc, {ValueCell{taken->value}, kRhoUnit}, true);
    }
    keys.calc.focusEntry();
}

}  // namespace tallyforge
