// SPDX-License-Identifier: GPL-3.0-or-later
#include "electrical/drills.h"

#include "electrical/key_answers.h"
#include "engine/engine.h"
#include "numbers/number_format.h"
#include "platform/text.h"

#include <array>
#include <string>

namespace tallyforge {

namespace {

constexpr int kDrillDigits = 4;

constexpr std::array<TableRow, 78> kNumberRows{
    {{1, 0.228},   {2, 0.221},   {3, 0.213},  {4, 0.209},   {5, 0.2055},  {6, 0.204},   {7, 0.201},   {8, 0.199},
     {9, 0.196},   {10, 0.1935}, {11, 0.191}, {12, 0.189},  {13, 0.185},  {14, 0.182},  {15, 0.18},   {16, 0.177},
     {17, 0.173},  {18, 0.1695}, {19, 0.166}, {20, 0.161},  {21, 0.159},  {22, 0.157},  {23, 0.154},  {24, 0.152},
     {25, 0.1495}, {26, 0.147},  {27, 0.144}, {28, 0.1405}, {29, 0.136},  {30, 0.1285}, {31, 0.12},   {32, 0.116},
     {33, 0.113},  {34, 0.111},  {35, 0.11},  {36, 0.1065}, {37, 0.104},  {38, 0.1015}, {39, 0.0995}, {40, 0.098},
     {41, 0.096},  {42, 0.0935}, {43, 0.089}, {44, 0.086},  {45, 0.082},  {46, 0.081},  {47, 0.0785}, {48, 0.076},
     {49, 0.073},  {50, 0.07},   {51, 0.067}, {52, 0.0635}, {53, 0.0595}, {54, 0.055},  {55, 0.052},  {56, 0.0465},
     {57, 0.043},  {58, 0.042},  {59, 0.041}, {60, 0.04},   {61, 0.039},  {62, 0.038},  {63, 0.037},  {64, 0.036},
     {65, 0.035},  {66, 0.033},  {67, 0.032}, {68, 0.031},  {69, 0.0292}, {70, 0.028},  {71, 0.026},  {72, 0.025},
     {73, 0.024},  {74, 0.0225}, {75, 0.021}, {76, 0.02},   {77, 0.018},  {78, 0.016}}};

// Quirk: V, U and L are smaller than their neighbours, and stay so.
constexpr std::array<TableRow, 26> kLetterRows{
    {{'A', 0.2340}, {'B', 0.2380}, {'C', 0.2420}, {'D', 0.2460}, {'E', 0.2500}, {'F', 0.2570}, {'G', 0.2610},
     {'H', 0.2660}, {'I', 0.2720}, {'J', 0.2770}, {'K', 0.2810}, {'L', 0.1890}, {'M', 0.2950}, {'N', 0.3020},
     {'O', 0.3160}, {'P', 0.3230}, {'Q', 0.3320}, {'R', 0.3390}, {'S', 0.3480}, {'T', 0.3580}, {'U', 0.1590},
     {'V', 0.1570}, {'W', 0.3860}, {'X', 0.3970}, {'Y', 0.4040}, {'Z', 0.4130}}};

/// By key of the bank.
constexpr std::array<std::string_view, 24> kKeyLetters{"W/X", "V", "U", "L", "H", "G", "Q", "M",   "P", "O", "N", "E",
                                                       "D",   "C", "B", "A", "T", "S", "R", "Y/Z", "K", "J", "I", "F"};

std::string letter(int code) {
    return {static_cast<char>(code)};
}

}  // namespace

constinit const LookupTable kNumberDrills{.name = "number-drills",
                                          .title = "Diameter of number drills",
                                          .sizes = "#",
                                          .unit = "in",
                                          .source = "the calculator's own rows, those of ASME B94.11M",
                                          .rows = kNumberRows};

constinit const LookupTable kLetterDrills{
    .name = "letter-drills",
    .title = "Diameter of letter drills",
    .sizes = "letter",
    .unit = "in",
    .source =
        "the calculator's own rows, those of ASME B94.11M but for V, U and L, which are 0.377, 0.368 and 0.290 there "
        "and stand as 0.157, 0.159 and 0.189",
    .rows = kLetterRows,
    .sizeText = letter};

std::string_view drillLetters(int key) {
    return kKeyLetters.at(static_cast<std::size_t>(key));
}

std::string letterDrillTip(int key) {
    std::string tip;
    for (const char each : drillLetters(key)) {
        if (const auto inches = kLetterDrills.at(each)) {
            tip += (tip.empty() ? " Letter " : "and Letter ") + letter(each) + " drill is " +
                   fixedText(*inches, kDrillDigits) + std::string(" Ø "_t);
        }
    }
    return tip;
}

void numberDrill(Engine& calc) {
    const double number = roundHalfEven(calc.xNumber(), 0);
    const auto inches = kNumberDrills.at(number);
    if (!inches) {
        refuse(calc, {.text = "Select a number between 1 and 78, inclusive!",
                      .title = "Number Drill Bits",
                      .kind = BoxKind::Notice});
        return;
    }
    const std::string label = std::to_string(static_cast<int>(number)) + std::string(" í)"_t);
    answerWithDigits(calc, {*inches, label}, kDrillDigits);
}

}  // namespace tallyforge
