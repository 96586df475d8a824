// SPDX-License-Identifier: GPL-3.0-or-later
#include "electrical/table_wire.h"

#include "electrical/key_answers.h"
#include "electrical/wire_sizes.h"
#include "electrical/wire_tables.h"
#include "engine/engine.h"
#include "platform/text.h"

#include <cmath>
#include <optional>
#include <string>
#include <string_view>

namespace tallyforge {

namespace {

constexpr int kOhmsDigits = 3;
constexpr int kInchDigits = 6;

constexpr std::string_view kHeavyRange = "Please select an AWG > 3 and < 51.";
constexpr std::string_view kSingleRange = "Please select an AWG > 13 and < 51.";

/// A key of the half sizes: its table, and how it says that X is none of them.
struct HalfSizeKey {
    const LookupTable& table;
    std::string_view title{};
    std::string_view range{};
    std::string_view notHalf = "awg or awg.5 only";
};

/// The value of the half size in X; empty after its box.
std::optional<double> lookUp(Engine& calc, const HalfSizeKey& key) {
    constexpr double kHalf = 0.5;
    const double awg = calc.xNumber();
    const double base = std::floor(awg);
    const bool halfOrWhole = awg == base || awg == base + kHalf;
    const auto value = halfOrWhole ? key.table.at(base) : std::nullopt;
    if (!value) {
        refuse(calc, {.text = halfOrWhole ? key.range : key.notHalf, .title = key.title});
    }
    return value;
}

/// "inches(4.5)"
std::string labelOf(Engine& calc, std::string_view what) {
    const auto base = static_cast<int>(std::floor(calc.xNumber()));
    return std::string(what) + "(" + std::to_string(base) + calc.s.format.DecimalChar + "5)";
}

void answerDiameter(Engine& calc, const HalfSizeKey& key) {
    if (const auto inches = lookUp(calc, key)) {
        answerWithDigits(calc, {*inches, labelOf(calc, "inches")}, kInchDigits);
    }
}

void answerArea(Engine& calc, const HalfSizeKey& key, std::string_view label) {
    if (const auto inches = lookUp(calc, key)) {
        replaceX(calc, {circularMils(*inches), labelOf(calc, label)});
    }
}

}  // namespace

void aluminumResistance(Engine& calc) {
    const double awg = calc.xNumber();
    if (const auto ohms = kAluminumOhms.at(awg)) {
        answerBySize(calc, {*ohms, std::string("ê/ft("_t) + std::to_string(static_cast<int>(awg)) + ")"}, kOhmsDigits);
    } else if (!isWhole(awg)) {
        refuse(calc, {.text = "Use integers only!",
                      .title = "Aluminum DCR Error!",
                      .kind = BoxKind::Notice,
                      .label = "No Data"});
    } else {
        refuse(calc, {.text = "Pleas input an AWG size 44 or larger and size 8 or smaller.",
                      .title = "Aluminum AWG",
                      .label = "N0 Data"});
    }
}

void halfSizeResistance(Engine& calc) {
    const HalfSizeKey key{
        .table = kHalfSizeOhms, .title = "Half-Size DCR Error!", .range = kHeavyRange, .notHalf = "awg or awg.5 only!"};
    if (const auto ohms = lookUp(calc, key)) {
        answerBySize(calc, {*ohms, labelOf(calc, "ê/ft"_t)}, kOhmsDigits);
    }
}

void halfSizeHeavyDiameter(Engine& calc) {
    answerDiameter(calc, {.table = kHalfSizeHeavy, .title = "Half-Size Heavy Diameter", .range = kHeavyRange});
}

void halfSizeHeavyArea(Engine& calc) {
    answerArea(calc, {.table = kHalfSizeHeavy, .title = "Half-Size Heavy CMA", .range = kHeavyRange}, "CMAi");
}

void halfSizeSingleDiameter(Engine& calc) {
    answerDiameter(calc, {.table = kHalfSizeSingle, .title = "Half-Size Single Diameter", .range = kSingleRange});
}

void halfSizeSingleArea(Engine& calc) {
    answerArea(calc, {.table = kHalfSizeSingle, .title = "Half-Size Single CMA", .range = kSingleRange}, "CMAsgl");
}

}  // namespace tallyforge
