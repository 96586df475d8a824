// SPDX-License-Identifier: GPL-3.0-or-later
//
// Energy, and energy per area and time.
#include "convert/conversion_tables.h"
#include "convert/exact_sizes.h"
#include "platform/text.h"

namespace tallyforge {

namespace {

using namespace exact;

constexpr Unit kEnergy[] = {
    {"electron volt", "ev", 1.6021917e-19, kElectronVolt, "elementary charge times volt, exact since 2019",
     Source::Codata, "electron volts|electronvolt|eV"},
    {"rydberg", "ryd", 2.179845895518e-19, 2.1798723611030e-18L, "hydrogen's ionisation for infinite mass",
     Source::Codata, "rydbergs|Ry"},
    {"billion electron volts", "bev", 1.6021917e-10, kElectronVolt * 1e9L, "1e9 electron volts", Source::Codata,
     "gigaelectronvolt|GeV|billion electron volt"},
    {"erg", "erg", 1e-07, 1e-7L, "dyne centimeter", Source::Nist811, "ergs"},
    {"foot poundal", "ft lbl", 0.04214011, kPound* kFoot* kFoot, "foot times poundal", Source::Nist811,
     "foot poundals|ft pdl"},
    {"joule", "J", 1, 1, "newton meter", Source::SiBrochure, "joules|N m"},
    {"foot pound force", "ft lbf", 1.3558179, kFootPound, "foot times pound-force", Source::Nist811,
     "foot pounds|foot-pound|ft lb|ftlb|ft-lbf|ftlbf"},
    {"calorie", "cal", 4.184, kCalorie, "thermochemical, 4.184 joules", Source::Nist811, "calories"},
    {"British themal unit", "Btu", 1054.35, kBtu, "thermochemical", Source::Nist811,
     "British thermal unit|British thermal units|Btus|BTU"},
    {"watt hour", "w hr", 3600, 3600, "watt times hour", Source::SiBrochure, "watt hours|Wh|watt-hour"},
    {"kilocalorie", "kcal", 4184, kCalorie * 1000, "thermochemical, 4184 joules", Source::Nist811,
     "kilocalories|Cal|food calorie"},
    {"frigorie", "frg", 4186.8, 4186.8L, "International Table kilocalorie", Source::Nist811, "frigories"},
    {"kilowatt hour", "kw hr", 3600000, 3.6e6L, "kilowatt times hour", Source::SiBrochure,
     "kilowatt hours|kWh|kilowatt-hour"},
    {"thermie", "tme", 4186800, 4.1868e6L, "International Table, 1e6 calories", Source::Nist811, "thermies|th"},
    {"therm", "trm", 105505585.262, 1e5L * kBtuIt, "100000 International Table Btu", Source::Nist811,
     "therms|US therm"},
    {"eec therm", "eec", 105506000, 105506000, "European Union, 105.506 megajoules", Source::Nist811,
     "EC therm|UK therm|eec therms"},
};

constexpr Unit kHeatFlow[] = {
    {"erg/cm² second"_t, "e/c²s"_t, 0.001, 1e-3L, "erg per square centimeter and second", Source::Nist811,
     "erg/cm2 s|erg/cm²s"_t},
    {"watt/meter²"_t, "w/m²"_t, 1, 1, "watt per square meter", Source::SiBrochure,
     "W/m2|watts per square meter|watt per meter squared"},
    {"Btu/foot² hour"_t, "b/f²h"_t, 3.1524808, kBtu / kSquareFoot / 3600, "thermochemical Btu", Source::Nist811,
     "Btu/ft2 h|Btu per square foot hour|Btu/ft²h"_t},
    {"Btu/foot² minute"_t, "B/f²m"_t, 189.14885, kBtu / kSquareFoot / 60, "thermochemical Btu", Source::Nist811,
     "Btu/ft2 min|Btu per square foot minute"},
    {"cal/cm² minute"_t, "c/c²m"_t, 697.33333, kCalorie * 1e4L / 60, "thermochemical calorie", Source::Nist811,
     "cal/cm2 min|langley per minute"},
    {"watt/cm²"_t, "w/cm²"_t, 10000, 1e4L, "watt per square centimeter", Source::SiBrochure,
     "W/cm2|watts per square centimeter"},
    {"Btu/foot² second"_t, "B/f²s"_t, 11348.931, kBtu / kSquareFoot, "thermochemical Btu", Source::Nist811,
     "Btu/ft2 s|Btu per square foot second"},
    {"Btu/in² second"_t, "B/i²s"_t, 1634246.2, kBtu / kSquareInch, "thermochemical Btu", Source::Nist811,
     "Btu/in2 s|Btu per square inch second"},
};

constexpr UnitGroup kGroups[] = {
    {.options = "OptEnergy", .heading = "Energy", .base = "J", .units = kEnergy},
    {.options = "OptEoAT", .heading = "Energy / (area * time)", .base = "W/m^2", .units = kHeatFlow},
};

}  // namespace

const ConversionTable kEnergyTable{
    .key = key::Energy,
    .form = "frmEnergyAT",
    .title = "Convert Energy",
    .groups = kGroups,
};

}  // namespace tallyforge
