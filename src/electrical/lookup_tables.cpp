// SPDX-License-Identifier: GPL-3.0-or-later
#include "electrical/lookup_tables.h"

#include "electrical/bundle.h"
#include "electrical/drills.h"
#include "electrical/lookup_table.h"
#include "electrical/machine_screws.h"
#include "electrical/sheet_gauges.h"
#include "electrical/wire_sizes.h"
#include "electrical/wire_tables.h"
#include "numbers/number_format.h"

#include <algorithm>
#include <array>
#include <vector>

namespace tallyforge {

namespace {

constexpr std::size_t kNameWidth = 18;
constexpr std::size_t kSizeWidth = 10;

/// What the keys compute by gauge, rows of which are printed like those of a table.
struct GaugeFormula {
    LookupTable table{};
    double (*value)(double awg) = nullptr;
};

constexpr std::array<GaugeFormula, 2> kFormulas{
    {{.table = {.name = "wire-bare",
                .title = "Diameter of bare wire",
                .sizes = "AWG",
                .unit = "in",
                .source = "0.005 * 1.1229322^(36 - AWG), the ratio 92^(1/39) of ASTM B258"},
      .value = bareDiameter},
     {.table = {.name = "wire-ohms",
                .title = "Resistance of copper wire at 20 C",
                .sizes = "AWG",
                .unit = "ohm/ft",
                .source = "10.37 / (325 exp(-0.116 AWG))^2, within 0.6 percent of the exact gauge formula"},
      .value = ohmsPerFoot}}};

std::vector<const LookupTable*> allTables() {
    std::vector<const LookupTable*> all{&kHalfSizeOhms, &kHalfSizeSingle, &kHalfSizeHeavy, &kAluminumOhms,
                                        &kCopperWeight, &kBundleFactors,  &kPtfeDiameters, &kNumberDrills,
                                        &kLetterDrills, &kTapDrills,      &kSheetSteel,    &kStainlessSteel,
                                        &kSheetAluminum};
    for (const WireBuild build : {WireBuild::Single, WireBuild::Heavy, WireBuild::Triple, WireBuild::Quad}) {
        all.push_back(&filmDiameters(build));
    }
    for (const GaugeFormula& formula : kFormulas) {
        all.push_back(&formula.table);
    }
    std::sort(all.begin(), all.end(), [](const auto* a, const auto* b) { return a->name < b->name; });
    return all;
}

std::string padded(std::string text, std::size_t width) {
    text.resize(std::max(text.size() + 1, width), ' ');
    return text;
}

std::string rowsOf(const LookupTable& table) {
    std::string text;
    const auto add = [&text](const std::string& size, double value) {
        text += padded(size, kSizeWidth) + plainText(value, '.') + "\n";
    };
    for (const TableRow& row : table.rows) {
        add(table.sizeText(row.size), row.value);
    }
    const auto* const formula = std::find_if(kFormulas.begin(), kFormulas.end(),
                                             [&table](const GaugeFormula& each) { return &each.table == &table; });
    for (int awg = kThickestGauge; formula != kFormulas.end() && awg <= kThinnestGauge; ++awg) {
        add(gaugeSize(awg), formula->value(awg));
    }
    return text;
}

}  // namespace

std::string listOfTables() {
    std::string list;
    for (const LookupTable* table : allTables()) {
        list += padded(std::string(table->name), kNameWidth) + std::string(table->title) + "\n";
    }
    return list;
}

std::optional<std::string> printedTable(std::string_view name) {
    const auto all = allTables();
    const auto found = std::find_if(all.begin(), all.end(), [name](const auto* table) { return table->name == name; });
    if (found == all.end()) {
        return std::nullopt;
    }
    const LookupTable& table = **found;
    return std::string(table.title) + "\n" + padded(std::string(table.sizes), kSizeWidth) + std::string(table.unit) +
           "\n" + rowsOf(table) + "source: " + std::string(table.source) + "\n";
}

}  // namespace tallyforge
