// SPDX-License-Identifier: GPL-3.0-or-later
#include "reference/material_lists.h"

#include <array>

namespace tallyforge {

namespace {

// Spellings and digits are the lists' own ("platinum", "Steel, Carbon)", "Cobolt", "yocyo"), and
// users know them so.
constexpr std::array<ListRow, 43> kGravities{{
    {"Aluminum (Al)", "2.70"},
    {"Antimony (Sb)", "6.618"},
    {"Barium (Ba)", "3.78"},
    {"Bismuth (Bi)", "9.781"},
    {"Boron (B)", "2.535"},
    {"Brass, 85 Cu/15 Zn", "8.75"},
    {"Brass, 80 Cu/20 Zn", "8.60"},
    {"Brass, 70 Cu/30 Zn", "8.44"},
    {"Brass, 60 Cu/40 Zn", "8.36"},
    {"Brass, 50 Cu/50 Zn", "8.20"},
    {"Bronze, 90 Cu/10 Zn", "8.80"},
    {"Cadmium (Cd)", "8.648"},
    {"Calcium (Ca)", "1.54"},
    {"Carbon (C)", "2.25"},
    {"Chromium (Cr)", "6.93"},
    {"Cobalt (Co)", "8.71"},
    {"Copper (Cu)", "8.89"},
    {"Epoxy Glass", "1.85"},
    {"Glass", "2.6"},
    {"Gold (Au)", "19.3"},
    {"Iridium (Ir)", "22.42"},
    {"Iron, cast", "7.15"},
    {"Iron, wrought (Fe)", "7.85"},
    {"Lead (Pb)", "11.342"},
    {"Magnesium (Mg)", "1.741"},
    {"Manganese (Mn)", "7.30"},
    {"Mercury, 68°F (Hg)"_t, "13.546"},
    {"Molybdenum (Mo)", "10.2"},
    {"Nickel (Ni)", "8.80"},
    {"platinum (Pt)", "21.37"},
    {"Potassium (K)", "0.870"},
    {"Silver (Ag)", "10.491"},
    {"Sodium (Na)", "0.972"},
    {"Steel, Carbon)", "7.87"},
    {"Tantalum (Ta)", "16.6"},
    {"Tellurium (Te)", "6.25"},
    {"Tin (Sn)", "7.29"},
    {"Titanium (Ti)", "4.50"},
    {"Tungsten (W)", "19.3"},
    {"Uranium (U)", "18.7"},
    {"Vanadium (V)", "5.60"},
    {"Water, 4°C"_t, "1.00"},
    {"Zinc (Zn)", "7.10"},
}};

constexpr std::array<ListRow, 29> kRhos{{
    {"Aluminum (Al)", "2.65"},
    {"Brass, 66 Cu/34 Zn", "6.72"},
    {"Brass, 80 Cu/20 Zn", "5.39"},
    {"Brass, 85 Cu/15 Zn", "4.7"},
    {"Bronze, 90 Cu/10 Zn", "3.91"},
    {"Cadmium (Cd)", "7.59"},
    {"Cobalt (Co)", "9.65"},
    {"Constantan", "49"},
    {"Copper (Cu)", "1.724"},
    {"Copper, 1/2 Hard", "1.92"},
    {"Gold (Au)", "2.24"},
    {"Iron (Fe)", "9.71"},
    {"Lead (Pb)", "22"},
    {"Magnesium (Mg)", "4.60"},
    {"Manganin", "48.2"},
    {"Mercury (Hg)", "98"},
    {"Molybdenum (Mo)", "5.69"},
    {"Nichrome", "100"},
    {"Nickel (Ni)", "6.40"},
    {"Palladium (Pd)", "10.7"},
    {"Phos-Bronze (5% Sn)", "8.7"},
    {"platinum (Pt)", "10.6"},
    {"Silver (Ag)", "1.59"},
    {"Tantalum (Ta)", "15.5"},
    {"Tin (Sn)", "11.6"},
    {"Tophet A", "108"},
    {"Tungsten (W)", "5.65"},
    {"Zinc (Zn)", "5.86"},
    {"Zirconium (Zr)", "4.10"},
}};

constexpr std::array<ListRow, 24> kAlphas{{
    {"Aluminum (Al)", "0.00403"},  {"Brass", "0.002"},         {"Cadmium (Cd)", ".0038"},
    {"Cobolt (Co)", ".0033"},      {"Constantan", "0"},        {"Copper (Cu)", "0.00393"},
    {"Gold (Au)", "0.0034"},       {"Iron (Fe)", "0.006"},     {"Lead (Pb)", "0.0042"},
    {"Magnesium (Mg)", "0.004"},   {"Manganin", "0"},          {"Mercury (Hg)", "0.00089"},
    {"Molybdenum (Mo)", "0.0045"}, {"Nichrome", "0.0002"},     {"Nickel (Ni)", "0.005"},
    {"Palladium (Pd)", "0.0033"},  {"platinum (Pt)", "0.003"}, {"Silver (Ag)", "0.00381"},
    {"Tantalum (Ta)", "0.003"},    {"Tin (Sn)", "0.0042"},     {"Tophet A", "0.00014"},
    {"Tungsten (W)", "0.0045"},    {"Zinc (Zn)", "0.0037"},    {"Zirconium (Zr)", "0.0044"},
}};

constexpr std::array<ListRow, 20> kPrefixes{{
    {"yotta", "1e24", "Y"},  {"zetta", "1e21", "Z"},   {"exa", "1e18", "E"},    {"peta", "1e15", "P"},
    {"tera", "1e12", "T"},   {"giga", "1e9", "G"},     {"mega", "1e6", "M"},    {"kilo", "1e3", "k"},
    {"hecto", "1e2", "h"},   {"deka", "1e1", "da"},    {"deci", "1e-1", "d"},   {"centi", "1e-2", "c"},
    {"milli", "1e-3", "m"},  {"micro", "1e-6", "µ"_t}, {"nano", "1e-9", "n"},   {"pico", "1e-12", "p"},
    {"femto", "1e-15", "f"}, {"atto", "1e-18", "a"},   {"zepto", "1e-21", "z"}, {"yocyo", "1e-24", "y"},
}};

}  // namespace

const std::string_view kRhoUnit = "æê cm"_t;

const ListTable kGravityList{.form = "frmSpecGrav",
                             .title = "Specific Gravity",
                             .help =
                                 "Scroll through the list, or Click on the material to see the specific"
                                 " gravity, then Click on Select to place the value in the x-register.\n"
                                 "Or Double-Click on the material to place the value in the x-register.",
                             .valueHead = "Specific gravity",
                             .rows = kGravities,
                             .helpTopic = 1405};

const ListTable kRhoList{.form = "frmRhoValues",
                         .title = "Rho Values",
                         .help =
                             "Click on the material to see the Resistivity (in µOhm cm = Ohm Meter x 1e-08),"
                             " or scroll through the list, then Click on Select or Double-click on the material to "
                             "use in the calculation.\n"
                             "These values are at 20°C."_t,
                         .valueHead = "Rho (µOhm cm)"_t,
                         .rows = kRhos};

const ListTable kAlphaList{
    .form = "frmRhoValues",
    .title = "Alpha Values",
    .help =
        "Click on the material to see the temperature coefficient of resistivity "
        "(in Ohms per Ohm per degree C), or scroll through the list, then Click on Select or Double-click "
        "on the material to use in the calculation.\n"
        "These values are at 20°C."_t,
    .valueHead = "Alpha (per °C)"_t,
    .rows = kAlphas};

const ListTable kPrefixList{.form = "frmPrefixes",
                            .title = "SI Prefixes",
                            .valueHead = "Value",
                            .unitHead = "Symbol",
                            .rows = kPrefixes,
                            .helpTopic = 1416};

}  // namespace tallyforge
