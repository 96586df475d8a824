// SPDX-License-Identifier: GPL-3.0-or-later
//
// Ohm's law: power, current, voltage and resistance, two of which give the others. Base units are
// watts, amperes, volts and ohms.
#include "calculators/calculators.h"
#include "calculators/careful.h"
#include "calculators/pictures.h"

namespace tallyforge {

namespace {

enum Field : std::int8_t { P, I, E, R };

// E = I·R (Ohm) and P = E·I (Joule), solved for each pair.
constexpr std::array<Quantity, 4> kFields{{
    {.symbol = "P", .name = "Power", .bit = 1, .modifiers = kShift, .units = &kOhmP},
    {.symbol = "I", .name = "Current", .bit = 2, .modifiers = kCtrl, .units = &kOhmI},
    {.symbol = "E", .name = "Voltage", .bit = 4, .modifiers = kAlt, .units = &kOhmE},
    {.symbol = "R", .name = "Resistance", .bit = 8, .modifiers = kCtrl | kAlt, .units = &kOhmR},
}};
constexpr std::array<UnitArray, 4> kUnits{{{"OptP", "Power", &kOhmP},
                                           {"OptI", "Current", &kOhmI},
                                           {"OptE", "Voltage", &kOhmE},
                                           {"OptX", "Resistance", &kOhmR}}};

constexpr std::array<Solution, 6> kSolutions{{
    {.given = 3,
     .solved = solves(E, R),
     .relation = "E = P / I, R = P / I²"_t,
     .solve =
         [](Values& v) {
             v[E] = quotient(v[P], v[I]);
             v[R] = overSquare(v[P], v[I]);
         }},
    {.given = 5,
     .solved = solves(I, R),
     .relation = "I = P / E, R = E² / P"_t,
     .solve =
         [](Values& v) {
             v[I] = quotient(v[P], v[E]);
             v[R] = squareOver(v[E], v[P]);
         }},
    {.given = 6,
     .solved = solves(P, R),
     .relation = "P = I · E, R = E / I"_t,
     .solve =
         [](Values& v) {
             v[P] = checked(v[I] * v[E]);
             v[R] = quotient(v[E], v[I]);
         }},
    {.given = 9,
     .solved = solves(E, I),
     .relation = "E = sqrt(P · R), I = sqrt(P / R)"_t,
     .solve =
         [](Values& v) {
             v[E] = rootOfProduct(v[P], v[R]);
             v[I] = rootOfQuotient(v[P], v[R]);
         }},
    {.given = 10,
     .solved = solves(E, P),
     .relation = "E = I · R, P = I² · R"_t,
     .solve =
         [](Values& v) {
             v[E] = checked(v[I] * v[R]);
             v[P] = squareTimes(v[I], v[R]);
         }},
    {.given = 12,
     .solved = solves(I, P),
     .relation = "I = E / R, P = E² / R"_t,
     .solve =
         [](Values& v) {
             v[I] = quotient(v[E], v[R]);
             v[P] = squareOver(v[E], v[R]);
         }},
}};

}  // namespace

const CalculatorTable kOhmsLaw{
    .form = "frmOhmsLaw",
    .title = "Ohms Law Calculator",
    .name = "Ohms Law",
    .procedure = "calcOhms",
    .helpTopic = 1310,
    .fields = kFields,
    .units = kUnits,
    .solutions = kSolutions,
    .countsFromSolved = true,
    .picture = ohmsLawPicture,
    .example = {20.0, 2.0, 10.0, 5.0},
};

}  // namespace tallyforge
