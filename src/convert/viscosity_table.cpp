// SPDX-License-Identifier: GPL-3.0-or-later
//
// Dynamic and kinematic viscosity.
#include "convert/conversion_tables.h"
#include "convert/exact_sizes.h"
#include "platform/text.h"

namespace tallyforge {

namespace {

using namespace exact;

constexpr Unit kDynamic[] = {
    {"centipoise", "cps", 0.001, 1e-3L, "1e-3 pascal second", Source::Nist811,
     "cP|centipoises|mPa s|millipascal second"},
    {"poise", "ps", 0.1, 0.1L, "0.1 pascal second", Source::Nist811, "P|poises"},
    {"newton sec/m²"_t, "n s/m²"_t, 1, 1, "pascal second", Source::SiBrochure,
     "Pa s|pascal second|N s/m2|newton second per square meter"},
    {"lbm/foot sec", "lbm/ft s", 1.4881639, kPound / kFoot, "pound per foot and second", Source::Nist811,
     "lb/ft s|pound per foot second"},
    {"poundal sec/ft²"_t, "lbl s/ft²"_t, 1.4881639, kPound / kFoot, "poundal second per square foot", Source::Nist811,
     "pdl s/ft²|poundal second per square foot|pdl s/ft2"_t},
    {"lbf sec/foot²"_t, "lbf s/ft²"_t, 47.880258, kPoundForce / kSquareFoot, "pound-force second per square foot",
     Source::Nist811, "pound-force second per square foot|lbf s/ft2"},
    {"slug/foot sec", "sl/ft s", 47.880258, kSlug / kFoot, "slug per foot and second", Source::Nist811,
     "slug/ft s|slug per foot second"},
};

constexpr Unit kKinematic[] = {
    {"centistoke", "cst", 1e-06, 1e-6L, "1e-6 square meter per second", Source::Nist811,
     "centistokes|cSt|mm²/s|mm2/s"_t},
    {"stoke", "st", 0.0001, 1e-4L, "1e-4 square meter per second", Source::Nist811, "stokes|St|cm²/s|cm2/s"_t},
    {"foot² per second"_t, "ft²/s"_t, 0.09290304, kSquareFoot, "square foot per second", Source::Nist811,
     "square foot per second|ft2/s|square feet per second"},
    {"meter² per second"_t, "m²/s"_t, 1, 1, "square meter per second", Source::SiBrochure,
     "square meter per second|m2/s|square meters per second"},
};

constexpr UnitGroup kGroups[] = {
    {.options = "OptDVis", .heading = "Dynamic Viscosity", .base = "Pa s", .units = kDynamic},
    {.options = "OptKVis", .heading = "Kinematic Viscosity", .base = "m^2/s", .units = kKinematic},
};

}  // namespace

const ConversionTable kViscosityTable{
    .key = key::Viscosity,
    .form = "frmViscosity",
    .title = "Convert Viscosity",
    .groups = kGroups,
};

}  // namespace tallyforge
