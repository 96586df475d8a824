// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the keys of the bank look like beside their captions: font, colour and tool tip of each key
// of each keypad, and the captions under modifiers that stand in a font of glyphs. Written down
// apart from the keypad tables.
#pragma once

#include "platform/form.h"

#include <string_view>

namespace tallyforge {

struct ShownKey {
    int keypad;
    int key;
    Face face;
    KeyColour colour;
    std::string_view tip;
};

/// The tip names the units that the user has chosen; it is tested with the units.
constexpr std::string_view kByUnit = "";

// clang-format off
constexpr ShownKey kShownKeys[] = {
    // Standard
    {0, 0, Face::Arial, KeyColour::Plain, " X key "},
    {0, 1, Face::Arial, KeyColour::Plain, " Shift+Ctrl+X "},
    {0, 2, Face::Symbol, KeyColour::Plain, " Ctrl+X "},
    {0, 3, Face::Symbol, KeyColour::Plain, " Click: pi (P key) | Ctrl-Click: pi² (Ctrl+P key) | Alt-Click: pi^(1/3) | Ctrl+Alt-Click: 2pi (Sh+Ctrl+P key) | Shift+key-Click = reciprocal "},
    {0, 4, Face::Arial, KeyColour::Plain, " Click: x % of y | Shift-Click: % diff y to x | Ctrl-Click: ± x% of y "},
    {0, 5, Face::Arial, KeyColour::Plain, " Click: y^x | Shift-Click: y^n = x (find n) | Ctrl-Click: 2^x | Alt-Click: 2^n = x (find n) "},
    {0, 6, Face::Arial, KeyColour::Plain, " Wind Chill: wind velocity(mph) [^], temperature (°F) [click] | Heat Index: Rel. Humidity (%) [^], temperature (°F) [Shift-click] "},
    {0, 7, Face::Arial, KeyColour::Plain, " Teach math: Add (+) [Click] | Subtract (-) Shift-Click "},
    {0, 8, Face::Arial, KeyColour::Plain, " days between 2 dates: Date1 (mm.ddyyy) [^], Date2 [Click] | Shift-Click: change date2 | Ctrl+: add days | Alt+: add weeks | Shift+Ctrl+: display Date1 "},
    {0, 9, Face::Arial, KeyColour::Plain, " Click: today's date | Shift-Click: day of week | Ctrl-Click: convert days to weeks "},
    {0, 10, Face::Arial, KeyColour::Plain, " Teach math: Multiply (x) [Click] | Divide (÷) Shift-Click "},
    {0, 11, Face::Arial, KeyColour::Plain, " Click: Round y, x places | Shift+: Integer portion of x | Ctrl+: Fractional portion of x Alt+: Floor x | Shift+Alt: Ceiling x "},
    {0, 12, Face::Arial, KeyColour::Plain, " Polar to Rect.; Ø [^], r [Click] | Rect. to Polar; jy [^], x [Shift+Click] "},
    {0, 13, Face::Arial, KeyColour::Plain, " Click: ln(x + 1) | Shift+: (e^x) - 1 "},
    {0, 14, Face::Arial, KeyColour::Plain, " Click: natural log | Shift+: e^x "},
    {0, 15, Face::Arial, KeyColour::Plain, " Click: Base 10 Log | Shift+: 10^x "},
    {0, 16, Face::Arial, KeyColour::Plain, "  Compute sales tax: Subtotal [Click] | Change Rate(%) [Ctrl+] | View Rate [Shift+] "},
    {0, 17, Face::Symbol, KeyColour::Plain, " Statistics: sum [Click] | sum- [Ctrl+] | mean [Alt] | Std Dev. [Ctrl+Alt+] // Show: sum [Shift+] | sum x², y² [Shift+Ctrl+] | sum x*y [Shift+Alt] // Reset [Shift+Ctrl+Alt+] "},
    {0, 18, Face::Arial, KeyColour::Yellow, " Coumpound Interest Calculator: Loan Amount [Shift+Click] "},
    {0, 19, Face::Arial, KeyColour::Plain, "  fraction to decimal: num.denom [Click]  // Board Feet: thickness (in) Shift+ | width (in) Ctrl+ | length (ft) Alt+ OR length (in) Shift+Alt+ "},
    {0, 20, Face::Arial, KeyColour::Plain, " Click: e | Ctrl+: e² | Alt+: e^½ | Shift+key+ = reciprocal "},
    {0, 21, Face::Symbol, KeyColour::Plain, " Click: 2^½ | Ctrl+: 3^½ | Alt+: 10^½ | Shift+key+ = reciprocal "},
    {0, 22, Face::Symbol, KeyColour::Plain, " Click: pi^½ | Ctrl+: (2pi)^½ | Alt+: (pi/2)^½ | Shift+key+ = reciprocal "},
    {0, 23, Face::Arial, KeyColour::Plain, " Click: N!(x) Factorial | Shift+: N!(Int(x)) | Ctrl+: Gamma(x)"},
    // Engineering
    {1, 0, Face::Arial, KeyColour::Plain, " X key "},
    {1, 1, Face::Arial, KeyColour::Plain, " Shift+Ctrl+X "},
    {1, 2, Face::Symbol, KeyColour::Plain, " Ctrl+X "},
    {1, 3, Face::Symbol, KeyColour::Plain, " Click: pi (P key) | Ctrl+: pi² (Ctrl+P key) | Alt+: pi^(1/3) | Ctrl+Alt+: 2pi (Sh+Ctrl+P key) | Shift+key+ = reciprocal "},
    {1, 4, Face::Symbol, KeyColour::Plain, " Wavelength (m) > freq. (Hz) [Click] | Hz > m [Shift+] | Wavelength (m) > period (s) [Ctrl+] | Hz > s [Alt+] | s > m [Shift+Ctrl+] | s > Hz [Alt+Ctrl+] "},
    {1, 5, Face::Arial, KeyColour::Plain, " Parallel Resistors: Total [Click] | R1 [Ctrl+] | R2[Alt+] | Recalc. [Shift+key+] // Min. loss pad: (Z1 > Z2) Z1 [^], Z2 [Alt+Ctrl+Click] "},
    {1, 6, Face::Arial, KeyColour::Yellow, kByUnit},
    {1, 7, Face::Symbol, KeyColour::Yellow, kByUnit},
    {1, 8, Face::Symbol, KeyColour::Plain, " Freg.[^]: 2(pi)f [Click] | (2(pi)f)²[Ctrl+Click] | Reciprocal = Shift+key+ "},
    {1, 9, Face::Arial, KeyColour::Blue, kByUnit},
    {1, 10, Face::Arial, KeyColour::Yellow, " Invoke the Polynomial Calculator: [Click] "},
    {1, 11, Face::Arial, KeyColour::Yellow, kByUnit},
    {1, 12, Face::Arial, KeyColour::Plain, " Polar to Rect.: Ø [^], r [Click] | Rect. to Polar: jy [^], x [Shift+] "},
    {1, 13, Face::Arial, KeyColour::Plain, " Parallel Complex Z: xb [Click] | jyb[Ctrl+] | xa[Alt+] | jya[Ctrl+Alt+] | Recalc.[Shift+key+Click] "},
    {1, 14, Face::Symbol, KeyColour::Plain, " Butterworth Response: n [Ctrl+Click] | f/fc [Click] | Recalc.[Shift+key+Click] "},
    {1, 15, Face::Symbol, KeyColour::Plain, " Chebyshev Response: n [Ctrl+Click] | ripple(dB) [Alt+] | f/fc [Click] | Recalc.[Shift+key+Click] "},
    {1, 16, Face::Arial, KeyColour::Yellow, kByUnit},
    {1, 17, Face::Arial, KeyColour::Yellow, kByUnit},
    {1, 18, Face::Arial, KeyColour::Yellow, kByUnit},
    {1, 19, Face::Arial, KeyColour::Plain, " Freq and Z Scaling: R [Shift+Click] | Fc [Alt+] or [Sh+Alt+(HP)] | Fo [Ctrl+Alt+] | Enter L [Click] and/or C [Ctrl+] "},
    {1, 20, Face::Arial, KeyColour::Blue, kByUnit},
    {1, 21, Face::Arial, KeyColour::Yellow, " Change in resistance vs temperature: Click: Calculator | Shift+Click: TC | Ctrl+: R1 | Alt+: R2 | Ctrl+Alt+: T1 | Shift+Ctrl+Alt: T2 "},
    {1, 22, Face::Symbol, KeyColour::Blue, kByUnit},
    {1, 23, Face::Arial, KeyColour::Plain, " P1 [^], P2 [Click] | E1(I2)[^], Z1[^], E2(I1)[^], Z2[Shift+Click] "},
    // Trigonometry
    {2, 0, Face::Arial, KeyColour::Plain, " X key "},
    {2, 1, Face::Arial, KeyColour::Plain, " Shift+Ctrl+X "},
    {2, 2, Face::Symbol, KeyColour::Plain, " Ctrl+X "},
    {2, 3, Face::Symbol, KeyColour::Plain, " Click: pi (P key) | Ctrl+: pi² (Ctrl+P key) | Alt+: pi^(1/3) | Ctrl+Alt+: 2pi (Sh+Ctrl+P key) | Shift+key+ = reciprocal "},
    {2, 4, Face::Arial, KeyColour::Plain, " Click: h.mmss to h.dddd | Shift+: h.dddd to h.mmss | Ctrl+: add hours, minutes, seconds "},
    {2, 5, Face::Arial, KeyColour::Plain, " Triangle: S3, OR Shift: A3 "},
    {2, 6, Face::Arial, KeyColour::Plain, " Click: hyperbolic sine(x) | Shift+: ArcSinh(x) | Ctrl+: hyperbolic secant(x) | Shift+Ctrl: ArcSech(x) "},
    {2, 7, Face::Arial, KeyColour::Plain, " secant(x), OR Shift: arcsec(x) "},
    {2, 8, Face::Arial, KeyColour::Yellow, " Calculate Arc Length, Chord & Angle "},
    {2, 9, Face::Arial, KeyColour::Plain, " cot(x), OR Shift: arccot(x) "},
    {2, 10, Face::Arial, KeyColour::Plain, " csc(x), OR Shift: arccsc(x) "},
    {2, 11, Face::Arial, KeyColour::Plain, " Triangle: S1, OR Shift: A1 "},
    {2, 12, Face::Arial, KeyColour::Plain, " Polar to Rect.; Ø [^], r [Click] | Rect. to Polar; jy [^], x [Shift+Click] "},
    {2, 13, Face::Arial, KeyColour::Plain, " Rt. Triangle: Angle opposite X(Ø), OR Shift: Angle opposite Y "},
    {2, 14, Face::Arial, KeyColour::Plain, " Rt. Triangle: abscissa 'X', OR Shift: ordinate 'Y' "},
    {2, 15, Face::Arial, KeyColour::Plain, " Rt. Triangle: Hypotenuse "},
    {2, 16, Face::Arial, KeyColour::Plain, " Click: Radians to Degrees | Shift+: Deg to Rad | Ctrl+: Deg to Grad | Alt+: Rad to Grad | Shift+Ctrl: Grad to Deg | Shift+Alt: Grad to Rad "},
    {2, 17, Face::Arial, KeyColour::Plain, " Click: hyperbolic tan(x) | Shift+: ArcTanh(x) | Ctrl+: hyperbolic cotangent(x) | Shift+Ctrl: ArcCoth(x) "},
    {2, 18, Face::Arial, KeyColour::Plain, " Click: hyperbolic cos(x) | Shift: ArcCosh(x) | Ctrl+: hyperbolic cosecant(x) | Shift+Ctrl+: ArcCsch(x) "},
    {2, 19, Face::Arial, KeyColour::Plain, " Misc. Vol. & Area, Dia[^]: V Cyl, h [Click] | Vol.Frustum, Dt [^], h [Shift+] | V Cone, h [Ctrl+] | V Sphere [Alt+] | A Sphere [Sh+Alt+] | A Cone, h [Sh+Ctrl+] | A Cir. [Ctrl+Alt] | Cir. Per. [Sh+Ctr+Alt] "},
    {2, 20, Face::Arial, KeyColour::Plain, " tan(x), OR Shift: arctan(x) "},
    {2, 21, Face::Arial, KeyColour::Plain, " cos(x), OR Shift: arccos(x) "},
    {2, 22, Face::Arial, KeyColour::Plain, " sin(x), OR Shift: arcsin(x) "},
    {2, 23, Face::Arial, KeyColour::Plain, " Triangle: S2, OR Shift: A2 "},
    // Convert
    {4, 0, Face::Arial, KeyColour::Plain, " X key "},
    {4, 1, Face::Arial, KeyColour::Plain, " Shift+Ctrl+X "},
    {4, 2, Face::Symbol, KeyColour::Plain, " Ctrl+X "},
    {4, 3, Face::Arial, KeyColour::Plain, " Convert between 4 different Temperatures "},
    {4, 4, Face::Arial, KeyColour::Plain, " Convert between several types of Viscosity "},
    {4, 5, Face::Symbol, KeyColour::Plain, " Convert between 6 different Densities // Ctrl Click for list of specific gravities "},
    {4, 6, Face::Arial, KeyColour::Plain, " Convert between 18 different powers "},
    {4, 7, Face::Arial, KeyColour::Plain, " Convert between 10 different times "},
    {4, 8, Face::Symbol, KeyColour::Plain, " Convert between 17 different Torques "},
    {4, 9, Face::Arial, KeyColour::Plain, " Convert between 9 different fuel consumptions "},
    {4, 10, Face::Arial, KeyColour::Plain, " Convert between 12 different speeds, or 6 different accelerations "},
    {4, 11, Face::Arial, KeyColour::Plain, " Convert between 18 different Pressures "},
    {4, 12, Face::Arial, KeyColour::Plain, " Convert between 33 different masses (weights) "},
    {4, 13, Face::Arial, KeyColour::Plain, " Convert between 54 different Volumes "},
    {4, 14, Face::Arial, KeyColour::Plain, " Convert between 21 different Areas "},
    {4, 15, Face::Arial, KeyColour::Plain, " Convert between 54 different Lengths "},
    {4, 16, Face::Arial, KeyColour::Plain, " Select between many useful constants |  Display SI Prefixes [Ctrl+Click] "},
    {4, 17, Face::Arial, KeyColour::Plain, " Convert between several different magnetic properties "},
    {4, 18, Face::Arial, KeyColour::Plain, " Convert between 16 defferent Energies  or, 8 different Energy÷(area * time) "},
    {4, 19, Face::Arial, KeyColour::Blue, " (Last digit is # of zeros): Find val of R [Click]  | Find val of C (pFd) [Ctrl+Click] | Find val of L (nH) [Alt+Click], Shift+key to find code // Right Click for color codes "},
    {4, 20, Face::Arial, KeyColour::Plain, " Convert between 11 Illuminances, 15 Luminances,  or Candlepower and Lumens "},
    {4, 21, Face::Arial, KeyColour::Plain, " Convert between Decibels and Nepers "},
    {4, 22, Face::Arial, KeyColour::Plain, " Convert between 4 different Waveforms "},
    {4, 23, Face::Arial, KeyColour::Plain, " Convert between 9 different Forces "},
    // Magnetics
    {8, 0, Face::Arial, KeyColour::Plain, " X key "},
    {8, 1, Face::Arial, KeyColour::Plain, " Shift+Ctrl+X "},
    {8, 2, Face::Symbol, KeyColour::Plain, " Ctrl+X "},
    {8, 3, Face::Symbol, KeyColour::Plain, " Click: pi (P key) | Ctrl+: pi² (Ctrl+P key) | Alt+: pi^(1/3) | Ctrl+Alt+: 2pi (Sh+Ctrl+P key) | Shift+key+ = reciprocal "},
    {8, 4, Face::Arial, KeyColour::Plain, " MPP Core Loss: perm [Alt+Click] | Freq(KHz) [Ctrl+] | B(g) [Click] | Recalc. [Shift+key+] "},
    {8, 5, Face::Arial, KeyColour::Yellow, kByUnit},
    {8, 6, Face::Arial, KeyColour::Yellow, kByUnit},
    {8, 7, Face::Arial, KeyColour::Yellow, kByUnit},
    {8, 8, Face::Arial, KeyColour::Plain, " Volt-Secs turns: Øt [Click] | n [Ctrl+] | V-S [Alt+] | Recalc [Shift+key+] "},
    {8, 9, Face::Arial, KeyColour::Plain, " flux capacity: Øt [Click] | n [Ctrl+] | F(Hz) [Alt+] | E(v) [Ctrl+Alt+] | Recalc [Shift+key+Click] "},
    {8, 10, Face::Arial, KeyColour::Plain, " Øt<>Bm: Ae [^] | Øt [Click] | Bm [Shift+Click] "},
    {8, 11, Face::Arial, KeyColour::Blue, kByUnit},
    {8, 12, Face::Arial, KeyColour::Blue, kByUnit},
    {8, 13, Face::Arial, KeyColour::Blue, kByUnit},
    {8, 14, Face::Symbol, KeyColour::Plain, "AWG[^]: Ohms/ft, Click | Ohms/in, Shift+ | Ohms/m, Ctrl+ | Ohms/cm, Alt+ | Ohms/mm, Sh+Ctrl | Ohms/1000 ft, Sh+Alt | Ohms/lb, Alt+Ctrl | g/Ohm, Sh+Alt+Ctrl"},
    {8, 15, Face::Arial, KeyColour::Blue, "CMAi to AWG: Click | AWG to: CMAi, Shift+ | to CMAb, Ctrl+ | to lbs/ft, Sh+Ctrl | to Dia(in), Alt | to Dia(mm), Alt+Ctrl | Dia(in) to AWG: Sh+Alt | Dia(mm) to AWG: Sh+Alt+Ctrl"},
    {8, 16, Face::Arial, KeyColour::Yellow, kByUnit},
    {8, 17, Face::Arial, KeyColour::Plain, " MPP Effective permeability vs AC flux: µ [Alt+Click], B(g) [Click] | Recalc [Shift+] // Lf: Ae [^], le [/]  n [Ctrl+Click] | Recalc, n [Shift+Ctrl] "},
    {8, 18, Face::Arial, KeyColour::Plain, " Permeability vs Lo: lo [Click], | le [ctrl+Click] | Ae [Alt+] | µe [Ctrl+Alt+] | Recalc. [Shift+key+] "},
    {8, 19, Face::Arial, KeyColour::Plain, " # of wires [^], Wire dia [Click] | magnet wire AWG [Shift+] | Insulated (PTFE) AWG [Ctrl+ ] "},
    {8, 20, Face::Arial, KeyColour::Plain, "SINE: F(Hz) [^], E to V-S [Click] |  F [^], V-S to E [Shift+] | V-S [^], E to F [Alt+] // SQR: F [^], E to V-S [Ctrl+] | F [^], V-S to E [Shift+Ctrl+] | V-S [^], E to F [Alt+Ctrl+] "},
    {8, 21, Face::Arial, KeyColour::Plain, " MPP Effective permeability vs DC bias: perm [Ctrl+Click] | H [Click] | Recalc [Shift+key+] "},
    {8, 22, Face::Arial, KeyColour::Yellow, kByUnit},
    {8, 23, Face::Arial, KeyColour::Blue, " Ferrite Core Loss (Ctrl+Rt-Click to Input Matl): Freq (KHz) [Ctrl+Click] | Flux Density, B(g) [Click] | Recalc [Shift+key+Click] "},
    // Binary
    {10, 0, Face::Arial, KeyColour::Plain, " [Click] 'C' for Hex number | [Shift+] octal base "},
    {10, 1, Face::Arial, KeyColour::Plain, " [Click] 'B' for Hex number | [Shift+] hex base "},
    {10, 2, Face::Arial, KeyColour::Plain, " [Click] 'A' for Hex number | [Shift+] decimal base "},
    {10, 3, Face::Arial, KeyColour::Plain, " Performs a 1 byte right rotate "},
    {10, 4, Face::Arial, KeyColour::Plain, " Returns logical NOT of the x register "},
    {10, 5, Face::Arial, KeyColour::Plain, " Returns logical NOT between x and y registers "},
    {10, 6, Face::Arial, KeyColour::Plain, " Converts real number: to binary [Click] | to hex [Shift+] | to octal [Ctrl+] | to decimal [Alt+] // OR Binary number to real [Click] "},
    {10, 7, Face::Arial, KeyColour::Plain, " Performs a 1 bit shift left "},
    {10, 8, Face::Arial, KeyColour::Plain, " Performs a 1 byte shift right "},
    {10, 9, Face::Arial, KeyColour::Plain, " Performs a 1 byte shift left "},
    {10, 10, Face::Arial, KeyColour::Plain, " Performs a 1 bit shift right "},
    {10, 11, Face::Arial, KeyColour::Plain, " Returns logical AND between y and x registers "},
    {10, 12, Face::Arial, KeyColour::Plain, " Sets the displayed number to the binary number system "},
    {10, 13, Face::Arial, KeyColour::Plain, " Sets the displayed number to the octal number system "},
    {10, 14, Face::Arial, KeyColour::Plain, " Sets the displayed number to the hexidecimal number system, use caps to input hex numbers! "},
    {10, 15, Face::Arial, KeyColour::Plain, " sets the displayed number to the decimal number system "},
    {10, 16, Face::Arial, KeyColour::Plain, " [Click] 'E' for Hex number | [Shift+] Binary delimiter "},
    {10, 17, Face::Arial, KeyColour::Plain, " [Click] 'F' for Hex number "},
    {10, 18, Face::Arial, KeyColour::Plain, " Performs a 1 bit arithmetic right shift "},
    {10, 19, Face::Arial, KeyColour::Plain, " [Click] 'D' for Hex number | [Shift+] binary base "},
    {10, 20, Face::Arial, KeyColour::Plain, " Performs a 1 byte left rotate "},
    {10, 21, Face::Arial, KeyColour::Plain, " Performs a 1 bit right rotate "},
    {10, 22, Face::Arial, KeyColour::Plain, " Performs a 1 bit left rotate "},
    {10, 23, Face::Arial, KeyColour::Plain, " Returns Logical OR between x and y registers "},
    // Tables
    {20, 0, Face::Arial, KeyColour::Plain, " x key "},
    {20, 1, Face::Arial, KeyColour::Plain, " Shift+x "},
    {20, 2, Face::Symbol, KeyColour::Plain, " Ctrl+X "},
    {20, 3, Face::Arial, KeyColour::Plain, " DCR, Aluminum Wire: AWG (8 - 44) - [Click]  "},
    {20, 4, Face::Arial, KeyColour::Plain, " DCR, Half-Size Copper Wire: Base AWG - [Click] (1/2 is added to base!) "},
    {20, 5, Face::Arial, KeyColour::Plain, " Steel Wire, [Click] to View Table "},
    {20, 6, Face::Arial, KeyColour::Plain, " National Fine Tap Drill Sizes - [Click] to View Table "},
    {20, 7, Face::Arial, KeyColour::Plain, " Machine Screw size number [Click], calculate diameter "},
    {20, 8, Face::Arial, KeyColour::Plain, " Board Foot Calculator - [Click] "},
    {20, 9, Face::Arial, KeyColour::Plain, " Stainless Steel Thickness, Gauge 6/0 (-5) - 38 [Click] "},
    {20, 10, Face::Arial, KeyColour::Plain, " Mach. Screw Tap Drill Size: X.YY; integer (X) is MS#, the decimal (.YY)is Threads per Inch (TPI not required for 0, 00, or 000 MS)  [Click] "},
    {20, 11, Face::Arial, KeyColour::Plain, " Handy nail chart - [Click] to View "},
    {20, 12, Face::Arial, KeyColour::Plain, " Half-Size Heavy Build Magnet Wire Diameter (4½ - 50½): Base AWG - [Click] (1/2 added to base!) "},
    {20, 13, Face::Arial, KeyColour::Plain, " Half-Size Heavy Build Magnet Wire Cir Mil Area (4½ - 50½): Base AWG - [Click] (1/2 added to base!) "},
    {20, 14, Face::Arial, KeyColour::Plain, " Half-Size Single Build Magnet Wire Diameter (14½ - 50½): Base AWG - [Click] (1/2 added to base!) "},
    {20, 15, Face::Arial, KeyColour::Plain, " Half-Size Single Build Magnet Wire Cir Mil Area (14½ - 50½): Base AWG - [Click] (1/2 added to base!) "},
    {20, 16, Face::Arial, KeyColour::Plain, " Select between many useful constants - [Click] |  Display SI Prefixes [Ctrl+Click] "},
    {20, 17, Face::Arial, KeyColour::Plain, " Aluminum sheet thickness, AWG 000000 (-5) to 38 - [Click] "},
    {20, 18, Face::Arial, KeyColour::Plain, " National Coarse Tap Drill Sizes - [Click] to View Table "},
    {20, 19, Face::Arial, KeyColour::Plain, " Fraction to Decimal: num.denom [Click] "},
    {20, 20, Face::Arial, KeyColour::Plain, " Standard sheet steel thickness, Gage 3 - 38 [Click] "},
    {20, 21, Face::Arial, KeyColour::Plain, " Drill bit sizes: No. [Click] | Shift+[Click] for Letter Drills (mouse over letter). "},
    {20, 22, Face::Arial, KeyColour::Plain, " American Std. Pipe Tap Drill Sizes - [Click] to View Table "},
    {20, 23, Face::Arial, KeyColour::Plain, " Handy Wood Screw Table, [Click] to View. "},
};
// clang-format on

/// Captions under a modifier that are not in Arial.
struct ShownGlyphs {
    int keypad;
    int mask;
    int key;
    Face face;
};

constexpr ShownGlyphs kShownGlyphs[] = {
    {0, 1, 3, Face::Symbol},    {0, 6, 3, Face::Symbol},  {0, 7, 3, Face::Symbol},  {0, 4, 20, Face::Terminal},
    {0, 5, 20, Face::Terminal}, {0, 1, 21, Face::Symbol}, {0, 2, 21, Face::Symbol}, {0, 3, 21, Face::Symbol},
    {0, 4, 21, Face::Symbol},   {0, 5, 21, Face::Symbol}, {0, 1, 22, Face::Symbol}, {0, 2, 22, Face::Symbol},
    {0, 3, 22, Face::Symbol},   {0, 4, 22, Face::Symbol}, {0, 5, 22, Face::Symbol}, {0, 2, 23, Face::Terminal},
    {1, 1, 3, Face::Symbol},    {1, 6, 3, Face::Symbol},  {1, 7, 3, Face::Symbol},  {1, 1, 8, Face::Symbol},
    {1, 4, 15, Face::Symbol},   {1, 5, 15, Face::Symbol}, {1, 1, 20, Face::Symbol}, {1, 1, 21, Face::Symbol},
    {2, 1, 3, Face::Symbol},    {2, 6, 3, Face::Symbol},  {2, 7, 3, Face::Symbol},  {2, 1, 13, Face::Symbol},
    {4, 1, 5, Face::Symbol},    {4, 4, 5, Face::Symbol},  {4, 1, 8, Face::Symbol},  {4, 4, 8, Face::Symbol},
    {8, 1, 3, Face::Symbol},    {8, 6, 3, Face::Symbol},  {8, 7, 3, Face::Symbol},
};

}  // namespace tallyforge
