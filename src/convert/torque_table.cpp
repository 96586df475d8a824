// SPDX-License-Identifier: GPL-3.0-or-later
//
// Units of torque.
#include "convert/conversion_tables.h"
#include "convert/exact_sizes.h"
#include "platform/text.h"

namespace tallyforge {

namespace {

using namespace exact;

constexpr Unit kUnits[] = {
    {"dyne-mm", "d-mm", 1e-08, 1e-8L, "dyne millimeter", Source::Nist811, "dyne millimeter|dyn mm"},
    {"dyne-cm", "d-cm", 1e-07, 1e-7L, "dyne centimeter", Source::Nist811, "dyne centimeter|dyn cm"},
    {"gram-mm", "g-mm", 9.80665090092557e-06, kGravity * 1e-6L, "gram-force millimeter", Source::Nist811,
     "gram millimeter|gf mm|gf-mm"},
    {"dyne-meter", "d-m", 1e-05, 1e-5L, "dyne meter", Source::Nist811, "dyne meter|dyn m"},
    {"gram-cm", "g-cm", 9.80665090092557e-05, kGravity * 1e-5L, "gram-force centimeter", Source::Nist811,
     "gram centimeter|gf cm|gf-cm"},
    {"Newton-mm", "N-mm", 0.001, 1e-3L, "newton millimeter", Source::SiBrochure, "newton millimeter|N mm|mN m"},
    {"inch-ounce", "in-oz", 0.0070615519999868, kFootPound / 192, "inch times ounce-force", Source::Nist811,
     "inch ounce|in oz|ozf in|ounce-inch|oz-in"},
    {"gram-meter", "g-m", 0.00980665090092557, kGravity * 1e-3L, "gram-force meter", Source::Nist811,
     "gram meter|gf m|gf-m"},
    {"kilogram-mm", "kg-mm", 0.00980665090092557, kGravity * 1e-3L, "kilogram-force millimeter", Source::Nist811,
     "kilogram millimeter|kgf mm|kgf-mm"},
    {"Newton-cm", "N-cm", 0.01, 1e-2L, "newton centimeter", Source::SiBrochure, "newton centimeter|N cm"},
    {"foot-ounce", "ft-oz", 0.0847386239998417, kFootPound / 16, "foot times ounce-force", Source::Nist811,
     "foot ounce|ft oz|ozf ft|ounce-foot|oz-ft"},
    {"kilogram-cm", "kg-cm", 0.0980665090092557, kGravity * 1e-2L, "kilogram-force centimeter", Source::Nist811,
     "kilogram centimeter|kgf cm|kgf-cm"},
    {"inch-pounds", "in-lbs", 0.112984833333791, kFootPound / 12, "inch times pound-force", Source::Nist811,
     "inch pound|inch pounds|in lb|in-lb|lbf in|in lbf"},
    {"Newton-meter", "N-m", 1, 1, "newton meter", Source::SiBrochure, "newton meter|N m|newton meters|Nm"},
    {"foot-pound", "ft-lbs", 1.35581800031187, kFootPound, "foot times pound-force", Source::Nist811,
     "foot pound|foot pounds|ft lb|ft-lb|lbf ft|ft lbf"},
    {"kilogram-meter", "kg-m", 9.80665090092557, kGravity, "kilogram-force meter", Source::Nist811,
     "kilogram meter|kgf m|kgf-m|kilopond meter"},
    {"kiloNewton-meter", "kN-m", 10000, 1000, "1000 newton meters", Source::SiBrochure, "kilonewton meter|kN m|kNm"},
};

constexpr UnitGroup kGroups[] = {
    {.options = "OptTorq", .heading = "Torque", .base = "N m", .units = kUnits},
};

}  // namespace

const ConversionTable kTorqueTable{
    .key = key::Torque,
    .form = "frmTorque",
    .title = "Convert Torque",
    .groups = kGroups,
};

}  // namespace tallyforge
