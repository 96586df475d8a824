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

/// A look-up, which no modifier gives another meaning.
template <void (*LookUp)(Engine&)>
void plain(Keys& keys) {
    keys.calc.s.modifiers.ModifierMask == 0 ? LookUp(keys.calc) : refuseModifiers(keys.calc);
}

// The letters take the bank; X stays.
void letterDrills(Engine& calc) {
    calc.keypads().ShowKeypad(Keypad::LetterDrill);
    leaveX(calc);
}

void drillBits(Keys& keys) {
    switch (keys.calc.s.modifiers.ModifierMask) {
        case 0:
            return numberDrill(keys.calc);
        case kShift:
            return letterDrills(keys.calc);
        default:
            return refuseModifiers(keys.calc);
    }
}

template <ChartId Id>
void chart(Engine& calc) {
    showChart(calc, Id);
}

}  // namespace

const KeypadTable kTablesKeypad{
    .id = Keypad::Tables,
    .name = "Tables",
    .paintsUnderModifiers = false,
    .rows = {{
        {.key = 0,
         .caption = "1/x",
         .tip = " x key ",
         .helpTopic = 3000,
         .does = [](Keys& keys) { reciprocal(keys.calc); }},
        {.key = 1,
         .caption = {"X²"_t},
         .tip = " Shift+x ",
         .helpTopic = 3001,
         .does = [](Keys& keys) { square(keys.calc); }},
        {.key = 2,
         .caption = {"Ö´"_t, Face::Symbol},
         .tip = " Ctrl+X ",
         .helpTopic = 3002,
         .does = [](Keys& keys) { squareRoot(keys.calc); }},
        {.key = 3,
         .caption = " W Aw",
         .tip = " DCR, Aluminum Wire: AWG (8 - 44) - [Click]  ",
         .helpTopic = 3003,
         .does = plain<aluminumResistance>},
        {.key = 4,
         .caption = "W 1/2",
         .tip = " DCR, Half-Size Copper Wire: Base AWG - [Click] (1/2 is added to base!) ",
         .helpTopic = 3004,
         .does = plain<halfSizeResistance>},
        {.key = 5,
         .caption = "Stl Wire",
         .tip = " Steel Wire, [Click] to View Table ",
         .helpTopic = 3005,
         .does = plain<chart<ChartId::SteelWire>>},
        {.key = 6,
         .caption = "UNF",
         .tip = " National Fine Tap Drill Sizes - [Click] to View Table ",
         .helpTopic = 3006,
         .does = plain<chart<ChartId::FineThreads>>},
        {.key = 7,
         .caption = "MS",
         .tip = " Machine Screw size number [Click], calculate diameter ",
         .helpTopic = 3007,
         .does = plain<machineScrew>},
        {.key = 8,
         .caption = "BFC",
         .tip = " Board Foot Calculator - [Click] ",
         .helpTopic = 3008,
         .does = [](Keys& keys) { boardFootCalculator(keys); }},
        {.key = 9,
         .caption = "SS-T",
         .tip = " Stainless Steel Thickness, Gauge 6/0 (-5) - 38 [Click] ",
         .helpTopic = 3009,
         .does = plain<stainlessSteel>},
        {.key = 10,
         .caption = "MS tap",
         .tip = " Mach. Screw Tap Drill Size: X.YY; integer (X) is MS#, the decimal (.YY)is Threads per Inch (TPI not "
                "required for 0, 00, or 000 MS)  [Click] ",
         .helpTopic = 3010,
         .does = plain<machineScrewTap>},
        {.key = 11,
         .caption = "nails",
         .tip = " Handy nail chart - [Click] to View ",
         .helpTopic = 3011,
         .does = plain<chart<ChartId::Nails>>},
        {.key = 12,
         .caption = {"½hy Ø"_t},
         .tip = " Half-Size Heavy Build Magnet Wire Diameter (4½ - 50½): Base AWG - [Click] (1/2 added to base!) "_t,
         .helpTopic = 3012,
         .does = plain<halfSizeHeavyDiameter>},
        {.key = 13,
         .caption = {"½hy cma"_t},
         .tip =
             " Half-Size Heavy Build Magnet Wire Cir Mil Area (4½ - 50½): Base AWG - [Click] (1/2 added to base!) "_t,
         .helpTopic = 3013,
         .does = plain<halfSizeHeavyArea>},
        {.key = 14,
         .caption = {"½sg Ø"_t},
         .tip = " Half-Size Single Build Magnet Wire Diameter (14½ - 50½): Base AWG - [Click] (1/2 added to base!) "_t,
         .helpTopic = 3014,
         .does = plain<halfSizeSingleDiameter>},
        {.key = 15,
         .caption = {"½sg cma"_t},
         .tip =
             " Half-Size Single Build Magnet Wire Cir Mil Area (14½ - 50½): Base AWG - [Click] (1/2 added to base!) "_t,
         .helpTopic = 3015,
         .does = plain<halfSizeSingleArea>},
        {.key = 16,
         .caption = "K",
         .tip = " Select between many useful constants - [Click] |  Display SI Prefixes [Ctrl+Click] ",
         .helpTopic = 3016,
         .does = constantsTableKey},
        {.key = 17,
         .caption = "AL Thk",
         .tip = " Aluminum sheet thickness, AWG 000000 (-5) to 38 - [Click] ",
         .helpTopic = 3017,
         .does = plain<sheetAluminum>},
        {.key = 18,
         .caption = "UNC",
         .tip = " National Coarse Tap Drill Sizes - [Click] to View Table ",
         .helpTopic = 3018,
         .does = plain<chart<ChartId::CoarseThreads>>},
        {.key = 19,
         .caption = "F:D",
         .tip = " Fraction to Decimal: num.denom [Click] ",
         .helpTopic = 3019,
         .does = [](Keys& keys) { keys.fractions.F2DandBF(); }},
        {.key = 20,
         .caption = "Sht Stl",
         .tip = " Standard sheet steel thickness, Gage 3 - 38 [Click] ",
         .helpTopic = 3020,
         .does = plain<sheetSteel>},
        {.key = 21,
         .caption = "Bits",
         .tip = " Drill bit sizes: No. [Click] | Shift+[Click] for Letter Drills (mouse over letter). ",
         .helpTopic = 3021,
         .does = drillBits},
        {.key = 22,
         .caption = "ASP",
         .tip = " American Std. Pipe Tap Drill Sizes - [Click] to View Table ",
         .helpTopic = 3022,
         .does = plain<chart<ChartId::PipeThreads>>},
        {.key = 23,
         .caption = "WS",
         .tip = " Handy Wood Screw Table, [Click] to View. ",
         .helpTopic = 3023,
         .does = plain<chart<ChartId::WoodScrews>>},
    }},
};

}  // namespace tallyforge
