// SPDX-License-Identifier: GPL-3.0-or-later
#include "convert/unit_document.h"

#include "convert/conversion_tables.h"
#include "dialogs/conversion.h"
#include "dialogs/unit_tips.h"
#include "platform/text.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>

namespace tallyforge {

namespace {

std::string unicode(std::string_view text) {
    std::string out = toUnicode(text, Face::Arial);
    for (std::size_t at = out.find('|'); at != std::string::npos; at = out.find('|', at + 2)) {
        out.insert(at, 1, '\\');
    }
    return out;
}

/// The shortest digits that read back.
std::string shortest(double value) {
    std::array<char, 32> text{};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), value).ptr;
    return {text.data(), end};
}

std::string difference(const Unit& unit) {
    // Extended precision itself ends here.
    constexpr double kNothing = 1e-15;
    const double part = deviation(unit);
    if (std::fabs(part) < kNothing) {
        return "0";
    }
    std::array<char, 32> text{};
    const int length = std::snprintf(text.data(), text.size(), "%+.1e", part);
    const std::string digits(text.data(), static_cast<std::size_t>(length));
    return std::fabs(part) > kTellDeviation ? "**" + digits + "**" : digits;
}

std::string_view meaning(Measure measure) {
    switch (measure) {
        case Measure::Count:
            return "number of the unit that makes one of the base unit";
        case Measure::Consumption:
            return "size in the base unit; of a volume per distance what one of it is in the base unit";
        case Measure::Temperature:
            return "none: the scales begin at different zeros";
        default:
            return "size in the base unit";
    }
}

std::string row(const UnitGroup& group, int unit) {
    const Unit& it = group.at(unit);
    const bool scale = group.measure == Measure::Temperature;
    const bool none = it.factor == kNoFactor;
    return "| " + std::to_string(unit) + " | " + unicode(it.from) + " | " + unicode(it.to) + " | " +
           (none ? "none" : shortest(it.factor)) + " | " + (scale ? "" : shortest(static_cast<double>(it.exact))) +
           " | " + (none ? "" : difference(it)) + " | " + unicode(it.definition) + " | " +
           std::string(sourceName(it.source)) + " |\n";
}

}  // namespace

std::string unitDocument() {
    std::string text =
        "# Units\n\n"
        "Every unit of the Convert keypad, from the tables that convert (`tools/units_doc` writes this file).\n"
        "*Factor* is what the dialogs convert by; *exact* is what it would be by the unit's definition, and\n"
        "what \"Exact\" in a dialog takes. *Off* is the difference as a part of the exact value; beyond a\n"
        "millionth it is told in the dialog, and stands here in bold.\n";
    for (const ConversionTable* table : conversionTables()) {
        text += "\n## " + unicode(table->title) + "\n\nKey " + std::to_string(table->key) + ", `" +
                std::string(table->form) + "`.\n";
        for (const UnitGroup& group : table->groups) {
            text += "\n### " + unicode(group.heading) + "\n\nFactor: " + std::string(meaning(group.measure)) + ", " +
                    unicode(group.base) + ". Buttons `" + std::string(group.options) +
                    "`.\n\n| | From | To | Factor | Exact | Off | Definition | Source |\n"
                    "|---|---|---|---|---|---|---|---|\n";
            for (int unit = 0; unit < static_cast<int>(group.units.size()); ++unit) {
                text += row(group, unit);
            }
        }
    }
    return text;
}

}  // namespace tallyforge
