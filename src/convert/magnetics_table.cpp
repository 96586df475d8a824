// SPDX-License-Identifier: GPL-3.0-or-later
//
// Magnetic field strength, permeability and induction.
#include "convert/conversion_tables.h"
#include "convert/exact_sizes.h"
#include "platform/text.h"

namespace tallyforge {

namespace {

using namespace exact;

constexpr Unit kField[] = {
    {"Oersteds", "Oe", 1, 1, "1000/4pi ampere per meter", Source::Nist811, "oersted|Oersted"},
    {"A·T/meter"_t, "A·T/m"_t, 0.012566, kOerstedPerAmpereMeter, "4pi/1000 oersted", Source::Nist811,
     "ampere-turn per meter|A/m|At/m|A·T per meter|AT/m"_t},
    {"A·T/cm"_t, "A·T/cm"_t, 1.2566, kOerstedPerAmpereMeter * 100, "4pi/10 oersted", Source::Nist811,
     "ampere-turn per centimeter|A/cm|At/cm|AT/cm"},
    {"A·T/mm"_t, "A·T/mm"_t, 12.566, kOerstedPerAmpereMeter * 1000, "4pi oersted", Source::Nist811,
     "ampere-turn per millimeter|A/mm|At/mm|AT/mm"},
    {"A·T/inch"_t, "A·T/in"_t, 0.49474, kOerstedPerAmpereMeter / kInch, "ampere-turn per 0.0254 meter", Source::Nist811,
     "ampere-turn per inch|A/in|At/in|AT/in"},
};

constexpr Unit kPermeability[] = {
    {"gauss/oersted", "µ"_t, 1, 1, "gauss per oersted", Source::Nist811,
     "G/Oe|gauss per oersted|mu|relative permeability"},
    {"lines/A·T inch"_t, "l/AT in", 0.3133, kInch / kOerstedPerAmpereMeter * 1e-4L / kSquareInch,
     "1e-8 weber per square inch, per ampere-turn per inch", Source::Nist811, "lines per ampere-turn inch|lines/AT in"},
    {"Weber/A·T m"_t, "W/AT m", 795770, 1e4L / kOerstedPerAmpereMeter, "tesla per ampere-turn per meter",
     Source::SiBrochure, "weber per ampere-turn meter|H/m|Wb/A m|henry per meter"},
    {"weber/A·T in"_t, "W/AT in", 31330000, 1e4L / kOerstedPerAmpereMeter / kInch, "weber per ampere-turn inch",
     Source::Nist811, "weber per ampere-turn inch|Wb/A in|henry per inch|H/in"},
};

constexpr Unit kInduction[] = {
    {"Gausses", "g", 0.0001, 1e-4L, "1e-4 tesla", Source::Nist811, "gauss|gausses|G|Gs"},
    {"lines/inch²"_t, "l/in²"_t, 1.55e-05, 1e-8L / kSquareInch, "1e-8 weber per square inch", Source::Nist811,
     "lines per square inch|lines/in2|maxwell/in²"_t},
    {"Webers/inch²"_t, "W/in²"_t, 1550, 1 / kSquareInch, "weber per square inch", Source::Nist811,
     "weber per square inch|Wb/in²|Wb/in2"_t},
    {"teslas", "T", 1, 1, "weber per square meter", Source::SiBrochure, "tesla|Wb/m²|Wb/m2"_t},
};

constexpr UnitGroup kGroups[] = {
    {.options = "OptMF", .heading = "Field Strength", .base = "Oe", .units = kField},
    {.options = "OptPerm", .heading = "Permeability", .base = "G/Oe", .units = kPermeability},
    {.options = "OptIndn", .heading = "Induction", .base = "T", .units = kInduction},
};

}  // namespace

const ConversionTable kMagneticsTable{
    .key = key::MagneticUnits,
    .form = "frmMag",
    .title = "Convert Magnetics",
    .groups = kGroups,
};

}  // namespace tallyforge
