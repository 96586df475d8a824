// SPDX-License-Identifier: GPL-3.0-or-later
//
// Light. Illuminance and luminance state how many of the unit make the base unit, not its size.
#include "convert/conversion_tables.h"
#include "convert/exact_sizes.h"
#include "platform/text.h"

namespace tallyforge {

namespace {

using namespace exact;

constexpr Unit kIlluminance[] = {
    {"lumen/sq. cm", "l/cm²"_t, 0.00107639104, 1e-4L / kSquareFoot, "10000 lux", Source::Nist811,
     "lumen per square centimeter|lm/cm²|lm/cm2"_t},
    {"phot", "phot", 0.00107639104, 1e-4L / kSquareFoot, "10000 lux", Source::Nist811, "phots|ph"},
    {"lumens/sq. inch", "l/in²"_t, 0.00694444444444444, kSquareInch / kSquareFoot, "lumen per square inch",
     Source::Nist811, "lumen per square inch|lm/in²|lm/in2"_t},
    {"kilolux", "klx", 0.0107639104, 1e-3L / kSquareFoot, "1000 lux", Source::SiBrochure, "kilolux|kiloluxes"},
    {"lumens/sq. feet", "l/ft²"_t, 1, 1, "lumen per square foot", Source::Nist811,
     "lumen per square foot|lm/ft²|lm/ft2"_t},
    {"footcandle", "ft-c", 1, 1, "lumen per square foot", Source::Nist811, "footcandles|fc|foot-candle"},
    {"milliphot", "mphot", 1.07639104, 0.1L / kSquareFoot, "10 lux", Source::Nist811, "milliphots|mph"},
    {"lumens/sq. meter", "l/m²"_t, 10.7639104, 1 / kSquareFoot, "lux", Source::SiBrochure,
     "lumen per square meter|lm/m²|lm/m2"_t},
    {"lux", "lx", 10.7639104, 1 / kSquareFoot, "lumen per square meter", Source::SiBrochure, "lx|luxes"},
    {"meter-candle", "m-c", 10.7639104, 1 / kSquareFoot, "lux", Source::SiBrochure, "meter candle|metre-candle"},
    {"nox", "nox", 10763.9104, 1000 / kSquareFoot, "1e-3 lux", Source::Trade, "nx"},
};

constexpr Unit kLuminance[] = {
    {"kilocandela/sq. cm", "kcd/cm²"_t, 0.001, 1e-3L, "1000 candelas per square centimeter", Source::SiBrochure,
     "kilocandela per square centimeter|kcd/cm2"},
    {"kilocandela/sq. inch", "kcd/in²"_t, 0.0064516, 1e-3L * kSquareInch * 1e4L, "1000 candelas per square inch",
     Source::Nist811, "kilocandela per square inch|kcd/in2"},
    {"kilocandela/sq. foot", "kcd/ft²"_t, 0.929030436, 1e-3L * kSquareFoot * 1e4L, "1000 candelas per square foot",
     Source::Nist811, "kilocandela per square foot|kcd/ft2"},
    {"stilb", "stilb", 1, 1, "candela per square centimeter", Source::Nist811, "stilbs|sb"},
    {"candela/sq. cm", "cd/cm²"_t, 1, 1, "candela per square centimeter", Source::SiBrochure,
     "candela per square centimeter|cd/cm2"},
    {"lambert", "L", 3.14159265358979, kPi, "1/pi candela per square centimeter", Source::Nist811, "lamberts|La"},
    {"candela/sq. inch", "cd/in²"_t, 6.4516, kSquareInch * 1e4L, "candela per square inch", Source::Nist811,
     "candela per square inch|cd/in2"},
    {"kilocandela/sq. meter", "kcd/m²"_t, 10, 10, "1000 candelas per square meter", Source::SiBrochure,
     "kilocandela per square meter|kcd/m2"},
    {"candela/sq. foot", "cd/ft²"_t, 929.030436, kSquareFoot * 1e4L, "candela per square foot", Source::Nist811,
     "candela per square foot|cd/ft2"},
    {"Footlambert", "fL", 2918.6350793, kPi* kSquareFoot * 1e4L, "1/pi candela per square foot", Source::Nist811,
     "footlamberts|foot-lambert|ftL"},
    {"millilambert", "mL", 3141.59265358979, kPi * 1e3L, "1e-3 lambert", Source::Nist811, "millilamberts"},
    {"nit", "nit", 10000, 1e4L, "candela per square meter", Source::SiBrochure, "nits|nt"},
    {"candela/sq. meter", "cd/m²"_t, 10000, 1e4L, "base unit", Source::SiBrochure, "candela per square meter|cd/m2"},
    {"apostilb", "as", 31415.9265358979, kPi * 1e4L, "1/pi candela per square meter", Source::Trade, "apostilbs|asb"},
    {"blondel", "bl", 31415.9265358979, kPi * 1e4L, "1/pi candela per square meter", Source::Trade, "blondels"},
};

constexpr Unit kCandlepower[] = {
    {"candlepower", "cp", 4 * 3.14159265358979, 4 * kPi, "candela in all directions, 4pi lumens", Source::Trade,
     "candela all round|spherical candle"},
    {"lumen", "lm", 1, 1, "candela steradian", Source::SiBrochure, "lumens"},
};

constexpr UnitGroup kGroups[] = {
    {.options = "OptIllum",
     .heading = "Illuminance",
     .base = "lm/ft^2",
     .units = kIlluminance,
     .measure = Measure::Count},
    {.options = "OptLum", .heading = "Luminance", .base = "cd/cm^2", .units = kLuminance, .measure = Measure::Count},
    {.options = "OptCP", .heading = "Candlepower", .base = "lm", .units = kCandlepower},
};

}  // namespace

const ConversionTable kLightTable{
    .key = key::Light,
    .form = "frmCandle",
    .title = "Convert Light",
    .groups = kGroups,
};

}  // namespace tallyforge
