// SPDX-License-Identifier: GPL-3.0-or-later
//
// The Magnetics keypad, a row a key.
// Units in a tip stand as ranges of unit_tables.h in braces; the painter writes those in force.
#include "calculators/calculators.h"
#include "dialogs/unit_choice.h"
#include "electrical/bundle.h"
#include "electrical/parameter_tables.h"
#include "electrical/wire_keys.h"
#include "keypads/calculator_keys.h"
#include "keypads/common_rows.h"
#include "keypads/keypad_table.h"
#include "keypads/keys.h"

namespace tallyforge {

namespace {

// By the shape: toroid, rectangular, round.
std::optional<KeyCaption> meanTurnCaption(const Keys& keys, std::uint8_t mask) {
    constexpr std::array<std::string_view, 3> kOuter{"OD", "L", "dia"};
    constexpr std::array<std::string_view, 3> kInner{"ID", "W", " od wdg"};
    constexpr std::array<std::string_view, 3> kInnerAgain{"ID", "W", "ODw"};
    const auto shape = static_cast<std::size_t>(chosenRow(kLmuCore, keys.calc.units).value_or(0));
    switch (mask) {
        case kShift:
            return kOuter.at(shape);
        case kCtrl:
            return kInner.at(shape);
        case kShift + kCtrl:
            return kInnerAgain.at(shape);
        default:
            return std::nullopt;
    }
}

std::optional<KeyCaption> wireCaption(const Keys& keys, std::uint8_t mask) {
    return mask == 0 ? std::optional<KeyCaption>(wireBuildCaption(keys.electrical.choices.build)) : std::nullopt;
}

/// A function of the wire that is chosen.
template <auto Function, auto... which>
void ofWire(Keys& keys) {
    Function(keys.calc, keys.electrical.choices.build, which...);
}

}  // namespace

const KeypadTable kMagneticsKeypad{
    .id = Keypad::Magnetics,
    .name = "Magnetics",
    .rows = {{
        reciprocalRow(1830),
        squareRow(1801),
        squareRootRow(1802),
        piRow(1803, "sqrd", kPiTip),
        {.key = key::PowderLoss,
         .caption = "Pc",
         .tip = " MPP Core Loss: perm [Alt+Click] | Freq(KHz) [Ctrl+] | B(g) [Click] | Recalc. [Shift+key+] ",
         .under = {.shift = "B(g)", .ctrl = "F", .shiftCtrl = "F", .alt = {"µ"_t}, .shiftAlt = {"µ"_t}},
         .silentOperand = true,
         .helpTopic = 1804,
         .does = [](Keys& keys) { keys.electrical.cores.powderLoss(); }},
        {.key = key::InductanceByTurns,
         .caption = {"Ln²"_t},
         .tip = " L vs n² ({CoreLo}) - Click: Calculator | Shift+click: L{CoreL} | Ctrl+Click: n | Alt+Click: Lo "_t,
         .colour = KeyColour::Yellow,
         .under = {.shift = "L", .ctrl = "n", .alt = "Lo"},
         .helpTopic = 1805,
         .does = [](Keys& keys) { openCalculator(keys, kInductanceByTurns); }},
        {.key = key::InductanceByPermeability,
         .caption = {"Lµ"_t},
         .tip =
             " L vs µ - Click: Calculator | : Shift+Click: L({LmuL}) | Ctrl+click: n | Alt+Click: Ae({LmuAe}) | Ctrl+Alt+: le({LmuLe}) | Shift+Ctrl+Alt: µ "_t,
         .colour = KeyColour::Yellow,
         .under = {.shift = "L", .ctrl = "n", .alt = "Ae", .ctrlAlt = "le", .all = {"µ"_t}},
         .helpTopic = 1806,
         .does = [](Keys& keys) { openCalculator(keys, kInductanceByPermeability); }},
        {.key = key::FluxDensity,
         .caption = "Bm",
         .tip =
             " Flux Density ({MagB}) - Click: Calculator | Shift+Click: Bm |  Ctrl+Click: n | Alt+: Ae({MagAe}) | Ctrl+Alt+: F({MagWave}{MagF}) | Shift+Ctrl+Alt+: E "_t,
         .colour = KeyColour::Yellow,
         .under = {.shift = "Bm", .ctrl = "n", .alt = "Ae", .ctrlAlt = "F", .all = "E"},
         .helpTopic = 1807,
         .does = [](Keys& keys) { openCalculator(keys, kFluxDensity); }},
        {.key = key::VoltSecondTurns,
         .caption = {"Nø"_t},
         .tip = " Volt-Secs turns: Øt [Click] | n [Ctrl+] | V-S [Alt+] | Recalc [Shift+key+] "_t,
         .under = {.shift = {"Øt"_t}, .ctrl = "n", .shiftCtrl = "n", .alt = "V-S", .shiftAlt = "V-S"},
         .silentOperand = true,
         .helpTopic = 1808,
         .does = [](Keys& keys) { keys.electrical.flux.voltSecondTurns(); }},
        {.key = key::FluxCapacity,
         .caption = {"Øt"_t},
         .tip =
             " flux capacity: Øt [Click] | n [Ctrl+] | F(Hz) [Alt+] | E(v) [Ctrl+Alt+] | Recalc [Shift+key+Click] "_t,
         .under = {.shift = {"Øt"_t},
                   .ctrl = "n",
                   .shiftCtrl = "n",
                   .alt = "F",
                   .shiftAlt = "F",
                   .ctrlAlt = "E",
                   .all = "E"},
         .silentOperand = true,
         .helpTopic = 1809,
         .does = [](Keys& keys) { keys.electrical.flux.fluxCapacity(); }},
        {.key = key::FluxAndDensity,
         .caption = {"Ø-B"_t},
         .tip = " Øt<>Bm: Ae [^] | Øt [Click] | Bm [Shift+Click] "_t,
         .under = {.shift = {"Bm", on<fluxOfDensity>}},
         .helpTopic = 1810,
         .plain = on<densityOfFlux>},
        {.key = key::Quality,
         .caption = "Q",
         .tip =
             " Calc Q (Rt Click for µ & cd): Freq({CoreQF}) [Click] | Rdc [Ctrl+] | Ind ({CoreQL}) [Alt+] | Flux Density (Bm) [Alt+Ctrl+] | Recalc. [Shift+key+] "_t,
         .colour = KeyColour::Blue,
         .under = {.shift = "F",
                   .ctrl = "Rdc",
                   .shiftCtrl = "Rdc",
                   .alt = "L",
                   .shiftAlt = "L",
                   .ctrlAlt = "Bm",
                   .all = "Bm"},
         .silentOperand = true,
         .helpTopic = 1811,
         .does = [](Keys& keys) { keys.electrical.coils.quality(); },
         .choose =
             [](Keys& keys) {
                 ElectricalChoices& choices = keys.electrical.choices;
                 ParameterDialog(keys.calc, kQTable,
                                 {.row = &choices.coilPermeability,
                                  .number = &choices.distributedPicofarads,
                                  .saveUnits = keys.saveUnits})
                     .ask();
             }},
        {.key = key::MeanTurn,
         .caption = "mtl",
         .tip = "{LmuCoreTip}",
         .colour = KeyColour::Blue,
         .under = {.shift = "OD", .ctrl = "ID", .shiftCtrl = "ID", .alt = "Ht", .shiftAlt = "Ht"},
         .silentOperand = true,
         .helpTopic = 1812,
         .does = [](Keys& keys) { keys.electrical.coils.meanTurn(); },
         .choose = [](Keys& keys) { ParameterDialog(keys.calc, kMTLTable, {.saveUnits = keys.saveUnits}).ask(); },
         .captionNow = meanTurnCaption},
        {.key = key::Solenoid,
         .caption = "Ls",
         .tip =
             " Inductance of a single-layer air-core solenoid, in {MagLen}: length [Ctrl+Alt+Click] | radius [Alt+Click] | n [Ctrl+Click] | Ls(µH) [Click] | recalc. [Shift+key+Click] "_t,
         .colour = KeyColour::Blue,
         .under = {.shift = {"L(µ)"_t},
                   .ctrl = "n",
                   .shiftCtrl = "n",
                   .alt = "r",
                   .shiftAlt = "r",
                   .ctrlAlt = "len",
                   .all = "len"},
         .silentOperand = true,
         .helpTopic = 1813,
         .does = [](Keys& keys) { keys.electrical.coils.solenoid(); },
         .choose = [](Keys& keys) { ParameterDialog(keys.calc, kLsTable, {.saveUnits = keys.saveUnits}).ask(); }},
        {.key = key::WireResistance,
         .caption = {"W", Face::Symbol},
         .tip = "AWG[^]: Ohms/ft, Click | Ohms/in, Shift+ | Ohms/m, Ctrl+ | Ohms/cm, Alt+ | Ohms/mm, Sh+Ctrl | "
                "Ohms/1000 ft, Sh+Alt | Ohms/lb, Alt+Ctrl | g/Ohm, Sh+Alt+Ctrl",
         .under = {.shift = {"ohm /in", on<wireResistance, WireLength::Inch>},
                   .ctrl = {"ohm /m", on<wireResistance, WireLength::Metre>},
                   .shiftCtrl = {"ohm /mm", on<wireResistance, WireLength::Millimetre>},
                   .alt = {"ohm /cm", on<wireResistance, WireLength::Centimetre>},
                   .shiftAlt = {"om/ 1000'", on<wireResistance, WireLength::ThousandFeet>},
                   .ctrlAlt = {"ohm /lb", on<resistancePerPound>},
                   .all = {" g/ ohm", on<gramsPerOhm>}},
         .helpTopic = 1814,
         .plain = on<wireResistance, WireLength::Foot>},
        {.key = key::WireSize,
         .caption = " S \nAWG",
         .tip = "CMAi to AWG: Click | AWG to: CMAi, Shift+ | to CMAb, Ctrl+ | to lbs/ft, Sh+Ctrl | to Dia(in), Alt | "
                "to Dia(mm), Alt+Ctrl | Dia(in) to AWG: Sh+Alt | Dia(mm) to AWG: Sh+Alt+Ctrl",
         .colour = KeyColour::Blue,
         .under = {.shift = {"awg: cmi", ofWire<gaugeToArea>},
                   .ctrl = {"bare", on<gaugeToBareArea>},
                   .shiftCtrl = {"lbs /ft", on<gaugeToWeight>},
                   .alt = {"awg: dia\"", ofWire<gaugeToInches>},
                   .shiftAlt = {"dia\": awg", ofWire<inchesToGauge>},
                   .ctrlAlt = {"awg: mm", ofWire<gaugeToMillimetres>},
                   .all = {"mm: awg", ofWire<millimetresToGauge>}},
         .helpTopic = 1815,
         .choose = [](Keys& keys) { askWireBuild(keys.calc, keys.electrical.choices.build); },
         .captionNow = wireCaption,
         .plain = ofWire<areaToGauge>},
        {.key = key::CCore,
         .caption = "'C'",
         .tip = " C Core Calculator ({CoreDimension}): D [Shift+Click] | E [Ctrl+Click] | F [Alt+Click] | G "
                "[Ctrl+Alt+Click] ",
         .colour = KeyColour::Yellow,
         .under = {.shift = "D", .ctrl = "E", .alt = "F", .ctrlAlt = "G"},
         .helpTopic = 1816,
         .does = [](Keys& keys) { openCalculator(keys, kCCore); }},
        {.key = key::PermeabilityAtFlux,
         .caption = {"Bµ"_t},
         .tip =
             " MPP Effective permeability vs AC flux: µ [Alt+Click], B(g) [Click] | Recalc [Shift+] // Lf: Ae [^], le [/]  n [Ctrl+Click] | Recalc, n [Shift+Ctrl] "_t,
         .under = {.shift = "B(g)", .ctrl = "n", .shiftCtrl = "n", .alt = {"µ"_t}, .shiftAlt = {"µ"_t}},
         .silentOperand = true,
         .helpTopic = 1817,
         .does = [](Keys& keys) { keys.electrical.cores.permeabilityAtFlux(); }},
        {.key = key::PermeabilityByLo,
         .caption = {"µe"_t},
         .tip =
             " Permeability vs Lo: lo [Click], | le [ctrl+Click] | Ae [Alt+] | µe [Ctrl+Alt+] | Recalc. [Shift+key+] "_t,
         .under = {.shift = "lo",
                   .ctrl = "le",
                   .shiftCtrl = "le",
                   .alt = "Ae",
                   .shiftAlt = "Ae",
                   .ctrlAlt = {"µe"_t},
                   .all = {"µe"_t}},
         .silentOperand = true,
         .helpTopic = 1818,
         .does = [](Keys& keys) { keys.electrical.cores.permeabilityByLo(); }},
        {.key = key::Bundle,
         .caption = "dia",
         .tip = " # of wires [^], Wire dia [Click] | magnet wire AWG [Shift+] | Insulated (PTFE) AWG [Ctrl+ ] ",
         .under = {.shift = {"awg mag", ofWire<bundleDiameter, Strand::MagnetGauge>},
                   .ctrl = {" awg Ins", ofWire<bundleDiameter, Strand::InsulatedGauge>},
                   .alt = {"scr #", ofWire<bundleDiameter, Strand::ScrewSize>}},
         .helpTopic = 1819,
         .plain = ofWire<bundleDiameter, Strand::Diameter>},
        {.key = key::HalfWaves,
         .caption = "v-s",
         .tip = "SINE: F(Hz) [^], E to V-S [Click] |  F [^], V-S to E [Shift+] | V-S [^], E to F [Alt+] // SQR: F [^], "
                "E to V-S [Ctrl+] | F [^], V-S to E [Shift+Ctrl+] | V-S [^], E to F [Alt+Ctrl+] ",
         .under = {.shift = {"vs: Esat", on<halfWave, HalfWave::SineVolts>},
                   .ctrl = {"Esat :vs", on<halfWave, HalfWave::SquareVoltSeconds>},
                   .shiftCtrl = {"vs: Esat", on<halfWave, HalfWave::SquareVolts>},
                   .alt = {"Esat :F", on<halfWave, HalfWave::SineHertz>},
                   .ctrlAlt = {"Esat :F", on<halfWave, HalfWave::SquareHertz>}},
         .helpTopic = 1820,
         .plain = on<halfWave, HalfWave::SineVoltSeconds>},
        {.key = key::PermeabilityUnderField,
         .caption = {"Hµ"_t},
         .tip = " MPP Effective permeability vs DC bias: perm [Ctrl+Click] | H [Click] | Recalc [Shift+key+] ",
         .under = {.shift = "H", .ctrl = {"µ"_t}, .shiftCtrl = "prm"},
         .silentOperand = true,
         .helpTopic = 1821,
         .does = [](Keys& keys) { keys.electrical.cores.permeabilityUnderField(); }},
        {.key = key::MagnetizingForce,
         .caption = "H",
         .tip = " Magnetizing Force ({MagH}) - Click: Calculator  | Shift+Click: H | Ctrl+Click: n | Alt+Click: "
                "I({MagI}) | Ctrl+Alt+Click: le({MagLe})",
         .colour = KeyColour::Yellow,
         .under = {.shift = "H", .ctrl = "n", .alt = "I", .ctrlAlt = "le"},
         .helpTopic = 1822,
         .does = [](Keys& keys) { openCalculator(keys, kMagnetizingForce); }},
        {.key = key::FerriteLoss,
         .caption = "PL",
         .tip = " Ferrite Core Loss (Ctrl+Rt-Click to Input Matl): Freq (KHz) [Ctrl+Click] | Flux Density, B(g) "
                "[Click] | Recalc [Shift+key+Click] ",
         .colour = KeyColour::Blue,
         .under = {.shift = "B(g)", .ctrl = "F", .shiftCtrl = "F"},
         .silentOperand = true,
         .helpTopic = 1823,
         .does = [](Keys& keys) { keys.electrical.cores.ferriteLoss(); },
         .choose =
             [](Keys& keys) { ParameterDialog(keys.calc, kPLTable, {.row = &keys.electrical.choices.ferrite}).ask(); }},
    }},
};

}  // namespace tallyforge
