// SPDX-License-Identifier: GPL-3.0-or-later
//
// A band by its centre, its width and its ends: the centre is the geometric mean of the ends. All
// four are in the unit that is chosen, so that none is converted.
#include "calculators/calculators.h"
#include "calculators/careful.h"
#include "calculators/pictures.h"

namespace tallyforge {

namespace {

enum Field : std::int8_t { Fo, BW, FL, FU };

constexpr std::array<Quantity, 4> kFields{{
    {.symbol = "Fo", .name = "Centre frequency", .bit = 1, .modifiers = kShift, .units = &kLcF},
    {.symbol = "BW", .name = "Bandwidth", .bit = 2, .modifiers = kCtrl, .units = &kLcF},
    {.symbol = "FL", .name = "Lower frequency", .bit = 4, .modifiers = kAlt, .units = &kLcF},
    {.symbol = "FU", .name = "Upper frequency", .bit = 8, .modifiers = kCtrl | kAlt, .units = &kLcF},
}};
constexpr std::array<UnitArray, 1> kUnits{{{"OptFreq", "Frequency", &kLcF}}};

// Fo² = FL·FU and BW = FU - FL.
constexpr std::array<Solution, 6> kSolutions{{
    {.given = 3,
     .solved = solves(FL, FU),
     .relation = "FL = (sqrt(4 Fo² + BW²) - BW) / 2, FU = FL + BW"_t,
     .solve =
         [](Values& v) {
             // The difference of root and width would lose FL where the band is wide.
             v[FU] = checked((std::hypot(2.0 * v[Fo], v[BW]) + v[BW]) / 2.0);
             v[FL] = checked(v[Fo] * quotient(v[Fo], v[FU]));
         }},
    {.given = 5,
     .solved = solves(BW, FU),
     .relation = "FU = Fo² / FL, BW = FU - FL"_t,
     .solve =
         [](Values& v) {
             v[FU] = squareOver(v[Fo], v[FL]);
             v[BW] = checked(quotient(v[Fo] - v[FL], v[FL]) * (v[Fo] + v[FL]));
         }},
    {.given = 6,
     .solved = solves(Fo, FU),
     .relation = "FU = FL + BW, Fo = sqrt(FU · FL)"_t,
     .solve =
         [](Values& v) {
             v[FU] = checked(v[FL] + v[BW]);
             v[Fo] = rootOfProduct(v[FU], v[FL]);
         }},
    {.given = 9,
     .solved = solves(FL, BW),
     .relation = "FL = Fo² / FU, BW = FU - FL"_t,
     .solve =
         [](Values& v) {
             v[FL] = squareOver(v[Fo], v[FU]);
             v[BW] = checked(quotient(v[FU] - v[Fo], v[FU]) * (v[FU] + v[Fo]));
         }},
    {.given = 10,
     .solved = solves(FL, Fo),
     .relation = "FL = FU - BW, Fo = sqrt(FU · FL)"_t,
     .solve =
         [](Values& v) {
             v[FL] = checked(v[FU] - v[BW]);
             v[Fo] = rootOfProduct(v[FU], v[FL]);
         }},
    {.given = 12,
     .solved = solves(BW, Fo),
     .relation = "BW = FU - FL, Fo = sqrt(FU · FL)"_t,
     .solve =
         [](Values& v) {
             v[BW] = checked(v[FU] - v[FL]);
             v[Fo] = rootOfProduct(v[FU], v[FL]);
         }},
}};

}  // namespace

const CalculatorTable kGeometricMean{
    .form = "frmFo",
    .title = "Calculate Geometic Mean",
    .name = "Geometric Mean",
    .procedure = "calcGeoMean",
    .helpTopic = 1111,
    .fields = kFields,
    .units = kUnits,
    .solutions = kSolutions,
    .countsFromSolved = true,
    .picture = bandPicture,
    .example = {1200.0, 700.0, 900.0, 1600.0},
};

}  // namespace tallyforge
