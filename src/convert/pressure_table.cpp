// SPDX-License-Identifier: GPL-3.0-or-later
//
// Units of pressure.
#include "convert/conversion_tables.h"
#include "convert/exact_sizes.h"
#include "platform/text.h"

namespace tallyforge {

namespace {

using namespace exact;

constexpr Unit kUnits[] = {
    {"kilogram (force) per cm²"_t, "kgf/cm²"_t, 98066.5, 1e4L * kGravity, "kilogram-force per square centimeter",
     Source::Nist811, "kgf/cm2|technical atmosphere|at|kilogram-force per square centimeter|kg/cm2"},
    {"barye", "barye", 0.1, 0.1L, "dyne per square centimeter", Source::Nist811, "baryes|Ba"},
    {"dyne per cm²"_t, "d/cm²"_t, 0.1, 0.1L, "dyne per square centimeter", Source::Nist811,
     "dyn/cm²|d/cm2|dyne per square centimeter|dyn/cm2"_t},
    {"pascal", "pas", 1, 1, "newton per square meter", Source::SiBrochure, "Pa|pascals"},
    {"newtons per m²"_t, "n/m²"_t, 1, 1, "pascal", Source::SiBrochure, "N/m²|N/m2|newton per square meter"_t},
    {"kilogram (force) per meter²"_t, "kgf/m²"_t, 9.80665, kGravity, "kilogram-force per square meter", Source::Nist811,
     "kgf/m2|kilogram-force per square meter|kg/m2"},
    {"pound (force) per foot²"_t, "lbf/ft²"_t, 47.880258, kPoundForce / kSquareFoot, "pound-force per square foot",
     Source::Nist811, "psf|lbf/ft2|lb/ft2|pound-force per square foot"},
    {"cm of water (4°c)"_t, "cmW", 98.0638, 98.0638L, "measured density of water at 4 °C"_t, Source::Nist811,
     "centimeter of water|cmH2O|cm H2O"},
    {"millibar", "mbar", 100, 100, "100 pascals", Source::Nist811, "millibars|mb|hPa|hectopascal"},
    {"torr (0°c)"_t, "torr", 133.322, kTorr, "1/760 atmosphere", Source::Nist811, "Torr|torrs"},
    {"mm of mercury (0°c)"_t, "mm hg", 133.3224, kMercury * 1e-3L,
     "13595.1 kilograms per cubic meter at standard gravity", Source::Nist811,
     "mmHg|millimeter of mercury|millimeters of mercury"},
    {"inches of water (39.2°F)"_t, "inW", 249.082, 249.082L, "measured density of water at 39.2 °F"_t, Source::Nist811,
     "inch of water|inH2O|in H2O|inches water"},
    {"cm of mercury (0°c)"_t, "cm hg", 1333.22, kMercury * 1e-2L,
     "13595.1 kilograms per cubic meter at standard gravity", Source::Nist811,
     "cmHg|centimeter of mercury|centimeters of mercury"},
    {"feet of water (39.2°F)"_t, "ftW", 2988.98, 2988.98L, "measured density of water at 39.2 °F"_t, Source::Nist811,
     "foot of water|ftH2O|ft H2O|feet water"},
    {"inches mercury (32°F)"_t, "in hg", 3386.389, kMercury* kInch,
     "13595.1 kilograms per cubic meter at standard gravity", Source::Nist811,
     "inHg|inch of mercury|inches of mercury"},
    {"pound (force) per inches²"_t, "lbf/in²"_t, 6894.7572, kPoundForce / kSquareInch, "pound-force per square inch",
     Source::Nist811, "psi|lbf/in2|lb/in2|pound-force per square inch|pounds per square inch"},
    {"bar", "bar", 100000, 1e5L, "100000 pascals", Source::Nist811, "bars"},
    {"atmosphere", "atm", 101325, 101325, "standard, 101325 pascals", Source::Nist811,
     "atmospheres|standard atmosphere"},
};

constexpr UnitGroup kGroups[] = {
    {.options = "OptPress", .heading = "Pressure", .base = "Pa", .units = kUnits},
};

}  // namespace

const ConversionTable kPressureTable{
    .key = key::Pressure,
    .form = "frmPressure",
    .title = "Convert Pressure",
    .groups = kGroups,
};

}  // namespace tallyforge
