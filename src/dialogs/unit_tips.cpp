// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/unit_tips.h"

#include "dialogs/conversion.h"
#include "numbers/value_cell.h"

#include <array>
#include <cmath>
#include <cstdio>

namespace tallyforge {

namespace {

std::string numberText(double value, char decimal) {
    return ValueCell{value}.text(decimal);
}

std::string percent(double part, char decimal) {
    std::array<char, 32> text{};
    const double percents = 100.0 * part;
    const char* const pattern = std::fabs(percents) < 10.0 ? "%+.2g %%" : "%+.0f %%";
    const int length = std::snprintf(text.data(), text.size(), pattern, percents);
    std::string out(text.data(), static_cast<std::size_t>(length));
    if (const auto point = out.find('.'); point != std::string::npos) {
        out[point] = decimal;
    }
    return out;
}

bool isOff(const Unit& unit) {
    return std::fabs(deviation(unit)) > kTellDeviation;
}

std::string isOffBy(const Unit& unit, char decimal) {
    return " is off by " + percent(deviation(unit), decimal);
}

}  // namespace

std::string_view sourceName(Source source) {
    static constexpr std::array<std::string_view, 8> kNames{"SI brochure", "NIST SP 811",      "CODATA 2022",
                                                            "IAU",         "NIST Handbook 44", "UK W&M Act 1985",
                                                            "old measure", "trade usage"};
    return kNames.at(static_cast<std::size_t>(source));
}

std::string exactSize(const UnitGroup& group, int unit, char decimal) {
    const long double exact = group.at(unit).exact;
    const bool counts = group.measure == Measure::Count;
    return numberText(static_cast<double>(counts ? 1 / exact : exact), decimal) + " " + std::string(group.base);
}

std::string deviationText(const UnitGroup& group, const UnitPair& pair, char decimal) {
    std::string text;
    for (const int unit : {pair.from, pair.to}) {
        if (unit >= 0 && isOff(group.at(unit))) {
            text += text.empty() ? "Table: " : ", ";
            text += std::string(group.at(unit).from) + isOffBy(group.at(unit), decimal);
        }
    }
    return text;
}

std::string unitTip(const UnitGroup& group, int unit, char decimal) {
    const Unit& row = group.at(unit);
    std::string tip(row.from);
    if (group.measure != Measure::Temperature) {
        tip += " = " + exactSize(group, unit, decimal);
    }
    tip += " (" + std::string(row.definition) + "; " + std::string(sourceName(row.source)) + ")";
    if (group.measure == Measure::Temperature) {
        return tip;
    }
    if (row.factor == kNoFactor) {
        return tip + " // no factor in the table: X unchanged";
    }
    if (isOff(row)) {
        tip += " // table " + numberText(row.factor, decimal) + isOffBy(row, decimal);
    }
    return tip;
}

}  // namespace tallyforge
