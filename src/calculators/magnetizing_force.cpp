// SPDX-License-Identifier: GPL-3.0-or-later
//
// Magnetizing force along a core's path. Base units are ampere-turns per centimetre, amperes and
// centimetres, in which the law of Ampere has no factor; one oersted is 1 / 1.2566370614359161 of
// the first.
#include "calculators/calculators.h"
#include "calculators/careful.h"
#include "calculators/pictures.h"

namespace tallyforge {

namespace {

enum Field : std::int8_t { H, N, I, Le };

constexpr std::array<Quantity, 4> kFields{{
    {.symbol = "H", .name = "Magnetizing force", .bit = 1, .modifiers = kShift, .units = &kMagH},
    {.symbol = "n", .name = "Turns", .bit = 2, .modifiers = kCtrl},
    {.symbol = "I", .name = "Current", .bit = 4, .modifiers = kAlt, .units = &kMagI},
    {.symbol = "le", .name = "Effective length of the path", .bit = 8, .modifiers = kCtrl | kAlt, .units = &kMagLe},
}};
constexpr std::array<UnitArray, 3> kUnits{
    {{"OptH", "Magnetizing Force", &kMagH}, {"OptLe", "Path Length", &kMagLe}, {"OptI", "Current", &kMagI}}};

// H·le = k·n·I (Ampere), solved for each.
constexpr std::array<Solution, 4> kSolutions{{
    {.given = 7,
     .solved = solves(Le),
     .relation = "le = k n I / H",
     .solve = [](Values& v) { v[Le] = quotient(v[N] * v[I], v[H]); }},
    {.given = 11,
     .solved = solves(I),
     .relation = "I = le H / (k n)",
     .solve = [](Values& v) { v[I] = quotient(v[Le] * v[H], v[N]); }},
    {.given = 13,
     .solved = solves(N),
     .relation = "n = le H / (k I)",
     .solve = [](Values& v) { v[N] = quotient(v[Le] * v[H], v[I]); }},
    {.given = 14,
     .solved = solves(H),
     .relation = "H = k n I / le",
     .solve = [](Values& v) { v[H] = quotient(v[N] * v[I], v[Le]); }},
}};

}  // namespace

const CalculatorTable kMagnetizingForce{
    .form = "frmHdc",
    .title = "Magnetizing Force (H) Calculator",
    .name = "Magnetizing Force (H)",
    .procedure = "calcH",
    .helpTopic = 1822,
    .given = 3,
    .fields = kFields,
    .units = kUnits,
    .solutions = kSolutions,
    .picture = windingPicture,
    .example = {20.0, 100.0, 2.0, 10.0},
};

}  // namespace tallyforge
