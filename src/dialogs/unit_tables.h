// SPDX-License-Identifier: GPL-3.0-or-later
//
// The units that a user can choose, a table a quantity. Each choice is one bit of a units word; a
// quantity owns a range of neighbouring bits, its rows in their order. Dialogs make their option
// keys of these rows, calculations take their factors from them, and the tool tips of the keys name
// a range in braces: "F({LcF})" reads "F(KHz)". A range whose labels are whole texts with ranges in
// braces chooses between tips. Reading and changing the words: unit_choice.h.
#pragma once

#include "engine/unit_words.h"
#include "platform/text.h"

#include <array>
#include <span>
#include <string_view>

namespace tallyforge {

/// One unit of a quantity.
struct UnitRow {
    std::string_view caption;  ///< of its option key
    std::string_view label;    ///< behind a field and on the tape
    double scale = 1.0;        ///< size of one in the quantity's base unit
    std::string_view inTip{};  ///< in tool tips, where that is not the label
};

struct UnitRange {
    std::string_view name;  ///< in the tool tips of keys
    UnitsWord word = nullptr;
    int firstBit = 0;
    std::span<const UnitRow> rows;
    UnitRow none{};  ///< where no bit of the range is set
};

namespace unit_rows {

// Areas and lengths of cores, in centimetres. The square inch of these keys has fourteen digits.
inline constexpr std::array<UnitRow, 4> kFluxArea{{{"Sq. centimeters (cm²)"_t, "cm²"_t, 1.0},
                                                   {"Sq. millimeters (mm²)"_t, "mm²"_t, 1.0 / 100.0},
                                                   {"Sq. meters (m²)"_t, "m²"_t, 1.0 / 0.0001},
                                                   {"Sq. inches (in²)"_t, "in²"_t, 1.0 / 0.15500031000062}}};
inline constexpr std::array<UnitRow, 4> kCoreArea{{{"Sq. centimeters (cm²)"_t, "cm²"_t, 1.0},
                                                   {"Sq. millimeters (mm²)"_t, "mm²"_t, 0.01},
                                                   {"Sq. meters (m²)"_t, "m²"_t, 1.0 / 0.0001},
                                                   {"Sq. inches (in²)"_t, "in²"_t, 2.54 * 2.54}}};
inline constexpr std::array<UnitRow, 4> kPath{{{"Centimeters (cm)", "cm", 1.0},
                                               {"Millimeters (mm)", "mm", 0.1},
                                               {"Meters (m)", "m", 100.0},
                                               {"Inches (in)", "in", 2.54}}};
// Magnetizing force in ampere-turns per centimetre; an oersted is 1000 / (4 pi) of them per metre.
inline constexpr std::array<UnitRow, 5> kForce{{{"Oersteds (Oe)", "Oe", 1.0 / 1.2566370614359161},
                                                {"Amp-turns/cm (A·T/cm)"_t, "A·T/cm"_t, 1.0},
                                                {"Amp-turns/mm (A·T/mm)"_t, "A·T/mm"_t, 10.0},
                                                {"Amp-turns/meter (A·T/m)"_t, "A·T/m"_t, 0.01},
                                                {"Amp-turns/inch (A·T/in)"_t, "A·T/in"_t, 1.0 / 2.54}}};
inline constexpr std::array<UnitRow, 2> kBias{{{"Amperes (Amps)", "Amps", 1.0}, {"Milliamperes (mA)", "mA", 0.001}}};
// Flux density in gausses; a line per square inch is 0.155 of one.
inline constexpr std::array<UnitRow, 4> kFlux{{{"Gausses (g)", "g", 1.0},
                                               {"Teslas (T)", "T", 10000.0},
                                               {"Milliteslas (mT)", "mT", 10.0},
                                               {"Lines/sq. inch (L/in²)"_t, "L/in²"_t, 0.155}}};
inline constexpr std::array<UnitRow, 2> kMainsFrequency{
    {{"Hertz (Hz)", "Hz", 1.0}, {"Kilohertz (KHz)", "KHz", 1000.0}}};
/// Volts per volt-second: the form factor of the wave, times 4 / pi times pi / 4.
inline constexpr std::array<UnitRow, 2> kWave{{{"Sine Wave", "", 4.44}, {"Square Wave", "-SQR", 4.0}}};
/// Lengths of a solenoid: how many make an inch.
inline constexpr std::array<UnitRow, 4> kSolenoid{{{"Inches (inches)", "inches", 1.0},
                                                   {"Millimeters (mm)", "mm", 1.0 / 25.4},
                                                   {"Centimeters (cm)", "cm", 1.0 / 2.54},
                                                   {"Meters (meters)", "meters", 1.0 / 0.0254}}};
inline constexpr std::array<UnitRow, 4> kPlainFrequency{{{"Hertz (Hz)", "Hz", 1.0},
                                                         {"Kilohertz (kHz)", "kHz", 1e3},
                                                         {"Megahertz (MHz)", "MHz", 1e6},
                                                         {"Gigahertz (GHz)", "GHz", 1e9}}};
inline constexpr std::array<UnitRow, 4> kFrequency{{{"Hertz (Hz)", "Hz", 1.0},
                                                    {"Kilohertz (KHz)", "KHz", 1e3},
                                                    {"Megahertz (MHz)", "MHz", 1e6},
                                                    {"Gigahertz (GHz)", "GHz", 1e9}}};
inline constexpr std::array<UnitRow, 4> kInductance{{{"Henries (Hy)", "Hy", 1.0},
                                                     {"Millihenries (mH)", "mH", 0.001},
                                                     {"Microhenries (µH)"_t, "µH"_t, 0.000001},
                                                     {"Nanohenries (nH)", "nH", 1e-9}}};
inline constexpr std::array<UnitRow, 5> kCapacitance{{{"Farads (Fd)", "Fd", 1.0},
                                                      {"Millifarads (mF)", "mF", 0.001},
                                                      {"Microfarads (µF)"_t, "µF"_t, 0.000001},
                                                      {"Nanofarads (nF)", "nF", 1e-9},
                                                      {"Picofarads (pF)", "pF", 1e-12}}};
inline constexpr std::array<UnitRow, 4> kReactance{{{"milliOhms", "mOhms", 0.001},
                                                    {"Ohms", "Ohms", 1.0},
                                                    {"KiloOhms", "KOhms", 1000.0},
                                                    {"MegaOhms", "MOhms", 1000000.0}}};
inline constexpr std::array<UnitRow, 4> kResistance{{{"milliOhms", "mOhms", 0.001},
                                                     {"Ohms", "Ohms", 1.0},
                                                     {"kiloOhms", "kOhms", 1000.0},
                                                     {"MegaOhms", "MOhms", 1000000.0}}};
inline constexpr std::array<UnitRow, 4> kPower{{{"Milliwatts (mW)", "mW", 0.001},
                                                {"Watts (W)", "W", 1.0},
                                                {"Kilowatts (kW)", "kW", 1000.0},
                                                {"Megawatts (MW)", "MW", 1000000.0}}};
inline constexpr std::array<UnitRow, 3> kCurrent{
    {{"Microamperes (µA)"_t, "µA"_t, 0.000001}, {"Milliamperes (mA)", "mA", 0.001}, {"Amperes (A)", "A", 1.0}}};
inline constexpr std::array<UnitRow, 4> kVoltage{{{"Microvolts (µV)"_t, "µV"_t, 0.000001},
                                                  {"Millivolts (mV)", "mV", 0.001},
                                                  {"Volts (V)", "V", 1.0},
                                                  {"Kilovolts (kV)", "kV", 1000.0}}};
// Wire of a given resistivity, in metres.
inline constexpr std::array<UnitRow, 4> kWireArea{{{"Sq. meters (m²)"_t, "m²"_t, 1.0},
                                                   {"Sq. inches (in²)"_t, "in²"_t, 0.0254 * 0.0254},
                                                   {"Sq. centimeters (cm²)"_t, "cm²"_t, 1e-4},
                                                   {"Sq. millimeters (mm²)"_t, "mm²"_t, 1e-6}}};
inline constexpr std::array<UnitRow, 4> kWireLength{{{"Meters (m)", "m", 1.0},
                                                     {"Inches (in)", "in", 0.0254},
                                                     {"Centimeters (cm)", "cm", 0.01},
                                                     {"Millimeters (mm)", "mm", 0.001}}};
// Surfaces that heat leaves by, in centimetres.
inline constexpr std::array<UnitRow, 2> kSurface{
    {{"Sq. millimeters (mm²)"_t, "mm²"_t, 0.01}, {"Sq. centimeters (cm²)"_t, "cm²"_t, 1.0}}};
inline constexpr std::array<UnitRow, 2> kSurfaceLength{
    {{"Millimeters (mm)", "mm", 0.1}, {"Centimeters (cm)", "cm", 1.0}}};
inline constexpr std::array<UnitRow, 2> kShape{{{"Cylinder", "Cyl"}, {"Block", "Blk"}}};
inline constexpr std::array<UnitRow, 2> kShapeTip{
    {{"", " Cylinder; Dia [Alt+]"}, {"", " Block; Length [Alt+], Width [ctrl+Alt+]"}}};
inline constexpr std::array<UnitRow, 2> kTemperature{
    {{"Celsius (°C)"_t, "°C"_t, 1.0}, {"Fahrenheit (°F)"_t, "°F"_t, 5.0 / 9.0}}};
inline constexpr std::array<UnitRow, 3> kTurnCore{{{"Toroid", "Toroid"}, {"Rectangular", "Rect."}, {"Round", "Round"}}};
inline constexpr std::array<UnitRow, 3> kTurnTip{
    {{"",
      " Toroid ({LmuTurn}): OD ({LmuTurn}) [Click] | ID ({LmuTurn}) [Ctrl+] | HT ({LmuTurn}) [Alt+] | Recalc. "
      "[Shift+key+Click] "},
     {"",
      " Rect. ({LmuTurn}): Length ({LmuTurn}) [Click] | Width ({LmuTurn})[Ctrl+] | Wdg. Ht. ({LmuTurn}) [Alt+] | "
      "Recalc. [Shift+key+Click] "},
     {"",
      " Round ({LmuTurn}): Start Dia. ({LmuTurn}) [Click] | Wdg. Dia. ({LmuTurn}) [Ctrl+] | Recalc. "
      "[Shift+key+Click] "}}};
/// Dimensions of a winding: their size in inches.
inline constexpr std::array<UnitRow, 3> kTurn{
    {{"Millimeters (mm)", "mm", 1.0 / 25.4}, {"Centimeters (cm)", "cm", 1.0 / 2.54}, {"Inches (in)", "in", 1.0}}};
inline constexpr std::array<UnitRow, 1> kFeet{{{"Feet (ft)", "ft", 12.0}}};
// C cores, in inches, circular mils, feet of a turn and pounds.
inline constexpr std::array<UnitRow, 4> kDimension{{{"Millimeters (mm)", "mm", 1.0 / 25.4},
                                                    {"Centimeters (cm)", "cm", 1.0 / 2.54},
                                                    {"Inches (in)", "in", 1.0},
                                                    {"Meters (m)", "m", 1.0 / 0.0254}}};
/// The squares of those, named as the core's area is on the tape.
inline constexpr std::array<UnitRow, 4> kDimensionArea{{{"", "Ae(mm²)"_t, 1.0 / (25.4 * 25.4)},
                                                        {"", "Ae(cm²)"_t, 1.0 / (2.54 * 2.54)},
                                                        {"", "Ae(in²)"_t, 1.0},
                                                        {"", "Ae(m²)"_t, 1.0 / (0.0254 * 0.0254)}}};
inline constexpr std::array<UnitRow, 3> kMeanTurn{
    {{"Centimeters (cm)", "cm", 1.0 / 30.48}, {"Inches (in)", "in", 1.0 / 12.0}, {"Feet (ft)", "ft", 1.0}}};
inline constexpr std::array<UnitRow, 5> kWindow{{{"Circular mils (CM)", "CM", 1.0},
                                                 {"Sq. millimeters (mm²)"_t, "mm²"_t, 1.0 / 0.00050670747},
                                                 {"Sq. centimeters (cm²)"_t, "cm²"_t, 1.0 / 0.0000050670747},
                                                 {"Sq. inches (in²)"_t, "in²"_t, 1.0 / 0.0000007853982},
                                                 {"Sq. meters (m²)"_t, "m²"_t, 1.0 / 0.00000000050670745}}};
inline constexpr std::array<UnitRow, 2> kWeight{
    {{"Pounds (lb)", "lb", 1.0}, {"Kilograms (kg)", "kg", 1.0 / 0.45359237}}};
/// Inductance a turn squared, in henries.
inline constexpr std::array<UnitRow, 3> kTurnInductance{{{"Nanohenries/turn (nH/T)", "nH/T", 1e-9, "nH/t"},
                                                         {"Microhenries/100 turns (µH/100)"_t, "µH/100"_t, 1e-10},
                                                         {"Millihenries/1000 turns (mH/1000)", "mH/1000", 1e-9}}};

}  // namespace unit_rows

// Ranges of the five words. Two ranges over the same bits are two texts of one choice.
inline constexpr UnitRange kMagH{"MagH", &UnitWords::UnitsWordMag, 0, unit_rows::kForce};
inline constexpr UnitRange kMagLe{"MagLe", &UnitWords::UnitsWordMag, 5, unit_rows::kPath};
inline constexpr UnitRange kMagI{"MagI", &UnitWords::UnitsWordMag, 9, unit_rows::kBias};
inline constexpr UnitRange kMagB{"MagB", &UnitWords::UnitsWordMag, 11, unit_rows::kFlux};
inline constexpr UnitRange kMagAe{"MagAe", &UnitWords::UnitsWordMag, 15, unit_rows::kFluxArea};
inline constexpr UnitRange kMagF{"MagF", &UnitWords::UnitsWordMag, 19, unit_rows::kMainsFrequency};
inline constexpr UnitRange kMagWave{"MagWave", &UnitWords::UnitsWordMag, 21, unit_rows::kWave};
inline constexpr UnitRange kMagLen{"MagLen", &UnitWords::UnitsWordMag, 23, unit_rows::kSolenoid};
/// Kept in the word; no key reads it.
inline constexpr UnitRange kMagPlainF{"MagPlainF", &UnitWords::UnitsWordMag, 27, unit_rows::kPlainFrequency};

inline constexpr UnitRange kLmuAe{"LmuAe", &UnitWords::UnitsWordLmu, 0, unit_rows::kCoreArea};
inline constexpr UnitRange kLmuLe{"LmuLe", &UnitWords::UnitsWordLmu, 4, unit_rows::kPath};
inline constexpr UnitRange kLmuL{"LmuL", &UnitWords::UnitsWordLmu, 8, std::span(unit_rows::kInductance).first(3)};
inline constexpr UnitRange kLmuSurface{
    "LmuSurface", &UnitWords::UnitsWordLmu, 18, unit_rows::kSurface, {"Sq. inches (in²)"_t, "in²"_t, 2.54 * 2.54}};
inline constexpr UnitRange kLmuSurfaceLength{
    "LmuSurfaceLength", &UnitWords::UnitsWordLmu, 18, unit_rows::kSurfaceLength, {"Inches (in)", "in", 2.54}};
inline constexpr UnitRange kLmuShape{"LmuShape", &UnitWords::UnitsWordLmu, 20, unit_rows::kShape};
inline constexpr UnitRange kLmuShapeTip{"LmuShapeTip", &UnitWords::UnitsWordLmu, 20, unit_rows::kShapeTip};
inline constexpr UnitRange kLmuTemperature{"LmuTemperature", &UnitWords::UnitsWordLmu, 22, unit_rows::kTemperature};
inline constexpr UnitRange kLmuCore{"LmuCore", &UnitWords::UnitsWordLmu, 24, unit_rows::kTurnCore};
inline constexpr UnitRange kLmuCoreTip{"LmuCoreTip", &UnitWords::UnitsWordLmu, 24, unit_rows::kTurnTip};
inline constexpr UnitRange kLmuTurn{"LmuTurn", &UnitWords::UnitsWordLmu, 27, unit_rows::kTurn};
/// The mean turn is shown in feet whatever its dimensions are given in.
inline constexpr UnitRange kLmuFeet{"LmuFeet", &UnitWords::UnitsWordLmu, 30, unit_rows::kFeet};

inline constexpr UnitRange kLcX{"LcX", &UnitWords::UnitsWordLc, 0, unit_rows::kReactance};
inline constexpr UnitRange kLcC{"LcC", &UnitWords::UnitsWordLc, 4, unit_rows::kCapacitance};
inline constexpr UnitRange kLcL{"LcL", &UnitWords::UnitsWordLc, 9, std::span(unit_rows::kInductance).first(3)};
inline constexpr UnitRange kLcF{"LcF", &UnitWords::UnitsWordLc, 12, unit_rows::kFrequency};

inline constexpr UnitRange kOhmArea{"OhmArea", &UnitWords::UnitsWordOhm, 0, unit_rows::kWireArea};
inline constexpr UnitRange kOhmLength{"OhmLength", &UnitWords::UnitsWordOhm, 0, unit_rows::kWireLength};
inline constexpr UnitRange kOhmC{"OhmC", &UnitWords::UnitsWordOhm, 6, unit_rows::kCapacitance};
inline constexpr UnitRange kOhmF{"OhmF", &UnitWords::UnitsWordOhm, 11, unit_rows::kFrequency};
inline constexpr UnitRange kOhmP{"OhmP", &UnitWords::UnitsWordOhm, 16, unit_rows::kPower};
inline constexpr UnitRange kOhmI{"OhmI", &UnitWords::UnitsWordOhm, 20, unit_rows::kCurrent};
inline constexpr UnitRange kOhmE{"OhmE", &UnitWords::UnitsWordOhm, 23, unit_rows::kVoltage};
inline constexpr UnitRange kOhmR{"OhmR", &UnitWords::UnitsWordOhm, 27, unit_rows::kResistance};

inline constexpr UnitRange kCoreDimension{"CoreDimension", &UnitWords::UnitsWordCore, 0, unit_rows::kDimension};
inline constexpr UnitRange kCoreTurn{"CoreTurn", &UnitWords::UnitsWordCore, 4, unit_rows::kMeanTurn};
inline constexpr UnitRange kCorePath{"CorePath", &UnitWords::UnitsWordCore, 7, unit_rows::kDimension};
inline constexpr UnitRange kCorePathArea{"CorePathArea", &UnitWords::UnitsWordCore, 7, unit_rows::kDimensionArea};
inline constexpr UnitRange kCoreWindow{"CoreWindow", &UnitWords::UnitsWordCore, 11, unit_rows::kWindow};
inline constexpr UnitRange kCoreWeight{"CoreWeight", &UnitWords::UnitsWordCore, 16, unit_rows::kWeight};
inline constexpr UnitRange kCoreL{"CoreL", &UnitWords::UnitsWordCore, 18, unit_rows::kInductance};
inline constexpr UnitRange kCoreLo{"CoreLo", &UnitWords::UnitsWordCore, 22, unit_rows::kTurnInductance};
inline constexpr UnitRange kCoreQF{"CoreQF", &UnitWords::UnitsWordCore, 25, std::span(unit_rows::kFrequency).first(3)};
inline constexpr UnitRange kCoreQL{"CoreQL", &UnitWords::UnitsWordCore, 28, std::span(unit_rows::kInductance).first(3)};

inline constexpr std::array<const UnitRange*, 43> kUnitRanges{&kMagH,
                                                              &kMagLe,
                                                              &kMagI,
                                                              &kMagB,
                                                              &kMagAe,
                                                              &kMagF,
                                                              &kMagWave,
                                                              &kMagLen,
                                                              &kMagPlainF,
                                                              &kLmuAe,
                                                              &kLmuLe,
                                                              &kLmuL,
                                                              &kLmuSurface,
                                                              &kLmuSurfaceLength,
                                                              &kLmuShape,
                                                              &kLmuShapeTip,
                                                              &kLmuTemperature,
                                                              &kLmuCore,
                                                              &kLmuCoreTip,
                                                              &kLmuTurn,
                                                              &kLmuFeet,
                                                              &kLcX,
                                                              &kLcC,
                                                              &kLcL,
                                                              &kLcF,
                                                              &kOhmArea,
                                                              &kOhmLength,
                                                              &kOhmC,
                                                              &kOhmF,
                                                              &kOhmP,
                                                              &kOhmI,
                                                              &kOhmE,
                                                              &kOhmR,
                                                              &kCoreDimension,
                                                              &kCoreTurn,
                                                              &kCorePath,
                                                              &kCorePathArea,
                                                              &kCoreWindow,
                                                              &kCoreWeight,
                                                              &kCoreL,
                                                              &kCoreLo,
                                                              &kCoreQF,
                                                              &kCoreQL};

}  // namespace tallyforge
