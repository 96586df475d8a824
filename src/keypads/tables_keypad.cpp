// SPDX-License-Identifier: GPL-3.0-or-later
//
// The Tables keypad, a row a key.
#include "electrical/drills.h"
#include "electrical/machine_screws.h"
#include "electrical/sheet_gauges.h"
#include "electrical/table_wire.h"
#include "engine/results.h"
#include "functions/reciprocal_square.h"
#include "keypads/constants_key.h"
#include "keypads/keypad_table.h"
#include "keypads/keys.h"
#include "reference/charts.h"

namespace tallyforge {

namespace {

// The program does all the rest; the key itself has no value.
void boardFootCalculator(Keys& keys) {
    if (keys.runProgram) {
        keys.runProgram("Board feet.rec");
    }
    leaveX(keys.calc);
}

// The letters take the bank; X stays.
void letterDrills(Engine& calc) {
    calc.keypads().ShowKeypad(Keypad::LetterDrill);
    leaveX(calc);
}

}  // namespace

const KeypadTable kTablesKeypad{
    .id = Keypad::Tables,
    .name = "Tables",
    .paintsUnderModifiers = false,
    .rows = {{
        {.key = key::Reciprocal, .caption = "1/x", .tip = " x key ", .helpTopic = 3000, .does = on<reciprocal>},
        {.key = key::Square, .caption = {"X²"_t}, .tip = " Shift+x ", .helpTopic = 3001, .does = on<square>},
        {.key = key::SquareRoot,
         .caption = {"Ö´"_t, Face::Symbol},
         .tip = " Ctrl+X ",
         .helpTopic = 3002,
         .does = on<squareRoot>},
        {.key = key::AluminumWire,
         .caption = " W Aw",
         .tip = " DCR, Aluminum Wire: AWG (8 - 44) - [Click]  ",
         .helpTopic = 3003,
         .plain = on<aluminumResistance>},
        {.key = key::HalfSizeWire,
         .caption = "W 1/2",
         .tip = " DCR, Half-Size Copper Wire: Base AWG - [Click] (1/2 is added to base!) ",
         .helpTopic = 3004,
         .plain = on<halfSizeResistance>},
        {.key = key::SteelWire,
         .caption = "Stl Wire",
         .tip = " Steel Wire, [Click] to View Table ",
         .helpTopic = 3005,
         .plain = on<showChart, ChartId::SteelWire>},
        {.key = key::FineThreads,
         .caption = "UNF",
         .tip = " National Fine Tap Drill Sizes - [Click] to View Table ",
         .helpTopic = 3006,
         .plain = on<showChart, ChartId::FineThreads>},
        {.key = key::MachineScrew,
         .caption = "MS",
         .tip = " Machine Screw size number [Click], calculate diameter ",
         .helpTopic = 3007,
         .plain = on<machineScrew>},
        {.key = key::BoardFeet,
         .caption = "BFC",
         .tip = " Board Foot Calculator - [Click] ",
         .helpTopic = 3008,
         .does = [](Keys& keys) { boardFootCalculator(keys); }},
        {.key = key::StainlessSteel,
         .caption = "SS-T",
         .tip = " Stainless Steel Thickness, Gauge 6/0 (-5) - 38 [Click] ",
         .helpTopic = 3009,
         .plain = on<stainlessSteel>},
        {.key = key::ScrewTap,
         .caption = "MS tap",
         .tip = " Mach. Screw Tap Drill Size: X.YY; integer (X) is MS#, the decimal (.YY)is Threads per Inch (TPI not "
                "required for 0, 00, or 000 MS)  [Click] ",
         .helpTopic = 3010,
         .plain = on<machineScrewTap>},
        {.key = key::Nails,
         .caption = "nails",
         .tip = " Handy nail chart - [Click] to View ",
         .helpTopic = 3011,
         .plain = on<showChart, ChartId::Nails>},
        {.key = key::HalfSizeHeavyDiameter,
         .caption = {"½hy Ø"_t},
         .tip = " Half-Size Heavy Build Magnet Wire Diameter (4½ - 50½): Base AWG - [Click] (1/2 added to base!) "_t,
         .helpTopic = 3012,
         .plain = on<halfSizeHeavyDiameter>},
        {.key = key::HalfSizeHeavyArea,
         .caption = {"½hy cma"_t},
         .tip =
             " Half-Size Heavy Build Magnet Wire Cir Mil Area (4½ - 50½): Base AWG - [Click] (1/2 added to base!) "_t,
         .helpTopic = 3013,
         .plain = on<halfSizeHeavyArea>},
        {.key = key::HalfSizeSingleDiameter,
         .caption = {"½sg Ø"_t},
         .tip = " Half-Size Single Build Magnet Wire Diameter (14½ - 50½): Base AWG - [Click] (1/2 added to base!) "_t,
         .helpTopic = 3014,
         .plain = on<halfSizeSingleDiameter>},
        {.key = key::HalfSizeSingleArea,
         .caption = {"½sg cma"_t},
         .tip =
             " Half-Size Single Build Magnet Wire Cir Mil Area (14½ - 50½): Base AWG - [Click] (1/2 added to base!) "_t,
         .helpTopic = 3015,
         .plain = on<halfSizeSingleArea>},
        {.key = key::TableConstants,
         .caption = "K",
         .tip = " Select between many useful constants - [Click] |  Display SI Prefixes [Ctrl+Click] ",
         .under = {.shift = {"", pickConstant}, .ctrl = {"", pickPrefix}, .alt = {"", pickAndKeepConstant}},
         .helpTopic = 3016,
         .plain = pickConstant},
        {.key = key::SheetAluminum,
         .caption = "AL Thk",
         .tip = " Aluminum sheet thickness, AWG 000000 (-5) to 38 - [Click] ",
         .helpTopic = 3017,
         .plain = on<sheetAluminum>},
        {.key = key::CoarseThreads,
         .caption = "UNC",
         .tip = " National Coarse Tap Drill Sizes - [Click] to View Table ",
         .helpTopic = 3018,
         .plain = on<showChart, ChartId::CoarseThreads>},
        {.key = key::TableFraction,
         .caption = "F:D",
         .tip = " Fraction to Decimal: num.denom [Click] ",
         .helpTopic = 3019,
         .does = [](Keys& keys) { keys.fractions.F2DandBF(); }},
        {.key = key::SheetSteel,
         .caption = "Sht Stl",
         .tip = " Standard sheet steel thickness, Gage 3 - 38 [Click] ",
         .helpTopic = 3020,
         .plain = on<sheetSteel>},
        {.key = key::DrillBits,
         .caption = "Bits",
         .tip = " Drill bit sizes: No. [Click] | Shift+[Click] for Letter Drills (mouse over letter). ",
         .under = {.shift = {"", on<letterDrills>}},
         .helpTopic = 3021,
         .plain = on<numberDrill>},
        {.key = key::PipeThreads,
         .caption = "ASP",
         .tip = " American Std. Pipe Tap Drill Sizes - [Click] to View Table ",
         .helpTopic = 3022,
         .plain = on<showChart, ChartId::PipeThreads>},
        {.key = key::WoodScrews,
         .caption = "WS",
         .tip = " Handy Wood Screw Table, [Click] to View. ",
         .helpTopic = 3023,
         .plain = on<showChart, ChartId::WoodScrews>},
    }},
};

}  // namespace tallyforge
