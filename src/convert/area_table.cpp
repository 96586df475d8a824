// SPDX-License-Identifier: GPL-3.0-or-later
//
// Units of area.
#include "convert/conversion_tables.h"
#include "convert/exact_sizes.h"
#include "platform/text.h"

namespace tallyforge {

namespace {

using namespace exact;

constexpr Unit kUnits[] = {
    {"sqr fermi", "fe²"_t, 1e-30, 1e-30L, "fermi squared", Source::Nist811, "square fermi|fm²|fm2|sq fermi"_t},
    {"barn", "b", 1e-28, 1e-28L, "100 square femtometers", Source::Nist811, "barns"},
    {"sqr angstrom", "Å²"_t, 1e-20, 1e-20L, "angstrom squared", Source::Nist811, "square angstrom|sq angstrom|A2"},
    {"Cir Mils", "CM", 5.0670748e-10, kPi / 4 * kMil* kMil, "circle of 1/1000 inch", Source::Nist811,
     "circular mil|circular mils|cmil"},
    {"sqr mils", "mils²"_t, 6.4516e-10, kMil* kMil, "mil squared", Source::Nist811,
     "square mil|square mils|mils2|mil2"},
    {"sqr millimeters", "mm²"_t, 1e-06, 1e-6L, "millimeter squared", Source::SiBrochure,
     "square millimeter|square millimeters|mm2|sq mm|sqmm"},
    {"sqr centimeters", "cm²"_t, 0.0001, 1e-4L, "centimeter squared", Source::SiBrochure,
     "square centimeter|square centimeters|cm2|sq cm|sqcm"},
    {"sqr inches", "in²"_t, 0.00064516, kSquareInch, "inch squared", Source::Nist811,
     "square inch|square inches|in2|sq in|sqin"},
    {"sqr feet", "ft²"_t, 0.09290304, kSquareFoot, "foot squared", Source::Nist811,
     "square foot|square feet|ft2|sq ft|sqft|sf"},
    {"sabin", "sab", 0.09290304, kSquareFoot, "square foot of perfect absorber", Source::Trade, "sabins"},
    {"sqr yards", "yd²"_t, 0.83612736, 9 * kSquareFoot, "yard squared", Source::Nist811,
     "square yard|square yards|yd2|sq yd|sqyd"},
    {"sqr meters", "m²"_t, 1, 1, "meter squared", Source::SiBrochure,
     "square meter|square meters|m2|sq m|sqm|square metre"},
    {"square", "sqr", 9.290304, 100 * kSquareFoot, "roofing, 100 square feet", Source::Trade, "squares|roofing square"},
    {"cho (J)", "cho", 14.79823488, 1200000.0L / 121, "Japanese, 3000 tsubo of 400/121 square meters",
     Source::OldMeasure, "cho|chobu"},
    {"sqr rod", "rod²"_t, 25.29285264, kAcre / 160, "rod squared, 1/160 acre", Source::Nist811,
     "square rod|square rods|rod2|sq rod|square perch"},
    {"are", "are", 100, 100, "100 square meters", Source::SiBrochure, "ares|a"},
    {"rood", "rd", 1011.7141056, kAcre / 4, "1/4 acre", Source::WeightsAndMeasuresAct, "roods"},
    {"acre", "acre", 4046.8564224, kAcre, "43560 square feet", Source::Nist811, "acres|ac"},
    {"hectare", "ha", 10000, 1e4L, "100 ares", Source::SiBrochure, "hectares"},
    {"dsyatina(R)", "dsy", 10926.51234048, 2400 * kSazhen* kSazhen, "Russian, 2400 square sazhens", Source::OldMeasure,
     "desyatina|dsyatina|dessiatin"},
    {"homestead", "hstd", 647497.027584, 160 * kAcre, "160 acres", Source::Trade, "homesteads|quarter section"},
    {"sqr mile", "mi²"_t, 2589988.110336, 640 * kAcre, "statute mile squared", Source::Nist811,
     "square mile|square miles|mi2|sq mi|sqmi"},
    {"section", "sct", 2589988.110336, 640 * kAcre, "US survey division, one square mile", Source::Handbook44,
     "sections"},
    {"township", "tns", 93239572.372, 36 * 640 * kAcre, "US survey division, 36 square miles", Source::Handbook44,
     "townships"},
    {"sqr megameters", "Mm²"_t, 1000000000000, 1e12L, "megameter squared", Source::SiBrochure,
     "square megameter|square megameters|Mm2|sq Mm"},
    {"sqr IAU", "AU²"_t, 2.2379523e+22, kAstronomicalUnit* kAstronomicalUnit, "astronomical unit squared", Source::Iau,
     "square astronomical unit|square IAU|AU2|sq AU"},
    {"sqr light year", "ly²"_t, 8.9505412e+31, kLightYear* kLightYear, "light year squared", Source::Iau,
     "square light year|square light years|ly2|sq ly"},
    {"sqr parsec", "pc²"_t, 9.5214087e+32, kParsec* kParsec, "parsec squared", Source::Iau,
     "square parsec|square parsecs|pc2|sq pc"},
};

constexpr UnitGroup kGroups[] = {
    {.options = "OptArea", .heading = "Area", .base = "m^2", .units = kUnits},
};

}  // namespace

const ConversionTable kAreaTable{
    .key = key::Area,
    .form = "frmArea",
    .title = "Convert Area",
    .groups = kGroups,
    .preset = {0, 8, 11},
};

}  // namespace tallyforge
