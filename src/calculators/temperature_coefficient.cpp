// SPDX-License-Identifier: GPL-3.0-or-later
//
// Resistance against temperature, in degrees Celsius and any unit of resistance. The coefficient is
// that at T1; for copper and aluminium, whose tables give it at 20 degrees, the parameter is 1.
#include "calculators/calculators.h"
#include "calculators/careful.h"
#include "calculators/pictures.h"

namespace tallyforge {

namespace {

enum Field : std::int8_t { A, R1, R2, T1, T2 };

/// Temperature at which the coefficients of copper and aluminium are given.
constexpr double kTableTemperature = 20.0;

constexpr std::array<Quantity, 5> kFields{{
    {.symbol = "à"_t,
     .name = "Temperature coefficient of resistivity",
     .bit = 16,
     .modifiers = kShift,
     .unit = "ê/ê/øC"_t,
     .tapeGlyphs = true,
     .signedValue = true,
     .zeroCounts = true},
    {.symbol = "R1", .name = "Resistance at T1", .bit = 1, .modifiers = kCtrl, .signedValue = true},
    {.symbol = "R2", .name = "Resistance at T2", .bit = 2, .modifiers = kAlt, .signedValue = true, .zeroCounts = true},
    {.symbol = "T1",
     .name = "First temperature",
     .bit = 4,
     .modifiers = kCtrl | kAlt,
     .unit = "°C"_t,
     .signedValue = true,
     .zeroCounts = true},
    {.symbol = "T2",
     .name = "Second temperature",
     .bit = 8,
     .modifiers = kShift | kCtrl | kAlt,
     .unit = "°C"_t,
     .signedValue = true,
     .zeroCounts = true},
}};

bool atTwenty(const Values& v) {
    return v[kParameter] != 0.0;
}

/// How R grows from 20 degrees to `temperature`.
double growth(const Values& v, double temperature) {
    return 1.0 + v[A] * (temperature - kTableTemperature);
}

/// The temperature at which a resistance of `r` stands, where `given` stands at `temperature`.
double temperatureOf(const Values& v, double r, double given, double temperature) {
    const double ratio = quotient(r, given);
    if (!atTwenty(v)) {
        return checked(temperature + quotient(ratio - 1.0, v[A]));
    }
    return checked(kTableTemperature + ratio * (temperature - kTableTemperature) + quotient(ratio - 1.0, v[A]));
}

// R2 = R1·(1 + α·(T2 - T1)); with the coefficient at 20 degrees
// R2 / R1 = (1 + α·(T2 - 20)) / (1 + α·(T1 - 20)). Solved for each.
constexpr std::array<Solution, 5> kSolutions{{
    {.given = 15,
     .solved = solves(A),
     .relation = "from R2 = R1 (1 + TC (T2 - T1))",
     .solve =
         [](Values& v) {
             const double heated = v[R1] * (v[T2] - v[T1]);
             const double atTable = v[R1] * (v[T2] - kTableTemperature) - v[R2] * (v[T1] - kTableTemperature);
             v[A] = quotient(v[R2] - v[R1], atTwenty(v) ? atTable : heated);
         }},
    {.given = 23,
     .solved = solves(T2),
     .relation = "from R2 = R1 (1 + TC (T2 - T1))",
     .solve = [](Values& v) { v[T2] = temperatureOf(v, v[R2], v[R1], v[T1]); }},
    {.given = 27,
     .solved = solves(T1),
     .relation = "from R2 = R1 (1 + TC (T2 - T1))",
     .solve =
         [](Values& v) {
             // Without the table's temperature the coefficient is that at T1, not at T2.
             v[T1] = atTwenty(v) ? temperatureOf(v, v[R1], v[R2], v[T2])
                                 : checked(v[T2] - quotient(quotient(v[R2], v[R1]) - 1.0, v[A]));
         }},
    {.given = 29,
     .solved = solves(R2),
     .relation = "R2 = R1 (1 + TC (T2 - T1))",
     .solve =
         [](Values& v) {
             v[R2] = atTwenty(v) ? checked(quotient(growth(v, v[T2]), growth(v, v[T1])) * v[R1])
                                 : checked((1.0 + v[A] * (v[T2] - v[T1])) * v[R1]);
         }},
    {.given = 30,
     .solved = solves(R1),
     .relation = "R1 = R2 / (1 + TC (T2 - T1))",
     .solve =
         [](Values& v) {
             v[R1] = atTwenty(v) ? checked(quotient(growth(v, v[T1]), growth(v, v[T2])) * v[R2])
                                 : quotient(v[R2], 1.0 + v[A] * (v[T2] - v[T1]));
         }},
}};

}  // namespace

const CalculatorTable kTemperatureCoefficient{
    .form = "frmRt",
    .title = "Temperature Coefficient of Resistivity Calculator",
    .name = "Temperature Coefficient of Resistivity",
    .procedure = "TempCoRes",
    .helpTopic = 1121,
    .given = 4,
    .fields = kFields,
    .solutions = kSolutions,
    .checkBox = "Copper or Aluminum",
    .checkTip = " Check when T1 does not equal 20°c and the calculation involves Al or Cu. "_t,
    .typicalValues = true,
    .exitTip = "Exit The Temperature Coefficient of Resistivity Calculator",
    .picture = temperaturePicture,
    .example = {0.004, 100.0, 120.0, 25.0, 75.0},
};

}  // namespace tallyforge
