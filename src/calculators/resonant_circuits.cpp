// SPDX-License-Identifier: GPL-3.0-or-later
//
// Resonant circuits with a lossy element: R, L and C in series under a parallel load, and an
// inductor with its resistance beside a capacitor. Both are looked at where they resonate, then at
// any frequency. Base units are ohms, farads, henries and hertz; angles are radians.
#include "calculators/calculators.h"
#include "calculators/careful.h"
#include "calculators/pictures.h"
#include "numbers/circle.h"

namespace tallyforge {

namespace {

/// Frequency at which L and C alone would resonate (Thomson), and the size of either reactance there.
double naturalFrequency(double inductance, double capacitance) {
    return quotient(1.0, rootOfProduct(capacitance, inductance) * kTwoPi);
}
double reactanceThere(double inductance, double capacitance) {
    return rootOfQuotient(inductance, capacitance);
}

namespace series {

enum Field : std::int8_t { Rs, C, L, Rp, F };
enum Answer : std::size_t { kQo = kFirstAnswer, kZin, kAngle = kFirstAnswer, kZf };

/// A load that is none: pi / 2.54 times 1e100.
constexpr double kNoLoad = 1.2368475014133e100;

constexpr std::array<Quantity, 5> kFields{{
    {.symbol = "Rs", .name = "Series resistance", .bit = 1, .modifiers = kCtrl | kAlt, .units = &kLcX},
    {.symbol = "C", .name = "Capacitance", .bit = 2, .modifiers = kCtrl, .units = &kLcC},
    {.symbol = "L", .name = "Inductance", .bit = 4, .modifiers = kAlt, .units = &kLcL},
    {.symbol = "Rp",
     .name = "Resistance of the parallel load",
     .bit = 8,
     .modifiers = kShift,
     .unit = "Ohms",
     .preset = "1.24E100",
     .presetValue = kNoLoad},
    {.symbol = "F", .name = "Frequency", .bit = 16, .units = &kLcF, .afterSolution = true},
}};
constexpr std::array<UnitArray, 4> kUnits{{{"OptX", "Rs", &kLcX},
                                           {"OptCap", "Capacitance", &kLcC},
                                           {"OptL", "Inductance", &kLcL},
                                           {"OptFreq", "Frequency", &kLcF}}};
constexpr std::array<AnswerField, 2> kAtResonance{{{"Qo"}, {"Zin"}}};
constexpr std::array<AnswerField, 2> kAtFrequency{{{"Angle", true}, {"Zf"}}};

/// Impedance at a frequency: with u = |1 - w² L C| and s = w C it is that of Rs and u / s in
/// series, with Rp beside them.
void lookAt(Values& v) {
    // An exact resonance, and w of exactly 1, would divide by 0.
    constexpr double kNearlyResonant = 1e-75;
    constexpr double kNearlyOne = 1.000000000001;
    double w = checked(kTwoPi * v[F]);
    w = w == 1.0 ? kNearlyOne : w;
    const double detuning = std::abs(1.0 - w * w * v[L] * v[C]);
    const double u = checked(detuning == 0.0 ? kNearlyResonant : detuning);
    const double s = w * v[C];
    const double loaded = v[Rs] + v[Rp];
    v[kZf] = checked(v[Rp] * quotient(std::hypot(v[Rs] * s, u), std::hypot(loaded * s, u)));
    // atan(s Rs / u) - atan(s (Rs + Rp) / u) without their difference.
    const double angle = -std::atan2(v[Rp] * s * u, u * u + v[Rs] * s * (loaded * s));
    v[kAngle] = v[F] < naturalFrequency(v[L], v[C]) ? angle : std::abs(angle);
}

constexpr std::array<Solution, 2> kSolutions{{
    {.given = 7,
     .solved = solves(F),
     .relation = "Fr = 1 / (2 pi sqrt(L C)), Qo = 2 pi Fr L / Rs",
     .solve =
         [](Values& v) {
             v[F] = naturalFrequency(v[L], v[C]);
             v[kQo] = quotient(reactanceThere(v[L], v[C]), v[Rs]);
             v[kZin] = quotient(v[Rs], 1.0 + quotient(v[Rs], v[Rp]));
         },
     .answers = kAtResonance,
     .asksOn = true},
    {.given = 23, .relation = "Zf = Rp beside Rs + jwL + 1/jwC", .solve = lookAt, .answers = kAtFrequency},
}};

}  // namespace series

namespace parallel {

enum Field : std::int8_t { RL, C, L, F };
enum Answer : std::size_t { kFn = kFirstAnswer, kFr, kQo, kZin, kAngle = kFirstAnswer, kZ };

constexpr std::array<Quantity, 4> kFields{{
    {.symbol = "RL", .name = "Resistance of the inductor", .bit = 1, .modifiers = kShift, .units = &kLcX},
    {.symbol = "C", .name = "Capacitance", .bit = 2, .modifiers = kCtrl, .units = &kLcC},
    {.symbol = "L", .name = "Inductance", .bit = 4, .modifiers = kAlt, .units = &kLcL},
    {.symbol = "F", .name = "Frequency", .bit = 8, .units = &kLcF, .afterSolution = true},
}};
constexpr std::array<UnitArray, 4> kUnits{{{"OptX", "RL", &kLcX},
                                           {"OptCap", "Capacitance", &kLcC},
                                           {"OptL", "Inductance", &kLcL},
                                           {"OptFreq", "Frequency", &kLcF}}};
constexpr std::array<AnswerField, 4> kAtResonance{{{"Fn", false, &kLcF}, {"Fr", false, &kLcF}, {"Qo"}, {"Zin"}}};
constexpr std::array<AnswerField, 2> kAtFrequency{{{"Angle", true}, {"Zin"}}};

/// Magnitude and angle of the impedance at w: admittances of RL + jwL and of C, added.
struct Impedance {
    double size = 0.0;
    double angle = 0.0;
};
Impedance impedance(const Values& v, double w) {
    constexpr double kSmallestAngle = 1e-12;
    const double size = std::hypot(v[RL], w * v[L]);
    const double conductance = quotient(quotient(v[RL], size), size);
    const double susceptance = w * v[C] - quotient(quotient(w * v[L], size), size);
    const double angle = -std::atan2(susceptance, conductance);
    return {.size = quotient(1.0, std::hypot(conductance, susceptance)),
            .angle = std::abs(angle) < kSmallestAngle ? 0.0 : angle};
}

constexpr std::array<Solution, 2> kSolutions{{
    {.given = 7,
     .relation = "Fr = Fn sqrt(1 - 1/Qo²)"_t,
     .solve =
         [](Values& v) {
             v[kFn] = naturalFrequency(v[L], v[C]);
             v[kQo] = quotient(reactanceThere(v[L], v[C]), v[RL]);
             // A Q below 1 does not resonate; its impedance is told at Fn.
             const bool resonates = v[kQo] >= 1.0;
             v[kFr] = resonates ? std::sqrt((1.0 - 1.0 / v[kQo]) * (1.0 + 1.0 / v[kQo])) * v[kFn] : 0.0;
             v[kZin] = impedance(v, kTwoPi * (resonates ? v[kFr] : v[kFn])).size;
         },
     .answers = kAtResonance,
     .asksOn = true},
    {.given = 15,
     .relation = "Zin = 1 / (jwC + 1 / (RL + jwL))",
     .solve =
         [](Values& v) {
             const Impedance found = impedance(v, checked(kTwoPi * v[F]));
             v[kAngle] = found.angle;
             v[kZ] = found.size;
         },
     .answers = kAtFrequency},
}};

}  // namespace parallel

}  // namespace

const CalculatorTable kSeriesResonance{
    .form = "frmSeriesRes",
    .title = "Series Resonant Circuit Calculator",
    .name = "Series Resonant Circuit",
    .procedure = "CalcSRC",
    .helpTopic = 1350,
    .given = 3,
    .fields = series::kFields,
    .units = series::kUnits,
    .solutions = series::kSolutions,
    .useHeading = "Clear/ Use",
    .use = UseOption::Clears,
    .picture = seriesPicture,
    // 1 mH and 25.33 nF resonate near 31.6 kHz.
    .example = {10.0, 25.33e-9, 1e-3, series::kNoLoad, 31622.961313230942},
};

const CalculatorTable kParallelResonance{
    .form = "frmParaRes",
    .title = "Parallel Resonant Circuit Calculator",
    .name = "Parallel Resonant Circuit",
    .procedure = "CalcPRC",
    .helpTopic = 1360,
    .given = 3,
    .fields = parallel::kFields,
    .units = parallel::kUnits,
    .solutions = parallel::kSolutions,
    .useHeading = "Clear/ Use",
    .use = UseOption::Clears,
    .picture = parallelPicture,
    .example = {10.0, 25.33e-9, 1e-3, 50000.0},
};

}  // namespace tallyforge
