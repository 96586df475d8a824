// SPDX-License-Identifier: GPL-3.0-or-later
//
// Force, temperature and density: three uses of one form.
#include "convert/conversion_tables.h"
#include "convert/exact_sizes.h"
#include "platform/text.h"

namespace tallyforge {

namespace {

using namespace exact;

/// The form has room for the forces; temperatures and densities leave buttons of each bank hidden.
constexpr int kPlaces = 11;

constexpr Unit kForce[] = {
    {"dyne", "d", 1e-05, 1e-5L, "gram centimeter per second squared", Source::Nist811, "dynes|dyn"},
    {"gram-force", "gf", 0.00980665, kGravity * 1e-3L, "gram at standard gravity", Source::Nist811,
     "gram force|grams-force|pond"},
    {"poundal", "pdl", 0.138254954376, kPound* kFoot, "pound foot per second squared", Source::Nist811, "poundals"},
    {"ounce-force", "ozf", 0.27801385, kPoundForce / 16, "1/16 pound-force", Source::Nist811,
     "ounce force|ounces-force"},
    {"joule/meter", "j/m", 1, 1, "newton", Source::SiBrochure, "J/m|joule per meter|joules/meter"},
    {"Newton", "N", 1, 1, "kilogram meter per second squared", Source::SiBrochure, "newtons"},
    {"pound-force", "lbf", 4.4482216152605, kPoundForce, "pound at standard gravity", Source::Nist811,
     "pound force|pounds-force"},
    {"kilogram-force", "kgf", 9.80665, kGravity, "kilogram at standard gravity", Source::Nist811,
     "kilogram force|kilograms-force|kilopond|kp"},
    {"sthene", "st", 1000, 1000, "1000 newtons", Source::Nist811, "sthenes|sn|kilonewton|kN"},
    {"kip", "kip", 4448.2216152605, 1000 * kPoundForce, "1000 pounds-force", Source::Nist811,
     "kips|kilopound-force|klbf"},
    {"ton-force", "tnf", 9806.65, 1000 * kGravity, "metric ton at standard gravity", Source::Nist811,
     "ton force|tons-force|tonne-force|metric ton-force|tf"},
};

constexpr Unit kDensity[] = {
    {"kilogram/meter³"_t, "kg/cu m", 1, 1, "kilogram per cubic meter", Source::SiBrochure,
     "kg/m³|kg/m3|kilogram per cubic meter"_t},
    {"pound(mass)/foot³"_t, "lbm/cu ft", 16.018463, kPound / kCubicFoot, "pound per cubic foot", Source::Nist811,
     "lb/ft³|lb/ft3|pound per cubic foot|pcf"_t},
    {"slug/foot³"_t, "sl/cu ft", 515.379, kSlug / kCubicFoot, "slug per cubic foot", Source::Nist811,
     "slug/ft³|slug/ft3|slug per cubic foot"_t},
    {"gram/centimeter³"_t, "g/cu cm", 1000, 1000, "gram per cubic centimeter", Source::SiBrochure,
     "g/cm³|g/cm3|gram per cubic centimeter|g/cc|g/ml"_t},
    {"pound(mass)/inch³"_t, "lbm/cu in", 27679.905, kPound / kCubicInch, "pound per cubic inch", Source::Nist811,
     "lb/in³|lb/in3|pound per cubic inch"_t},
    {"slug/inch³"_t, "sl/cu in", 890575.0, kSlug / kCubicInch, "slug per cubic inch", Source::Nist811,
     "slug/in³|slug/in3|slug per cubic inch"_t},
};

constexpr Unit kTemperature[] = {
    {"Celsius", "Celsius", kNoFactor, 0, "kelvins above 273.15 K", Source::SiBrochure, "°C|degC|centigrade|C"_t},
    {"Fahrenheit", "Fahrenheit", kNoFactor, 0, "5/9 kelvins above 459.67 of them", Source::Nist811, "°F|degF|F"_t},
    {"Kelvin", "Kelvin", kNoFactor, 0, "base unit", Source::SiBrochure, "°K|K|kelvins"_t},
    {"Rankine", "Rankine", kNoFactor, 0, "5/9 kelvin, from absolute zero", Source::Nist811, "°r|degR|Ra"_t},
    {"Reaumur", "Reaumur", kNoFactor, 0, "5/4 degrees Celsius, from 0 °C"_t, Source::OldMeasure, "°R|°Re|Re|Réaumur"_t},
};
constexpr std::string_view kTemperatureLabels[] = {"°C"_t, "°F"_t, "°K"_t, "°r"_t, "°R"_t};

constexpr UnitGroup kForces[] = {{.options = "OptForce", .heading = "Force", .base = "N", .units = kForce}};
constexpr UnitGroup kTemperatures[] = {{.options = "OptForce",
                                        .heading = "Temperature",
                                        .base = "K",
                                        .units = kTemperature,
                                        .measure = Measure::Temperature,
                                        .places = kPlaces,
                                        .labels = kTemperatureLabels}};
constexpr UnitGroup kDensities[] = {
    {.options = "OptForce", .heading = "Density", .base = "kg/m^3", .units = kDensity, .places = kPlaces}};

static_assert(std::size(kForce) == kPlaces);

}  // namespace

const ConversionTable kForceTable{
    .key = key::Force,
    .form = "frmForce",
    .title = "Convert Force",
    .groups = kForces,
};

const ConversionTable kTemperatureTable{
    .key = key::Temperature,
    .form = "frmForce",
    .title = "Convert Temperature",
    .groups = kTemperatures,
};

const ConversionTable kDensityTable{
    .key = key::Density,
    .form = "frmForce",
    .title = "Convert Density",
    .groups = kDensities,
};

}  // namespace tallyforge
