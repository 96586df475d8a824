// SPDX-License-Identifier: GPL-3.0-or-later
//
// The units in the language of GNU units, whose definitions are another hand's: key and group of the
// table, the base unit of its factors, and an expression a row, in the rows' order.
#pragma once

#include <span>
#include <string_view>

namespace tallyforge::gnu {

struct Group {
    int key;
    int group;
    std::string_view base;
    std::span<const std::string_view> expressions;
};

// clang-format off
inline constexpr std::string_view kPower[] = {"ft lbf/hr", "lusec", "ft lbf/min", "calorie_th/min", "W", "ft lbf/s", "calorie_th/s", "btu_th/min", "kcal_th/min", "metrichorsepower", "550 ft lbf/s", "horsepower", "550 ft lbf/s", "electrichorsepower", "waterhorsepower", "btu_th/s", "12000 btu/hr", "kcal_th/s", "boilerhorsepower"};
inline constexpr std::string_view kForce[] = {"dyne", "gram force", "poundal", "oz force", "J/m", "N", "lbf", "kg force", "sthene", "kip", "tonne force"};
inline constexpr std::string_view kTime[] = {"fs", "ps", "ns", "shake", "us", "ms", "siderealday/86400", "s", "siderealday/1440", "min", "siderealday/24", "hr", "siderealday", "day", "week", "fortnight", "gregorianyear/12", "gregorianyear", "siderealyear"};
inline constexpr std::string_view kVolume[] = {"mm^3", "minim", "ml", "cm^3", "fluiddram", "tsp", "tbsp", "in^3", "floz", "jigger", "gill", "brgill", "cup", "pint", "drypint", "gallon/5", "quart", "dm^3", "liter", "dryquart", "0.5 gallon", "boardfoot", "gallon", "drygallon", "brgallon", "1.5 gallon", "2 gallon", "peck", "3 gallon", "750 in^3", "5 gallon", "ft^3", "9 gallon", "bushel", "18 gallon", "2 bushel", "3 bushel", "4 bushel", "42 gallon", "2401|13310 m^3", "12808 in^3", "hogshead", "8 bushel", "yd^3", "m^3", "stere", "50 ft^3", "80 bushel", "registerton", "cord", "acre foot"};
inline constexpr std::string_view kMass[] = {"grain", "0.089885 gram", "carat", "g", "scruple", "pennyweight", "dram", "60 grain", "gram force s^2/m", "oz", "assayton", "troyounce", "1|12 lb", "troypound", "0.40951241 kg", "lb", "0.6 kg", "4|3 lb", "kg", "3.75 kg", "stone", "slug", "40 * 0.40951241 kg", "94 lb", "cwt", "brhundredweight", "400|3 lb", "100 kg", "quintal", "ton", "tonne", "tonne", "longton"};
inline constexpr std::string_view kEnergy[] = {"eV", "2.1798723611030e-18 J", "GeV", "erg", "ft poundal", "J", "ft lbf", "calorie_th", "btu_th", "W hr", "kcal_th", "1000 calorie_IT", "kW hr", "1e6 calorie_IT", "1e5 btu", "105.506 MJ"};
inline constexpr std::string_view kHeatflow[] = {"erg/cm^2 s", "W/m^2", "btu_th/ft^2 hr", "btu_th/ft^2 min", "calorie_th/cm^2 min", "W/cm^2", "btu_th/ft^2 s", "btu_th/in^2 s"};
inline constexpr std::string_view kInduction[] = {"gauss", "maxwell/in^2", "Wb/in^2", "T"};
inline constexpr std::string_view kDynamic[] = {"cP", "poise", "Pa s", "lb/ft s", "poundal s/ft^2", "lbf s/ft^2", "slug/ft s"};
inline constexpr std::string_view kKinematic[] = {"cSt", "St", "ft^2/s", "m^2/s"};
inline constexpr std::string_view kPressure[] = {"kgf/cm^2", "dyne/cm^2", "dyne/cm^2", "Pa", "N/m^2", "kgf/m^2", "lbf/ft^2", "98.0638 Pa", "mbar", "torr", "mmHg", "249.082 Pa", "cm Hg", "2988.98 Pa", "inch Hg", "psi", "bar", "atm"};
inline constexpr std::string_view kTorque[] = {"dyne mm", "dyne cm", "gram force mm", "dyne m", "gram force cm", "N mm", "in oz force", "gram force m", "kg force mm", "N cm", "ft oz force", "kg force cm", "in lbf", "N m", "ft lbf", "kg force m", "kN m"};
inline constexpr std::string_view kIlluminance[] = {"10000 lux", "phot", "lumen/in^2", "1000 lux", "lumen/ft^2", "footcandle", "10 lux", "lumen/m^2", "lux", "lumen/m^2", "nox"};
inline constexpr std::string_view kLuminance[] = {"kcd/cm^2", "kcd/in^2", "kcd/ft^2", "stilb", "cd/cm^2", "lambert", "cd/in^2", "kcd/m^2", "cd/ft^2", "footlambert", "millilambert", "nit", "cd/m^2", "apostilb", "blondel"};
inline constexpr std::string_view kFuel[] = {"km/brgallon", "km/gallon", "mile/brgallon", "mile/gallon", "km/liter", "mile/liter", "100km/brgallon", "100km/gallon", "100km/liter"};
inline constexpr std::string_view kAcceleration[] = {"km/hr^2", "mm/s^2", "cm/s^2", "cm/s^2", "in/s^2", "ft/s^2", "m/s^2", "gravity", "km/s^2", "mile/s^2"};
inline constexpr std::string_view kSpeed[] = {"ft/hr", "mm/s", "ft/min", "cm/s", "in/s", "km/hr", "ft/s", "mile/hr", "knot", "m/s", "mile/min", "km/s", "mile/s", "c s/hr"};
inline constexpr std::string_view kArea[] = {"fm^2", "barn", "angstrom^2", "circularmil", "mil^2", "mm^2", "cm^2", "in^2", "ft^2", "ft^2", "yd^2", "m^2", "100 ft^2", "1200000|121 m^2", "(16.5 ft)^2", "are", "acre/4", "43560 ft^2", "hectare", "2400 (7 ft)^2", "160*43560 ft^2", "mile^2", "mile^2", "36 mile^2", "Mm^2", "(149597870700 m)^2", "lightyear^2", "parsec^2"};
inline constexpr std::string_view kLength[] = {"am", "fm", "fermi", "angstrom", "micron", "mil", "0.013837 in / 2", "inch/100", "mm/3", "0.013837 in", "0.013837 in", "inch/40", "mm", "inch/14", "12 * 0.013837 in", "cm", "inch", "dm", "hand", "0.66 ft", "9 inch", "10|33 m", "ft", "ft", "18 inch", "28 inch", "30 inch", "100|3 inch", "yard", "m", "45 inch", "fathom", "7 ft", "16.5 ft", "16.5 ft", "16.5 ft", "20 ft", "66 ft", "90 ft", "100 ft", "191.835 ft", "360 ft", "660 ft", "720 ft", "km", "mile", "nauticalmile", "43200|11 m", "3 mile", "3 nauticalmile", "3.5 mile", "26 mile + 385 yard", "c s", "c min", "149597870700 m", "c week", "lightyear", "parsec", "Em"};
inline constexpr std::string_view kDensity[] = {"kg/m^3", "lb/ft^3", "slug/ft^3", "g/cm^3", "lb/in^3", "slug/in^3"};

inline constexpr Group kGroups[] = {
    {6, 0, "W", kPower},
    {23, 0, "N", kForce},
    {7, 0, "s", kTime},
    {13, 0, "m^3", kVolume},
    {12, 0, "kg", kMass},
    {18, 0, "J", kEnergy},
    {18, 1, "W/m^2", kHeatflow},
    {17, 2, "T", kInduction},
    {4, 0, "Pa s", kDynamic},
    {4, 1, "m^2/s", kKinematic},
    {11, 0, "Pa", kPressure},
    {8, 0, "N m", kTorque},
    {20, 0, "lumen/ft^2", kIlluminance},
    {20, 1, "cd/cm^2", kLuminance},
    {9, 0, "mile/gallon", kFuel},
    {10, 0, "m/s^2", kAcceleration},
    {10, 1, "m/s", kSpeed},
    {14, 0, "m^2", kArea},
    {15, 0, "m", kLength},
    {5, 0, "kg/m^3", kDensity},
};
// clang-format on

}  // namespace tallyforge::gnu
