// SPDX-License-Identifier: GPL-3.0-or-later
//
// Fuel consumption. Distance per volume counts in miles per gallon; of volume per distance the table
// holds the miles per gallon that one of the unit is, so that the product of the two is the factor.
#include "convert/conversion_tables.h"
#include "convert/exact_sizes.h"
#include "platform/text.h"

namespace tallyforge {

namespace {

using namespace exact;

constexpr Unit kUnits[] = {
    {"kilometers per Gal (UK)", "km/Gal", 0.517399751, kGallon / kImperialGallon * 1000 / kMile, "imperial gallon",
     Source::WeightsAndMeasuresAct, "km/gal uk|kilometer per UK gallon|kilometers per imperial gallon|km per gal uk"},
    {"kilometer per gallon", "km/g", 0.621371192, 1000 / kMile, "US gallon", Source::Handbook44,
     "kilometers per gallon|km/gal|km/gal us"},
    {"miles per Gallon (UK)", "m/G", 0.832674132978059, kGallon / kImperialGallon, "imperial gallon",
     Source::WeightsAndMeasuresAct, "mpg uk|mile per UK gallon|miles per imperial gallon|mpg imp"},
    {"mile per gallon", "mpg", 1, 1, "US gallon", Source::Handbook44, "miles per gallon|mi/gal|mpg us"},
    {"kilometers per liter", "km/l", 2.352145833, 1e6L * kGallon / kMile, "liter", Source::SiBrochure,
     "kilometer per liter|km/L|kilometers per litre|kpl"},
    {"miles per liter", "m/l", 3.78541178, 1e3L * kGallon, "statute mile, liter", Source::Nist811,
     "mile per liter|mi/l|mi/L|miles per litre"},
    {"gallons(UK) per 100km", "Gal/100km", 51.7399751, kGallon / kImperialGallon * 1e5L / kMile, "imperial gallon",
     Source::WeightsAndMeasuresAct, "UK gallon per 100 km|gal uk/100km|gallons uk per 100km"},
    {"gallons per 100km", "g/100km", 62.1371192, 1e5L / kMile, "US gallon", Source::Handbook44,
     "gallon per 100 km|gal/100km us|gallons per 100 km"},
    {"liters per 100km", "l/100km", 235.2145833, 1e8L * kGallon / kMile, "liter", Source::SiBrochure,
     "liter per 100 km|L/100km|litres per 100km|l/100 km|liters per 100 km"},
};

constexpr UnitGroup kGroups[] = {
    {.options = "OptForce",
     .heading = "Fuel Consumption",
     .base = "mpg",
     .units = kUnits,
     .measure = Measure::Consumption},
};

}  // namespace

const ConversionTable kFuelTable{
    .key = key::Fuel,
    .form = "frmFuel",
    .title = "Convert Fuel Consumption",
    .groups = kGroups,
};

}  // namespace tallyforge
