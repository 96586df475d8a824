// SPDX-License-Identifier: GPL-3.0-or-later
//
// Inductance of a winding, by the inductance a turn of its core, and by the core's permeability and
// size. Base units are henries, henries a turn squared, centimetres and their squares.
#include "calculators/calculators.h"
#include "calculators/careful.h"
#include "calculators/pictures.h"

namespace tallyforge {

namespace {

namespace by_turns {

enum Field : std::int8_t { Lo, L, N };

constexpr std::array<Quantity, 3> kFields{{
    {.symbol = "Lo", .name = "Inductance a turn squared", .bit = 4, .modifiers = kAlt, .units = &kCoreLo},
    {.symbol = "L", .name = "Inductance", .bit = 1, .modifiers = kShift, .units = &kCoreL},
    {.symbol = "n", .name = "Turns", .bit = 2, .modifiers = kCtrl},
}};
constexpr std::array<UnitArray, 2> kUnits{{{"OptLo", "Lo", &kCoreLo}, {"OptL", "Inductance", &kCoreL}}};

// L = n²·Lo, solved for each.
constexpr std::array<Solution, 3> kSolutions{{
    {.given = 5,
     .solved = solves(N),
     .relation = "n = sqrt(L / Lo)",
     .solve = [](Values& v) { v[N] = rootOfQuotient(v[L], v[Lo]); }},
    {.given = 3,
     .solved = solves(Lo),
     .relation = "Lo = L / n²"_t,
     .solve = [](Values& v) { v[Lo] = overSquare(v[L], v[N]); }},
    {.given = 6,
     .solved = solves(L),
     .relation = "L = n² Lo"_t,
     .solve = [](Values& v) { v[L] = squareTimes(v[N], v[Lo]); }},
}};

}  // namespace by_turns

namespace by_permeability {

enum Field : std::int8_t { L, N, Ae, Le, Mu };

/// Permeability of free space for henries and centimetres: 4 pi 10^-9, as sixteen digits have it.
constexpr double kFreeSpace = 1e-8 * 1.2566370614359161;

constexpr std::array<Quantity, 5> kFields{{
    {.symbol = "L", .name = "Inductance", .bit = 4, .modifiers = kShift, .units = &kLmuL},
    {.symbol = "n", .name = "Turns", .bit = 16, .modifiers = kCtrl},
    {.symbol = "Ae", .name = "Effective area of the core", .bit = 8, .modifiers = kAlt, .units = &kLmuAe},
    {.symbol = "le", .name = "Effective length of the path", .bit = 2, .modifiers = kCtrl | kAlt, .units = &kLmuLe},
    {.symbol = "µ"_t, .name = "Relative permeability", .bit = 1, .modifiers = kShift | kCtrl | kAlt},
}};
constexpr std::array<UnitArray, 3> kUnits{
    {{"OptAe", "Area", &kLmuAe}, {"OptLe", "Path Length", &kLmuLe}, {"OptL", "Inductance", &kLmuL}}};

// L·le = k·n²·Ae·µ, solved for each.
constexpr std::array<Solution, 5> kSolutions{{
    {.given = 15,
     .solved = solves(N),
     .relation = "n = sqrt(L le / (k Ae µ))"_t,
     .solve = [](Values& v) { v[N] = rootOfQuotient(v[L] * v[Le], kFreeSpace * v[Ae] * v[Mu]); }},
    {.given = 23,
     .solved = solves(Ae),
     .relation = "Ae = L le / (k n² µ)"_t,
     .solve = [](Values& v) { v[Ae] = overSquare(quotient(v[L] * v[Le], kFreeSpace * v[Mu]), v[N]); }},
    {.given = 27,
     .solved = solves(L),
     .relation = "L = k n² Ae µ / le"_t,
     .solve = [](Values& v) { v[L] = quotient(squareTimes(v[N], kFreeSpace * v[Ae] * v[Mu]), v[Le]); }},
    {.given = 29,
     .solved = solves(Le),
     .relation = "le = k n² Ae µ / L"_t,
     .solve = [](Values& v) { v[Le] = quotient(squareTimes(v[N], kFreeSpace * v[Ae] * v[Mu]), v[L]); }},
    {.given = 30,
     .solved = solves(Mu),
     .relation = "µ = L le / (k n² Ae)"_t,
     .solve = [](Values& v) { v[Mu] = overSquare(quotient(v[L] * v[Le], kFreeSpace * v[Ae]), v[N]); }},
}};

}  // namespace by_permeability

}  // namespace

const CalculatorTable kInductanceByTurns{
    .form = "frmLvsLo",
    .title = "Inductance vs n² Calculator"_t,
    .name = "Inductance vs n²"_t,
    .procedure = "calcInd",
    .helpTopic = 1670,
    .fields = by_turns::kFields,
    .units = by_turns::kUnits,
    .solutions = by_turns::kSolutions,
    .picture = windingPicture,
    // 157 nH a turn squared, 40 turns.
    .example = {157e-9, 157e-9 * 1600.0, 40.0},
};

const CalculatorTable kInductanceByPermeability{
    .form = "frmLvsMu",
    .title = "Inductance using Permeability (µ) Calculator"_t,
    .name = "Inductance",
    .procedure = "calcLmu",
    .helpTopic = 1806,
    .given = 4,
    .fields = by_permeability::kFields,
    .units = by_permeability::kUnits,
    .solutions = by_permeability::kSolutions,
    .picture = windingPicture,
    // 100 turns on 0.65 cm² and 6.35 cm of permeability 125.
    .example = {1e-8 * 1.2566370614359161 * 1e4 * 0.65 * 125.0 / 6.35, 100.0, 0.65, 6.35, 125.0},
};

}  // namespace tallyforge
