// SPDX-License-Identifier: GPL-3.0-or-later
#include "electrical/sheet_gauges.h"

#include "electrical/key_answers.h"
#include "engine/engine.h"

#include <array>
#include <string>
#include <string_view>

namespace tallyforge {

namespace {

constexpr int kThicknessDigits = 4;
constexpr std::string_view kOutOfGauges = "Use an intger between -5 and 38, inclusive!";

constexpr std::array<TableRow, 36> kSteelRows{
    {{3, 0.2391},  {4, 0.2242},  {5, 0.2092},  {6, 0.1943},  {7, 0.1793},  {8, 0.1644},  {9, 0.1495},  {10, 0.1345},
     {11, 0.1196}, {12, 0.1046}, {13, 0.0897}, {14, 0.0747}, {15, 0.0673}, {16, 0.0598}, {17, 0.0538}, {18, 0.0478},
     {19, 0.0418}, {20, 0.0359}, {21, 0.0329}, {22, 0.0299}, {23, 0.0269}, {24, 0.0239}, {25, 0.0209}, {26, 0.0179},
     {27, 0.0164}, {28, 0.0149}, {29, 0.0135}, {30, 0.012},  {31, 0.0105}, {32, 0.0097}, {33, 0.009},  {34, 0.0082},
     {35, 0.0075}, {36, 0.0067}, {37, 0.0064}, {38, 0.006}}};

constexpr std::array<TableRow, 44> kStainlessRows{
    {{-5, 0.4687}, {-4, 0.4375}, {-3, 0.4062}, {-2, 0.375},  {-1, 0.3437}, {0, 0.3125},  {1, 0.2812},  {2, 0.2656},
     {3, 0.25},    {4, 0.2344},  {5, 0.2187},  {6, 0.2031},  {7, 0.1875},  {8, 0.1719},  {9, 0.1562},  {10, 0.1406},
     {11, 0.125},  {12, 0.1094}, {13, 0.0937}, {14, 0.0781}, {15, 0.0703}, {16, 0.0625}, {17, 0.0562}, {18, 0.05},
     {19, 0.0437}, {20, 0.0375}, {21, 0.0344}, {22, 0.0312}, {23, 0.0281}, {24, 0.025},  {25, 0.0219}, {26, 0.0187},
     {27, 0.0172}, {28, 0.0156}, {29, 0.0141}, {30, 0.0125}, {31, 0.0109}, {32, 0.0102}, {33, 0.0094}, {34, 0.0086},
     {35, 0.0078}, {36, 0.007},  {37, 0.0066}, {38, 0.0062}}};

constexpr std::array<TableRow, 44> kAluminumRows{
    {{-5, 0.58},   {-4, 0.5165}, {-3, 0.46},   {-2, 0.4096}, {-1, 0.3648}, {0, 0.3249},  {1, 0.2893},  {2, 0.2576},
     {3, 0.2294},  {4, 0.2043},  {5, 0.1819},  {6, 0.162},   {7, 0.1443},  {8, 0.1285},  {9, 0.1144},  {10, 0.1019},
     {11, 0.0907}, {12, 0.0808}, {13, 0.072},  {14, 0.0641}, {15, 0.0571}, {16, 0.0508}, {17, 0.0453}, {18, 0.0403},
     {19, 0.0359}, {20, 0.032},  {21, 0.0285}, {22, 0.0253}, {23, 0.0226}, {24, 0.0201}, {25, 0.0179}, {26, 0.0159},
     {27, 0.0142}, {28, 0.0126}, {29, 0.0113}, {30, 0.01},   {31, 0.0089}, {32, 0.008},  {33, 0.0071}, {34, 0.0063},
     {35, 0.0056}, {36, 0.005},  {37, 0.0045}, {38, 0.004}}};

/// The thickness under a label of `before`, the gauge and `behind`, or the box.
void lookUp(Engine& calc, const LookupTable& table, std::string_view before, std::string_view behind,
            const KeyRefusal& refusal) {
    const double gauge = calc.xNumber();
    if (const auto inches = table.at(gauge)) {
        const std::string label = std::string(before) + plainSize(static_cast<int>(gauge)) + std::string(behind);
        answerWithDigits(calc, {*inches, label}, kThicknessDigits);
    } else {
        refuse(calc, refusal);
    }
}

}  // namespace

constinit const LookupTable kSheetSteel{
    .name = "sheet-steel",
    .title = "Thickness of sheet steel",
    .sizes = "gauge",
    .unit = "in",
    .source =
        "the calculator's own rows, those of the Manufacturers' Standard Gauge (ounces per square foot over 669.12)",
    .rows = kSteelRows};

constinit const LookupTable kStainlessSteel{
    .name = "stainless-steel",
    .title = "Thickness of stainless steel sheet",
    .sizes = "gauge",
    .unit = "in",
    .source =
        "the calculator's own rows, those of the U.S. Standard Gauge (ounces per square foot over 640) rounded to four "
        "places, a half down; -5 is 6/0",
    .rows = kStainlessRows};

constinit const LookupTable kSheetAluminum{
    .name = "sheet-aluminum",
    .title = "Thickness of aluminum sheet",
    .sizes = "gauge",
    .unit = "in",
    .source = "the calculator's own rows, the diameters of AWG (Brown and Sharpe); -5 is 000000",
    .rows = kAluminumRows};

void sheetSteel(Engine& calc) {
    lookUp(calc, kSheetSteel, "", ") thk",
           {.text = "Select Gauge size between 3 and 38, inclusive!",
            .title = "Sheet Steel Thickness",
            .kind = BoxKind::Notice});
}

void stainlessSteel(Engine& calc) {
    lookUp(calc, kStainlessSteel, "(", ")", {.text = kOutOfGauges, .title = "Stainless Steel Gauge Thickness"});
}

void sheetAluminum(Engine& calc) {
    lookUp(calc, kSheetAluminum, "(", ")", {.text = kOutOfGauges, .title = "Aluminum Gauge Thickness"});
}

}  // namespace tallyforge
