// SPDX-License-Identifier: GPL-3.0-or-later
//
// Units of length.
#include "convert/conversion_tables.h"
#include "convert/exact_sizes.h"
#include "platform/text.h"

namespace tallyforge {

namespace {

using namespace exact;

constexpr Unit kUnits[] = {
    {"attometer", "am", 1e-18, 1e-18L, "1e-18 meter", Source::SiBrochure, "attometers|attometre"},
    {"femtometer", "fm", 1e-15, 1e-15L, "1e-15 meter", Source::SiBrochure, "femtometers|femtometre"},
    {"fermi", "fe", 1e-15, 1e-15L, "femtometer", Source::Nist811, "fermis"},
    {"angstrom", "Å"_t, 1e-10, 1e-10L, "1e-10 meter", Source::Nist811, "angstroms|ångström|A"_t},
    {"micron", "µ"_t, 1e-06, 1e-6L, "micrometer", Source::Nist811, "microns|micrometer|micrometre|um"},
    {"mil", "mil", 2.54e-05, kMil, "1/1000 inch", Source::Nist811, "mils|thou"},
    {"en", "en", 0.0001757299, kPrintersPoint / 2, "half an em of one printer's point", Source::Nist811, "ens"},
    {"caliber", "cal", 0.000254, kInch / 100, "1/100 inch", Source::Trade, "calibers|calibre"},
    {"french", "fre", 0.000333333333333333, 1e-3L / 3, "1/3 millimeter", Source::Trade, "frenches|charriere|Fr"},
    {"em", "em", 0.0003514598, kPrintersPoint, "em of one printer's point", Source::Nist811, "ems"},
    {"point", "pt", 0.0003514598, kPrintersPoint, "printer's point, 0.013837 inch", Source::Nist811,
     "points|printer's point"},
    {"button measure", "b.m.", 0.000635, kInch / 40, "1/40 inch, the line of buttons", Source::Trade,
     "button line|ligne"},
    {"millimeter", "mm", 0.001, 1e-3L, "1e-3 meter", Source::SiBrochure, "millimeters|millimetre"},
    {"agate", "ag", 0.00181428571428571, kInch / 14, "1/14 inch", Source::Trade, "agates|agate line"},
    {"pica", "pi", 0.0042175176, 12 * kPrintersPoint, "printer's pica, 12 points", Source::Nist811,
     "picas|printer's pica"},
    {"centimeter", "cm", 0.01, 1e-2L, "1e-2 meter", Source::SiBrochure, "centimeters|centimetre"},
    {"inch", "in", 0.0254, kInch, "25.4 millimeters", Source::Nist811, "inches|\""},
    {"decimeter", "dm", 0.1, 0.1L, "0.1 meter", Source::SiBrochure, "decimeters|decimetre"},
    {"hand", "h", 0.1016, 4 * kInch, "4 inches", Source::Trade, "hands|hh"},
    {"link(s)", "ls", 0.201168, 0.66L * kFoot, "surveyor's, 1/100 chain", Source::Handbook44,
     "link|links|surveyor's link|li"},
    {"span", "sp", 0.2286, 9 * kInch, "9 inches", Source::Trade, "spans"},
    {"shaku(J)", "sh", 0.303022, 10.0L / 33, "Japanese, 10/33 meter", Source::OldMeasure, "shaku"},
    {"link(e)", "le", 0.3048, kFoot, "engineer's, 1/100 chain", Source::Handbook44, "engineer's link"},
    {"foot", "ft", 0.3048, kFoot, "12 inches", Source::Nist811, "feet|'"},
    {"cubit", "cu", 0.4572, 18 * kInch, "18 inches", Source::Trade, "cubits"},
    {"archin(R)", "ar", 0.7112, 28 * kInch, "Russian, 28 inches", Source::OldMeasure, "arshin|archin|archins"},
    {"pace", "p", 0.762, 30 * kInch, "30 inches", Source::Trade, "paces"},
    {"vara", "v", 0.8481764206955046, kFoot * 25 / 9, "Texas, 33 1/3 inches", Source::Trade, "varas|Texas vara"},
    {"yard", "yd", 0.9144, 3 * kFoot, "3 feet", Source::Nist811, "yards"},
    {"meter", "m", 1, 1, "base unit", Source::SiBrochure, "meters|metre|metres"},
    {"ell", "ell", 1.143, 45 * kInch, "English, 45 inches", Source::Trade, "ells"},
    {"fathom", "f", 1.8288, 6 * kFoot, "6 feet", Source::Nist811, "fathoms|fth"},
    {"sazhen(R)", "saz", 2.10312, kSazhen, "Russian, 7 feet", Source::OldMeasure, "sazhen|sazhens"},
    {"rod", "rod", 5.0292, kRod, "16.5 feet", Source::Nist811, "rods"},
    {"perch", "pr", 5.0292, kRod, "16.5 feet", Source::Nist811, "perches"},
    {"pole", "pl", 5.0292, kRod, "16.5 feet", Source::Nist811, "poles"},
    {"rope", "rp", 6.096, 20 * kFoot, "20 feet", Source::Trade, "ropes"},
    {"chain(s)", "chs", 20.1168, 4 * kRod, "surveyor's, 66 feet", Source::Nist811,
     "chain|chains|surveyor's chain|Gunter's chain|ch"},
    {"naval shot", "n.s.", 27.432, 90 * kFoot, "15 fathoms", Source::Trade, "naval shots|shackle"},
    {"chain(e)", "che", 30.48, 100 * kFoot, "engineer's, 100 feet", Source::Handbook44,
     "engineer's chain|Ramsden's chain"},
    {"arpentlin", "arp", 58.471308, 191.835L * kFoot, "Quebec, 191.835 feet", Source::Trade,
     "arpent|arpents|linear arpent"},
    {"skein", "sk", 109.728, 360 * kFoot, "360 feet", Source::Trade, "skeins"},
    {"furlong", "fur", 201.168, 660 * kFoot, "1/8 statute mile", Source::Nist811, "furlongs"},
    {"cable", "cab", 219.456, 720 * kFoot, "US, 120 fathoms", Source::Trade, "cables|cable length"},
    {"kilometer", "km", 1000, 1000, "1000 meters", Source::SiBrochure, "kilometers|kilometre|km's"},
    {"mile(st)", "mi", 1609.344, kMile, "statute, 5280 feet", Source::Nist811, "mile|miles|statute mile"},
    {"mile(n)", "knot", 1852, 1852, "nautical, 1852 meters", Source::Nist811, "nautical mile|nautical miles|nmi|NM"},
    {"ri(J)", "ri", 3926.79936, 43200.0L / 11, "Japanese, 43200/11 meters", Source::OldMeasure, "ri"},
    {"league(st)", "lea", 4828.032, 3 * kMile, "statute, 3 miles", Source::Nist811, "league|leagues|statute league"},
    {"league(i.n.)", "leak", 5556, 5556, "international nautical, 3 nautical miles", Source::Trade,
     "nautical league|nautical leagues"},
    {"parasang", "par", 5632.704, 3.5L * kMile, "3.5 statute miles", Source::Trade, "parasangs"},
    {"marathon", "mar", 42194.988, 26 * kMile + 385 * 3 * kFoot, "26 miles 385 yards", Source::Trade, "marathons"},
    {"light second", "ls", 299792458, kLight, "light's way in a second", Source::SiBrochure,
     "light seconds|light-second"},
    {"light minute", "lm", 17987547480, kLight * 60, "light's way in a minute", Source::SiBrochure,
     "light minutes|light-minute"},
    {"IAU", "AU", 149597871000, kAstronomicalUnit, "astronomical unit, 149597870700 meters", Source::Iau,
     "astronomical unit|au|ua|astronomical units"},
    {"light week", "lw", 181314478598400, kLight * 604800, "light's way in a week", Source::SiBrochure,
     "light weeks|light-week"},
    {"light year", "ly", 9460730472580800.0, kLightYear, "light's way in a Julian year", Source::Iau,
     "light years|light-year|lightyear"},
    {"parsec", "pc", 3.0857e+16, kParsec, "648000/pi astronomical units", Source::Iau, "parsecs"},
    {"exameter", "Em", 1e+18, 1e18L, "1e18 meters", Source::SiBrochure, "exameters|exametre"},
};

constexpr UnitGroup kGroups[] = {
    {.options = "OptLength", .heading = "Length", .base = "m", .units = kUnits},
};

}  // namespace

const ConversionTable kLengthTable{
    .key = key::Length,
    .form = "frmlength",
    .title = "Convert Length",
    .groups = kGroups,
    .preset = {0, 16, 12},
};

}  // namespace tallyforge
