// SPDX-License-Identifier: GPL-3.0-or-later
//
// The Engineering keypad, a row a key.
// Units in a tip stand as ranges of unit_tables.h in braces; the painter writes those in force.
#include "calculators/calculators.h"
#include "dialogs/unit_choice.h"
#include "electrical/parameter_tables.h"
#include "functions/trigonometry.h"
#include "keypads/calculator_keys.h"
#include "keypads/common_rows.h"
#include "keypads/constants_key.h"
#include "keypads/keypad_table.h"
#include "keypads/keys.h"

namespace tallyforge {

namespace {

// A block has a length and a width where a cylinder has its diameter.
std::optional<KeyCaption> dimensionCaption(const Keys& keys, std::uint8_t mask) {
    if (chosenRow(kLmuShape, keys.calc.units) != 1) {
        return std::nullopt;
    }
    switch (mask) {
        case kAlt:
        case kShift + kAlt:
            return "len";
        case kCtrl + kAlt:
            return "W";
        default:
            return std::nullopt;
    }
}

}  // namespace

const KeypadTable kEngineeringKeypad{
    .id = Keypad::Engineering,
    .name = "Engineering",
    .rows = {{
        reciprocalRow(1100),
        squareRow(1101),
        squareRootRow(1102),
        piRow(1103, "1/ sqrd", kPiTip),
        {.key = key::Wavelength,
         .caption = {"l", Face::Symbol},
         .tip = " Wavelength (m) > freq. (Hz) [Click] | Hz > m [Shift+] | Wavelength (m) > period (s) [Ctrl+] | Hz > s "
                "[Alt+] | s > m [Shift+Ctrl+] | s > Hz [Alt+Ctrl+] ",
         .under = {.shift = {"F>m", on<wave, WaveStep::HertzToMetres>},
                   .ctrl = {"m>s", on<wave, WaveStep::MetresToSeconds>},
                   .shiftCtrl = {"s>m", on<wave, WaveStep::SecondsToMetres>},
                   .alt = {"F>s", on<wave, WaveStep::HertzToSeconds>},
                   .ctrlAlt = {"s>F", on<wave, WaveStep::SecondsToHertz>}},
         .helpTopic = 1104,
         .plain = on<wave, WaveStep::MetresToHertz>},
        {.key = key::ParallelResistors,
         .caption = "Ri",
         .tip = " Parallel Resistors: Total [Click] | R1 [Ctrl+] | R2[Alt+] | Recalc. [Shift+key+] // Min. loss pad: "
                "(Z1 > Z2) Z1 [^], Z2 [Alt+Ctrl+Click] ",
         .under = {.shift = "RT",
                   .ctrl = "R1",
                   .shiftCtrl = "R1",
                   .alt = "R2",
                   .shiftAlt = "R2",
                   .ctrlAlt = {"Z2", [](Keys& keys) { keys.electrical.resistors.minimumLossPad(); }}},
         .silentOperand = true,
         .helpTopic = 1105,
         .does = [](Keys& keys) { keys.electrical.resistors.parallelResistors(); }},
        {.key = key::ResonantFrequency,
         .caption = "Fr",
         .tip = " Resonant Frequency - Click: Calculator | Shift+Click: X({LcX}) | Ctrl+: C({LcC}) | Alt+: L({LcL}) | "
                "Ctrl+Alt+: F({LcF})",
         .colour = KeyColour::Yellow,
         .under = {.shift = "X", .ctrl = "C", .alt = "L", .ctrlAlt = "F"},
         .helpTopic = 1106,
         .does = [](Keys& keys) { openCalculator(keys, kResonantFrequency); }},
        {.key = key::OhmsLaw,
         .caption = {"W", Face::Symbol},
         .tip = " Ohms Law - Click: Calculator | Shift+ Click: P({OhmP}) | Ctrl+: I({OhmI}) | Alt+: E({OhmE}) | "
                "Ctrl+Alt+: R({OhmR}) ",
         .colour = KeyColour::Yellow,
         .under = {.shift = "P", .ctrl = "I", .alt = "E", .ctrlAlt = "R"},
         .helpTopic = 1107,
         .does = [](Keys& keys) { openCalculator(keys, kOhmsLaw); }},
        {.key = key::AngularFrequency,
         .caption = {"w", Face::Symbol},
         .tip = " Freg.[^]: 2(pi)f [Click] | (2(pi)f)²[Ctrl+Click] | Reciprocal = Shift+key+ "_t,
         .under = {.shift = {"1/w", Face::Symbol, on<wave, WaveStep::OneOverAngular>},
                   .ctrl = {"sqrd", on<wave, WaveStep::AngularSquared>},
                   .shiftCtrl = {"1/ sqrd", on<wave, WaveStep::OneOverAngularSquared>}},
         .helpTopic = 1108,
         .plain = on<wave, WaveStep::Angular>},
        {.key = key::SupplyCapacitor,
         .caption = "Cm",
         .tip = " Power Supply Cap: Vac [Click] | Vdc [Ctrl+Click] | Idc [Alt+] | Freq({OhmF}) [Alt+Ctrl+] | "
                "Recalc.[Shift+key+Click] ",
         .colour = KeyColour::Blue,
         .under = {.shift = "Vac",
                   .ctrl = "Vdc",
                   .shiftCtrl = "Vdc",
                   .alt = "Idc",
                   .shiftAlt = "Idc",
                   .ctrlAlt = "F",
                   .all = "F"},
         .silentOperand = true,
         .helpTopic = 1109,
         .does = [](Keys& keys) { keys.electrical.filters.supplyCapacitor(); },
         .choose =
             [](Keys& keys) { ParameterDialog(keys.calc, kPwrSupCapTable, {.saveUnits = keys.saveUnits}).ask(); }},
        {.key = key::Polynomial,
         .caption = "f(x)",
         .tip = " Invoke the Polynomial Calculator: [Click] ",
         .colour = KeyColour::Yellow,
         .helpTopic = 1110,
         .does = openPolynomial},
        {.key = key::GeometricMean,
         .caption = "Fo",
         .tip = " Geo. mean ({LcF}) - Click: Calculator | Shift+Click: Fo | Ctrl+Click: BW | Alt+: FL | Ctrl+Alt+: FU ",
         .colour = KeyColour::Yellow,
         .under = {.shift = "Fo", .ctrl = "BW", .alt = "FL", .ctrlAlt = "FU"},
         .helpTopic = 1111,
         .does = [](Keys& keys) { openCalculator(keys, kGeometricMean); }},
        {.key = key::Polar,
         .caption = "P:R",
         .tip = " Polar to Rect.: Ø [^], r [Click] | Rect. to Polar: jy [^], x [Shift+] "_t,
         .under = {.shift = {"R:P", on<rectangularToPolar>}},
         .helpTopic = 1112,
         .plain = on<polarToRectangular>},
        {.key = key::ParallelImpedance,
         .caption = "Zp",
         .tip = " Parallel Complex Z: xb [Click] | jyb[Ctrl+] | xa[Alt+] | jya[Ctrl+Alt+] | Recalc.[Shift+key+Click] ",
         .under = {.shift = "xb",
                   .ctrl = "jyb",
                   .shiftCtrl = "jyb",
                   .alt = "xa",
                   .shiftAlt = "xa",
                   .ctrlAlt = "jya",
                   .all = "jya"},
         .silentOperand = true,
         .helpTopic = 1113,
         .does = [](Keys& keys) { keys.electrical.resistors.parallelImpedance(); }},
        {.key = key::Butterworth,
         .caption = {"aB", Face::Symbol},
         .tip = " Butterworth Response: n [Ctrl+Click] | f/fc [Click] | Recalc.[Shift+key+Click] ",
         .under = {.shift = " f/ fc", .ctrl = "n", .shiftCtrl = "n"},
         .silentOperand = true,
         .helpTopic = 1114,
         .does = [](Keys& keys) { keys.electrical.filters.butterworth(); }},
        {.key = key::Chebyshev,
         .caption = {"a", Face::Symbol},
         .tip = " Chebyshev Response: n [Ctrl+Click] | ripple(dB) [Alt+] | f/fc [Click] | Recalc.[Shift+key+Click] ",
         .under = {.shift = " f/ fc",
                   .ctrl = "n",
                   .shiftCtrl = "n",
                   .alt = {"e", Face::Symbol},
                   .shiftAlt = {"e", Face::Symbol}},
         .silentOperand = true,
         .helpTopic = 1115,
         .does = [](Keys& keys) { keys.electrical.filters.chebyshev(); }},
        {.key = key::Ladder,
         .caption = "Zn",
         .tip = " Impedance of a Ladder Network ({LcF}, {LcX}, {LcC}, and {LcL}) - Click: Calculator | Shift+Click: "
                "Input Frequency ({LcF})",
         .colour = KeyColour::Yellow,
         .under = {.shift = "F"},
         .helpTopic = 1116,
         .does = openLadder},
        {.key = key::ParallelResonance,
         .caption = "Pr",
         .tip = " Par.Res.Ckt - Click: Calculator | Shift+: RL({LcX}) |  Ctrl+: C({LcC}) | Alt+: L({LcL}) |  ",
         .colour = KeyColour::Yellow,
         .under = {.shift = "RL", .ctrl = "C", .alt = "L"},
         .helpTopic = 1117,
         .does = [](Keys& keys) { openCalculator(keys, kParallelResonance); }},
        {.key = key::SeriesResonance,
         .caption = "Sr",
         .tip = " Ser.Res.Ckt. - Click: Calculator | Shift+Click: Rp(Ohms) | Ctrl+: C({LcC}) | Alt+: L({LcL}) | "
                "Ctrl+Alt+: Rs({LcX}) | ",
         .colour = KeyColour::Yellow,
         .under = {.shift = "Rp", .ctrl = "C", .alt = "L", .ctrlAlt = "Rs"},
         .helpTopic = 1118,
         .does = [](Keys& keys) { openCalculator(keys, kSeriesResonance); }},
        {.key = key::FilterScaling,
         .caption = "scl",
         .tip = " Freq and Z Scaling: R [Shift+Click] | Fc [Alt+] or [Sh+Alt+(HP)] | Fo [Ctrl+Alt+] | Enter L [Click] "
                "and/or C [Ctrl+] ",
         .under = {.shift = "R", .ctrl = "C", .alt = "Fc", .shiftAlt = "Fc", .ctrlAlt = "Fo"},
         .silentOperand = true,
         .helpTopic = 1119,
         .does = [](Keys& keys) { keys.electrical.filters.scaling(); }},
        {.key = key::Resistivity,
         .caption = "rho",
         .tip =
             " Resistance (R) vs Resistivity (p) x len/area: p [Click] | L({OhmLength}) [Ctrl+] | A({OhmArea}) [Alt+] | ... | Recalc. [Shift+key+Click] "_t,
         .colour = KeyColour::Blue,
         .under = {.shift = {"r", Face::Symbol}, .ctrl = "L", .shiftCtrl = "L", .alt = "A", .shiftAlt = "A"},
         .silentOperand = true,
         .helpTopic = 1120,
         .does = [](Keys& keys) { keys.electrical.resistors.resistivity(); },
         .choose = chooseResistivity},
        {.key = key::ResistanceByTemperature,
         .caption = "rT",
         .tip = " Change in resistance vs temperature: Click: Calculator | Shift+Click: TC | Ctrl+: R1 | Alt+: R2 | "
                "Ctrl+Alt+: T1 | Shift+Ctrl+Alt: T2 ",
         .colour = KeyColour::Yellow,
         .under = {.shift = {"a", Face::Symbol}, .ctrl = "R1", .alt = "R2", .ctrlAlt = "T1", .all = "T2"},
         .helpTopic = 1121,
         .does = [](Keys& keys) { openCalculator(keys, kTemperatureCoefficient); }},
        {.key = key::TemperatureRise,
         .caption = {"DT", Face::Symbol},
         .tip = "{LmuShape}, Recalc [Shift+key] // Temp. Rise({LmuTemperature}): Surface Area({LmuSurface}) [Enter], W "
                "[Click]  Surface Area({LmuSurface}): Ht [Ctrl+];{LmuShapeTip}",
         .colour = KeyColour::Blue,
         .under = {.ctrl = "HT", .shiftCtrl = "HT", .alt = "dia", .shiftAlt = "dia"},
         .silentOperand = true,
         .helpTopic = 1122,
         .does = [](Keys& keys) { keys.electrical.surfaces.surfaceAndTemperature(); },
         .choose = [](Keys& keys) { ParameterDialog(keys.calc, kTempRiseTable, {.saveUnits = keys.saveUnits}).ask(); },
         .captionNow = dimensionCaption},
        {.key = key::Decibels,
         .caption = "dB",
         .tip = " P1 [^], P2 [Click] | E1(I2)[^], Z1[^], E2(I1)[^], Z2[Shift+Click] ",
         .under = {.shift = {"Z2", on<levelOfVoltages>}},
         .silentOperand = true,
         .helpTopic = 1123,
         .plain = on<levelOfPowers>},
    }},
};

}  // namespace tallyforge
