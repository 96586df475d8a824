// SPDX-License-Identifier: GPL-3.0-or-later
//
// Units of mass.
#include "convert/conversion_tables.h"
#include "convert/exact_sizes.h"
#include "platform/text.h"

namespace tallyforge {

namespace {

using namespace exact;

constexpr Unit kUnits[] = {
    {"grain", "gr", 6.479891e-05, kGrain, "1/7000 pound", Source::Nist811, "grains"},
    {"crith", "cr", 9.06e-05, 8.9885e-5L, "liter of hydrogen at 0 °C and 101325 Pa, 0.089885 g"_t, Source::Trade,
     "criths"},
    {"carat", "car", 0.0002, 2e-4L, "metric, 200 milligrams", Source::Nist811, "carats|metric carat|ct"},
    {"gram", "g", 0.001, 1e-3L, "1e-3 kilogram", Source::SiBrochure, "grams|gramme|gm"},
    {"scruple", "scr", 0.0012959782, 20 * kGrain, "apothecaries', 20 grains", Source::Nist811, "scruples"},
    {"pennyweight", "dwt", 0.00155517384, 24 * kGrain, "troy, 24 grains", Source::Nist811, "pennyweights|pwt"},
    {"dram(a)", "dra", 0.0017718451953125, kPound / 256, "avoirdupois, 1/16 ounce", Source::Nist811,
     "dram|drams|avoirdupois dram|dr"},
    {"dram(t)", "drt", 0.0038879346, 60 * kGrain, "troy, 60 grains", Source::Nist811, "troy dram|apothecary dram"},
    {"hyl", "hyl", 0.00980665, kGravity * 1e-3L, "gram-force second squared per meter", Source::Trade,
     "hyls|metric slug"},
    {"oz (a)", "oz", 0.028349523125, kPound / 16, "avoirdupois, 1/16 pound", Source::Nist811,
     "ounce|ounces|avoirdupois ounce"},
    {"assay ton", "a.tn", 0.029166666, 0.0875L / 3, "US, 29 1/6 grams", Source::Nist811, "assay tons|assayton"},
    {"oz (t)", "ozt", 0.0311034768, 480 * kGrain, "troy, 480 grains", Source::Nist811, "troy ounce|troy ounces|t oz"},
    {"tael (C)", "tael", 0.0377993641666667, kPound / 12, "Chinese, 1/16 catty", Source::OldMeasure, "tael|taels"},
    {"pound (t)", "lbmt", 0.3732417216, 5760 * kGrain, "troy, 5760 grains", Source::Nist811,
     "troy pound|troy pounds|lbt"},
    {"funt (R)", "funt", 0.408233133, 0.40951241L, "Russian, 0.40951241 kilogram", Source::OldMeasure, "funt|funts"},
    {"pound (a)", "lbm", 0.45359237, kPound, "avoirdupois, 0.45359237 kilogram", Source::Nist811,
     "pound|pounds|lb|lbs|avoirdupois pound"},
    {"kin (J)", "kin", 0.60010270551, 0.6L, "Japanese, 0.6 kilogram", Source::OldMeasure, "kin"},
    {"catty (C)", "cat", 0.604789826666667, kPound * 4 / 3, "Chinese, 1 1/3 pounds", Source::OldMeasure,
     "catty|catties"},
    {"kilogram", "kg", 1, 1, "base unit", Source::SiBrochure, "kilograms|kilo|kgs|kilogramme"},
    {"kwan (J)", "kwan", 3.7512088999, 3.75L, "Japanese, 3.75 kilograms", Source::OldMeasure, "kwan|kan"},
    {"stone", "st", 6.35029318, 14 * kPound, "14 pounds", Source::WeightsAndMeasuresAct, "stones"},
    {"slug", "slug", 14.5939029, kSlug, "pound-force second squared per foot", Source::Nist811, "slugs"},
    {"pood (R)", "pood", 16.3792204807, 40 * 0.40951241L, "Russian, 40 funts", Source::OldMeasure, "pood|poods"},
    {"bag", "bag", 42.63768278, 94 * kPound, "cement, 94 pounds", Source::Trade, "bags"},
    {"hundredweight (short)", "cwt", 45.359237, 100 * kPound, "short, 100 pounds", Source::Nist811,
     "hundredweight|short hundredweight|US hundredweight|hundredweights"},
    {"hundredweight (long)", "cwtl", 50.80234544, 112 * kPound, "long, 112 pounds", Source::WeightsAndMeasuresAct,
     "long hundredweight|UK hundredweight"},
    {"picul (C)", "picul", 60.4789826666667, kPound * 400 / 3, "Chinese, 133 1/3 pounds", Source::OldMeasure,
     "picul|piculs"},
    {"doppelzentner", "dop", 100, 100, "100 kilograms", Source::Trade, "doppelzentners|dz"},
    {"quintal", "qnt", 100, 100, "metric, 100 kilograms", Source::Trade, "quintals|q"},
    {"ton (short)", "tn", 907.18474, 2000 * kPound, "short, 2000 pounds", Source::Nist811,
     "ton|tons|short ton|short tons|US ton"},
    {"tonne", "tne", 1000, 1000, "1000 kilograms", Source::SiBrochure, "tonnes|t|Mg"},
    {"ton (metric)", "tn.m", 1000, 1000, "1000 kilograms", Source::SiBrochure, "metric ton|metric tons|mt"},
    {"ton (long)", "tnl", 1016.0469088, 2240 * kPound, "long, 2240 pounds", Source::WeightsAndMeasuresAct,
     "long ton|long tons|UK ton|imperial ton"},
};

constexpr UnitGroup kGroups[] = {
    {.options = "OptMass", .heading = "Mass", .base = "kg", .units = kUnits},
};

}  // namespace

const ConversionTable kMassTable{
    .key = key::Mass,
    .form = "frmMass",
    .title = "Convert Mass",
    .groups = kGroups,
    .preset = {0, 15, 18},
};

}  // namespace tallyforge
