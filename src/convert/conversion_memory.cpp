// SPDX-License-Identifier: GPL-3.0-or-later
#include "convert/conversion_memory.h"

#include "dialogs/unit_tips.h"

namespace tallyforge {

void ConversionMemory::MarkConversionKey(int key) {
    constexpr int kFirstMarked = 3;
    if (key >= kFirstMarked && key < kBankKeys) {
        marked = key;
        ConversionMask |= 1U << key;
    }
}

void ConversionMemory::keep(int key, double factor, std::string_view label, std::string_view caption) {
    const auto at = static_cast<std::size_t>(key);
    ConversionFactors.at(at) = factor;
    ConversionLabels.at(at) = label;
    ConversionCaptions.at(at) = caption;
    warnings.at(at).clear();
    divides.at(at) = false;
    MarkConversionKey(key);
}

void ConversionMemory::keep(const ConversionTable& table, const UnitPair& pair, Sizes chosen, const Conversion& result,
                            char decimal) {
    const UnitGroup& group = table.group(pair.group);
    const auto at = static_cast<std::size_t>(table.key);
    keep(table.key, result.keepsFactor ? result.ConversionFactor : 0.0, conversionLabel(group, pair.from, pair.to),
         toLabel(group, pair.to));
    divides.at(at) = result.divides;
    sizes.at(at) = chosen;
    former.at(at) = pair;
    TemperatureHeld = TemperatureHeld || !result.keepsFactor;
    if (chosen == Sizes::Table) {
        warnings.at(at) = deviationText(group, pair, decimal);
    }
}

void ConversionMemory::clear() {
    ConversionFactors.fill(0.0);
    ConversionLabels.fill({});
    ConversionCaptions.fill({});
    warnings.fill({});
    divides.fill(false);
    ConversionMask = 0;
    TemperatureHeld = false;
    marked.reset();
}

}  // namespace tallyforge
