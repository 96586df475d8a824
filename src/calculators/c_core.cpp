// SPDX-License-Identifier: GPL-3.0-or-later
//
// A C core from its four dimensions: strip thickness D, build E, window F by G. Base units are inches,
// circular mils, feet of a turn and pounds.
#include "calculators/calculators.h"
#include "calculators/careful.h"
#include "calculators/pictures.h"
#include "numbers/circle.h"

namespace tallyforge {

namespace {

enum Field : std::int8_t { D, E, F, G, Ae, Le, Wt, WA, Mtl };

constexpr std::array<Quantity, 9> kFields{{
    {.symbol = "D",
     .name = "Dimension D, the width of the strip",
     .bit = 1,
     .modifiers = kShift,
     .units = &kCoreDimension,
     .plainDecimals = true,
     .missing = "Dimension \"D\" is required"},
    {.symbol = "E",
     .name = "Dimension E, the build",
     .bit = 2,
     .modifiers = kCtrl,
     .units = &kCoreDimension,
     .plainDecimals = true,
     .missing = "Dimension \"E\" is required"},
    {.symbol = "F",
     .name = "Dimension F, the width of the window",
     .bit = 4,
     .modifiers = kAlt,
     .units = &kCoreDimension,
     .plainDecimals = true,
     .missing = "Dimension \"F\" is required"},
    {.symbol = "G",
     .name = "Dimension G, the length of the window",
     .bit = 8,
     .modifiers = kCtrl | kAlt,
     .units = &kCoreDimension,
     .plainDecimals = true,
     .missing = "Dimension \"G\" is required"},
    {.symbol = "Ae", .name = "Area of the core", .bit = 16, .units = &kCorePathArea, .resultOnly = true},
    {.symbol = "le", .name = "Length of the path", .bit = 32, .units = &kCorePath, .resultOnly = true},
    {.symbol = "Wt", .name = "Weight", .bit = 64, .units = &kCoreWeight, .resultOnly = true},
    {.symbol = "WA", .name = "Window area", .bit = 128, .units = &kCoreWindow, .resultOnly = true},
    {.symbol = "mtl", .name = "Mean turn length", .bit = 256, .units = &kCoreTurn, .resultOnly = true},
}};
constexpr std::array<UnitArray, 5> kUnits{{{"OptDim", "Dimensions", &kCoreDimension},
                                           {"OptMtl", "Mean Turn Length", &kCoreTurn},
                                           {"OptPath", "Path, Area", &kCorePath},
                                           {"OptWA", "Window Area", &kCoreWindow},
                                           {"OptWt", "Weight", &kCoreWeight}}};

// Silicon steel weighs 0.276 lb a cubic inch; 0.6 of the window is taken by wire, a square inch
// being 1.27e6 circular mils of it; 1.57 is pi / 2, and 0.167 ft twice an inch.
constexpr double kPoundsPerCubicInch = 0.276;
constexpr double kMilsPerSquareInch = 1.27e6;
constexpr double kWindowFill = 0.6;
constexpr double kHalfPi = 1.57;
constexpr double kTwoInchesInFeet = 0.167;

constexpr std::array<Solution, 1> kSolutions{{
    {.given = 15,
     .solved = {Ae, Le, Wt, WA, Mtl},
     .relation = "from D, E, F and G",
     .solve =
         [](Values& v) {
             v[Ae] = checked(v[D] * v[E]);
             v[Le] = checked(2.0 * (kPi / 2.0 * v[E] + v[F] + v[G]));
             v[Wt] = checked(v[Ae] * v[Le] * kPoundsPerCubicInch);
             v[WA] = checked(v[F] * kMilsPerSquareInch * v[G] * kWindowFill);
             v[Mtl] = checked((v[D] + v[E] + v[F] * kHalfPi) * kTwoInchesInFeet);
         }},
}};

}  // namespace

const CalculatorTable kCCore{
    .form = "frmCcore",
    .title = "'C' Core Calculator",
    .name = "'C' Core",
    .procedure = "calcC_Core",
    .helpTopic = 1800,
    .given = 4,
    .fields = kFields,
    .units = kUnits,
    .solutions = kSolutions,
    .picture = corePicture,
    // By hand: 0.5, 1; 2 (pi / 2 + 4.5); 0.276 times both; 762000 · 3.75; (1.5 + 1.5 · 1.57) · 0.167.
    .example = {0.5, 1.0, 1.5, 3.0, 0.5, 12.14159265358979, 1.67553978619539102, 3429000.0, 0.643785},
};

}  // namespace tallyforge
