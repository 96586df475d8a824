// SPDX-License-Identifier: GPL-3.0-or-later
#include "reference/reference_lists.h"

#include "desk/memory_registers.h"
#include "engine/engine.h"
#include "engine/results.h"
#include "reference/material_lists.h"
#include "reference/physical_constants.h"

namespace tallyforge {

namespace {

/// Where "To Memory" keeps a constant.
constexpr int kConstantRegister = 2;

}  // namespace

void ReferenceLists::deliver(const std::optional<ListChoice>& taken, std::string_view label) {
    if (taken) {
        pushOnX(calc, {ValueCell{taken->value}, label});
    } else {
        leaveX(calc);
    }
}

void ReferenceLists::keep(const ValueCell& value) {
    storeInRegister(calc, kConstantRegister, value);
    calc.form.cmdSTO.enabled = true;
}

void ReferenceLists::toMemory(const ListRow& row) {
    keep(ValueCell{localValue(row.value, calc.s.format.DecimalChar)});
    nameRegister(calc, kConstantRegister, row.name);
}

std::optional<ListChoice> ReferenceLists::constant() {
    ListExtras extras{
        .other = valueOfToday, .sources = kConstantSources, .toMemory = [this](const ListRow& row) { toMemory(row); }};
    auto taken = ListDialog(calc, kConstantsList, constants_, std::move(extras)).pick();
    deliver(taken, taken ? kConstantsList.rows[taken->row].unit : std::string_view{});
    return taken;
}

void ReferenceLists::specificGravity() {
    deliver(ListDialog(calc, kGravityList, gravities_).pick(), "SG");
}

void ReferenceLists::prefix() {
    deliver(ListDialog(calc, kPrefixList, prefixes_).pick(), {});
}

std::optional<ListChoice> ReferenceLists::resistivity() {
    return ListDialog(calc, kRhoList, rhos_).pick();
}

std::optional<ListChoice> ReferenceLists::temperatureCoefficient() {
    return ListDialog(calc, kAlphaList, alphas_).pick();
}

}  // namespace tallyforge
