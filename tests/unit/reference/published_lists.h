// SPDX-License-Identifier: GPL-3.0-or-later
//
// The lists as they are printed, a line a row with bars between the columns: a second copy that
// the tables of the calculator are compared with.
#pragma once

#include <string_view>

namespace tallyforge::published {

inline constexpr std::string_view kConstantLines = R"(| Avogadro constant, N_A | 6.022169e26 | 1/kmol |
| Bohr magneton, æ_B | 9.274096e-24 | J/T |
| Bohr radius, ao | 5.2917715e-11 | m |
| Boltzmann constant, k | 1.380622e-23 | J/øK |
| classical electron radius, r_e | 2.817939e-15 | m |
| Compton wavelength of electron, l_c | 2.4263096e-12 | m |
| Compton wavelength of proton, l_c,p | 1.3214409e-15 | m |
| Compton wavelength of neutron, l_c,n | 1.3196217e-15 | m |
| Distance earth to moon (mean) | 384407907.84 | m |
| Distance earth to sun (mean), AU | 149597870700 | m |
| Earth density (mean) | 5.522 | g/cu cm |
| Earth diameter (equatorial) | 6.378388e6 | m |
| Earth diameter (polar) | 6.356912e6 | m |
| Earth mass | 5.983e24 | kg |
| Electron charge, e | 1.6021917e-19 | C |
| Electron charge to mass ratio, e/me | 1.7588028e11 | C/kg |
| Electron magnetic moment, æ_e | 9.284851e-24 | J/T |
| Electron rest mass, m_e | 9.109558e-31 | kg |
| Faraday constant, F | 9.648670e7 | C/kmol |
| Fine structure constant, à | 7.297351e-3 |  |
| First radiation constant, 2ãhcý | 3.741844e-16 | Wmý |
| Free fall acceleration (std), ff(g) | 9.80665 | m/sý |
| Gas constant, R | 8.31434e3 | J/(kmoløK) |
| Gauss, g | 1e-4 | T |
| Gyromagnetic ratio of protons, ç'_p | 2.675127e8 | rad/(sT) |
| Magnetic flux quantum, è_o | 2.0678538e-15 | Wb |
| Maxwell, M | 1e-8 | Wb |
| Neutron rest mass, m_n | 1.674920e-27 | kg |
| Nuclear magneton, æ_n | 5.050951e-27 | J/T |
| Permeability of free space, æo | 1.256637061435916e-06 | H/m |
| Permittivity of free space, îo | 8.854185e-12 | F/m |
| Planck constant, h | 6.626196e-34 | Js |
| Proton magnetic moment, æ_p | 1.4106203e-26 | J/T |
| Proton rest mass, m_p | 1.672614e-27 | kg |
| Quantum of circulation, h/m_e | 7.273894e-4 | J s/kg |
| Rydberg constant, R_ì | 1.09737312e7 | 1/m |
| Second radiation constant, hc/k | 1.438833e-2 | m øK |
| Speed of light in vacuum, c | 2.997925e8 | m/s |
| Stefan-Boltzmann constant, å | 5.66961e-8 | W/(mý øK^4) |
| tesla, T | 1 | Wb/mý |
| Unufied atomic mass unit, u | 1.660531e-27 | kg |
| Volume of ideal gas, std.cond., V_o | 2.24136e1 | m^3/kmol |
)";

inline constexpr std::string_view kGravityLines = R"(| Aluminum (Al) | 2.70 |
| Antimony (Sb) | 6.618 |
| Barium (Ba) | 3.78 |
| Bismuth (Bi) | 9.781 |
| Boron (B) | 2.535 |
| Brass, 85 Cu/15 Zn | 8.75 |
| Brass, 80 Cu/20 Zn | 8.60 |
| Brass, 70 Cu/30 Zn | 8.44 |
| Brass, 60 Cu/40 Zn | 8.36 |
| Brass, 50 Cu/50 Zn | 8.20 |
| Bronze, 90 Cu/10 Zn | 8.80 |
| Cadmium (Cd) | 8.648 |
| Calcium (Ca) | 1.54 |
| Carbon (C) | 2.25 |
| Chromium (Cr) | 6.93 |
| Cobalt (Co) | 8.71 |
| Copper (Cu) | 8.89 |
| Epoxy Glass | 1.85 |
| Glass | 2.6 |
| Gold (Au) | 19.3 |
| Iridium (Ir) | 22.42 |
| Iron, cast | 7.15 |
| Iron, wrought (Fe) | 7.85 |
| Lead (Pb) | 11.342 |
| Magnesium (Mg) | 1.741 |
| Manganese (Mn) | 7.30 |
| Mercury, 68°F (Hg) | 13.546 |
| Molybdenum (Mo) | 10.2 |
| Nickel (Ni) | 8.80 |
| platinum (Pt) | 21.37 |
| Potassium (K) | 0.870 |
| Silver (Ag) | 10.491 |
| Sodium (Na) | 0.972 |
| Steel, Carbon) | 7.87 |
| Tantalum (Ta) | 16.6 |
| Tellurium (Te) | 6.25 |
| Tin (Sn) | 7.29 |
| Titanium (Ti) | 4.50 |
| Tungsten (W) | 19.3 |
| Uranium (U) | 18.7 |
| Vanadium (V) | 5.60 |
| Water, 4°C | 1.00 |
| Zinc (Zn) | 7.10 |
)";

inline constexpr std::string_view kRhoLines = R"(| Aluminum (Al) | 2.65 |
| Brass, 66 Cu/34 Zn | 6.72 |
| Brass, 80 Cu/20 Zn | 5.39 |
| Brass, 85 Cu/15 Zn | 4.7 |
| Bronze, 90 Cu/10 Zn | 3.91 |
| Cadmium (Cd) | 7.59 |
| Cobalt (Co) | 9.65 |
| Constantan | 49 |
| Copper (Cu) | 1.724 |
| Copper, 1/2 Hard | 1.92 |
| Gold (Au) | 2.24 |
| Iron (Fe) | 9.71 |
| Lead (Pb) | 22 |
| Magnesium (Mg) | 4.60 |
| Manganin | 48.2 |
| Mercury (Hg) | 98 |
| Molybdenum (Mo) | 5.69 |
| Nichrome | 100 |
| Nickel (Ni) | 6.40 |
| Palladium (Pd) | 10.7 |
| Phos-Bronze (5% Sn) | 8.7 |
| platinum (Pt) | 10.6 |
| Silver (Ag) | 1.59 |
| Tantalum (Ta) | 15.5 |
| Tin (Sn) | 11.6 |
| Tophet A | 108 |
| Tungsten (W) | 5.65 |
| Zinc (Zn) | 5.86 |
| Zirconium (Zr) | 4.10 |
)";

inline constexpr std::string_view kAlphaLines = R"(| Aluminum (Al) | 0.00403 |
| Brass | 0.002 |
| Cadmium (Cd) | .0038 |
| Cobolt (Co) | .0033 |
| Constantan | 0 |
| Copper (Cu) | 0.00393 |
| Gold (Au) | 0.0034 |
| Iron (Fe) | 0.006 |
| Lead (Pb) | 0.0042 |
| Magnesium (Mg) | 0.004 |
| Manganin | 0 |
| Mercury (Hg) | 0.00089 |
| Molybdenum (Mo) | 0.0045 |
| Nichrome | 0.0002 |
| Nickel (Ni) | 0.005 |
| Palladium (Pd) | 0.0033 |
| platinum (Pt) | 0.003 |
| Silver (Ag) | 0.00381 |
| Tantalum (Ta) | 0.003 |
| Tin (Sn) | 0.0042 |
| Tophet A | 0.00014 |
| Tungsten (W) | 0.0045 |
| Zinc (Zn) | 0.0037 |
| Zirconium (Zr) | 0.0044 |
)";

inline constexpr std::string_view kPrefixLines = R"(| yotta | 1e24 | Y |
| zetta | 1e21 | Z |
| exa | 1e18 | E |
| peta | 1e15 | P |
| tera | 1e12 | T |
| giga | 1e9 | G |
| mega | 1e6 | M |
| kilo | 1e3 | k |
| hecto | 1e2 | h |
| deka | 1e1 | da |
| deci | 1e-1 | d |
| centi | 1e-2 | c |
| milli | 1e-3 | m |
| micro | 1e-6 | µ |
| nano | 1e-9 | n |
| pico | 1e-12 | p |
| femto | 1e-15 | f |
| atto | 1e-18 | a |
| zepto | 1e-21 | z |
| yocyo | 1e-24 | y |
)";

}  // namespace tallyforge::published
