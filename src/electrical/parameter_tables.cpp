// SPDX-License-Identifier: GPL-3.0-or-later
#include "electrical/parameter_tables.h"

#include "dialogs/unit_choice.h"
#include "electrical/coils.h"
#include "electrical/core_loss.h"
#include "electrical/resistors.h"
#include "numbers/number_format.h"
#include "platform/text.h"

#include <cmath>
#include <initializer_list>

namespace tallyforge {

namespace {

std::string number(double value, const ParameterChoice& choice) {
    return plainText(value, choice.decimal);
}

std::string joined(std::initializer_list<std::string_view> parts) {
    std::string text;
    for (const std::string_view part : parts) {
        text += part;
    }
    return text;
}

std::string supplyFormula(const ParameterChoice& choice) {
    const UnitRow& farads = chosenUnit(kOhmC, choice.units);
    const UnitRow& hertz = chosenUnit(kOhmF, choice.units);
    return joined({"C = Idc·Vdc / ((2·Vac² - Vdc²)·F)\n"_t, "C in ", farads.label, " (", number(farads.scale, choice),
                   " Fd), F in ", hertz.label, " (", number(hertz.scale, choice), " Hz)"});
}

std::string resistivityFormula(const ParameterChoice& choice) {
    const auto row = static_cast<std::size_t>(chosenRow(kOhmLength, choice.units).value_or(0));
    return joined({"R = k·rho·L / A, rho in µohm·cm\n"_t, "L in ", chosenUnit(kOhmLength, choice.units).label,
                   ", A in ", chosenUnit(kOhmArea, choice.units).label,
                   ", k = ", formatScientific(kResistivityFactors.at(row), 3, choice.decimal)});
}

std::string temperatureFormula(const ParameterChoice& choice) {
    const bool block = chosenRow(kLmuShape, choice.units) == 1;
    const bool fahrenheit = chosenRow(kLmuTemperature, choice.units) == 1;
    return joined({block ? "A = 2·((Ht + W)·L + Ht·W)"_t : "A = pi·Dia·(Dia/2 + Ht)"_t, " (",
                   chosenUnit(kLmuSurface, choice.units).label, ")\n",
                   fahrenheit ? "T = 100·(P/A)^0.83·9/5 + 32 (°F)"_t : "T = 100·(P/A)^0.83 (°C)"_t,
                   ", P in W, A in in²"_t});
}

std::string qualityFormula(const ParameterChoice& choice) {
    std::string text =
        joined({"Q = w·L / (Rc + Rdc + Rw), w = 2·pi·F\n"_t, "Rw = w³·a·L²·Cd, "_t, "Rc = (c·Bm + d + b·F)·µ·L·F\n"_t});
    if (!choice.row) {
        return text + std::string("a, b, c, d by the permeability µ"_t);
    }
    const LossFactors& f = coilLossFactors(*choice.row);
    return text + joined({"µ = "_t, std::to_string(kCoilPermeabilities.at(*choice.row)), ": a = ", number(f.a, choice),
                          ", b = ", number(f.b, choice), ", c = ", number(f.c, choice), ", d = ", number(f.d, choice),
                          ", Cd = ", number(choice.number, choice), " pF"});
}

std::string meanTurnFormula(const ParameterChoice& choice) {
    const bool feet = chosenRow(kLmuFeet, choice.units).has_value();
    const auto shape = static_cast<TurnShape>(chosenRow(kLmuCore, choice.units).value_or(0));
    const std::string_view formula = shape == TurnShape::Rectangular ? "mtl = 2·Length + 2·Width + pi·HT"_t
                                     : shape == TurnShape::Round
                                         ? "mtl = pi·(OD + ODw) / 2"_t
                                         : "mtl = 12·(0.0902 - 0.00214·r)·s, r = HT/ID above 1.2\n"
                                           "mtl = 12·(0.1038 - 0.0151·r)·s else, s = 2·HT + OD - ID"_t;
    return joined({formula, "\nunit: ", chosenUnit(kLmuTurn, choice.units).label, feet ? ", shown in ft" : ""});
}

std::string solenoidFormula(const ParameterChoice& choice) {
    const UnitRow& unit = chosenUnit(kMagLen, choice.units);
    return joined({"L(µH) = (r·n)² / ((10·len + 9·r)·d)\n"_t, "d = ", number(1.0 / unit.scale, choice), " (",
                   unit.label, " an inch)"});
}

std::string ferriteFormula(const ParameterChoice& choice) {
    std::string text = joined({"PL = a·F^c·B^d (mW/cm³), "_t, "F in kHz, B in kg"});
    if (!choice.row) {
        return text + "\na, c, d by material and frequency";
    }
    for (const FrequencyRange& range : ferriteCurves(*choice.row)) {
        text += joined({"\n", std::isfinite(range.end) ? (range.endBelongs ? "to " : "below ") : "above: ",
                        std::isfinite(range.end) ? number(range.end, choice) + " kHz: " : "",
                        "a = ", number(range.curve.a, choice), ", c = ", number(range.curve.c, choice),
                        ", d = ", number(range.curve.d, choice)});
    }
    return text;
}

constexpr ParameterGroup kSupplyGroups[] = {{.options = "OptCap", .frame = "Capacitance", .range = &kOhmC},
                                            {.options = "OptFreq", .frame = "Frequency", .range = &kOhmF}};
constexpr ParameterGroup kResistivityGroups[] = {{.options = "optRho", .frame = "Units for rho", .range = &kOhmLength}};
constexpr ParameterGroup kTempRiseGroups[] = {
    {.options = "OptShape", .frame = "Shape", .range = &kLmuShape},
    {.options = "OptLen", .frame = "Dimensions", .range = &kLmuSurfaceLength},
    {.options = "OptTemp", .frame = "Temperature", .range = &kLmuTemperature}};
constexpr std::array<std::string_view, kCoilPermeabilities.size()> kPermeabilityCaptions{
    "550", "300", "200", "173", "160", "147", "14", "26", "60", "125"};
constexpr ParameterGroup kQGroups[] = {
    {.options = "OptFreq", .frame = "Frequency", .range = &kCoreQF},
    {.options = "OptL", .frame = "Inductance", .range = &kCoreQL},
    {.options = "OptPerm", .frame = "Permeability", .captions = kPermeabilityCaptions}};
constexpr ParameterGroup kMTLGroups[] = {{.options = "OptShape", .frame = "Core", .range = &kLmuCore},
                                         {.options = "OptLen", .frame = "Dimensions", .range = &kLmuTurn}};
constexpr ParameterGroup kLsGroups[] = {{.options = "OptLen", .frame = "Length", .range = &kMagLen}};
constexpr ParameterGroup kPLGroups[] = {{.options = "OptMatl", .frame = "Material", .captions = kFerriteMaterials}};
constexpr std::array<std::string_view, 4> kBuilds{"Single", "Heavy", "Triple", "Quad"};
constexpr ParameterGroup kAWGGroups[] = {{.options = "optAWG", .frame = "Insulation", .captions = kBuilds}};

}  // namespace

const ParameterTable kPwrSupCapTable{.form = "frmPwrSupCap",
                                     .title = "Select Units for Power Supply Capacitor",
                                     .helpTopic = 1325,
                                     .groups = kSupplyGroups,
                                     .formula = supplyFormula};
const ParameterTable kResistivityTable{.form = "frmResistivity",
                                       .title = "Resistivity (rho)",
                                       .helpTopic = 1120,
                                       .groups = kResistivityGroups,
                                       .formula = resistivityFormula,
                                       .hasValues = true};
const ParameterTable kTempRiseTable{.form = "frmTempRise",
                                    .title = "Select Units for Surface Area & Delta T",
                                    .helpTopic = 1280,
                                    .groups = kTempRiseGroups,
                                    .formula = temperatureFormula};
const ParameterTable kQTable{.form = "frmQ",
                             .title = "Select Permeability and Units (F)",
                             .helpTopic = 1650,
                             .groups = kQGroups,
                             .fieldName = "txtCd",
                             .fieldTitle = "Distributed capacitance Cd (pF)",
                             .formula = qualityFormula};
const ParameterTable kMTLTable{.form = "frmMTL",
                               .title = "Select",
                               .helpTopic = 1640,
                               .groups = kMTLGroups,
                               .tick = &kLmuFeet,
                               .tickName = "chkFt",
                               .formula = meanTurnFormula};
const ParameterTable kLsTable{.form = "frmLs",
                              .title = "Select Units for len and r",
                              .helpTopic = 1630,
                              .groups = kLsGroups,
                              .formula = solenoidFormula};
const ParameterTable kPLTable{.form = "frmPL",
                              .title = "Choose a Material",
                              .helpTopic = 1660,
                              .groups = kPLGroups,
                              .note =
                                  "See MAGNETICS® FERRITE CORE catalog for a detailed description of the "
                                  "individual materials."_t,
                              .formula = ferriteFormula,
                              .wantsRow = true};
const ParameterTable kAWGTable{
    .form = "frmAWG", .title = "AWG", .helpTopic = 1815, .groups = kAWGGroups, .closesOnChoice = true};

void askWireBuild(Engine& calc, WireBuild& build) {
    std::optional<std::size_t> row = static_cast<std::size_t>(build);
    ParameterDialog(calc, kAWGTable, {.row = &row}).ask();
    build = static_cast<WireBuild>(row.value_or(0));
}

std::string_view wireBuildCaption(WireBuild build) {
    constexpr std::array<std::string_view, kBuilds.size()> kCaptions{" S \nAWG", " H \nAWG", " T \nAWG", " Q \nAWG"};
    return kCaptions.at(static_cast<std::size_t>(build));
}

}  // namespace tallyforge
