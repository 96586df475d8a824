// SPDX-License-Identifier: GPL-3.0-or-later
#include "keypads/mask_words.h"

#include "platform/form.h"

#include <algorithm>
#include <array>
#include <span>
#include <string_view>

namespace tallyforge {

namespace {

enum class Kind {
    Plain,      ///< a function a mask
    Inputs,     ///< a quantity a mask; with Shift the result follows from the others as they stand
    Calculator  ///< opens a dialog; under a mask X goes into one of its fields
};

/// By mask; what an odd mask of a key with inputs leaves out is that of the mask without Shift.
struct ByMask {
    std::string_view plain{}, shift{}, ctrl{}, shiftCtrl{}, alt{}, shiftAlt{}, ctrlAlt{}, all{};

    [[nodiscard]] std::array<std::string_view, 8> listed() const {
        return {plain, shift, ctrl, shiftCtrl, alt, shiftAlt, ctrlAlt, all};
    }
};

struct Row {
    int key;
    Kind kind;
    std::string_view topic;
    ByMask under;
};

constexpr Row kEngineering[] = {
    {4,
     Kind::Plain,
     "",
     {.plain = "Wavelength to frequency",
      .shift = "Frequency to wavelength",
      .ctrl = "Wavelength to period",
      .shiftCtrl = "Period to wavelength",
      .alt = "Frequency to period",
      .ctrlAlt = "Period to frequency"}},
    {5,
     Kind::Inputs,
     "Parallel resistors",
     {.plain = "total", .ctrl = "R1", .alt = "R2", .ctrlAlt = "minimum-loss pad of y to x"}},
    {6,
     Kind::Calculator,
     "Resonant frequency",
     {.shift = "reactance", .ctrl = "capacitance", .alt = "inductance", .ctrlAlt = "frequency"}},
    {7,
     Kind::Calculator,
     "Ohm's law",
     {.shift = "power", .ctrl = "current", .alt = "voltage", .ctrlAlt = "resistance"}},
    {8,
     Kind::Plain,
     "",
     {.plain = "Angular frequency",
      .shift = "Reciprocal of the angular frequency",
      .ctrl = "Square of the angular frequency",
      .shiftCtrl = "Reciprocal of its square"}},
    {9,
     Kind::Inputs,
     "Power supply capacitor",
     {.plain = "volts AC", .ctrl = "volts DC", .alt = "amperes DC", .ctrlAlt = "frequency"}},
    {10, Kind::Calculator, "Polynomial", {}},
    {11,
     Kind::Calculator,
     "Centre frequency",
     {.shift = "the centre", .ctrl = "bandwidth", .alt = "the lower end", .ctrlAlt = "the upper end"}},
    {12, Kind::Plain, "", {.plain = "Polar to rectangular", .shift = "Rectangular to polar"}},
    {13,
     Kind::Inputs,
     "Parallel impedances",
     {.plain = "real part of b",
      .ctrl = "imaginary part of b",
      .alt = "real part of a",
      .ctrlAlt = "imaginary part of a"}},
    {14, Kind::Inputs, "Butterworth response", {.plain = "frequency over cut-off", .ctrl = "degree"}},
    {15, Kind::Inputs, "Chebyshev response", {.plain = "frequency over cut-off", .ctrl = "degree", .alt = "ripple"}},
    {16, Kind::Calculator, "Ladder network", {.shift = "frequency"}},
    {17,
     Kind::Calculator,
     "Parallel resonance",
     {.shift = "the coil's resistance", .ctrl = "capacitance", .alt = "inductance"}},
    {18,
     Kind::Calculator,
     "Series resonance",
     {.shift = "parallel resistance", .ctrl = "capacitance", .alt = "inductance", .ctrlAlt = "series resistance"}},
    {19,
     Kind::Plain,
     "",
     {.plain = "Filter scaling, an inductor",
      .shift = "Filter scaling, impedance",
      .ctrl = "Filter scaling, a capacitor",
      .alt = "Filter scaling, cut-off of a low pass",
      .shiftAlt = "Filter scaling, cut-off of a high pass",
      .ctrlAlt = "Filter scaling, centre frequency"}},
    {20, Kind::Inputs, "Resistance", {.plain = "resistivity", .ctrl = "length", .alt = "area"}},
    {21,
     Kind::Calculator,
     "Resistance by temperature",
     {.shift = "the coefficient",
      .ctrl = "resistance R1",
      .alt = "resistance R2",
      .ctrlAlt = "temperature T1",
      .all = "temperature T2"}},
    {22,
     Kind::Inputs,
     "Surface area",
     {.plain = "then temperature rise of x watts", .ctrl = "height", .alt = "diameter or length", .ctrlAlt = "width"}},
    {23, Kind::Plain, "", {.plain = "Decibels of two powers", .shift = "Decibels of voltages at impedances"}},
};

constexpr Row kMagnetics[] = {
    {4, Kind::Inputs, "Powder core loss", {.plain = "flux density", .ctrl = "frequency", .alt = "permeability"}},
    {5,
     Kind::Calculator,
     "Inductance by turns",
     {.shift = "inductance", .ctrl = "turns", .alt = "inductance of 1000 turns"}},
    {6,
     Kind::Calculator,
     "Inductance by permeability",
     {.shift = "inductance", .ctrl = "turns", .alt = "core area", .ctrlAlt = "path length", .all = "permeability"}},
    {7,
     Kind::Calculator,
     "Flux density",
     {.shift = "flux density", .ctrl = "turns", .alt = "core area", .ctrlAlt = "frequency", .all = "voltage"}},
    {8, Kind::Inputs, "Volt-second turns", {.plain = "flux", .ctrl = "turns", .alt = "volt-seconds"}},
    {9, Kind::Inputs, "Flux capacity", {.plain = "flux", .ctrl = "turns", .alt = "frequency", .ctrlAlt = "voltage"}},
    {10, Kind::Plain, "", {.plain = "Flux to flux density", .shift = "Flux density to flux"}},
    {11,
     Kind::Inputs,
     "Q of a coil",
     {.plain = "frequency", .ctrl = "resistance", .alt = "inductance", .ctrlAlt = "flux density"}},
    {12, Kind::Inputs, "Mean length of a turn", {.plain = "outer size", .ctrl = "inner size", .alt = "height"}},
    {13,
     Kind::Inputs,
     "Air-core solenoid",
     {.plain = "inductance", .ctrl = "turns", .alt = "radius", .ctrlAlt = "length"}},
    {14,
     Kind::Plain,
     "",
     {.plain = "Ohms a foot of wire gauge x",
      .shift = "Ohms an inch of wire gauge x",
      .ctrl = "Ohms a metre of wire gauge x",
      .shiftCtrl = "Ohms a millimetre of wire gauge x",
      .alt = "Ohms a centimetre of wire gauge x",
      .shiftAlt = "Ohms per 1000 feet of wire gauge x",
      .ctrlAlt = "Ohms a pound of wire gauge x",
      .all = "Grams an ohm of wire gauge x"}},
    {15,
     Kind::Plain,
     "",
     {.plain = "Circular mils to wire gauge",
      .shift = "Wire gauge to circular mils, insulated",
      .ctrl = "Wire gauge to circular mils, bare",
      .shiftCtrl = "Wire gauge to pounds a foot",
      .alt = "Wire gauge to diameter in inches",
      .shiftAlt = "Diameter in inches to wire gauge",
      .ctrlAlt = "Wire gauge to millimetres",
      .all = "Millimetres to wire gauge"}},
    {16,
     Kind::Calculator,
     "C core",
     {.shift = "strip width D", .ctrl = "build-up E", .alt = "window width F", .ctrlAlt = "window length G"}},
    {17, Kind::Inputs, "Permeability by AC flux", {.plain = "flux density", .ctrl = "turns", .alt = "permeability"}},
    {18,
     Kind::Inputs,
     "Permeability of a core",
     {.plain = "inductance of 1000 turns",
      .ctrl = "path length",
      .alt = "core area",
      .ctrlAlt = "effective permeability"}},
    {19,
     Kind::Plain,
     "",
     {.plain = "Bundle of y wires of diameter x",
      .shift = "Bundle of y magnet wires of gauge x",
      .ctrl = "Bundle of y insulated wires of gauge x",
      .alt = "Bundle of y screws of number x"}},
    {20,
     Kind::Plain,
     "",
     {.plain = "Volts of a sine to volt-seconds",
      .shift = "Volt-seconds of a sine to volts",
      .ctrl = "Volts of a square wave to volt-seconds",
      .shiftCtrl = "Volt-seconds of a square wave to volts",
      .alt = "Frequency of a sine by volt-seconds",
      .ctrlAlt = "Frequency of a square wave"}},
    {21, Kind::Inputs, "Permeability by DC bias", {.plain = "magnetizing force", .ctrl = "permeability"}},
    {22,
     Kind::Calculator,
     "Magnetizing force",
     {.shift = "the force", .ctrl = "turns", .alt = "current", .ctrlAlt = "path length"}},
    {23, Kind::Inputs, "Ferrite core loss", {.plain = "flux density", .ctrl = "frequency"}},
};

constexpr Row kTrigonometry[] = {
    {19,
     Kind::Plain,
     "",
     {.plain = "Volume of a cylinder",
      .shift = "Volume of a frustum",
      .ctrl = "Volume of a cone",
      .shiftCtrl = "Area of a cone",
      .alt = "Volume of a sphere",
      .shiftAlt = "Area of a sphere",
      .ctrlAlt = "Area of a circle",
      .all = "Perimeter of a circle"}},
};

constexpr Row kTables[] = {
    {0, Kind::Plain, "", {.plain = "Reciprocal of x"}},
    {1, Kind::Plain, "", {.plain = "Square of x"}},
    {2, Kind::Plain, "", {.plain = "Square root of x"}},
    {3, Kind::Plain, "", {.plain = "Resistance of aluminum wire"}},
    {4, Kind::Plain, "", {.plain = "Resistance of half-size copper wire"}},
    {5, Kind::Plain, "", {.plain = "Chart of steel wire"}},
    {6, Kind::Plain, "", {.plain = "Tap drills of fine threads"}},
    {7, Kind::Plain, "", {.plain = "Diameter of a machine screw"}},
    {8, Kind::Plain, "", {.plain = "Board foot calculator"}},
    {9, Kind::Plain, "", {.plain = "Stainless steel, gauge to thickness"}},
    {10, Kind::Plain, "", {.plain = "Tap drill of a machine screw"}},
    {11, Kind::Plain, "", {.plain = "Chart of nails"}},
    {12, Kind::Plain, "", {.plain = "Diameter, half-size heavy wire"}},
    {13, Kind::Plain, "", {.plain = "Circular mils, half-size heavy wire"}},
    {14, Kind::Plain, "", {.plain = "Diameter, half-size single wire"}},
    {15, Kind::Plain, "", {.plain = "Circular mils, half-size single wire"}},
    {16, Kind::Plain, "", {.plain = "Physical constants", .ctrl = "Prefixes of units"}},
    {17, Kind::Plain, "", {.plain = "Aluminum sheet, gauge to thickness"}},
    {18, Kind::Plain, "", {.plain = "Tap drills of coarse threads"}},
    {19, Kind::Plain, "", {.plain = "Fraction to decimal"}},
    {20, Kind::Plain, "", {.plain = "Sheet steel, gauge to thickness"}},
    {21, Kind::Plain, "", {.plain = "Drill by number", .shift = "Drill by letter"}},
    {22, Kind::Plain, "", {.plain = "Tap drills of pipe threads"}},
    {23, Kind::Plain, "", {.plain = "Chart of wood screws"}},
};

std::span<const Row> rowsOf(Keypad keypad) {
    switch (keypad) {
        case Keypad::Engineering:
            return kEngineering;
        case Keypad::Trigonometry:
            return kTrigonometry;
        case Keypad::Magnetics:
            return kMagnetics;
        case Keypad::Tables:
            return kTables;
        default:
            return {};
    }
}

}  // namespace

std::string maskWords(Keypad keypad, int key, std::uint8_t mask) {
    const std::span<const Row> rows = rowsOf(keypad);
    const auto row = std::find_if(rows.begin(), rows.end(), [key](const Row& each) { return each.key == key; });
    if (row == rows.end()) {
        return {};
    }
    const auto under = row->under.listed();
    const bool shifted = (mask & kShift) != 0;
    const bool input = row->kind == Kind::Inputs;
    const std::string meant(under.at(input ? mask & ~unsigned{kShift} : mask));
    const std::string topic(row->topic);
    if (row->kind == Kind::Calculator) {
        return mask == 0 ? topic + " calculator" : meant.empty() ? std::string{} : topic + ", x is " + meant;
    }
    return !input || meant.empty() ? meant : topic + ", " + meant + (shifted ? ", anew" : "");
}

}  // namespace tallyforge
