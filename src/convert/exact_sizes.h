// SPDX-License-Identifier: GPL-3.0-or-later
//
// The sizes from which the exact sizes of units are built, in SI units. Extended precision, so that
// a product of several still has the digits of a double.
#pragma once

namespace tallyforge::exact {

inline constexpr long double kPi = 3.14159265358979323846264338327950288L;
inline constexpr long double kRootOfTwo = 1.41421356237309504880168872420969808L;
/// 20 / ln 10: decibels of a voltage that grows e-fold.
inline constexpr long double kDecibelsPerNeper = 8.68588963806503655302257837833210164L;

// Length, meters. The foot is the international one of 1959.
inline constexpr long double kInch = 0.0254L;
inline constexpr long double kFoot = 12 * kInch;
inline constexpr long double kMil = kInch / 1000;
inline constexpr long double kRod = 16.5L * kFoot;
inline constexpr long double kMile = 5280 * kFoot;
inline constexpr long double kSazhen = 7 * kFoot;
/// American printer's point, 0.013837 inch.
inline constexpr long double kPrintersPoint = 0.013837L * kInch;
/// Way of light in a second, exact since 1983.
inline constexpr long double kLight = 299792458;
inline constexpr long double kLightYear = kLight * 86400 * 365.25L;
/// IAU 2012, resolution B2.
inline constexpr long double kAstronomicalUnit = 149597870700;
/// IAU 2015, resolution B2: 648000/pi astronomical units.
inline constexpr long double kParsec = 648000 / kPi * kAstronomicalUnit;

// Area and volume, square and cubic meters.
inline constexpr long double kSquareInch = kInch * kInch;
inline constexpr long double kSquareFoot = kFoot * kFoot;
inline constexpr long double kAcre = 43560 * kSquareFoot;
inline constexpr long double kCubicInch = kInch * kSquareInch;
inline constexpr long double kCubicFoot = kFoot * kSquareFoot;
/// United States: gallon of liquids, bushel of dry goods (NIST Handbook 44).
inline constexpr long double kGallon = 231 * kCubicInch;
inline constexpr long double kFluidOunce = kGallon / 128;
inline constexpr long double kBushel = 2150.42L * kCubicInch;
/// United Kingdom, Weights and Measures Act 1985.
inline constexpr long double kImperialGallon = 4.54609e-3L;

// Mass, kilograms.
inline constexpr long double kPound = 0.45359237L;
inline constexpr long double kGrain = kPound / 7000;

// Mechanics.
/// Standard gravity, m/s^2.
inline constexpr long double kGravity = 9.80665L;
inline constexpr long double kPoundForce = kPound * kGravity;
inline constexpr long double kFootPound = kFoot * kPoundForce;
inline constexpr long double kSlug = kPoundForce / kFoot;
inline constexpr long double kTorr = 101325.0L / 760;
/// Conventional mercury: pascals that a meter of it weighs.
inline constexpr long double kMercury = 13595.1L * kGravity;

// Heat, joules.
/// Thermochemical calorie, and the Btu that goes with it: a pound and a degree Fahrenheit.
inline constexpr long double kCalorie = 4.184L;
inline constexpr long double kBtu = kCalorie * 1000 * kPound / 1.8L;
/// International Table Btu: 4.1868 J in the place of 4.184.
inline constexpr long double kBtuIt = 4186.8L * kPound / 1.8L;

// Electricity.
/// CODATA 2022; exact since 2019.
inline constexpr long double kElectronVolt = 1.602176634e-19L;
inline constexpr long double kOerstedPerAmpereMeter = 4 * kPi / 1000;

// Time, seconds.
/// Mean sidereal day at J2000 (IAU 1982, Aoki et al.).
inline constexpr long double kSiderealDay = 86164.09053083288L;
/// 365.2425 days.
inline constexpr long double kGregorianYear = 31556952;
/// 365.256363004 days at J2000 (IERS).
inline constexpr long double kSiderealYear = 365.256363004L * 86400;

}  // namespace tallyforge::exact
