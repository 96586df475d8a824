// SPDX-License-Identifier: GPL-3.0-or-later
#include "electrical/bundle.h"

#include "electrical/key_answers.h"
#include "electrical/machine_screws.h"
#include "electrical/wire_keys.h"
#include "electrical/wire_sizes.h"
#include "engine/engine.h"
#include "numbers/checked_math.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace tallyforge {

namespace {

constexpr int kBundleDigits = 4;

constexpr std::array<TableRow, 71> kFactorRows{
    {{1, 1},     {2, 2},     {3, 2.15},   {4, 2.41},   {5, 2.7},   {6, 3},     {7, 3},     {8, 3.31},   {9, 3.61},
     {10, 3.8},  {11, 3.92}, {12, 4.05},  {13, 4.23},  {14, 4.41}, {15, 4.55}, {16, 4.7},  {17, 4.86},  {18, 5},
     {19, 5},    {20, 5.13}, {21, 5.31},  {22, 5.49},  {23, 5.61}, {24, 5.72}, {25, 5.81}, {26, 5.92},  {27, 6},
     {28, 6.13}, {29, 6.23}, {30, 6.4},   {31, 6.44},  {32, 6.55}, {33, 6.7},  {34, 6.76}, {35, 6.86},  {36, 7},
     {37, 7},    {38, 7.08}, {39, 7.18},  {40, 7.31},  {41, 7.39}, {42, 7.43}, {43, 7.61}, {44, 7.69},  {45, 7.77},
     {46, 7.84}, {47, 7.92}, {48, 8},     {49, 8.1},   {50, 8.21}, {55, 8.63}, {60, 8.94}, {65, 9.25},  {70, 9.57},
     {75, 9.88}, {80, 10.2}, {85, 10.46}, {90, 10.73}, {127, 13},  {169, 15},  {217, 17},  {271, 19},   {331, 21},
     {397, 23},  {469, 25},  {547, 27},   {631, 29},   {721, 31},  {817, 33},  {919, 35},  {1000, 36.5}}};

constexpr std::array<TableRow, 11> kPtfeRows{{{8, 0.206},
                                              {10, 0.143},
                                              {12, 0.114},
                                              {14, 0.092},
                                              {16, 0.077},
                                              {18, 0.070},
                                              {20, 0.060},
                                              {22, 0.051},
                                              {24, 0.045},
                                              {26, 0.040},
                                              {28, 0.035}}};

/// The strand's diameter in inches; empty after a box.
std::optional<double> strandDiameter(Engine& calc, WireBuild build, Strand strand) {
    const double x = calc.xNumber();
    switch (strand) {
        case Strand::Diameter:
            return x;
        case Strand::MagnetGauge:
            if (const auto inches = filmDiameter(build, x)) {
                return inches;
            }
            refuseGauge(calc, build, x);
            return std::nullopt;
        case Strand::InsulatedGauge:
            if (const auto inches = kPtfeDiameters.at(x)) {
                return inches;
            }
            refuse(calc, {.text = "Even sizes from 8 to 28, inclusive, only!",
                          .title = "Insulated dia error!",
                          .kind = BoxKind::Notice});
            return std::nullopt;
        case Strand::ScrewSize:
            break;
    }
    return screwDiameter(calc, x);
}

}  // namespace

constinit const LookupTable kBundleFactors{
    .name = "bundle-factor",
    .title = "Diameter of a bundle over that of a strand",
    .sizes = "strands",
    .unit = "strand diameters",
    .source =
        "the calculator's own rows for 1 to 43 and 80 to 90; 48 and 127 to 271 are published stranding factors, 2k + 1 "
        "for 3k(k + 1) + 1 strands in layers, and 331 to 919 follow that rule; 44 to 47 run straight from 43 to 48, 49 "
        "to 55 towards the published 8.41 of 52 and 8.70 of 56, 60 to 75 from 9.00 of 61 to 80; 1000 is sqrt(1.332 * "
        "1000), the published rule of large counts. Between the rows from 50 up a straight line",
    .rows = kFactorRows};

constinit const LookupTable kPtfeDiameters{
    .name = "ptfe-wire",
    .title = "Largest diameter of PTFE insulated hook-up wire",
    .sizes = "AWG",
    .unit = "in",
    .source = "MIL-DTL-22759/11, the maximum diameters of the sizes it is made in",
    .rows = kPtfeRows};

std::optional<double> bundleFactor(double count) {
    if (!isWhole(count) || count < kBundleFactors.first() || count > kBundleFactors.last()) {
        return std::nullopt;
    }
    const auto above = std::find_if(kFactorRows.begin(), kFactorRows.end(),
                                    [count](const TableRow& row) { return row.size >= count; });
    if (above->size == count) {
        return above->value;
    }
    const auto below = above - 1;
    return below->value + (above->value - below->value) / (above->size - below->size) * (count - below->size);
}

void bundleDiameter(Engine& calc, WireBuild build, Strand strand) {
    const auto inches = strandDiameter(calc, build, strand);
    if (!inches) {
        return;
    }
    if (*inches < 0.0) {
        refuse(calc, {.text = "Wire diameter: no negative numbers!"});
        return;
    }
    const auto factor = bundleFactor(operandBelow(calc, 1));
    if (!factor) {
        refuse(calc, {.text = "Number of wires: 1 to 1000, integers only!"});
        return;
    }
    const bool asGiven = strand == Strand::Diameter || strand == Strand::MagnetGauge;
    answerWithDigits(calc, {checked(*factor * *inches), asGiven ? "dia" : "dia(in)"}, kBundleDigits, 2);
}

}  // namespace tallyforge
