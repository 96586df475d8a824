// SPDX-License-Identifier: GPL-3.0-or-later
//
// Flux density in a core under an alternating voltage. Base units are gausses, volts, hertz and
// square centimetres; the parameter is the wave's factor, 4.44 for a sine and 4 for a square wave.
#include "calculators/calculators.h"
#include "calculators/careful.h"
#include "calculators/pictures.h"

namespace tallyforge {

namespace {

enum Field : std::int8_t { Bm, E, F, Ae, N };

/// Gausses times square centimetres (maxwells) to a volt-second.
constexpr double kMaxwells = 1e8;

constexpr std::array<Quantity, 5> kFields{{
    {.symbol = "Bm", .name = "Flux density", .bit = 1, .modifiers = kShift, .units = &kMagB},
    {.symbol = "E", .name = "Voltage", .bit = 2, .modifiers = kShift | kCtrl | kAlt, .unit = "V"},
    {.symbol = "F", .name = "Frequency", .bit = 16, .modifiers = kCtrl | kAlt, .units = &kMagF},
    {.symbol = "Ae", .name = "Effective area of the core", .bit = 8, .modifiers = kAlt, .units = &kMagAe},
    {.symbol = "n", .name = "Turns", .bit = 4, .modifiers = kCtrl},
}};
constexpr std::array<UnitArray, 4> kUnits{{{"OptB", "Flux Density", &kMagB},
                                           {"OptAe", "Area", &kMagAe},
                                           {"OptFreq", "Frequency", &kMagF},
                                           {"OptWS", "Wave Shape", &kMagWave}}};

// E = K·B·Ae·n·F / 10^8 (Faraday), solved for each.
constexpr std::array<Solution, 5> kSolutions{{
    {.given = 15,
     .solved = solves(F),
     .relation = "F = 10^8 E / (K Bm Ae n)",
     .solve = [](Values& v) { v[F] = quotient(kMaxwells * v[E], v[kParameter] * v[Bm] * v[Ae] * v[N]); }},
    {.given = 23,
     .solved = solves(Ae),
     .relation = "Ae = 10^8 E / (K Bm n F)",
     .solve = [](Values& v) { v[Ae] = quotient(kMaxwells * v[E], v[kParameter] * v[Bm] * v[N] * v[F]); }},
    {.given = 27,
     .solved = solves(N),
     .relation = "n = 10^8 E / (K Bm Ae F)",
     .solve = [](Values& v) { v[N] = quotient(kMaxwells * v[E], v[kParameter] * v[Bm] * v[Ae] * v[F]); }},
    {.given = 29,
     .solved = solves(E),
     .relation = "E = K Bm Ae n F / 10^8",
     .solve = [](Values& v) { v[E] = checked(v[kParameter] * v[Bm] * v[Ae] * v[N] * v[F] / kMaxwells); }},
    {.given = 30,
     .solved = solves(Bm),
     .relation = "Bm = 10^8 E / (K Ae n F)",
     .solve = [](Values& v) { v[Bm] = quotient(kMaxwells * v[E], v[kParameter] * v[Ae] * v[N] * v[F]); }},
}};

}  // namespace

const CalculatorTable kFluxDensity{
    .form = "frmBm",
    .title = "Flux Density Calculator",
    .name = "Flux Density",
    .procedure = "calcBm",
    .helpTopic = 1807,
    .given = 4,
    .fields = kFields,
    .units = kUnits,
    .solutions = kSolutions,
    .parameter = &kMagWave,
    .picture = windingPicture,
    // By hand for a sine: 4.44 · 12000 · 60 · 6.45 · 500 / 10^8 V.
    .example = {12000.0, 103.0968, 60.0, 6.45, 500.0},
};

}  // namespace tallyforge
