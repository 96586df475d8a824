// SPDX-License-Identifier: GPL-3.0-or-later
//
// Units of volume. Gallons of wine bottles and casks are those of the United States.
#include "convert/conversion_tables.h"
#include "convert/exact_sizes.h"
#include "platform/text.h"

namespace tallyforge {

namespace {

using namespace exact;

constexpr Unit kUnits[] = {
    {"cubic millimeter", "mm³"_t, 1e-09, 1e-9L, "1e-9 cubic meter", Source::SiBrochure,
     "cubic millimeters|mm3|cu mm|cubic millimetre"},
    {"minim", "min", 6.1611519921875e-08, kFluidOunce / 480, "US, 1/480 fluid ounce", Source::Handbook44,
     "minims|US minim"},
    {"milliliter", "ml", 1e-06, 1e-6L, "1e-3 liter", Source::SiBrochure, "milliliters|millilitre|mL"},
    {"cubic centimeter", "cm³"_t, 1e-06, 1e-6L, "1e-6 cubic meter", Source::SiBrochure,
     "cubic centimeters|cm3|cc|cu cm|cubic centimetre"},
    {"dram", "dr", 3.6966911953125e-06, kFluidOunce / 8, "US, 1/8 fluid ounce", Source::Handbook44,
     "drams|fluid dram|fl dr"},
    {"teaspoon", "tsp", 4.92892159375e-06, kFluidOunce / 6, "US, 1/6 fluid ounce", Source::Handbook44,
     "teaspoons|US teaspoon"},
    {"tablespoon", "tbsp", 1.478676478125e-05, kFluidOunce / 2, "US, 1/2 fluid ounce", Source::Handbook44,
     "tablespoons|US tablespoon"},
    {"cubic inch", "in³"_t, 1.6387064e-05, kCubicInch, "inch cubed", Source::Nist811, "cubic inches|in3|cu in|cuin|ci"},
    {"fluid ounce", "oz", 2.95735295625e-05, kFluidOunce, "US, 1/128 gallon", Source::Handbook44,
     "fluid ounces|fl oz|floz|US fluid ounce"},
    {"jigger", "jig", 4.436029434375e-05, 1.5L * kFluidOunce, "US, 1.5 fluid ounces", Source::Trade, "jiggers|shot"},
    {"gill(US)", "gi", 0.00011829412, kGallon / 32, "US, 1/32 gallon", Source::Handbook44, "US gill|gills|gi us"},
    {"gill(UK)", "gi.uk", 0.0001420652, kImperialGallon / 32, "imperial, 1/32 gallon", Source::WeightsAndMeasuresAct,
     "UK gill|imperial gill|gills uk"},
    {"cup", "c", 0.0002365882365, kGallon / 16, "US, 1/16 gallon", Source::Handbook44, "cups|US cup"},
    {"pint(liquid)", "pt", 0.000473176473, kGallon / 8, "US liquid, 1/8 gallon", Source::Handbook44,
     "pint|pints|liquid pint|US pint"},
    {"pint(dry)", "pt.d", 0.0005506104713575, kBushel / 64, "US dry, 1/64 bushel", Source::Handbook44,
     "dry pint|dry pints"},
    {"fifth", "5th", 0.0007570823568, kGallon / 5, "US, 1/5 gallon", Source::Trade, "fifths"},
    {"quart(liq)", "qt", 0.00094635295, kGallon / 4, "US liquid, 1/4 gallon", Source::Handbook44,
     "quart|quarts|liquid quart|US quart"},
    {"cubic decimeter", "dm³"_t, 0.001, 1e-3L, "1e-3 cubic meter", Source::SiBrochure,
     "cubic decimeters|dm3|cu dm|cubic decimetre"},
    {"liter", "l", 0.001, 1e-3L, "cubic decimeter", Source::SiBrochure, "liters|litre|litres|L"},
    {"quart(dry)", "qt.d", 0.001101220942715, kBushel / 32, "US dry, 1/32 bushel", Source::Handbook44,
     "dry quart|dry quarts"},
    {"magnum", "mag", 0.001892705892, kGallon / 2, "US, 1/2 gallon", Source::Trade, "magnums"},
    {"board foot", "bd.ft", 0.002359737216, 144 * kCubicInch, "foot times foot times inch", Source::Handbook44,
     "board feet|board-foot|fbm|bdft"},
    {"gallon(liq)", "gal", 0.003785411784, kGallon, "US liquid, 231 cubic inches", Source::Handbook44,
     "gallon|gallons|liquid gallon|US gallon"},
    {"gallon(dry)", "gal.d", 0.0040488377086, kBushel / 8, "US dry, 1/8 bushel", Source::Handbook44,
     "dry gallon|dry gallons"},
    {"gallon(UK)", "gal.uk", 0.0045460902819948, kImperialGallon, "imperial, 4.54609 liters",
     Source::WeightsAndMeasuresAct, "UK gallon|imperial gallon|gallons uk|impgal"},
    {"rehoboam", "reh", 0.005678117676, 1.5L * kGallon, "US, 1.5 gallons", Source::Trade, "rehoboams"},
    {"meth- uselah", "meth", 0.007570823568, 2 * kGallon, "US, 2 gallons", Source::Trade, "methuselah|methuselahs"},
    {"peck", "pk", 0.00880976754172, kBushel / 4, "US, 1/4 bushel", Source::Handbook44, "pecks|US peck"},
    {"salmanazar", "sal", 0.011356235352, 3 * kGallon, "US, 3 gallons", Source::Trade, "salmanazars"},
    {"vedro(R)", "ved", 0.012302588298, 750 * kCubicInch, "Russian, 750 cubic inches", Source::OldMeasure,
     "vedro|vedros"},
    {"nebuchad- nezzar", "neb", 0.01892705892, 5 * kGallon, "US, 5 gallons", Source::Trade,
     "nebuchadnezzar|nebuchadnezzars"},
    {"cubic foot", "ft³"_t, 0.028316846592, kCubicFoot, "foot cubed", Source::Nist811, "cubic feet|ft3|cu ft|cuft|cf"},
    {"firkin", "fir", 0.034068706056, 9 * kGallon, "US, 9 gallons", Source::Trade, "firkins"},
    {"bushel", "bu", 0.03523907016688, kBushel, "US, 2150.42 cubic inches", Source::Handbook44,
     "bushels|US bushel|bsh"},
    {"kilderkin", "kild", 0.068137412112, 18 * kGallon, "US, 18 gallons", Source::Trade, "kilderkins"},
    {"strike", "str", 0.07047814033376, 2 * kBushel, "US, 2 bushels", Source::Trade, "strikes"},
    {"sack", "sac", 0.10571721050064, 3 * kBushel, "US, 3 bushels", Source::Trade, "sacks"},
    {"coomb", "cmb", 0.14095628066752, 4 * kBushel, "US, 4 bushels", Source::Trade, "coombs"},
    {"barrel", "ba", 0.1589873, 42 * kGallon, "US oil barrel, 42 gallons", Source::Nist811, "barrels|oil barrel|bbl"},
    {"koku(J)", "ko", 0.1801856009184, 2401.0L / 13310.0L, "Japanese, 2401/13310 cubic meter", Source::OldMeasure,
     "koku"},
    {"chetvert(R)", "chet", 0.210024858194605, 12808.0L * kCubicInch, "Russian, 8 chetveriks of 1601 cubic inches",
     Source::OldMeasure, "chetvert|chetverts"},
    {"hogshead", "hhd", 0.238480942392, 63 * kGallon, "US, 63 gallons", Source::Trade, "hogsheads"},
    {"seam", "seam", 0.28191256133504, 8 * kBushel, "US, 8 bushels", Source::Trade, "seams"},
    {"cubic yard", "yd³"_t, 0.764554857984, 27 * kCubicFoot, "yard cubed", Source::Nist811,
     "cubic yards|yd3|cu yd|cuyd|cy"},
    {"cubic meter", "m³"_t, 1, 1, "meter cubed", Source::SiBrochure, "cubic meters|m3|cu m|cum|cubic metre|cbm"},
    {"stere", "ste", 1, 1, "cubic meter", Source::Nist811, "steres|st"},
    {"load", "load", 1.4526542301696, 50 * kCubicFoot, "timber, 50 cubic feet", Source::Trade, "loads"},
    {"last", "last", 2.8191256133504, 80 * kBushel, "US, 80 bushels", Source::Trade, "lasts"},
    {"register ton", "tn", 2.8316846592, 100 * kCubicFoot, "100 cubic feet", Source::Nist811,
     "register tons|gross register ton|GRT|ton register"},
    {"cord", "cd", 3.6245563, 128 * kCubicFoot, "128 cubic feet", Source::Nist811, "cords"},
    {"acre foot", "a ft", 1233.48183754752, 43560 * kCubicFoot, "acre times foot", Source::Nist811,
     "acre-foot|acre feet|acft|ac ft"},
};

constexpr UnitGroup kGroups[] = {
    {.options = "OptVolume", .heading = "Volume", .base = "m^3", .units = kUnits},
};

}  // namespace

const ConversionTable kVolumeTable{
    .key = key::Volume,
    .form = "frmVolume",
    .title = "Convert Volume",
    .groups = kGroups,
    .preset = {0, 22, 18},
};

}  // namespace tallyforge
